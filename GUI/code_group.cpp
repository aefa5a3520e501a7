#include "GUI/code_group.h"

namespace GUI {

code_group::code_group(QWidget* parent, revise_menu_it_forcibly*, revise_menu_all_forcibly*)
    : QFrame(parent) {
    setObjectName("code_group");
    setAccessibleName(tr("Your code"));
    setMinimumHeight(120);
}

}  // namespace GUI
