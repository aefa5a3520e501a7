// The window's editor configurations: the shown style written as .clang-format into a directory
// (asking before it replaces one, refusing with the command line's words), and a style made of a
// configuration chosen in the style import dialog, under a name the window asks; our C plugin with
// its GNU style and the test language, whose plugin has no engine configuration.
#include "GUI/editor_configuration.h"
#include "GUI/main_window.h"
#include "GUI/new_style_name.h"
#include "GUI/select_formatting_style.h"
#include "GUI/style_group.h"
#include "core/path_to.h"
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"
#include "helpers/window_test_helpers.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {

QString const configuration_start = "# The options of a Style Tarnel style";

void install_languages() {
    QString const built_bundle = built::build_dir() + "/PlugIns";
    QFile::copy(built_bundle + "/languages/libc-language-plugin.so",
                path_to().plugins_directory() + "/libc-language-plugin.so");
    QFile::copy(built_bundle + "/styles/GNU[C].style", path_to().addons_directory() + "/GNU[C].style");
    QFile::copy(built::test_language_plugin(), path_to().plugins_directory() + "/libtest-language-plugin.so");
    QFile addon(path_to().addons_directory() + "/Plain[Test].style");
    addon.open(QIODevice::WriteOnly);
    addon.write(addon_text("Plain", "Test"));
}

void write(QString const& path, QByteArray const& content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

}  // namespace

class test_window_editor_configuration : public QObject {
    Q_OBJECT

    std::unique_ptr<GUI::main_window> window;
    QTemporaryDir outside;

    void open_window_on(QString const& language) {
        window = std::make_unique<GUI::main_window>();
        window->resize(1000, 600);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        window->findChild<GUI::style_group*>()->set_this_programming_language(language);
    }
    QAction* action(char const* name) const { return window->findChild<QAction*>(name); }
    GUI::editor_configuration* configurations() const { return window->findChild<GUI::editor_configuration*>(); }
    QListWidget* styles() const { return window->findChild<QListWidget*>("styles"); }
    QString selected_style() const {
        QList<QListWidgetItem*> const selected = styles()->selectedItems();
        return selected.isEmpty() ? QString() : selected.first()->text();
    }
    // The text of the window's open message box of that name, once one is open.
    QString box_text(char const* name) const {
        QMessageBox* box = nullptr;
        for (QMessageBox* open : window->findChildren<QMessageBox*>(name))
            if (open->isVisible())
                box = open;
        return box == nullptr ? QString() : box->text();
    }

private slots:
    void init();
    void cleanup();

    void exports_the_shown_style_data();
    void exports_the_shown_style();
    void makes_a_style_of_a_configuration_data();
    void makes_a_style_of_a_configuration();
    void asks_a_name_the_store_takes();
};

void test_window_editor_configuration::init() {
    start_from_an_empty_bundle();
    install_languages();
    QVERIFY(outside.isValid());
    QDir(outside.path()).removeRecursively();
    QDir().mkpath(outside.path());
}

void test_window_editor_configuration::cleanup() {
    window.reset();
    QDir(path_to().user_addons_directory()).removeRecursively();
}

void test_window_editor_configuration::exports_the_shown_style_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("directory");  // below the temporary directory
    QTest::addColumn<QByteArray>("there");   // a .clang-format there before; empty: none
    QTest::addColumn<QString>("answer");     // to the question whether to replace it
    QTest::addColumn<QString>("alert");      // %D: the directory
    QTest::addColumn<QString>("written");    // how .clang-format begins afterwards; empty: none
    QTest::newRow("into a directory") << "C" << "team" << QByteArray() << "" << "" << configuration_start;
    QTest::newRow("kept when the user says no")
        << "C" << "team" << QByteArray("BasedOnStyle: LLVM\n") << "No" << "" << "BasedOnStyle: LLVM\n";
    QTest::newRow("replaced when the user says yes")
        << "C" << "team" << QByteArray("BasedOnStyle: LLVM\n") << "Yes" << "" << configuration_start;
    QTest::newRow("into a missing directory")
        << "C" << "" << QByteArray() << ""
        << "I cannot export style to '%D'. Please make sure this directory exists and you have write permissions."
        << "";
    QTest::newRow("of a language without configurations")
        << "Test" << "team" << QByteArray() << ""
        << "Sorry, the plugin of language 'Test' has no engine configuration, so its styles cannot be exported as "
           "one or imported from one."
        << "";
}

// Faults: the entry out of reach with a style shown; a file replaced without the user's yes, or
// kept in spite of it; a failure said in other words than the command line's, or not at all; a
// file written (or half-written) for a plugin that cannot tell its configuration.
void test_window_editor_configuration::exports_the_shown_style() {
    QFETCH(QString, language);
    QFETCH(QString, directory);
    QFETCH(QByteArray, there);
    QFETCH(QString, answer);
    QFETCH(QString, alert);
    QFETCH(QString, written);
    QString const target_directory = outside.path() + "/" + (directory.isEmpty() ? "nowhere" : directory);
    if (!directory.isEmpty())
        QDir().mkpath(target_directory);
    QString const target = target_directory + "/.clang-format";
    if (!there.isEmpty())
        write(target, there);
    open_window_on(language);
    QVERIFY(action("style_menu_export_configuration")->isEnabled());

    action("style_menu_export_configuration")->trigger();
    QFileDialog* dialog = nullptr;
    QTRY_VERIFY((dialog = configurations()->directory_dialog()) != nullptr && dialog->isVisible());
    QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
    QVERIFY(!dialog->accessibleName().isEmpty());
    dialog->reject();
    QSignalSpy finished(configurations(), &GUI::editor_configuration::export_is_finished);
    configurations()->export_into(target_directory);
    if (!answer.isEmpty()) {
        QMessageBox* question = nullptr;
        QTRY_VERIFY((question = window->findChild<QMessageBox*>("replace_configuration_question")) != nullptr);
        QCOMPARE(question->text(), "There is already a file '" + target + "'. Replace it?");
        question->button(answer == "Yes" ? QMessageBox::Yes : QMessageBox::No)->click();
    }
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toString(), QString(alert).replace("%D", target_directory));
    if (!alert.isEmpty())
        QTRY_COMPARE(box_text("critical_alert"), QString(alert).replace("%D", target_directory));
    if (written.isEmpty())
        QVERIFY(!QFileInfo::exists(target));
    else
        QVERIFY2(temporary_bundle::contents_of(target).startsWith(written.toUtf8()),
                 temporary_bundle::contents_of(target).left(80).constData());
}

void test_window_editor_configuration::makes_a_style_of_a_configuration_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("file");  // its name; its content follows
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");  // %F: the file's path; empty: a style made with nothing to say
    QTest::addColumn<QStringList>("styles");
    QTest::newRow("made") << "C" << ".clang-format" << QByteArray("BasedOnStyle: LLVM\nIndentWidth: 4\n") << ""
                          << QStringList({"GNU", "Team"});
    QTest::newRow("options left out named")
        << "C" << "_clang-format"
        << QByteArray("BasedOnStyle: LLVM\nSortIncludes: CaseSensitive\nIndentWidth: 4\nPenaltyExcessCharacter: 7\n")
        << "Left out, as they change more than white space: SortIncludes.\n"
           "Shown by no form of the style, so not kept: PenaltyExcessCharacter."
        << QStringList({"GNU", "Team"});
    QTest::newRow("no configuration")
        << "C" << ".clang-format" << QByteArray("IndentWidht: 4\n")
        << "I cannot make a style of '%F': unknown key 'IndentWidht' (line 1)." << QStringList({"GNU"});
    QTest::newRow("in a language without configurations")
        << "Test" << ".clang-format" << QByteArray("BasedOnStyle: LLVM\n")
        << "Sorry, the plugin of language 'Test' has no engine configuration, so its styles cannot be exported as "
           "one or imported from one."
        << QStringList({"Plain"});
}

// Faults: a configuration chosen in the import dialog taken as an addon (and refused silently); a
// style made but not shown; the options it leaves out not named, or named otherwise than the
// command line names them; a failure not said.
void test_window_editor_configuration::makes_a_style_of_a_configuration() {
    QFETCH(QString, language);
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    QFETCH(QStringList, styles);
    QString const path = outside.path() + "/team/" + file;
    write(path, content);
    open_window_on(language);

    QSignalSpy finished(configurations(), &GUI::editor_configuration::import_is_finished);
    window->findChild<GUI::select_formatting_style*>()->import_styles_factually({path});
    GUI::new_style_name* names = configurations()->name_dialog();
    QTRY_VERIFY(names->isVisible());
    QCOMPARE(names->windowTitle(), QString("Make a style of an editor configuration"));
    names->field()->setText("Team");
    names->accept();
    QTRY_COMPARE(finished.count(), 1);
    QString const expected = QString(message).replace("%F", path);
    QCOMPARE(finished.first().first().toString(), expected);
    if (!expected.isEmpty())
        QTRY_COMPARE(box_text(styles.contains("Team") ? "configuration_note" : "critical_alert"), expected);
    QCOMPARE(texts_of(this->styles()), styles);
    if (styles.contains("Team"))
        QCOMPARE(selected_style(), QString("Team"));
}

// Faults: a name the store would refuse, or one that would replace a style of the language,
// taken; the dialog closed on it.
void test_window_editor_configuration::asks_a_name_the_store_takes() {
    QString const path = outside.path() + "/team/.clang-format";
    write(path, "BasedOnStyle: LLVM\n");
    open_window_on("C");
    window->findChild<GUI::select_formatting_style*>()->import_styles_factually({path});
    GUI::new_style_name* names = configurations()->name_dialog();
    QTRY_VERIFY(names->isVisible());
    QList<QPair<QString, QString>> const refusals{
        {"GNU", "Invalid name of style 'GNU', such style already exists."},
        {"", "Invalid name of style '', name cannot be empty."}};
    for (auto const& refused : refusals) {
        names->field()->setText(refused.first);
        names->accept();
        QVERIFY(names->isVisible());
        QCOMPARE(names->findChild<QLabel*>("refusal")->text(), refused.second);
    }
    names->reject();
    QCOMPARE(texts_of(styles()), QStringList({"GNU"}));
    QCOMPARE(temporary_bundle::contents_of(path_to().addons_directory() + "/GNU[C].style"),
             temporary_bundle::contents_of(built::build_dir() + "/PlugIns/styles/GNU[C].style"));
}

STYLE_TARNEL_WIDGET_TEST_MAIN_IN_BUNDLE(test_window_editor_configuration)
#include "test_window_editor_configuration.moc"
