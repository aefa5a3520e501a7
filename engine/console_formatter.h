// The command-line revision run: on the calling thread, "Preparing, please wait..." and a
// self-overwriting progress line on standard error, "It's done." and the report on standard
// output. SIGINT or SIGTERM stops it after the current file, as the window's Stop does.
#ifndef STYLE_TARNEL_ENGINE_CONSOLE_FORMATTER_H
#define STYLE_TARNEL_ENGINE_CONSOLE_FORMATTER_H

#include <QStringList>

#include <iosfwd>
#include <string>

class console_formatter {
public:
    console_formatter();
    // The streams that stand for standard output and standard error.
    console_formatter(std::ostream& out, std::ostream& err) : out(out), err(err) {}

    // 0, or 128 + the number of the signal that interrupted the run before its last file.
    int operator()(std::string plugin_file, std::string addon_file, std::string extensions,
                   QStringList paths);
    void show_this_file_was_revised(unsigned long revised, int found);

private:
    std::ostream& out;
    std::ostream& err;
};

#endif
