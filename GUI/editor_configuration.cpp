#include "GUI/editor_configuration.h"

#include "GUI/critical_alert.h"
#include "GUI/menu_actions.h"
#include "GUI/messages.h"
#include "GUI/new_style_name.h"
#include "GUI/top_window.h"
#include "core/kernel.h"
#include "core/product.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSaveFile>

#include <string>
#include <vector>

namespace GUI {

namespace {

using end = engine_configuration_end;

QString listed(std::vector<std::string> const& options) {
    QStringList names;
    for (std::string const& option : options)
        names << QString::fromStdString(option);
    return names.join(QObject::tr(text::options_separator));
}

QString language_without_configuration(QString const& language) {
    return QObject::tr(text::plugin_of_language) + language + QObject::tr(text::has_no_engine_configuration);
}

// The options a made style does not carry, one line for each kind, as the command line names them.
QString what_was_left_out_of(configuration_import_outcome const& outcome) {
    QStringList lines;
    if (!outcome.left_out.empty())
        lines << QObject::tr(text::left_out_options) + listed(outcome.left_out) + QObject::tr(text::dot);
    if (!outcome.not_shown.empty())
        lines << QObject::tr(text::options_not_shown) + listed(outcome.not_shown) + QObject::tr(text::dot);
    return lines.join('\n');
}

// Written whole or not at all: an older file stays as it was when the new one cannot be.
bool write_whole(QString const& path, std::string const& text) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(text.data(), static_cast<qint64>(text.size())) == static_cast<qint64>(text.size()) &&
           file.commit();
}

}  // namespace

bool is_editor_configuration(QString const& path) {
    QString const name = QFileInfo(path).fileName();
    return name == ".clang-format" || name == "_clang-format";
}

class editor_configuration::implementation {
public:
    implementation(editor_configuration* owner, QWidget* main_window, style_menu_export_configuration* export_action)
        : owner(owner), main_window(main_window), export_action(export_action),
          names(new new_style_name(main_window, QObject::tr(text::make_a_style_title), [owner](QString const& name) {
              QString language;
              emit owner->obtain_programming_language(language);
              return refusal_of_new_style_name(name, language);
          })) {
        names->setObjectName("configuration_style_name_dialog");
    }

    QString current_language() const {
        QString language;
        emit owner->obtain_programming_language(language);
        return language;
    }

    QString current_style() const {
        QString style;
        emit owner->obtain_formatting_style(style);
        return style;
    }

    QFileDialog* the_dialog() {
        if (dialog != nullptr)
            return dialog;
        dialog = new QFileDialog(main_window, QObject::tr(text::editor_configuration_directory), QDir::homePath());
        dialog->setObjectName("export_configuration_dialog");
        dialog->setAccessibleName(QObject::tr(text::editor_configuration_directory));
        dialog->setOption(QFileDialog::DontUseNativeDialog);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        dialog->setWindowModality(Qt::WindowModal);
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setAcceptMode(QFileDialog::AcceptOpen);
        QObject::connect(dialog, &QFileDialog::fileSelected, owner, &editor_configuration::export_into);
        return dialog;
    }

    void tell_of_failure(QString const& message, bool exporting) {
        show_critical_alert(message, QString(), main_window);
        if (exporting)
            emit owner->export_is_finished(message);
        else
            emit owner->import_is_finished(message);
    }

    // The shown style's configuration written as `target`; the language and style are those shown
    // when the export began.
    void write(QString const& target, QString const& style, QString const& language) {
        engine_configuration_outcome const outcome =
            kernel().engine_configuration_of(style.toStdString(), language.toStdString());
        switch (outcome.how) {
        case end::done:
            break;
        case end::language_without_configuration:
            tell_of_failure(language_without_configuration(language), true);
            return;
        default:
            tell_of_failure(QObject::tr(text::cannot_tell_configuration_of) + style + QObject::tr(text::quote_and_dot),
                            true);
            return;
        }
        if (!write_whole(target, outcome.configuration)) {
            tell_of_failure(QObject::tr(text::cannot_write_file) + target + QObject::tr(text::quote_and_dot), true);
            return;
        }
        emit owner->export_is_finished(QString());
    }

    void ask_before_replacing(QString const& target, QString const& style, QString const& language) {
        auto* box = new QMessageBox(QMessageBox::Question, product::title,
                                    QObject::tr(text::there_is_already_a_file) + target + QObject::tr(text::replace_it),
                                    QMessageBox::Yes | QMessageBox::No, main_window->window());
        box->setObjectName("replace_configuration_question");
        box->setAccessibleName(box->text());
        box->setDefaultButton(QMessageBox::No);
        box->setWindowModality(Qt::WindowModal);
        box->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(box, &QMessageBox::finished, owner, [this, box, target, style, language](int) {
            if (box->clickedButton() == box->button(QMessageBox::Yes))
                write(target, style, language);
            else
                emit owner->export_is_finished(QString());
        });
        box->open();
    }

    void ask_for_the_next_name() {
        if (!waiting.isEmpty())
            names->ask();
    }

    QString made_style_ending(configuration_import_outcome const& outcome, QString const& path, QString const& style,
                              QString const& language) const {
        switch (outcome.how) {
        case end::bad_style_name:
            return refusal_of_bad_style_name(style);
        case end::language_without_configuration:
            return language_without_configuration(language);
        case end::no_such_language:
            return QObject::tr(text::there_is_no_language) + language + QObject::tr(text::quote_and_dot);
        case end::not_installed:
            return QObject::tr(text::cannot_install_style) + style + QObject::tr(text::addons_directory_hint);
        default:
            if (outcome.reason.empty())
                return QObject::tr(text::cannot_make_a_style_of) + path + QObject::tr(text::quote_and_dot);
            return QObject::tr(text::cannot_make_a_style_of) + path + QObject::tr(text::reason_follows) +
                   QString::fromStdString(outcome.reason) + QObject::tr(text::dot);
        }
    }

    editor_configuration* owner;
    QWidget* main_window;
    style_menu_export_configuration* export_action;
    new_style_name* names;
    QFileDialog* dialog = nullptr;
    // The configuration files still to be made styles of, the first one's name being asked.
    QStringList waiting;
};

editor_configuration::editor_configuration(QWidget* parent, QWidget* main_window,
                                           style_menu_export_configuration* export_action)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, main_window, export_action)) {
    QWidget::hide();
    connect(export_action->widget_ptr(), &QAction::triggered, this, &editor_configuration::choose_a_directory);
    connect(pimpl->names, &new_style_name::name_was_given, this, &editor_configuration::make_style_named);
    connect(pimpl->names, &QDialog::rejected, this, [this] {
        if (!pimpl->waiting.isEmpty())
            pimpl->waiting.removeFirst();
        pimpl->ask_for_the_next_name();
    });
}

editor_configuration::~editor_configuration() = default;

QFileDialog* editor_configuration::directory_dialog() const { return pimpl->dialog; }

new_style_name* editor_configuration::name_dialog() const { return pimpl->names; }

void editor_configuration::there_is_a_style() { pimpl->export_action->enable(); }

void editor_configuration::there_is_no_style() { pimpl->export_action->disable(); }

void editor_configuration::choose_a_directory() {
    if (pimpl->current_style().isEmpty())
        return;
    pimpl->the_dialog()->open();
}

void editor_configuration::export_into(QString const& directory) {
    if (pimpl->dialog != nullptr)
        pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
    QString const language = pimpl->current_language();
    QString const style = pimpl->current_style();
    if (style.isEmpty())
        return;
    // The directory is checked first: nothing is asked of a plugin for a place it cannot go.
    QString const absolute = QFileInfo(directory).absoluteFilePath();
    QFileInfo const info(absolute);
    if (!info.exists() || !info.isDir() || !info.isReadable() || !info.isWritable()) {
        pimpl->tell_of_failure(tr(text::cannot_export_to) + absolute + tr(text::make_sure_you_can_write), true);
        return;
    }
    QString const target = absolute + "/" + text::editor_configuration_file;
    if (QFileInfo::exists(target))
        pimpl->ask_before_replacing(target, style, language);
    else
        pimpl->write(target, style, language);
}

void editor_configuration::import_configurations(QStringList const& paths) {
    bool const asking = !pimpl->waiting.isEmpty();
    pimpl->waiting += paths;
    if (!asking)
        pimpl->ask_for_the_next_name();
}

void editor_configuration::make_style_named(QString const& name) {
    if (pimpl->waiting.isEmpty())
        return;
    QString const path = pimpl->waiting.takeFirst();
    QString const language = pimpl->current_language();
    configuration_import_outcome const outcome =
        kernel().import_style_from_configuration(path.toStdString(), language.toStdString(), name.toStdString());
    if (outcome.how == end::done) {
        emit style_was_made(name);
        QString const note = what_was_left_out_of(outcome);
        if (!note.isEmpty()) {
            auto* box = new QMessageBox(QMessageBox::Information, product::title, note, QMessageBox::Close,
                                        pimpl->main_window->window());
            box->setObjectName("configuration_note");
            box->setAccessibleName(note);
            box->setWindowModality(Qt::WindowModal);
            box->setAttribute(Qt::WA_DeleteOnClose);
            box->open();
        }
        emit import_is_finished(note);
    } else {
        pimpl->tell_of_failure(pimpl->made_style_ending(outcome, path, name, language), false);
    }
    pimpl->ask_for_the_next_name();
}

}  // namespace GUI
