// Numbered untidy sources for fault tests, and what a run must leave of them: every file either
// exactly as it was or exactly as the test plugin revises it, never anything in between.
#ifndef STYLE_TARNEL_TESTS_FAULTS_SOURCE_TREE_H
#define STYLE_TARNEL_TESTS_FAULTS_SOURCE_TREE_H

#include "tests/harness/temporary_bundle.h"

#include <QByteArray>
#include <QStringList>

struct source_tree {
    // `count` files src/f01.tst, src/f02.tst, ... in the bundle's work directory; file n holds
    // `untidy_line` n times, so that sizes tell the files apart.
    source_tree(temporary_bundle const& bundle, int count);

    static QByteArray const untidy_line;
    static QByteArray const tidy_line;
    QByteArray untidy(int index) const;
    QByteArray tidy(int index) const;

    // "--path=<file>" for each file; the command line sorts its words, so the run meets the files
    // in this order.
    QStringList path_arguments() const;
    // How many files hold their revised text; false when any file is neither untidy nor tidy.
    bool each_file_is_whole(int& revised) const;

    QString directory;
    QStringList files;
};

#endif
