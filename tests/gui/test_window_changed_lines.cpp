// "Revise changed lines" of the window's "Your code" menu: enabled while the task has paths, it
// revises only the lines that differ from git's HEAD, and a run that cannot start says why in a
// message box, in the command line's words, and writes nothing.
#include "GUI/list_of_paths.h"
#include "GUI/main_window.h"
#include "GUI/show_revise.h"
#include "GUI/task_tabs.h"
#include "GUI/task_tabs_itself.h"
#include "core/path_to.h"
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"
#include "helpers/window_fixture.h"
#include "helpers/window_test_helpers.h"

#include <QAccessible>
#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {

// Git's words in `directory`, under a name of its own for the commits; its exit status.
int git(QString const& directory, QStringList const& arguments) {
    QProcess process;
    process.setWorkingDirectory(directory);
    process.start("git", QStringList{"-c", "user.name=Tester", "-c", "user.email=tester@example.org"} + arguments);
    process.waitForFinished(60000);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

// The SDK's example plugin, INI, whose style Spaced revises line ranges ("a=1" becomes "a = 1").
void install_the_INI_language() {
    QFile::copy(built::example_plugin(), path_to().plugins_directory() + "/libini-language-plugin.so");
    QFile::copy(built::source_dir() + "/sdk/example/Spaced[INI].style", path_to().addons_directory() + "/Spaced[INI].style");
}

}  // namespace

class test_window_changed_lines : public QObject, window_fixture {
    Q_OBJECT

    QAction* entry() const { return window->findChild<QAction*>("revise_menu_changed_lines"); }
    GUI::show_revise* starter() const { return window->findChild<GUI::show_revise*>(); }

private slots:
    void init();
    void cleanup();

    void the_entry_follows_the_paths_data();
    void the_entry_follows_the_paths();
    void revises_only_the_changed_lines_data();
    void revises_only_the_changed_lines();
};

void test_window_changed_lines::init() {
    begin_case();
    install_test_languages(path_to().plugins_directory(), path_to().addons_directory());
    install_the_INI_language();
}

void test_window_changed_lines::cleanup() { end_case(); }

void test_window_changed_lines::the_entry_follows_the_paths_data() {
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("no path yet") << QStringList() << false;
    QTest::newRow("a path added") << QStringList{"add"} << true;
    QTest::newRow("the last path removed") << QStringList{"add", "remove"} << false;
    QTest::newRow("a new tab without paths") << QStringList{"add", "new tab"} << false;
    QTest::newRow("back to the tab with a path") << QStringList{"add", "new tab", "first tab"} << true;
}

// Faults: the entry left out of "&Your code" or announced without a name; enabled with no path to
// revise (a run of nothing), or left disabled once the task has one; not following the tabs.
void test_window_changed_lines::the_entry_follows_the_paths() {
    QFETCH(QStringList, steps);
    QFETCH(bool, enabled);
    write_file(path("proj/c.ini"), "a=1\n");
    open_window();
    choose("INI", "Spaced");
    QMenu* menu = window->menuBar()->findChild<QMenu*>("revise_menu");
    QVERIFY(menu != nullptr);
    QVERIFY(menu->actions().contains(entry()));
    QAccessibleInterface* const item =
        QAccessible::queryAccessibleInterface(menu)->child(menu->actions().indexOf(entry()));
    QCOMPARE(item->text(QAccessible::Name), QString("Revise changed lines"));
    QVERIFY(entry()->statusTip().contains("git"));
    for (QString const& step : steps) {
        if (step == "add") {
            add({"proj"});
        } else if (step == "remove") {
            window->findChild<QListWidget*>("paths")->selectAll();
            QTest::mouseClick(window->findChild<QPushButton*>("remove_paths"), Qt::LeftButton);
        } else if (step == "new tab") {
            window->findChild<QAction*>("tab_menu_new")->trigger();
            window->findChild<GUI::task_tabs_itself*>()->setCurrentIndex(1);
        } else if (step == "first tab") {
            window->findChild<GUI::task_tabs_itself*>()->setCurrentIndex(0);
        }
    }
    QCOMPARE(entry()->isEnabled(), enabled);
    QCOMPARE(entry()->isEnabled(), window->findChild<QAction*>("revise_menu_all")->isEnabled());
}

void test_window_changed_lines::revises_only_the_changed_lines_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("file");        // below the task's one path, "proj"
    QTest::addColumn<QByteArray>("committed");  // empty: "proj" is no git work tree
    QTest::addColumn<QByteArray>("before");     // the file as the run finds it
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("by_shortcut");
    // The report, or the refusal that the message box shows as well; %W: the temporary directory.
    QTest::addColumn<QString>("report");
    QTest::addColumn<bool>("refused");
    QString const revised_one = "1 file was found, 1 file was revised, 1 file was changed.";
    QTest::newRow("a changed line among lines out of style")
        << "INI" << "Spaced" << "c.ini" << QByteArray("a=1\nb=2\nc=3\n") << QByteArray("a=1\nb=22\nc=3\n")
        << QByteArray("a=1\nb = 22\nc=3\n") << false << revised_one << false;
    QTest::newRow("a changed line, started by the shortcut")
        << "INI" << "Spaced" << "c.ini" << QByteArray("a=1\nb=2\nc=3\n") << QByteArray("a=1\nb=2\nc=33\n")
        << QByteArray("a=1\nb=2\nc = 33\n") << true << revised_one << false;
    QTest::newRow("outside a git work tree")
        << "INI" << "Spaced" << "c.ini" << QByteArray() << QByteArray("a=1\nb=22\n") << QByteArray("a=1\nb=22\n")
        << false << "Sorry, I can't revise changed lines: '%W/proj' is not in a git work tree." << true;
    QTest::newRow("a plugin that revises whole files only")
        << "Test" << "Plain" << "a.tst" << QByteArray("a  b\n") << QByteArray("a  b\nc  d\n")
        << QByteArray("a  b\nc  d\n") << false
        << "Sorry, I can't revise only some lines: the plugin of language 'Test' revises whole files only." << true;
}

// Faults: the whole file revised (the lines out of style that did not change too), or none of it;
// the run started without asking git, so that a tree outside git or a plugin that cannot revise
// ranges gets whole files revised; a refusal left in the report alone, or in other words than the
// command line's; a shortcut that does not start the run.
void test_window_changed_lines::revises_only_the_changed_lines() {
    QFETCH(QString, language);
    QFETCH(QString, style);
    QFETCH(QString, file);
    QFETCH(QByteArray, committed);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(bool, by_shortcut);
    QFETCH(QString, report);
    QFETCH(bool, refused);
    QString const revised = path("proj/" + file);
    if (!committed.isEmpty()) {
        write_file(revised, committed);
        QCOMPARE(git(path("proj"), {"init", "-q"}), 0);
        QCOMPARE(git(path("proj"), {"add", "-A"}), 0);
        QCOMPARE(git(path("proj"), {"commit", "-qm", "base"}), 0);
    }
    write_file(revised, before);
    QDateTime const written = QFileInfo(revised).lastModified();
    open_window();
    choose(language, style);
    add({"proj"});
    QVERIFY(entry()->isEnabled());

    QSignalSpy finished(starter(), &GUI::show_revise::revision_is_finished);
    QSignalSpy refusals(starter(), &GUI::show_revise::revision_was_refused);
    if (by_shortcut) {
        QApplication::setActiveWindow(window.get());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(window.get(), Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    } else {
        entry()->trigger();
    }
    QVERIFY(finished.wait(60000) || !finished.isEmpty());
    QString const expected = QString(report).replace("%W", work->path());
    QCOMPARE(finished.first().at(0).toString().trimmed(), expected);
    QCOMPARE(temporary_bundle::contents_of(revised), after);
    QVERIFY(!starter()->progress_dialog()->isVisible());
    auto* box = window->findChild<QMessageBox*>("critical_alert");
    if (!refused) {
        QVERIFY(box == nullptr);
        QVERIFY(refusals.isEmpty());
        return;
    }
    QCOMPARE(refusals.count(), 1);
    QVERIFY(box != nullptr);
    QCOMPARE(box->text(), expected);
    QCOMPARE(QFileInfo(revised).lastModified(), written);
}

STYLE_TARNEL_WIDGET_TEST_MAIN_IN_BUNDLE(test_window_changed_lines)
#include "test_window_changed_lines.moc"
