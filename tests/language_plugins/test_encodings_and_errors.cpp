// What a revision keeps and refuses: the file's encoding (UTF-16 and UTF-32 either byte order,
// byte-order mark included) and line ending (LF, CR LF, CR), the syntax-error text for code whose
// brackets do not pair up or that the engine cannot format, and binary text left alone.
#include "bracket_balance.h"
#include "helpers/our_plugins.h"


#include <QtTest>

#include <map>

using namespace our_plugins;

namespace {

std::string const untidy = "// caf\xC3\xA9 \xF0\x9F\x98\x80\nint  main( ){if(x){y( );}\nreturn 0;}\n";
std::string const tidy_llvm = "// caf\xC3\xA9 \xF0\x9F\x98\x80\nint main() {\n  if (x) {\n    y();\n  }\n  return 0;\n}\n";

std::string with_line_endings(std::string const& text, std::string const& EOL) {
    std::string result;
    for (char c : text)
        result += c == '\n' ? EOL : std::string(1, c);
    return result;
}

// The UTF-8 text in the named encoding, code unit by code unit, with a byte-order mark if asked.
std::string encoded(std::string const& utf8, QString const& encoding, bool with_mark) {
    QString const text = (with_mark ? QString(QChar(0xFEFF)) : QString()) + QString::fromStdString(utf8);
    bool const little = encoding.endsWith("LE");
    std::vector<unsigned> units;
    unsigned width = 1;
    if (encoding.startsWith("UTF-16")) {
        width = 2;
        for (QChar c : text)
            units.push_back(c.unicode());
    } else if (encoding.startsWith("UTF-32")) {
        width = 4;
        for (uint code : text.toUcs4())
            units.push_back(code);
    } else {
        return text.toStdString();
    }
    std::string bytes;
    for (unsigned unit : units)
        for (unsigned i = 0; i < width; ++i)
            bytes += char((unit >> (8 * (little ? i : width - 1 - i))) & 0xFF);
    return bytes;
}

}  // namespace

class test_encodings_and_errors : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    void keeps_encoding_and_line_ending_data() {
        QTest::addColumn<QString>("encoding");
        QTest::addColumn<QString>("EOL");
        QTest::addColumn<bool>("with_mark");
        QTest::newRow("8-bit LF") << "UTF-8" << "\n" << false;
        QTest::newRow("8-bit CR LF") << "UTF-8" << "\r\n" << false;
        QTest::newRow("8-bit CR") << "UTF-8" << "\r" << false;
        QTest::newRow("UTF-8 with mark, CR LF") << "UTF-8" << "\r\n" << true;
        QTest::newRow("UTF-16LE with mark") << "UTF-16LE" << "\n" << true;
        QTest::newRow("UTF-16LE CR LF") << "UTF-16LE" << "\r\n" << true;
        QTest::newRow("UTF-16BE") << "UTF-16BE" << "\n" << false;
        QTest::newRow("UTF-16BE CR") << "UTF-16BE" << "\r" << true;
        QTest::newRow("UTF-32LE CR LF") << "UTF-32LE" << "\r\n" << true;
        QTest::newRow("UTF-32BE") << "UTF-32BE" << "\n" << false;
    }
    void keeps_encoding_and_line_ending() {
        QFETCH(QString, encoding);
        QFETCH(QString, EOL);
        QFETCH(bool, with_mark);
        std::string const source = encoded(with_line_endings(untidy, EOL.toStdString()), encoding, with_mark);
        std::string const expected = encoded(with_line_endings(tidy_llvm, EOL.toStdString()), encoding, with_mark);
        loaded_plugin plugin(cpp_plugin_file());
        std::string const addon = shipped_addon("LLVM[C++].style");
        QCOMPARE(QByteArray::fromStdString(plugin->revise(source, addon, traits_of(source))).toHex(' '),
                 QByteArray::fromStdString(expected).toHex(' '));
        QCOMPARE(plugin->revise(expected, addon, traits_of(expected)), expected);
    }

    // The brackets the check before the engine pairs up, read among the language's own tokens.
    // (The engine itself cannot take an unpaired bracket in JSX text or a Java text block.)
    void brackets_pair_up_among_the_languages_tokens_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("language");
        QTest::addColumn<bool>("balanced");
        int const javascript = static_cast<int>(tarnel_engine::lexed_as::javascript);
        int const java = static_cast<int>(tarnel_engine::lexed_as::java);
        QTest::newRow("JavaScript: a bracket in a regular expression") << "f(/[(]/);\n" << javascript << true;
        QTest::newRow("JavaScript: brackets in a template literal's text") << "f(`) ${a({})} [`);\n" << javascript << true;
        QTest::newRow("JavaScript: a bracket in JSX text") << "x = <p>a ( b {c}</p>;\n" << javascript << true;
        QTest::newRow("JavaScript: a substitution without its closing brace") << "f(`a ${b`);\n" << javascript << false;
        QTest::newRow("JavaScript: a call without its closing parenthesis") << "f(`(`, /)/;\n" << javascript << false;
        QTest::newRow("Java: brackets in a text block")
            << "class A {\n  String s = \"\"\"\n      ( [ {\n      \"\"\";\n}\n" << java << true;
        QTest::newRow("Java: a bracket in a character literal") << "class A { char c = '{'; }\n" << java << true;
        QTest::newRow("Java: a class without its closing brace") << "class A {\n  String s = \"}\";\n" << java << false;
    }
    void brackets_pair_up_among_the_languages_tokens() {
        QFETCH(QString, code);
        QFETCH(int, language);
        QFETCH(bool, balanced);
        QCOMPARE(tarnel_engine::brackets_are_balanced_in(code.toStdString(), static_cast<tarnel_engine::lexed_as>(language)),
                 balanced);
    }

    void answers_syntax_errors_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("is_error");
        QTest::addColumn<QStringList>("languages");
        QStringList const c_family = {"C", "C++"};
        QTest::newRow("missing closing brace") << "int f() {\n  if (x) {\n  }\n" << true << c_family;
        QTest::newRow("extra closing brace") << "int f() { }\n}\n" << true << c_family;
        QTest::newRow("unclosed parenthesis") << "int f(int a;\n" << true << c_family;
        QTest::newRow("crossed brackets") << "int a[3) = {1];\n" << true << c_family;
        QTest::newRow("brackets in strings and comments")
            << "char const* s = \"{(\"; // }\n/* ) */ int c = '{';\n" << false << c_family;
        QTest::newRow("a block opened in each branch")
            << "void f() {\n#ifdef A\n  if (a) {\n#else\n  if (b) {\n#endif\n    g();\n  }\n}\n" << false << c_family;
        QTest::newRow("a brace inside a macro") << "#define BEGIN {\n#define END }\nint x;\n" << false << c_family;
        QTest::newRow("Java: a method without its closing brace")
            << "class A {\n  void f() {\n    g(\"}\");\n}\n" << true << QStringList{"Java"};
        QTest::newRow("Java: brackets in literals and comments")
            << "class A {\n  char c = '{';\n  String s = \"(\"; // }\n}\n" << false << QStringList{"Java"};
        QTest::newRow("Protocol Buffers: a message without its closing brace")
            << "message A {\n  int32 a = 1;\n" << true << QStringList{"Protocol Buffers"};
        QTest::newRow("Protocol Buffers: brackets in strings of either quote")
            << "message A {\n  string a = 1 [default = '}'];\n  string b = 2 [default = \"]\"];\n}\n" << false
            << QStringList{"Protocol Buffers"};
        QTest::newRow("Objective-C: an implementation without the closing brace of its method")
            << "@implementation A\n- (void)f {\n  [self g:@\"}\"];\n@end\n" << true << QStringList{"Objective-C"};
        QTest::newRow("Objective-C: brackets in literals and a block")
            << "@implementation A\n- (id)f {\n  return @[ @\"]\", @\"{\" ];\n}\n@end\n" << false
            << QStringList{"Objective-C"};
        QTest::newRow("C#: a method without its closing brace")
            << "class A {\n  void F() {\n    G(\"}\");\n}\n" << true << QStringList{"C#"};
        QTest::newRow("C#: brackets in verbatim and interpolated strings")
            << "class A {\n  string a = @\"C:\\\"; string d = \"(\";\n  string e = @\"}\"\"(\";\n  string b = $\"{x} }}\";\n  string c = $@\"{{\"\"{y}\";\n}\n"
            << false << QStringList{"C#"};
        // The engine reads a null pointer on a `{` right after what it takes for a property's
        // accessors (and, with an initializer, after the first `;` of it): the process would die.
        QTest::newRow("C#: a block right after the accessors of a property")
            << "class A {\n  public B C { get; }\n\n  {\n    C.Flush();\n  }\n}\n" << true << QStringList{"C#"};
        QTest::newRow("C#: an initializer whose lambda has a block after its first statement")
            << "class A {\n  Action P { get; } = () => {\n    F();\n    {\n      G();\n    }\n  };\n}\n" << true
            << QStringList{"C#"};
        QTest::newRow("C#: a block after the accessors in a pass over the other branch of a conditional")
            << "class A {\n  int P { get; }\n#if B\n  int Q;\n#else\n  { }\n#endif\n}\n" << true << QStringList{"C#"};
        QTest::newRow("C#: a block after accessors that the engine reads outside a string the compiler reads whole")
            << "class A {\n  string S = $\"{F(\"}\")} P { get; } { }\";\n}\n" << true << QStringList{"C#"};
        QTest::newRow("C#: properties with initializers, patterns and conditionals the engine reads")
            << "class A {\n  public int P { get; private set; } = 1;\n  Action Q { get => () => { F(); }; }\n"
               "  Action R { get; } = () => {\n    F();\n    if (x) {\n      G();\n    }\n  };\n"
               "#if B\n  public int S { get; init; }\n#else\n  public int S { get; set; }\n#endif\n"
               "  void M() {\n    if (o is D { Length: 1 }) {\n      N(new E { F = 1 });\n    }\n  }\n}\n"
            << false << QStringList{"C#"};
        QTest::newRow("JavaScript: a function without its closing brace")
            << "function f() {\n  if (a) {\n    g('}');\n}\n" << true << QStringList{"JavaScript"};
        QTest::newRow("JavaScript: brackets in strings of either quote and comments")
            << "const a = '{';\nconst c = \"(\"; // }\n" << false << QStringList{"JavaScript"};
        QTest::newRow("JavaScript: brackets in a regular expression")
            << "const r = /[(]/;\nconst s = /\\{/.test(a);\n" << false << QStringList{"JavaScript"};
        QTest::newRow("JavaScript: brackets in the text of a template literal")
            << "const t = `a ( ${b + `[`} ]`;\n" << false << QStringList{"JavaScript"};
        QTest::newRow("JavaScript: a substitution without its closing brace")
            << "f(`a ${b`);\n" << true << QStringList{"JavaScript"};
        QTest::newRow("JavaScript: a regular expression cut short by the end after a backslash")
            << "x = /a\\" << true << QStringList{"JavaScript"};
        QTest::newRow("JavaScript: a template literal cut short by the end after a backslash")
            << "x = `a\\" << true << QStringList{"JavaScript"};
    }
    void answers_syntax_errors() {
        QFETCH(QString, code);
        QFETCH(bool, is_error);
        QFETCH(QStringList, languages);
        std::string const source = code.toStdString();
        std::map<QString, QString> const styles = {
            {"C", "GNU[C].style"}, {"C++", "Google[C++].style"}, {"Java", "Google[Java].style"},
            {"Protocol Buffers", "Google[Protocol Buffers].style"},
            {"Objective-C", "Google[Objective-C].style"},
            {"C#", "Microsoft[C#].style"}, {"JavaScript", "Google[JavaScript].style"}};
        for (QString const& language : languages) {
            loaded_plugin plugin(plugin_file_of(language.toStdString()));
            QVERIFY(plugin.get());
            std::string const result = plugin->revise(source, shipped_addon(styles.at(language)), traits_of(source));
            QVERIFY2((result == STYLE_TARNEL_SYNTAX_ERROR_TEXT) == is_error, qPrintable(language));
        }
    }

    // Texts a revision gives back as they are (or, with a mark, as noted): a stray apostrophe ends
    // at the end of its line, and joined with the next it would hide a bracket from the next
    // revision; binary; tidy code; UTF-16 told only by its one line break, which joined would be
    // read as 8-bit text next time (with a byte-order mark it is joined); and bytes the host takes
    // for UTF-16 LE with CR endings by their first CR byte, whose CR become a space would make the
    // host take the result for UTF-16 BE by the CR byte of another character; and 8-bit text
    // whose only LF, joined away, would leave a CR inside a template literal to tell the line
    // ending next time.
    void leaves_these_texts_alone_data() {
        QTest::addColumn<QString>("addon_file");
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QByteArray>("expected");
        auto row = [](char const* name, QString addon, std::string source, std::string expected = std::string()) {
            QTest::newRow(name) << addon << QByteArray::fromStdString(source)
                                << QByteArray::fromStdString(expected.empty() ? source : expected);
        };
        row("a stray apostrophe", "Mozilla[C++].style", "('\n)");
        row("binary", "Allman[C].style", std::string("\x7F" "ELF\0\0\x01{", 8));
        row("tidy code", "Allman[C].style", "int x;\n");
        row("UTF-16 told by its only line break", "Kernighan&Ritchie[C].style", encoded("int\nx;", "UTF-16LE", false));
        row("UTF-16 with a mark", "Kernighan&Ritchie[C].style", encoded("int\nx;", "UTF-16LE", true),
            encoded("int x;", "UTF-16LE", true));
        row("the line break that tells the line ending, joined away before a lone CR in a template literal",
            "WebKit[JavaScript].style", std::string("\xd1\n,`\rej\x95\x95`-"));
        row("the line break that tells the encoding", "GNU[C].style", std::string("\xef\xff\x24\x5c\x5c\x5c\x00\x0d\x5c\x5c\x0d\x00\x5c\x5c\x5c\x5c\x5c\x5c\x0d\x00\x5c\xff\xff\x7e\x60\xff\x2e\xef\xb5\x0c\xff\x2e\xef\x5c\x5c\x5c\x5c\x5c\x57\xa3\x5c\x5c\x5c\x5c\x5c\x5c\x5c\xff\x2e\xef\xb5\x0c\xff\x2e\xef\xb5\x0c\xff", 58));
    }
    void leaves_these_texts_alone() {
        QFETCH(QString, addon_file);
        QFETCH(QByteArray, source);
        QFETCH(QByteArray, expected);
        std::string const addon = shipped_addon(addon_file), text = source.toStdString();
        loaded_plugin plugin(plugin_file_of(language_of_addon(addon)));
        std::string const result = plugin->revise(text, addon, traits_of(text));
        QCOMPARE(QByteArray::fromStdString(result).toHex(' '), expected.toHex(' '));
        QCOMPARE(QByteArray::fromStdString(plugin->revise(result, addon, traits_of(result))).toHex(' '), expected.toHex(' '));
    }
};

QTEST_GUILESS_MAIN(test_encodings_and_errors)
#include "test_encodings_and_errors.moc"
