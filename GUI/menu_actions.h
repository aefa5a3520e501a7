// The menu entries whose QAction is all they are: the groups that use them connect them.
#ifndef STYLE_TARNEL_GUI_MENU_ACTIONS_H
#define STYLE_TARNEL_GUI_MENU_ACTIONS_H

#include "GUI/one_action.h"

namespace GUI {

class tab_menu_new : public one_action {
    Q_OBJECT
public:
    explicit tab_menu_new(QWidget* parent);
};

class tab_menu_close : public one_action {
    Q_OBJECT
public:
    explicit tab_menu_close(QWidget* parent);
};

class tab_menu_rename : public one_action {
    Q_OBJECT
public:
    explicit tab_menu_rename(QWidget* parent);
};

class language_menu_import : public one_action {
    Q_OBJECT
public:
    explicit language_menu_import(QWidget* parent);
};

class language_menu_delete : public one_action {
    Q_OBJECT
public:
    explicit language_menu_delete(QWidget* parent);
};

class style_menu_import : public one_action {
    Q_OBJECT
public:
    explicit style_menu_import(QWidget* parent);
};

class style_menu_export : public one_action {
    Q_OBJECT
public:
    explicit style_menu_export(QWidget* parent);
};

class style_menu_delete : public one_action {
    Q_OBJECT
public:
    explicit style_menu_delete(QWidget* parent);
};

class style_menu_rename : public one_action {
    Q_OBJECT
public:
    explicit style_menu_rename(QWidget* parent);
};

class style_menu_learn : public one_action {
    Q_OBJECT
public:
    explicit style_menu_learn(QWidget* parent);
};

class style_menu_export_configuration : public one_action {
    Q_OBJECT
public:
    explicit style_menu_export_configuration(QWidget* parent);
};

class lnf_menu_undo : public one_action {
    Q_OBJECT
public:
    explicit lnf_menu_undo(QWidget* parent);
};

class lnf_menu_redo : public one_action {
    Q_OBJECT
public:
    explicit lnf_menu_redo(QWidget* parent);
};

class lnf_menu_copy : public one_action {
    Q_OBJECT
public:
    explicit lnf_menu_copy(QWidget* parent);
};

class lnf_menu_select_all : public one_action {
    Q_OBJECT
public:
    explicit lnf_menu_select_all(QWidget* parent);
};

class lnf_menu_increase_font : public one_action {
    Q_OBJECT
public:
    explicit lnf_menu_increase_font(QWidget* parent);
};

class lnf_menu_decrease_font : public one_action {
    Q_OBJECT
public:
    explicit lnf_menu_decrease_font(QWidget* parent);
};

class lnf_menu_non_print : public one_action {
    Q_OBJECT
public:
    explicit lnf_menu_non_print(QWidget* parent);
};

class revise_menu_all : public one_action {
    Q_OBJECT
public:
    explicit revise_menu_all(QWidget* parent);
};

class revise_menu_changed_lines : public one_action {
    Q_OBJECT
public:
    explicit revise_menu_changed_lines(QWidget* parent);
};

class revise_menu_it_forcibly : public one_action {
    Q_OBJECT
public:
    explicit revise_menu_it_forcibly(QWidget* parent);
};

class revise_menu_all_forcibly : public one_action {
    Q_OBJECT
public:
    explicit revise_menu_all_forcibly(QWidget* parent);
};

class dock_menu_go : public one_action {
    Q_OBJECT
public:
    explicit dock_menu_go(QWidget* parent);
};

class dock_menu_view_report : public one_action {
    Q_OBJECT
public:
    explicit dock_menu_view_report(QWidget* parent);
};

}  // namespace GUI

#endif
