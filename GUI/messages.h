// Every text the window shows the user, in one place, so that its exact words can be read here.
#ifndef STYLE_TARNEL_GUI_MESSAGES_H
#define STYLE_TARNEL_GUI_MESSAGES_H

namespace GUI {
namespace text {

// Captions and invitations of the selectors.
constexpr char language_caption[] = "Language";
constexpr char style_caption[] = "Style";
constexpr char blank_marker[] = " ";
constexpr char please_import_languages[] = "Please import language(s)";
constexpr char please_import_styles[] = "Please import style(s)";
constexpr char for_language_prefix[] = "for ";
constexpr char for_language_suffix[] = " language";

// File dialogs.
constexpr char language_plugins_filter[] = "Language plugins (*.so)";
constexpr char plugin_suffix[] = ".so";
constexpr char addons_filter[] = "Formatting style addon (*.style)";
constexpr char addon_suffix[] = ".style";
constexpr char executable_filter[] = "Style Tarnel executable (*Tarnel)";

// Refusals while renaming a style, shown as tooltips at the editor.
constexpr char in_English_please[] = "In English, please";
constexpr char name_cannot_be_empty[] = "Name cannot be empty";
constexpr char such_style_already_exists[] = "Such style already exists";

// Critical alerts about the bundle's directories.
constexpr char plugins_directory_is_wrong[] = "Something wrong with internal plugins directory";
constexpr char addons_directory_is_wrong[] = "Something wrong with internal addons directory";
constexpr char cannot_delete_installed_style[] =
    "This style is installed with Style Tarnel and cannot be deleted. Rename or edit it to make a copy of your own.";
constexpr char please_make_sure_this_directory[] = "Please make sure this directory\n";
constexpr char exists_and_you_can_write_in_it[] = "\nexists and you can write in it.";

// The update's notification.
constexpr char update_takes_effect_next_start[] = "Update will take effect the next start.";

// The About box and the first-start agreement.
constexpr char about_title[] = "About Style Tarnel";
constexpr char about_text[] =
    "Style Tarnel 2.0.0\n\n"
    "Reformats source files in place by example: pick a language, a style and your paths.";
constexpr char agreement_title[] = "Style Tarnel: license agreement";
constexpr char agreement_text[] =
    "Style Tarnel changes the source files you give it in place.\n\n"
    "Keep a copy of your code (a version control system will do) before you revise it. "
    "The program comes with no warranty of any kind.";
constexpr char agreement_accept[] = "I agree";
constexpr char agreement_decline[] = "Quit";

// The paths and extensions group, and its refusals of extensions, shown as tooltips at the field.
constexpr char paths_caption[] = "Paths to your code:";
constexpr char add_directories[] = "Add &directories";
constexpr char add_files[] = "&Add files";
constexpr char remove_paths[] = "&Remove";
constexpr char extensions_caption[] = "Revise files with extensions:";
constexpr char at_least_one_extension_please[] = "At least one extension, please";
constexpr char without_dot_please[] = "Without dot, please";
constexpr char extensions_tooltip[] =
    "Extensions without dots, separated by spaces: files whose names end with one of them are "
    "revised, in the directories you add and among the files you add.";

// The revision group, its progress dialog and the report window.
constexpr char go[] = "&Go!";
constexpr char view_report[] = "&View report";
constexpr char report_title[] = "Report";
constexpr char revise_in_progress[] = "Revise...";
constexpr char stop[] = "&Stop";
constexpr char revision_in_progress_please_wait[] = "Revision in progress, please wait...";
// The revision of the lines that differ from git's HEAD; its refusals are the run's own words, as
// the command line prints them.
constexpr char revise_changed_lines[] = "Revise changed lines";
constexpr char revise_changed_lines_tip[] =
    "Revise only the lines that differ from git's HEAD (staged or not) in the task's paths";

// The structure panes and the form editor.
constexpr char language_structure_caption[] = "Language structure";
constexpr char look_and_feel_caption[] = "Look and feel";
constexpr char not_supported[] = "Not supported";
constexpr char checking_the_form[] = "Checking how a revision writes this form...";
constexpr char comes_back_as_written[] = "A revision keeps this form as written.";
constexpr char comes_back_otherwise[] = "A revision writes this form so:";
constexpr char form_not_saved[] = "The edited form could not be saved into the style";
constexpr char please_make_sure_this_file[] = "Please make sure this style file\n";
constexpr char plugin_refuses_the_form[] =
    "The language plugin cannot revise this form: a revision would leave such code as it is.";

// The preview of a file of the task as the current style revises it.
constexpr char preview_caption[] = "Preview";
constexpr char file_to_preview[] = "File to preview";
constexpr char previewed_file[] = "The file as the style revises it";
constexpr char next_change[] = "Next change";
constexpr char previous_change[] = "Previous change";
constexpr char previewing[] = "Revising the file for the preview...";
constexpr char no_file_to_preview[] =
    "No file of the task to preview: add paths to your code with files of the extensions below.";
constexpr char file_stays_as_it_is[] = "The style leaves this file as it is.";
constexpr char lines_change_prefix[] = "The style changes ";
constexpr char lines_change_middle[] = " of ";
constexpr char lines_change_suffix[] = " lines of this file (marked).";
constexpr char lines_added_prefix[] = "The style adds ";
constexpr char lines_added_suffix[] = " lines to this file (marked).";
constexpr char plugin_refuses_the_file[] =
    "The language plugin cannot revise this file: a revision would leave it as it is.";
constexpr char file_cannot_be_read[] = "This file cannot be read.";
constexpr char changes_caption[] = "How much of the code the style changes";
constexpr char counting_changes[] = "Counting the lines the style changes...";
constexpr char changes_prefix[] = "This style changes ";
constexpr char changes_of[] = " of ";
constexpr char changes_lines_in[] = " lines in ";
constexpr char changes_files[] = " files";
constexpr char most_changed_files[] = "The files the style changes most: click one to preview it";
constexpr char changed_lines_prefix[] = ": ";
constexpr char changed_line_suffix[] = " line changes";
constexpr char changed_lines_suffix[] = " lines change";

// Learning a style from the task's code: the menu entry, the name asked, the progress, and the
// ends other than a learned style (the words of the command line where it has them).
constexpr char learn_from_code[] = "Learn from code...";
constexpr char learn_a_style_title[] = "Learn a style from your code";
constexpr char name_of_the_new_style[] = "Name of the new style:";
constexpr char learning[] = "Learning...";
constexpr char style_name_prefix[] = "Invalid name of style '";
constexpr char style_name_must_be_in_English[] = "', it must be in English.";
constexpr char style_name_cannot_be_empty[] = "Invalid name of style '', name cannot be empty.";
constexpr char style_name_is_taken[] = "', such style already exists.";
constexpr char there_is_no_language[] = "There is no language '";
constexpr char language_prefix[] = "Language '";
constexpr char cannot_learn_styles[] = "' cannot learn styles.";
constexpr char no_files_to_learn_from[] = "No files was found, no style was learned.";
constexpr char nothing_learned[] = "No style was learned: the files found are no code of language '";
constexpr char learning_interrupted[] = "Learning was interrupted by user, no style was installed.";
constexpr char cannot_install_style[] = "I cannot install style '";
constexpr char addons_directory_hint[] =
    "'. Please make sure the addons directory exists and you can write in it.";
constexpr char quote_and_dot[] = "'.";
// The figure of a learned style, in the command line's words.
constexpr char learned_style_prefix[] = "Style '";
constexpr char learned_of_language[] = "' of language '";
constexpr char learned_from[] = "' was learned from ";
constexpr char learned_file[] = " file";
constexpr char learned_files[] = " files";
constexpr char learned_it_leaves[] = ": it leaves ";
constexpr char learned_of_their[] = " of their ";
constexpr char learned_lines_as_they_are[] = " lines as they are.";
constexpr char learned_forms_of_style[] = " It has the forms of style '";
constexpr char learned_forms_of_configuration[] = " It has the forms of the project's own '";
constexpr char learned_leave_more[] = "', which leave more of them as they are than any rules learned.";

// Task tabs.
constexpr char first_task[] = "Task 1";
constexpr char task_prefix[] = "Task ";
constexpr char tab_already_exists[] = "Tab with such name already exists";

// Where "Online help" leads.
constexpr char user_guide_address[] = "https://style-tarnel.org/user-guide";

// A style as the engine configuration that editors read, written into a directory, and a style
// made from such a file; the refusals in the command line's words where it has them.
constexpr char export_as_editor_configuration[] = "Export as editor configuration...";
constexpr char export_as_editor_configuration_tip[] =
    "Write the shown style as .clang-format into a directory, so that editors format as the style revises";
constexpr char editor_configuration_directory[] = "Directory for the editor configuration";
constexpr char editor_configuration_file[] = ".clang-format";
constexpr char configuration_files[] = "Editor configuration (.clang-format _clang-format)";
constexpr char addons_or_configuration_filter[] =
    "Formatting style addon or editor configuration (*.style .clang-format _clang-format)";
constexpr char make_a_style_title[] = "Make a style of an editor configuration";
constexpr char there_is_already_a_file[] = "There is already a file '";
constexpr char replace_it[] = "'. Replace it?";
constexpr char cannot_export_to[] = "I cannot export style to '";
constexpr char make_sure_you_can_write[] =
    "'. Please make sure this directory exists and you have write permissions.";
constexpr char cannot_write_file[] = "I cannot write file '";
constexpr char plugin_of_language[] = "Sorry, the plugin of language '";
constexpr char has_no_engine_configuration[] =
    "' has no engine configuration, so its styles cannot be exported as one or imported from one.";
constexpr char cannot_tell_configuration_of[] = "Sorry, I cannot tell the engine configuration of style '";
constexpr char cannot_make_a_style_of[] = "I cannot make a style of '";
constexpr char reason_follows[] = "': ";
constexpr char left_out_options[] = "Left out, as they change more than white space: ";
constexpr char options_not_shown[] = "Shown by no form of the style, so not kept: ";
constexpr char options_separator[] = ", ";
constexpr char dot[] = ".";

}  // namespace text
}  // namespace GUI

#endif
