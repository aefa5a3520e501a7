#include "GUI/invitation.h"

#include "GUI/messages.h"

#include <QListWidget>

namespace GUI {

namespace {

void add_marker_item(QListWidget* list, QString const& text) {
    auto* item = new QListWidgetItem(text, list);
    item->setFlags(Qt::ItemIsEnabled);
}

}  // namespace

void show_invitation_in(QListWidget* list, QStringList const& lines) {
    add_marker_item(list, text::blank_marker);
    for (QString const& line : lines) {
        add_marker_item(list, line);
        QListWidgetItem* invitation = list->item(list->count() - 1);
        invitation->setTextAlignment(Qt::AlignCenter);
        invitation->setForeground(list->palette().color(QPalette::Disabled, QPalette::Text));
        QFont font = invitation->font();
        font.setItalic(true);
        invitation->setFont(font);
    }
}

bool this_list_is_empty(QListWidget const* list) {
    return list->count() == 0 || list->item(0)->text() == text::blank_marker;
}

}  // namespace GUI
