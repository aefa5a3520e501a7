// The lines of a block comment move with its first line, in spaces and in tabs, right and left,
// with and without a leading `*`, after code and before it, inside a directive, with CR LF and CR;
// a line with less white space than it should lose loses what it has. Each case goes through
// our C and our C++ plugin, and revising the result again changes nothing; and a comment moved
// right and one moved left in every other language of ours.
#include "helpers/our_plugins.h"

#include "c_language.h"
#include "cpp_language.h"
#include "revision.h"

#include <QtTest>

using namespace our_plugins;

namespace {

// The option sets the cases are written in: indent and tab widths both 4 in spaces, the kernel's
// 8-column tabs, and tabs of 4 columns for indentation alone.
char const* const spaces_of_4 = "{BasedOnStyle: LLVM, IndentWidth: 4, TabWidth: 4, ColumnLimit: 100}";
char const* const tabs_of_8 = "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 8, UseTab: Always, ColumnLimit: 100}";
char const* const tabs_to_indent = "{BasedOnStyle: LLVM, IndentWidth: 4, TabWidth: 4, UseTab: ForIndentation, ColumnLimit: 100}";

std::string with_line_ending(std::string const& text, std::string const& ending) {
    std::string ended;
    for (char c : text)
        ended += c == '\n' ? ending : std::string(1, c);
    return ended;
}

}  // namespace

class test_block_comments : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    void lines_move_with_the_first_data() {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        struct case_of_comment {
            char const* name;
            char const* options;
            std::string input;
            std::string expected;
        };
        std::vector<case_of_comment> const cases = {
            {"stars, depth 1, moved right", spaces_of_4,
             "void f(void) {\n/* one\n * two\n */\nx();\n}\n",
             "void f(void) {\n    /* one\n     * two\n     */\n    x();\n}\n"},
            {"no stars, depth 2, moved left", spaces_of_4,
             "void f(int a) {\n    if (a) {\n                /* one\n                   two\n                   three */\n        x();\n    }\n}\n",
             "void f(int a) {\n    if (a) {\n        /* one\n           two\n           three */\n        x();\n    }\n}\n"},
            {"blank line inside stays blank", spaces_of_4,
             "void f(void) {\n  /* one\n\n     two */\n  x();\n}\n",
             "void f(void) {\n    /* one\n\n       two */\n    x();\n}\n"},
            {"too little white space to move left", spaces_of_4,
             "void f(void) {\n            /* one\n  two\n              three */\n    x();\n}\n",
             "void f(void) {\n    /* one\ntwo\n      three */\n    x();\n}\n"},
            {"tabs read in a style of spaces", spaces_of_4,
             "void f(void) {\n\t\t/* one\n\t\t * two */\n    x();\n}\n",
             "void f(void) {\n    /* one\n     * two */\n    x();\n}\n"},
            // The engine breaks the line after a block comment of several lines.
            {"code after the comment", spaces_of_4,
             "void f(void) {\n/* one\n   two */ x();\n}\n",
             "void f(void) {\n    /* one\n       two */\n    x();\n}\n"},
            {"comment inside a line", spaces_of_4,
             "void f(void) {\nx(1, /* one\n        two */ 2);\n}\n",
             "void f(void) {\n    x(1, /* one\n            two */\n      2);\n}\n"},
            {"comment after code on its first line", spaces_of_4,
             "int   a; /* one\n            two */\n",
             "int a; /* one\n          two */\n"},
            // A comment of several lines makes the engine break a macro's body onto a line of its own.
            {"comment in a macro", spaces_of_4,
             "#define   M   1 /* one\n                   two */\nint   a;\n",
             "#define M" + std::string(90, ' ') + "\\\n    1 /* one\n         two */\nint a;\n"},
            {"comment in a conditional directive", spaces_of_4,
             "#if   A /* one\n           two */\nint   a;\n#endif\n",
             "#if A /* one\n         two */\nint a;\n#endif\n"},
            {"comment at the top level stays", spaces_of_4,
             "/* one\n     two\n */\nint   a;\n",
             "/* one\n     two\n */\nint a;\n"},
            {"tabs, depth 1, moved right", tabs_of_8,
             "void f(void)\n{\n    /* one\n     * two */\n    x();\n}\n",
             "void f(void) {\n\t/* one\n\t * two */\n\tx();\n}\n"},
            {"tabs, depth 2, moved left", tabs_of_8,
             "void f(int a) {\n\tif (a) {\n\t\t\t/* one\n\t\t\t * two\n\t\t\t */\n\t\tx();\n\t}\n}\n",
             "void f(int a) {\n\tif (a) {\n\t\t/* one\n\t\t * two\n\t\t */\n\t\tx();\n\t}\n}\n"},
            {"tabs, spaces read and laid out as tabs", tabs_of_8,
             "void f(int a) {\nif (a) {\n/* one\n          two */\n}\n}\n",
             "void f(int a) {\n\tif (a) {\n\t\t/* one\n\t\t\t  two */\n\t}\n}\n"},
            {"tabs for indentation alone, spaces beyond it", tabs_to_indent,
             "void f(void) {\n/* one\n     two */\n}\n",
             "void f(void) {\n\t/* one\n\t     two */\n}\n"},
        };
        for (case_of_comment const& each : cases) {
            QTest::newRow(each.name) << QString(each.options) << QString::fromStdString(each.input)
                                     << QString::fromStdString(each.expected);
            for (char const* const ending : {"\r\n", "\r"}) {
                std::string const name = std::string(each.name) + (ending[1] ? ", CR LF" : ", CR");
                QTest::newRow(name.c_str()) << QString(each.options)
                                            << QString::fromStdString(with_line_ending(each.input, ending))
                                            << QString::fromStdString(with_line_ending(each.expected, ending));
            }
        }
    }

    void lines_move_with_the_first() {
        QFETCH(QString, options);
        QFETCH(QString, input);
        QFETCH(QString, expected);
        for (std::string const language : {"C", "C++"}) {
            auto const& description = language == "C" ? c_language() : cpp_language();
            std::string const addon = tarnel_engine::addon_written_in(options.toStdString(), "Comments", description);
            QVERIFY(!addon.empty());
            loaded_plugin plugin(plugin_file_of(language));
            QVERIFY(plugin.get());
            std::string const source = input.toStdString();
            std::string const revised = plugin->revise(source, addon, traits_of(source));
            QCOMPARE(QString::fromStdString(revised), expected);
            QCOMPARE(QString::fromStdString(plugin->revise(revised, addon, traits_of(revised))), expected);
        }
    }

    // Every plugin revises through the same pipeline, but each reads its own comments: a language
    // whose lexing missed them would leave the lines behind.
    void lines_move_with_the_first_in_every_language_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        struct case_of_comment {
            char const* name;  // the language, and how the comment moves
            char const* input;
            char const* expected;
        };
        std::vector<case_of_comment> const cases = {
            {"Java, moved right", "class A {\nvoid f() {\n/* one\n * two\n */\nx();\n}\n}\n",
             "class A {\n    void f() {\n        /* one\n         * two\n         */\n        x();\n    }\n}\n"},
            {"Java, moved left", "class A {\n            /** one\n              two */\n  int a;\n}\n",
             "class A {\n    /** one\n      two */\n    int a;\n}\n"},
            {"C#, moved right", "class A {\nvoid F() {\n/* one\n * two\n */\nX();\n}\n}\n",
             "class A {\n    void F() {\n        /* one\n         * two\n         */\n        X();\n    }\n}\n"},
            {"C#, moved left", "class A {\n            /* one\n              two */\n  int a;\n}\n",
             "class A {\n    /* one\n      two */\n    int a;\n}\n"},
            {"JavaScript, moved right", "function f() {\nif (a) {\n/* one\n * two\n */\nx();\n}\n}\n",
             "function f() {\n    if (a) {\n        /* one\n         * two\n         */\n        x();\n    }\n}\n"},
            {"JavaScript, moved left", "class A {\n            /* one\n              two */\n  m() {}\n}\n",
             "class A {\n    /* one\n      two */\n    m() {}\n}\n"},
            {"Objective-C, moved right", "@implementation A\n- (void)f {\n/* one\n * two\n */\n[self x];\n}\n@end\n",
             "@implementation A\n- (void)f {\n    /* one\n     * two\n     */\n    [self x];\n}\n@end\n"},
            {"Protocol Buffers, moved right", "message A {\n/* one\n * two\n */\nint32 a = 1;\n}\n",
             "message A {\n    /* one\n     * two\n     */\n    int32 a = 1;\n}\n"},
            {"Protocol Buffers, moved left", "message A {\n            /* one\n              two */\n  int32 a = 1;\n}\n",
             "message A {\n    /* one\n      two */\n    int32 a = 1;\n}\n"},
        };
        for (case_of_comment const& each : cases)
            QTest::newRow(each.name) << QString(each.name).section(',', 0, 0) << QString(each.input)
                                     << QString(each.expected);
    }

    void lines_move_with_the_first_in_every_language() {
        QFETCH(QString, language);
        QFETCH(QString, input);
        QFETCH(QString, expected);
        std::string const addon = tarnel_engine::addon_written_in(
            "{BasedOnStyle: LLVM, IndentWidth: 4, ColumnLimit: 100, BreakBeforeBraces: Attach}", "Comments",
            description_of(language));
        QVERIFY(!addon.empty());
        loaded_plugin plugin(plugin_file_of(language.toStdString()));
        QVERIFY(plugin.get());
        std::string const source = input.toStdString();
        std::string const revised = plugin->revise(source, addon, traits_of(source));
        QCOMPARE(QString::fromStdString(revised), expected);
        QCOMPARE(QString::fromStdString(plugin->revise(revised, addon, traits_of(revised))), expected);
    }
};

QTEST_GUILESS_MAIN(test_block_comments)
#include "test_block_comments.moc"
