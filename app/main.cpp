// The entry point: one executable, a window without arguments, a command-line tool with them.
#include "app/application_info.h"
#include "app/mode.h"
#include "console/runner.h"
#include "core/kernel.h"
#include "GUI/main_window.h"

#include <QApplication>
#include <QCoreApplication>

#include <QList>
#include <QString>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

// What Qt says while it opens the display, kept until it is known whether it could: without a
// display Qt ends the process with advice to reinstall the application, and all a user needs to
// hear is that the window needs one.
QList<std::pair<QtMsgType, QString>> said_while_opening;

void keep_or_end(QtMsgType type, QMessageLogContext const&, QString const& text) {
    if (type == QtFatalMsg) {
        std::fputs("I cannot open the window without a display. Please run app with '-h' flag to see usage info.\n",
                   stderr);
        std::_Exit(1);
    }
    said_while_opening.append({type, text});
}

int run_window(int argc, char** argv) {
    QtMessageHandler const usual = qInstallMessageHandler(keep_or_end);
    QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    for (auto const& [type, text] : said_while_opening)
        usual != nullptr ? usual(type, QMessageLogContext(), text)
                         : static_cast<void>(std::fprintf(stderr, "%s\n", qPrintable(text)));
    said_while_opening.clear();
    kernel().remove_old_executable_if_required();
    GUI::main_window window;
    window.show();
    return application.exec();
}

int run_command_line(int argc, char** argv) {
    // Qt takes the words it knows (-qmljsdebugger=...) out of the list it is given; the runner
    // must see and check every word, so Qt gets a copy.
    int qt_argc = argc;
    std::vector<char*> qt_argv(argv, argv + argc + 1);
    QCoreApplication application(qt_argc, qt_argv.data());
    kernel().remove_old_executable_if_required();
    return console::runner()(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
    // A write beyond the file-size limit must fail like any other write, so that the file is left
    // as it was and reported, instead of killing the process in the middle of a run.
    std::signal(SIGXFSZ, SIG_IGN);
    set_application_info();
    if (program_starts_in_GUI_mode(argc, argv))
        return run_window(argc, argv);
    return run_command_line(argc, argv);
}
