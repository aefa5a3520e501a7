// The command line's learning: language, name and paths checked, then the kernel learns and
// installs the style while a progress line overwrites itself on a terminal.
#include "console/result_of_run.h"

#include "console/learning_messages.h"
#include "console/messages.h"
#include "core/kernel.h"
#include "core/style_addon.h"
#include "core/there_is_no_such.h"
#include "core/transform.h"

#include <QFileInfo>
#include <boost/algorithm/string/replace.hpp>

#include <iostream>
#include <unistd.h>

namespace console {

namespace {

using end = style_learning_outcome::end;

// Rewrites the progress line when the percentage changes, only on a terminal.
class progress_line {
public:
    progress_line() : shown(::isatty(STDERR_FILENO)) {}
    ~progress_line() {
        if (shown && last >= 0)
            std::cerr << "\r" << std::string(message::learning_progress(100).size(), ' ') << "\r" << std::flush;
    }
    void show(unsigned long done, unsigned long whole) {
        if (!shown || whole == 0)
            return;
        int const percent = static_cast<int>(100ULL * std::min(done, whole) / whole);
        if (percent == last)
            return;
        last = percent;
        std::cerr << "\r" << message::learning_progress(static_cast<unsigned>(percent)) << std::flush;
    }

private:
    bool const shown;
    int last = -1;
};

}  // namespace

int result_of_run::learn_style_based_on(argument_list const& arguments) const {
    revision_task task;
    task.style = value_of(arguments, "--learn");
    task.language = value_of(arguments, "--lang", "-l");
    task.extensions = value_of(arguments, "--exts");
    for (auto const& [name, value] : arguments) {
        if (name != "-p" && name != "--path")
            continue;
        QString const path = transform(QString::fromStdString(value)).to_absolute();
        if (!QFileInfo::exists(path)) {
            say(message::no_such_file_or_directory(path.toStdString()));
            return 1;
        }
        task.paths << path;
    }
    if (there_is_no_such().language(task.language)) {
        say(message::no_such_language(task.language) + message::listing_hint());
        return 1;
    }
    if (!task.extensions.empty()) {
        boost::algorithm::replace_all(task.extensions, ",", " ");
        if (!these_are_filename_extensions(task.extensions)) {
            say(message::invalid_extensions());
            return 1;
        }
    }

    style_learning_outcome outcome;
    {
        progress_line progress;
        outcome = kernel().learn_style(
            task, [&](unsigned long done, unsigned long whole) { progress.show(done, whole); });
    }
    switch (outcome.how) {
    case end::learned:
        std::cout << message::style_learned(task.style, task.language, outcome.files, outcome.lines,
                                            outcome.lines_left, outcome.forms_of,
                                            outcome.configuration_of)
                  << std::endl;
        return 0;
    case end::no_such_language:
        say(message::no_such_language(task.language) + message::listing_hint());
        return 1;
    case end::language_cannot_learn:
        say(message::language_cannot_learn(task.language));
        return 1;
    case end::bad_style_name:
        say(task.style.empty() ? message::empty_style_name() : message::invalid_style_name(task.style));
        return 1;
    case end::style_exists:
        say(message::taken_style_name(task.style));
        return 1;
    case end::no_files:
        say(message::no_files_to_learn_from());
        return 1;
    case end::nothing_learned:
        say(message::nothing_learned(task.language));
        return 1;
    case end::stopped:
        say(message::learning_interrupted());
        return 1;
    case end::not_installed:
        say(message::cannot_install_learned_style(task.style));
        return 1;
    }
    return 1;
}

}  // namespace console
