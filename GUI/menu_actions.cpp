#include "GUI/menu_actions.h"

#include "GUI/messages.h"

namespace GUI {

tab_menu_new::tab_menu_new(QWidget* parent)
    : one_action(parent, {tr("New"), QKeySequence(QKeySequence::AddTab), true, false}) { name_as("tab_menu_new"); }

tab_menu_close::tab_menu_close(QWidget* parent)
    : one_action(parent, {tr("Close"), QKeySequence(QKeySequence::Close), true, false}) { name_as("tab_menu_close"); }

tab_menu_rename::tab_menu_rename(QWidget* parent)
    : one_action(parent, {tr("Rename"), QKeySequence(), true, false}) { name_as("tab_menu_rename"); }

language_menu_import::language_menu_import(QWidget* parent)
    : one_action(parent, {tr("Import..."), QKeySequence(), true, false}) { name_as("language_menu_import"); }

language_menu_delete::language_menu_delete(QWidget* parent)
    : one_action(parent, {tr("Delete"), QKeySequence(), true, false}) { name_as("language_menu_delete"); }

style_menu_import::style_menu_import(QWidget* parent)
    : one_action(parent, {tr("Import..."), QKeySequence(), true, false}) { name_as("style_menu_import"); }

style_menu_export::style_menu_export(QWidget* parent)
    : one_action(parent, {tr("Export..."), QKeySequence(), true, false}) { name_as("style_menu_export"); }

style_menu_delete::style_menu_delete(QWidget* parent)
    : one_action(parent, {tr("Delete"), QKeySequence(), true, false}) { name_as("style_menu_delete"); }

style_menu_rename::style_menu_rename(QWidget* parent)
    : one_action(parent, {tr("Rename"), QKeySequence(), true, false}) { name_as("style_menu_rename"); }

// Enabled while the task has paths to learn from.
style_menu_learn::style_menu_learn(QWidget* parent)
    : one_action(parent, {tr(text::learn_from_code), QKeySequence(), false, false}) { name_as("style_menu_learn"); }

style_menu_export_configuration::style_menu_export_configuration(QWidget* parent)
    : one_action(parent, {tr(text::export_as_editor_configuration), QKeySequence(), false, false,
                          tr(text::export_as_editor_configuration_tip)}) {
    name_as("style_menu_export_configuration");
}

lnf_menu_undo::lnf_menu_undo(QWidget* parent)
    : one_action(parent, {tr("Undo"), QKeySequence(QKeySequence::Undo), true, false}) { name_as("lnf_menu_undo"); }

lnf_menu_redo::lnf_menu_redo(QWidget* parent)
    : one_action(parent, {tr("Redo"), QKeySequence(QKeySequence::Redo), true, false}) { name_as("lnf_menu_redo"); }

lnf_menu_copy::lnf_menu_copy(QWidget* parent)
    : one_action(parent, {tr("Copy"), QKeySequence(QKeySequence::Copy), true, false}) { name_as("lnf_menu_copy"); }

lnf_menu_select_all::lnf_menu_select_all(QWidget* parent)
    : one_action(parent, {tr("Select all"), QKeySequence(QKeySequence::SelectAll), true, false}) { name_as("lnf_menu_select_all"); }

lnf_menu_increase_font::lnf_menu_increase_font(QWidget* parent)
    : one_action(parent, {tr("Increase font size"), QKeySequence(QKeySequence::ZoomIn), true, false}) { name_as("lnf_menu_increase_font"); }

lnf_menu_decrease_font::lnf_menu_decrease_font(QWidget* parent)
    : one_action(parent, {tr("Decrease font size"), QKeySequence(QKeySequence::ZoomOut), true, false}) { name_as("lnf_menu_decrease_font"); }

lnf_menu_non_print::lnf_menu_non_print(QWidget* parent)
    : one_action(parent, {tr("Show spaces/tabs"), QKeySequence(), true, true}) { name_as("lnf_menu_non_print"); }

revise_menu_all::revise_menu_all(QWidget* parent)
    : one_action(parent, {tr("Revise all paths"), QKeySequence("Ctrl+G"), false, false}) { name_as("revise_menu_all"); }

// Enabled with "Revise all paths": while the task has paths, extensions and a style.
revise_menu_changed_lines::revise_menu_changed_lines(QWidget* parent)
    : one_action(parent, {tr(text::revise_changed_lines), QKeySequence("Ctrl+Shift+G"), false, false,
                          tr(text::revise_changed_lines_tip)}) {
    name_as("revise_menu_changed_lines");
}

revise_menu_it_forcibly::revise_menu_it_forcibly(QWidget* parent)
    : one_action(parent, {tr("Revise this path forcibly"), QKeySequence(), true, false}) { name_as("revise_menu_it_forcibly"); }

revise_menu_all_forcibly::revise_menu_all_forcibly(QWidget* parent)
    : one_action(parent, {tr("Revise all paths forcibly"), QKeySequence(), true, false}) { name_as("revise_menu_all_forcibly"); }

dock_menu_go::dock_menu_go(QWidget* parent)
    : one_action(parent, {tr("Go!"), QKeySequence(), false, false}) { name_as("dock_menu_go"); }

dock_menu_view_report::dock_menu_view_report(QWidget* parent)
    : one_action(parent, {tr("View report"), QKeySequence(), false, false}) { name_as("dock_menu_view_report"); }

}  // namespace GUI
