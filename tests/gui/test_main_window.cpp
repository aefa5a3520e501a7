// The main window with its language and style selectors, on the test plugins in a bundle and
// settings of its own.
#include "GUI/code_group.h"
#include "GUI/main_window.h"
#include "GUI/revise_group.h"
#include "GUI/select_formatting_style.h"
#include "GUI/select_programming_language.h"
#include "GUI/style_group.h"
#include "GUI/task_tabs.h"
#include "core/path_to.h"
#include "core/settings_keys.h"
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"
#include "helpers/window_test_helpers.h"

#include <QAccessible>
#include <QAction>
#include <QMenu>
#include <QDir>
#include <QFileDialog>
#include <QFile>
#include <QLineEdit>
#include <QKeyEvent>
#include <QListWidget>
#include <QMessageBox>
#include <QScrollBar>
#include <QUrl>
#include <QMenuBar>
#include <QSettings>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>
#include <QToolTip>

#include <memory>

namespace {

QString const test_language = "Test";
QString const other_language = "Other";

void install_language(QString const& built_plugin) {
    QFile::copy(built_plugin, path_to().plugins_directory() + "/" + QFileInfo(built_plugin).fileName());
}

QByteArray addon_text(QString const& style, QString const& language) {
    return ("NAME=" + style + "\nLANGUAGE=" + language + "\n\nS_NAME=none\nS_BEG\nS_END\n").toUtf8();
}

QString write_addon(QString const& directory, QString const& style, QString const& language) {
    QString const path = directory + "/" + style + "[" + language + "].style";
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(addon_text(style, language));
    return path;
}

void install_style(QString const& style, QString const& language) {
    write_addon(path_to().addons_directory(), style, language);
}

bool style_is_installed(QString const& style, QString const& language) {
    return QFileInfo::exists(path_to().addons_directory() + "/" + style + "[" + language + "].style");
}

QString selected_text_of(QListWidget const* list) {
    QList<QListWidgetItem*> const selected = list->selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->text();
}

enum installed { no_language, one_language_one_style, two_languages_two_styles };

void install(installed what) {
    if (what == no_language)
        return;
    install_language(built::test_language_plugin());
    install_style("A", test_language);
    if (what == one_language_one_style)
        return;
    install_language(built::other_language_plugin());
    install_style("B", test_language);
    install_style("C", other_language);
    install_style("D", other_language);
}

}  // namespace

Q_DECLARE_METATYPE(installed)

class test_main_window : public QObject {
    Q_OBJECT

    std::unique_ptr<GUI::main_window> window;

    void open_window() {
        window = std::make_unique<GUI::main_window>();
        window->resize(1000, 600);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }
    QListWidget* languages() const { return window->findChild<QListWidget*>("languages"); }
    QListWidget* styles() const { return window->findChild<QListWidget*>("styles"); }
    QAction* action(char const* name) const { return window->findChild<QAction*>(name); }
    GUI::select_programming_language* language_selector() const {
        return window->findChild<GUI::select_programming_language*>();
    }
    GUI::select_formatting_style* style_selector() const { return window->findChild<GUI::select_formatting_style*>(); }

    QStringList enabled_actions(QStringList const& names) const {
        QStringList enabled;
        for (QString const& name : names)
            if (action(name.toLatin1().constData())->isEnabled())
                enabled << name;
        return enabled;
    }

private slots:
    void init();
    void cleanup();

    void opens_titled_with_its_menus_in_order();
    void no_two_entries_share_a_shortcut();
    void menus_hold_their_entries_in_order_data();
    void menus_hold_their_entries_in_order();
    void actions_follow_the_languages_and_styles_data();
    void actions_follow_the_languages_and_styles();
    void invites_to_import_what_is_missing();
    void the_selection_reaches_the_other_groups();
    void imports_and_deletes_languages();
    void imports_and_deletes_styles();
    void refuses_bad_new_names_data();
    void refuses_bad_new_names();
    void renames_a_style_in_place();
    void geometry_and_splitter_survive_a_restart();
    void asks_for_the_agreement_on_the_first_start_only();
    void every_control_has_a_name_and_takes_the_keyboard();
    void takes_only_what_it_can_import_by_dropping_data();
    void takes_only_what_it_can_import_by_dropping();
    void alerts_when_the_styles_directory_is_gone();
    void scroll_positions_survive_a_restart();
};


void test_main_window::init() {
    start_from_an_empty_bundle();
}

void test_main_window::cleanup() { window.reset(); }

// Fault: a menu missing, misnamed or out of order, or the window untitled.
void test_main_window::opens_titled_with_its_menus_in_order() {
    open_window();
    QCOMPARE(window->windowTitle(), QString("Style Tarnel"));
    QStringList menus;
    for (QAction* menu : window->menuBar()->actions())
        menus << menu->text();
    QCOMPARE(menus, QStringList({"&Tab", "&Language", "&Style", "Look and f&eel", "&Your code", "A&pp"}));
    QVERIFY(!action("revise_menu_all")->isEnabled());
    QCOMPARE(action("revise_menu_all")->shortcut(), QKeySequence("Ctrl+G"));
    QVERIFY(action("lnf_menu_non_print")->isCheckable());
}

// Fault: two entries under one shortcut, which Qt takes as ambiguous: neither of them runs.
void test_main_window::no_two_entries_share_a_shortcut() {
    open_window();
    QMap<QString, QString> entry_of;  // by the shortcut, as the platform writes it
    for (QAction* entry : window->findChildren<QAction*>())
        for (QKeySequence const& shortcut : entry->shortcuts()) {
            QString const key = shortcut.toString();
            QVERIFY2(!entry_of.contains(key), qPrintable(key + ": " + entry_of.value(key) + ", " + entry->objectName()));
            entry_of[key] = entry->objectName();
        }
    QCOMPARE(entry_of.value("Ctrl+G"), QString("revise_menu_all"));
    QCOMPARE(entry_of.value("Ctrl+Shift+G"), QString("revise_menu_changed_lines"));
}

namespace {

// A menu entry as the table writes it: its text, and its shortcut after a tab when it has one.
QString entry(QString const& text, QKeySequence const& shortcut = QKeySequence()) {
    return shortcut.isEmpty() ? text : text + "\t" + shortcut.toString(QKeySequence::PortableText);
}

}  // namespace

void test_main_window::menus_hold_their_entries_in_order_data() {
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QStringList>("entries");  // "|": a separator
    QTest::newRow("Tab") << "&Tab"
                         << QStringList{entry("New", QKeySequence::AddTab), entry("Close", QKeySequence::Close),
                                        entry("Rename")};
    QTest::newRow("Language") << "&Language" << QStringList{entry("Import..."), entry("Delete")};
    QTest::newRow("Style") << "&Style"
                           << QStringList{entry("Import..."), entry("Export..."), entry("Delete"), entry("Rename"),
                                          "|", entry("Learn from code..."), entry("Export as editor configuration...")};
    QTest::newRow("Look and feel")
        << "Look and f&eel"
        << QStringList{entry("How to change this structure"), "|",
                       entry("Undo", QKeySequence::Undo), entry("Redo", QKeySequence::Redo), "|",
                       entry("Copy", QKeySequence::Copy), entry("Select all", QKeySequence::SelectAll), "|",
                       entry("Increase font size", QKeySequence::ZoomIn),
                       entry("Decrease font size", QKeySequence::ZoomOut), "|", entry("Show spaces/tabs")};
    QTest::newRow("Your code") << "&Your code"
                               << QStringList{entry("Revise all paths", QKeySequence("Ctrl+G")),
                                              entry("Revise changed lines", QKeySequence("Ctrl+Shift+G")), "|",
                                              entry("Revise this path forcibly"), entry("Revise all paths forcibly")};
    QTest::newRow("App") << "A&pp"
                         << QStringList{entry("Update..."), "|", entry("Online help", QKeySequence::HelpContents),
                                        entry("About")};
}

// Faults: an entry missing, misnamed, out of its place or its group, or under another shortcut
// (or none) than the one the platform gives its kind of command.
void test_main_window::menus_hold_their_entries_in_order() {
    QFETCH(QString, menu);
    QFETCH(QStringList, entries);
    open_window();
    QMenu* found = nullptr;
    for (QAction* title : window->menuBar()->actions())
        if (title->text() == menu)
            found = title->menu();
    QVERIFY(found != nullptr);
    QStringList shown;
    for (QAction* item : found->actions())
        shown << (item->isSeparator() ? QString("|") : entry(item->text(), item->shortcut()));
    QCOMPARE(shown, entries);
}

void test_main_window::actions_follow_the_languages_and_styles_data() {
    QTest::addColumn<installed>("what");
    QTest::addColumn<QString>("then");  // what the test does after opening
    QTest::addColumn<QStringList>("enabled");
    QStringList const style_entries{"style_menu_import", "style_menu_export", "style_menu_delete", "style_menu_rename"};
    QStringList const lnf_entries{"lnf_menu_about_this_structure", "lnf_menu_select_all", "lnf_menu_increase_font",
                                  "lnf_menu_decrease_font", "lnf_menu_non_print"};
    // Offered until the paths list says otherwise; with no paths they revise nothing.
    QStringList const forced_entries{"revise_menu_it_forcibly", "revise_menu_all_forcibly"};
    QTest::newRow("no language") << no_language << "" << QStringList({"language_menu_import"}) + forced_entries;
    QTest::newRow("one language, one style")
        << one_language_one_style << ""
        << QStringList({"language_menu_import", "style_menu_import", "style_menu_export", "style_menu_rename"}) +
               lnf_entries + QStringList({"style_menu_export_configuration"}) + forced_entries;
    QTest::newRow("two languages, two styles")
        << two_languages_two_styles << ""
        << QStringList({"language_menu_import", "language_menu_delete"}) + style_entries + lnf_entries +
               QStringList({"style_menu_export_configuration"}) + forced_entries;
    QTest::newRow("last language deleted")
        << one_language_one_style << "delete the language" << QStringList({"language_menu_import"}) + forced_entries;
    QTest::newRow("last style deleted")
        << one_language_one_style << "delete the style"
        << QStringList({"language_menu_import", "style_menu_import"}) + forced_entries;
}

// Faults: an action left enabled where it would act on nothing (deleting the last language or
// style, exporting no style), or left disabled after a language and style were chosen; the forced
// revisions out of reach from the start, before the paths list has said anything.
void test_main_window::actions_follow_the_languages_and_styles() {
    QFETCH(installed, what);
    QFETCH(QString, then);
    QFETCH(QStringList, enabled);
    install(what);
    open_window();
    if (then == "delete the language") {
        // The last language cannot be deleted from the menu: it goes from under the window.
        empty_directory(path_to().plugins_directory());
        window->findChild<GUI::style_group*>()->set_first_programming_language();
    } else if (then == "delete the style") {
        QFile::remove(path_to().addons_directory() + "/A[Test].style");
        style_selector()->show();
    }
    QStringList const all{"language_menu_import", "language_menu_delete", "style_menu_import", "style_menu_export",
                          "style_menu_delete", "style_menu_rename", "lnf_menu_about_this_structure",
                          "lnf_menu_select_all", "lnf_menu_increase_font", "lnf_menu_decrease_font",
                          "lnf_menu_non_print", "style_menu_learn", "style_menu_export_configuration",
                          "revise_menu_all", "revise_menu_changed_lines",
                          "revise_menu_it_forcibly", "revise_menu_all_forcibly"};
    QCOMPARE(enabled_actions(all), enabled);
}

// Fault: an empty selector shows nothing (or selectable markers that read as a language or style).
void test_main_window::invites_to_import_what_is_missing() {
    open_window();
    QCOMPARE(texts_of(languages()), QStringList({" ", "Please import language(s)"}));
    languages()->setCurrentRow(1);
    QVERIFY(languages()->selectedItems().isEmpty());
    window.reset();

    install_language(built::test_language_plugin());
    open_window();
    QCOMPARE(texts_of(styles()), QStringList({" ", "Please import style(s)", "for Test language"}));
    QVERIFY(styles()->selectedItems().isEmpty());
    QString style = "unchanged";
    emit window->findChild<GUI::revise_group*>()->obtain_formatting_style(style);
    QCOMPARE(style, QString("unchanged"));
}

// Faults: a relay of the wiring table missing, so another group cannot learn the current
// language and style, or the selection chain broken between the selectors.
void test_main_window::the_selection_reaches_the_other_groups() {
    install(two_languages_two_styles);
    open_window();
    auto* styles_group = window->findChild<GUI::style_group*>();
    auto* revise = window->findChild<GUI::revise_group*>();
    auto* code = window->findChild<GUI::code_group*>();
    auto* tabs = window->findChild<GUI::task_tabs*>();
    QSignalSpy selected(styles_group, &GUI::style_group::language_n_style_was_selected);
    QSignalSpy paths_dropped(styles_group, &GUI::style_group::delete_all_raw_paths);

    emit tabs->set_this_programming_language(other_language);
    QCOMPARE(selected_text_of(languages()), other_language);
    QCOMPARE(texts_of(styles()), QStringList({"C", "D"}));
    QCOMPARE(selected.count(), 1);
    QCOMPARE(paths_dropped.count(), 1);

    emit tabs->set_this_programming_language(test_language);
    emit tabs->set_this_formatting_style("B");
    QString language, style, asked_by_code, asked_by_tabs;
    emit revise->obtain_programming_language(language);
    emit revise->obtain_formatting_style(style);
    emit code->obtain_programming_language(asked_by_code);
    emit tabs->obtain_formatting_style(asked_by_tabs);
    QCOMPARE(language, test_language);
    QCOMPARE(style, QString("B"));
    QCOMPARE(asked_by_code, test_language);
    QCOMPARE(asked_by_tabs, QString("B"));

    QRect geometry;
    emit revise->obtain_geometry_of_main_window(geometry);
    QCOMPARE(geometry, window->geometry());
}

// Faults: an imported language not listed or not selected; a non-plugin imported; deleting
// selecting the wrong neighbour; the style actions left enabled when no language remains.
void test_main_window::imports_and_deletes_languages() {
    open_window();
    QTemporaryDir outside;
    QString const plugin = outside.path() + "/libother-language-plugin.so";
    QFile::copy(built::other_language_plugin(), plugin);
    QString const not_a_plugin = outside.path() + "/notes.so";
    QFile notes(not_a_plugin);
    notes.open(QIODevice::WriteOnly);
    notes.write("not a library");
    notes.close();

    language_selector()->import_languages_factually({not_a_plugin, plugin});
    QCOMPARE(texts_of(languages()), QStringList({other_language}));
    QCOMPARE(selected_text_of(languages()), other_language);
    QVERIFY(!action("language_menu_delete")->isEnabled());
    QCOMPARE(QSettings().value(settings_key::parent_directory_of_last_imported_plugin).toString(), outside.path());

    QString const second = outside.path() + "/libtest-language-plugin.so";
    QFile::copy(built::test_language_plugin(), second);
    language_selector()->import_languages_factually({second});
    QCOMPARE(texts_of(languages()).size(), 2);
    QCOMPARE(selected_text_of(languages()), test_language);
    QVERIFY(action("language_menu_delete")->isEnabled());

    int const last_row = languages()->count() - 1;
    QString const remaining = languages()->item(0)->text();
    languages()->setCurrentRow(last_row);
    action("language_menu_delete")->trigger();
    QCOMPARE(texts_of(languages()), QStringList({remaining}));
    QCOMPARE(selected_text_of(languages()), remaining);
}

// Faults: an addon of another language imported into the current one; an imported style not
// selected; the export offering another name or writing elsewhere; a deleted style still listed
// or still on disk.
void test_main_window::imports_and_deletes_styles() {
    install(one_language_one_style);
    open_window();
    QTemporaryDir outside;
    QString const own = write_addon(outside.path(), "Mine", test_language);
    QString const foreign = write_addon(outside.path(), "Foreign", other_language);

    style_selector()->import_styles_factually({foreign, own});
    QCOMPARE(texts_of(styles()), QStringList({"A", "Mine"}));
    QCOMPARE(selected_text_of(styles()), QString("Mine"));
    QVERIFY(!style_is_installed("Foreign", other_language));
    QVERIFY(action("style_menu_delete")->isEnabled());

    action("style_menu_export")->trigger();
    QFileDialog* save = nullptr;
    QTRY_VERIFY((save = window->findChild<QFileDialog*>("export_style_dialog")) != nullptr);
    QCOMPARE(QFileInfo(save->selectedFiles().value(0)).fileName(), QString("Mine[Test].style"));
    save->reject();
    QString const exported = outside.path() + "/exported/Mine[Test].style";
    QDir().mkpath(outside.path() + "/exported");
    style_selector()->export_style_factually(exported);
    QCOMPARE(temporary_bundle::contents_of(exported), addon_text("Mine", test_language));

    action("style_menu_delete")->trigger();
    QVERIFY(!style_is_installed("Mine", test_language));
    QCOMPARE(texts_of(styles()), QStringList({"A"}));
    QVERIFY(!action("style_menu_delete")->isEnabled());
}

void test_main_window::refuses_bad_new_names_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("tooltip");
    QTest::newRow("Cyrillic letter") << QString::fromUtf8("Ж") << "In English, please";
    QTest::newRow("name of another style") << "B" << "Such style already exists";
    QTest::newRow("empty name") << "" << "Name cannot be empty";
}

// Faults: a style renamed to a name the store cannot hold, to the name of another style (which
// would overwrite its file), or to nothing.
void test_main_window::refuses_bad_new_names() {
    QFETCH(QString, typed);
    QFETCH(QString, tooltip);
    install(two_languages_two_styles);
    open_window();
    emit window->findChild<GUI::task_tabs*>()->set_this_programming_language(test_language);
    styles()->setCurrentRow(0);
    action("style_menu_rename")->trigger();
    auto* editor = styles()->findChild<QLineEdit*>("style_renamer");
    QVERIFY(editor != nullptr);
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Backspace);
    // Typed as a keyboard sends it: the key's text, whatever the layout.
    for (QChar const character : typed) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(character));
        QApplication::sendEvent(editor, &press);
    }
    if (tooltip != "In English, please")
        QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(QToolTip::text(), tooltip);
    QApplication::processEvents();
    QVERIFY(style_is_installed("A", test_language));
    QVERIFY(style_is_installed("B", test_language));
    if (tooltip == "In English, please")
        QCOMPARE(editor->text(), QString());
    else
        QCOMPARE(texts_of(styles()), QStringList({"A", "B"}));
}

// Faults: the new name not reaching the store, or Escape renaming anyway.
void test_main_window::renames_a_style_in_place() {
    install(one_language_one_style);
    open_window();
    action("style_menu_rename")->trigger();
    auto* editor = styles()->findChild<QLineEdit*>("style_renamer");
    QVERIFY(editor != nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, "Escaped");
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_COMPARE(texts_of(styles()), QStringList({"A"}));
    QVERIFY(style_is_installed("A", test_language));

    styles()->setCurrentRow(0);
    action("style_menu_rename")->trigger();
    QTRY_VERIFY((editor = styles()->findChild<QLineEdit*>("style_renamer")) != nullptr && editor->isVisible());
    editor->selectAll();
    QTest::keyClicks(editor, "New name");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(texts_of(styles()), QStringList({"New name"}));
    QVERIFY(style_is_installed("New name", test_language));
    QVERIFY(!style_is_installed("A", test_language));
}

// Fault: the window or the style group's panes forgetting their sizes between two starts.
void test_main_window::geometry_and_splitter_survive_a_restart() {
    install(one_language_one_style);
    open_window();
    window->setGeometry(40, 50, 1100, 640);
    auto* splitter = window->findChild<QSplitter*>("style_splitter");
    splitter->setSizes({200, 160, 180, 520});
    QApplication::processEvents();
    QList<int> const sizes = splitter->sizes();
    QRect const geometry = window->geometry();
    window.reset();

    window = std::make_unique<GUI::main_window>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QCOMPARE(window->geometry(), geometry);
    QCOMPARE(window->findChild<QSplitter*>("style_splitter")->sizes(), sizes);
}

// Fault: the agreement shown at every start, or never.
void test_main_window::asks_for_the_agreement_on_the_first_start_only() {
    QSettings().remove(settings_key::EULA_was_accepted);
    open_window();
    QWidget* agreement = nullptr;
    QTRY_VERIFY((agreement = window->findChild<QWidget*>("agreement_dialog")) != nullptr);
    QTest::keyClick(agreement, Qt::Key_Return);
    QTRY_VERIFY(QSettings().value(settings_key::EULA_was_accepted).toBool());
    window.reset();
    open_window();
    QVERIFY(window->findChild<QWidget*>("agreement_dialog") == nullptr);
}

// Faults: a control a screen reader announces without a name, a list the keyboard cannot reach,
// a menu without a mnemonic.
void test_main_window::every_control_has_a_name_and_takes_the_keyboard() {
    install(two_languages_two_styles);
    open_window();
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus)
            continue;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(accessible != nullptr && !accessible->text(QAccessible::Name).isEmpty(),
                 qPrintable(widget->metaObject()->className() + (" " + widget->objectName())));
    }
    for (QListWidget* list : {languages(), styles()}) {
        QVERIFY(list->focusPolicy() & Qt::TabFocus);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(list);
        QVERIFY(accessible->childCount() > 0);
        QCOMPARE(accessible->child(0)->text(QAccessible::Name), list->item(0)->text());
    }
    for (QAction* menu : window->menuBar()->actions()) {
        QVERIFY2(menu->text().contains('&'), qPrintable(menu->text()));
        for (QAction* entry : menu->menu()->actions())
            QVERIFY(entry->isSeparator() || !entry->text().isEmpty());
    }
}

void test_main_window::takes_only_what_it_can_import_by_dropping_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("file");  // a built plugin, or "addon:<language>"
    QTest::addColumn<QString>("as");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("language plugin") << "languages" << built::other_language_plugin() << "libother.so" << true;
    QTest::newRow("plugin with an upper-case suffix")
        << "languages" << built::other_language_plugin() << "libother.SO" << false;
    QTest::newRow("library that is no plugin") << "languages" << built::library_without_plugin() << "libno.so" << false;
    QTest::newRow("addon of the current language") << "styles" << "addon:Test" << "Mine[Test].style" << true;
    QTest::newRow("addon of another language") << "styles" << "addon:Other" << "Mine[Other].style" << false;
}

// Faults: a drop accepted that the store would refuse or put under the wrong language, or a
// valid drop refused; the accepted drop not imported.
void test_main_window::takes_only_what_it_can_import_by_dropping() {
    QFETCH(QString, list);
    QFETCH(QString, file);
    QFETCH(QString, as);
    QFETCH(bool, accepted);
    install(one_language_one_style);
    open_window();
    QTemporaryDir outside;
    QString const path = outside.path() + "/" + as;
    if (file.startsWith("addon:")) {
        QFile addon(path);
        QVERIFY(addon.open(QIODevice::WriteOnly));
        addon.write(addon_text("Mine", file.mid(6)));
    } else {
        QVERIFY(QFile::copy(file, path));
    }
    QCOMPARE(dropped_on(window->findChild<QListWidget*>(list)->viewport(), path), accepted);
    if (!accepted)
        return;
    if (list == "languages")
        QCOMPARE(selected_text_of(languages()), other_language);
    else
        QVERIFY(style_is_installed("Mine", test_language));
}

// Fault: an import or delete attempted into a directory that is not there, silently.
void test_main_window::alerts_when_the_styles_directory_is_gone() {
    install(one_language_one_style);
    open_window();
    QString const directory = path_to().addons_directory();
    QVERIFY(QDir().rename(directory, directory + ".away"));
    style_selector()->import_styles_factually({directory + ".away/A[Test].style"});
    QMessageBox* alert = nullptr;
    QTRY_VERIFY((alert = window->findChild<QMessageBox*>("critical_alert")) != nullptr);
    QCOMPARE(alert->text(), QString("Something wrong with internal addons directory"));
    QCOMPARE(alert->informativeText(),
             "Please make sure this directory\n" + directory + "\nexists and you can write in it.");
    QVERIFY(QDir().rename(directory + ".away", directory));
    QCOMPARE(texts_of(styles()), QStringList({"A"}));
}

// Fault: the position of a long list of styles lost between two starts, or restored before the
// list knows how far it can scroll.
void test_main_window::scroll_positions_survive_a_restart() {
    install(one_language_one_style);
    for (int i = 0; i < 60; ++i)
        install_style(QString("Style %1").arg(i, 2, 10, QChar('0')), test_language);
    open_window();
    QScrollBar* scroll_bar = styles()->verticalScrollBar();
    QTRY_VERIFY(scroll_bar->maximum() > 20);
    scroll_bar->setValue(20);
    window.reset();
    open_window();
    QTRY_COMPARE(styles()->verticalScrollBar()->value(), 20);
}

STYLE_TARNEL_WIDGET_TEST_MAIN_IN_BUNDLE(test_main_window)
#include "test_main_window.moc"
