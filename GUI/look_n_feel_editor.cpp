#include "GUI/look_n_feel_editor.h"

#include "GUI/app_menu_actions.h"
#include "GUI/menu_actions.h"
#include "core/settings_keys.h"

#include <QAction>
#include <QKeyEvent>
#include <QSettings>
#include <QTextOption>

namespace GUI {

class look_n_feel_editor::implementation {
public:
    int size = 16;
    lnf_menu_undo* undo;
    lnf_menu_redo* redo;
    lnf_menu_copy* copy;
    lnf_menu_increase_font* increase_font;
    lnf_menu_decrease_font* decrease_font;
    lnf_menu_non_print* non_print;
};

look_n_feel_editor::look_n_feel_editor(QWidget* parent, lnf_menu_about_this_structure*, lnf_menu_undo* undo,
                                       lnf_menu_redo* redo, lnf_menu_copy* copy, lnf_menu_select_all* select_all,
                                       lnf_menu_increase_font* increase_font, lnf_menu_decrease_font* decrease_font,
                                       lnf_menu_non_print* non_print)
    : QTextEdit(parent), pimpl(std::make_unique<implementation>()) {
    setObjectName("form_editor");
    setAcceptRichText(false);
    setLineWrapMode(QTextEdit::NoWrap);
    setContextMenuPolicy(Qt::NoContextMenu);
    setTabChangesFocus(false);
    pimpl->undo = undo;
    pimpl->redo = redo;
    pimpl->copy = copy;
    pimpl->increase_font = increase_font;
    pimpl->decrease_font = decrease_font;
    pimpl->non_print = non_print;
    connect(undo->widget_ptr(), &QAction::triggered, this, &QTextEdit::undo);
    connect(redo->widget_ptr(), &QAction::triggered, this, &QTextEdit::redo);
    connect(copy->widget_ptr(), &QAction::triggered, this, &QTextEdit::copy);
    connect(select_all->widget_ptr(), &QAction::triggered, this, &QTextEdit::selectAll);
    connect(increase_font->widget_ptr(), &QAction::triggered, this, &look_n_feel_editor::increase_font_size);
    connect(decrease_font->widget_ptr(), &QAction::triggered, this, &look_n_feel_editor::decrease_font_size);
    connect(non_print->widget_ptr(), &QAction::toggled, this, &look_n_feel_editor::show_non_print);
    connect(this, &QTextEdit::undoAvailable, this, &look_n_feel_editor::check_is_undo_available);
    connect(this, &QTextEdit::redoAvailable, this, &look_n_feel_editor::check_is_redo_available);
    connect(this, &QTextEdit::copyAvailable, this, &look_n_feel_editor::check_is_copy_available);
    undo->disable();
    redo->disable();
    copy->disable();
    QSettings const settings;
    QVariant const non_print_flag = settings.value(settings_key::non_print_flag);
    if (non_print_flag.isValid()) {
        non_print->widget_ptr()->setChecked(non_print_flag.toBool());
        show_non_print(non_print_flag.toBool());
    }
    QVariant const size = settings.value(settings_key::size_of_font_in_pt);
    if (size.isValid())
        pimpl->size = size.toInt();
    // Whoever enables the font entries (the window does, with the rest of the menu), the one that
    // would pass a bound stays disabled.
    connect(increase_font->widget_ptr(), &QAction::changed, this, [this] {
        if (pimpl->size >= largest_font_size && pimpl->increase_font->widget_ptr()->isEnabled())
            pimpl->increase_font->disable();
    });
    connect(decrease_font->widget_ptr(), &QAction::changed, this, [this] {
        if (pimpl->size <= smallest_font_size && pimpl->decrease_font->widget_ptr()->isEnabled())
            pimpl->decrease_font->disable();
    });
}

look_n_feel_editor::~look_n_feel_editor() = default;

int look_n_feel_editor::font_size() const { return pimpl->size; }

void look_n_feel_editor::print(QString const& form) {
    QFont font("Courier");
    font.setStyleHint(QFont::Monospace);
    font.setPointSize(pimpl->size);
    setCurrentFont(font);
    document()->setDefaultFont(font);
    setPlainText(form);
}

void look_n_feel_editor::apply_font_size(int size) {
    QString const text = toPlainText();
    clear();
    pimpl->size = size;
    QFont font = document()->defaultFont();
    font.setPointSize(size);
    setCurrentFont(font);
    document()->setDefaultFont(font);
    setPlainText(text);
    QSettings().setValue(settings_key::size_of_font_in_pt, size);
}

void look_n_feel_editor::increase_font_size() {
    if (pimpl->size + 1 > largest_font_size)
        return;
    pimpl->decrease_font->enable();
    apply_font_size(pimpl->size + 1);
    if (pimpl->size >= largest_font_size)
        pimpl->increase_font->disable();
}

void look_n_feel_editor::decrease_font_size() {
    if (pimpl->size - 1 < smallest_font_size)
        return;
    pimpl->increase_font->enable();
    apply_font_size(pimpl->size - 1);
    if (pimpl->size <= smallest_font_size)
        pimpl->decrease_font->disable();
}

void look_n_feel_editor::check_is_copy_available(bool yes) { yes ? pimpl->copy->enable() : pimpl->copy->disable(); }

void look_n_feel_editor::check_is_undo_available(bool yes) { yes ? pimpl->undo->enable() : pimpl->undo->disable(); }

void look_n_feel_editor::check_is_redo_available(bool yes) { yes ? pimpl->redo->enable() : pimpl->redo->disable(); }

void look_n_feel_editor::show_non_print(bool on) {
    QTextOption option = document()->defaultTextOption();
    option.setFlags(on ? option.flags() | QTextOption::ShowTabsAndSpaces
                       : option.flags() & ~QTextOption::ShowTabsAndSpaces);
    QSettings().setValue(settings_key::non_print_flag, on);
    document()->setDefaultTextOption(option);
}

void look_n_feel_editor::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() == Qt::ControlModifier) {
        if (event->key() == Qt::Key_Equal) {
            increase_font_size();
            return;
        }
        if (event->key() == Qt::Key_Minus) {
            decrease_font_size();
            return;
        }
    } else {
        emit key_was_pressed();
    }
    QTextEdit::keyPressEvent(event);
}

void look_n_feel_editor::keyReleaseEvent(QKeyEvent* event) {
    emit form_was_changed();
    QTextEdit::keyReleaseEvent(event);
}

void look_n_feel_editor::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit left_button_was_clicked();
    QTextEdit::mouseReleaseEvent(event);
}

// Pasted and dropped text is not taken: every change goes through typed keys and their check.
void look_n_feel_editor::insertFromMimeData(QMimeData const*) {}

}  // namespace GUI
