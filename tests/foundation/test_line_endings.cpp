// Line-ending and space detection in every encoding the host hands to plugins; the cases are in
// line_endings.txt.
#include "engine/traits_of.h"
#include "tests/harness/temporary_bundle.h"

#include <QtTest>

class test_line_endings : public QObject {
    Q_OBJECT
private slots:
    void detects_the_first_line_break_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("EOL");
        QTest::addColumn<QByteArray>("space");
        for (auto const& row : cases_in(QFINDTESTDATA("line_endings.txt")))
            QTest::newRow(qPrintable(row["case"])) << QByteArray::fromHex(row["text"].toLatin1())
                                                   << row["EOL"].toLatin1() << row["space"].toLatin1();
    }
    void detects_the_first_line_break() {
        QFETCH(QByteArray, text);
        line_ending_traits const traits = detail::traits_of()(text.toStdString());
        QTEST(QByteArray::fromStdString(traits.EOL).toHex(' '), "EOL");
        QTEST(QByteArray::fromStdString(traits.space).toHex(' '), "space");
    }
};

QTEST_APPLESS_MAIN(test_line_endings)
#include "test_line_endings.moc"
