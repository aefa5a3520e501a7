// The application's main window: the menus, the task tabs and the three groups, and the one map
// of who talks to whom among them.
#ifndef STYLE_TARNEL_GUI_MAIN_WINDOW_H
#define STYLE_TARNEL_GUI_MAIN_WINDOW_H

#include <QMainWindow>

#include <memory>

namespace GUI {

class main_window : public QMainWindow {
    Q_OBJECT
public:
    explicit main_window(QWidget* parent = nullptr);
    ~main_window() override;

    QWidget* widget_ptr();

public slots:
    void obtain_geometry_of_main_window(QRect& geometry);
    void obtain_ptr_to_main_window(QWidget*& window);
    void disable_style_menu();
    void disable_lnf_menu();
    void enable_lnf_menu();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void build_menus();
    void connect_groups();

    class implementation;
    std::unique_ptr<implementation> pimpl;
    bool first_show = true;
};

}  // namespace GUI

#endif
