// The task kept for one tab in the settings: language, style, structure, extensions and the raw
// paths (each followed by a line feed), under the tab's name followed by "__last".
#ifndef STYLE_TARNEL_GUI_LAST_INFO_FOR_TAB_H
#define STYLE_TARNEL_GUI_LAST_INFO_FOR_TAB_H

#include <QString>
#include <QStringList>

namespace GUI {

class last_info_for_tab {
public:
    explicit last_info_for_tab(QString const& tab);

    void save(QString const& language, QString const& style, QString const& structure, QString const& extensions,
              QStringList const& raw_paths) const;
    void remove() const;
    bool was_saved() const;
    QString programming_language() const;
    QString formatting_style() const;
    QString language_structure() const;
    QString filename_extensions() const;
    QString raw_paths_to_revising_files() const;

private:
    QString value(int index) const;

    QString key;
};

}  // namespace GUI

#endif
