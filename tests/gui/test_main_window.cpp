// The main window as a user first sees it.
#include "GUI/main_window.h"
#include "tests/harness/test_main.h"

class test_main_window : public QObject {
    Q_OBJECT
private slots:
    void opens_titled_with_the_product_name();
};

void test_main_window::opens_titled_with_the_product_name() {
    GUI::main_window window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.windowTitle(), QString("Style Tarnel"));
    QCOMPARE(window.widget_ptr(), static_cast<QWidget*>(&window));
}

STYLE_TARNEL_WIDGET_TEST_MAIN_IN_BUNDLE(test_main_window)
#include "test_main_window.moc"
