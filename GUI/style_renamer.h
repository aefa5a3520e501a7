// Renaming a style in place inside its list: the one-line editor and the list's item delegate that
// creates it and wires it to the style selector.
#ifndef STYLE_TARNEL_GUI_STYLE_RENAMER_H
#define STYLE_TARNEL_GUI_STYLE_RENAMER_H

#include <QLineEdit>
#include <QStyledItemDelegate>

namespace GUI {

class select_formatting_style;

class style_renamer : public QLineEdit {
    Q_OBJECT
public:
    explicit style_renamer(QWidget* parent);

signals:
    // The editor lost the keyboard: the edit is to be dropped.
    void escaped();

protected:
    void focusOutEvent(QFocusEvent* event) override;
};

class EditorDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    EditorDelegate(select_formatting_style* selector, QObject* parent);

    QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                          QModelIndex const& index) const override;
    void setEditorData(QWidget* editor, QModelIndex const& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const override;

private:
    select_formatting_style* selector;
};

}  // namespace GUI

#endif
