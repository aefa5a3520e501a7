#include "GUI/code_group.h"

#include "GUI/add_paths.h"
#include "GUI/list_of_file_extensions.h"
#include "GUI/list_of_paths.h"
#include "GUI/menu_actions.h"
#include "GUI/messages.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace GUI {

class code_group::implementation {
public:
    implementation(code_group* owner, QWidget* main_window, revise_menu_it_forcibly* it_forcibly,
                   revise_menu_all_forcibly* all_forcibly)
        : label(new QLabel(QObject::tr(text::paths_caption), owner)),
          paths(new list_of_paths(owner)),
          add_directories(new add_path_to_work_directory(owner, main_window)),
          add_files(new add_paths_to_work_files(owner, main_window)),
          remove(new QPushButton(QObject::tr(text::remove_paths), owner)),
          extensions(new list_of_file_extensions(owner)),
          it_forcibly(it_forcibly), all_forcibly(all_forcibly) {
        label->setStyleSheet("QLabel { font: bold; }");
        label->setBuddy(paths->list_ptr());
        remove->setObjectName("remove_paths");
        remove->setAccessibleName(remove->text().remove('&'));
        remove->setMinimumWidth(140);
        remove->setAutoDefault(true);
        auto* buttons = new QVBoxLayout;
        buttons->setSpacing(6);
        buttons->addWidget(add_directories);
        buttons->addWidget(add_files);
        buttons->addWidget(remove);
        buttons->addStretch();
        auto* layout = new QGridLayout(owner);
        layout->setContentsMargins(0, 3, 0, 3);
        layout->setHorizontalSpacing(14);
        layout->addWidget(label, 0, 0);
        layout->addWidget(paths, 1, 0);
        layout->addLayout(buttons, 1, 1);
        layout->addWidget(extensions, 2, 0, 1, 2);
        layout->setRowStretch(1, 1);
        enable_paths(false);
        remove->setEnabled(false);
    }

    void enable_paths(bool yes) {
        add_directories->setEnabled(yes);
        add_files->setEnabled(yes);
        label->setEnabled(yes);
        paths->setEnabled(yes);
    }

    QLabel* label;
    list_of_paths* paths;
    add_path_to_work_directory* add_directories;
    add_paths_to_work_files* add_files;
    QPushButton* remove;
    list_of_file_extensions* extensions;
    revise_menu_it_forcibly* it_forcibly;
    revise_menu_all_forcibly* all_forcibly;
};

code_group::code_group(QWidget* parent, revise_menu_it_forcibly* it_forcibly, revise_menu_all_forcibly* all_forcibly)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, parent, it_forcibly, all_forcibly)) {
    setObjectName("code_group");
    setAccessibleName(tr("Your code"));
    list_of_paths* const P = pimpl->paths;
    list_of_file_extensions* const E = pimpl->extensions;
    QPushButton* const remove = pimpl->remove;

    connect(pimpl->add_directories, &add_path_to_work_directory::directory_was_choosed, P,
            qOverload<QString const&>(&list_of_paths::show));
    connect(pimpl->add_files, &add_paths_to_work_files::files_was_choosed, P,
            qOverload<QStringList const&>(&list_of_paths::show));
    connect(pimpl->add_files, &add_paths_to_work_files::obtain_filename_extensions, E,
            &list_of_file_extensions::obtain_filename_extensions);
    connect(remove, &QPushButton::clicked, P, &list_of_paths::remove_selected_items);
    connect(P, &list_of_paths::path_was_selected, remove, [remove, it_forcibly] {
        remove->setEnabled(true);
        it_forcibly->enable();
    });
    connect(P, &list_of_paths::no_selected_paths_anymore, remove, [remove, it_forcibly] {
        remove->setEnabled(false);
        it_forcibly->disable();
    });
    connect(P, &list_of_paths::there_are_paths, this, [all_forcibly](bool yes) {
        if (yes)
            all_forcibly->enable();
        else
            all_forcibly->disable();
    });
    connect(E, &list_of_file_extensions::check_list, P, &list_of_paths::check_list_of_file_extensions);
    connect(E, &list_of_file_extensions::extension_have_been_added, this, &code_group::extension_have_been_added);
    connect(E, &list_of_file_extensions::all_extensions_have_been_deleted, this,
            &code_group::all_extensions_have_been_deleted);
    connect(P, &list_of_paths::at_least_one_path_was_added, this, &code_group::at_least_one_path_was_added);
    connect(P, &list_of_paths::no_paths_anymore, this, &code_group::no_paths_anymore);
    connect(P, &list_of_paths::obtain_filename_extensions, E, &list_of_file_extensions::obtain_filename_extensions);
    connect(P, &list_of_paths::obtain_programming_language, this, &code_group::obtain_programming_language);
    connect(E, &list_of_file_extensions::obtain_programming_language, this, &code_group::obtain_programming_language);
    QAbstractItemModel* const rows = P->list_ptr()->model();
    connect(rows, &QAbstractItemModel::rowsInserted, this, &code_group::paths_or_extensions_changed);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &code_group::paths_or_extensions_changed);
    connect(rows, &QAbstractItemModel::modelReset, this, &code_group::paths_or_extensions_changed);
    for (QLineEdit* field : E->findChildren<QLineEdit*>())
        connect(field, &QLineEdit::textChanged, this, &code_group::paths_or_extensions_changed);
    connect(this, &code_group::obtain_filename_extensions, E, &list_of_file_extensions::obtain_filename_extensions);
    connect(this, &code_group::obtain_raw_paths_to_revising_files, P,
            &list_of_paths::obtain_raw_paths_to_revising_files);
    connect(this, &code_group::obtain_selected_raw_paths_to_revising_files, P,
            &list_of_paths::obtain_selected_raw_paths_to_revising_files);
}

// The children outlive this part of the object while QWidget's destructor deletes them, and a
// list emptied on the way out still signals: nothing of theirs may reach this object any more.
code_group::~code_group() {
    QAbstractItemModel* const rows = pimpl->paths->list_ptr()->model();
    rows->disconnect(this);
    pimpl->paths->disconnect(this);
    pimpl->extensions->disconnect(this);
    for (QLineEdit* field : pimpl->extensions->findChildren<QLineEdit*>())
        field->disconnect(this);
}

QWidget* code_group::widget_ptr() { return this; }

// Any choice of a style, of the same language or not, shows the language's default extensions.
void code_group::language_n_style_was_selected() {
    pimpl->extensions->enable_n_show();
    pimpl->enable_paths(true);
}

void code_group::show_default_filename_extensions() { pimpl->extensions->enable_n_show(); }

void code_group::extension_have_been_added() { pimpl->enable_paths(true); }

void code_group::all_extensions_have_been_deleted() {
    pimpl->enable_paths(false);
    pimpl->remove->setEnabled(false);
    emit no_extensions_anymore();
}

void code_group::all_styles_have_been_deleted() {
    pimpl->extensions->disable();
    pimpl->enable_paths(false);
    pimpl->remove->setEnabled(false);
}

void code_group::delete_all_raw_paths() { pimpl->paths->delete_all(); }

void code_group::set_this_filename_extensions(QString const& extensions) {
    pimpl->extensions->set_this_filename_extensions(extensions);
}

void code_group::set_these_raw_paths(QString const& raw_paths) { pimpl->paths->set_these_raw_paths(raw_paths); }

void code_group::restore_states_of_sliders() { pimpl->paths->restore_state_of_slider(); }

}  // namespace GUI
