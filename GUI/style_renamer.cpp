#include "GUI/style_renamer.h"

#include "GUI/select_formatting_style.h"

namespace GUI {

style_renamer::style_renamer(QWidget* parent) : QLineEdit(parent) {
    setObjectName("style_renamer");
    setAccessibleName(tr("New name of the style"));
}

void style_renamer::focusOutEvent(QFocusEvent* event) {
    emit escaped();
    QLineEdit::focusOutEvent(event);
}

EditorDelegate::EditorDelegate(select_formatting_style* selector, QObject* parent)
    : QStyledItemDelegate(parent), selector(selector) {}

QWidget* EditorDelegate::createEditor(QWidget* parent, QStyleOptionViewItem const&,
                                      QModelIndex const&) const {
    selector->store_renaming_style();
    auto* editor = new style_renamer(parent);
    selector->remember_current(editor);
    connect(editor, &QLineEdit::textEdited, selector, &select_formatting_style::check_renaming);
    connect(editor, &QLineEdit::returnPressed, selector, &select_formatting_style::renaming_finished);
    connect(editor, &style_renamer::escaped, selector, &select_formatting_style::renaming_finished_by_ESC);
    return editor;
}

void EditorDelegate::setEditorData(QWidget* editor, QModelIndex const& index) const {
    static_cast<QLineEdit*>(editor)->setText(index.data(Qt::EditRole).toString());
}

void EditorDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const {
    model->setData(index, static_cast<QLineEdit*>(editor)->text(), Qt::EditRole);
}

}  // namespace GUI
