// Every key of the settings store, named once, with what it holds. Settings go through a fresh
// default QSettings per read or write, except the change records, which live in a store of their
// own (see change_records_store below).
#ifndef STYLE_TARNEL_CORE_SETTINGS_KEYS_H
#define STYLE_TARNEL_CORE_SETTINGS_KEYS_H

#include <QString>

namespace settings_key {

// Byte array: the main window's saved geometry.
constexpr char main_window_geometry[] = "main_window_geometry";
// Integer: size of pane N (0 to 3) of the style group's splitter, under the key + N in decimal.
constexpr char splitter_size_prefix[] = "splitter_size";
inline QString splitter_size(int pane) { return splitter_size_prefix + QString::number(pane); }
// Byte array: the saved state of the splitter between the style group's panes and the preview.
constexpr char preview_splitter_state[] = "preview_splitter_state";
// String list: the texts of all task tabs, left to right.
constexpr char tabs[] = "tabs";
// String: the text of the current task tab.
constexpr char active_tab[] = "active_tab";
// String list of five: language, style, structure, extensions, raw paths of one task tab.
constexpr char last_info_suffix[] = "__last";
inline QString last_info_for_tab(QString const& tab) { return tab + last_info_suffix; }
// Integer: scroll position of the list of paths.
constexpr char saved_paths_slider_position[] = "saved_paths_slider_position";
// String: start directory of the add-directory dialog (read, never written).
constexpr char parent_directory_of_last_chosen_directory[] = "parent_directory_of_last_chosen_directory";
// String: start directory of the add-files dialog (read, never written).
constexpr char parent_directory_of_last_chosen_file[] = "parent_directory_of_last_chosen_file";
// Integer: the look-and-feel editor's font size in points.
constexpr char size_of_font_in_pt[] = "size_of_font_in_pt";
// Boolean: show non-printing characters in the editor.
constexpr char non_print_flag[] = "non_print_flag";
// Integers: scroll positions of the structure, language and style selectors.
constexpr char language_structure_slider_position[] = "language_structure_slider_position";
constexpr char language_slider_position[] = "language_slider_position";
constexpr char style_slider_position[] = "style_slider_position";
// Strings: start directories of the import and export dialogs.
constexpr char parent_directory_of_last_imported_plugin[] = "parent_directory_of_last_imported_plugin";
constexpr char parent_directory_of_last_imported_addon[] = "parent_directory_of_last_imported_addon";
constexpr char parent_directory_of_last_exported_addon[] = "parent_directory_of_last_exported_addon";
// String: start directory of the update dialog.
constexpr char parent_directory_of_last_update[] = "parent_directory_of_last_update";
// Boolean, written as true: the first-start agreement was accepted.
constexpr char EULA_was_accepted[] = "EwA";

// Change records, one per revised source file: key = the file's absolute path without its leading
// "/", value = [revision time, language, style, addon time]. They are kept apart from the keys
// above, in a store of the same organisation named by this application name, because a tree of
// tens of thousands of files would otherwise make every settings access of the window slow.
constexpr char change_records_store[] = "Style Tarnel records";

}  // namespace settings_key

#endif
