// Entry points for test executables. Tests of the kernel and the engine run in-process, but the
// kernel finds its plugins and addons beside its own executable: so such a test copies itself into
// a temporary bundle, runs that copy with temporary settings, and passes its result on.
#ifndef STYLE_TARNEL_TESTS_TEST_MAIN_H
#define STYLE_TARNEL_TESTS_TEST_MAIN_H

#include <QApplication>
#include <QCoreApplication>
#include <QtTest>

#include <functional>

namespace tarnel_test {

// Runs `tests` in a copy of this executable inside a temporary bundle; the copy's own
// QCoreApplication file path then points the kernel at <bundle>/PlugIns.
int run_in_temporary_bundle(int argc, char** argv, std::function<int(int, char**)> const& tests);

// Whether this process is the copy inside the temporary bundle.
bool running_in_temporary_bundle();

// Sets the application's identity as the program does, so settings land where its do.
void identify_as_the_program();

}  // namespace tarnel_test

// In-process tests that need a bundle of their own (kernel, engine), with a QCoreApplication or,
// for widget tests (run with QT_QPA_PLATFORM=offscreen), a QApplication.
#define STYLE_TARNEL_TEST_MAIN_IN_BUNDLE_AS(TestClass, Application)                            \
    int main(int argc, char** argv) {                                                         \
        return tarnel_test::run_in_temporary_bundle(argc, argv, [](int c, char** v) {         \
            Application application(c, v);                                                     \
            tarnel_test::identify_as_the_program();                                           \
            TestClass test;                                                                   \
            QTEST_SET_MAIN_SOURCE_PATH                                                        \
            return QTest::qExec(&test, c, v);                                                 \
        });                                                                                   \
    }
#define STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(TestClass) STYLE_TARNEL_TEST_MAIN_IN_BUNDLE_AS(TestClass, QCoreApplication)
#define STYLE_TARNEL_WIDGET_TEST_MAIN_IN_BUNDLE(TestClass) STYLE_TARNEL_TEST_MAIN_IN_BUNDLE_AS(TestClass, QApplication)

#endif
