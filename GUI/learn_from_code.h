// "Learn from code...": asks for the name of the new style, learns it from the files of the shown
// task (its language, extensions and paths) on a worker thread behind a window-modal progress
// dialog with Stop, and has the new style selected at the end, or says why there is none.
#ifndef STYLE_TARNEL_GUI_LEARN_FROM_CODE_H
#define STYLE_TARNEL_GUI_LEARN_FROM_CODE_H

#include <QWidget>

#include <memory>

struct style_learning_outcome;

namespace GUI {

class style_menu_learn;
class new_style_name;

class learn_from_code : public QWidget {
    Q_OBJECT
public:
    // `main_window` is the window over which the dialogs are modal.
    learn_from_code(QWidget* parent, QWidget* main_window, style_menu_learn* learn);
    ~learn_from_code() override;

    // Why a name cannot be the new style's (a rename's rules), or nothing.
    QString refusal_of(QString const& name);
    new_style_name* name_dialog() const;
    QWidget* progress_dialog() const;

signals:
    void obtain_programming_language(QString& language);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void style_was_learned(QString const& style);
    // Every end, learned or not: the message shown to the user, empty for a learned style.
    void learning_is_finished(QString const& message);

public slots:
    void ask_for_a_name();
    // Learns the style `name` from the shown task, unless the name is refused.
    void learn_as(QString const& name);
    void stop_learning();
    void there_are_paths();
    void no_paths_anymore();

private:
    void learning_ended(QString const& style, QString const& language, style_learning_outcome const& outcome);

    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
