// What every window test does for each case: a bundle emptied, a temporary work directory for the
// user's code, the main window opened and shown, a language and a style chosen as a user picks
// them, paths handed over as the dialogs and drops hand them. A test class inherits it and calls
// `begin_case` from its init() and `end_case` from its cleanup().
#ifndef STYLE_TARNEL_TESTS_GUI_WINDOW_FIXTURE_H
#define STYLE_TARNEL_TESTS_GUI_WINDOW_FIXTURE_H

#include "GUI/main_window.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

// Writes `content` into the file at `path`, its directories made first.
void write_file(QString const& path, QByteArray const& content);

class window_fixture {
protected:
    std::unique_ptr<GUI::main_window> window;
    std::unique_ptr<QTemporaryDir> work;

    // Settings cleared but for the accepted agreement, no plugin or addon in the bundle, a new
    // work directory.
    void begin_case();
    // The window closed before its work directory goes.
    void end_case();
    // The main window at that size, shown and exposed (a failed QVERIFY inside: check
    // QTest::currentTestFailed() when it matters).
    void open_window(QSize const& size = QSize(1100, 700));
    void choose(QString const& language, QString const& style);
    // The path of `relative` in the work directory.
    QString path(QString const& relative) const;
    // Paths of the work directory added to the shown task's list.
    void add(QStringList const& relative_paths);
    // The standard output of the command-line program run with `words`, on this test's bundle
    // (through a copy beside the test, which the bundle names as the program).
    QString output_of_the_command_line(QStringList const& words) const;
};

#endif
