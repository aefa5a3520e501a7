// Our C and C++ plugins revising some lines through the range interface, loaded as the host loads
// them: the lines outside the ranges kept byte for byte (also when a block opens in a range and
// closes outside it), the revised lines stable when revised again, and what a whole revision
// promises (only white space, the line ending kept) still kept.
#include "helpers/our_plugins.h"

#include <QtTest>

using namespace our_plugins;

namespace {

std::vector<line_range> ranges_from(QString const& text) {
    std::vector<line_range> ranges;
    for (QString const& range : text.split(',', Qt::SkipEmptyParts))
        ranges.push_back({range.section(':', 0, 0).toULong(), range.section(':', 1, 1).toULong()});
    return ranges;
}

QList<QByteArray> lines_of(std::string const& text) { return QByteArray::fromStdString(text).split('\n'); }

}  // namespace

class test_line_ranges : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    void each_plugin_offers_the_range_interface_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("C") << c_plugin_file();
        QTest::newRow("C++") << cpp_plugin_file();
    }
    // Fault: a plugin that does not name the interface, which the host then refuses for lines.
    void each_plugin_offers_the_range_interface() {
        QFETCH(QString, file);
        loaded_plugin const plugin(file);
        QVERIFY(plugin.get() != nullptr);
        QVERIFY(plugin.ranges() != nullptr);
    }

    void ranges_touch_only_their_lines_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("addon");
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("ranges");
        QTest::addColumn<QByteArray>("expected");
        QByteArray const c = "int  a( int x ){\nif(x){\nreturn   1;\n}\n  return  0 ;\n}\nint  b( int x ){\nreturn   1;\n}\n";
        // Fault: the engine re-indents the block's other lines and its closing brace after the range.
        QTest::newRow("C: a block opened in the range closes outside it")
            << "C" << "GNU[C].style" << c << "2:2"
            << QByteArray("int  a( int x ){\n  if (x)\n    {\nreturn   1;\n}\n  return  0 ;\n}\nint  b( int x ){\nreturn   1;\n}\n");
        // Fault: the range's first line joined to a line before it that is not the range's.
        QTest::newRow("C: a line inside a block")
            << "C" << "GNU[C].style" << c << "3:3"
            << QByteArray("int  a( int x ){\nif(x){\n    return 1;\n}\n  return  0 ;\n}\nint  b( int x ){\nreturn   1;\n}\n");
        // Fault: the range reaching into the white space before the next line's first token.
        QTest::newRow("C: two ranges, the second a whole function")
            << "C" << "GNU[C].style" << c << "3:3,7:9"
            << QByteArray("int  a( int x ){\nif(x){\n    return 1;\n}\n  return  0 ;\n}\nint\nb (int x)\n{\n  return 1;\n}\n");
        // Fault: the start of a re-indented range, moved along with the engine's change of the white
        // space before it, taken for the line before, which the next round of the stability check
        // then revises too, and so on back to the first line.
        QTest::newRow("C++: directives before a re-indented directive")
            << "C++" << "LLVM[C++].style" << QByteArray("#if  defined(A)\n   #include <a.h>\n   #define  X  1\n#endif\n")
            << "3:3" << QByteArray("#if  defined(A)\n   #include <a.h>\n#define X 1\n#endif\n");
        // Fault: the engine's change of the white space before the range's first token, which
        // begins at the end of the line before, taking that line's trailing blanks along.
        QTest::newRow("C: trailing blanks of the line before the range")
            << "C" << "Linux kernel[C].style" << QByteArray("int  a;  \n   int  b;\n") << "2:2"
            << QByteArray("int  a;  \nint b;\n");
        // Fault: the same change taking along the blank line before a block's closing brace.
        QTest::newRow("C: a blank line before a closing brace in the range")
            << "C" << "Linux kernel[C].style" << QByteArray("void f(void)\n{\n\tg();\n\n}\n") << "5:5"
            << QByteArray("void f(void)\n{\n\tg();\n\n}\n");
        // Fault: blank lines before the range, beyond those the style keeps, taken out with the
        // range's own.
        QTest::newRow("C: blank lines before the range")
            << "C" << "Linux kernel[C].style" << QByteArray("int a;\n\n\n\n   int  b;\n") << "4:5"
            << QByteArray("int a;\n\n\nint b;\n");
        // Fault: a blank line of the range that the style keeps taken out with the trailing blanks
        // kept before it.
        QTest::newRow("C: a blank line opening the range")
            << "C" << "Linux kernel[C].style" << QByteArray("int a;  \n\n   int  b;\n") << "2:3"
            << QByteArray("int a;  \n\nint b;\n");
        // Fault: a range of blank lines taking along the line after it, which the white space
        // before its first token reaches: blank lines taken out, that line re-indented.
        QTest::newRow("C: a range of blank lines before a line outside it")
            << "C" << "Linux kernel[C].style" << QByteArray("int a;\n\n\n\n   int  b;\n") << "2:3"
            << QByteArray("int a;\n\n\n\n   int  b;\n");
        // Fault: a macro's escaped line breaks: the one ending the line before the range realigned,
        // the one ending the range's last line taken into the range, and with it the white space
        // after it, which the next line's indentation is part of.
        QTest::newRow("C: a line inside a macro")
            << "C" << "Linux kernel[C].style"
            << QByteArray("#define M(x) \\\n\tdo {\t\\\n  f( x );\t\\\n\t} while (0)\n") << "3:3"
            << QByteArray("#define M(x) \\\n\tdo {\t\\\n\t\tf(x);\t\\\n\t} while (0)\n");
        // Fault: the same when the token that the white space leads to opens its line.
        QTest::newRow("C: a range of blank lines before a line outside it, at its start")
            << "C" << "Linux kernel[C].style" << QByteArray("int a;\n\n\nint  b;\n") << "3:3"
            << QByteArray("int a;\n\n\nint  b;\n");
        QByteArray const cpp = "class  A{\npublic:\nint  f( ){return 1;}\nint  g( );\n};\nint  h( );\n";
        QTest::newRow("C++: a class opened in the range closes outside it")
            << "C++" << "LLVM[C++].style" << cpp << "1:3"
            << QByteArray("class A {\npublic:\n  int f() { return 1; }\nint  g( );\n};\nint  h( );\n");
        QTest::newRow("C++: a range on the closing line alone")
            << "C++" << "LLVM[C++].style" << cpp << "5:5" << cpp;
        // Fault: the CR LF of the kept lines, or of the revised ones, turned into LF.
        QTest::newRow("C++: CR LF kept")
            << "C++" << "LLVM[C++].style" << QByteArray("int  f( );\r\nint  g( );\r\nint  h( );\r\n") << "2:2"
            << QByteArray("int  f( );\r\nint g();\r\nint  h( );\r\n");
        // Fault: a range past the end taken as the last line, or as the whole file.
        QTest::newRow("C++: a range past the end changes nothing")
            << "C++" << "LLVM[C++].style" << cpp << "7:9" << cpp;
        // Fault: white space alone joining two tokens of the range (`! =` to `!=`), or a closer of
        // C++03 templates, accepted because only white space changed.
        QByteArray const joined = "int  f( );\nbool  y = a ! = b;\nstd::vector<std::vector<int> >  v;\n";
        QTest::newRow("C++: tokens the range would join are kept apart")
            << "C++" << "GNU[C++].style" << joined << "2:3" << joined;
    }
    // Faults: lines outside the ranges changed; revised lines that change when revised again;
    // more than white space changed.
    void ranges_touch_only_their_lines() {
        QFETCH(QString, language);
        QFETCH(QString, addon);
        QFETCH(QByteArray, source);
        QFETCH(QString, ranges);
        QFETCH(QByteArray, expected);
        loaded_plugin const plugin(language == "C" ? c_plugin_file() : cpp_plugin_file());
        QVERIFY(plugin.ranges() != nullptr);
        std::string const text = source.toStdString();
        std::string const style = shipped_addon(addon);
        std::vector<line_range> const asked = ranges_from(ranges);
        std::string const result = plugin.ranges()->revise_lines(text, style, traits_of(text), asked);
        QCOMPARE(QByteArray::fromStdString(result), expected);

        // The lines before the first range and after the last, whatever the expectation says.
        QList<QByteArray> const before = lines_of(text), after = lines_of(result);
        int const first = static_cast<int>(asked.front().first), last = static_cast<int>(asked.back().last);
        for (int line = 1; line < first && line <= before.size(); ++line)
            QCOMPARE(after[line - 1], before[line - 1]);
        int const added = after.size() - before.size();
        for (int line = last + 1; line <= before.size(); ++line)
            QCOMPARE(after[line + added - 1], before[line - 1]);

        // Revised again where the revised lines stand now: nothing changes.
        std::vector<line_range> moved = asked;
        long shift = 0;
        for (std::size_t each = 0; each < moved.size(); ++each) {
            std::string const alone = plugin.ranges()->revise_lines(text, style, traits_of(text), {asked[each]});
            long const grown = static_cast<long>(lines_of(alone).size()) - static_cast<long>(before.size());
            moved[each].first += shift;
            shift += grown;
            moved[each].last += shift;
        }
        QCOMPARE(QByteArray::fromStdString(plugin.ranges()->revise_lines(result, style, traits_of(result), moved)),
                 QByteArray::fromStdString(result));
    }

    // Fault: a source whose brackets do not pair up, formatted in part as if they did.
    void a_range_of_a_source_with_unpaired_brackets_is_refused() {
        loaded_plugin const plugin(c_plugin_file());
        std::string const source = "int  f( ){\nreturn  1;\n";
        QCOMPARE(plugin.ranges()->revise_lines(source, shipped_addon("GNU[C].style"), traits_of(source), {{2, 2}}),
                 std::string(STYLE_TARNEL_SYNTAX_ERROR_TEXT));
    }
};

QTEST_GUILESS_MAIN(test_line_ranges)
#include "test_line_ranges.moc"
