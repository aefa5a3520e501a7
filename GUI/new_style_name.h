// The dialog that asks for the name of a style about to be made: it closes only on a name that
// the check passes, and says at the field why it refuses one.
#ifndef STYLE_TARNEL_GUI_NEW_STYLE_NAME_H
#define STYLE_TARNEL_GUI_NEW_STYLE_NAME_H

#include <QDialog>

#include <functional>
#include <memory>

class QLineEdit;

namespace GUI {

class new_style_name : public QDialog {
    Q_OBJECT
public:
    // `refusal_of` gives why a name is refused, or nothing for a name it takes.
    new_style_name(QWidget* main_window, std::function<QString(QString const&)> refusal_of);
    ~new_style_name() override;

    // Opened window-modal, with an empty field.
    void ask();
    QLineEdit* field() const;

signals:
    void name_was_given(QString const& name);

public slots:
    void accept() override;

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
