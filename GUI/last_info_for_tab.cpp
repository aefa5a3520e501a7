#include "GUI/last_info_for_tab.h"

#include "core/settings_keys.h"

#include <QSettings>

namespace GUI {

last_info_for_tab::last_info_for_tab(QString const& tab) : key(settings_key::last_info_for_tab(tab)) {}

void last_info_for_tab::save(QString const& language, QString const& style, QString const& structure,
                             QString const& extensions, QStringList const& raw_paths) const {
    QString paths;
    for (QString const& path : raw_paths)
        paths += path + "\n";
    QSettings().setValue(key, QStringList{language, style, structure, extensions, paths});
}

void last_info_for_tab::remove() const { QSettings().remove(key); }

bool last_info_for_tab::was_saved() const { return QSettings().value(key).isValid(); }

QString last_info_for_tab::value(int index) const { return QSettings().value(key).toStringList().value(index); }

QString last_info_for_tab::programming_language() const { return value(0); }

QString last_info_for_tab::formatting_style() const { return value(1); }

QString last_info_for_tab::language_structure() const { return value(2); }

QString last_info_for_tab::filename_extensions() const { return value(3); }

QString last_info_for_tab::raw_paths_to_revising_files() const { return value(4); }

}  // namespace GUI
