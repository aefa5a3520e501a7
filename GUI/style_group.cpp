#include "GUI/style_group.h"

#include "GUI/menu_actions.h"
#include "GUI/preview_of_code.h"
#include "GUI/select_formatting_style.h"
#include "GUI/select_programming_language.h"
#include "GUI/select_language_structure.h"
#include "GUI/view_n_edit_language_structure.h"
#include "core/settings_keys.h"

#include <QHBoxLayout>
#include <QSettings>
#include <QSplitter>

namespace GUI {

class style_group::implementation {
public:
    implementation(style_group* owner, QWidget* main_window, style_group_actions const& actions)
        : outer(new QSplitter(Qt::Horizontal, owner)),
          splitter(new QSplitter(Qt::Horizontal, outer)),
          languages(new select_programming_language(splitter, main_window, actions.language_import,
                                                    actions.language_delete)),
          styles(new select_formatting_style(splitter, main_window,
                                             {actions.style_import, actions.style_export,
                                              actions.style_delete, actions.style_rename})),
          structures(new select_language_structure(splitter)),
          form(new view_n_edit_language_structure(splitter, actions)),
          preview(new preview_of_code(outer)) {
        splitter->setObjectName("style_splitter");
        splitter->setChildrenCollapsible(false);
        splitter->addWidget(languages->widget_ptr());
        splitter->addWidget(styles->widget_ptr());
        splitter->addWidget(structures->widget_ptr());
        splitter->addWidget(form->widget_ptr());
        splitter->setStretchFactor(3, 1);
        outer->setObjectName("preview_splitter");
        outer->setChildrenCollapsible(true);
        outer->addWidget(splitter);
        outer->addWidget(preview->widget_ptr());
        outer->setCollapsible(0, false);
        outer->setStretchFactor(0, 3);
        outer->setStretchFactor(1, 2);
        auto* layout = new QHBoxLayout(owner);
        layout->setSpacing(6);
        layout->setContentsMargins(0, 0, 0, 3);
        layout->addWidget(outer);
    }

    // The style panes' splitter on the left, the preview on the right.
    QSplitter* outer;
    QSplitter* splitter;
    select_programming_language* languages;
    select_formatting_style* styles;
    select_language_structure* structures;
    view_n_edit_language_structure* form;
    preview_of_code* preview;
};

style_group::style_group(QWidget* parent, QWidget* main_window, style_group_actions const& actions)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, main_window, actions)) {
    setObjectName("style_group");
    setAccessibleName(tr("Language and style"));
    auto* L = pimpl->languages;
    auto* S = pimpl->styles;
    auto* T = pimpl->structures;
    auto* V = pimpl->form;

    // Queries: each pane answers for what it shows; the group's own questions go to the same panes.
    connect(S, &select_formatting_style::obtain_programming_language, L,
            &select_programming_language::obtain_programming_language);
    connect(T, &select_language_structure::obtain_programming_language, L,
            &select_programming_language::obtain_programming_language);
    connect(T, &select_language_structure::obtain_formatting_style, S,
            &select_formatting_style::obtain_formatting_style);
    connect(V, &view_n_edit_language_structure::obtain_programming_language, L,
            &select_programming_language::obtain_programming_language);
    connect(V, &view_n_edit_language_structure::obtain_formatting_style, S,
            &select_formatting_style::obtain_formatting_style);
    connect(V, &view_n_edit_language_structure::obtain_language_structure, T,
            &select_language_structure::obtain_language_structure);
    connect(L, &select_programming_language::obtain_formatting_style, S,
            &select_formatting_style::obtain_formatting_style);
    connect(L, &select_programming_language::obtain_language_structure, T,
            &select_language_structure::obtain_language_structure);
    connect(this, &style_group::obtain_programming_language, L,
            &select_programming_language::obtain_programming_language);
    connect(this, &style_group::obtain_formatting_style, S, &select_formatting_style::obtain_formatting_style);
    connect(this, &style_group::obtain_language_structure, T,
            &select_language_structure::obtain_language_structure);
    connect(L, &select_programming_language::obtain_filename_extensions, this,
            &style_group::obtain_filename_extensions);
    connect(L, &select_programming_language::obtain_raw_paths_to_revising_files, this,
            &style_group::obtain_raw_paths_to_revising_files);
    connect(S, &select_formatting_style::editor_configurations_were_chosen, this,
            &style_group::editor_configurations_were_chosen);

    // Selection chain.
    connect(L, &select_programming_language::language_was_selected, S, &select_formatting_style::show);
    connect(L, &select_programming_language::language_was_selected, T, &select_language_structure::show_first);
    connect(L, &select_programming_language::language_was_selected, this, &style_group::delete_all_raw_paths);
    connect(L, &select_programming_language::language_was_selected, this,
            &style_group::show_default_filename_extensions);
    connect(S, &select_formatting_style::style_was_selected, T, &select_language_structure::show);
    connect(S, &select_formatting_style::style_was_selected, this, &style_group::language_n_style_was_selected);
    connect(T, &select_language_structure::language_structure_was_selected, V,
            &view_n_edit_language_structure::show);

    // The preview asks what the panes and the paths group show, and follows what takes effect.
    auto* P = pimpl->preview;
    connect(P, &preview_of_code::obtain_programming_language, L,
            &select_programming_language::obtain_programming_language);
    connect(P, &preview_of_code::obtain_formatting_style, S, &select_formatting_style::obtain_formatting_style);
    connect(P, &preview_of_code::obtain_filename_extensions, this, &style_group::obtain_filename_extensions);
    connect(P, &preview_of_code::obtain_raw_paths_to_revising_files, this,
            &style_group::obtain_raw_paths_to_revising_files);
    connect(L, &select_programming_language::language_was_selected, P, &preview_of_code::something_has_changed);
    connect(S, &select_formatting_style::style_was_selected, P, &preview_of_code::something_has_changed);
    connect(V, &view_n_edit_language_structure::form_was_saved, P, &preview_of_code::something_has_changed);
    connect(L, &select_programming_language::all_languages_have_been_deleted, P,
            &preview_of_code::disable_with_cleanup);
    connect(S, &select_formatting_style::all_styles_have_been_deleted, P, &preview_of_code::disable_with_cleanup);

    // Deletion.
    connect(L, &select_programming_language::all_languages_have_been_deleted, S,
            &select_formatting_style::disable_with_cleanup);
    connect(L, &select_programming_language::all_languages_have_been_deleted, T,
            &select_language_structure::disable_with_cleanup);
    connect(L, &select_programming_language::all_languages_have_been_deleted, V,
            &view_n_edit_language_structure::disable_with_cleanup);
    connect(L, &select_programming_language::all_languages_have_been_deleted, this,
            &style_group::all_languages_have_been_deleted);
    connect(S, &select_formatting_style::all_styles_have_been_deleted, T,
            &select_language_structure::disable_with_cleanup);
    connect(S, &select_formatting_style::all_styles_have_been_deleted, V,
            &view_n_edit_language_structure::disable_with_cleanup);
    connect(S, &select_formatting_style::all_styles_have_been_deleted, this,
            &style_group::all_styles_have_been_deleted);
}

style_group::~style_group() { save_state(); }

QWidget* style_group::widget_ptr() { return this; }

bool style_group::there_is_no_programming_languages() const {
    return pimpl->languages->there_is_no_programming_languages();
}

preview_of_code* style_group::preview() const { return pimpl->preview; }

void style_group::code_was_changed() { pimpl->preview->something_has_changed(); }

void style_group::save_state() {
    QSettings settings;
    settings.setValue(settings_key::preview_splitter_state, pimpl->outer->saveState());
    QList<int> const sizes = pimpl->splitter->sizes();
    for (int pane = 0; pane < sizes.size(); ++pane)
        settings.setValue(settings_key::splitter_size(pane), sizes[pane]);
    settings.sync();
}

void style_group::restore_state_of_splitter() {
    QSettings const settings;
    QList<int> sizes = pimpl->splitter->sizes();
    for (int pane = 0; pane < sizes.size(); ++pane) {
        QVariant const size = settings.value(settings_key::splitter_size(pane));
        if (size.isValid())
            sizes[pane] = size.toInt();
    }
    pimpl->splitter->setSizes(sizes);
    QVariant const preview = settings.value(settings_key::preview_splitter_state);
    if (preview.isValid())
        pimpl->outer->restoreState(preview.toByteArray());
    else
        pimpl->outer->setSizes({600, 400});  // shares: the style's panes three fifths, the preview two
}

void style_group::restore_states_of_sliders() {
    pimpl->languages->restore_state_of_slider();
    pimpl->styles->restore_state_of_slider();
    pimpl->structures->restore_state_of_slider();
}

void style_group::set_this_programming_language(QString const& language) {
    pimpl->languages->set_this_programming_language(language);
}

void style_group::set_this_formatting_style(QString const& style) {
    pimpl->styles->set_this_formatting_style(style);
}

void style_group::set_this_language_structure(QString const& structure) {
    pimpl->structures->set_this_language_structure(structure);
}

void style_group::set_first_programming_language() { pimpl->languages->set_first_programming_language(); }

}  // namespace GUI
