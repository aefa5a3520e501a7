// Regions kept as written: between our `style-tarnel off` and `style-tarnel on` comments, and
// between the engine's own markers, our C and C++ plugins change nothing, in a whole revision and
// in a revision of lines; around them they revise as usual.
#include "helpers/our_plugins.h"

#include <QtTest>

using namespace our_plugins;

class test_kept_regions : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    void lines_between_the_markers_are_kept_data() {
        QTest::addColumn<QString>("addon");
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QByteArray>("expected");
        QByteArray const table = "int  table[] = {\n    1,   2,\n   30,  40 };\n";
        for (char const* addon : {"LLVM[C++].style", "GNU[C].style"}) {
            QByteArray const name(addon);
            // Fault: our markers not told to the engine, so the table is laid out anew.
            QTest::newRow(name + ": line comments")
                << QString(name) << "int  a;\n// style-tarnel off\n" + table + "// style-tarnel on\nint  b;\n"
                << "int a;\n// style-tarnel off\n" + table + "// style-tarnel on\nint b;\n";
            QTest::newRow(name + ": block comments with blanks")
                << QString(name) << "int  a;\n/*  style-tarnel   off */\n" + table + "/* style-tarnel on  */\nint  b;\n"
                << "int a;\n/*  style-tarnel   off */\n" + table + "/* style-tarnel on  */\nint b;\n";
            // Fault: an off without its on ending the region at the end of a line or block.
            QTest::newRow(name + ": an off without its on keeps the rest")
                << QString(name) << "int  a;\n// style-tarnel off\n" + table + "int  b;\n"
                << "int a;\n// style-tarnel off\n" + table + "int  b;\n";
            QTest::newRow(name + ": the engine's own markers")
                << QString(name) << "int  a;\n// clang-format off\n" + table + "// clang-format on\nint  b;\n"
                << "int a;\n// clang-format off\n" + table + "// clang-format on\nint b;\n";
            // Fault: a comment that mentions the words in a sentence switching formatting off.
            QTest::newRow(name + ": the words in a sentence are no marker")
                << QString(name) << QByteArray("// turn style-tarnel off here\nint  a;\n") << QByteArray("// turn style-tarnel off here\nint a;\n");
        }
    }
    // Faults also: the markers put back in the wrong place, or as the engine's words; a result
    // that changes when revised again.
    void lines_between_the_markers_are_kept() {
        QFETCH(QString, addon);
        QFETCH(QByteArray, source);
        QFETCH(QByteArray, expected);
        loaded_plugin const plugin(addon.endsWith("[C].style") ? c_plugin_file() : cpp_plugin_file());
        std::string const text = source.toStdString();
        std::string const style = shipped_addon(addon);
        std::string const revised = plugin->revise(text, style, traits_of(text));
        QCOMPARE(QByteArray::fromStdString(revised), expected);
        QCOMPARE(QByteArray::fromStdString(plugin->revise(revised, style, traits_of(revised))), expected);
        // A range over the whole text keeps the region too.
        unsigned long const lines = static_cast<unsigned long>(source.count('\n'));
        QCOMPARE(QByteArray::fromStdString(plugin.ranges()->revise_lines(text, style, traits_of(text), {{1, lines}})),
                 expected);
    }
};

QTEST_GUILESS_MAIN(test_kept_regions)
#include "test_kept_regions.moc"
