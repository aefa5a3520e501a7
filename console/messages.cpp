#include "console/messages.h"

#include "core/product.h"

#include <iostream>

namespace console {

void say(std::string const& message) { std::cerr << message << std::endl; }

void done() { say("It's done."); }

namespace message {

std::string usage_hint() { return " Please run app with '-h' flag to see usage info."; }
std::string listing_hint() { return " Please run app with '--ls' flag to see what supported."; }

std::string argument_not_in_form_name_value() {
    return "Valid argument (except '--delete') must be in the form 'name=value'.";
}
std::string unknown_arguments() { return "There are unknown arguments."; }
std::string not_understood() { return "I don't understand what you want to do."; }

std::string no_such_file_or_directory(std::string const& path) {
    return "No such file or directory '" + path + "', please correct path.";
}
std::string no_file_to_check() {
    return "No file was found to check: the paths hold no file of the language's extensions, or ignore rules left "
           "them all out.";
}
std::string no_such_language(std::string const& language) {
    return "There is no language '" + language + "'.";
}
std::string no_such_style(std::string const& style, std::string const& language) {
    return "There is no style '" + style + "' for language '" + language + "'.";
}
std::string invalid_extensions() { return "Filename extension may contain English letters and digits only."; }

std::string cannot_export_to(std::string const& directory) {
    return "I cannot export style to '" + directory + "'. " +
           "Please make sure this directory exists and you have write permissions.";
}
std::string cannot_export_style_to(std::string const& directory) {
    return "I cannot export style to '" + directory + "'.";
}

std::string invalid_style_name(std::string const& name) {
    return "Invalid name of style '" + name + "', " + "it must be in English.";
}
std::string empty_style_name() { return "Invalid name of style '', name cannot be empty."; }
std::string taken_style_name(std::string const& name) {
    return "Invalid name of style '" + name + "', such style already exists.";
}
std::string cannot_rename_style(std::string const& style) { return "I cannot rename style '" + style + "'."; }

std::string no_such_file(std::string const& path) { return "No such file '" + path + "'."; }
std::string not_a_regular_file(std::string const& path) { return "'" + path + "' is not a regular file."; }
std::string cannot_read_file(std::string const& path) {
    return "I cannot read file '" + path + "', please check read permissions.";
}
std::string cannot_read_file_because(std::string const& path, std::string const& reason) {
    return "I cannot read file '" + path + "': " + reason + ".";
}
std::string cannot_import_language(std::string const& path) {
    return "I cannot import language '" + path + "'.";
}
std::string plugin_of_other_interface_version(std::string const& path, std::string const& version,
                                              std::string const& needed) {
    return "I cannot import language '" + path + "', it was built for version '" + version +
           "' of the plugin interface, but this program needs version '" + needed + "'.";
}
std::string no_language_for_imported_style(std::string const& language) {
    return "There is no language '" + language +
           "', so I cannot import style for it. Please import this language first.";
}
std::string cannot_import_style(std::string const& path) {
    return "I cannot import style '" + path + "', it has invalid format. " + "For more info please read " +
           product::web_site + "/user-guide/style-addon-by-hand" + ".";
}
std::string invalid_extension_of_file(std::string const& path) {
    return "Invalid extension of file '" + path + "'.";
}

std::string no_such_style_to_delete(std::string const& style, std::string const& language) {
    return "There is no style '" + style + "' for language '" + language + "', so I cannot delete it.";
}
std::string only_style_of_language(std::string const& style, std::string const& language) {
    return "Sorry, I cannot delete style '" + style + "', because it's the only one for language '" +
           language + "'. If you don't need this style - " + "please import at least one other for language '" +
           language + "', and after that you'll be able to " + "delete style '" + style + "'.";
}
std::string cannot_delete_style(std::string const& style) { return "I cannot delete style '" + style + "'."; }
std::string cannot_delete_installed_style(std::string const& style) {
    return "I cannot delete style '" + style +
           "', it is installed with Style Tarnel. Rename or edit it to make a copy of your own.";
}
std::string no_such_language_to_delete(std::string const& language) {
    return "There is no language '" + language + "', so I cannot delete it.";
}
std::string only_language(std::string const& language) {
    return "Sorry, I cannot delete language '" + language + "', because it's the only one. " +
           "If you don't need this language - " + "please import at least one other, and after that you'll be able to " +
           "delete language '" + language + "'.";
}
std::string cannot_delete_language(std::string const& language) {
    return "Sorry, I cannot delete language '" + language + "'.";
}

std::string cannot_apply_update(std::string const& path) { return "I cannot apply update '" + path + "'."; }
std::string cannot_update_installation(std::string const& path) {
    return "I cannot apply update '" + path + "', " + product::title +
           " is installed where you cannot change it: please update it with the package manager that installed "
           "it (apt, for the Debian package).";
}
std::string not_an_executable_of_ours(std::string const& path) {
    return "I cannot apply update '" + path + "', it is not an executable of " + product::title +
           ": it must answer '-v' with '" + product::version_line_lead() + "' and its version.";
}

std::string standard_input_with_other_paths() {
    return "Standard input ('--path=-') cannot be revised together with other paths.";
}
std::string lines_of_several_paths() {
    return "Lines ('--lines') can be revised in one file only, please specify one path.";
}
std::string lines_of_a_directory(std::string const& path) {
    return "Lines ('--lines') can be revised in one file only, but '" + path + "' is a directory.";
}
std::string changed_lines_of_given_lines_or_standard_input() {
    return "Changed lines ('--changed') are found in files of a git work tree, not with '--lines' or std input.";
}
std::string invalid_lines(std::string const& value) {
    return "Invalid lines '" + value + "', please specify them as '--lines=N:M' with 1 <= N <= M.";
}
std::string no_language_for_standard_input() {
    return "I don't know the language of standard input, please specify it with '--lang' or name a file "
           "with '--assume-filename'.";
}
std::string cannot_write_standard_output() {
    return "I cannot write the text to standard output, it is closed or full.";
}
std::string left_out_of_diff(std::string const& name) {
    return "File '" + name + "' is left out of the diff: git cannot read its name there (a tab, a line break, or a date at its end).";
}
std::string no_style_for(std::string const& path) {
    return "I don't know which style to use for '" + path +
           "', please specify '--lang' and '--style', or '--addon', or name a style in a '.style-tarnel' file.";
}
std::string no_language_of_file(std::string const& path) {
    return "I don't know the language of file '" + path + "', please specify it with '--lang'.";
}
std::string no_style_for_language_in(std::string const& language, std::string const& file) {
    return "There is no style for language '" + language + "' in file '" + file + "'.";
}
std::string invalid_line_of_project_styles(std::string const& file, int line, std::string const& what) {
    return "Invalid line " + std::to_string(line) + " in file '" + file + "': " + what +
           ". For more info please read " + product::web_site + "/user-guide/project-style.";
}

}  // namespace message
}  // namespace console
