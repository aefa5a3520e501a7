// The marker and invitation items a selector shows when it has nothing to offer: a single blank
// first item that every query reads as "nothing here", then one or two lines inviting an import.
#ifndef STYLE_TARNEL_GUI_INVITATION_H
#define STYLE_TARNEL_GUI_INVITATION_H

#include <QStringList>

class QListWidget;

namespace GUI {

// Fills the list with the blank marker and the invitation lines, none of them selectable.
void show_invitation_in(QListWidget* list, QStringList const& lines);

// True if the list is empty or its first item is the blank marker.
bool this_list_is_empty(QListWidget const* list);

}  // namespace GUI

#endif
