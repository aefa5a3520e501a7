#include "GUI/list_of_file_extensions.h"

#include "GUI/messages.h"
#include "core/kernel.h"
#include "core/style_addon.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

namespace GUI {

namespace {

class filename_extensions_editor : public QLineEdit {
public:
    explicit filename_extensions_editor(QWidget* parent) : QLineEdit(parent) {
        setObjectName("extensions");
        setAccessibleName(QObject::tr(text::extensions_caption));
        setToolTip(QObject::tr(text::extensions_tooltip));
    }
};

}  // namespace

class list_of_file_extensions::implementation {
public:
    explicit implementation(list_of_file_extensions* owner) : editor(new filename_extensions_editor(owner)) {
        auto* label = new QLabel(QObject::tr(text::extensions_caption), owner);
        label->setBuddy(editor);
        auto* layout = new QHBoxLayout(owner);
        layout->setSpacing(14);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(label);
        layout->addWidget(editor);
    }

    void refuse(QString const& why) {
        QToolTip::showText(editor->mapToGlobal(QPoint(0, editor->height() / 2)), why, editor);
    }

    QLineEdit* editor;
    QString last_valid_text;
};

list_of_file_extensions::list_of_file_extensions(QWidget* parent)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this)) {
    connect(pimpl->editor, &QLineEdit::textEdited, this, &list_of_file_extensions::changed);
    setEnabled(false);
}

list_of_file_extensions::~list_of_file_extensions() = default;

QWidget* list_of_file_extensions::widget_ptr() { return this; }

void list_of_file_extensions::enable_n_show() {
    enable();
    QString language;
    emit obtain_programming_language(language);
    QStringList extensions;
    for (std::string const& extension : kernel().filename_extensions_for(language.toStdString()))
        extensions << QString::fromStdString(extension);
    set_this_filename_extensions(extensions.join(' '));
}

void list_of_file_extensions::enable() { setEnabled(true); }

void list_of_file_extensions::disable() { setEnabled(false); }

// Every edit by the user, kept or refused, keeps the paths in line with what the field then holds.
// A value set by the program (a style, a task) leaves the paths as they are.
void list_of_file_extensions::changed(QString const& text) {
    if (text.isEmpty()) {
        pimpl->editor->setText(pimpl->last_valid_text);
        pimpl->refuse(tr(text::at_least_one_extension_please));
    } else if (these_are_filename_extensions(text.toStdString())) {
        pimpl->last_valid_text = text;
        emit extension_have_been_added();
    } else {
        pimpl->editor->backspace();
        if (pimpl->editor->text() != pimpl->last_valid_text &&
            !these_are_filename_extensions(pimpl->editor->text().toStdString()))
            pimpl->editor->setText(pimpl->last_valid_text);
        pimpl->refuse(text.contains('.') ? tr(text::without_dot_please) : tr(text::in_English_please));
    }
    emit check_list(pimpl->editor->text());
}

void list_of_file_extensions::obtain_filename_extensions(QString& extensions) { extensions = pimpl->editor->text(); }

void list_of_file_extensions::set_this_filename_extensions(QString const& extensions) {
    pimpl->editor->setText(extensions);
    pimpl->last_valid_text = extensions;
    if (extensions.isEmpty()) {
        disable();
        emit all_extensions_have_been_deleted();
    }
}

}  // namespace GUI
