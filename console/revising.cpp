// The command line's revision: paths made absolute and checked, records forgotten for a forced
// run, language, style and extensions checked, then the run itself.
#include "console/result_of_run.h"

#include "console/messages.h"
#include "core/kernel.h"
#include "core/style_addon.h"
#include "core/there_is_no_such.h"
#include "core/transform.h"

#include <QFileInfo>
#include <boost/algorithm/string/replace.hpp>

namespace console {

namespace {

// The default extensions of a language, each followed by one blank.
std::string default_extensions_of(std::string const& language) {
    std::string extensions;
    for (auto const& extension : kernel().filename_extensions_for(language))
        extensions += extension + " ";
    return extensions;
}

}  // namespace

int result_of_run::revise_based_on(argument_list const& arguments) const {
    revision_task task;
    bool force = false;
    for (auto const& [name, value] : arguments) {
        if (name == "-l" || name == "--lang") {
            task.language = value;
        } else if (name == "-s" || name == "--style") {
            task.style = value;
        } else if (name == "--exts") {
            task.extensions = value;
        } else if (name == "-f" || name == "--force") {
            force = true;
        } else if (name == "-p" || name == "--path") {
            QString const path = transform(QString::fromStdString(value)).to_absolute();
            if (!QFileInfo::exists(path)) {
                say(message::no_such_file_or_directory(path.toStdString()));
                return 1;
            }
            task.paths << path;
        }
    }
    // Forgotten before anything else is checked: a forced run that then fails on a bad style
    // name has still forgotten the records.
    if (force)
        kernel().forget_change_records_of(task.paths);

    if (there_is_no_such().language(task.language)) {
        say(message::no_such_language(task.language) + message::listing_hint());
        return 1;
    }
    if (there_is_no_such().style(task.style, task.language)) {
        say(message::no_such_style(task.style, task.language) + message::listing_hint());
        return 1;
    }
    if (task.extensions.empty()) {
        task.extensions = default_extensions_of(task.language);
    } else {
        boost::algorithm::replace_all(task.extensions, ",", " ");
        if (!these_are_filename_extensions(task.extensions)) {
            say(message::invalid_extensions());
            return 1;
        }
    }
    return kernel().start_revise(task);
}

}  // namespace console
