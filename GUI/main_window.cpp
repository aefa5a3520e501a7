#include "GUI/main_window.h"

#include "GUI/app_menu_actions.h"
#include "GUI/code_group.h"
#include "GUI/editor_configuration.h"
#include "GUI/learn_from_code.h"
#include "GUI/menu_actions.h"
#include "GUI/revise_group.h"
#include "GUI/style_group.h"
#include "GUI/task_tabs.h"
#include "core/kernel.h"
#include "core/product.h"
#include "core/settings_keys.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QSettings>
#include <QVBoxLayout>

// The resources live in the GUI library, which the executable links statically.
static void load_images() { Q_INIT_RESOURCE(images); }

namespace GUI {

class main_window::implementation {
public:
    explicit implementation(main_window* window)
        : language_import(window), language_delete(window),
          style_import(window), style_export(window), style_delete(window), style_rename(window), style_learn(window),
          style_export_configuration(window),
          about_this_structure(window), undo(window), redo(window), copy(window), select_all(window),
          increase_font(window), decrease_font(window), non_print(window),
          online(window), about(window),
          update(window, window),
          revise_all(window), revise_changed_lines(window), revise_it_forcibly(window), revise_all_forcibly(window),
          tab_new(window), tab_close(window), tab_rename(window),
          styles(new style_group(window, window,
                                 {&language_import, &language_delete, &style_import, &style_export,
                                  &style_delete, &style_rename, &about_this_structure, &undo, &redo,
                                  &copy, &select_all, &increase_font, &decrease_font, &non_print})),
          code(new code_group(window, &revise_it_forcibly, &revise_all_forcibly)),
          revise(new revise_group(window, &revise_all, &revise_changed_lines)),
          agreement(kernel().this_is_first_start_of_app() ? new agreement_dialog(window) : nullptr),
          tabs(new task_tabs(window, &tab_new, &tab_close, &tab_rename)),
          learning(new learn_from_code(window, window, &style_learn)),
          configuration(new editor_configuration(window, window, &style_export_configuration)) {}

    language_menu_import language_import;
    language_menu_delete language_delete;
    style_menu_import style_import;
    style_menu_export style_export;
    style_menu_delete style_delete;
    style_menu_rename style_rename;
    style_menu_learn style_learn;
    style_menu_export_configuration style_export_configuration;
    lnf_menu_about_this_structure about_this_structure;
    lnf_menu_undo undo;
    lnf_menu_redo redo;
    lnf_menu_copy copy;
    lnf_menu_select_all select_all;
    lnf_menu_increase_font increase_font;
    lnf_menu_decrease_font decrease_font;
    lnf_menu_non_print non_print;
    info_menu_online online;
    info_menu_about about;
    app_menu_update update;
    revise_menu_all revise_all;
    revise_menu_changed_lines revise_changed_lines;
    revise_menu_it_forcibly revise_it_forcibly;
    revise_menu_all_forcibly revise_all_forcibly;
    tab_menu_new tab_new;
    tab_menu_close tab_close;
    tab_menu_rename tab_rename;
    // The groups are widgets of the window's tree, which deletes them before these actions.
    style_group* styles;
    code_group* code;
    revise_group* revise;
    agreement_dialog* agreement;
    task_tabs* tabs;
    learn_from_code* learning;
    editor_configuration* configuration;
};

main_window::main_window(QWidget* parent) : QMainWindow(parent) {
    load_images();
    pimpl = std::make_unique<implementation>(this);
    QVariant const geometry = QSettings().value(settings_key::main_window_geometry);
    if (geometry.isValid())
        restoreGeometry(geometry.toByteArray());
    setWindowTitle(tr(product::title));
    setAccessibleName(tr(product::title));

    auto* tabs_container = new QWidget;
    auto* tabs_layout = new QVBoxLayout(tabs_container);
    tabs_layout->setContentsMargins(0, 1, 0, 0);
    tabs_layout->addWidget(pimpl->tabs->widget_ptr());
    auto* groups_container = new QWidget;
    auto* groups_layout = new QVBoxLayout(groups_container);
    groups_layout->setContentsMargins(0, 0, 0, 0);
    groups_layout->addWidget(pimpl->styles->widget_ptr());
    groups_layout->addWidget(pimpl->code->widget_ptr());
    groups_layout->addWidget(pimpl->revise->widget_ptr());
    auto* central = new QWidget;
    auto* central_layout = new QVBoxLayout(central);
    central_layout->setSpacing(7);
    central_layout->setContentsMargins(6, 6, 6, 7);
    central_layout->addWidget(tabs_container);
    central_layout->addWidget(groups_container, 1);
    setCentralWidget(central);

    pimpl->styles->restore_state_of_splitter();
    build_menus();
    connect_groups();
    connect(&pimpl->update, &app_menu_update::obtain_geometry_of_main_window, this,
            &main_window::obtain_geometry_of_main_window);
    connect(&pimpl->about, &info_menu_about::obtain_geometry_of_main_window, this,
            &main_window::obtain_geometry_of_main_window);
    if (pimpl->agreement != nullptr)
        connect(pimpl->agreement, &agreement_dialog::obtain_geometry_of_main_window, this,
                &main_window::obtain_geometry_of_main_window);
    if (pimpl->styles->there_is_no_programming_languages()) {
        disable_style_menu();
        disable_lnf_menu();
    }
    pimpl->tabs->restore_all_states_correspond_to_last_active_tab();
    if (pimpl->agreement != nullptr)
        pimpl->agreement->show_over_main_window();
}

main_window::~main_window() {
    QSettings settings;
    settings.setValue(settings_key::main_window_geometry, saveGeometry());
    settings.sync();
    // The groups go before the actions they use (a renaming still open refills its list as it
    // closes); each saves its own state as it goes.
    delete pimpl->configuration;
    delete pimpl->learning;
    delete pimpl->tabs;
    delete pimpl->revise;
    delete pimpl->code;
    delete pimpl->styles;
}

QWidget* main_window::widget_ptr() { return this; }

void main_window::build_menus() {
    auto add_menu = [this](QString const& title, char const* name,
                           std::initializer_list<one_action const*> entries) {
        QMenu* menu = menuBar()->addMenu(title);
        menu->setObjectName(name);
        menu->setAccessibleName(QString(title).remove('&'));
        for (one_action const* entry : entries) {
            if (entry == nullptr)
                menu->addSeparator();
            else
                menu->addAction(entry->widget_ptr());
        }
    };
    implementation& p = *pimpl;
    add_menu(tr("&Tab"), "tab_menu", {&p.tab_new, &p.tab_close, &p.tab_rename});
    add_menu(tr("&Language"), "language_menu", {&p.language_import, &p.language_delete});
    add_menu(tr("&Style"), "style_menu",
             {&p.style_import, &p.style_export, &p.style_delete, &p.style_rename, nullptr, &p.style_learn,
              &p.style_export_configuration});
    add_menu(tr("Look and f&eel"), "lnf_menu",
             {&p.about_this_structure, nullptr, &p.undo, &p.redo, nullptr, &p.copy, &p.select_all, nullptr,
              &p.increase_font, &p.decrease_font, nullptr, &p.non_print});
    add_menu(tr("&Your code"), "revise_menu",
             {&p.revise_all, &p.revise_changed_lines, nullptr, &p.revise_it_forcibly, &p.revise_all_forcibly});
    add_menu(tr("A&pp"), "app_menu", {&p.update, nullptr, &p.online, &p.about});
}

// Who talks to whom: the groups never hold one another; every connection between them is here.
void main_window::connect_groups() {
    style_group* S = pimpl->styles;
    code_group* C = pimpl->code;
    revise_group* R = pimpl->revise;
    task_tabs* T = pimpl->tabs;
    learn_from_code* L = pimpl->learning;

    connect(R, &revise_group::obtain_programming_language, S, &style_group::obtain_programming_language);
    connect(R, &revise_group::obtain_formatting_style, S, &style_group::obtain_formatting_style);
    connect(R, &revise_group::obtain_filename_extensions, C, &code_group::obtain_filename_extensions);
    connect(R, &revise_group::obtain_raw_paths_to_revising_files, C, &code_group::obtain_raw_paths_to_revising_files);
    connect(R, &revise_group::obtain_selected_raw_paths_to_revising_files, C,
            &code_group::obtain_selected_raw_paths_to_revising_files);
    connect(R, &revise_group::obtain_geometry_of_main_window, this, &main_window::obtain_geometry_of_main_window);
    connect(S, &style_group::obtain_filename_extensions, C, &code_group::obtain_filename_extensions);
    connect(S, &style_group::obtain_raw_paths_to_revising_files, C, &code_group::obtain_raw_paths_to_revising_files);
    connect(T, &task_tabs::obtain_programming_language, S, &style_group::obtain_programming_language);
    connect(T, &task_tabs::obtain_formatting_style, S, &style_group::obtain_formatting_style);
    connect(T, &task_tabs::obtain_language_structure, S, &style_group::obtain_language_structure);
    connect(T, &task_tabs::obtain_filename_extensions, C, &code_group::obtain_filename_extensions);
    connect(T, &task_tabs::obtain_raw_paths_to_revising_files, C, &code_group::obtain_raw_paths_to_revising_files);
    connect(C, &code_group::obtain_programming_language, S, &style_group::obtain_programming_language);
    connect(S, &style_group::language_n_style_was_selected, C, &code_group::language_n_style_was_selected);
    connect(C, &code_group::at_least_one_path_was_added, R, &revise_group::at_least_one_path_was_added);
    connect(C, &code_group::no_extensions_anymore, R, &revise_group::no_extensions_anymore);
    connect(C, &code_group::no_paths_anymore, R, &revise_group::no_paths_anymore);
    connect(C, &code_group::paths_or_extensions_changed, S, &style_group::code_was_changed);
    connect(pimpl->revise_all.widget_ptr(), &QAction::triggered, R, &revise_group::revise_all);
    connect(pimpl->revise_changed_lines.widget_ptr(), &QAction::triggered, R, &revise_group::revise_changed_lines);
    connect(pimpl->revise_all_forcibly.widget_ptr(), &QAction::triggered, R, &revise_group::revise_all_forcibly);
    connect(pimpl->revise_it_forcibly.widget_ptr(), &QAction::triggered, R, &revise_group::revise_it_forcibly);
    connect(T, &task_tabs::set_this_programming_language, S, &style_group::set_this_programming_language);
    connect(T, &task_tabs::set_this_formatting_style, S, &style_group::set_this_formatting_style);
    connect(T, &task_tabs::set_this_language_structure, S, &style_group::set_this_language_structure);
    connect(T, &task_tabs::set_this_filename_extensions, C, &code_group::set_this_filename_extensions);
    connect(T, &task_tabs::set_these_raw_paths, C, &code_group::set_these_raw_paths);
    connect(T, &task_tabs::set_first_programming_language, S, &style_group::set_first_programming_language);
    connect(S, &style_group::all_languages_have_been_deleted, this, &main_window::disable_style_menu);
    connect(S, &style_group::all_languages_have_been_deleted, this, &main_window::disable_lnf_menu);
    connect(S, &style_group::all_styles_have_been_deleted, this, &main_window::disable_lnf_menu);
    connect(S, &style_group::language_n_style_was_selected, this, &main_window::enable_lnf_menu);
    connect(S, &style_group::delete_all_raw_paths, C, &code_group::delete_all_raw_paths);
    connect(S, &style_group::show_default_filename_extensions, C, &code_group::show_default_filename_extensions);
    connect(S, &style_group::all_styles_have_been_deleted, C, &code_group::all_styles_have_been_deleted);
    connect(S, &style_group::all_styles_have_been_deleted, R, &revise_group::all_styles_have_been_deleted);
    connect(L, &learn_from_code::obtain_programming_language, S, &style_group::obtain_programming_language);
    connect(L, &learn_from_code::obtain_filename_extensions, C, &code_group::obtain_filename_extensions);
    connect(L, &learn_from_code::obtain_raw_paths_to_revising_files, C, &code_group::obtain_raw_paths_to_revising_files);
    connect(C, &code_group::at_least_one_path_was_added, L, &learn_from_code::there_are_paths);
    connect(C, &code_group::no_paths_anymore, L, &learn_from_code::no_paths_anymore);
    connect(L, &learn_from_code::style_was_learned, S, &style_group::set_this_formatting_style);
    editor_configuration* E = pimpl->configuration;
    connect(E, &editor_configuration::obtain_programming_language, S, &style_group::obtain_programming_language);
    connect(E, &editor_configuration::obtain_formatting_style, S, &style_group::obtain_formatting_style);
    connect(S, &style_group::editor_configurations_were_chosen, E, &editor_configuration::import_configurations);
    connect(E, &editor_configuration::style_was_made, S, &style_group::set_this_formatting_style);
    connect(S, &style_group::language_n_style_was_selected, E, &editor_configuration::there_is_a_style);
    connect(S, &style_group::all_styles_have_been_deleted, E, &editor_configuration::there_is_no_style);
    connect(S, &style_group::all_languages_have_been_deleted, E, &editor_configuration::there_is_no_style);
}

void main_window::obtain_geometry_of_main_window(QRect& geometry) { geometry = this->geometry(); }

void main_window::obtain_ptr_to_main_window(QWidget*& window) { window = this; }

void main_window::disable_style_menu() {
    pimpl->style_import.disable();
    pimpl->style_export.disable();
    pimpl->style_delete.disable();
    pimpl->style_rename.disable();
    pimpl->style_learn.disable();
    pimpl->style_export_configuration.disable();
}

void main_window::disable_lnf_menu() {
    pimpl->about_this_structure.disable();
    pimpl->undo.disable();
    pimpl->redo.disable();
    pimpl->copy.disable();
    pimpl->select_all.disable();
    pimpl->increase_font.disable();
    pimpl->decrease_font.disable();
    pimpl->non_print.disable();
}

void main_window::enable_lnf_menu() {
    pimpl->about_this_structure.enable();
    pimpl->select_all.enable();
    pimpl->increase_font.enable();
    pimpl->decrease_font.enable();
    pimpl->non_print.enable();
}

void main_window::closeEvent(QCloseEvent* event) {
    pimpl->tabs->save_all_states_correspond_to_last_active_tab();
    QMainWindow::closeEvent(event);
    QApplication::closeAllWindows();
}

void main_window::showEvent(QShowEvent* event) {
    if (first_show) {
        first_show = false;
        pimpl->styles->restore_states_of_sliders();
        pimpl->code->restore_states_of_sliders();
    }
    QMainWindow::showEvent(event);
}

}  // namespace GUI
