#include "GUI/learn_from_code.h"

#include "GUI/critical_alert.h"
#include "GUI/menu_actions.h"
#include "GUI/messages.h"
#include "GUI/new_style_name.h"
#include "GUI/progress_dialog.h"
#include "GUI/top_window.h"
#include "GUI/worker_link.h"
#include "core/kernel.h"
#include "core/product.h"
#include "core/style_addon.h"

#include <QAction>
#include <QMessageBox>

#include <thread>

namespace GUI {

namespace {

// Tenths of a percent, rounded down, as the command line writes them: a style that changes one line
// of a thousand and one never shows 100.0%.
QString share(unsigned long part, unsigned long whole) {
    unsigned long long const tenths = whole == 0 ? 1000ULL : 1000ULL * part / whole;
    return QString("%1.%2%").arg(tenths / 10).arg(tenths % 10);
}

QString figure_of(QString const& style, QString const& language, style_learning_outcome const& outcome) {
    QString taken;
    if (!outcome.forms_of.empty())
        taken = QObject::tr(text::learned_forms_of_style) + QString::fromStdString(outcome.forms_of) +
                QObject::tr(text::learned_leave_more);
    else if (!outcome.configuration_of.empty())
        taken = QObject::tr(text::learned_forms_of_configuration) + QString::fromStdString(outcome.configuration_of) +
                QObject::tr(text::learned_leave_more);
    return QObject::tr(text::learned_style_prefix) + style + QObject::tr(text::learned_of_language) + language +
           QObject::tr(text::learned_from) + QString::number(outcome.files) +
           QObject::tr(outcome.files == 1 ? text::learned_file : text::learned_files) +
           QObject::tr(text::learned_it_leaves) + share(outcome.lines_left, outcome.lines) +
           QObject::tr(text::learned_of_their) + QString::number(outcome.lines) +
           QObject::tr(text::learned_lines_as_they_are) + taken;
}

// How much of the code the new style leaves as it is: a window-modal box the user closes.
void show_figure(QString const& figure, QWidget* over) {
    auto* box = new QMessageBox(QMessageBox::Information, product::title, figure, QMessageBox::Close, over->window());
    box->setObjectName("learning_result");
    box->setAccessibleName(figure);
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

}  // namespace

class learn_from_code::implementation {
public:
    implementation(learn_from_code* owner, QWidget* main_window, style_menu_learn* learn)
        : main_window(main_window), learn(learn),
          names(new new_style_name(main_window, QObject::tr(text::learn_a_style_title),
                                   [owner](QString const& name) { return owner->refusal_of(name); })),
          dialog(new GUI::progress_dialog(main_window, QObject::tr(text::learning))) {
        dialog->setObjectName("learning_dialog");
    }

    // The worker is asked to stop and waited for: it reads the stop flag while the plugin learns.
    ~implementation() {
        if (link)
            link->cut();
        if (worker.joinable())
            worker.join();
    }

    QWidget* main_window;
    style_menu_learn* learn;
    new_style_name* names;
    GUI::progress_dialog* dialog;
    std::shared_ptr<worker_link<learn_from_code>> link;
    std::thread worker;
};

learn_from_code::learn_from_code(QWidget* parent, QWidget* main_window, style_menu_learn* learn)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, main_window, learn)) {
    QWidget::hide();
    connect(learn->widget_ptr(), &QAction::triggered, this, &learn_from_code::ask_for_a_name);
    connect(pimpl->names, &new_style_name::name_was_given, this, &learn_from_code::learn_as);
    connect(pimpl->dialog, &GUI::progress_dialog::stop_requested, this, &learn_from_code::stop_learning);
}

learn_from_code::~learn_from_code() = default;

new_style_name* learn_from_code::name_dialog() const { return pimpl->names; }

QWidget* learn_from_code::progress_dialog() const { return pimpl->dialog; }

void learn_from_code::there_are_paths() { pimpl->learn->enable(); }

void learn_from_code::no_paths_anymore() { pimpl->learn->disable(); }

QString learn_from_code::refusal_of(QString const& name) {
    QString language;
    emit obtain_programming_language(language);
    return refusal_of_new_style_name(name, language);
}

void learn_from_code::ask_for_a_name() { pimpl->names->ask(); }

void learn_from_code::learn_as(QString const& name) {
    if (pimpl->worker.joinable() || !refusal_of(name).isEmpty())
        return;
    QString language, extensions;
    emit obtain_programming_language(language);
    emit obtain_filename_extensions(extensions);
    revision_task task;
    task.language = language.toStdString();
    task.style = name.toStdString();
    task.extensions = extensions.toStdString();
    emit obtain_raw_paths_to_revising_files(task.paths);

    pimpl->dialog->start();
    pimpl->dialog->set_maximum(100);
    auto const link = std::make_shared<worker_link<learn_from_code>>(this);
    pimpl->link = link;
    pimpl->worker = std::thread([link, task, name, language] {
        style_learning_outcome const outcome = kernel().learn_style(
            task,
            [&link](unsigned long done, unsigned long whole) {
                int const percent = whole == 0 ? 0 : static_cast<int>(100ULL * std::min(done, whole) / whole);
                link->reach([percent](learn_from_code& to) {
                    QMetaObject::invokeMethod(&to, [&to, percent] { to.pimpl->dialog->set_value(percent); },
                                              Qt::QueuedConnection);
                });
            },
            link->stop);
        link->reach([&](learn_from_code& to) {
            QMetaObject::invokeMethod(
                &to, [&to, name, language, outcome] { to.learning_ended(name, language, outcome); },
                Qt::QueuedConnection);
        });
    });
}

void learn_from_code::stop_learning() {
    pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
    if (pimpl->link)
        pimpl->link->stop = true;
}

// On the GUI thread, once the worker has nothing more to do.
void learn_from_code::learning_ended(QString const& style, QString const& language,
                                     style_learning_outcome const& outcome) {
    pimpl->worker.join();
    pimpl->link.reset();
    pimpl->dialog->hide();
    using end = style_learning_outcome::end;
    QString message;
    switch (outcome.how) {
    case end::learned:
        emit style_was_learned(style);
        show_figure(figure_of(style, language, outcome), pimpl->main_window);
        emit learning_is_finished(QString());
        return;
    case end::no_such_language:
        message = tr(text::there_is_no_language) + language + tr(text::quote_and_dot);
        break;
    case end::language_cannot_learn:
        message = tr(text::language_prefix) + language + tr(text::cannot_learn_styles);
        break;
    case end::bad_style_name:
        message = refusal_of_bad_style_name(style);
        break;
    case end::style_exists:
        message = refusal_of_taken_style_name(style);
        break;
    case end::no_files:
        message = tr(text::no_files_to_learn_from);
        break;
    case end::nothing_learned:
        message = tr(text::nothing_learned) + language + tr(text::quote_and_dot);
        break;
    case end::stopped:
        message = tr(text::learning_interrupted);
        break;
    case end::not_installed:
        message = tr(text::cannot_install_style) + style + tr(text::addons_directory_hint);
        break;
    }
    show_critical_alert(message, QString(), pimpl->main_window);
    emit learning_is_finished(message);
}

}  // namespace GUI
