// The application's main window.
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

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
