#include "GUI/app_menu_actions.h"

#include "GUI/top_window.h"
#include "GUI/messages.h"
#include "core/kernel.h"
#include "core/product.h"
#include "core/settings_keys.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QThread>
#include <QUrl>

namespace GUI {

lnf_menu_about_this_structure::lnf_menu_about_this_structure(QWidget* parent)
    : one_action(parent, {tr("How to change this structure")}) {
    name_as("lnf_menu_about_this_structure");
}

info_menu_online::info_menu_online(QWidget* parent)
    : one_action(parent, {tr("Online help"), QKeySequence(QKeySequence::HelpContents)}) {
    name_as("info_menu_online");
    connect(widget_ptr(), &QAction::triggered, this, &info_menu_online::open_user_guide_online);
}

void info_menu_online::open_user_guide_online() { QDesktopServices::openUrl(QUrl(text::user_guide_address)); }

info_menu_about::info_menu_about(QWidget* parent) : one_action(parent, {tr("About")}) {
    name_as("info_menu_about");
    connect(widget_ptr(), &QAction::triggered, this, &info_menu_about::display_info);
}

void info_menu_about::display_info() {
    auto* box = new QMessageBox(QMessageBox::Information, tr(text::about_title), tr(text::about_text),
                                QMessageBox::Ok, parentWidget());
    box->setObjectName("about_box");
    box->setAccessibleName(tr(text::about_title));
    box->setIconPixmap(QPixmap(":/images/addon.png"));
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

class app_menu_update::implementation {
public:
    implementation(app_menu_update* owner, QWidget* main_window)
        : owner(owner), main_window(main_window),
          notification(new QWidget(main_window, Qt::Window | Qt::CustomizeWindowHint)) {
        auto* layout = new QHBoxLayout(notification);
        layout->setContentsMargins(20, 20, 20, 20);
        layout->setSpacing(20);
        auto* image = new QLabel(notification);
        image->setPixmap(QPixmap(":/images/yes.png"));
        layout->addWidget(image);
        layout->addWidget(new QLabel(QObject::tr(text::update_takes_effect_next_start), notification));
        notification->setAccessibleName(QObject::tr(text::update_takes_effect_next_start));
        QVariant const directory = QSettings().value(settings_key::parent_directory_of_last_update);
        if (directory.isValid())
            last_directory = directory.toString();
    }

    // Made at its first use: a file dialog costs the window's start more than all the rest.
    QFileDialog* the_dialog() {
        if (dialog != nullptr)
            return dialog;
        dialog = new QFileDialog(main_window, QString(), QDir::homePath());
        dialog->setObjectName("update_dialog");
        dialog->setAccessibleName(QObject::tr("Update"));
        dialog->setOption(QFileDialog::DontUseNativeDialog);
        dialog->setWindowModality(Qt::WindowModal);
        dialog->setFilter(QDir::AllDirs | QDir::Files | QDir::Drives | QDir::NoDotAndDotDot);
        dialog->setViewMode(QFileDialog::Detail);
        dialog->setFileMode(QFileDialog::ExistingFile);
        dialog->setNameFilter(QObject::tr(text::executable_filter));
        QObject::connect(dialog, &QFileDialog::fileSelected, owner, &app_menu_update::get_update_factually);
        QObject::connect(dialog, &QFileDialog::rejected, owner, &app_menu_update::rejected);
        return dialog;
    }

    app_menu_update* owner;
    QWidget* main_window;
    QFileDialog* dialog = nullptr;
    QWidget* notification;
    QString last_directory;
};

app_menu_update::app_menu_update(QWidget* parent, QWidget* main_window)
    : one_action(parent, {tr("Update...")}), pimpl(std::make_unique<implementation>(this, main_window)) {
    name_as("app_menu_update");
    connect(widget_ptr(), &QAction::triggered, this, &app_menu_update::get_update);
}

app_menu_update::~app_menu_update() = default;

void app_menu_update::get_update() {
    QString directory = pimpl->last_directory;
    if (directory.isEmpty() || !QFileInfo(directory).isDir())
        directory = QDir::homePath();
    QFileDialog* const dialog = pimpl->the_dialog();
    dialog->setDirectory(directory);
    dialog->open();
}

void app_menu_update::get_update_factually(QString const& path) {
    if (pimpl->dialog != nullptr)
        pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
    pimpl->last_directory = QFileInfo(path).absolutePath();
    QSettings().setValue(settings_key::parent_directory_of_last_update, pimpl->last_directory);
    if (!kernel().apply(path.toStdString()))
        return;
    QRect geometry;
    emit obtain_geometry_of_main_window(geometry);
    pimpl->notification->adjustSize();
    pimpl->notification->move(geometry.center() - pimpl->notification->rect().center());
    pimpl->notification->show();
    QApplication::processEvents();
    // The notice stays on screen for a moment, the window waiting with it.
    QThread::msleep(2200);
    pimpl->notification->hide();
    show_main_window_as_top_window(pimpl->main_window);
}

void app_menu_update::rejected() {
    if (pimpl->dialog != nullptr)
        pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
}

agreement_dialog::agreement_dialog(QWidget* main_window) : QWidget(main_window), main_window(main_window) {
    setVisible(false);
}

void agreement_dialog::show_over_main_window() {
    auto* box = new QMessageBox(QMessageBox::Information, tr(text::agreement_title), tr(text::agreement_text),
                                QMessageBox::NoButton, main_window);
    box->setObjectName("agreement_dialog");
    box->setAccessibleName(tr(text::agreement_title));
    QPushButton* accept = box->addButton(tr(text::agreement_accept), QMessageBox::AcceptRole);
    box->addButton(tr(text::agreement_decline), QMessageBox::RejectRole);
    box->setDefaultButton(accept);
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::buttonClicked, this, [accept](QAbstractButton* clicked) {
        if (clicked == accept)
            kernel().remember_that_EULA_was_accepted();
        else
            QApplication::quit();
    });
    box->open();
}

}  // namespace GUI
