// Prints the text of the X clipboard: the smoke test copies the report window's text with the
// keyboard and reads it with this, as a user would paste it.
#include <QApplication>
#include <QClipboard>
#include <QTimer>

#include <cstdio>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // The owner answers through the event loop: ask once it runs.
    QTimer::singleShot(200, [] {
        std::fputs(QApplication::clipboard()->text().toUtf8().constData(), stdout);
        QApplication::quit();
    });
    return application.exec();
}
