// The command line's store operations: export, rename, import, delete, and the self-update.
#include "console/result_of_run.h"

#include "console/messages.h"
#include "core/language_plugin.h"
#include "core/kernel.h"
#include "core/style_addon.h"
#include "core/there_is_no_such.h"
#include "core/transform.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace console {

namespace {

std::string absolute(std::string const& path) {
    return transform(QString::fromStdString(path)).to_absolute().toStdString();
}

// A file that is only read (an addon, a plugin, an update) needs only to be readable: a refusal
// names the real reason, said on standard error.
bool readable_file(std::string const& path) {
    std::string const fault = why_file_cannot_be_read(path);
    if (fault.empty())
        return true;
    say(fault);
    return false;
}

// Import and update take only a file the user could also write: a read-only one is reported as
// missing, although it is only read. An addon used for a revision needs only to be readable.
bool usable_file(std::string const& path) {
    QFileInfo const info(QString::fromStdString(path));
    if (info.exists() && info.isFile() && info.isReadable() && info.isWritable())
        return true;
    say(message::no_such_file(path) + message::usage_hint());
    return false;
}

bool usable_directory(std::string const& path) {
    QFileInfo const info(QString::fromStdString(path));
    return info.exists() && info.isDir() && info.isReadable() && info.isWritable();
}

// Says which of the language and the style is unknown; true when both are installed.
bool language_and_style_are_installed(std::string const& language, std::string const& style) {
    if (there_is_no_such().language(language)) {
        say(message::no_such_language(language) + message::listing_hint());
        return false;
    }
    if (there_is_no_such().style(style, language)) {
        say(message::no_such_style(style, language) + message::listing_hint());
        return false;
    }
    return true;
}

int delete_style(std::string const& style, std::string const& language) {
    if (there_is_no_such().style(style, language)) {
        say(message::no_such_style_to_delete(style, language) + message::listing_hint());
        return 1;
    }
    auto const styles = kernel().supported_formatting_styles_for(language);
    if (styles && styles->size() == 1) {
        say(message::only_style_of_language(style, language));
        return 1;
    }
    if (kernel().style_is_read_only(style, language)) {
        say(message::cannot_delete_installed_style(style));
        return 1;
    }
    if (!kernel().delete_style_by(style, language)) {
        say(message::cannot_delete_style(style));
        return 1;
    }
    done();
    return 0;
}

int delete_language(std::string const& language) {
    if (there_is_no_such().language(language)) {
        say(message::no_such_language_to_delete(language) + message::listing_hint());
        return 1;
    }
    if (kernel().supported_programming_languages().size() == 1) {
        say(message::only_language(language));
        return 1;
    }
    if (!kernel().delete_language_by(language)) {
        say(message::cannot_delete_language(language));
        return 1;
    }
    done();
    return 0;
}

}  // namespace

std::string why_file_cannot_be_read(std::string const& path) {
    QString const name = QString::fromStdString(path);
    QFileInfo const info(name);
    if (!info.exists())
        return message::no_such_file(path) + message::usage_hint();
    if (!info.isFile())
        return message::not_a_regular_file(path);
    // Opened as the program will read it, so that the reason is the system's own.
    int const descriptor = ::open(QFile::encodeName(name).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return errno == EACCES ? message::cannot_read_file(path)
                               : message::cannot_read_file_because(path, std::strerror(errno));
    ::close(descriptor);
    return std::string();
}

int result_of_run::export_style_based_on(argument_list const& arguments) const {
    std::string const language = value_of(arguments, "--lang", "-l");
    std::string const style = value_of(arguments, "--style", "-s");
    if (!language_and_style_are_installed(language, style))
        return 1;
    std::string const directory = absolute(value_of(arguments, "--export"));
    if (!usable_directory(directory)) {
        say(message::cannot_export_to(directory));
        return 1;
    }
    std::string const target = directory + "/" + addon_file_name_for(style, language);
    if (!kernel().export_style(style, language, target)) {
        say(message::cannot_export_style_to(directory));
        return 1;
    }
    done();
    return 0;
}

int result_of_run::rename_style_based_on(argument_list const& arguments) const {
    std::string const language = value_of(arguments, "--lang", "-l");
    std::string const style = value_of(arguments, "--style", "-s");
    std::string const new_name = value_of(arguments, "--rename");
    if (!language_and_style_are_installed(language, style))
        return 1;
    if (!this_is_a_style_name(new_name)) {
        say(message::invalid_style_name(new_name));
        return 1;
    }
    // An addon without a name would hide every style of the store, and two addons of one name
    // would hide each other.
    if (new_name.empty()) {
        say(message::empty_style_name());
        return 1;
    }
    if (new_name != style && !there_is_no_such().style(new_name, language)) {
        say(message::taken_style_name(new_name));
        return 1;
    }
    if (!kernel().rename_style(style, language, new_name)) {
        say(message::cannot_rename_style(style));
        return 1;
    }
    done();
    return 0;
}

int result_of_run::import_something_based_on(argument_list const& arguments) const {
    std::string const path = absolute(value_of(arguments, "--import"));
    if (!usable_file(path))
        return 1;
    if (language_plugin()(path)) {
        if (kernel().import_language_from(path).empty()) {
            std::string const version = kernel().plugin_interface_version_of(path);
            if (!version.empty() && version != kernel().plugin_interface_version())
                say(message::plugin_of_other_interface_version(path, version,
                                                               kernel().plugin_interface_version()));
            else
                say(message::cannot_import_language(path));
            return 1;
        }
        done();
        return 0;
    }
    if (style_addon()(path)) {
        std::string const language = obtain_style_description().from_raw(path).language;
        if (there_is_no_such().language(language)) {
            say(message::no_language_for_imported_style(language));
            return 1;
        }
        if (kernel().import_style_from(path).is_empty()) {
            say(message::cannot_import_style(path));
            return 1;
        }
        done();
        return 0;
    }
    say(message::invalid_extension_of_file(path) + message::usage_hint());
    return 1;
}

bool addon_file_is_usable(std::string const& path, style_description& description) {
    if (!readable_file(path))
        return false;
    if (!style_addon()(path)) {
        say(message::invalid_extension_of_file(path) + message::usage_hint());
        return false;
    }
    description = obtain_style_description().from_raw(path);
    // A file without its name or language lines is no addon at all, whatever language it does
    // not name.
    if (description.language.empty() || description.is_empty()) {
        say(message::cannot_import_style(path));
        return false;
    }
    if (there_is_no_such().language(description.language)) {
        say(message::no_language_for_imported_style(description.language));
        return false;
    }
    return true;
}

int result_of_run::delete_something_based_on(argument_list const& arguments) const {
    std::string const language = value_of(arguments, "--lang", "-l");
    std::string const style = value_of(arguments, "--style", "-s");
    return style.empty() ? delete_language(language) : delete_style(style, language);
}

int result_of_run::update_app_based_on(argument_list const& arguments) const {
    std::string const path = absolute(value_of(arguments, "--update"));
    if (!usable_file(path))
        return 1;
    switch (kernel().update_with(path)) {
    case update_outcome::applied:
        break;
    case update_outcome::not_an_executable_of_ours:
        say(message::not_an_executable_of_ours(path));
        return 1;
    case update_outcome::not_applied:
        say(message::cannot_apply_update(path));
        return 1;
    case update_outcome::installation_read_only:
        say(message::cannot_update_installation(path));
        return 1;
    }
    done();
    return 0;
}

}  // namespace console
