#include "GUI/show_revise.h"

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
    QString language, style, extensions;
    emit obtain_programming_language(language);
    emit obtain_formatting_style(style);
    emit obtain_filename_extensions(extensions);
    QStringList forced;
    if (force_it)
        emit obtain_selected_raw_paths_to_revising_files(forced);
    if (force_all)
        emit obtain_raw_paths_to_revising_files(forced);
    kernel().forget_change_records_of(forced);
    revision_task task;
    task.language = language.toStdString();
    task.style = style.toStdString();
    task.extensions = extensions.toStdString();
    emit obtain_raw_paths_to_revising_files(task.paths);

    pimpl->dialog->start();
    emit revision_begin();
    // A run still under way from before keeps its own link, now cut from the window.
    pimpl->forget_the_run();
    auto const link = std::make_shared<worker_link<show_revise>>(this);
    pimpl->link = link;
    kernel().start_revise(
        task, [link](int maximum) { link->reach([&](show_revise& to) { to.maximum_for_progress(maximum); }); },
        [link](int value) { link->reach([&](show_revise& to) { to.value_for_progress(value); }); },
        [link](std::string status) { link->reach([&](show_revise& to) { to.text(status); }); },
        [link](std::string report) { link->reach([&](show_revise& to) { to.finished(report); }); },
        link->stop);
}

}  // namespace GUI
