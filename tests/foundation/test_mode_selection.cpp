// Windowed or command-line start, decided by the shape of the command line alone.
#include "app/mode.h"
#include "tests/harness/temporary_bundle.h"

#include <QProcess>
#include <QtTest>

class test_mode_selection : public QObject {
    Q_OBJECT
private slots:
    void decides_by_the_command_line_data();
    void decides_by_the_command_line();
    void a_start_without_arguments_opens_the_window();
    void a_start_without_a_display_says_so();
};

void test_mode_selection::decides_by_the_command_line_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("windowed");
    QTest::newRow("no arguments") << QStringList{} << true;
    QTest::newRow("process serial number") << QStringList{"-psn_0_12345"} << true;
    QTest::newRow("one flag") << QStringList{"--help"} << false;
    QTest::newRow("psn and one more") << QStringList{"-psn_0_1", "--ls"} << false;
    QTest::newRow("two flags") << QStringList{"-l=C", "-s=GNU"} << false;
}

void test_mode_selection::decides_by_the_command_line() {
    QFETCH(QStringList, arguments);
    QFETCH(bool, windowed);
    std::vector<QByteArray> storage{"Style Tarnel"};
    for (auto const& argument : arguments)
        storage.push_back(argument.toUtf8());
    std::vector<char*> argv;
    for (auto& argument : storage)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    QCOMPARE(program_starts_in_GUI_mode(int(storage.size()), argv.data()), windowed);
}

void test_mode_selection::a_start_without_arguments_opens_the_window() {
    // The window's event loop keeps the process running until it is closed.
    temporary_bundle bundle;
    QProcess process;
    process.setProcessEnvironment(bundle.environment());
    process.start(bundle.executable(), QStringList{});
    QVERIFY(process.waitForStarted());
    QVERIFY(!process.waitForFinished(1500));
    process.terminate();
    QVERIFY(process.waitForFinished(10000));
}

// Where no display can be opened (a server, a terminal over ssh), one line says so and the
// program exits 1. Fault caught: Qt's abort (exit 134) with its advice to reinstall.
void test_mode_selection::a_start_without_a_display_says_so() {
    temporary_bundle bundle;
    QProcessEnvironment environment = bundle.environment();
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    environment.insert("QT_QPA_PLATFORM", "xcb");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(bundle.executable(), QStringList{});
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QString("I cannot open the window without a display. Please run app with '-h' flag to see usage info.\n"));
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
}

QTEST_GUILESS_MAIN(test_mode_selection)
#include "test_mode_selection.moc"
