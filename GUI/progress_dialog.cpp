#include "GUI/progress_dialog.h"

#include "GUI/messages.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace GUI {

class progress_dialog::implementation {
public:
    implementation(progress_dialog* dialog, QString const& caption)
        : text(new QLabel(dialog)), progress(new QProgressBar(dialog)),
          stop(new QPushButton(QObject::tr(text::stop), dialog)) {
        dialog->setWindowTitle(caption);
        dialog->setAccessibleName(caption);
        dialog->setWindowModality(Qt::WindowModal);
        text->setObjectName("progress_text");
        progress->setObjectName("progress_bar");
        progress->setAccessibleName(caption);
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
        layout->addWidget(new QLabel(caption, dialog));
        layout->addWidget(text);
        layout->addLayout(row);
    }

    QLabel* text;
    QProgressBar* progress;
    QPushButton* stop;
};

progress_dialog::progress_dialog(QWidget* main_window, QString const& caption)
    : QDialog(main_window, Qt::Dialog), pimpl(std::make_unique<implementation>(this, caption)) {
    connect(pimpl->stop, &QPushButton::clicked, this, &progress_dialog::stop_requested);
    // Closed by its window's button or Escape: the run stops as with Stop.
    connect(this, &QDialog::rejected, this, &progress_dialog::stop_requested);
    hide();
}

progress_dialog::~progress_dialog() = default;

void progress_dialog::start() {
    pimpl->text->clear();
    pimpl->progress->reset();
    pimpl->progress->setMaximum(0);
    show();
}

void progress_dialog::set_status(QString const& status) { pimpl->text->setText(status); }
void progress_dialog::set_maximum(int maximum) { pimpl->progress->setMaximum(maximum); }
void progress_dialog::set_value(int value) { pimpl->progress->setValue(value); }

}  // namespace GUI
