#include "GUI/new_style_name.h"

#include "GUI/messages.h"
#include "core/kernel.h"
#include "core/style_addon.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>
#include <QVBoxLayout>

namespace GUI {

class new_style_name::implementation {
public:
    implementation(new_style_name* dialog, QString const& title, std::function<QString(QString const&)> refusal_of)
        : refusal_of(std::move(refusal_of)), field(new QLineEdit(dialog)), refusal(new QLabel(dialog)) {
        dialog->setObjectName("new_style_name_dialog");
        dialog->setWindowTitle(title);
        dialog->setAccessibleName(title);
        dialog->setWindowModality(Qt::WindowModal);
        auto* label = new QLabel(QObject::tr(text::name_of_the_new_style), dialog);
        label->setBuddy(field);
        field->setObjectName("new_style_name");
        field->setAccessibleName(QObject::tr(text::name_of_the_new_style));
        field->setMinimumWidth(280);
        refusal->setObjectName("refusal");
        refusal->setWordWrap(true);
        refusal->hide();
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
        for (QAbstractButton* button : buttons->buttons())
            button->setAccessibleName(button->text().remove('&'));
        QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &new_style_name::accept);
        QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
        auto* layout = new QVBoxLayout(dialog);
        layout->addWidget(label);
        layout->addWidget(field);
        layout->addWidget(refusal);
        layout->addWidget(buttons);
    }

    std::function<QString(QString const&)> refusal_of;
    QLineEdit* field;
    QLabel* refusal;
};

new_style_name::new_style_name(QWidget* main_window, QString const& title,
                               std::function<QString(QString const&)> refusal_of)
    : QDialog(main_window), pimpl(std::make_unique<implementation>(this, title, std::move(refusal_of))) {}

new_style_name::~new_style_name() = default;

void new_style_name::ask() {
    pimpl->field->clear();
    pimpl->refusal->clear();
    pimpl->refusal->hide();
    open();
    pimpl->field->setFocus();
}

QLineEdit* new_style_name::field() const { return pimpl->field; }

void new_style_name::accept() {
    QString const name = pimpl->field->text().trimmed();
    QString const refusal = pimpl->refusal_of(name);
    if (!refusal.isEmpty()) {
        pimpl->refusal->setText(refusal);
        pimpl->refusal->show();
        QToolTip::showText(pimpl->field->mapToGlobal(QPoint(0, pimpl->field->height())), refusal, pimpl->field);
        return;
    }
    QDialog::accept();
    emit name_was_given(name);
}

QString refusal_of_bad_style_name(QString const& name) {
    return name.isEmpty() ? QObject::tr(text::style_name_cannot_be_empty)
                          : QObject::tr(text::style_name_prefix) + name + QObject::tr(text::style_name_must_be_in_English);
}

QString refusal_of_taken_style_name(QString const& name) {
    return QObject::tr(text::style_name_prefix) + name + QObject::tr(text::style_name_is_taken);
}

QString refusal_of_new_style_name(QString const& name, QString const& language) {
    if (name.isEmpty() || !this_is_a_style_name(name.toStdString()))
        return refusal_of_bad_style_name(name);
    auto const styles = kernel().supported_formatting_styles_for(language.toStdString());
    if (styles)
        for (style_description const& style : *styles)
            if (QString::fromStdString(style.style) == name)
                return refusal_of_taken_style_name(name);
    return QString();
}

}  // namespace GUI
