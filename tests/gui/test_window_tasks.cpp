// The window doing the whole job on the test languages in a bundle of its own: paths and
// extensions, revisions with their progress, Stop and report, the form editor, and task tabs.
#include "GUI/learn_from_code.h"
#include "GUI/list_of_paths.h"
#include "GUI/look_n_feel_editor.h"
#include "GUI/main_window.h"
#include "GUI/new_style_name.h"
#include "GUI/show_revise.h"
#include "GUI/task_tabs.h"
#include "GUI/task_tabs_itself.h"
#include "GUI/view_n_edit_language_structure.h"
#include "core/path_to.h"
#include "core/settings_keys.h"
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"
#include "helpers/window_fixture.h"
#include "helpers/window_test_helpers.h"

#include <QAccessible>
#include <QAction>
#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextLayout>
#include <QToolTip>
#include <QUrl>

#include <memory>

namespace {

// What every revision test revises: a file to change (double spaces), one already right, and one
// that the extensions do not choose.
void write_tree_in(QString const& directory) {
    write_file(directory + "/a.tst", "begin  SOME  end\n");
    write_file(directory + "/b.tst", "begin SOME end\n");
    write_file(directory + "/notes.txt", "left  alone\n");
}

QString plain_addon() { return path_to().addons_directory() + "/Plain[Test].style"; }

// The test style "Plain" with another form of "block".
bool plain_addon_has_the_block_form(QByteArray const& block_form) {
    QFile addon(plain_addon());
    return addon.open(QIODevice::WriteOnly) && addon.write(addon_text("Plain", "Test", block_form)) > 0;
}

}  // namespace

class test_window_tasks : public QObject, window_fixture {
    Q_OBJECT

    // The test language and its style "Plain", as a user picks them.
    void choose_test_language() { choose("Test", "Plain"); }
    QStringList listed() const {
        return texts_of(window->findChild<QListWidget*>("paths")).replaceInStrings(work->path() + "/", "");
    }
    QLineEdit* extensions() const { return window->findChild<QLineEdit*>("extensions"); }
    QAction* action(char const* name) const { return window->findChild<QAction*>(name); }
    QPushButton* button(char const* name) const { return window->findChild<QPushButton*>(name); }
    GUI::show_revise* starter() const { return window->findChild<GUI::show_revise*>(); }
    GUI::look_n_feel_editor* editor() const { return window->findChild<GUI::look_n_feel_editor*>(); }
    GUI::task_tabs_itself* tab_bar() const { return window->findChild<GUI::task_tabs_itself*>(); }

    // Starts a run with `start` and gives its report, as the report window shows it.
    QString report_of_a_run(std::function<void()> const& start) {
        QSignalSpy finished(starter(), &GUI::show_revise::revision_is_finished);
        start();
        if (finished.isEmpty() && !finished.wait(60000))
            return "no report";
        return finished.first().at(0).toString();
    }
    // What the command-line program reports for the same request on a tree of its own.
    QString report_of_the_command_line_for(QString const& tree) {
        QStringList lines = output_of_the_command_line({"--lang=Test", "--style=Plain", "--path=" + tree}).split('\n');
        lines.removeFirst();  // "It's done." with the blanks over the progress line
        return lines.join('\n').trimmed();
    }

private slots:
    void init();
    void cleanup();

    void takes_each_existing_path_once_data();
    void takes_each_existing_path_once();
    void takes_only_paths_it_revises_by_dropping_data();
    void takes_only_paths_it_revises_by_dropping();
    void adds_what_is_chosen_in_its_dialogs_data();
    void adds_what_is_chosen_in_its_dialogs();
    void files_leave_when_their_extension_does_data();
    void files_leave_when_their_extension_does();
    void refuses_bad_extensions_data();
    void refuses_bad_extensions();
    void reports_as_the_command_line_does();
    void stops_after_the_file_at_hand();
    void forced_revisions_revise_unchanged_files_data();
    void forced_revisions_revise_unchanged_files();
    void saves_a_matching_form_and_reverts_another_data();
    void saves_a_matching_form_and_reverts_another();
    void a_style_without_forms_leaves_nothing_to_edit();
    void highlights_keywords_and_placeholders();
    void structure_manual_addresses_data();
    void structure_manual_addresses();
    void keeps_the_font_size_within_bounds_data();
    void keeps_the_font_size_within_bounds();
    void tabs_keep_their_tasks_over_a_restart_data();
    void tabs_keep_their_tasks_over_a_restart();
    void refuses_bad_tab_names_data();
    void refuses_bad_tab_names();
    void closing_a_tab_forgets_its_records_data();
    void closing_a_tab_forgets_its_records();
    void learns_a_style_from_the_task_data();
    void learns_a_style_from_the_task();
};

void test_window_tasks::init() {
    begin_case();
    install_test_languages(path_to().plugins_directory(), path_to().addons_directory());
    qunsetenv("TEST_PLUGIN_DELAY_MS");
    qunsetenv("TEST_PLUGIN_LOG");
}

void test_window_tasks::cleanup() { end_case(); }

void test_window_tasks::takes_each_existing_path_once_data() {
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("directory with and without a final slash") << QStringList{"tree/", "tree"} << QStringList{"tree"};
    QTest::newRow("same file twice") << QStringList{"tree/a.tst", "tree/a.tst"} << QStringList{"tree/a.tst"};
    QTest::newRow("missing path") << QStringList{"tree/gone.tst", "tree/b.tst"} << QStringList{"tree/b.tst"};
}

// Faults: a path listed twice (revised and forced twice), a directory listed in two spellings, a
// path that is not there listed (every run would report it).
void test_window_tasks::takes_each_existing_path_once() {
    QFETCH(QStringList, added);
    QFETCH(QStringList, listed);
    write_tree_in(path("tree"));
    open_window();
    choose_test_language();
    add(added);
    QCOMPARE(this->listed(), listed);
    QVERIFY(button("go")->isEnabled());
    QVERIFY(action("revise_menu_all_forcibly")->isEnabled());
}

void test_window_tasks::takes_only_paths_it_revises_by_dropping_data() {
    QTest::addColumn<QString>("dropped");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("directory") << "tree" << true;
    QTest::newRow("file with a listed extension") << "tree/a.tst" << true;
    QTest::newRow("file with another extension") << "tree/notes.txt" << false;
    QTest::newRow("file whose complete suffix is not listed") << "x.tar.tst" << false;
}

// Faults: a dropped file taken that the run would refuse for its extension, a directory refused,
// or an accepted drop not listed.
void test_window_tasks::takes_only_paths_it_revises_by_dropping() {
    QFETCH(QString, dropped);
    QFETCH(bool, accepted);
    write_tree_in(path("tree"));
    write_file(path("x.tar.tst"), "begin SOME end\n");
    open_window();
    choose_test_language();
    QCOMPARE(dropped_on(window->findChild<QListWidget*>("paths")->viewport(), path(dropped)), accepted);
    if (!accepted)
        return;
    QCOMPARE(listed(), QStringList({dropped}));
}

void test_window_tasks::adds_what_is_chosen_in_its_dialogs_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("offered");  // what the dialog lists where it opens
    QTest::addColumn<QStringList>("chosen");   // clicked there, the second one with Ctrl
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("several directories") << "add_directories" << QStringList{"one", "two"}
                                         << QStringList{"one", "two"} << QStringList{"in/one", "in/two"};
    QTest::newRow("several files of the extensions")
        << "add_files" << QStringList{"one", "two", "x.tst", "y.tst"} << QStringList{"x.tst", "y.tst"}
        << QStringList{"in/x.tst", "in/y.tst"};
}

// Faults: the directory dialog listing files, or taking one directory where the user chose
// several; the files dialog offering files of other extensions; a choice not listed.
void test_window_tasks::adds_what_is_chosen_in_its_dialogs() {
    QFETCH(QString, button);
    QFETCH(QStringList, offered);
    QFETCH(QStringList, chosen);
    QFETCH(QStringList, listed);
    QDir().mkpath(path("in/one"));
    QDir().mkpath(path("in/two"));
    write_file(path("in/x.tst"), "begin SOME end\n");
    write_file(path("in/y.tst"), "begin SOME end\n");
    write_file(path("in/z.txt"), "left  alone\n");
    QSettings settings;
    settings.setValue(settings_key::parent_directory_of_last_chosen_directory, path("in"));
    settings.setValue(settings_key::parent_directory_of_last_chosen_file, path("in"));
    open_window();
    choose_test_language();
    QTest::mouseClick(this->button(button.toLatin1().constData()), Qt::LeftButton);
    auto* dialog = window->findChild<QFileDialog*>(button + "_dialog");
    QVERIFY(dialog != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QAbstractItemView* view = dialog->findChild<QAbstractItemView*>("treeView");
    if (!view->isVisible())
        view = dialog->findChild<QAbstractItemView*>("listView");
    auto const names_shown = [view] {
        QStringList names;
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
            names << view->model()->index(row, 0, view->rootIndex()).data().toString();
        names.sort();
        return names;
    };
    QTRY_COMPARE(names_shown(), offered);
    for (int i = 0; i < chosen.size(); ++i) {
        QModelIndex const item = view->model()->match(view->model()->index(0, 0, view->rootIndex()),
                                                      Qt::DisplayRole, chosen[i], 1, Qt::MatchExactly)
                                     .value(0);
        QVERIFY(item.isValid());
        view->scrollTo(item);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, i == 0 ? Qt::NoModifier : Qt::ControlModifier,
                          view->visualRect(item).center());
    }
    QPushButton* const accept = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
    QVERIFY(accept->isEnabled());
    QTest::mouseClick(accept, Qt::LeftButton);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(this->listed(), listed);
}

void test_window_tasks::files_leave_when_their_extension_does_data() {
    QTest::addColumn<int>("deleted");       // characters taken from the end of the field
    QTest::addColumn<QString>("typed");     // at its end then
    QTest::addColumn<QStringList>("added");  // afterwards
    QTest::addColumn<QString>("style");     // chosen afterwards, if any
    QTest::addColumn<QString>("extensions");
    QTest::addColumn<QStringList>("kept");
    QStringList const tst_only{"tree", "tree/a.tst"};
    QTest::newRow("extension deleted by the user") << 5 << "" << QStringList() << "" << "tst" << tst_only;
    QTest::newRow("another style of the same language afterwards")
        << 5 << "" << QStringList() << "Wide" << "tst test" << tst_only;
    QTest::newRow("extension typed by the user, another style afterwards")
        << 0 << " foo" << QStringList{"d.foo"} << "Wide" << "tst test"
        << QStringList{"tree", "tree/a.tst", "c.test", "d.foo"};
}

// Faults: a file whose extension was taken away still revised; a directory dropped with it; the
// extensions the user typed for one style left in place when another style is chosen, instead of
// the language's own; a file the user took for an extension typed by hand dropped from the list
// because another style set the field (only the user's own edits check the list).
void test_window_tasks::files_leave_when_their_extension_does() {
    QFETCH(int, deleted);
    QFETCH(QString, typed);
    QFETCH(QStringList, added);
    QFETCH(QString, style);
    QFETCH(QString, extensions);
    QFETCH(QStringList, kept);
    write_tree_in(path("tree"));
    write_file(path("c.test"), "begin SOME end\n");
    write_file(path("d.foo"), "begin SOME end\n");
    open_window();
    choose_test_language();
    QCOMPARE(this->extensions()->text(), QString("tst test"));
    add({"tree", "tree/a.tst", "c.test"});
    this->extensions()->setFocus();
    this->extensions()->end(false);
    for (int i = 0; i < deleted; ++i)
        QTest::keyClick(this->extensions(), Qt::Key_Backspace);
    QTest::keyClicks(this->extensions(), typed);
    add(added);
    if (!style.isEmpty())
        emit window->findChild<GUI::task_tabs*>()->set_this_formatting_style(style);
    QCOMPARE(this->extensions()->text(), extensions);
    QCOMPARE(listed(), kept);
}

void test_window_tasks::refuses_bad_extensions_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tooltip");
    QTest::newRow("dot") << "." << "tst test" << "Without dot, please";
    QTest::newRow("Cyrillic letter") << QString::fromUtf8("Ж") << "tst test" << "In English, please";
    QTest::newRow("everything deleted") << "" << "tst test" << "At least one extension, please";
}

// Faults: an extension the file collection cannot read accepted, or the field left empty (which
// would choose no file and leave the start enabled).
void test_window_tasks::refuses_bad_extensions() {
    QFETCH(QString, typed);
    QFETCH(QString, text);
    QFETCH(QString, tooltip);
    open_window();
    choose_test_language();
    extensions()->setFocus();
    extensions()->end(false);
    if (typed.isEmpty()) {
        extensions()->selectAll();
        QTest::keyClick(extensions(), Qt::Key_Backspace);
    } else {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, typed);
        QApplication::sendEvent(extensions(), &press);
    }
    QTRY_COMPARE(QToolTip::text(), tooltip);
    QCOMPARE(extensions()->text(), text);
}

// Faults: the window's run reporting other counts than the command line for the same tree (its own
// task formed wrongly: other extensions, paths, style), or writing other files.
void test_window_tasks::reports_as_the_command_line_does() {
    write_tree_in(path("window"));
    write_tree_in(path("command line"));
    QString const expected = report_of_the_command_line_for(path("command line"));
    QCOMPARE(expected, QString("2 files was found, 2 files was revised, 1 file was changed."));
    open_window();
    choose_test_language();
    add({"window"});
    QVERIFY(!button("view_report")->isEnabled());
    QCOMPARE(report_of_a_run([&] { QTest::mouseClick(button("go"), Qt::LeftButton); }), expected);
    QVERIFY(button("view_report")->isEnabled());
    for (QString const file : {"a.tst", "b.tst", "notes.txt"})
        QCOMPARE(temporary_bundle::contents_of(path("window/" + file)),
                 temporary_bundle::contents_of(path("command line/" + file)));
    QTest::mouseClick(button("view_report"), Qt::LeftButton);
    QTextBrowser* browser = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->objectName() == "report")
            browser = top->findChild<QTextBrowser*>("report_text");
    QVERIFY(browser != nullptr);
    QTRY_VERIFY(browser->window()->isVisible());
    QCOMPARE(browser->toPlainText(), expected);
    QPoint const centre = browser->window()->geometry().center();
    QVERIFY((centre - window->geometry().center()).manhattanLength() <= 2);
}

// Faults: Stop not reaching the worker, or the run not saying how far it got; the dialog left on
// the window.
void test_window_tasks::stops_after_the_file_at_hand() {
    // Of a length no form of the test styles has, so that the plugin's log tells the files apart.
    QByteArray const text = "begin  SOME end, a file of the tree under revision\n";
    for (QString const name : {"1.tst", "2.tst", "3.tst"})
        write_file(path("tree/" + name), text);
    qputenv("TEST_PLUGIN_DELAY_MS", "400");
    // The plugin notes the length of each text it is given: the Stop comes once the first file is
    // in its hands (the form editor's own check of a form is logged there too).
    QString const plugin_log = path("plugin.log");
    qputenv("TEST_PLUGIN_LOG", plugin_log.toLocal8Bit());
    auto first_file_in_hand = [&] {
        QFile log(plugin_log);
        return log.open(QIODevice::ReadOnly) && log.readAll().contains(" " + QByteArray::number(text.size()) + "\n");
    };
    open_window();
    choose_test_language();
    add({"tree"});
    // The preview and its count hand the plugin the tree's files too: once they are quiet, their
    // lines leave the log, so that the next text of that length is the run's.
    QByteArray seen;
    for (int quiet = 0, waited = 0; quiet < 8 && waited < 150; ++waited) {
        QTest::qWait(200);
        QFile log(plugin_log);
        QByteArray const now = log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
        quiet = now == seen ? quiet + 1 : 0;
        seen = now;
    }
    QFile::remove(plugin_log);
    QString const report = report_of_a_run([&] {
        QTest::mouseClick(button("go"), Qt::LeftButton);
        QVERIFY(starter()->progress_dialog()->isVisible());
        // The worker may take a moment to start: a Stop before it holds a file revises none.
        QTRY_VERIFY_WITH_TIMEOUT(first_file_in_hand(), 30000);
        QTest::mouseClick(starter()->progress_dialog()->findChild<QPushButton*>("stop"), Qt::LeftButton);
    });
    QVERIFY2(report.contains("Revision was interrupted by user!"), qPrintable(report));
    QVERIFY2(report.endsWith("3 files was found, 1 file was revised, 1 file was changed."), qPrintable(report));
    QVERIFY(!starter()->progress_dialog()->isVisible());
}

void test_window_tasks::forced_revisions_revise_unchanged_files_data() {
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("report");
    QTest::addColumn<bool>("selected");  // the second path, before the second run
    QTest::newRow("plain revision again") << "revise_menu_all" << "2 files was found, no files was revised." << true;
    QTest::newRow("forced revision of the selection")
        << "revise_menu_it_forcibly" << "2 files was found, 1 file was revised, no files was changed." << true;
    QTest::newRow("forced revision of this path, nothing selected")
        << "revise_menu_it_forcibly" << "2 files was found, no files was revised." << false;
    QTest::newRow("forced revision of everything")
        << "revise_menu_all_forcibly" << "2 files was found, 2 files was revised, no files was changed." << true;
}

// Faults: a forced revision that still skips unchanged files, or forgets the records of paths
// that were not chosen; a forced entry out of reach while nothing is selected (this path forcibly
// with nothing selected is a plain revision of them all).
void test_window_tasks::forced_revisions_revise_unchanged_files() {
    QFETCH(QString, action);
    QFETCH(QString, report);
    QFETCH(bool, selected);
    write_tree_in(path("tree"));
    open_window();
    choose_test_language();
    add({"tree/a.tst", "tree/b.tst"});
    report_of_a_run([&] { this->action("revise_menu_all")->trigger(); });
    if (selected)
        window->findChild<QListWidget*>("paths")->setCurrentRow(1);
    QVERIFY(this->action(action.toLatin1().constData())->isEnabled());
    QCOMPARE(report_of_a_run([&] { this->action(action.toLatin1().constData())->trigger(); }), report);
}

void test_window_tasks::saves_a_matching_form_and_reverts_another_data() {
    QTest::addColumn<int>("at");  // where the key goes in "begin SOME end"
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("form");  // in the addon afterwards
    QTest::addColumn<QString>("tooltip");
    QTest::addColumn<QString>("comes_back");
    // The form's section taken out of the style's file behind the window's back, before the key.
    QTest::addColumn<bool>("section_gone");
    QTest::newRow("space added") << 5 << " " << QByteArray("begin  SOME end") << ""
                                 << "A revision writes this form so:" << false;
    QTest::newRow("line break added") << 5 << "\n" << QByteArray("begin\n SOME end") << ""
                                      << "A revision keeps this form as written." << false;
    QTest::newRow("letter that breaks the structure") << 0 << "x" << QByteArray("begin SOME end")
                                                      << "Not supported" << "A revision keeps this form as written."
                                                      << false;
    QTest::newRow("space added, section gone from the file") << 5 << " " << QByteArray("begin SOME end") << "" << ""
                                                             << true;
}

// Faults: an edit the plugin cannot read written into the style, a valid one not written, or the
// line under the editor telling the user a form comes back as written when it does not; an edit
// that could not be written left in the editor as if saved, without a word to the user.
void test_window_tasks::saves_a_matching_form_and_reverts_another() {
    QFETCH(int, at);
    QFETCH(QString, key);
    QFETCH(QByteArray, form);
    QFETCH(QString, tooltip);
    QFETCH(QString, comes_back);
    QFETCH(bool, section_gone);
    open_window();
    choose_test_language();
    QTRY_COMPARE(editor()->toPlainText(), QString("begin SOME end"));
    QByteArray const without_the_section = "NAME=Plain\nLANGUAGE=Test\n\n";
    if (section_gone)
        write_file(plain_addon(), without_the_section);
    editor()->setFocus();
    QTextCursor cursor = editor()->textCursor();
    cursor.setPosition(at);
    editor()->setTextCursor(cursor);
    if (key == "\n")
        QTest::keyClick(editor(), Qt::Key_Return);
    else
        QTest::keyClicks(editor(), key);
    if (!tooltip.isEmpty())
        QTRY_COMPARE(QToolTip::text(), tooltip);
    QCOMPARE(editor()->toPlainText(), QString::fromUtf8(form));
    if (section_gone) {
        QMessageBox* alert = nullptr;
        QTRY_VERIFY((alert = window->findChild<QMessageBox*>("critical_alert")) != nullptr);
        QCOMPARE(alert->text(), QString("The edited form could not be saved into the style"));
        QCOMPARE(temporary_bundle::contents_of(plain_addon()), without_the_section);
        return;
    }
    QCOMPARE(temporary_bundle::contents_of(plain_addon()), addon_text("Plain", "Test", form));
    QTRY_COMPARE(window->findChild<QLabel*>("comes_back")->text(), comes_back);
    auto* revised = window->findChild<QPlainTextEdit*>("revised_form");
    QCOMPARE(revised->isVisible(), comes_back.contains("so:"));
    if (revised->isVisible())
        QCOMPARE(revised->toPlainText(), QString("begin SOME end"));
}

// Faults: the form of the style shown before still shown, and its edits written into that style,
// after choosing a style that gives no structure a form.
void test_window_tasks::a_style_without_forms_leaves_nothing_to_edit() {
    QFile addon(path_to().addons_directory() + "/Bare[Test].style");
    QVERIFY(addon.open(QIODevice::WriteOnly));
    addon.write("NAME=Bare\nLANGUAGE=Test\n\nS_NAME=none\nS_BEG\nS_END\n");
    addon.close();
    open_window();
    choose_test_language();
    QTRY_COMPARE(editor()->toPlainText(), QString("begin SOME end"));
    emit window->findChild<GUI::task_tabs*>()->set_this_formatting_style("Bare");
    QCOMPARE(texts_of(window->findChild<QListWidget*>("structures")), QStringList());
    QCOMPARE(editor()->toPlainText(), QString());
    QVERIFY(!editor()->isEnabled() || !editor()->parentWidget()->isEnabled());
}

// Faults: keywords or placeholders not set off from the rest of a form, or keywords found only as
// whole words (a keyword inside a longer word is emphasised too).
void test_window_tasks::highlights_keywords_and_placeholders() {
    QVERIFY(plain_addon_has_the_block_form("begin SOME end elif"));
    open_window();
    choose_test_language();
    QTRY_COMPARE(editor()->toPlainText(), QString("begin SOME end elif"));
    QStringList emphasised;
    for (QTextLayout::FormatRange const& range : editor()->document()->firstBlock().layout()->formats()) {
        QString const word = editor()->toPlainText().mid(range.start, range.length);
        if (range.format.fontWeight() == 75)
            emphasised << "bold " + word;
        if (range.format.fontItalic())
            emphasised << "italic " + word;
    }
    emphasised.sort();
    QCOMPARE(emphasised, QStringList({"bold begin", "bold end", "bold if", "italic SOME"}));
}

void test_window_tasks::structure_manual_addresses_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("structure");
    QTest::addColumn<QString>("address");
    QTest::newRow("one word") << "C" << "for" << "https://style-tarnel.org/direct-definition-manual/c/for";
    QTest::newRow("words and signs") << "C++" << "Array initializer"
                                     << "https://style-tarnel.org/direct-definition-manual/c++/array-initializer";
}

// Fault: "How to change this structure" leading to a page that is not there (upper case, blanks).
void test_window_tasks::structure_manual_addresses() {
    QFETCH(QString, language);
    QFETCH(QString, structure);
    QFETCH(QString, address);
    QCOMPARE(GUI::view_n_edit_language_structure::manual_address_of(language, structure), address);
}

void test_window_tasks::keeps_the_font_size_within_bounds_data() {
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("disabled");
    QTest::newRow("larger at the largest") << 32 << "=" << 32 << "lnf_menu_increase_font";
    QTest::newRow("smaller at the smallest") << 12 << "-" << 12 << "lnf_menu_decrease_font";
    QTest::newRow("larger up to the largest") << 31 << "=" << 32 << "lnf_menu_increase_font";
    QTest::newRow("smaller from the default") << 16 << "-" << 15 << "";
}

// Faults: a font size past its bounds (unreadable, or a layout that breaks), or the menu entry
// still offered at a bound; the size not kept for the next start.
void test_window_tasks::keeps_the_font_size_within_bounds() {
    QFETCH(int, stored);
    QFETCH(QString, key);
    QFETCH(int, size);
    QFETCH(QString, disabled);
    QSettings().setValue(settings_key::size_of_font_in_pt, stored);
    open_window();
    choose_test_language();
    editor()->setFocus();
    QTest::keyClick(editor(), key.at(0).toLatin1(), Qt::ControlModifier);
    QCOMPARE(editor()->font_size(), size);
    QCOMPARE(QSettings().value(settings_key::size_of_font_in_pt).toInt(), size);
    if (!disabled.isEmpty())
        QVERIFY(!action(disabled.toLatin1().constData())->isEnabled());
}

void test_window_tasks::tabs_keep_their_tasks_over_a_restart_data() {
    QTest::addColumn<QString>("by");
    QTest::newRow("switched with the mouse") << "mouse";
    QTest::newRow("switched with the keyboard") << "keyboard";
}

// Faults: a tab's task lost when the user leaves it (by a click or by the keyboard) or restarts,
// or saved under the name of the tab entered; the tabs or the current tab not restored; a new tab
// taking a name that is there.
void test_window_tasks::tabs_keep_their_tasks_over_a_restart() {
    QFETCH(QString, by);
    auto enter_tab = [&](int index) {
        if (by == "mouse")
            QTest::mouseClick(tab_bar(), Qt::LeftButton, Qt::NoModifier, tab_bar()->tabRect(index).center());
        else
            QTest::keyClick(tab_bar(), index > tab_bar()->currentIndex() ? Qt::Key_Right : Qt::Key_Left);
        QCOMPARE(tab_bar()->currentIndex(), index);
    };
    write_tree_in(path("tree"));
    open_window();
    QVERIFY(!tab_bar()->isVisible());
    QVERIFY(!action("tab_menu_close")->isEnabled());
    choose_test_language();
    add({"tree/a.tst"});
    action("tab_menu_new")->trigger();
    QCOMPARE(tab_bar()->count(), 2);
    QCOMPARE(tab_bar()->tabText(1), QString("Task 2"));
    QVERIFY(tab_bar()->isVisible());
    enter_tab(1);
    QCOMPARE(listed(), QStringList());
    emit window->findChild<GUI::task_tabs*>()->set_this_programming_language("Other");
    add({"tree"});
    enter_tab(0);
    QCOMPARE(listed(), QStringList({"tree/a.tst"}));
    enter_tab(1);
    QCOMPARE(listed(), QStringList({"tree"}));
    window->close();
    window.reset();

    open_window();
    QCOMPARE(tab_bar()->count(), 2);
    QCOMPARE(tab_bar()->currentIndex(), 1);
    QCOMPARE(listed(), QStringList({"tree"}));
    QCOMPARE(window->findChild<QListWidget*>("languages")->currentItem()->text(), QString("Other"));
    enter_tab(0);
    QCOMPARE(listed(), QStringList({"tree/a.tst"}));
    QCOMPARE(extensions()->text(), QString("tst test"));
}

void test_window_tasks::refuses_bad_tab_names_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("tooltip");  // empty: accepted
    QTest::addColumn<QString>("name");     // of the first tab afterwards
    QTest::newRow("new name") << "Backend" << "" << "Backend";
    QTest::newRow("same name") << "Task 1" << "" << "Task 1";
    QTest::newRow("blanks only") << "   " << "Name cannot be empty" << "Task 1";
    QTest::newRow("name of the other tab") << "Task 2" << "Tab with such name already exists" << "Task 1";
    QTest::newRow("dot, which disappears") << "a.b" << "In English, please" << "ab";
}

// Faults: two tabs of one name (their tasks would share one record), an empty name, or a name the
// settings store cannot keep; a renamed tab losing its task.
void test_window_tasks::refuses_bad_tab_names() {
    QFETCH(QString, typed);
    QFETCH(QString, tooltip);
    QFETCH(QString, name);
    write_tree_in(path("tree"));
    open_window();
    choose_test_language();
    add({"tree/a.tst"});
    action("tab_menu_new")->trigger();
    tab_bar()->setCurrentIndex(1);
    tab_bar()->setCurrentIndex(0);
    action("tab_menu_rename")->trigger();
    QLineEdit* renamer = tab_bar()->renamer();
    QVERIFY(renamer->isVisible());
    renamer->selectAll();
    QTest::keyClick(renamer, Qt::Key_Backspace);
    QTest::keyClicks(renamer, typed);
    if (tooltip == "In English, please")
        QTRY_COMPARE(QToolTip::text(), tooltip);
    QTest::keyClick(renamer, Qt::Key_Return);
    if (!tooltip.isEmpty())
        QTRY_COMPARE(QToolTip::text(), tooltip);
    QCOMPARE(tab_bar()->tabText(0), name);
    tab_bar()->setCurrentIndex(1);
    tab_bar()->setCurrentIndex(0);
    QCOMPARE(listed(), QStringList({"tree/a.tst"}));
}

// Faults: switching tabs forgetting which files of a task were revised; a closed tab's record left
// in the settings, or its files still counted as unchanged, so that the same paths in another task
// would be skipped.
void test_window_tasks::closing_a_tab_forgets_its_records_data() {
    QTest::addColumn<bool>("left");  // the tab left, its task saved, before it is closed
    QTest::newRow("tab closed from another") << true;
    QTest::newRow("tab closed while shown, its paths never saved") << false;
}

// Faults: a closed task's paths skipped as unchanged by the next task that takes them, whether
// they were saved with the tab or added since; its record left in the settings.
void test_window_tasks::closing_a_tab_forgets_its_records() {
    QFETCH(bool, left);
    write_tree_in(path("tree"));
    open_window();
    action("tab_menu_new")->trigger();
    tab_bar()->setCurrentIndex(1);
    choose_test_language();
    add({"tree"});
    report_of_a_run([&] { action("revise_menu_all")->trigger(); });
    if (left) {
        tab_bar()->setCurrentIndex(0);
        tab_bar()->setCurrentIndex(1);
        QCOMPARE(report_of_a_run([&] { action("revise_menu_all")->trigger(); }),
                 QString("2 files was found, no files was revised."));
        tab_bar()->setCurrentIndex(0);
        QVERIFY(QSettings().contains(settings_key::last_info_for_tab("Task 2")));
    }
    emit tab_bar()->tabCloseRequested(1);
    QCOMPARE(tab_bar()->tabText(0), QString("Task 1"));
    QVERIFY(!QSettings().contains(settings_key::last_info_for_tab("Task 2")));
    QVERIFY(!tab_bar()->isVisible());
    QVERIFY(!action("tab_menu_close")->isEnabled());
    choose_test_language();
    add({"tree"});
    QCOMPARE(report_of_a_run([&] { action("revise_menu_all")->trigger(); }),
             QString("2 files was found, 2 files was revised, no files was changed."));
}

void test_window_tasks::learns_a_style_from_the_task_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("copies");      // of the C++ examples in the task's directory
    QTest::addColumn<bool>("stop");       // Stop pressed as soon as the learning starts
    QTest::addColumn<QString>("message");  // "": the style is learned and selected
    QTest::addColumn<bool>("refused");    // the name dialog stays, with the message
    QTest::newRow("learned") << "House" << 1 << false << "" << false;
    QTest::newRow("stopped") << "House" << 40 << true
                             << "Learning was interrupted by user, no style was installed." << false;
    QTest::newRow("no files of the extensions") << "House" << 0 << false
                                                << "No files was found, no style was learned." << false;
    QTest::newRow("name of a style that exists") << "GNU" << 1 << false
                                                 << "Invalid name of style 'GNU', such style already exists." << true;
    QTest::newRow("name not in English") << QString::fromUtf8("Haus\u00e9") << 1 << false
                                         << QString::fromUtf8("Invalid name of style 'Haus\u00e9', it must be in English.")
                                         << true;
    QTest::newRow("empty name") << "" << 1 << false << "Invalid name of style '', name cannot be empty." << true;
}

// Faults: a learned style left unselected or not installed, or learned without its figure told; a stopped learning, or one under a
// refused name, installing a style all the same; an end without a style that says nothing; a
// control of the name or progress dialog that a screen reader announces without a name.
void test_window_tasks::learns_a_style_from_the_task() {
    QFETCH(QString, name);
    QFETCH(int, copies);
    QFETCH(bool, stop);
    QFETCH(QString, message);
    QFETCH(bool, refused);
    QString const shipped = built::build_dir() + "/PlugIns";
    QVERIFY(QFile::copy(shipped + "/languages/libcpp-language-plugin.so",
                        path_to().plugins_directory() + "/libcpp-language-plugin.so"));
    QVERIFY(QFile::copy(shipped + "/styles/GNU[C++].style", path_to().addons_directory() + "/GNU[C++].style"));
    QDir const examples(built::source_dir() + "/examples/cpp");
    for (int copy = 0; copy < copies; ++copy)
        for (QString const& file : examples.entryList(QDir::Files, QDir::Name)) {
            QFile source(examples.filePath(file));
            QVERIFY(source.open(QIODevice::ReadOnly));
            write_file(path(QString("proj/%1/%2").arg(copy).arg(file)), source.readAll());
        }
    write_file(path("proj/notes.txt"), "no code\n");
    open_window();
    auto* tabs = window->findChild<GUI::task_tabs*>();
    emit tabs->set_this_programming_language("C++");
    emit tabs->set_this_formatting_style("GNU");
    QVERIFY(!action("style_menu_learn")->isEnabled());
    add({"proj"});
    QVERIFY(action("style_menu_learn")->isEnabled());

    auto installed_addons = [] {
        QStringList names = QDir(path_to().addons_directory()).entryList(QDir::Files);
        names.sort();
        return names;
    };
    QStringList const addons_before = installed_addons();
    auto* learner = window->findChild<GUI::learn_from_code*>();
    QSignalSpy finished(learner, &GUI::learn_from_code::learning_is_finished);
    action("style_menu_learn")->trigger();
    GUI::new_style_name* dialog = learner->name_dialog();
    QVERIFY(dialog->isVisible());
    auto every_control_is_named = [](QWidget* window) {
        for (QWidget* widget : window->findChildren<QWidget*>())
            if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus)
                QVERIFY2(!QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty(),
                         qPrintable(widget->metaObject()->className() + (" " + widget->objectName())));
    };
    every_control_is_named(dialog);
    dialog->field()->setText(name);
    QTest::keyClick(dialog->field(), Qt::Key_Return);
    if (stop) {
        QVERIFY(learner->progress_dialog()->isVisible());
        every_control_is_named(learner->progress_dialog());
        QTest::mouseClick(learner->progress_dialog()->findChild<QPushButton*>("stop"), Qt::LeftButton);
    }
    QString const addon = path_to().addons_directory() + "/" + name + "[C++].style";
    if (refused) {
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->findChild<QLabel*>("refusal")->text(), message);
        QVERIFY(!learner->progress_dialog()->isVisible());
        QCOMPARE(installed_addons(), addons_before);
        return;
    }
    QVERIFY(!dialog->isVisible());
    QVERIFY(finished.wait(240000));
    QCOMPARE(finished.first().at(0).toString(), message);
    QVERIFY(!learner->progress_dialog()->isVisible());
    QStringList installed = addons_before;
    if (message.isEmpty())
        installed << QFileInfo(addon).fileName();
    installed.sort();
    QCOMPARE(installed_addons(), installed);
    QCOMPARE(window->findChild<QListWidget*>("styles")->currentItem()->text(), message.isEmpty() ? name : QString("GNU"));
    if (!message.isEmpty()) {
        QCOMPARE(window->findChild<QMessageBox*>("critical_alert")->text(), message);
        return;
    }
    auto* figure = window->findChild<QMessageBox*>("learning_result");
    QVERIFY(figure);
    QVERIFY2(QRegularExpression("^Style '" + name + "' of language 'C\\+\\+' was learned from [0-9]+ files: it "
                                "leaves [0-9]+\\.[0-9]% of their [0-9]+ lines as they are\\.")
                 .match(figure->text())
                 .hasMatch(),
             qPrintable(figure->text()));
}

STYLE_TARNEL_WIDGET_TEST_MAIN_IN_BUNDLE(test_window_tasks)
#include "test_window_tasks.moc"
