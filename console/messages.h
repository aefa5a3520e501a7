// Every message of the command-line front end, in one place, word for word. Messages go to
// standard error, one per line, flushed; standard output is kept for the revision report.
#ifndef STYLE_TARNEL_CONSOLE_MESSAGES_H
#define STYLE_TARNEL_CONSOLE_MESSAGES_H

#include <string>

namespace console {

// Writes one message and a line end to standard error, and flushes.
void say(std::string const& message);

// "It's done."
void done();

namespace message {

std::string usage_hint();
std::string listing_hint();

std::string argument_not_in_form_name_value();
std::string unknown_arguments();
std::string not_understood();

std::string no_such_file_or_directory(std::string const& path);
// A check or diff that found no file at all.
std::string no_file_to_check();
std::string no_such_language(std::string const& language);
std::string no_such_style(std::string const& style, std::string const& language);
std::string invalid_extensions();

std::string cannot_export_to(std::string const& directory);
std::string cannot_export_style_to(std::string const& directory);

std::string invalid_style_name(std::string const& name);
std::string empty_style_name();
std::string taken_style_name(std::string const& name);
std::string cannot_rename_style(std::string const& style);

std::string no_such_file(std::string const& path);
std::string not_a_regular_file(std::string const& path);
// A file that exists but cannot be read: for want of permission, or for the system's `reason`.
std::string cannot_read_file(std::string const& path);
std::string cannot_read_file_because(std::string const& path, std::string const& reason);
std::string cannot_import_language(std::string const& path);
std::string plugin_of_other_interface_version(std::string const& path, std::string const& version,
                                              std::string const& needed);
std::string no_language_for_imported_style(std::string const& language);
std::string cannot_import_style(std::string const& path);
std::string invalid_extension_of_file(std::string const& path);

std::string no_such_style_to_delete(std::string const& style, std::string const& language);
std::string only_style_of_language(std::string const& style, std::string const& language);
std::string cannot_delete_style(std::string const& style);
std::string cannot_delete_installed_style(std::string const& style);
std::string no_such_language_to_delete(std::string const& language);
std::string only_language(std::string const& language);
std::string cannot_delete_language(std::string const& language);

std::string cannot_apply_update(std::string const& path);
std::string cannot_update_installation(std::string const& path);
std::string not_an_executable_of_ours(std::string const& path);

std::string standard_input_with_other_paths();
std::string lines_of_several_paths();
std::string lines_of_a_directory(std::string const& path);
std::string invalid_lines(std::string const& value);
std::string changed_lines_of_given_lines_or_standard_input();
std::string no_language_for_standard_input();
std::string cannot_write_standard_output();
std::string left_out_of_diff(std::string const& name);
std::string no_style_for(std::string const& path);
std::string no_language_of_file(std::string const& path);
std::string no_style_for_language_in(std::string const& language, std::string const& file);
// A ".style-tarnel" file's faulty line (`what` says what is wrong).
std::string invalid_line_of_project_styles(std::string const& file, int line, std::string const& what);

}  // namespace message
}  // namespace console

#endif
