#include "GUI/structure_panes.h"

#include <QLabel>
#include <QVBoxLayout>

namespace GUI {

select_language_structure::select_language_structure(QWidget* parent) : QFrame(parent) {
    setObjectName("structures");
    setAccessibleName(tr("Structure"));
    setMinimumWidth(150);
    setMaximumWidth(220);
    auto* caption = new QLabel(tr("Structure"), this);
    caption->setStyleSheet("QLabel { font: bold; }");
    caption->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addStretch();
}

void select_language_structure::set_this_language_structure(QString const&) {}
void select_language_structure::restore_state_of_slider() {}
void select_language_structure::show() { setEnabled(true); }
void select_language_structure::show_first() { setEnabled(true); }
void select_language_structure::disable_with_cleanup() { setEnabled(false); }
void select_language_structure::obtain_language_structure(QString&) {}

view_n_edit_language_structure::view_n_edit_language_structure(QWidget* parent) : QFrame(parent) {
    setObjectName("structure_form");
    setAccessibleName(tr("Form of the structure"));
    setFrameShape(QFrame::StyledPanel);
    setMinimumWidth(200);
}

void view_n_edit_language_structure::show() { setEnabled(true); }
void view_n_edit_language_structure::disable_with_cleanup() { setEnabled(false); }

}  // namespace GUI
