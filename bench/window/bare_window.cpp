// The floor of the window's start on the same display: a main window holding one label, timed
// as window_bench times ours (from the first line of main to the window being exposed).
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QtTest>

#include <cstdio>

int main(int argc, char** argv) {
    QElapsedTimer since_start;
    since_start.start();
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QLabel("Style Tarnel"));
    window.resize(1000, 680);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;
    std::printf("%-40s %8.2f ms\n", "bare window on screen after start", since_start.nsecsElapsed() / 1e6);
    return 0;
}
