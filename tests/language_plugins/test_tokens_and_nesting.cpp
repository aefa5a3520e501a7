// What a revision keeps of the compiler's tokens, in every shipped style: digit separators,
// encoding prefixes, raw strings, digraphs and user literals stay whole, tokens that white space
// keeps apart stay apart; and what the plugins refuse before the engine sees it: sources nested
// deeper than the engine survives, and sources larger than the memory it may take.
#include "helpers/our_plugins.h"

#include "c_language.h"
#include "cpp_language.h"
#include "revision.h"

#include <QtTest>

#include <sys/resource.h>

#include <fstream>

using namespace our_plugins;

namespace {

std::string language_of(QString const& addon_file) {
    return addon_file.section('[', -1).chopped(QString("].style").size()).toStdString();
}

bool of_the_c_family(QString const& addon_file) { return language_of(addon_file) == "C" || language_of(addon_file) == "C++"; }

std::string repeated(std::string const& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += piece;
    return text;
}

unsigned long lines_in(std::string const& text) {
    return static_cast<unsigned long>(std::count(text.begin(), text.end(), '\n'));
}

// The sources nested far deeper than the engine survives (it overflows an 8 MB stack at about
// 35,000 parentheses, 100,000 braces or subscripts), one of each kind the engine recurses on.
struct bomb {
    char const* name;
    std::string code;
};

std::vector<bomb> nesting_bombs() {
    int const deep = 100000;
    return {
        {"parentheses", "int x = " + repeated("(", deep / 2) + "1" + repeated(")", deep / 2) + ";\n"},
        {"initialiser braces", "int x[] = " + repeated("{", deep) + "1" + repeated("}", deep) + ";\n"},
        {"subscripts", "int x = " + repeated("a[", deep) + "1" + repeated("]", deep) + ";\n"},
        {"blocks", "void f() " + repeated("{", deep) + repeated("}", deep) + "\n"},
        {"conditional chain", "int x = " + repeated("a ? b : ", deep) + "c;\n"},
        {"nested conditionals", "int x = " + repeated("a ? ", 2000) + "b" + repeated(" : c", 2000) + ";\n"},
        {"nested conditionals with commas", "int x = " + repeated("a ? b, ", 2000) + "b" + repeated(" : c", 2000) + ";\n"},
        {"prefix operators", "int x = " + repeated("- ", deep) + "a;\n"},
        {"angles", repeated("x<", deep) + "int" + repeated(">", deep) + " y;\n"},
        {"control statements", "void f() {" + repeated("if (a) ", deep) + "x;}\n"},
        {"else if chain", "void f() {" + repeated("if (a) x; else ", deep) + "x;}\n"},
        {"macro of parentheses", "#define X " + repeated("(", deep) + "1" + repeated(")", deep) + "\nint x;\n"},
    };
}

}  // namespace

class test_tokens_and_nesting : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    // Written untidily, so that every style revises each line; the result must hold each token
    // whole. Read as C++03 (the GNU style's own standard), the engine split every one of them.
    void modern_tokens_stay_whole_data() {
        QTest::addColumn<QString>("addon");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QStringList>("whole");
        struct snippet {
            char const* name;
            char const* code;
            QStringList whole;
            QStringList languages;
        };
        QStringList const c_family = {"C", "C++"};
        std::vector<snippet> const snippets = {
            {"digit separators", "int  big=1'000'000;\nlong  mask=0xFF'FF'00'00;\ndouble  d=3.141'592;\n",
             {"1'000'000", "0xFF'FF'00'00", "3.141'592"}, c_family},
            {"encoding prefixes", "char const*a=u8\"x\";\nchar16_t const*b=u\"x\";\nchar32_t const*c=U\"x\";\nwchar_t const*d=L\"x\";\nint  e=u8'a';\n",
             {"u8\"x\"", "u\"x\"", "U\"x\"", "L\"x\"", "u8'a'"}, c_family},
            {"raw strings", "char const*a=R\"x(a )\" b)x\";\nchar const*b=u8R\"(z)\";\nchar const*c=LR\"--(y)--\";\n",
             {"R\"x(a )\" b)x\"", "u8R\"(z)\"", "LR\"--(y)--\""}, c_family},
            {"digraphs", "%:define  N 2\nint  a<:N:>=<%1,2%>;\nint  f(){return a<:0:>;}\n",
             {"%:define", "<:N:>", "a<:0:>"}, c_family},
            {"user literals", "auto  d=12_km+3.5_m;\nauto  s=\"abc\"_sv;\nauto  c='x'_ch;\n",
             {"12_km", "3.5_m", "\"abc\"_sv", "'x'_ch"}, {"C++"}},
            {"unsigned shifts", "class A{int f(int a){int b=a>>>3;b>>>=1;return b>>>a;}}\n",
             {">>> 3", ">>>= 1", ">>> a"}, {"Java"}},
            {"annotations and literals",
             "public @interface Tag{String value() default \"a\\\"b\";}\n@Tag(\"x\")class B{char c='\\'';long n=1_000L;}\n",
             {"@interface", "\"a\\\"b\"", "@Tag(\"x\")", "'\\''", "1_000L"}, {"Java"}},
            {"quotes of either kind", "syntax=\"proto3\";\noption go_package='a\"b';\nmessage M{string s=1[default=\"x'y\"];}\n",
             {"'a\"b'", "\"x'y\""}, {"Protocol Buffers"}},
            {"at keywords and literals",
             "@interface  A:NSObject\n@property(nonatomic)NSArray*a;\n@end\n@implementation  A\n-(id)f{return @[@\"x\",@1,@(2)];}\n"
             "-(id)g{return @{@\"k\":@YES};}\n@end\n",
             {"@interface", "@property", "@end", "@implementation", "@\"x\"", "@1", "@(2)", "@\"k\"", "@YES"},
             {"Objective-C"}},
            {"strings of C#",
             "class A{string a=@\"C:\\x\\\"\"q\"\"  \";string b=$\"p {x  +  1} {\"in  ner\"} q\";string c=$@\"r\\{y}  \"\"s\"\"\";char d='\"';}\n",
             {"@\"C:\\x\\\"\"q\"\"  \"", "$\"p {x  +  1} {\"in  ner\"} q\"", "$@\"r\\{y}  \"\"s\"\"\"", "'\"'"}, {"C#"}},
            {"operators of C#", "class A{void f(){var @class=a?.b??c;e?\?=f?[1];g=x=>x>>>2;}}\n",
             {"@class", "a?.b ?? c", "e ?\?= f?[1]", "x => x >>> 2"}, {"C#"}},
            {"operators of JavaScript", "let  a=b===c!==d>>>e??f**g;\nlet  h=i?.j;\nh?\?=k;\nconst  l=(m)=>m;\n",
             {"===", "!==", ">>>", "??", "**", "?.", "?\?=", "=>"}, {"JavaScript"}},
            {"templates and regular expressions", "let  a=`x ${ b+c }  y`;\nlet  d=/ [a-z] +/g.test(e);\n",
             {"`x ${", "}  y`", "/ [a-z] +/g"}, {"JavaScript"}},
            {"TypeScript", "interface  A<T>{a:T;b?:number}\nfunction  f<T>(x:A<T>):void{}\n",
             {"interface A<T>", "b?: number"}, {"JavaScript"}},
        };
        for (QString const& addon : shipped_addons())
            for (snippet const& each : snippets)
                if (each.languages.contains(QString::fromStdString(language_of(addon))))
                    QTest::newRow(qPrintable(addon + " " + each.name)) << addon << QString(each.code) << each.whole;
    }

    void modern_tokens_stay_whole() {
        QFETCH(QString, addon);
        QFETCH(QString, code);
        QFETCH(QStringList, whole);
        loaded_plugin plugin(plugin_file_of(language_of(addon)));
        QVERIFY(plugin.get());
        std::string const source = code.toStdString();
        std::string const revised = plugin->revise(source, shipped_addon(addon), traits_of(source));
        QVERIFY2(revised != source, "left as it is");
        QVERIFY2(revised != STYLE_TARNEL_SYNTAX_ERROR_TEXT, "refused");
        for (QString const& token : whole)
            QVERIFY2(QString::fromStdString(revised).contains(token), qPrintable(token + " in\n" + QString::fromStdString(revised)));
    }

    // The options every shipped addon is revised with read the latest standard, whatever the
    // predefined style the search started from (GNU's is C++03).
    void inferred_options_read_the_latest_standard_data() {
        QTest::addColumn<QString>("addon");
        for (QString const& addon : shipped_addons())
            QTest::newRow(qPrintable(addon)) << addon;
    }

    void inferred_options_read_the_latest_standard() {
        QFETCH(QString, addon);
        std::string const options = tarnel_engine::options_inferred_from(
            shipped_addon(addon), description_of(QString::fromStdString(language_of(addon))));
        QVERIFY2(QString::fromStdString(options).contains(QRegularExpression("\\nStandard: +Latest\\n")), options.c_str());
    }

    // Code that does not compile, where the engine would join two tokens that only white space
    // keeps apart: the result would compile, meaning something else. Nested template closers of
    // C++03 are the one join the engine may make: there the blank is put back.
    void tokens_kept_apart_stay_apart_data() {
        QTest::addColumn<QString>("addon");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("expected");  // empty: the source comes back as it is
        for (QString const& addon : shipped_addons()) {
            // White space that the engine changes inside a token of Java: the source stays as it is.
            if (language_of(addon) == "Java") {
                QTest::newRow(qPrintable(addon + " non-sealed")) << addon << "public  non-sealed class A {}\n" << QString();
                QTest::newRow(qPrintable(addon + " text block"))
                    << addon << "class A {\n  String s = \"\"\"\n      hello\n        world\n      \"\"\";\n}\n" << QString();
            }
            // A blank after an `@` that the engine takes out joins two tokens of Objective-C.
            if (language_of(addon) == "Objective-C") {
                QTest::newRow(qPrintable(addon + " @ before a string")) << addon << "NSString  *s = @ \"x\";\n" << "@ \"x\"";
                QTest::newRow(qPrintable(addon + " @ before a bracket")) << addon << "id  a = @ [ b ];\n" << QString();
            }
            // White space that the engine changes inside a token of C#, or a token of C# the engine
            // makes of two: the source stays as it is.
            if (language_of(addon) == "C#") {
                QTest::newRow(qPrintable(addon + " raw string"))
                    << addon << "class A {\n  string s = \"\"\"\n    raw  \"\" text\n    \"\"\";\n}\n" << QString();
                QTest::newRow(qPrintable(addon + " ? . apart")) << addon << "var  y = a ? . b;\n" << QString();
            }
            // The engine takes JSX's text for code: changed, its blanks and line breaks would change
            // what the page shows. The source stays as it is.
            if (language_of(addon) == "JavaScript") {
                QTest::newRow(qPrintable(addon + " JSX text")) << addon << "function  f(){\n  return <p>Hello   {name}  world</p>;\n}\n"
                                                               << QString();
                QTest::newRow(qPrintable(addon + " JSX elements nested, a fragment"))
                    << addon << "function  f(){\n  return <>\n    <b>a</b> b\n  </>;\n}\n" << QString();
                // The engine parts `</li>` and puts a blank before it: a blank the page would show.
                QTest::newRow(qPrintable(addon + " JSX closing tag after code in braces"))
                    << addon << "function  f( items ){\n  if(items){ return <li key={a}>{a}</li> }\n  return <br/>;\n}\n"
                    << QString();
            }
            if (!of_the_c_family(addon))
                continue;
            QTest::newRow(qPrintable(addon + " ! =")) << addon << "int  y = a ! = b;\n" << QString();
            QTest::newRow(qPrintable(addon + " > > between names")) << addon << "int  y = a > > b;\n" << "> >";
            QTest::newRow(qPrintable(addon + " > > > between names")) << addon << "int  y = a> >  > b;\n" << "> > >";
            if (language_of(addon) == "C++")
                QTest::newRow(qPrintable(addon + " > > of templates"))
                    << addon << "std::vector<std::vector<int> >  v;\n" << "<int> >";
            if (language_of(addon) == "C++")
                QTest::newRow(qPrintable(addon + " > > > of templates"))
                    << addon << "std::map<int, std::vector<std::pair<int, int> > >  m;\n" << "<int, int> > >";
        }
    }

    void tokens_kept_apart_stay_apart() {
        QFETCH(QString, addon);
        QFETCH(QString, code);
        QFETCH(QString, expected);
        loaded_plugin plugin(plugin_file_of(language_of(addon)));
        QVERIFY(plugin.get());
        std::string const source = code.toStdString();
        std::string const revised = plugin->revise(source, shipped_addon(addon), traits_of(source));
        QVERIFY(revised != STYLE_TARNEL_SYNTAX_ERROR_TEXT);
        if (expected.isEmpty()) {
            QCOMPARE(QString::fromStdString(revised), code);
        } else {
            QVERIFY2(QString::fromStdString(revised).contains(expected), revised.c_str());
            QCOMPARE(QString::fromStdString(plugin->revise(revised, shipped_addon(addon), traits_of(revised))),
                     QString::fromStdString(revised));
        }
    }

    // The engine lays out `> >` otherwise than the `>>` it settled on: a result that keeps the
    // closers apart must itself be what the next revision gives back.
    void a_result_with_closers_kept_apart_is_settled_data() {
        QTest::addColumn<QString>("addon");
        for (QString const& addon : shipped_addons())
            if (language_of(addon) == "C++")
                QTest::newRow(qPrintable(addon)) << addon;
    }

    void a_result_with_closers_kept_apart_is_settled() {
        QFETCH(QString, addon);
        loaded_plugin plugin(plugin_file_of(language_of(addon)));
        QVERIFY(plugin.get());
        std::string const source = "namespace boost { namespace accumulators\n"
                                   "{\n"
                                   "    {\n"
                                   "        struct matches_feature\n"
                                   "        {\n"
                                   "            template<typename Accumulator>\n"
                                   "        };\n"
                                   "        template<\n"
                                   "        {\n"
                                   "                typename mpl::transform<\n"
                                   "                  , to_accumulator<mpl::_1, Sample, Weight>\n"
                                   "                >::type\n"
                                   "            type;\n"
                                   "        };\n"
                                   "    } // namespace detail\n"
                                   "\n"
                                   "}} // namespace boost::accumulators\n";
        std::string const revised = plugin->revise(source, shipped_addon(addon), traits_of(source));
        QCOMPARE(QString::fromStdString(plugin->revise(revised, shipped_addon(addon), traits_of(revised))),
                 QString::fromStdString(revised));
    }

    void nesting_bombs_are_syntax_errors_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("code");
        for (char const* language : {"C", "C++"})
            for (bomb const& each : nesting_bombs())
                QTest::newRow(qPrintable(QString(language) + " " + each.name))
                    << language << QString::fromStdString(each.code);
    }

    void nesting_bombs_are_syntax_errors() {
        QFETCH(QString, language);
        QFETCH(QString, code);
        loaded_plugin plugin(plugin_file_of(language.toStdString()));
        QVERIFY(plugin.get());
        std::string const source = code.toStdString();
        for (QString const& addon : shipped_addons())
            if (language_of(addon) == language.toStdString())
                QCOMPARE(QString::fromStdString(plugin->revise(source, shipped_addon(addon), traits_of(source))),
                         QString(STYLE_TARNEL_SYNTAX_ERROR_TEXT));
    }

    // Deeper than real code nests, yet within what the engine is given: revised.
    void nesting_under_the_limit_is_revised_data() {
        QTest::addColumn<QString>("code");
        int const deep = 200;
        QTest::newRow("blocks") << QString::fromStdString("void f() " + repeated("{", deep) + repeated("}", deep) + "\n");
        QTest::newRow("conditional chain") << QString::fromStdString("int x = " + repeated("a?b:", deep) + "c;\n");
        QTest::newRow("a table of conditionals")
            << QString::fromStdString("int t[] = {" + repeated("a?b:c,", 1000) + "};\n");
        QTest::newRow("prefix operators") << QString::fromStdString("int x = " + repeated("- ", deep) + "a ;\n");
        QTest::newRow("control statements")
            << QString::fromStdString("void f() {" + repeated("if(a) ", deep) + "x;}\n");
        QTest::newRow("else if chain")
            << QString::fromStdString("void f() {" + repeated("if(a) x; else ", deep) + "x;}\n");
    }

    void nesting_under_the_limit_is_revised() {
        QFETCH(QString, code);
        std::string const source = code.toStdString();
        for (char const* language : {"C", "C++"}) {
            loaded_plugin plugin(plugin_file_of(language));
            QVERIFY(plugin.get());
            std::string const revised =
                plugin->revise(source, shipped_addon(language == std::string("C") ? "GNU[C].style" : "LLVM[C++].style"),
                               traits_of(source));
            QVERIFY2(revised != STYLE_TARNEL_SYNTAX_ERROR_TEXT, language);
            QVERIFY2(revised != source, language);
        }
    }

    // JavaScript read as JavaScript: a bracket in the text of a template literal or a regular
    // expression opens nothing, so many of them in a row are no nesting (read as C++'s, they were
    // hundreds of parentheses left open, and the source was refused).
    void javascript_brackets_in_text_do_not_nest_data() {
        QTest::addColumn<QString>("code");
        int const many = 300;
        QTest::newRow("template literals") << QString::fromStdString(repeated("x = `(`;\n", many));
        QTest::newRow("regular expressions") << QString::fromStdString(repeated("x = /\\(/;\n", many));
    }
    void javascript_brackets_in_text_do_not_nest() {
        QFETCH(QString, code);
        std::string const source = code.toStdString();
        loaded_plugin plugin(plugin_file_of("JavaScript"));
        QVERIFY(plugin.get());
        QVERIFY(plugin->revise(source, shipped_addon("Google[JavaScript].style"), traits_of(source)) !=
                STYLE_TARNEL_SYNTAX_ERROR_TEXT);
    }

    // The bomb is neither learned from nor counted; the other sources are.
    void learning_passes_over_a_bomb() {
        loaded_plugin plugin(cpp_plugin_file());
        QVERIFY(plugin.learning());
        std::vector<std::string> sources;
        unsigned long lines = 0;
        for (QString const& golden_case : golden_cases())
            if (golden_case.startsWith("C++/")) {
                sources.push_back(golden_file(golden_case, "input"));
                lines += lines_in(sources.back());
            }
        for (bomb const& each : nesting_bombs())
            sources.push_back(each.code);
        learned_style const learned = plugin.learning()->learn_style(sources, "Learned", {});
        QVERIFY(!learned.addon.empty());
        QCOMPARE(learned.lines, lines);
    }

    // Under an address-space limit a little above what the process holds, a source of two million
    // tokens (the engine would need about 1.4 GB) is refused, where the engine aborted the process
    // once its memory ran out.
    void a_source_larger_than_memory_allows_is_refused() {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("AddressSanitizer holds terabytes of address space: a limit on it cannot be set here");
#endif
        loaded_plugin plugin(c_plugin_file());
        QVERIFY(plugin.get());
        std::string const source = "int t[] = {" + repeated("1,", 1000000) + "};\n";
        unsigned long long held = 0;
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);)
            if (line.compare(0, 7, "VmSize:") == 0)
                held = std::stoull(line.substr(7)) * 1024;
        QVERIFY(held > 0);
        rlimit before{};
        QVERIFY(getrlimit(RLIMIT_AS, &before) == 0);
        rlimit limited = before;
        limited.rlim_cur = held + (1ULL << 30);
        QVERIFY(setrlimit(RLIMIT_AS, &limited) == 0);
        std::string const revised = plugin->revise(source, shipped_addon("GNU[C].style"), traits_of(source));
        setrlimit(RLIMIT_AS, &before);
        QCOMPARE(QString::fromStdString(revised), QString(STYLE_TARNEL_SYNTAX_ERROR_TEXT));
    }
};

QTEST_GUILESS_MAIN(test_tokens_and_nesting)
#include "test_tokens_and_nesting.moc"
