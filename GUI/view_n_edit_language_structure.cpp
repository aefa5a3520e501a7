#include "GUI/view_n_edit_language_structure.h"

#include "GUI/app_menu_actions.h"
#include "GUI/critical_alert.h"
#include "GUI/editor_highlighter.h"
#include "GUI/look_n_feel_editor.h"
#include "GUI/messages.h"
#include "core/kernel.h"
#include "core/product.h"
#include "match_in_full.h"

#include <QAction>
#include <QDesktopServices>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolTip>
#include <QUrl>
#include <QVBoxLayout>

#include <thread>

namespace GUI {

namespace {

// Forms compared for the check: a final line break more or less is no difference to a reader.
QString without_final_line_breaks(QString text) {
    while (text.endsWith('\n') || text.endsWith('\r'))
        text.chop(1);
    return text;
}

}  // namespace

class view_n_edit_language_structure::implementation {
public:
    implementation(view_n_edit_language_structure* owner, style_group_actions const& actions)
        : editor(new look_n_feel_editor(owner, actions.about_this_structure, actions.undo, actions.redo,
                                        actions.copy, actions.select_all, actions.increase_font,
                                        actions.decrease_font, actions.non_print)),
          highlighter(new editor_highlighter(editor->document())),
          comes_back(new QLabel(owner)), revised(new QPlainTextEdit(owner)), check_later(new QTimer(owner)) {
        auto* label = new QLabel(QObject::tr(text::look_and_feel_caption), owner);
        label->setStyleSheet("QLabel { font: bold; }");
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        label->setBuddy(editor);
        editor->setAccessibleName(QObject::tr(text::look_and_feel_caption));
        editor->setMinimumWidth(180);
        editor->setTabStopDistance(40);
        comes_back->setObjectName("comes_back");
        comes_back->setWordWrap(true);
        comes_back->setAccessibleName(QObject::tr(text::comes_back_otherwise));
        revised->setObjectName("revised_form");
        revised->setAccessibleName(QObject::tr(text::comes_back_otherwise));
        revised->setReadOnly(true);
        revised->setLineWrapMode(QPlainTextEdit::NoWrap);
        revised->setContextMenuPolicy(Qt::NoContextMenu);
        revised->setMaximumHeight(140);
        revised->hide();
        check_later->setSingleShot(true);
        check_later->setInterval(250);
        auto* layout = new QVBoxLayout(owner);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(label);
        layout->addWidget(editor, 1);
        layout->addWidget(comes_back);
        layout->addWidget(revised);
    }

    // The plugin revises the form on a thread of its own (it reads the whole addon first, which
    // takes a noticeable time with a large style); one check at a time, the latest form next.
    void start_check(view_n_edit_language_structure* owner) {
        if (checking) {
            check_again = true;
            return;
        }
        checking = true;
        comes_back->setText(QObject::tr(text::checking_the_form));
        checker = std::thread([owner, language = language.toStdString(), style = style.toStdString(),
                               form = last_valid_form] {
            boost::optional<std::string> const revised = kernel().text_as_revised_under(language, style, form.toStdString());
            QMetaObject::invokeMethod(owner, [owner, form, revised] { owner->form_came_back(form, revised); },
                                      Qt::QueuedConnection);
        });
    }

    ~implementation() {
        if (checker.joinable())
            checker.join();
    }

    void clear_check() {
        comes_back->clear();
        revised->clear();
        revised->hide();
    }

    look_n_feel_editor* editor;
    editor_highlighter* highlighter;
    QLabel* comes_back;
    QPlainTextEdit* revised;
    QTimer* check_later;
    QString language, style, structure;
    bool structure_is_known = false;
    QString last_valid_form;
    int cursor_position = 0;
    std::thread checker;
    bool checking = false;
    bool check_again = false;
};

view_n_edit_language_structure::view_n_edit_language_structure(QWidget* parent, style_group_actions const& actions)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, actions)) {
    setObjectName("structure_form");
    setAccessibleName(tr(text::look_and_feel_caption));
    look_n_feel_editor* const E = pimpl->editor;
    connect(E, &look_n_feel_editor::form_was_changed, this, &view_n_edit_language_structure::form_was_changed);
    connect(E, &look_n_feel_editor::key_was_pressed, this, &view_n_edit_language_structure::key_was_pressed);
    connect(E, &look_n_feel_editor::left_button_was_clicked, this,
            &view_n_edit_language_structure::left_button_was_clicked);
    connect(pimpl->highlighter, &editor_highlighter::obtain_programming_language, this,
            &view_n_edit_language_structure::obtain_programming_language);
    connect(actions.about_this_structure->widget_ptr(), &QAction::triggered, this,
            &view_n_edit_language_structure::go_to_URL);
    connect(pimpl->check_later, &QTimer::timeout, this, &view_n_edit_language_structure::check_how_the_form_comes_back);
    setEnabled(false);
}

view_n_edit_language_structure::~view_n_edit_language_structure() = default;

QWidget* view_n_edit_language_structure::widget_ptr() { return this; }

look_n_feel_editor* view_n_edit_language_structure::editor() const { return pimpl->editor; }

void view_n_edit_language_structure::enable() { setEnabled(true); }

void view_n_edit_language_structure::disable() { setEnabled(false); }

void view_n_edit_language_structure::show() {
    enable();
    implementation& p = *pimpl;
    p.language.clear();
    p.style.clear();
    p.structure.clear();
    emit obtain_programming_language(p.language);
    emit obtain_formatting_style(p.style);
    emit obtain_language_structure(p.structure);
    kernel const k;
    std::map<std::string, std::string> const structures = k.info_about_structures_of(p.language.toStdString());
    auto const found = structures.find(p.structure.toStdString());
    p.structure_is_known = found != structures.end();
    if (!p.structure_is_known) {
        disable_with_cleanup();
        return;
    }
    p.highlighter->learn_words();
    QString const form = QString::fromStdString(k.language_structure_form_based_on(
        p.language.toStdString(), p.style.toStdString(), p.structure.toStdString()));
    p.editor->print(form);
    p.last_valid_form = form;
    p.cursor_position = 0;
    p.clear_check();
    p.check_later->start();
}

void view_n_edit_language_structure::disable_with_cleanup() {
    pimpl->check_later->stop();
    pimpl->editor->clear();
    pimpl->clear_check();
    pimpl->structure_is_known = false;
    disable();
}

// Every key release: the structure's expression is asked for again (the plugin's description
// comes from the cache, no plugin is loaded), the whole text matched against it, and a matching
// text that differs from the last one written into the style.
void view_n_edit_language_structure::form_was_changed() {
    implementation& p = *pimpl;
    if (!p.structure_is_known)
        return;
    QString language, style, structure;
    emit obtain_programming_language(language);
    emit obtain_formatting_style(style);
    emit obtain_language_structure(structure);
    std::map<std::string, std::string> const structures = kernel().info_about_structures_of(language.toStdString());
    auto const found = structures.find(structure.toStdString());
    if (found == structures.end())
        return;
    QString const form = p.editor->toPlainText();
    if (style_tarnel::match_in_full(found->second).of(form.toStdString())) {
        if (form == p.last_valid_form)
            return;  // A key that moved the cursor only: nothing to write.
        if (!kernel().update_language_structure_form(language.toStdString(), style.toStdString(),
                                                     structure.toStdString(), form.toStdString())) {
            put_back_the_form_saved_last();
            QString const addon = QString::fromStdString(
                kernel().full_path_to_style_addon_by(style.toStdString(), language.toStdString()));
            show_critical_alert(tr(text::form_not_saved),
                                tr(text::please_make_sure_this_file) + addon + tr(text::exists_and_you_can_write_in_it),
                                this);
            return;
        }
        p.last_valid_form = form;
        p.check_later->start();
        emit form_was_saved();
        return;
    }
    put_back_the_form_saved_last();
    QToolTip::showText(p.editor->mapToGlobal(p.editor->cursorRect().bottomRight()), tr(text::not_supported),
                       p.editor);
}

// The form as the style holds it, with the cursor where the last key press or click left it.
void view_n_edit_language_structure::put_back_the_form_saved_last() {
    implementation& p = *pimpl;
    p.editor->setPlainText(p.last_valid_form);
    QTextCursor cursor = p.editor->textCursor();
    cursor.setPosition(std::min(p.cursor_position, p.last_valid_form.size()));
    p.editor->setTextCursor(cursor);
}

void view_n_edit_language_structure::check_how_the_form_comes_back() {
    implementation& p = *pimpl;
    if (!p.structure_is_known || p.last_valid_form.isEmpty()) {
        p.clear_check();
        return;
    }
    p.start_check(this);
}

void view_n_edit_language_structure::form_came_back(QString const& form, boost::optional<std::string> const& revised) {
    implementation& p = *pimpl;
    p.checker.join();
    p.checking = false;
    if (p.check_again) {
        p.check_again = false;
        check_how_the_form_comes_back();
        return;
    }
    if (form != p.last_valid_form || !p.structure_is_known)
        return;  // Another form is shown by now; its own check follows.
    if (!revised) {
        p.comes_back->setText(tr(text::plugin_refuses_the_form));
        p.revised->hide();
        return;
    }
    QString const text = QString::fromStdString(*revised);
    if (without_final_line_breaks(text) == without_final_line_breaks(p.last_valid_form)) {
        p.comes_back->setText(tr(text::comes_back_as_written));
        p.revised->hide();
        return;
    }
    p.comes_back->setText(tr(text::comes_back_otherwise));
    p.revised->setFont(p.editor->document()->defaultFont());
    p.revised->setPlainText(text);
    p.revised->QWidget::show();
}

QString view_n_edit_language_structure::manual_address_of(QString const& language, QString const& structure) {
    return QString(product::web_site) + "/direct-definition-manual/" + language.toLower() + "/" +
           structure.toLower().replace(' ', '-');
}

void view_n_edit_language_structure::go_to_URL() {
    QString language, structure;
    emit obtain_programming_language(language);
    emit obtain_language_structure(structure);
    QDesktopServices::openUrl(QUrl(manual_address_of(language, structure)));
}

void view_n_edit_language_structure::key_was_pressed() {
    pimpl->cursor_position = pimpl->editor->textCursor().position();
}

void view_n_edit_language_structure::left_button_was_clicked() {
    pimpl->cursor_position = pimpl->editor->textCursor().position();
}

}  // namespace GUI
