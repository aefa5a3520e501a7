// The report window: a top-level window of its own with the text of the last revision's report,
// opened centred over the main window and brought to the front when it is open already.
#ifndef STYLE_TARNEL_GUI_REPORT_H
#define STYLE_TARNEL_GUI_REPORT_H

#include <QWidget>

class QTextBrowser;

namespace GUI {

class report : public QWidget {
    Q_OBJECT
public:
    report();

    QString text() const;

signals:
    void obtain_geometry_of_main_window(QRect& geometry);

public slots:
    void store(QString const& text);
    void view();
    void revision_in_progress();

private:
    QTextBrowser* browser;
};

}  // namespace GUI

#endif
