// Numbered untidy sources for fault tests.
#include "tests/faults/helpers/source_tree.h"

#include <QFile>

QByteArray const source_tree::untidy_line = "int  x;\n";
QByteArray const source_tree::tidy_line = "int x;\n";

source_tree::source_tree(temporary_bundle const& bundle, int count) : directory(bundle.work_directory() + "/src") {
    for (int index = 0; index < count; ++index)
        files << bundle.write_file(QString("src/f%1.tst").arg(index + 1, 2, 10, QChar('0')), untidy(index));
}

QByteArray source_tree::untidy(int index) const { return untidy_line.repeated(index + 1); }
QByteArray source_tree::tidy(int index) const { return tidy_line.repeated(index + 1); }

QStringList source_tree::path_arguments() const {
    QStringList arguments;
    for (auto const& file : files)
        arguments << "--path=" + file;
    return arguments;
}

bool source_tree::each_file_is_whole(int& revised) const {
    revised = 0;
    for (int index = 0; index < files.size(); ++index) {
        QByteArray const now = temporary_bundle::contents_of(files[index]);
        if (now == tidy(index))
            ++revised;
        else if (now != untidy(index))
            return false;
    }
    return true;
}
