// The menu entries that do their own work: the structure's manual page, the online user guide,
// the About box and the update of the program.
#ifndef STYLE_TARNEL_GUI_APP_MENU_ACTIONS_H
#define STYLE_TARNEL_GUI_APP_MENU_ACTIONS_H

#include "GUI/one_action.h"

#include <memory>

namespace GUI {

class lnf_menu_about_this_structure : public one_action {
    Q_OBJECT
public:
    explicit lnf_menu_about_this_structure(QWidget* parent);
};

class info_menu_online : public one_action {
    Q_OBJECT
public:
    explicit info_menu_online(QWidget* parent);
public slots:
    void open_user_guide_online();
};

class info_menu_about : public one_action {
    Q_OBJECT
public:
    explicit info_menu_about(QWidget* parent);
signals:
    void obtain_geometry_of_main_window(QRect& geometry);
public slots:
    void display_info();
};

class app_menu_update : public one_action {
    Q_OBJECT
public:
    app_menu_update(QWidget* parent, QWidget* main_window);
    ~app_menu_update() override;
signals:
    void obtain_geometry_of_main_window(QRect& geometry);
public slots:
    void get_update();
    void get_update_factually(QString const& path);
    void rejected();

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

// The agreement shown on the program's first start: accepting it is remembered, declining quits.
class agreement_dialog : public QWidget {
    Q_OBJECT
public:
    explicit agreement_dialog(QWidget* main_window);
    void show_over_main_window();
signals:
    void obtain_geometry_of_main_window(QRect& geometry);

private:
    QWidget* main_window;
};

}  // namespace GUI

#endif
