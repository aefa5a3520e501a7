// The dialog that asks for the name of a style about to be made (learned from code, or made of an
// editor configuration): it closes only on a name that the check passes, and says at the field why
// it refuses one.
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
    // `refusal_of` gives why a name is refused, or nothing for a name it takes; `title` says what
    // the new style is made of.
    new_style_name(QWidget* main_window, QString const& title, std::function<QString(QString const&)> refusal_of);
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

// Why `name` cannot be a new style of `language` (a rename's rules, in the command line's words:
// not empty, in English, not taken), or nothing.
QString refusal_of_new_style_name(QString const& name, QString const& language);
QString refusal_of_bad_style_name(QString const& name);
QString refusal_of_taken_style_name(QString const& name);

}  // namespace GUI

#endif
