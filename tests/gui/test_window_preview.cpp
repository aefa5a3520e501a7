// The "Preview" pane: a file of the shown task as the current style revises it, its changed lines
// marked, following every change that takes effect, dropping what a newer change overtook and
// saying when the plugin refuses the file.
#include "GUI/list_of_paths.h"
#include "GUI/look_n_feel_editor.h"
#include "GUI/main_window.h"
#include "GUI/preview_of_code.h"
#include "GUI/task_tabs.h"
#include "GUI/task_tabs_itself.h"
#include "core/path_to.h"
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"
#include "helpers/window_fixture.h"
#include "helpers/window_test_helpers.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBlock>

#include <memory>

namespace {

// The test language in its build that reads its addon: under a style whose "block" form is
// "begin  SOME  end" (style Wide) it makes every single blank two; under any other (style Plain,
// "begin SOME end") it makes double blanks single, so a text of single blanks stays as it is.
void install_a_language_whose_styles_differ() {
    QFile::copy(built::learning_language_plugin(), path_to().plugins_directory() + "/libtest-language-plugin.so");
    write_file(path_to().addons_directory() + "/Plain[Test].style", addon_text("Plain", "Test"));
    write_file(path_to().addons_directory() + "/Wide[Test].style", addon_text("Wide", "Test", "begin  SOME  end"));
}

QString const stays = "The style leaves this file as it is.";
QString const one_line_changes = "The style changes 1 of 2 lines of this file (marked).";

}  // namespace

class test_window_preview : public QObject, window_fixture {
    Q_OBJECT

    void open_window() { window_fixture::open_window(QSize(1300, 760)); }
    void choose(QString const& style) { window_fixture::choose("Test", style); }
    GUI::preview_of_code* preview() const { return window->findChild<GUI::preview_of_code*>(); }
    QString shown_file() const { return preview()->chooser()->currentData().toString(); }
    QString shown_text() const { return preview()->view()->toPlainText(); }
    QString status() const { return preview()->status()->text(); }
    QAction* action(char const* name) const { return window->findChild<QAction*>(name); }
    GUI::task_tabs_itself* tab_bar() const { return window->findChild<GUI::task_tabs_itself*>(); }
    // The block form typed into the form editor, key by key, from "begin SOME end".
    void widen_the_form() {
        auto* editor = window->findChild<GUI::look_n_feel_editor*>();
        QTRY_COMPARE(editor->toPlainText(), QString("begin SOME end"));
        editor->setFocus();
        for (int position : {5, 11}) {
            QTextCursor cursor = editor->textCursor();
            cursor.setPosition(position);
            editor->setTextCursor(cursor);
            QTest::keyClick(editor, Qt::Key_Space);
        }
        QCOMPARE(editor->toPlainText(), QString("begin  SOME  end"));
    }

private slots:
    void init();
    void cleanup();

    void follows_what_takes_effect_data();
    void follows_what_takes_effect();
    void drops_a_result_a_newer_change_overtook();
    void says_when_the_plugin_refuses_the_file();
    void marks_the_changed_lines_and_goes_from_one_to_the_next();
    void counts_what_the_style_changes_in_the_task();
    void drops_a_count_a_newer_change_overtook();
    void counts_as_a_check_of_the_same_task_data();
    void counts_as_a_check_of_the_same_task();
    void calls_a_plugin_from_one_thread_at_a_time();
    void copies_its_own_text();
};

void test_window_preview::init() {
    begin_case();
    install_a_language_whose_styles_differ();
    write_file(path("tree/a.tst"), "one two\nthree\n");
    write_file(path("tree/c.test"), "four five\nsix\n");
    write_file(path("other/b.tst"), "x y\nz\n");
}

void test_window_preview::cleanup() { end_case(); }

void test_window_preview::follows_what_takes_effect_data() {
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("said");
    QTest::newRow("another style") << "Wide" << "tree/a.tst" << "one  two\nthree\n" << one_line_changes;
    QTest::newRow("a form edited and saved") << "form" << "tree/a.tst" << "one  two\nthree\n" << one_line_changes;
    QTest::newRow("another task") << "tab" << "other/b.tst" << "x  y\nz\n" << one_line_changes;
    QTest::newRow("back to the first task") << "tab and back" << "tree/a.tst" << "one two\nthree\n" << stays;
    QTest::newRow("another file chosen") << "choose" << "tree/c.test" << "four five\nsix\n" << stays;
    QTest::newRow("extensions edited") << "extensions" << "tree/c.test" << "four five\nsix\n" << stays;
    QTest::newRow("a path added before") << "path" << "other/b.tst" << "x y\nz\n" << stays;
    QTest::newRow("the paths removed")
        << "remove" << QString() << QString()
        << "No file of the task to preview: add paths to your code with files of the extensions below.";
}

// Faults: the preview keeping what it showed when another style is chosen, a form is saved, a
// task is shown, a file is chosen, the extensions or the paths change; a task coming back with
// another task's file or style; the files listed under names too long to tell apart.
void test_window_preview::follows_what_takes_effect() {
    QFETCH(QString, step);
    QFETCH(QString, file);
    QFETCH(QString, text);
    QFETCH(QString, said);
    open_window();
    choose("Plain");
    add({"tree"});
    QTRY_COMPARE(shown_file(), path("tree/a.tst"));
    QTRY_COMPARE(status(), stays);
    QCOMPARE(shown_text(), QString("one two\nthree\n"));
    QCOMPARE(preview()->chooser()->itemText(0), QString("tree/a.tst"));

    if (step == "Wide") {
        emit window->findChild<GUI::task_tabs*>()->set_this_formatting_style("Wide");
    } else if (step == "form") {
        widen_the_form();
    } else if (step == "tab" || step == "tab and back") {
        action("tab_menu_new")->trigger();
        tab_bar()->setCurrentIndex(1);
        choose("Wide");
        add({"other/b.tst"});
        if (step == "tab and back") {
            QTRY_COMPARE(shown_text(), QString("x  y\nz\n"));
            tab_bar()->setCurrentIndex(0);
        }
    } else if (step == "choose") {
        QComboBox* files = preview()->chooser();
        QCOMPARE(files->count(), 2);
        files->setCurrentIndex(1);
        emit files->activated(1);
    } else if (step == "extensions") {
        auto* field = window->findChild<QLineEdit*>("extensions");
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, "test");
    } else if (step == "path") {
        window->findChild<GUI::list_of_paths*>()->delete_all();
        add({"other/b.tst"});
        add({"tree"});
    } else if (step == "remove") {
        QListWidget* paths = window->findChild<QListWidget*>("paths");
        paths->setCurrentRow(0);
        QTest::mouseClick(window->findChild<QPushButton*>("remove_paths"), Qt::LeftButton);
    }
    QTRY_COMPARE(status(), said);
    QTRY_COMPARE(shown_text(), text);
    QCOMPARE(shown_file(), file.isEmpty() ? QString() : path(file));
}

// Fault: a slow revision of an older request showing over the newer one's (another style, another
// file) once it comes in.
void test_window_preview::drops_a_result_a_newer_change_overtook() {
    open_window();
    choose("Plain");
    add({"tree"});
    QTRY_COMPARE(status(), stays);
    GUI::preview_outcome late;
    late.how = GUI::preview_outcome::end::revised;
    late.files = QStringList{path("tree/a.tst")};
    late.file = path("tree/a.tst");
    late.text = "overtaken\n";
    late.changed_lines = {0};
    late.lines_changed = 1;
    late.lines_of_file = 1;
    late.generation = preview()->generation() - 1;
    preview()->show_outcome(late);
    QCOMPARE(shown_text(), QString("one two\nthree\n"));
    QCOMPARE(status(), stays);
    // The newest request's outcome is shown through the same door.
    late.generation = preview()->generation();
    preview()->show_outcome(late);
    QCOMPARE(shown_text(), QString("overtaken\n"));
}

// Faults: a refused file shown as one the style leaves alone, or nothing said at all.
void test_window_preview::says_when_the_plugin_refuses_the_file() {
    write_file(path("broken/d.tst"), "a  b\nSYNTAX_ERROR\n");
    open_window();
    choose("Plain");
    add({"broken"});
    QTRY_COMPARE(status(),
                 QString("The language plugin cannot revise this file: a revision would leave it as it is."));
    QCOMPARE(shown_text(), QString("a  b\nSYNTAX_ERROR\n"));
    QVERIFY(preview()->view()->extraSelections().isEmpty());
    QVERIFY(!window->findChild<QPushButton*>("next_change")->isEnabled());
}

// Faults: the marks on other lines than those that change, the buttons skipping a change or not
// coming round; a control of the pane without a name for assistive technology.
void test_window_preview::marks_the_changed_lines_and_goes_from_one_to_the_next() {
    write_file(path("many/e.tst"), "a b\nc\nd\ne f\ng\nh i\n");
    open_window();
    choose("Wide");
    add({"many"});
    QTRY_COMPARE(status(), QString("The style changes 3 of 6 lines of this file (marked)."));
    QList<int> marked;
    for (auto const& mark : preview()->view()->extraSelections())
        marked << mark.cursor.blockNumber();
    QCOMPARE(marked, QList<int>({0, 3, 5}));
    auto* next = window->findChild<QPushButton*>("next_change");
    auto* previous = window->findChild<QPushButton*>("previous_change");
    auto line = [this] { return preview()->view()->textCursor().blockNumber(); };
    QCOMPARE(line(), 0);
    QList<int> visited;
    for (int click = 0; click < 3; ++click) {
        QTest::mouseClick(next, Qt::LeftButton);
        visited << line();
    }
    QCOMPARE(visited, QList<int>({3, 5, 0}));
    visited.clear();
    for (int click = 0; click < 3; ++click) {
        QTest::mouseClick(previous, Qt::LeftButton);
        visited << line();
    }
    QCOMPARE(visited, QList<int>({5, 3, 0}));
    for (QWidget* control : QList<QWidget*>{preview(), preview()->chooser(), preview()->view(), next, previous})
        QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
}

// Faults: the figure missing, counting other lines or files than the style changes, not
// following another style; the most changed files out of order, or a click on one not previewing it.
void test_window_preview::counts_what_the_style_changes_in_the_task() {
    write_file(path("tree/sub/d.tst"), "p q r\ns t\nu\n");
    open_window();
    choose("Plain");
    add({"tree"});
    QTRY_COMPARE(preview()->figure()->text(), QString("This style changes 0 of 7 lines in 0 of 3 files"));
    QVERIFY(preview()->most_changed_files()->isHidden());
    emit window->findChild<GUI::task_tabs*>()->set_this_formatting_style("Wide");
    QTRY_COMPARE(preview()->figure()->text(), QString("This style changes 4 of 7 lines in 3 of 3 files"));
    QListWidget* most = preview()->most_changed_files();
    QVERIFY(!most->isHidden());
    QCOMPARE(texts_of(most), QStringList({"tree/sub/d.tst: 2 lines change", "tree/a.tst: 1 line changes",
                                          "tree/c.test: 1 line changes"}));
    QTRY_COMPARE(shown_file(), path("tree/a.tst"));
    QTest::mouseClick(most->viewport(), Qt::LeftButton, Qt::NoModifier, most->visualItemRect(most->item(0)).center());
    QTRY_COMPARE(shown_file(), path("tree/sub/d.tst"));
    QTRY_COMPARE(shown_text(), QString("p  q  r\ns  t\nu\n"));
    QVERIFY(!preview()->figure()->accessibleName().isEmpty());
    QVERIFY(!most->accessibleName().isEmpty());
}

void test_window_preview::counts_as_a_check_of_the_same_task_data() {
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("figure");
    QTest::newRow("nothing changes") << "Plain" << "tree" << "This style changes 0 of 4 lines in 0 of 2 files";
    QTest::newRow("every file changes") << "Wide" << "tree" << "This style changes 2 of 4 lines in 2 of 2 files";
    QTest::newRow("some lines of some files, in subdirectories")
        << "Plain" << "mixed" << "This style changes 3 of 7 lines in 2 of 3 files";
    QTest::newRow("a file the plugin refuses") << "Plain" << "broken" << "This style changes 1 of 3 lines in 1 of 2 files";
}

// Faults: the window and the command line's check counting a task differently (lines of other
// files, of files not revised, changed lines counted otherwise, the refused file left out).
void test_window_preview::counts_as_a_check_of_the_same_task() {
    QFETCH(QString, style);
    QFETCH(QString, tree);
    QFETCH(QString, figure);
    write_file(path("mixed/a.tst"), "one  two\nthree\n");
    write_file(path("mixed/deep/er/c.test"), "four  five\nsix  seven\neight\n");
    write_file(path("mixed/deep/b.tst"), "nine\nten\n");
    write_file(path("broken/d.tst"), "a b\nSYNTAX_ERROR\n");
    write_file(path("broken/e.tst"), "c  d\n");
    open_window();
    choose(style);
    add({tree});
    QTRY_COMPARE_WITH_TIMEOUT(preview()->figure()->text(), figure, 20000);
    QStringList const check = output_of_the_command_line({"--lang=Test", "--style=" + style, "--path=" + path(tree),
                                                          "--check"}).trimmed().split('\n');
    QCOMPARE(check.last(), preview()->figure()->text());
}

// Fault: a count that a newer change overtook (it was stopped, or it was slower) showing over the
// newer one's.
void test_window_preview::drops_a_count_a_newer_change_overtook() {
    open_window();
    choose("Plain");
    add({"tree"});
    QString const newest = "This style changes 0 of 4 lines in 0 of 2 files";
    QTRY_COMPARE(preview()->figure()->text(), newest);
    changes_under_style late;
    late.started = true;
    late.lines = 9;
    late.lines_changed = 9;
    late.files = 1;
    late.files_changed = 1;
    preview()->show_changes(late, preview()->count_generation() - 1);
    QCOMPARE(preview()->figure()->text(), newest);
    preview()->show_changes(late, preview()->count_generation());
    QCOMPARE(preview()->figure()->text(), QString("This style changes 9 of 9 lines in 1 of 1 files"));
}

// Fault: the preview and the count calling revise() of a plugin that does not say it may run on
// several threads at once from two threads at once.
void test_window_preview::calls_a_plugin_from_one_thread_at_a_time() {
    empty_directory(path_to().plugins_directory());
    QFile::copy(built::test_language_plugin(), path_to().plugins_directory() + "/libtest-language-plugin.so");
    QString const log = work->path() + "/plugin.log";
    qputenv("TEST_PLUGIN_LOG", log.toUtf8());
    qputenv("TEST_PLUGIN_DELAY_MS", "100");
    open_window();
    choose("Plain");
    add({"tree"});
    QTRY_COMPARE_WITH_TIMEOUT(preview()->figure()->text(), QString("This style changes 0 of 4 lines in 0 of 2 files"), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(status(), stays, 20000);
    window.reset();
    qunsetenv("TEST_PLUGIN_LOG");
    qunsetenv("TEST_PLUGIN_DELAY_MS");
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray const calls = file.readAll();
    QVERIFY(calls.contains(" revise "));
    QVERIFY2(!calls.contains("overlapping revise"), calls.constData());
}

STYLE_TARNEL_WIDGET_TEST_MAIN_IN_BUNDLE(test_window_preview)
#include "test_window_preview.moc"

// Fault: the window's Copy and Select all (the form editor's) taking the keys while the preview has
// the focus, so that the user copies the form instead of the previewed file.
void test_window_preview::copies_its_own_text() {
    write_file(path("many/e.tst"), "a b\nc\n");
    open_window();
    choose("Wide");
    add({"many"});
    QTRY_VERIFY(!shown_text().isEmpty());
    QApplication::clipboard()->clear();
    preview()->view()->setFocus();
    QTRY_VERIFY(preview()->view()->hasFocus());
    QTest::keySequence(preview()->view(), QKeySequence::SelectAll);
    QTest::keySequence(preview()->view(), QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->text(), shown_text());
}
