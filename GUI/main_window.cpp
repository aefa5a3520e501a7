#include "GUI/main_window.h"

#include "core/product.h"

namespace GUI {

class main_window::implementation {};

main_window::main_window(QWidget* parent)
    : QMainWindow(parent), pimpl(std::make_unique<implementation>()) {
    setWindowTitle(product::title);
}

main_window::~main_window() = default;

QWidget* main_window::widget_ptr() { return this; }

}  // namespace GUI
