#include "GUI/report.h"

#include "GUI/messages.h"

#include <QTextBrowser>
#include <QVBoxLayout>

namespace GUI {

report::report() : QWidget(nullptr, Qt::Window), browser(new QTextBrowser(this)) {
    setObjectName("report");
    setWindowTitle(tr(text::report_title));
    setAccessibleName(tr(text::report_title));
    setMinimumSize(300, 200);
    resize(520, 260);
    browser->setObjectName("report_text");
    browser->setAccessibleName(tr(text::report_title));
    browser->setContextMenuPolicy(Qt::NoContextMenu);
    // The report can be selected and copied from the keyboard, too.
    browser->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(browser);
}

QString report::text() const { return browser->toPlainText(); }

void report::store(QString const& text) { browser->setPlainText(text); }

void report::revision_in_progress() { browser->setPlainText(tr(text::revision_in_progress_please_wait)); }

void report::view() {
    if (isVisible()) {
        raise();
        activateWindow();
        return;
    }
    QRect main;
    emit obtain_geometry_of_main_window(main);
    show();
    move((main.left() + main.right()) / 2 - width() / 2, (main.top() + main.bottom()) / 2 - height() / 2);
    raise();
    activateWindow();
}

}  // namespace GUI
