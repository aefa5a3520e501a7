// Line-ending and space detection in every encoding the host hands to plugins.
#include "engine/traits_of.h"

#include <QtTest>

namespace {

std::string bytes(std::initializer_list<int> list) {
    std::string text;
    for (int byte : list)
        text += static_cast<char>(byte);
    return text;
}

QByteArray shown(std::string const& text) { return QByteArray::fromStdString(text).toHex(' '); }

}  // namespace

class test_line_endings : public QObject {
    Q_OBJECT
private slots:
    void detects_the_first_line_break_data();
    void detects_the_first_line_break();
};

void test_line_endings::detects_the_first_line_break_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("EOL");
    QTest::addColumn<QByteArray>("space");
    auto row = [](char const* name, std::string text, std::string EOL, std::string space) {
        QTest::newRow(name) << QByteArray::fromStdString(text) << shown(EOL) << shown(space);
    };
    row("empty text", "", "", "");
    row("no line break", "int a;", "", "");
    row("LF", "a\nb", "\n", " ");
    row("CR LF", bytes({0x61, 0x0D, 0x0A, 0x62}), "\r\n", " ");
    row("CR alone", bytes({0x61, 0x0D, 0x62, 0x0D, 0x63}), "\r", " ");
    row("only the first line break counts", "first line\nsecond line\r\n", "\n", " ");
    row("a lone CR before the first LF", "a\rb\nc", "\n", " ");
    row("UTF-16 LE, LF", bytes({0x61, 0, 0x0A, 0}), bytes({0x0A, 0}), bytes({0x20, 0}));
    row("UTF-16 BE, LF", bytes({0, 0x61, 0, 0x0A}), bytes({0, 0x0A}), bytes({0, 0x20}));
    // Length alone decides the space, so UTF-16 CR LF gets the four-byte form.
    row("UTF-16 LE, CR LF", bytes({0x61, 0, 0x62, 0, 0x0D, 0, 0x0A, 0}), bytes({0x0D, 0, 0x0A, 0}),
        bytes({0x20, 0, 0, 0}));
    // A sequence counts only at an offset that is a multiple of its own length: a UTF-16 CR LF
    // that starts two bytes into a four-byte block is taken for its LF alone.
    row("UTF-16 LE, CR LF off a four-byte boundary", bytes({0x61, 0, 0x0D, 0, 0x0A, 0}),
        bytes({0x0A, 0}), bytes({0x20, 0}));
    row("UTF-16 LE with byte-order mark", bytes({0xFF, 0xFE, 0x61, 0, 0x0A, 0, 0x62, 0}),
        bytes({0x0A, 0}), bytes({0x20, 0}));
    row("UTF-16 BE, CR alone", bytes({0, 0x61, 0, 0x0D, 0, 0x62}), bytes({0, 0x0D}), bytes({0, 0x20}));
    row("UTF-32 LE, LF", bytes({0x61, 0, 0, 0, 0x0A, 0, 0, 0, 0x62, 0, 0, 0}), bytes({0x0A, 0, 0, 0}),
        bytes({0x20, 0, 0, 0}));
    row("UTF-32 BE, CR LF", bytes({0, 0, 0, 0x61, 0, 0, 0, 0x62, 0, 0, 0, 0x0D, 0, 0, 0, 0x0A}),
        bytes({0, 0, 0, 0x0D, 0, 0, 0, 0x0A}), bytes({0, 0, 0, 0x20}));
    // "0A 00" found at an odd offset is not a UTF-16 LE code unit; the next aligned candidate wins.
    row("UTF-16 BE whose 0A 00 pair is misaligned", bytes({0, 0x61, 0, 0x0A, 0, 0x62}),
        bytes({0, 0x0A}), bytes({0, 0x20}));
    row("8-bit text with a NUL after the LF", bytes({0x61, 0x62, 0x63, 0x0A, 0, 0x64}), "\n", " ");
}

void test_line_endings::detects_the_first_line_break() {
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, EOL);
    QFETCH(QByteArray, space);
    line_ending_traits const traits = detail::traits_of()(text.toStdString());
    QCOMPARE(shown(traits.EOL), EOL);
    QCOMPARE(shown(traits.space), space);
}

QTEST_APPLESS_MAIN(test_line_endings)
#include "test_line_endings.moc"
