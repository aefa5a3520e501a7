#include "GUI/preview_of_code.h"

#include "GUI/messages.h"
#include "GUI/worker_link.h"
#include "core/kernel.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTextBlock>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <sstream>
#include <thread>

#ifdef __linux__
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace GUI {

namespace {

// One request of the preview, as the worker takes it.
struct preview_request {
    unsigned long generation = 0;
    revision_task task;
    // The file the user chose; empty, or not among the task's files: the first of them.
    QString chosen;
};

int line_count_of(std::string const& text) {
    if (text.empty())
        return 0;
    int const breaks = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    return text.back() == '\n' ? breaks : breaks + 1;
}

// What a unified diff says of the lines.
struct lines_of_a_diff {
    // The lines (from 0) of the new side that are new or stand where lines went: "+" lines, and
    // for lines removed with nothing in their place, the line that follows them.
    std::vector<int> marked;
    int added = 0;  // "+" lines
};

lines_of_a_diff lines_in(std::string const& diff, int new_line_count) {
    lines_of_a_diff found;
    std::vector<int>& lines = found.marked;
    auto mark = [&](int line) {
        line = std::max(0, std::min(line, new_line_count - 1));
        if (lines.empty() || lines.back() != line)
            lines.push_back(line);
    };
    std::istringstream in(diff);
    std::string line;
    int next_new = 0;  // from 0: the line of the new side that comes next
    bool in_hunk = false;
    while (std::getline(in, line)) {
        if (line.compare(0, 3, "@@ ") == 0) {
            // "@@ -a,b +c,d @@": c counts from 1, and names the line before when d is 0.
            auto const plus = line.find('+');
            if (plus == std::string::npos)
                continue;
            int start = 0, count = 1;
            char comma = 0;
            std::istringstream numbers(line.substr(plus + 1));
            numbers >> start;
            if (numbers.get(comma) && comma == ',')
                numbers >> count;
            next_new = count == 0 ? start : start - 1;
            in_hunk = true;
            continue;
        }
        if (!in_hunk || line.empty())
            continue;
        switch (line[0]) {
        case ' ':
            ++next_new;
            break;
        case '+':
            ++found.added;
            mark(next_new);
            ++next_new;
            break;
        case '-':
            if (new_line_count > 0)
                mark(next_new);
            break;
        default:
            break;
        }
    }
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return found;
}

// The count revises every file of the task on both cores: its thread gives way to the window's,
// so that key presses keep their speed while it runs (where the system lets a thread say so).
void yield_to_the_window() {
#ifdef __linux__
    setpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid)), 10);
#endif
}

// The worker's whole job: the task's files, the one to preview, read, revised and compared.
preview_outcome outcome_of(preview_request const& request) {
    kernel const k;
    preview_outcome outcome;
    outcome.generation = request.generation;
    outcome.paths = request.task.paths;
    outcome.files = k.files_of(request.task);
    if (outcome.files.isEmpty()) {
        outcome.how = preview_outcome::end::no_files;
        return outcome;
    }
    outcome.file = outcome.files.contains(request.chosen) ? request.chosen : outcome.files.first();
    QFile file(outcome.file);
    if (!file.open(QIODevice::ReadOnly)) {
        outcome.how = preview_outcome::end::unreadable;
        return outcome;
    }
    QByteArray const bytes = file.readAll();
    std::string const text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    std::string revised, report;
    text_outcome_status const status = k.revise_text(request.task, outcome.file.toStdString(), text, revised, report);
    outcome.lines_of_file = line_count_of(text);
    outcome.report = QString::fromStdString(report).trimmed();
    switch (status) {
    case text_outcome_status::revised: {
        outcome.how = preview_outcome::end::revised;
        outcome.text = QString::fromStdString(revised);
        lines_of_a_diff const lines = lines_in(k.unified_diff_of("preview", text, revised), line_count_of(revised));
        outcome.changed_lines = lines.marked;
        outcome.lines_changed = static_cast<int>(k.lines_changed_between(text, revised));
        outcome.lines_added = lines.added;
        break;
    }
    case text_outcome_status::refused:
        outcome.how = preview_outcome::end::refused;
        outcome.text = QString::fromStdString(text);
        break;
    case text_outcome_status::not_started:
        outcome.how = preview_outcome::end::not_started;
        outcome.text = QString::fromStdString(text);
        break;
    }
    return outcome;
}

// A file as the list shows it: from the directory of the task's path it was found under (so
// "examples/c/word_count.h" for a file below the path "…/examples"), in full when it is none's.
QString shown_name_of(QString const& file, QStringList const& paths) {
    for (QString const& path : paths) {
        QString const clean = QDir::cleanPath(path);
        if (file == clean || file.startsWith(clean + "/"))
            return QDir::toNativeSeparators(QFileInfo(clean).dir().relativeFilePath(file));
    }
    return QDir::toNativeSeparators(file);
}

// A read-only text takes no shortcut of its own, so the window's Copy and Select all (the form
// editor's) would act while the preview has the focus: the preview keeps those keys for itself.
class keeps_copy_and_select_all : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride) {
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
                event->accept();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

class preview_of_code::implementation {
public:
    explicit implementation(preview_of_code* owner)
        : figure(new QLabel(owner)), progress(new QProgressBar(owner)), most_changed(new QListWidget(owner)),
          files(new QComboBox(owner)), message(new QLabel(owner)), text(new QPlainTextEdit(owner)),
          previous(new QPushButton(QObject::tr(text::previous_change), owner)),
          next(new QPushButton(QObject::tr(text::next_change), owner)), later(new QTimer(owner)) {
        auto* caption = new QLabel(QObject::tr(text::preview_caption), owner);
        caption->setStyleSheet("QLabel { font: bold; }");
        caption->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        caption->setBuddy(files);
        figure->setObjectName("changes_figure");
        figure->setWordWrap(true);
        figure->setAccessibleName(QObject::tr(text::changes_caption));
        progress->setObjectName("changes_progress");
        progress->setAccessibleName(QObject::tr(text::counting_changes));
        progress->setTextVisible(false);
        progress->setMaximumHeight(8);
        progress->hide();
        most_changed->setObjectName("most_changed_files");
        most_changed->setAccessibleName(QObject::tr(text::most_changed_files));
        most_changed->setToolTip(QObject::tr(text::most_changed_files));
        most_changed->setMaximumHeight(4 * most_changed->fontMetrics().height() + 8);
        most_changed->hide();
        files->setObjectName("file_to_preview");
        files->setAccessibleName(QObject::tr(text::file_to_preview));
        files->setToolTip(QObject::tr(text::file_to_preview));
        files->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        files->setMinimumContentsLength(16);
        message->setObjectName("preview_status");
        message->setWordWrap(true);
        message->setAccessibleName(QObject::tr(text::preview_caption));
        text->setObjectName("previewed_file");
        text->setAccessibleName(QObject::tr(text::previewed_file));
        text->setReadOnly(true);
        // Selected and copied with the keyboard too.
        text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        text->installEventFilter(new keeps_copy_and_select_all(text));
        text->setLineWrapMode(QPlainTextEdit::NoWrap);
        text->setMinimumWidth(180);
        QFont font("Courier");
        font.setStyleHint(QFont::Monospace);
        text->setFont(font);
        previous->setObjectName("previous_change");
        previous->setAccessibleName(QObject::tr(text::previous_change));
        next->setObjectName("next_change");
        next->setAccessibleName(QObject::tr(text::next_change));
        later->setSingleShot(true);
        later->setInterval(0);
        auto* buttons = new QHBoxLayout;
        buttons->setContentsMargins(0, 0, 0, 0);
        buttons->addWidget(previous);
        buttons->addWidget(next);
        buttons->addStretch();
        auto* layout = new QVBoxLayout(owner);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(caption);
        layout->addWidget(figure);
        layout->addWidget(progress);
        layout->addWidget(most_changed);
        layout->addWidget(files);
        layout->addWidget(message);
        layout->addWidget(text, 1);
        layout->addLayout(buttons);
        no_changes_to_go_to();
    }

    // The worker may be in the plugin: it is cut from the pane and waited for.
    ~implementation() {
        if (link)
            link->cut();
        if (count_link)
            count_link->cut();
        if (worker.joinable())
            worker.join();
        if (counter.joinable())
            counter.join();
    }

    void no_changes_to_go_to() {
        changes.clear();
        previous->setEnabled(false);
        next->setEnabled(false);
    }

    // The first lines of the runs of changed lines.
    void take_changes_of(std::vector<int> const& lines) {
        changes.clear();
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (i == 0 || lines[i] != lines[i - 1] + 1)
                changes.push_back(lines[i]);
        previous->setEnabled(!changes.empty());
        next->setEnabled(!changes.empty());
    }

    void mark(std::vector<int> const& lines) {
        QList<QTextEdit::ExtraSelection> marks;
        QTextCharFormat changed;
        changed.setBackground(QColor("#fbe7a1"));
        changed.setProperty(QTextFormat::FullWidthSelection, true);
        QTextDocument* const document = text->document();
        for (int line : lines) {
            QTextBlock const block = document->findBlockByNumber(line);
            if (!block.isValid())
                continue;
            QTextEdit::ExtraSelection selection;
            selection.cursor = QTextCursor(block);
            selection.format = changed;
            marks.append(selection);
        }
        text->setExtraSelections(marks);
    }

    void go_to_line(int line) {
        QTextCursor cursor(text->document()->findBlockByNumber(line));
        text->setTextCursor(cursor);
        text->centerCursor();
    }

    void show_files(QStringList const& all, QStringList const& paths, QString const& shown) {
        if (all != listed) {
            QSignalBlocker const quiet(files);
            files->clear();
            for (QString const& file : all) {
                files->addItem(shown_name_of(file, paths), file);
                files->setItemData(files->count() - 1, QDir::toNativeSeparators(file), Qt::ToolTipRole);
            }
            listed = all;
        }
        QSignalBlocker const quiet(files);
        files->setCurrentIndex(files->findData(shown));
    }

    QLabel* figure;
    QProgressBar* progress;
    QListWidget* most_changed;
    QComboBox* files;
    QLabel* message;
    QPlainTextEdit* text;
    QPushButton* previous;
    QPushButton* next;
    QTimer* later;
    QStringList listed;
    QString chosen;
    std::vector<int> changes;
    unsigned long generation = 0;
    bool busy = false;
    bool again = false;
    std::shared_ptr<worker_link<preview_of_code>> link;
    std::thread worker;
    // The count of the whole task.
    unsigned long count_generation = 0;
    bool counting = false;
    bool count_stopped = false;
    std::shared_ptr<worker_link<preview_of_code>> count_link;
    std::thread counter;
};

preview_of_code::preview_of_code(QWidget* parent)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this)) {
    setObjectName("preview_of_code");
    setAccessibleName(tr(text::preview_caption));
    connect(pimpl->later, &QTimer::timeout, this, &preview_of_code::update_now);
    connect(pimpl->files, QOverload<int>::of(&QComboBox::activated), this, &preview_of_code::file_was_chosen);
    connect(pimpl->most_changed, &QListWidget::itemClicked, this, &preview_of_code::changed_file_was_clicked);
    connect(pimpl->most_changed, &QListWidget::itemActivated, this, &preview_of_code::changed_file_was_clicked);
    connect(pimpl->next, &QPushButton::clicked, this, &preview_of_code::go_to_next_change);
    connect(pimpl->previous, &QPushButton::clicked, this, &preview_of_code::go_to_previous_change);
    setEnabled(false);
}

preview_of_code::~preview_of_code() = default;

QWidget* preview_of_code::widget_ptr() { return this; }

unsigned long preview_of_code::generation() const { return pimpl->generation; }

QComboBox* preview_of_code::chooser() const { return pimpl->files; }

QPlainTextEdit* preview_of_code::view() const { return pimpl->text; }

QLabel* preview_of_code::status() const { return pimpl->message; }

QLabel* preview_of_code::figure() const { return pimpl->figure; }

QListWidget* preview_of_code::most_changed_files() const { return pimpl->most_changed; }

unsigned long preview_of_code::count_generation() const { return pimpl->count_generation; }

void preview_of_code::something_has_changed() { pimpl->later->start(); }

void preview_of_code::update_now() {
    implementation& p = *pimpl;
    p.later->stop();
    ++p.generation;
    ++p.count_generation;
    preview_again();
    count_again();
}

// The task as the other panes show it; false without a language or a style.
bool preview_of_code::task_asked(revision_task& task) {
    QString language, style, extensions;
    emit obtain_programming_language(language);
    emit obtain_formatting_style(style);
    if (language.isEmpty() || style.isEmpty())
        return false;
    emit obtain_filename_extensions(extensions);
    emit obtain_raw_paths_to_revising_files(task.paths);
    task.language = language.toStdString();
    task.style = style.toStdString();
    task.extensions = extensions.simplified().toStdString();
    task.quiet = true;
    return true;
}

// One worker at a time: a request made while it works makes it start again with the newest
// task once it is done, and what it was doing is dropped by its number.
void preview_of_code::preview_again() {
    implementation& p = *pimpl;
    if (p.busy) {
        p.again = true;
        return;
    }
    preview_request request;
    request.generation = p.generation;
    if (!task_asked(request.task)) {
        disable_with_cleanup();
        return;
    }
    request.chosen = p.chosen;
    setEnabled(true);
    p.message->setText(tr(text::previewing));
    p.busy = true;
    auto const link = std::make_shared<worker_link<preview_of_code>>(this);
    p.link = link;
    p.worker = std::thread([link, request] {
        preview_outcome const outcome = outcome_of(request);
        link->reach([&outcome](preview_of_code& to) {
            QMetaObject::invokeMethod(&to, [&to, outcome] { to.worker_has_finished(outcome); }, Qt::QueuedConnection);
        });
    });
}

void preview_of_code::worker_has_finished(preview_outcome const& outcome) {
    implementation& p = *pimpl;
    p.worker.join();
    p.link.reset();
    p.busy = false;
    if (p.again) {
        p.again = false;
        preview_again();
        return;
    }
    show_outcome(outcome);
}

// The count of the whole task on a worker of its own; a newer change stops it, and it starts
// again with the newest task once it has stopped.
void preview_of_code::count_again() {
    implementation& p = *pimpl;
    if (p.counting) {
        p.count_stopped = true;
        p.count_link->stop = true;
        return;
    }
    revision_task task;
    if (!task_asked(task))
        return;
    p.counting = true;
    p.figure->setText(tr(text::counting_changes));
    p.progress->setRange(0, 0);
    p.progress->setValue(0);
    p.progress->QWidget::show();
    auto const link = std::make_shared<worker_link<preview_of_code>>(this);
    p.count_link = link;
    unsigned long const generation = p.count_generation;
    p.counter = std::thread([link, task, generation] {
        yield_to_the_window();
        changes_under_style const changes = kernel().changes_under_style_of(
            task,
            [&link](unsigned long done, int found) {
                link->reach([done, found](preview_of_code& to) {
                    QMetaObject::invokeMethod(&to, [&to, done, found] { to.count_went_on(done, found); },
                                              Qt::QueuedConnection);
                });
            },
            link->stop);
        link->reach([&changes, generation](preview_of_code& to) {
            QMetaObject::invokeMethod(&to, [&to, changes, generation] { to.count_has_finished(changes, generation); },
                                      Qt::QueuedConnection);
        });
    });
}

void preview_of_code::count_went_on(unsigned long done, int found) {
    implementation& p = *pimpl;
    if (!p.counting || p.count_stopped)
        return;
    p.progress->setRange(0, found);
    p.progress->setValue(static_cast<int>(std::min<unsigned long>(done, static_cast<unsigned long>(found))));
}

void preview_of_code::count_has_finished(changes_under_style const& changes, unsigned long generation) {
    implementation& p = *pimpl;
    p.counter.join();
    p.count_link.reset();
    p.counting = false;
    p.progress->hide();
    if (p.count_stopped) {
        p.count_stopped = false;
        count_again();
        return;
    }
    show_changes(changes, generation);
}

void preview_of_code::show_changes(changes_under_style const& changes, unsigned long generation) {
    implementation& p = *pimpl;
    if (generation != p.count_generation)
        return;  // A newer change overtook it.
    p.most_changed->clear();
    if (!changes.started || changes.stopped) {
        p.figure->clear();
        p.most_changed->hide();
        return;
    }
    p.figure->setText(tr(text::changes_prefix) + QString::number(changes.lines_changed) + tr(text::changes_of) +
                      QString::number(changes.lines) + tr(text::changes_lines_in) +
                      QString::number(changes.files_changed) + tr(text::changes_of) + QString::number(changes.files) +
                      tr(text::changes_files));
    QStringList paths;
    emit obtain_raw_paths_to_revising_files(paths);
    std::size_t const shown = std::min<std::size_t>(changes.changed_files.size(), 10);
    for (std::size_t file = 0; file < shown; ++file) {
        auto const& changed = changes.changed_files[file];
        auto* item = new QListWidgetItem(shown_name_of(changed.first, paths) + tr(text::changed_lines_prefix) +
                                         QString::number(changed.second) +
                                         tr(changed.second == 1 ? text::changed_line_suffix : text::changed_lines_suffix));
        item->setData(Qt::UserRole, changed.first);
        item->setToolTip(QDir::toNativeSeparators(changed.first));
        p.most_changed->addItem(item);
    }
    p.most_changed->setVisible(shown > 0);
    emit changes_were_counted();
}

void preview_of_code::changed_file_was_clicked(QListWidgetItem* item) {
    pimpl->chosen = item->data(Qt::UserRole).toString();
    ++pimpl->generation;
    preview_again();
}

void preview_of_code::show_outcome(preview_outcome const& outcome) {
    implementation& p = *pimpl;
    if (outcome.generation != p.generation)
        return;  // A newer change overtook it.
    using end = preview_outcome::end;
    p.show_files(outcome.files, outcome.paths, outcome.file);
    p.no_changes_to_go_to();
    p.text->setPlainText(outcome.text);
    p.mark(outcome.changed_lines);
    switch (outcome.how) {
    case end::no_files:
        p.message->setText(tr(text::no_file_to_preview));
        break;
    case end::unreadable:
        p.message->setText(tr(text::file_cannot_be_read));
        break;
    case end::refused:
        p.message->setText(tr(text::plugin_refuses_the_file));
        break;
    case end::not_started:
        p.message->setText(outcome.report);
        break;
    case end::revised:
        if (outcome.changed_lines.empty()) {
            p.message->setText(tr(text::file_stays_as_it_is));
            break;
        }
        if (outcome.lines_changed > 0)
            p.message->setText(tr(text::lines_change_prefix) + QString::number(outcome.lines_changed) +
                               tr(text::lines_change_middle) + QString::number(outcome.lines_of_file) +
                               tr(text::lines_change_suffix));
        else
            p.message->setText(tr(text::lines_added_prefix) + QString::number(outcome.lines_added) +
                               tr(text::lines_added_suffix));
        p.take_changes_of(outcome.changed_lines);
        break;
    }
    emit preview_was_shown();
}

void preview_of_code::disable_with_cleanup() {
    implementation& p = *pimpl;
    p.later->stop();
    ++p.generation;  // whatever is under way is not shown
    ++p.count_generation;
    if (p.counting) {
        p.count_link->stop = true;
        p.count_stopped = false;
    }
    p.figure->clear();
    p.progress->hide();
    p.most_changed->clear();
    p.most_changed->hide();
    {
        QSignalBlocker const quiet(p.files);
        p.files->clear();
    }
    p.listed.clear();
    p.text->clear();
    p.text->setExtraSelections({});
    p.message->clear();
    p.no_changes_to_go_to();
    setEnabled(false);
}

void preview_of_code::go_to_next_change() {
    implementation& p = *pimpl;
    int const here = p.text->textCursor().blockNumber();
    auto const next = std::upper_bound(p.changes.begin(), p.changes.end(), here);
    if (next != p.changes.end())
        p.go_to_line(*next);
    else if (!p.changes.empty())
        p.go_to_line(p.changes.front());
}

void preview_of_code::go_to_previous_change() {
    implementation& p = *pimpl;
    int const here = p.text->textCursor().blockNumber();
    auto const previous = std::lower_bound(p.changes.begin(), p.changes.end(), here);
    if (previous != p.changes.begin())
        p.go_to_line(*std::prev(previous));
    else if (!p.changes.empty())
        p.go_to_line(p.changes.back());
}

void preview_of_code::file_was_chosen(int index) {
    pimpl->chosen = pimpl->files->itemData(index).toString();
    ++pimpl->generation;
    preview_again();
}

}  // namespace GUI
