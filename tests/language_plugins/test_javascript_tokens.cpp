// JavaScript and TypeScript read as their own lexer reads them: the text of template literals,
// regular expressions and the language's operators stay whole, so white space inside them is never
// changed as if it stood between tokens; and a result that adds or takes away a line break where a
// semicolon could be inserted is refused, however its tokens compare.
#include "token_sequence.h"

#include <QtTest>

#include <string>
#include <vector>

using tarnel_engine::lexed_as;

class test_javascript_tokens : public QObject {
    Q_OBJECT

private slots:
    void tokens_are_read_whole_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QStringList>("tokens");
        QTest::newRow("template literal") << "x = `a  b`;" << QStringList{"x", "=", "`a  b`", ";"};
        QTest::newRow("template literal, nested") << "x = `a ${ `b ${c}` } d`;"
                                                  << QStringList{"x", "=", "`a ${", "`b ${", "c", "}`", "} d`", ";"};
        QTest::newRow("object in a substitution") << "`${ {a: 1}.a }` / 2"
                                                  << QStringList{"`${", "{", "a", ":", "1", "}", ".", "a", "}`", "/", "2"};
        QTest::newRow("regular expression in a substitution") << "`${ /}/ }`" << QStringList{"`${", "/}/", "}`"};
        QTest::newRow("regular expression after =") << "x = /a b/g;" << QStringList{"x", "=", "/a b/g", ";"};
        QTest::newRow("regular expression after (") << "f(/ +/)" << QStringList{"f", "(", "/ +/", ")"};
        QTest::newRow("regular expression after return") << "return /x /" << QStringList{"return", "/x /"};
        QTest::newRow("slash in a class") << "x = /[/ ]/" << QStringList{"x", "=", "/[/ ]/"};
        QTest::newRow("division after a name") << "a / b / c" << QStringList{"a", "/", "b", "/", "c"};
        QTest::newRow("division after )") << "(a) / 2 / b" << QStringList{"(", "a", ")", "/", "2", "/", "b"};
        QTest::newRow("strings in either quote") << "'a \"b' \"c 'd\"" << QStringList{"'a \"b'", "\"c 'd\""};
        QTest::newRow("operators") << "a===b!==c>>>d??e**f?.g=>h"
                                   << QStringList{"a", "===", "b", "!==", "c", ">>>", "d", "??", "e",
                                                  "**", "f", "?.", "g", "=>", "h"};
        QTest::newRow("?. before a digit") << "a?.5:1" << QStringList{"a", "?", ".5", ":", "1"};
        QTest::newRow("private name") << "this.#x" << QStringList{"this", ".", "#x"};
        QTest::newRow("hashbang") << "#!/usr/bin/env node\nx" << QStringList{"#!/usr/bin/env node", "x"};
        QTest::newRow("comment") << "a /* b c */ d" << QStringList{"a", "/*bc*/", "d"};
        QTest::newRow("JSX text with inner blanks, beside code in braces")
            << "x = <p>Hello   {name}  world</p>;"
            << QStringList{"x", "=", "<", "p", ">", "Hello   ", "{", "name", "}", "  world", "<", "/", "p", ">", ";"};
        QTest::newRow("JSX text across lines") << "x = <p>\n  a  b\n</p>;"
                                               << QStringList{"x", "=", "<", "p", ">", "\n  a  b\n", "<", "/", "p", ">", ";"};
        QTest::newRow("JSX elements nested, an apostrophe in their text")
            << "x = <div className=\"a b\">\n  <b>don't</b> y\n</div>"
            << QStringList{"x", "=", "<", "div", "className", "=", "\"a b\"", ">", "\n  ", "<", "b", ">", "don't",
                           "<", "/", "b", ">", " y\n", "<", "/", "div", ">"};
        QTest::newRow("JSX fragment") << "x = <>a {b}</>" << QStringList{"x", "=", "<", ">", "a ", "{", "b", "}", "<", "/", ">"};
        QTest::newRow("JSX element closing itself, a name with a dash")
            << "return <Item data-id={id} />;"
            << QStringList{"return", "<", "Item", "data-id", "=", "{", "id", "}", "/", ">", ";"};
        QTest::newRow("JSX in a template literal in JSX")
            << "x = <p>{`a ${<b>c  d</b>}`} e</p>"
            << QStringList{"x", "=", "<", "p", ">", "{", "`a ${", "<", "b", ">", "c  d", "<", "/", "b", ">", "}`", "}",
                           " e", "<", "/", "p", ">"};
        QTest::newRow("TypeScript type parameter <T,> not taken for JSX")
            << "const f = <T,>(x: T) => x;"
            << QStringList{"const", "f", "=", "<", "T", ",", ">", "(", "x", ":", "T", ")", "=>", "x", ";"};
        QTest::newRow("TypeScript type parameter <T extends U> not taken for JSX")
            << "f = <T extends U>(x: T) => x;"
            << QStringList{"f", "=", "<", "T", "extends", "U", ">", "(", "x", ":", "T", ")", "=>", "x", ";"};
        QTest::newRow("TypeScript type assertion not taken for JSX")
            << "x = <any>y;" << QStringList{"x", "=", "<", "any", ">", "y", ";"};
        QTest::newRow("comparisons not taken for JSX")
            << "if (a <b && c> d) f(<b>c</b>);"
            << QStringList{"if", "(", "a", "<", "b", "&&", "c", ">", "d", ")", "f", "(", "<", "b", ">", "c", "<", "/",
                           "b", ">", ")", ";"};
    }

    void tokens_are_read_whole() {
        QFETCH(QString, code);
        QFETCH(QStringList, tokens);
        QStringList read;
        for (std::string const& each : tarnel_engine::tokens_of(code.toStdString(), lexed_as::javascript))
            read << QString::fromStdString(each);
        QCOMPARE(read, tokens);
    }

    // Each row: a source, a result differing from it in white space alone, and whether the result
    // keeps the program's meaning.
    void line_breaks_where_a_semicolon_could_be_inserted_stay_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<bool>("kept");
        QTest::newRow("return joined to its value") << "return\nx;\n" << "return x;\n" << false;
        QTest::newRow("return parted from its value") << "return x;\n" << "return\nx;\n" << false;
        QTest::newRow("throw parted from its value") << "throw e;\n" << "throw\ne;\n" << false;
        QTest::newRow("break parted from its label") << "break a;\n" << "break\na;\n" << false;
        QTest::newRow("continue parted from its label") << "continue a;\n" << "continue\na;\n" << false;
        QTest::newRow("yield parted from its value") << "yield x;\n" << "yield\nx;\n" << false;
        QTest::newRow("async parted from its arrow") << "async x => x;\n" << "async\nx => x;\n" << false;
        QTest::newRow("a line break before => taken") << "f = (a)\n=> a;\n" << "f = (a) => a;\n" << false;
        QTest::newRow("a line break before ++ taken") << "a\n++b\n" << "a ++b\n" << false;
        QTest::newRow("a line break after ++ taken") << "a++\nb\n" << "a++ b\n" << false;
        QTest::newRow("a line break before -- added") << "a --b\n" << "a\n--b\n" << false;
        QTest::newRow("a line break before ( taken") << "a\n(b)\n" << "a(b)\n" << false;
        QTest::newRow("a line break before ( added") << "a(b)\n" << "a\n(b)\n" << false;
        QTest::newRow("a line break before [ taken") << "a\n[b]\n" << "a[b]\n" << false;
        QTest::newRow("a template literal continuing") << "a\n`b`\n" << "a`b`\n" << false;
        QTest::newRow("two statements joined") << "a = 1\nb = 2\n" << "a = 1 b = 2\n" << false;
        QTest::newRow("a line break in a comment taken") << "return /*\n*/ x\n" << "return /**/ x\n" << false;
        QTest::newRow("TypeScript modifier joined") << "declare\nclass A {}\n" << "declare class A {}\n" << false;
        QTest::newRow("class field before a generator") << "class A { x = 1\n*g() {} }\n"
                                                        << "class A { x = 1 *g() {} }\n" << false;
        QTest::newRow("a line break before ! taken") << "a\n!b\n" << "a !b\n" << false;
        QTest::newRow("a modifier of TypeScript parted") << "class A { public x = 1 }\n"
                                                         << "class A { public\nx = 1 }\n" << false;
        QTest::newRow("a name joined to a statement") << "f(a)\ng()\n" << "f(a) g()\n" << false;
        QTest::newRow("after a comma") << "f(a,\nb);\n" << "f(a, b);\n" << true;
        QTest::newRow("the brace of a class joined") << "class A\n{\n}\n" << "class A {}\n" << true;
        QTest::newRow("else joined to the brace") << "if (a) {\n}\nelse {\n}\n" << "if (a) {\n} else {\n}\n" << true;
        QTest::newRow("catch joined to the brace") << "try {\n}\ncatch (e) {\n}\n" << "try {\n} catch (e) {\n}\n" << true;
        QTest::newRow("the statement of a short if joined") << "if (a)\n  b();\n" << "if (a) b();\n" << true;
        QTest::newRow("the statement of a short if parted") << "if (a) b();\n" << "if (a)\n  b();\n" << true;
        QTest::newRow("a property named as a modifier") << "x = a.type\n    && b;\n" << "x = a.type && b;\n" << true;
        QTest::newRow("! after an operator") << "x = a &&\n    !b;\n" << "x = a && !b;\n" << true;
        QTest::newRow("( after an operator") << "x = a +\n    (b);\n" << "x = a + (b);\n" << true;
        QTest::newRow("inside a substitution") << "x = `a ${b +\n  c}`;\n" << "x = `a ${b + c}`;\n" << true;
        QTest::newRow("after an opening bracket") << "f(\na);\n" << "f(a);\n" << true;
        QTest::newRow("after an operator") << "x = a + b;\n" << "x = a +\n    b;\n" << true;
        QTest::newRow("after =>") << "f = () =>\n  a;\n" << "f = () => a;\n" << true;
        QTest::newRow("before a dot") << "a\n  .b();\n" << "a.b();\n" << true;
        QTest::newRow("before a closing brace") << "{ a\n}\n" << "{ a }\n" << true;
        QTest::newRow("before &&") << "x = a && b;\n" << "x = a\n    && b;\n" << true;
        QTest::newRow("between the attributes of a JSX tag") << "x = <a b=\"1\" c={d} />;\n"
                                                             << "x = <a\n  b=\"1\"\n  c={d}\n/>;\n" << true;
        QTest::newRow("JSX tag joined") << "x = <a\n  b\n>c</a>;\n" << "x = <a b>c</a>;\n" << true;
        QTest::newRow("TypeScript type parameter <T,> spaced") << "const f = <T,>(x: T) => x;\n"
                                                               << "const f = <T, >(x : T) => x;\n" << true;
        QTest::newRow("TypeScript type assertion spaced") << "x = <any>y + 1;\n" << "x = <any> y+1;\n" << true;
    }

    void line_breaks_where_a_semicolon_could_be_inserted_stay() {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(bool, kept);
        QCOMPARE(tarnel_engine::result_with_the_tokens_of(before.toStdString(), after.toStdString(), lexed_as::javascript)
                     .has_value(),
                 kept);
    }

    void white_space_inside_a_token_stays_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("regular expression") << "x = /a b/;\n" << "x = /a  b/;\n";
        QTest::newRow("text of a template literal") << "x = `a  ${b} c`;\n" << "x = `a ${b} c`;\n";
        QTest::newRow("text after a substitution") << "x = `a ${b} c`;\n" << "x = `a ${b}  c`;\n";
        QTest::newRow("string") << "x = 'a b';\n" << "x = 'a  b';\n";
        QTest::newRow("=== parted") << "a === b;\n" << "a == = b;\n";
        QTest::newRow("?? parted") << "a ?? b;\n" << "a ? ? b;\n";
        QTest::newRow("JSX text, inner blanks") << "x = <p>Hello   world</p>;\n" << "x = <p>Hello world</p>;\n";
        QTest::newRow("JSX text, blanks beside code in braces") << "x = <p>a {b}  c</p>;\n" << "x = <p>a{b} c</p>;\n";
        QTest::newRow("JSX text, a line break put in") << "x = <p>a b</p>;\n" << "x = <p>a\nb</p>;\n";
        QTest::newRow("JSX text, a line break taken out") << "x = <p>\n  a\n</p>;\n" << "x = <p>a</p>;\n";
        QTest::newRow("JSX elements nested, the line breaks between them taken out")
            << "x = (\n  <div>\n    <b>a</b>\n  </div>\n);\n" << "x = (\n  <div><b>a</b></div>\n);\n";
        QTest::newRow("JSX elements nested, indented again") << "x = <div>\n  <b>a</b>\n</div>;\n"
                                                             << "x = <div>\n    <b>a</b>\n</div>;\n";
        QTest::newRow("JSX fragment's text") << "x = <>a  b</>;\n" << "x = <>a b</>;\n";
        QTest::newRow("JSX: a blank put between code in braces and a closing tag parted")
            << "x = <li>{a}</li>;\n" << "x = <li>{a} < /li>;\n";
        QTest::newRow("JSX fragment: a blank put before its parted closing tag")
            << "x = <>{a}</>;\n" << "x = < >{a} < / >;\n";
        QTest::newRow("JSX attribute name parted") << "x = <a data-id=\"1\" />;\n" << "x = <a data - id=\"1\" />;\n";
    }

    void white_space_inside_a_token_stays() {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QVERIFY(!tarnel_engine::result_with_the_tokens_of(before.toStdString(), after.toStdString(), lexed_as::javascript));
    }
};

QTEST_GUILESS_MAIN(test_javascript_tokens)
#include "test_javascript_tokens.moc"
