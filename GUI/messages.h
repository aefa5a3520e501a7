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

// Where "Online help" leads.
constexpr char user_guide_address[] = "https://style-tarnel.org/user-guide";

}  // namespace text
}  // namespace GUI

#endif
