// The texts of a command-line revision report that fault tests expect, word for word.
#ifndef STYLE_TARNEL_TESTS_FAULTS_REPORT_TEXTS_H
#define STYLE_TARNEL_TESTS_FAULTS_REPORT_TEXTS_H

#include <QByteArray>
#include <QString>

namespace report {

inline QByteArray const done_line = "It's done." + QByteArray(25, ' ') + "\n";

inline QByteArray invalid_file(QString const& path) {
    return "Sorry, I can't revise file '" + path.toUtf8() +
           "'. If this file exists - please check read/write permissions.\n\n";
}

inline QByteArray syntax_error_in(QString const& path) {
    return "Sorry, I can't revise file '" + path.toUtf8() +
           "', because it contains syntax error, or language structure that cannot be formatted correctly.\n\n";
}

}  // namespace report

#endif
