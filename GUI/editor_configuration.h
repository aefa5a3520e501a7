// The shown style as the engine configuration that editors read: "Export as editor
// configuration..." writes it as .clang-format into a chosen directory, asking before it replaces
// one; and styles made of such files chosen in the style import dialog, each under a name asked
// of the user, for the shown language.
#ifndef STYLE_TARNEL_GUI_EDITOR_CONFIGURATION_H
#define STYLE_TARNEL_GUI_EDITOR_CONFIGURATION_H

#include <QStringList>
#include <QWidget>

#include <memory>

class QFileDialog;

namespace GUI {

class style_menu_export_configuration;
class new_style_name;

// Whether the file at `path` is named as an engine configuration that editors read.
bool is_editor_configuration(QString const& path);

class editor_configuration : public QWidget {
    Q_OBJECT
public:
    // `main_window` is the window over which the dialogs are modal.
    editor_configuration(QWidget* parent, QWidget* main_window, style_menu_export_configuration* export_action);
    ~editor_configuration() override;

    // The directory dialog of the export, once it was opened; the dialog that asks the name of a
    // style made of a configuration.
    QFileDialog* directory_dialog() const;
    new_style_name* name_dialog() const;

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void style_was_made(QString const& style);
    // Every end of an export or of the making of a style: what the user was told, empty for an
    // end with nothing to tell.
    void export_is_finished(QString const& message);
    void import_is_finished(QString const& message);

public slots:
    void choose_a_directory();
    // Writes the shown style's configuration as .clang-format into `directory`, after asking when
    // one is there.
    void export_into(QString const& directory);
    // Makes a style of each file in turn, asking each one's name.
    void import_configurations(QStringList const& paths);
    void make_style_named(QString const& name);
    void there_is_a_style();
    void there_is_no_style();

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
