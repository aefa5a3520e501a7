#include "GUI/select_language_structure.h"

#include "GUI/messages.h"
#include "core/kernel.h"
#include "core/settings_keys.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QSettings>
#include <QVBoxLayout>

namespace GUI {

class select_language_structure::implementation {
public:
    explicit implementation(select_language_structure* owner) : list(new QListWidget(owner)) {
        auto* label = new QLabel(QObject::tr(text::language_structure_caption), owner);
        label->setStyleSheet("QLabel { font: bold; }");
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        label->setBuddy(list);
        list->setObjectName("structures");
        list->setAccessibleName(QObject::tr(text::language_structure_caption));
        list->setMinimumWidth(180);
        list->setMaximumWidth(310);
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list->setContextMenuPolicy(Qt::NoContextMenu);
        list->verticalScrollBar()->setTracking(true);
        auto* layout = new QVBoxLayout(owner);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(label);
        layout->addWidget(list);
    }

    // Lists the structures the style gives a form; false when there is no language or style.
    bool just_show(select_language_structure* owner) {
        QString language, style;
        emit owner->obtain_programming_language(language);
        if (!language.isEmpty())
            emit owner->obtain_formatting_style(style);
        QSignalBlocker const quiet(list);
        list->clear();
        if (language.isEmpty() || style.isEmpty()) {
            owner->disable();
            return false;
        }
        for (std::string const& structure :
             kernel().structures_with_a_form_in(language.toStdString(), style.toStdString()))
            list->addItem(QObject::tr(structure.c_str()));
        owner->setEnabled(list->count() > 0);
        return true;
    }

    // Selects the named structure, or the first; with none listed, the form pane still hears of
    // it, so that it does not go on showing (and writing) a form of the style before.
    void select(select_language_structure* owner, QString const& name) {
        if (list->count() == 0) {
            emit owner->language_structure_was_selected();
            return;
        }
        QList<QListWidgetItem*> const found = list->findItems(name, Qt::MatchExactly);
        if (!found.isEmpty())
            list->setCurrentItem(found.first());
        else
            list->setCurrentRow(0);
    }

    QListWidget* list;
    QString last_structure;
};

select_language_structure::select_language_structure(QWidget* parent)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this)) {
    setObjectName("structure_selector");
    setAccessibleName(tr(text::language_structure_caption));
    connect(pimpl->list, &QListWidget::itemSelectionChanged, this,
            &select_language_structure::handle_language_structure_selection);
    connect(pimpl->list->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &select_language_structure::save_slider_position);
    setEnabled(false);
}

select_language_structure::~select_language_structure() = default;

QWidget* select_language_structure::widget_ptr() { return this; }

void select_language_structure::enable() { setEnabled(true); }

void select_language_structure::disable() { setEnabled(false); }

void select_language_structure::show() {
    if (pimpl->just_show(this))
        pimpl->select(this, pimpl->last_structure);
}

void select_language_structure::show_first() {
    if (pimpl->just_show(this))
        pimpl->select(this, QString());
}

void select_language_structure::set_this_language_structure(QString const& structure) {
    if (pimpl->just_show(this))
        pimpl->select(this, structure);
}

void select_language_structure::disable_with_cleanup() {
    QSignalBlocker const quiet(pimpl->list);
    pimpl->list->clear();
    disable();
}

void select_language_structure::obtain_language_structure(QString& structure) {
    QList<QListWidgetItem*> const selected = pimpl->list->selectedItems();
    if (!selected.isEmpty())
        structure = selected.first()->text();
}

void select_language_structure::save_slider_position(int position) {
    QSettings().setValue(settings_key::language_structure_slider_position, position);
}

void select_language_structure::restore_state_of_slider() {
    QVariant const position = QSettings().value(settings_key::language_structure_slider_position);
    if (position.isValid())
        pimpl->list->verticalScrollBar()->setValue(position.toInt());
}

void select_language_structure::handle_language_structure_selection() {
    QList<QListWidgetItem*> const selected = pimpl->list->selectedItems();
    if (selected.isEmpty())
        return;
    pimpl->last_structure = selected.first()->text();
    emit language_structure_was_selected();
}

}  // namespace GUI
