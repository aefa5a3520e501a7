// The paths of a drag in progress that a list takes: kept when the drag enters, by the list's own
// rule, and handed over when they are dropped. A drag without such a path is refused at entry.
#ifndef STYLE_TARNEL_GUI_FILES_DROPPED_H
#define STYLE_TARNEL_GUI_FILES_DROPPED_H

#include <QStringList>

#include <functional>

class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QFileInfo;

namespace GUI {

class files_dropped {
public:
    // Keeps the drag's local paths that `takes` accepts; accepts the drag when there is one.
    void enter(QDragEnterEvent* event, std::function<bool(QFileInfo const& file)> const& takes);
    void move(QDragMoveEvent* event) const;
    // The kept paths, the drop accepted; empty, the drop refused, when none were kept.
    QStringList drop(QDropEvent* event);

private:
    QStringList valid_paths;
};

}  // namespace GUI

#endif
