#include "GUI/revise_group.h"

#include "GUI/menu_actions.h"
#include "GUI/messages.h"
#include "GUI/report.h"
#include "GUI/show_revise.h"

#include <QHBoxLayout>

namespace GUI {

namespace {

void look_like_a_revise_button(QPushButton* button, char const* name) {
    button->setObjectName(name);
    button->setAccessibleName(button->text().remove('&'));
    button->setAutoDefault(true);
    button->setMinimumWidth(150);
}

}  // namespace

start_revise::start_revise(QWidget* parent) : QPushButton(tr(text::go), parent) {
    look_like_a_revise_button(this, "go");
    setEnabled(false);
}

view_report::view_report(QWidget* parent) : QPushButton(tr(text::view_report), parent) {
    look_like_a_revise_button(this, "view_report");
    setEnabled(false);
}

class revise_group::implementation {
public:
    implementation(revise_group* owner, QWidget* main_window, revise_menu_all* all,
                   revise_menu_changed_lines* changed_lines)
        : go(new start_revise(owner)), view(new view_report(owner)), the_report(std::make_unique<report>()),
          starter(new show_revise(owner, main_window)), all(all), changed_lines(changed_lines) {
        auto* layout = new QHBoxLayout(owner);
        layout->setContentsMargins(0, 3, 0, 0);
        layout->setSpacing(14);
        layout->addStretch();
        layout->addWidget(go);
        layout->addWidget(view);
        layout->addStretch();
    }

    void enable_start(bool yes) {
        go->setEnabled(yes);
        for (one_action* action : std::initializer_list<one_action*>{all, changed_lines}) {
            if (yes)
                action->enable();
            else
                action->disable();
        }
    }

    start_revise* go;
    view_report* view;
    // A window of its own, without a parent: the group closes it as it goes.
    std::unique_ptr<report> the_report;
    show_revise* starter;
    revise_menu_all* all;
    revise_menu_changed_lines* changed_lines;
};

revise_group::revise_group(QWidget* parent, revise_menu_all* all, revise_menu_changed_lines* changed_lines)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, parent, all, changed_lines)) {
    setObjectName("revise_group");
    setAccessibleName(tr("Revision"));
    report* const R = pimpl->the_report.get();
    show_revise* const S = pimpl->starter;
    connect(pimpl->view, &QPushButton::clicked, R, &report::view);
    connect(pimpl->go, &QPushButton::clicked, S, qOverload<>(&show_revise::view));
    connect(S, &show_revise::revision_is_finished, pimpl->view, &view_report::enable);
    connect(S, &show_revise::revision_is_finished, R, &report::store);
    connect(S, &show_revise::revision_begin, R, &report::revision_in_progress);
    connect(S, &show_revise::obtain_programming_language, this, &revise_group::obtain_programming_language);
    connect(S, &show_revise::obtain_formatting_style, this, &revise_group::obtain_formatting_style);
    connect(S, &show_revise::obtain_filename_extensions, this, &revise_group::obtain_filename_extensions);
    connect(S, &show_revise::obtain_raw_paths_to_revising_files, this,
            &revise_group::obtain_raw_paths_to_revising_files);
    connect(S, &show_revise::obtain_selected_raw_paths_to_revising_files, this,
            &revise_group::obtain_selected_raw_paths_to_revising_files);
    connect(S, &show_revise::obtain_geometry_of_main_window, this, &revise_group::obtain_geometry_of_main_window);
    connect(R, &report::obtain_geometry_of_main_window, this, &revise_group::obtain_geometry_of_main_window);
}

revise_group::~revise_group() = default;

QWidget* revise_group::widget_ptr() { return this; }

void revise_group::at_least_one_path_was_added() { pimpl->enable_start(true); }

void revise_group::no_paths_anymore() { pimpl->enable_start(false); }

void revise_group::no_extensions_anymore() {
    pimpl->enable_start(false);
    pimpl->view->disable();
}

void revise_group::all_styles_have_been_deleted() {
    pimpl->enable_start(false);
    pimpl->view->disable();
}

void revise_group::revise_all() { pimpl->starter->view(); }

void revise_group::revise_changed_lines() { pimpl->starter->view_changed_lines(); }

void revise_group::revise_it_forcibly() { pimpl->starter->view_with_force_revision_of_it(); }

void revise_group::revise_all_forcibly() { pimpl->starter->view_with_force_revision_of_all(); }

void revise_group::set_enabled() { setEnabled(true); }

}  // namespace GUI
