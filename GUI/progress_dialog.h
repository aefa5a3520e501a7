// The window-modal progress dialog of a long run on a worker thread (a revision, a learning): a
// caption, a line of status, a bar, and Stop, which closing the dialog also means.
#ifndef STYLE_TARNEL_GUI_PROGRESS_DIALOG_H
#define STYLE_TARNEL_GUI_PROGRESS_DIALOG_H

#include <QDialog>

#include <memory>

namespace GUI {

class progress_dialog : public QDialog {
    Q_OBJECT
public:
    // Modal over `main_window`; `caption` is its title and its first line.
    progress_dialog(QWidget* main_window, QString const& caption);
    ~progress_dialog() override;

    // Shown afresh: no status, a bar that moves without a known end.
    void start();

signals:
    void stop_requested();

public slots:
    void set_status(QString const& status);
    void set_maximum(int maximum);
    void set_value(int value);

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
