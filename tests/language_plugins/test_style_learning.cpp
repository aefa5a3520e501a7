// Learning a style through the plugins' learning interface: a small project written in a known
// option set comes back as a style that leaves nearly all its lines as they are, with every form a
// fixed point, the macros it uses as loops, statements and attributes named and the figures the plugin reports true; no sources, text of another language and a
// stop give no style; the sample's pieces, and the sources counted, are code the engine can format
// in bounded time.
#include "helpers/our_plugins.h"

#include "bracket_balance.h"
#include "c_language.h"
#include "code_sample.h"
#include "conditional_passes.h"
#include "cpp_language.h"
#include "core/style_addon.h"
#include "form_conflicts.h"
#include "form_readings.h"
#include "project_macros.h"
#include "revision.h"
#include "style_learning.h"
#include "text_lines.h"
#include "tests/harness/built_files.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <functional>

using namespace our_plugins;

namespace {

// The golden inputs and the examples of the language: code written in many ways.
std::vector<std::string> sources_of(QString const& language) {
    std::vector<std::string> sources;
    for (QString const& golden_case : golden_cases())
        if (golden_case.startsWith(language + "/"))
            sources.push_back(golden_file(golden_case, "input"));
    // Java: a few files of the JDK's own sources (Debian's openjdk-17-source).
    // Objective-C: the small macOS files of pugl (Debian's dpf-source).
    QDir const examples(language == "C" || language == "C++"
                            ? built::source_dir() + "/examples/" + (language == "C" ? "c" : "cpp")
                            : built::source_dir() + "/tests/language_plugins/samples/" + language);
    for (QString const& file : examples.entryList(QDir::Files, QDir::Name))
        sources.push_back(contents_of(examples.filePath(file)));
    return sources;
}

std::string const python = "import os\n\ndef walk(top):\n    for name in os.listdir(top):\n        if name:\n"
                           "            print(name)\n    return top\n\nclass Tree:\n    def __init__(self):\n"
                           "        self.nodes = []\n";

// Six files of three parts of thirty functions each (`functions(from, to)`), the middle part
// written in `other`, the rest in `most`: a project mostly in one style.
std::vector<std::string> project_mostly_in(loaded_plugin const& plugin,
                                           std::function<std::string(int, int)> const& functions,
                                           std::string const& most, std::string const& other) {
    std::vector<std::string> project;
    for (int file = 0; file < 6; ++file) {
        std::string text;
        for (int third = 0; third < 3; ++third) {
            std::string const code = functions(file * 100 + third * 30, file * 100 + third * 30 + 30);
            std::string const written = plugin->revise(code, third == 1 ? other : most, traits_of(code));
            if (written == STYLE_TARNEL_SYNTAX_ERROR_TEXT)
                return {};
            text += written;
        }
        project.push_back(text);
    }
    return project;
}

// `files` files of `functions` functions each: `code(file, n)` the code of function n of a file,
// n its number in the file plus the file's number times 100.
std::vector<std::string> functions_in(int files, int functions,
                                      std::function<std::string(int, std::string const&)> const& code) {
    std::vector<std::string> project;
    for (int file = 0; file < files; ++file) {
        std::string text;
        for (int function = 0; function < functions; ++function)
            text += code(file, std::to_string(file * 100 + function));
        project.push_back(text);
    }
    return project;
}

// The options an addon's forms give, each line after a line feed and runs of blanks as one: what
// the tests look for ("\nTabWidth: 8\n").
QString options_shown_by(std::string const& addon, tarnel_engine::language_description const& language) {
    return QString("\n" + QString::fromStdString(tarnel_engine::options_inferred_from(addon, language)))
        .replace(QRegularExpression(" +"), " ");
}

// The closing check of a learning: a style was written and it leaves every line of the project as
// it is.
void check_every_line_left_by(learned_style const& learned) {
    QVERIFY(!learned.addon.empty());
    QCOMPARE(learned.lines_left, learned.lines);
}

unsigned long lines_left_in(std::vector<std::string> const& project, loaded_plugin const& plugin,
                            std::string const& addon) {
    unsigned long left = 0;
    for (std::string const& source : project)
        left += tarnel_engine::lines_left_between(source, plugin->revise(source, addon, traits_of(source)));
    return left;
}

// The closing check of a learning from starts: a style was written, its count is the lines it
// leaves of the project, and it leaves at least as many as `rival` (`named` in the message).
void check_at_least_as_close_as(std::string const& rival, char const* named, learned_style const& learned,
                                std::function<unsigned long(std::string const&)> const& lines_left_by) {
    QVERIFY(!learned.addon.empty());
    QCOMPARE(learned.lines_left, lines_left_by(learned.addon));
    unsigned long const rival_left = lines_left_by(rival);
    QVERIFY2(learned.lines_left >= rival_left,
             qPrintable(QString("%1 lines left, %2 by %3").arg(learned.lines_left).arg(rival_left).arg(named)));
}

}  // namespace

class test_style_learning : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    // Option sets far from each other and from the predefined styles: the learning must read the
    // indentation, tabs, braces and where `*` leans, and search the rest.
    void learns_back_a_known_style_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("options");
        // The macros the project uses as a loop, as a statement and as an attribute, in a few generated
        // files of its own; empty for none.
        QTest::addColumn<QStringList>("macros");
        // Options the learned style must show as they are, read from the code rather than searched.
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("C++ LLVM, indent 3, Allman braces, * on the type, limit 100")
            << "C++" << "{BasedOnStyle: LLVM, IndentWidth: 3, BreakBeforeBraces: Allman, PointerAlignment: Left, "
                        "DerivePointerAlignment: false, ColumnLimit: 100}" << QStringList() << QStringList();
        QTest::newRow("C++ Google, tabs of 4, blank before every (, access specifiers at the class")
            << "C++" << "{BasedOnStyle: Google, IndentWidth: 4, TabWidth: 4, UseTab: ForIndentation, "
                        "SpaceBeforeParens: Always, AccessModifierOffset: -4}" << QStringList() << QStringList();
        QTest::newRow("C GNU") << "C" << "{BasedOnStyle: GNU}" << QStringList() << QStringList();
        QTest::newRow("C indent 8 with tabs, Linux braces, limit 80")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 8, UseTab: Always, BreakBeforeBraces: Linux, "
                      "AllowShortIfStatementsOnASingleLine: Never, PointerAlignment: Right, ColumnLimit: 80}" << QStringList() << QStringList();
        QTest::newRow("C Linux braces with tabs, a list macro used as a loop")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 8, UseTab: Always, BreakBeforeBraces: Linux, "
                      "SpaceBeforeParens: ControlStatementsExceptForEachMacros, ForEachMacros: [list_for_each_entry]}"
            << QStringList{"list_for_each_entry", "", ""} << QStringList();
        QTest::newRow("C Linux braces with tabs, a loop, a statement and an attribute macro, labels at the start")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 8, UseTab: Always, BreakBeforeBraces: Linux, "
                      "IndentGotoLabels: false, ForEachMacros: [list_for_each_entry], StatementMacros: [DECLARE_ITEMS], "
                      "AttributeMacros: [__item_init]}"
            << QStringList{"list_for_each_entry", "DECLARE_ITEMS", "__item_init"} << QStringList();
        // Under no limit the author's own breaks stay, which the sample cannot tell from a limit that
        // its lines happen to keep: the project's files must.
        QTest::newRow("C++ LLVM, the author's own line breaks kept")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0}" << QStringList() << QStringList();
        QTest::newRow("Java Chromium, tabs of 4, no blank before the ( of control statements")
            << "Java" << "{BasedOnStyle: Chromium, IndentWidth: 4, TabWidth: 4, UseTab: ForIndentation, "
                         "SpaceBeforeParens: Never}" << QStringList() << QStringList();
        QTest::newRow("C++ Google, case labels at the switch, continuation lines 8 further in")
            << "C++" << "{BasedOnStyle: Google, IndentCaseLabels: false, ContinuationIndentWidth: 8}" << QStringList()
            << QStringList{"IndentCaseLabels: false", "ContinuationIndentWidth: 8"};
        QTest::newRow("C LLVM, case labels indented, continuation lines 2 further in")
            << "C" << "{BasedOnStyle: LLVM, IndentCaseLabels: true, ContinuationIndentWidth: 2}" << QStringList()
            << QStringList{"IndentCaseLabels: true", "ContinuationIndentWidth: 2"};
        // The sample's few macros stand apart, so nothing shows their alignment: only the lines count.
        QTest::newRow("C LLVM, assignments and declarations lined up, operators first, a penalty")
            << "C" << "{BasedOnStyle: LLVM, AlignConsecutiveAssignments: Consecutive, AlignConsecutiveDeclarations: "
                      "Consecutive, BreakBeforeBinaryOperators: All, PenaltyBreakAssignment: 200}" << QStringList()
            << QStringList{"AlignConsecutiveAssignments:\n  Enabled:         true",
                           "AlignConsecutiveDeclarations:\n  Enabled:         true", "BreakBeforeBinaryOperators: All"};
        QTest::newRow("Objective-C Google, indent 4, blocks indented 4, a blank after @property")
            << "Objective-C" << "{BasedOnStyle: Google, IndentWidth: 4, ObjCBlockIndentWidth: 4, "
                                "ObjCSpaceAfterProperty: true}" << QStringList() << QStringList();
    }
    void learns_back_a_known_style() {
        QFETCH(QString, language);
        QFETCH(QString, options);
        QFETCH(QStringList, macros);
        QFETCH(QStringList, shown);
        auto const& description = description_of(language);
        std::string const known = tarnel_engine::addon_written_in(options.toStdString(), "Known", description);
        QVERIFY(!known.empty());
        loaded_plugin plugin(plugin_file_of(language.toStdString()));
        QVERIFY(plugin.learning());
        std::vector<std::string> project;
        std::vector<std::string> sources = sources_of(language);
        for (int file = 0; file < 4 && !macros.isEmpty(); ++file) {
            std::string const macro = macros[0].toStdString();
            std::string const n = std::to_string(file);
            sources.push_back("struct item_" + n + " {\n  struct list_head node;\n  int value;\n};\n\n"
                              "int total_" + n + "(struct list_head *items) {\n  struct item_" + n + " *item;\n"
                              "  int sum = 0;\n  " + macro + "(item, items, node) {\n    if (item->value < 0)\n"
                              "      continue;\n    sum += item->value;\n  }\n  return sum;\n}\n\n"
                              "void clear_" + n + "(struct list_head *items) {\n  struct item_" + n + " *item;\n  " +
                              macro + "(item, items, node) {\n    item->value = 0;\n  }\n}\n");
            if (!macros[1].isEmpty())
                sources.push_back("int count_" + n + "(int limit) {\n  " + macros[1].toStdString() +
                                  "(seen, limit)\n  int count = 0;\n  while (count < limit) {\n    if (count > 3)\n"
                                  "      goto out;\n    count++;\n  out:\n    count++;\n  }\n  return count;\n}\n");
            if (!macros[2].isEmpty())
                sources.push_back("static int " + macros[2].toStdString() + " setup_" + n + "(void) {\n  return " + n +
                                  ";\n}\n\nstatic unsigned long " + macros[2].toStdString() + " *table_" + n + ";\n");
        }
        // Switches and assignments too long for a line in the first third of two long generated files,
        // where the options they show are checked: a sample takes a long file's second third, so
        // only the code read as a whole shows them.
        for (int file = 0; file < 2 && !shown.isEmpty(); ++file) {
            std::string text;
            for (int function = 0; function < 4; ++function) {
                std::string const n = std::to_string(file * 10 + function);
                text += "int classify_" + n + "(int kind, int weight) {\n  int const a_rather_long_name_for_a_value_" + n +
                        " = a_function_with_a_long_name(kind, weight, kind + weight, " + n +
                        ");\n  switch (kind) {\n  case 0:\n    return a_rather_long_name_for_a_value_" + n +
                        ";\n  case 1:\n    return weight;\n  default:\n    break;\n  }\n  return 0;\n}\n\n";
            }
            for (int function = 0; function < 60; ++function)
                text += "int step_" + std::to_string(file * 100 + function) + "(int x) {\n  return x + " +
                        std::to_string(function) + ";\n}\n\n";
            sources.push_back(text);
        }
        std::size_t const generated = sources_of(language).size();
        std::vector<std::string> project_own;
        for (std::size_t i = 0; i < sources.size(); ++i) {
            std::string const written = plugin->revise(sources[i], known, traits_of(sources[i]));
            if (written != STYLE_TARNEL_SYNTAX_ERROR_TEXT)
                project.push_back(written);
            if (written != STYLE_TARNEL_SYNTAX_ERROR_TEXT && i >= generated)
                project_own.push_back(written);
        }
        QVERIFY(project.size() >= 5);

        learned_style const learned = plugin.learning()->learn_style(project, "Learned", {});
        QVERIFY(!learned.addon.empty());
        QVERIFY(tarnel_engine::forms_not_coming_back(learned.addon, description).empty());
        for (int kind = 0; kind < macros.size(); ++kind) {
            tarnel_engine::macro_kind const& macro_kind = tarnel_engine::macro_kinds()[static_cast<std::size_t>(kind)];
            std::vector<std::string> const named = tarnel_engine::macros_named_in(
                macro_kind, obtain_structure_form(macro_kind.structure).from_already_reading(learned.addon));
            QVERIFY2(macros[kind].isEmpty() ||
                         std::find(named.begin(), named.end(), macros[kind].toStdString()) != named.end(),
                     qPrintable(QString::fromStdString(macro_kind.structure) + " names not " + macros[kind]));
        }
        QString const inferred =
            "\n" + QString::fromStdString(tarnel_engine::options_inferred_from(learned.addon, description));
        for (QString const& option : shown) {
            int const at = inferred.indexOf("\n" + option.section(':', 0, 0) + ":");
            QVERIFY2(inferred.contains("\n" + option + "\n"),
                     qPrintable(option + " learned as " + inferred.mid(at + 1, inferred.indexOf('\n', at + 1) - at - 1)));
        }
        // The files that use the project's macros (and its labels) are left as they are.
        for (std::string const& source : project_own)
            QCOMPARE(QString::fromStdString(plugin->revise(source, learned.addon, traits_of(source))),
                     QString::fromStdString(source));
        unsigned long lines = 0;
        unsigned long left = 0;
        for (std::string const& source : project) {
            std::string const revised = plugin->revise(source, learned.addon, traits_of(source));
            QVERIFY(revised != STYLE_TARNEL_SYNTAX_ERROR_TEXT);
            lines += static_cast<unsigned long>(std::count(source.begin(), source.end(), '\n'));
            left += tarnel_engine::lines_left_between(source, revised);
        }
        QCOMPARE(learned.lines, lines);
        QCOMPARE(learned.lines_left, left);
        QVERIFY2(left * 1000 >= lines * 995, qPrintable(QString("%1 of %2 lines left").arg(left).arg(lines)));
    }

    // A project written in a shipped style, with its limit or with the author's own line breaks
    // kept, but for the middle third of each file (where a sample reads a long file) written in
    // another style, is learned with the shipped styles of its language as starts: the sample
    // shows the other style, so the rules learned from it lose, and the style learned must still
    // leave at least as many lines as the style most of the code is written in. Faults caught: the
    // starts not weighed, a start weighed only as it stands (no author's breaks kept), a start
    // taken and not named, or named and not taken.
    void learns_no_further_from_the_code_than_a_start_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("shipped");
        QTest::addColumn<bool>("breaks_kept");
        QTest::addColumn<QString>("middle");
        QTest::newRow("C, Linux kernel with the author's breaks kept")
            << "C" << "Linux kernel" << true << "{BasedOnStyle: LLVM, IndentWidth: 3}";
        QTest::newRow("C, GNU as it stands") << "C" << "GNU" << false << "{BasedOnStyle: GNU, IndentWidth: 3}";
        QTest::newRow("C++, Mozilla with the author's breaks kept")
            << "C++" << "Mozilla" << true << "{BasedOnStyle: Google, IndentWidth: 3}";
    }
    void learns_no_further_from_the_code_than_a_start() {
        QFETCH(QString, language);
        QFETCH(QString, shipped);
        QFETCH(bool, breaks_kept);
        QFETCH(QString, middle);
        auto const& description = description_of(language);
        std::vector<learning_start> starts;
        long shipped_start = -1;
        for (QString const& file : shipped_addons())
            if (file.endsWith("[" + language + "].style")) {
                if (file.section('[', 0, 0) == shipped)
                    shipped_start = static_cast<long>(starts.size());
                starts.push_back({file.section('[', 0, 0).toStdString(), shipped_addon(file)});
            }
        QVERIFY(shipped_start >= 0);
        QString options = QString::fromStdString(
            tarnel_engine::options_inferred_from(starts[static_cast<std::size_t>(shipped_start)].addon, description));
        if (breaks_kept)
            options.replace(QRegularExpression("\nColumnLimit: *[0-9]+"), "\nColumnLimit: 0");
        std::string const known = tarnel_engine::addon_written_in(options.toStdString(), "Known", description);
        std::string const other = tarnel_engine::addon_written_in(middle.toStdString(), "Other", description);
        QVERIFY(!known.empty() && !other.empty());
        loaded_plugin plugin(plugin_file_of(language.toStdString()));
        QVERIFY(plugin.learning_from_starts());
        // Functions with a call too long for 80 columns and a condition broken by hand.
        auto const functions = [](int from, int to) {
            std::string code;
            for (int n = from; n < to; ++n) {
                std::string const i = std::to_string(n);
                code += "static int check_" + i + "(struct device *dev, int state, int flags)\n{\nint result = 0;\n"
                        "if (state > " + i + " &&\nflags != 0) {\nif (dev->ready)\nresult = compute_the_value_of_the_"
                        "device(dev, state, flags, dev->configuration_flags, " + i + ");\n} else {\nresult = -1;\n}\n"
                        "switch (state) {\ncase 0:\nreturn result;\ndefault:\nbreak;\n}\n"
                        "for (int k = 0; k < state; k++)\nresult += k * " + i + ";\nreturn result;\n}\n\n";
            }
            return code;
        };
        std::vector<std::string> const project = project_mostly_in(plugin, functions, known, other);
        QVERIFY(!project.empty());
        auto const lines_left_by = [&](std::string const& addon) { return lines_left_in(project, plugin, addon); };
        style_learned_from_starts const learned =
            plugin.learning_from_starts()->learn_style_from(project, starts, "Learned", {});
        check_at_least_as_close_as(known, "the style most of the code is written in", learned.learned, lines_left_by);
        if (QTest::currentTestFailed())
            return;
        for (std::size_t i = 0; i < starts.size(); ++i)
            QVERIFY2(learned.learned.lines_left >= lines_left_by(starts[i].addon), starts[i].style.c_str());
        // The shipped style as it stands is taken and named; with the breaks kept, its forms are
        // no start's.
        QCOMPARE(learned.start_taken, breaks_kept ? -1L : shipped_start);
        QVERIFY(learned.learned.addon.rfind("NAME=Learned\n", 0) == 0);
    }

    // A project written in the Linux kernel's style with the author's own breaks kept, but with its
    // own loop macro, its macros' backslashes one blank after their code and two blank lines
    // between functions, and the middle third of each file in another style (so that the rules
    // learned from the sample lose): the style learned must leave at least as many lines as the
    // project's own options and name the project's loop macro. Fault caught: a start with the
    // author's breaks kept weighed with the start's own macros and rules (the kernel's loops, its
    // backslashes lined up, one blank line), which changes the lines that show them.
    void a_start_with_the_breaks_kept_takes_the_projects_rules_data() {
        QTest::addColumn<QString>("own_rules");
        QTest::newRow("a loop macro, backslashes one blank after the code, two blank lines")
            << "{ColumnLimit: 0, AlignEscapedNewlines: DontAlign, MaxEmptyLinesToKeep: 2, "
               "ForEachMacros: [for_each_device]}";
    }
    void a_start_with_the_breaks_kept_takes_the_projects_rules() {
        QFETCH(QString, own_rules);
        auto const& description = description_of("C");
        std::vector<learning_start> starts;
        QString kernel;
        for (QString const& file : shipped_addons())
            if (file.endsWith("[C].style")) {
                starts.push_back({file.section('[', 0, 0).toStdString(), shipped_addon(file)});
                if (starts.back().style == "Linux kernel")
                    kernel = QString::fromStdString(
                        tarnel_engine::options_inferred_from(starts.back().addon, description));
            }
        QVERIFY(!kernel.isEmpty());
        // The kernel's options with the project's own in place of the kernel's values of them.
        QStringList const own_lines =
            own_rules.mid(1, own_rules.size() - 2).replace(", F", "\nF").replace(", ", "\n").split('\n');
        QString options;
        bool replaced = false;
        for (QString const& line : kernel.split('\n')) {
            if (replaced && (line.startsWith(' ') || line.startsWith('-')))
                continue;
            replaced = std::any_of(own_lines.begin(), own_lines.end(), [&](QString const& own_line) {
                return line.startsWith(own_line.section(':', 0, 0) + ":");
            });
            if (!replaced && line != "..." && !line.isEmpty())
                options += line + "\n";
        }
        options += own_lines.join('\n') + "\n";
        std::string const own = tarnel_engine::addon_written_in(options.toStdString(), "Own", description);
        // The middle third in LLVM's style indented by 3, the project's own rules kept.
        std::string const other = tarnel_engine::addon_written_in(
            "{BasedOnStyle: LLVM, IndentWidth: 3, " + own_rules.mid(1).toStdString(), "Other", description);
        QVERIFY(!own.empty() && !other.empty());
        loaded_plugin plugin(c_plugin_file());
        QVERIFY(plugin.learning_from_starts());
        auto const functions = [](int from, int to) {
            std::string code;
            for (int n = from; n < to; ++n) {
                std::string const i = std::to_string(n);
                code += "#define CHECK_" + i + "(dev) \\\n\tdo { \\\n\t\tcheck_the_device(dev, " + i +
                        "); \\\n\t} while (0)\n\n\n"
                        "static int check_" + i + "(struct device *dev, int state, int flags)\n{\n\tint result = 0;"
                        "\n\n\tfor_each_device(dev, list) {\n\t\tif (state > " + i + " && flags != 0)\n"
                        "\t\t\tresult += dev->value;\n\t}\n\treturn result;\n}\n\n\n";
            }
            return code;
        };
        std::vector<std::string> const project = project_mostly_in(plugin, functions, own, other);
        QVERIFY(!project.empty());
        auto const lines_left_by = [&](std::string const& addon) { return lines_left_in(project, plugin, addon); };
        style_learned_from_starts const learned =
            plugin.learning_from_starts()->learn_style_from(project, starts, "Learned", {});
        check_at_least_as_close_as(own, "the project's own options", learned.learned, lines_left_by);
        if (QTest::currentTestFailed())
            return;
        QVERIFY(QString::fromStdString(tarnel_engine::options_inferred_from(learned.learned.addon, description))
                    .contains("- for_each_device\n"));
    }

    // Trailing comments mostly two blanks from their code, a few further: the learning reads two,
    // the search may leave comments where they stand (which changes no line of the sample), and
    // the style must keep them where they stand, or say two, as the code does. Faults caught: the
    // addon written under the "leave" alignment by forms that do not carry it, which keep the
    // catalogue's single blank and so say one; and comments lined up or not by a style whose forms
    // do carry it, which moves the comments standing further.
    void holds_the_blanks_before_trailing_comments() {
        std::vector<std::string> const project = functions_in(6, 40, [](int, std::string const& n) {
            std::string const further = std::stoi(n) % 100 % 5 == 4 ? "    " : "  ";
            return "int step_" + n + "(int x) {\n  int y = x + " + n + ";  // the next one\n  if (y > 3) {\n"
                   "    y = 3;" + further + "// at most three\n  }\n  return y;  // done\n}\n\n";
        });
        loaded_plugin plugin(cpp_plugin_file());
        learned_style const learned = plugin.learning()->learn_style(project, "Learned", {});
        QString const inferred = options_shown_by(learned.addon, cpp_language());
        QVERIFY2(inferred.contains("\nSpacesBeforeTrailingComments: 2\n") ||
                     inferred.contains("\nAlignTrailingComments:\n Kind: Leave\n"),
                 qPrintable(inferred));
        check_every_line_left_by(learned);
    }

    // Trailing comments two blanks from their code in the files the sample takes (every other one
    // of 70), five blanks in some lines of the others: the sample changes no more whether the
    // comments are lined up, kept two blanks away or left where they stand, and the style must leave
    // them, as the forms carry it. Fault caught: the search's own choice kept on a tie, which moves
    // the comments of the files the sample did not take.
    void leaves_trailing_comments_where_the_sample_cannot_tell() {
        std::vector<std::string> const project = functions_in(70, 12, [](int file, std::string const& n) {
            std::string const blanks = file % 2 ? "     " : "  ";
            return "int step_" + n + "(int x) {\n  int y = x + " + n + ";  // the next one\n  if (y > 3) {\n"
                   "    y = 3;\n  }\n  return y;" + blanks + "// done\n}\n\n";
        });
        loaded_plugin plugin(cpp_plugin_file());
        check_every_line_left_by(plugin.learning()->learn_style(project, "Learned", {}));
    }

    // Code with lines longer than any limit (the author's breaks kept): in the files the sample
    // leaves out (every other one of 70), ifs with an else, case labels and functions joined with
    // their statements, and calls and declarations broken by hand with their arguments and
    // parameters packed; the files the sample takes show none of them. The style must leave every
    // line as it is. Fault caught: under no limit, the values the search kept from a sample that
    // cannot tell (ifs, case labels and functions on lines of their own, parameters one a line),
    // which split what the author joined.
    void keeps_what_the_author_joined_under_no_limit() {
        std::vector<std::string> const project = functions_in(70, 12, [](int file, std::string const& n) {
            std::string text = "int step_" + n + "(int x) {\n  int y = x + " + n + ";\n  if (y > 3) {\n    y = 3;\n  }\n"
                               "  return y;\n}\n\nint one_" + n + "(void) {\n  return 1;\n}\n\n";
            if (file % 2)
                text += "int pick_" + n + "(int x) {\n  if (x > 1) return 1;\n  else return 2;\n}\n\n"
                        "int choose_" + n + "(int x) {\n  switch (x) {\n    case 1: return 2;\n"
                        "    default: return 0;\n  }\n}\n\n"
                        "int call_" + n + "(int x) {\n  return compute(x, 1,\n                 2, 3);\n}\n\n"
                        "int size_" + n + "(int x) { return x + 1; }\n\n"
                        "int scale_" + n + "(int value, int factor,\n" + std::string(11 + n.size(), ' ') + "int offset);\n\n";
            return text;
        });
        loaded_plugin plugin(c_plugin_file());
        check_every_line_left_by(plugin.learning()->learn_style(project, "Learned", {}));
    }

    // Each kind of macro is read from code of its own shape only, in two files: a loop without
    // braces is no statement, a function's name after its class's qualifier no statement, a
    // structure's tag no attribute, a return type on its own line no attribute, a parameter's name
    // before its attribute no attribute, a structure's variable no class head, an annotation after
    // a function's head no loop.
    void finds_the_macros_a_project_uses_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("a statement macro") << 1 << "int f(int x) {\n  Q_UNUSED(x)\n  return 0;\n}\n"
                                           << QStringList{"Q_UNUSED"};
        QTest::newRow("a loop without braces is no statement macro")
            << 1 << "void f(struct list_head *h) {\n  struct list_head *p;\n  list_for_each(p, h)\n    g(p);\n}\n"
            << QStringList();
        QTest::newRow("a function's name under its class is no statement macro")
            << 1 << "  template <typename T>\n    void\n    vector<T>::\n    insert_aux(int at)\n#if X\n  {\n  }\n"
            << QStringList();
        QTest::newRow("attributes among the specifiers and after a variable's name")
            << 2 << "static int __init setup(void) {\n  return 0;\n}\nint counter __read_mostly;\n"
            << QStringList{"__init", "__read_mostly"};
        QTest::newRow("a structure's tag is no attribute")
            << 2 << "struct item {\n  struct list_head node;\n  const struct item *next;\n};\n" << QStringList();
        QTest::newRow("an attribute on a line of its own, a return type on its own line none")
            << 2 << "static __always_inline\nvoid f(void)\n{\n}\n\nstatic __poll_t\npoll_it(void)\n{\n}\n"
            << QStringList{"__always_inline"};
        QTest::newRow("an attribute after a parameter's name, the name none")
            << 2 << "static int show(const char *refname,\n\t\tvoid *cb_data UNUSED)\n{\n\treturn 0;\n}\n"
            << QStringList{"UNUSED"};
        QTest::newRow("a structure's variable over its initialiser is no class head, a class head is")
            << 2
            << "struct DLL_API settings\n{\n\tint a;\n};\nvoid f(void)\n{\n\tstruct options_of_call options\n"
               "\t\t= OPTIONS_INIT;\n\tg(&options);\n}\n"
            << QStringList{"DLL_API"};
        QTest::newRow("an annotation after a function's head is no loop")
            << 0 << "static void f(void)\n\t__acquires(lock)\n{\n\tg();\n}\n" << QStringList();
    }
    void finds_the_macros_a_project_uses() {
        QFETCH(int, kind);
        QFETCH(QString, code);
        QFETCH(QStringList, found);
        std::vector<std::string> const sources(2, code.toStdString());
        QStringList names;
        for (std::string const& name : tarnel_engine::macro_kinds()[static_cast<std::size_t>(kind)].used_in(sources))
            names << QString::fromStdString(name);
        QCOMPARE(names, found);
    }

    // Rules read from every source, each only where the code clearly shows it (three files alike
    // here): a macro's backslashes one blank after its code, not lined up; braced lists with blanks
    // inside, not without; loop macros close to their parentheses where keywords are not; the most
    // blank lines in a row kept; labels of nested blocks first on their line;
    // continued lines with tabs beyond their statement's or blanks after them, and nothing of tabs
    // in code indented with blanks; the step of a constructor's initializer list.
    void reads_rules_from_every_source_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("tab_width");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("rule");
        QString const macro = "#define CHECK(x) \\\n\tdo { \\\n\t\tif (!(x)) \\\n\t\t\tfail(); \\\n\t} while (0)\n";
        // Backslashes in column 32, tabs 8 wide.
        QString const lined_up = "#define CHECK(x)" + QString(16, ' ') + "\\\n\tdo {" + QString(20, ' ') +
                                 "\\\n\t\tif (!(x))" + QString(7, ' ') + "\\\n\t\t\tfail(); \\\n\t} while (0)\n";
        QTest::newRow("backslashes one blank after the code") << macro << 8 << "AlignEscapedNewlines"
                                                              << "{AlignEscapedNewlines: DontAlign}";
        QTest::newRow("backslashes lined up: the search chooses the column")
            << lined_up << 8 << "AlignEscapedNewlines" << "";
        // Backslashes in column 24 under tabs 4 wide (in no column under tabs of 8), beside a macro
        // with them one blank after its code: neither way is clear. Fault caught: tabs counted 8
        // wide whatever the code's own, which hides the lined-up backslashes.
        QString const lined_up_under_4 = "#define CHECK(x)" + QString(8, ' ') + "\\\n\tdo {" + QString(16, ' ') +
                                         "\\\n\t\tif (!(x))" + QString(7, ' ') + "\\\n\t\t\tfail();" +
                                         QString(5, ' ') + "\\\n\t} while (0)\n";
        QTest::newRow("backslashes lined up under tabs of 4 beside one blank after the code")
            << macro + "\n" + lined_up_under_4 << 4 << "AlignEscapedNewlines" << "";
        QTest::newRow("braced lists with blanks inside, laid out as blocks")
            << "static int sizes[] = { 1, 2, 4 };\nstatic struct entry table[] = {\n\t{ \"name\", 1 },\n};\n" << 8
            << "Cpp11BracedListStyle" << "{Cpp11BracedListStyle: false}";
        QTest::newRow("braced lists without blanks: the search weighs them")
            << "static int sizes[] = {1, 2, 4};\nstatic char name[8] = {0};\n" << 8 << "Cpp11BracedListStyle" << "";
        QTest::newRow("blocks of statements and enums are no braced lists")
            << "enum { A, B };\nint f(void) { return g(); }\nvoid h(void) { i(); }\n" << 8 << "Cpp11BracedListStyle" << "";
        QString const loops = "void f(struct list *l)\n{\n\tstruct item *i;\n\tfor_each_item(i, l) {\n\t\tif (i->n)\n"
                              "\t\t\tg(i);\n\t}\n\tfor_each_item(i, l) {\n\t\twhile (i->n)\n\t\t\th(i);\n\t}\n}\n";
        QTest::newRow("loop macros close to their parentheses, keywords a blank away")
            << loops << 8 << "SpaceBeforeParens" << "{SpaceBeforeParens: ControlStatementsExceptControlMacros}";
        QTest::newRow("loop macros a blank away as keywords are: the search weighs them")
            << QString(loops).replace("for_each_item(", "for_each_item (") << 8 << "SpaceBeforeParens" << "";
        QTest::newRow("two blank lines in a row in three places")
            << "int a;\n\n\nint b;\n\nint c;\n" << 8 << "MaxEmptyLinesToKeep" << "{MaxEmptyLinesToKeep: 2}";
        QTest::newRow("labels of nested blocks first on their line")
            << "int f(void)\n{\n\twhile (g()) {\n\t\tif (h())\n\t\t\tgoto out;\nout:\n\t\ti();\n\t}\n\treturn 0;\n}\n" << 8
            << "IndentGotoLabels" << "{IndentGotoLabels: false}";
        QTest::newRow("labels of a function's own block: either way puts them first")
            << "int f(void)\n{\n\tif (g())\n\t\tgoto out;\n\ti();\nout:\n\treturn 0;\n}\n" << 8 << "IndentGotoLabels" << "";
        QTest::newRow("continued lines with tabs beyond their statement's")
            << "int f(void)\n{\n\tresult = check_state(dev, flags,\n\t\t\t     other);\n\treturn result;\n}\n" << 8
            << "UseTab" << "{UseTab: ForContinuationAndIndentation}";
        QTest::newRow("continued lines with blanks after their statement's tabs")
            << "int f(void)\n{\n\tresult = check_state(dev, flags,\n\t                     other);\n\treturn result;\n}\n"
            << 8 << "UseTab" << "{UseTab: ForIndentation}";
        QTest::newRow("code indented with blanks says nothing of tabs")
            << "int f(void)\n{\n    result = check_state(dev, flags,\n                         other);\n}\n" << 0
            << "UseTab" << "";
        // Fault caught: the step of an initializer list left to a sample that may show none.
        QTest::newRow("initializer lists four further in than their constructor")
            << "Plan::Plan(Builder* builder)\n    : builder_(builder) {}\nclass Pool {\n  Pool(int depth)\n"
               "      : depth_(depth) {}\n};\n"
            << 0 << "ConstructorInitializerIndentWidth" << "{ConstructorInitializerIndentWidth: 4}";
        // Fault caught: the step measured from the line above rather than from the head's first line.
        QTest::newRow("a constructor's head over two lines: the step from its first line")
            << "Parser::Parser(State* state,\n               Reader* reader)\n  : state_(state), reader_(reader) {}\n"
            << 0 << "ConstructorInitializerIndentWidth" << "{ConstructorInitializerIndentWidth: 2}";
        // Fault caught: a list after a head that ends with its colon not read.
        QTest::newRow("the colon at the end of the head: the step of the next line")
            << "Plan::Plan(Builder* builder) :\n        builder_(builder) {}\n" << 0
            << "ConstructorInitializerIndentWidth" << "{ConstructorInitializerIndentWidth: 8}";
        // Fault caught: a ternary's colon taken for an initializer list's.
        QTest::newRow("a ternary's colon is no initializer list")
            << "int f() {\n  return ready(a) ? first(b)\n         : second(c);\n}\n" << 0
            << "ConstructorInitializerIndentWidth" << "";
        // Fault caught: a case label made by a macro taken for a constructor's head.
        QTest::newRow("a case label with parentheses is no constructor")
            << "void f(int k) {\n  switch (k) {\n  case KIND(a):\n        run();\n  }\n}\n" << 0
            << "ConstructorInitializerIndentWidth" << "";
    }
    void reads_rules_from_every_source() {
        QFETCH(QString, code);
        QFETCH(int, tab_width);
        QFETCH(QString, key);
        QFETCH(QString, rule);
        std::vector<std::string> const sources(3, code.toStdString());
        QStringList with_key;
        for (std::string const& read : tarnel_engine::rules_read_from_every_source(sources, tab_width))
            if (QString::fromStdString(read).contains(key + ":"))
                with_key << QString::fromStdString(read);
        QCOMPARE(with_key, rule.isEmpty() ? QStringList() : QStringList{rule});
    }

    // The width of a tab comes from where tabs and blanks line up, never from the indent step:
    // tabs alone show no width (8), continuation lines under an open parenthesis or the first item
    // after an open brace, comments under a trailing comment, and a tab-indented line one step in
    // from a blank-indented one do.
    void reads_the_width_of_tabs_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("width");
        QTest::newRow("tabs alone, one a level") << "int f(void)\n{\n\tif (a) {\n\t\tb();\n\t}\n}\n" << 8;
        QTest::newRow("arguments lined up under ( with tabs of 8 and blanks")
            << "int f(void)\n{\n\tif (a) {\n\t\tresult = check_state(dev, flags,\n\t\t\t\t     other);\n\t}\n}\n" << 8;
        QTest::newRow("arguments lined up under ( with tabs of 4 and blanks")
            << "int f(void)\n{\n\tif (a) {\n\t\tresult = check_state(dev, flags,\n\t\t\t\t\t\t\t other);\n\t}\n}\n"
            << 4;
        QTest::newRow("indent 4, a tab taking over at the second level")
            << "int f(void) {\n    if (a) {\n\tb();\n\tif (c) {\n\t    d();\n\t}\n    }\n}\n" << 8;
        QTest::newRow("indent 2, tabs of 4 at the second level")
            << "int f(void) {\n  if (a) {\n\tb();\n\tif (c) {\n\t  d();\n\t}\n  }\n}\n" << 4;
        // Steps of two tabs read alike under any width: the enumerator under the first one shows it.
        QTest::newRow("enumerators lined up after { with tabs of 4 and blanks, two tabs a step")
            << "int f(void)\n{\n\t\tenum e { one,\n\t\t\t\t two };\n}\n" << 4;
        QTest::newRow("a comment lined up under a trailing comment with tabs of 4 and blanks, two tabs a step")
            << "int f(void)\n{\n\t\tint name; // one\n\t\t\t\t  // two\n}\n" << 4;
    }
    void reads_the_width_of_tabs() {
        QFETCH(QString, code);
        QFETCH(int, width);
        QCOMPARE(tarnel_engine::tab_width_read_from({code.toStdString()}), width);
    }

    // Code indented with tabs of 8 columns, its continuation lines lined up with tabs and blanks:
    // the tab's width is read where they line up, not from the indent step nor from how close lines
    // come to a limit (tabs of 4 with an indent of 4 put every level's tab back, and lined up
    // continuations and long lines wrong).
    void learns_tabs_of_8_columns() {
        std::string const options =
            "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 8, UseTab: Always, ContinuationIndentWidth: 8, "
            "BreakBeforeBraces: Linux, AllowShortIfStatementsOnASingleLine: Never, AllowShortFunctionsOnASingleLine: None, "
            "IndentCaseLabels: false, ColumnLimit: 80}";
        std::string const known = tarnel_engine::addon_written_in(options, "Kernel", c_language());
        QVERIFY(!known.empty());
        loaded_plugin plugin(c_plugin_file());
        QVERIFY(plugin.learning());
        // Messages that pass the limit three levels in, as drivers print them: narrower under tabs
        // of 4, where they would fit a limit of 80.
        std::string messages;
        for (int handler = 0; handler < 12; ++handler) {
            messages += "static int handle_" + std::to_string(handler) + "(struct device *dev, int state) {\n";
            messages += "if (dev) { if (state > " + std::to_string(handler) + ") {\n";
            for (int line = 0; line < 6; ++line)
                messages += "pr_info(\"device in state %d waits for the handler to finish its work\", state);\n";
            messages += "state = check_the_state_of(dev, state, " + std::to_string(handler) + ", handler_flags, dev->flags, 0);\n";
            messages += "} }\nreturn state;\n}\n";
        }
        std::vector<std::string> project;
        for (std::string const& source : sources_of("C")) {
            std::string const written = plugin->revise(source, known, traits_of(source));
            if (written != STYLE_TARNEL_SYNTAX_ERROR_TEXT)
                project.push_back(written);
        }
        project.push_back(plugin->revise(messages, known, traits_of(messages)));
        QVERIFY(project.back() != STYLE_TARNEL_SYNTAX_ERROR_TEXT);
        learned_style const learned = plugin.learning()->learn_style(project, "Learned", {});
        QVERIFY(!learned.addon.empty());
        QString const inferred = options_shown_by(learned.addon, c_language());
        QVERIFY2(inferred.contains("\nTabWidth: 8\n"), qPrintable(inferred));
        QVERIFY2(inferred.contains("\nIndentWidth: 8\n"), qPrintable(inferred));
    }

    void learns_nothing_data() {
        QTest::addColumn<int>("sources");
        QTest::addColumn<bool>("stopped");
        QTest::newRow("no sources") << 0 << false;
        QTest::newRow("text of another language") << 1 << false;
        QTest::newRow("stopped at the first report") << 2 << true;
    }
    void learns_nothing() {
        QFETCH(int, sources);
        QFETCH(bool, stopped);
        std::vector<std::string> project;
        if (sources == 1)
            project = {python, python, python};
        else if (sources == 2)
            project = sources_of("C++");
        loaded_plugin plugin(cpp_plugin_file());
        QVERIFY(plugin.learning());
        int reports = 0;
        learned_style const learned =
            plugin.learning()->learn_style(project, "Learned", [&](unsigned long, unsigned long) {
                ++reports;
                return !stopped;
            });
        QVERIFY(learned.addon.empty());
        QVERIFY(!stopped || reports == 1);
    }

    // Code documented at length is still code: the JDK's sources hold more lines of comment than of
    // code, and their style was refused as no code of the language.
    void learns_from_code_documented_at_length_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("code");
        QTest::newRow("Java, a method under each comment")
            << "Java" << "class Items%1 {\n%2    int size%1(int limit) {\n        return limit + %1;\n    }\n}\n";
        QTest::newRow("C, a function under each comment")
            << "C" << "%2int size%1(int limit)\n{\n    return limit + %1;\n}\n";
    }
    void learns_from_code_documented_at_length() {
        QFETCH(QString, language);
        QFETCH(QString, code);
        QString comment = "    /**\n";
        for (int line = 0; line < 20; ++line)
            comment += "     * Returns the number of items, counted as the collection holds them, line " +
                       QString::number(line) + ".\n";
        comment += "     */\n";
        std::vector<std::string> project;
        for (int file = 0; file < 6; ++file)
            project.push_back(code.arg(file).arg(comment).toStdString());
        loaded_plugin plugin(plugin_file_of(language.toStdString()));
        QVERIFY(plugin.learning());
        QVERIFY(!plugin.learning()->learn_style(project, "Learned", {}).addon.empty());
    }

    // Sources the engine cannot format in bounded time and memory are neither learned from nor
    // counted, and the others still are: one Qt header of long #elif chains nested five deep made
    // the engine read it thousands of times (37 s, 1 GB) in the count.
    void learns_around_sources_it_keeps_out_data() {
        QTest::addColumn<QString>("kept_out");
        std::string conditionals;
        for (int level = 0; level < 4; ++level) {
            conditionals += "#if defined(LEVEL_" + std::to_string(level) + "_0)\n";
            for (int branch = 1; branch < 16; ++branch)
                conditionals += "#  define LEVEL_" + std::to_string(level) + " " + std::to_string(branch) +
                                "\n#elif defined(LEVEL_" + std::to_string(level) + "_" + std::to_string(branch) + ")\n";
        }
        conditionals += "int deepest;\n";
        for (int level = 0; level < 4; ++level)
            conditionals += "#endif\n";
        QTest::newRow("conditionals of 16 branches nested 4 deep") << QString::fromStdString(conditionals);
        QTest::newRow("a brace left open") << "struct open {\n    int field;\n";
    }
    void learns_around_sources_it_keeps_out() {
        QFETCH(QString, kept_out);
        std::vector<std::string> project = sources_of("C++");
        unsigned long lines = 0;
        for (std::string const& source : project)
            lines += static_cast<unsigned long>(tarnel_engine::lines_of(source).size());
        project.insert(project.begin() + static_cast<long>(project.size() / 2), kept_out.toStdString());
        loaded_plugin plugin(cpp_plugin_file());
        learned_style const learned = plugin.learning()->learn_style(project, "Learned", {});
        QVERIFY(!learned.addon.empty());
        QCOMPARE(learned.lines, lines);
    }

    // A piece whose braces do not pair up kept one engine call of the search busy for minutes (and
    // a gigabyte) under Whitesmiths braces: the containers around a piece must be opened once each.
    // Pieces hold whole conditionals too.
    void sample_pieces_pair_their_brackets_data() {
        QTest::addColumn<QString>("opening");
        QTest::addColumn<QString>("closing");
        QTest::newRow("three namespaces opened on one line")
            << "namespace a { namespace b { namespace c {\n" << "}}}\n";
        QTest::newRow("two namespaces, the second brace on a line of its own")
            << "namespace a { namespace b\n{\n" << "}\n}\n";
        // Half a conditional nested every piece after it one level deeper in the search's call:
        // the Boost learning grew past 10 GB.
        QTest::newRow("a header guard and a conditional around blank lines")
            << "#ifndef GUARD_H\n#define GUARD_H\n#if defined(A)\n" << "#else\nint b;\n#endif\n#endif\n";
    }
    void sample_pieces_pair_their_brackets() {
        QFETCH(QString, opening);
        QFETCH(QString, closing);
        std::string file = opening.toStdString();
        for (int record = 0; record < 40; ++record)
            file += "\nstruct record_" + std::to_string(record) + " {\n    int field;\n    void run();\n};\n";
        file += closing.toStdString();
        QVERIFY(tarnel_engine::brackets_are_balanced_in(file));
        std::vector<std::string> const pieces = tarnel_engine::take_sample().of({file});
        QVERIFY(pieces.size() >= 2);
        for (std::string const& piece : pieces) {
            QVERIFY2(tarnel_engine::brackets_are_balanced_in(piece), piece.c_str());
            QVERIFY2(tarnel_engine::conditional_branches_of(piece).paired, piece.c_str());
        }
    }
};

QTEST_GUILESS_MAIN(test_style_learning)
#include "test_style_learning.moc"
