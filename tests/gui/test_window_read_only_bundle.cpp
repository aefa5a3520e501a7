// The window over a bundle its user cannot write (a package installed by root): renaming or
// editing a bundled style makes a copy of the user's own in $XDG_DATA_HOME/style-tarnel/styles,
// which hides the bundle's, and deleting a bundled style is refused; the bundle is never written.
// The tests run as root, whom permissions do not stop: each case sets up the bundle as root, runs
// its window half again as the unprivileged user in this same bundle, and checks the files after.
#include "GUI/main_window.h"
#include "GUI/look_n_feel_editor.h"
#include "core/path_to.h"
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"
#include "helpers/window_test_helpers.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QTextCursor>

#include <memory>

#include <unistd.h>

namespace {

constexpr char window_half[] = "STYLE_TARNEL_TEST_WINDOW_HALF";

QString bundled_style(QString const& style) { return path_to().addons_directory() + "/" + style + "[Test].style"; }
QString users_style(QString const& style) { return path_to().user_addons_directory() + "/" + style + "[Test].style"; }

void write(QString const& path, QByteArray const& content) {
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

// Everything the unprivileged user must read opened to it, and its own directories (settings,
// cache, data, home) to write.
void share_with_unprivileged_user() {
    QProcess::execute("chmod", {"-R", "o+rX", qEnvironmentVariable("STYLE_TARNEL_TEST_IN_BUNDLE")});
    for (char const* own : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "HOME"})
        QProcess::execute("chmod", {"-R", "o+rwX", qEnvironmentVariable(own)});
}

}  // namespace

class test_window_read_only_bundle : public QObject {
    Q_OBJECT

    std::unique_ptr<GUI::main_window> window;

    QListWidget* styles() const { return window->findChild<QListWidget*>("styles"); }
    QAction* action(char const* name) const { return window->findChild<QAction*>(name); }

    // The window half, as the user who cannot write the bundle.
    void change_in_the_window(QString const& change) {
        window = std::make_unique<GUI::main_window>();
        window->resize(1000, 600);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTRY_COMPARE(texts_of(styles()), QStringList({"Plain", "Wide"}));
        styles()->setCurrentRow(0);
        if (change == "rename") {
            action("style_menu_rename")->trigger();
            QLineEdit* editor = nullptr;
            QTRY_VERIFY((editor = styles()->findChild<QLineEdit*>("style_renamer")) != nullptr && editor->isVisible());
            editor->selectAll();
            QTest::keyClicks(editor, "Mine");
            QTest::keyClick(editor, Qt::Key_Return);
            // The bundle's style stays beside the user's renamed copy.
            QTRY_COMPARE(texts_of(styles()), QStringList({"Mine", "Plain", "Wide"}));
        } else if (change == "edit") {
            auto* editor = window->findChild<GUI::look_n_feel_editor*>();
            QVERIFY(editor != nullptr);
            QTRY_COMPARE(editor->toPlainText(), QString("begin SOME end"));
            QTextCursor cursor = editor->textCursor();
            cursor.setPosition(5);
            editor->setTextCursor(cursor);
            editor->setFocus();
            QTest::keyClick(editor, Qt::Key_Space);
            QTRY_COMPARE(editor->toPlainText(), QString("begin  SOME end"));
            QVERIFY(window->findChild<QMessageBox*>("critical_alert") == nullptr);
        } else if (change == "delete") {
            action("style_menu_delete")->trigger();
            QMessageBox* alert = nullptr;
            QTRY_VERIFY((alert = window->findChild<QMessageBox*>("critical_alert")) != nullptr);
            QCOMPARE(alert->text(), QString("This style is installed with Style Tarnel and cannot be deleted. Rename "
                                            "or edit it to make a copy of your own."));
            QCOMPARE(texts_of(styles()), QStringList({"Plain", "Wide"}));
        }
        window.reset();
    }

private slots:
    void cleanup() { window.reset(); }
    void copies_a_bundled_style_before_changing_it_data();
    void copies_a_bundled_style_before_changing_it();
};

void test_window_read_only_bundle::copies_a_bundled_style_before_changing_it_data() {
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("users_styles");  // the files of the user's addons directory afterwards
    QTest::addColumn<QByteArray>("users_plain_form");  // the block form of the user's Plain; empty: none
    QTest::newRow("renamed") << "rename" << "Mine[Test].style" << QByteArray();
    QTest::newRow("form edited") << "edit" << "Plain[Test].style" << QByteArray("begin  SOME end");
    QTest::newRow("deletion refused") << "delete" << "" << QByteArray();
}

// Faults: a bundled style renamed or edited in the bundle itself (or not at all) when the user
// cannot write it; the user's edited copy not shown in place of the bundle's; a bundled style
// deleted, or refused without a word.
void test_window_read_only_bundle::copies_a_bundled_style_before_changing_it() {
    QFETCH(QString, change);
    QFETCH(QString, users_styles);
    QFETCH(QByteArray, users_plain_form);
    if (qEnvironmentVariableIsSet(window_half)) {
        change_in_the_window(change);
        return;
    }
    if (::geteuid() != 0 || QStandardPaths::findExecutable("setpriv").isEmpty())
        QSKIP("the window's half runs as another user, which only root can start, through setpriv");
    start_from_an_empty_bundle();
    QDir(path_to().user_addons_directory()).removeRecursively();
    QVERIFY(QFile::copy(built::test_language_plugin(), path_to().plugins_directory() + "/libtest-language-plugin.so"));
    write(bundled_style("Plain"), addon_text("Plain", "Test"));
    write(bundled_style("Wide"), addon_text("Wide", "Test", "begin   SOME   end"));
    share_with_unprivileged_user();

    QProcess half;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(window_half, "1");
    half.setProcessEnvironment(environment);
    half.setProcessChannelMode(QProcess::MergedChannels);
    half.start("setpriv", {"--reuid=65534", "--regid=65534", "--clear-groups", "--",
                           QCoreApplication::applicationFilePath(),
                           QString("copies_a_bundled_style_before_changing_it:") + QTest::currentDataTag()});
    QVERIFY(half.waitForStarted());
    QVERIFY(half.waitForFinished(120000));
    QVERIFY2(half.exitStatus() == QProcess::NormalExit && half.exitCode() == 0, half.readAll().constData());

    QCOMPARE(temporary_bundle::contents_of(bundled_style("Plain")), addon_text("Plain", "Test"));
    QCOMPARE(QDir(path_to().addons_directory()).entryList(QDir::Files, QDir::Name),
             QStringList({"Plain[Test].style", "Wide[Test].style"}));
    QCOMPARE(QDir(path_to().user_addons_directory()).entryList(QDir::Files, QDir::Name).join(' '), users_styles);
    if (!users_plain_form.isEmpty())
        QVERIFY2(temporary_bundle::contents_of(users_style("Plain")).contains("\n" + users_plain_form + "\n"),
                 temporary_bundle::contents_of(users_style("Plain")).constData());
}

STYLE_TARNEL_WIDGET_TEST_MAIN_IN_BUNDLE(test_window_read_only_bundle)
#include "test_window_read_only_bundle.moc"
