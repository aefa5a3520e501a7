#include "GUI/show_revise.h"

#include "GUI/critical_alert.h"
#include "GUI/messages.h"
#include "GUI/progress_dialog.h"
#include "GUI/top_window.h"
#include "GUI/worker_link.h"
#include "core/kernel.h"

namespace GUI {

class show_revise::implementation {
public:
    explicit implementation(QWidget* main_window)
        : main_window(main_window), dialog(new GUI::progress_dialog(main_window, QObject::tr(text::revise_in_progress))) {
        dialog->setObjectName("progress_dialog");
    }

    ~implementation() { forget_the_run(); }

    void forget_the_run() {
        if (link)
            link->cut();
    }

    QWidget* main_window;
    GUI::progress_dialog* dialog;
    std::shared_ptr<worker_link<show_revise>> link;
};

show_revise::show_revise(QWidget* parent, QWidget* main_window)
    : QWidget(parent), pimpl(std::make_unique<implementation>(main_window)) {
    QWidget::hide();
    GUI::progress_dialog* const D = pimpl->dialog;
    connect(D, &GUI::progress_dialog::stop_requested, this, &show_revise::stop_revision);
    connect(this, &show_revise::set_maximum_for_progress, D, &GUI::progress_dialog::set_maximum);
    connect(this, &show_revise::set_value_for_progress, D, &GUI::progress_dialog::set_value);
    connect(this, &show_revise::set_text, D, &GUI::progress_dialog::set_status);
    connect(this, &show_revise::revision_is_finished, D, &QWidget::hide);
}

show_revise::~show_revise() = default;

QWidget* show_revise::progress_dialog() const { return pimpl->dialog; }

// Each call is posted to the GUI thread, where the signal goes out: whoever listens, even through
// a direct connection, hears it on the GUI thread.
void show_revise::maximum_for_progress(int maximum) {
    QMetaObject::invokeMethod(this, [this, maximum] { emit set_maximum_for_progress(maximum); }, Qt::QueuedConnection);
}

void show_revise::value_for_progress(int value) {
    QMetaObject::invokeMethod(this, [this, value] { emit set_value_for_progress(value); }, Qt::QueuedConnection);
}

void show_revise::text(std::string const& status) {
    QString const text = QString::fromStdString(status);
    QMetaObject::invokeMethod(this, [this, text] { emit set_text(text); }, Qt::QueuedConnection);
}

void show_revise::finished(std::string const& report) {
    QString const text = QString::fromStdString(report);
    QMetaObject::invokeMethod(this, [this, text] { emit revision_is_finished(text); }, Qt::QueuedConnection);
}

void show_revise::refused(std::string const& report) {
    QString const text = QString::fromStdString(report);
    QMetaObject::invokeMethod(
        this,
        [this, text] {
            emit revision_is_finished(text);
            QString const reason = text.trimmed();
            show_critical_alert(reason, QString(), pimpl->main_window);
            emit revision_was_refused(reason);
        },
        Qt::QueuedConnection);
}

void show_revise::view() { view(false, false); }

void show_revise::view_with_force_revision_of_it() { view(true, false); }

void show_revise::view_with_force_revision_of_all() { view(false, true); }

void show_revise::stop_revision() {
    pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
    if (pimpl->link)
        pimpl->link->stop = true;
}

// "Forcibly" forgets the change records of the chosen paths before the run; the run itself is
// the same.
void show_revise::view(bool force_it, bool force_all) {
    QStringList forced;
    if (force_it)
        emit obtain_selected_raw_paths_to_revising_files(forced);
    if (force_all)
        emit obtain_raw_paths_to_revising_files(forced);
    kernel().forget_change_records_of(forced);
    start(task_shown(), false);
}

// Only the lines that differ from HEAD, staged or not, as the command line's --changed: the run
// neither asks nor keeps change records, so nothing is forgotten first.
void show_revise::view_changed_lines() {
    revision_task task = task_shown();
    task.changed_since = "HEAD";
    start(task, true);
}

revision_task show_revise::task_shown() {
    QString language, style, extensions;
    emit obtain_programming_language(language);
    emit obtain_formatting_style(style);
    emit obtain_filename_extensions(extensions);
    revision_task task;
    task.language = language.toStdString();
    task.style = style.toStdString();
    task.extensions = extensions.toStdString();
    emit obtain_raw_paths_to_revising_files(task.paths);
    return task;
}

void show_revise::start(revision_task const& task, bool refusal_shown) {
    pimpl->dialog->start();
    emit revision_begin();
    // A run still under way from before keeps its own link, now cut from the window.
    pimpl->forget_the_run();
    auto const link = std::make_shared<worker_link<show_revise>>(this);
    pimpl->link = link;
    // The run sets the maximum once it has started; a run that ends without it could not start.
    // Both callbacks come from the one worker thread, one after the other.
    auto const started = std::make_shared<bool>(false);
    kernel().start_revise(
        task,
        [link, started](int maximum) {
            *started = true;
            link->reach([&](show_revise& to) { to.maximum_for_progress(maximum); });
        },
        [link](int value) { link->reach([&](show_revise& to) { to.value_for_progress(value); }); },
        [link](std::string status) { link->reach([&](show_revise& to) { to.text(status); }); },
        [link, started, refusal_shown](std::string report) {
            link->reach([&](show_revise& to) {
                if (refusal_shown && !*started)
                    to.refused(report);
                else
                    to.finished(report);
            });
        },
        link->stop);
}

}  // namespace GUI
