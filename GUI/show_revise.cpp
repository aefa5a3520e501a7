#include "GUI/show_revise.h"

#include "GUI/messages.h"
#include "GUI/top_window.h"
#include "core/kernel.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <atomic>
#include <mutex>

namespace GUI {

namespace {

// What the worker thread shares with the window: the stop flag, and the object its callbacks
// reach, which the window clears when it goes. The worker's callbacks hold it, so it lives until
// the run's last callback is gone, whatever becomes of the window.
struct run_link {
    std::atomic<bool> stop{false};
    std::mutex guard;
    show_revise* receiver;

    explicit run_link(show_revise* receiver) : receiver(receiver) {}

    template <typename call>
    void reach(call const& it) {
        std::lock_guard<std::mutex> const lock(guard);
        if (receiver != nullptr)
            it(*receiver);
    }
};

}  // namespace

class show_revise::implementation {
public:
    implementation(QWidget* main_window)
        : main_window(main_window), dialog(new QDialog(main_window, Qt::Dialog)),
          text(new QLabel(dialog)), progress(new QProgressBar(dialog)),
          stop(new QPushButton(QObject::tr(text::stop), dialog)) {
        dialog->setObjectName("progress_dialog");
        dialog->setWindowTitle(QObject::tr(text::revise_in_progress));
        dialog->setAccessibleName(QObject::tr(text::revise_in_progress));
        dialog->setWindowModality(Qt::WindowModal);
        text->setObjectName("progress_text");
        progress->setObjectName("progress_bar");
        progress->setAccessibleName(QObject::tr(text::revise_in_progress));
        progress->setMinimumWidth(300);
        progress->setMinimum(0);
        stop->setObjectName("stop");
        stop->setAccessibleName(stop->text().remove('&'));
        stop->setDefault(true);
        auto* row = new QHBoxLayout;
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(progress);
        row->addWidget(stop);
        auto* layout = new QVBoxLayout(dialog);
        layout->setContentsMargins(14, 12, 10, 14);
        layout->setSpacing(6);
        layout->addWidget(new QLabel(QObject::tr(text::revise_in_progress), dialog));
        layout->addWidget(text);
        layout->addLayout(row);
        dialog->hide();
    }

    ~implementation() { forget_the_run(); }

    void forget_the_run() {
        if (!link)
            return;
        link->stop = true;
        std::lock_guard<std::mutex> const lock(link->guard);
        link->receiver = nullptr;
    }

    QWidget* main_window;
    QDialog* dialog;
    QLabel* text;
    QProgressBar* progress;
    QPushButton* stop;
    std::shared_ptr<run_link> link;
};

show_revise::show_revise(QWidget* parent, QWidget* main_window)
    : QWidget(parent), pimpl(std::make_unique<implementation>(main_window)) {
    QWidget::hide();
    connect(pimpl->stop, &QPushButton::clicked, this, &show_revise::stop_revision);
    connect(this, &show_revise::set_maximum_for_progress, pimpl->progress, &QProgressBar::setMaximum);
    connect(this, &show_revise::set_value_for_progress, pimpl->progress, &QProgressBar::setValue);
    connect(this, &show_revise::set_text, pimpl->text, &QLabel::setText);
    connect(this, &show_revise::revision_is_finished, pimpl->dialog, &QWidget::hide);
    // A dialog closed by its window's button or Escape stops the run as Stop does.
    connect(pimpl->dialog, &QDialog::rejected, this, &show_revise::stop_revision);
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

    pimpl->text->clear();
    pimpl->progress->reset();
    pimpl->progress->setMaximum(0);
    pimpl->dialog->show();
    emit revision_begin();
    // A run still under way from before keeps its own link, now cut from the window.
    pimpl->forget_the_run();
    auto const link = std::make_shared<run_link>(this);
    pimpl->link = link;
    kernel().start_revise(
        task, [link](int maximum) { link->reach([&](show_revise& to) { to.maximum_for_progress(maximum); }); },
        [link](int value) { link->reach([&](show_revise& to) { to.value_for_progress(value); }); },
        [link](std::string status) { link->reach([&](show_revise& to) { to.text(status); }); },
        [link](std::string report) { link->reach([&](show_revise& to) { to.finished(report); }); },
        link->stop);
}

}  // namespace GUI
