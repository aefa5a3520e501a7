#include "GUI/revise_group.h"

namespace GUI {

revise_group::revise_group(QWidget* parent, revise_menu_all*) : QFrame(parent) {
    setObjectName("revise_group");
    setAccessibleName(tr("Revision"));
    setMinimumHeight(40);
}

}  // namespace GUI
