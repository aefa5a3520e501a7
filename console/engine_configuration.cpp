// The command line's engine configurations: a style's written as DIR/.clang-format or on standard
// output, and a style made from a configuration file and installed.
#include "console/result_of_run.h"

#include "console/configuration_messages.h"
#include "console/messages.h"
#include "console/true_if_user.h"
#include "core/kernel.h"
#include "core/there_is_no_such.h"
#include "core/transform.h"

#include <QFileInfo>
#include <QSaveFile>

#include <iostream>

namespace console {

namespace {

using end = engine_configuration_end;

std::string absolute(std::string const& path) {
    return transform(QString::fromStdString(path)).to_absolute().toStdString();
}

// The configuration of the style that the words name (--lang and --style, or --addon); empty,
// with the reason said, when there is none.
std::string configuration_named_in(argument_list const& arguments) {
    std::string const addon = value_of(arguments, "--addon");
    std::string language, style;
    engine_configuration_outcome outcome;
    if (!addon.empty()) {
        style_description description;
        if (!addon_file_is_usable(absolute(addon), description))
            return std::string();
        language = description.language;
        style = description.style;
        outcome = kernel().engine_configuration_of_addon(absolute(addon));
    } else {
        language = value_of(arguments, "--lang", "-l");
        style = value_of(arguments, "--style", "-s");
        if (there_is_no_such().language(language)) {
            say(message::no_such_language(language) + message::listing_hint());
            return std::string();
        }
        if (there_is_no_such().style(style, language)) {
            say(message::no_such_style(style, language) + message::listing_hint());
            return std::string();
        }
        outcome = kernel().engine_configuration_of(style, language);
    }
    switch (outcome.how) {
    case end::done:
        return outcome.configuration;
    case end::language_without_configuration:
        say(message::language_without_configuration(language));
        break;
    default:
        say(message::cannot_tell_configuration_of(style));
        break;
    }
    return std::string();
}

}  // namespace

int result_of_run::export_config_based_on(argument_list const& arguments) const {
    std::string const destination = value_of(arguments, "--export-config");
    std::string target;
    // The directory is checked first: nothing is asked of a plugin for a place it cannot go.
    if (destination != "-") {
        std::string const directory = absolute(destination);
        QFileInfo const info(QString::fromStdString(directory));
        if (!info.exists() || !info.isDir() || !info.isReadable() || !info.isWritable()) {
            say(message::cannot_export_to(directory));
            return 1;
        }
        target = directory + "/.clang-format";
        if (QFileInfo::exists(QString::fromStdString(target)) && quantity_of("--force", "-f").in(arguments) == 0) {
            say(message::configuration_exists(target));
            return 1;
        }
    }
    std::string const configuration = configuration_named_in(arguments);
    if (configuration.empty())
        return 1;
    if (target.empty()) {
        std::cout << configuration << std::flush;
        return 0;
    }
    // Written whole or not at all: an older file stays as it was when the new one cannot be.
    QSaveFile file(QString::fromStdString(target));
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(configuration.data(), static_cast<qint64>(configuration.size())) !=
            static_cast<qint64>(configuration.size()) ||
        !file.commit()) {
        say(message::cannot_write_configuration(target));
        return 1;
    }
    done();
    return 0;
}

int result_of_run::import_configuration_based_on(argument_list const& arguments) const {
    std::string const path = absolute(value_of(arguments, "--import"));
    std::string const language = value_of(arguments, "--lang", "-l");
    std::string const style = value_of(arguments, "--style", "-s");
    std::string const fault = why_file_cannot_be_read(path);
    if (!fault.empty()) {
        say(fault);
        return 1;
    }
    if (there_is_no_such().language(language)) {
        say(message::no_such_language(language) + message::listing_hint());
        return 1;
    }
    configuration_import_outcome const outcome = kernel().import_style_from_configuration(path, language, style);
    switch (outcome.how) {
    case end::done:
        if (!outcome.left_out.empty())
            say(message::options_left_out(outcome.left_out));
        if (!outcome.not_shown.empty())
            say(message::options_not_shown(outcome.not_shown));
        done();
        return 0;
    case end::bad_style_name:
        say(style.empty() ? message::empty_style_name() : message::invalid_style_name(style));
        return 1;
    case end::language_without_configuration:
        say(message::language_without_configuration(language));
        return 1;
    default:
        say(message::cannot_import_configuration(path, outcome.reason));
        return 1;
    }
}

}  // namespace console
