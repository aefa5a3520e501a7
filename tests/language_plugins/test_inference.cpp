// The options a plugin infers from an addon's forms: addons written from option sets that no
// predefined style is close to come back form for form; an addon written with indent width 4
// revises files with 4 spaces; a consistent hand edit of a shipped addon takes effect; a form that
// contradicts the others gives the rules closest to all forms, the same for the same forms, and
// `check`'s reasons name the option it needs and the forms that share the rule; forms edited to
// another value of an option give that value back, and an addon without the newer forms revises as
// before.
#include "helpers/our_plugins.h"

#include "c_language.h"
#include "cpp_language.h"
#include "core/style_addon.h"
#include "form_conflicts.h"
#ifndef Q_MOC_RUN  // the engine's headers are more than moc reads
#include "option_moves.h"
#include "token_safe_settings.h"
#endif
#include "revision.h"

#include <QtTest>

using namespace our_plugins;

namespace {

// The structures whose forms do not come back from the options inferred from the addon.
QStringList forms_not_coming_back_in(std::string const& addon, tarnel_engine::language_description const& language) {
    QStringList names;
    for (tarnel_engine::form_not_coming_back const& each : tarnel_engine::forms_not_coming_back(addon, language))
        names << QString::fromStdString(each.structure);
    return names;
}

// The addon with `from` replaced by `to` inside the form of one structure, as a user edits it.
std::string with_form_edited(std::string addon, std::string const& structure, std::string const& from,
                             std::string const& to) {
    std::size_t const begin = addon.find("S_NAME=" + structure + "\nS_BEG\n");
    std::size_t const end = addon.find("\nS_END", begin);
    std::size_t const at = addon.find(from, begin);
    if (begin == std::string::npos || at == std::string::npos || at > end)
        return std::string();
    return addon.replace(at, from.size(), to);
}

struct form_edit {
    char const* structure;
    char const* from;
    char const* to;
};

}  // namespace

class test_inference : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    // Sets far from every predefined style, where a search that moves one option at a time from
    // the nearest base stalls (indent width with access offset and brace style, tabs with
    // alignment, blanks inside parentheses with short statements).
    void option_sets_round_trip_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("options");
        QTest::newRow("C++ Chromium, indent 3, Stroustrup braces, access offset 0, namespaces indented")
            << "C++" << "{BasedOnStyle: Chromium, IndentWidth: 3, BreakBeforeBraces: Stroustrup, AccessModifierOffset: 0, "
                        "NamespaceIndentation: All}";
        QTest::newRow("C++ Mozilla, tabs of 8, * in the middle, blank before every (, limit 100")
            << "C++" << "{BasedOnStyle: Mozilla, IndentWidth: 8, UseTab: Always, TabWidth: 8, PointerAlignment: Middle, "
                        "SpaceBeforeParens: Always, ColumnLimit: 100, IndentCaseLabels: true}";
        QTest::newRow("C++ WebKit, Allman braces, no short functions, short ifs, limit 120")
            << "C++" << "{BasedOnStyle: WebKit, IndentWidth: 2, BreakBeforeBraces: Allman, AllowShortFunctionsOnASingleLine: "
                        "None, AllowShortIfStatementsOnASingleLine: WithoutElse, AccessModifierOffset: -1, ColumnLimit: 120}";
        QTest::newRow("C GNU, indent 4 with tabs, * on the type, no blank before (")
            << "C" << "{BasedOnStyle: GNU, IndentWidth: 4, UseTab: ForIndentation, PointerAlignment: Left, ColumnLimit: 120, "
                      "SpaceBeforeParens: Never}";
        QTest::newRow("C Microsoft, indent 3, Linux braces, blanks inside parentheses")
            << "C" << "{BasedOnStyle: Microsoft, IndentWidth: 3, BreakBeforeBraces: Linux, IndentCaseLabels: true, "
                      "AllowShortIfStatementsOnASingleLine: AllIfsAndElse, SpacesInParens: Custom, "
                      "SpacesInParensOptions: {InConditionalStatements: true, Other: true}}";
        QTest::newRow("C Google, indent 8, Whitesmiths braces")
            << "C" << "{BasedOnStyle: Google, IndentWidth: 8, BreakBeforeBraces: Whitesmiths, ColumnLimit: 80, "
                      "PointerAlignment: Right, DerivePointerAlignment: false}";
        QTest::newRow("C LLVM, assignments, declarations and macros aligned, backslashes left with the last line")
            << "C" << "{BasedOnStyle: LLVM, AlignConsecutiveAssignments: true, AlignConsecutiveDeclarations: true, "
                      "AlignConsecutiveMacros: true, AlignEscapedNewlines: LeftWithLastLine, IndentWidth: 4}";
        QTest::newRow("C Google, two blank lines, none at a block's start, comments aligned over blank lines")
            << "C" << "{BasedOnStyle: Google, MaxEmptyLinesToKeep: 2, KeepEmptyLines: {AtStartOfBlock: false}, "
                      "AlignTrailingComments: {Kind: Always, OverEmptyLines: 1}, SpacesBeforeTrailingComments: 1}";
        QTest::newRow("C WebKit, short enums with their brace below, extern block brace below, kernel loops")
            << "C" << "{BasedOnStyle: WebKit, AllowShortEnumsOnASingleLine: true, BreakBeforeBraces: Custom, "
                      "BraceWrapping: {AfterFunction: true, AfterEnum: true, AfterExternBlock: true}, "
                      "SpaceBeforeParens: ControlStatementsExceptForEachMacros, "
                      "ForEachMacros: [list_for_each_entry, for_each_possible_cpu]}";
        // A form that one group brings back only while another group, which other forms name, moves
        // with it (one at a time, each move put off more forms than it brought back).
        QTest::newRow("C++ no limit, parenthesis left open, strings in parts on a line of their own, operators after")
            << "C++" << "{BasedOnStyle: LLVM, IndentWidth: 4, UseTab: ForIndentation, ColumnLimit: 0, "
                        "AlignAfterOpenBracket: BlockIndent, AlignOperands: AlignAfterOperator, "
                        "AlwaysBreakBeforeMultilineStrings: true, BreakBeforeBinaryOperators: NonAssignment, "
                        "ContinuationIndentWidth: 4, BreakBeforeTernaryOperators: false}";
        // Code indented with tabs alone reads as an indent of 8 in tabs of 4 as well as 4 in tabs of 2:
        // the tab width moves with the indent step measured in it (read as tabs of 2, and 2 forms lost).
        QTest::newRow("C indent 8 in tabs of 4, tabs for indentation and blanks for alignment")
            << "C" << "{BasedOnStyle: LLVM, AlignEscapedNewlines: DontAlign, IndentWidth: 8, TabWidth: 4, "
                      "UseTab: AlignWithSpaces}";
        // Lost to two groups moved together (main's search found neither), brought back by either the
        // mending move or the tab width's.
        QTest::newRow("C tabs of 8 for continuation, indent 8, parenthesis left open, operators first but after =")
            << "C" << "{BasedOnStyle: LLVM, AlignAfterOpenBracket: BlockIndent, AlignEscapedNewlines: DontAlign, "
                      "BreakBeforeBinaryOperators: NonAssignment, ColumnLimit: 100, ContinuationIndentWidth: 8, "
                      "Cpp11BracedListStyle: false, IndentWidth: 8, UseTab: ForContinuationAndIndentation}";
        // Comments left where they stand: a line longer than the limit in one form sets the trailing
        // comments of the forms after it the style's distance away, which a revision formatting each
        // form alone never does (measured together, 2 blanks put "trailing comments" off, and the
        // search read 1 blank: two forms lost).
        QTest::newRow("C++ comments left where they stand 2 blanks away, limit 120, blanks inside parentheses")
            << "C++" << "{BasedOnStyle: LLVM, AlignTrailingComments: {Kind: Leave}, SpacesBeforeTrailingComments: 2, "
                        "ColumnLimit: 120, SpacesInParens: Custom, SpacesInParensOptions: {InConditionalStatements: "
                        "true, Other: true}}";
        // Read as an indent of 16 in tabs of 8: the tab width's move to 8 in tabs of 4 brings "enum"
        // back only with the access labels' offset scaled too (-16 to -8), and never reaches 16.
        QTest::newRow("C++ WebKit, indent 8 in tabs of 4 for indentation, access labels 8 out, continuation 2")
            << "C++" << "{BasedOnStyle: WebKit, AccessModifierOffset: -8, IndentWidth: 8, TabWidth: 4, UseTab: "
                        "ForIndentation, ContinuationIndentWidth: 2, AlignAfterOpenBracket: BlockIndent, "
                        "AlignEscapedNewlines: DontAlign}";
        // Read as 8 in tabs of 8: the move to tabs of 4 keeps the access labels' column (-5 to -1) and
        // scales the constructor initializers' indent with the continuation (four long forms lost).
        QTest::newRow("C++ Google, indent 4 in tabs of 4 aligned with blanks, arguments one a line, comments left")
            << "C++" << "{BasedOnStyle: Google, AlignAfterOpenBracket: DontAlign, AlignEscapedNewlines: DontAlign, "
                        "AlignTrailingComments: {Kind: Leave, OverEmptyLines: 0}, AllowAllArgumentsOnNextLine: false, "
                        "BinPackArguments: false, BreakBeforeTernaryOperators: false, BreakConstructorInitializers: "
                        "BeforeComma, NamespaceIndentation: All, PenaltyBreakBeforeFirstCallParameter: 100, "
                        "SpaceBeforeAssignmentOperators: false, SpacesInParens: Custom, SpacesInParensOptions: "
                        "{InConditionalStatements: true, Other: true}, IndentWidth: 4, TabWidth: 4, UseTab: AlignWithSpaces}";
        // Read as 8 in tabs of 8 with directives indented 8: the move to tabs of 4 scales the
        // directives' indent with the step ("multiline string" lost).
        QTest::newRow("C++ Microsoft, tabs of 4 aligned with blanks, directives indented, parenthesis left open")
            << "C++" << "{BasedOnStyle: Microsoft, AccessModifierOffset: -4, AlignAfterOpenBracket: AlwaysBreak, "
                        "AlignEscapedNewlines: DontAlign, BinPackArguments: false, ColumnLimit: 0, "
                        "IndentPPDirectives: BeforeHash, UseTab: AlignWithSpaces}";
        // The bound spent on other starts before the best style's single moves were tried there: a
        // last pass of single moves brings the arguments of "long call assignment" back to the next line.
        QTest::newRow("C Mozilla, tabs of 8 for continuation, nothing aligned, limit 79, blanks around")
            << "C" << "{BasedOnStyle: Mozilla, AlignAfterOpenBracket: DontAlign, AlignEscapedNewlines: DontAlign, "
                      "AlignOperands: DontAlign, AlignTrailingComments: {Kind: Never}, "
                      "AllowAllParametersOfDeclarationOnNextLine: true, BinPackArguments: true, BinPackParameters: true, "
                      "BreakAfterReturnType: Automatic, BreakBeforeTernaryOperators: false, ColumnLimit: 79, "
                      "ContinuationIndentWidth: 8, IndentWidth: 8, PointerAlignment: Middle, "
                      "SpaceBeforeAssignmentOperators: false, SpaceAfterCStyleCast: true, SpaceAfterLogicalNot: true, "
                      "SpacesInSquareBrackets: true, UseTab: ForContinuationAndIndentation}";
        // Read as a continuation of 8 in tabs of 4, then as 8 in tabs of 8 (macros, a ternary and a
        // multiline string lost): the way back to tabs of 4 puts "long call assignment" off unless
        // breaking after `=` costs more too, a pair the tab width's move makes with the groups of the
        // forms it puts off, after a descent that the former bound left no room for.
        QTest::newRow("C WebKit, tabs of 4 aligned with blanks, breaking after = costs more, limit 100")
            << "C" << "{BasedOnStyle: WebKit, AlignAfterOpenBracket: Align, AlignConsecutiveAssignments: {Enabled: "
                      "true}, AlignEscapedNewlines: LeftWithLastLine, AlwaysBreakBeforeMultilineStrings: true, "
                      "BreakBeforeBinaryOperators: None, ColumnLimit: 100, PenaltyBreakAssignment: 100, TabWidth: 4, "
                      "UseTab: AlignWithSpaces}";
        // Read as 8 in tabs of 8 ("multiline string" lost): tabs of 4 bring the string back but put
        // "long constructor initializers" off until their indent, 8 in tabs of 8, moves to 4 with them.
        QTest::newRow("C++ Microsoft, tabs of 4 aligned with blanks, continuation 2, access labels indented")
            << "C++" << "{BasedOnStyle: Microsoft, AlignConsecutiveMacros: {Enabled: true}, AlignEscapedNewlines: "
                        "DontAlign, AlignTrailingComments: {Kind: Never}, AllowShortFunctionsOnASingleLine: All, "
                        "ContinuationIndentWidth: 2, IndentAccessModifiers: true, UseTab: AlignWithSpaces}";
        // "long call through members" comes back with all arguments on the next line and breaking
        // before the first argument costing more, a pair whose first trial as good on the forms that
        // judge it (arguments on the next line, the cost left) put "long calls in a loop" off: the
        // others as good there are scored on the whole too.
        QTest::newRow("C++ GNU, tabs of 4, arguments and parameters one a line, breaking before the first argument costs more")
            << "C++" << "{BasedOnStyle: GNU, AlignEscapedNewlines: DontAlign, AlignOperands: DontAlign, BinPackArguments: "
                        "false, BinPackParameters: false, BitFieldColonSpacing: None, BreakAfterReturnType: "
                        "ExceptShortType, BreakBeforeBinaryOperators: None, IndentWidth: 4, PackConstructorInitializers: "
                        "Never, PenaltyBreakBeforeFirstCallParameter: 100, SpaceBeforeSquareBrackets: true, "
                        "SpacesBeforeTrailingComments: 2, TabWidth: 4, UseTab: Always}";
        // The bound spent with comments left where they stand 2 blanks away ("trailing comments after a
        // long comment" lost): lined up, as "comment spacing" reads, they come back with 1 blank and
        // over blank lines, a move each, which the kick of that reading reaches.
        QTest::newRow("C Microsoft, tabs of 8 for continuation, comments lined up over blank lines, parenthesis left open")
            << "C" << "{BasedOnStyle: Microsoft, AlignAfterOpenBracket: AlwaysBreak, AlignEscapedNewlines: Left, "
                      "AlignOperands: DontAlign, AlignTrailingComments: {Kind: Always, OverEmptyLines: 1}, "
                      "BreakBeforeBinaryOperators: NonAssignment, BreakBeforeTernaryOperators: false, "
                      "ContinuationIndentWidth: 8, IndentWidth: 8, TabWidth: 8, UseTab: ForContinuationAndIndentation}";
        // Arguments lined up under the first one after `( ` with blanks inside parentheses: measured
        // from the parenthesis, no line stood under it for any width, and the search ended on an
        // indent of 4 in tabs of 2 (15 forms lost).
        QTest::newRow("C++ Microsoft, indent 8 in tabs of 4 for continuation, function names wrapped, blanks inside parentheses")
            << "C++" << "{BasedOnStyle: Microsoft, AlignEscapedNewlines: DontAlign, BreakAfterReturnType: AllDefinitions, "
                        "IndentWidth: 8, IndentWrappedFunctionNames: true, SpacesInParens: Custom, SpacesInParensOptions: "
                        "{InConditionalStatements: true, Other: true}, UseTab: ForContinuationAndIndentation}";
        QTest::newRow("Java Google, indent 4, braces of classes and methods below, annotations of fields above")
            << "Java" << "{BasedOnStyle: Google, IndentWidth: 4, BreakBeforeBraces: Custom, BraceWrapping: "
                         "{AfterClass: true, AfterFunction: true}, BreakAfterJavaFieldAnnotations: true}";
        QTest::newRow("Java Chromium, tabs of 8, case labels at the switch, limit 120")
            << "Java" << "{BasedOnStyle: Chromium, IndentWidth: 8, TabWidth: 8, UseTab: Always, IndentCaseLabels: false, "
                         "ColumnLimit: 120}";
        QTest::newRow("Java Mozilla, Allman braces, no blank after a cast, blanks inside parentheses")
            << "Java" << "{BasedOnStyle: Mozilla, BreakBeforeBraces: Allman, SpaceAfterCStyleCast: false, "
                         "SpacesInParens: Custom, SpacesInParensOptions: {InConditionalStatements: true, Other: true}}";
        QTest::newRow("Protocol Buffers Google, indent 4, braces below, blanks inside brackets")
            << "Protocol Buffers" << "{BasedOnStyle: Google, IndentWidth: 4, BreakBeforeBraces: Allman, "
                                     "SpacesInSquareBrackets: true}";
        QTest::newRow("Protocol Buffers LLVM, fields aligned, comments two blanks away, limit 100")
            << "Protocol Buffers" << "{BasedOnStyle: LLVM, AlignConsecutiveAssignments: {Enabled: true}, "
                                     "SpacesBeforeTrailingComments: 2, ColumnLimit: 100}";
        QTest::newRow("Objective-C Google, blocks indented 4, a blank after @property and before protocol lists")
            << "Objective-C" << "{BasedOnStyle: Google, ObjCBlockIndentWidth: 4, ObjCSpaceAfterProperty: true, "
                                "ObjCSpaceBeforeProtocolList: true}";
        QTest::newRow("Objective-C WebKit, nested blocks kept on the line, protocol lists never packed")
            << "Objective-C" << "{BasedOnStyle: WebKit, ObjCBreakBeforeNestedBlockParam: false, "
                                "ObjCBinPackProtocolList: Never}";
        QTest::newRow("Objective-C LLVM, indent 4, method braces below, limit 100")
            << "Objective-C" << "{BasedOnStyle: LLVM, IndentWidth: 4, BreakBeforeBraces: Custom, "
                                "BraceWrapping: {AfterFunction: true}, ColumnLimit: 100}";
        QTest::newRow("C# Microsoft, indent 2, namespaces indented, braces at line ends")
            << "C#" << "{BasedOnStyle: Microsoft, IndentWidth: 2, NamespaceIndentation: All, BreakBeforeBraces: Attach}";
        QTest::newRow("C# Google, indent 4, case labels at the switch, blanks inside parentheses")
            << "C#" << "{BasedOnStyle: Google, IndentWidth: 4, IndentCaseLabels: false, SpacesInParens: Custom, "
                       "SpacesInParensOptions: {InConditionalStatements: true, Other: true}}";
        QTest::newRow("JavaScript Google, indent 4, braces of classes and functions below, limit 100")
            << "JavaScript" << "{BasedOnStyle: Google, IndentWidth: 4, BreakBeforeBraces: Custom, BraceWrapping: "
                               "{AfterClass: true, AfterFunction: true}, ColumnLimit: 100}";
        QTest::newRow("JavaScript Mozilla, blanks inside container literals, case labels at the switch")
            << "JavaScript" << "{BasedOnStyle: Mozilla, SpacesInContainerLiterals: true, IndentCaseLabels: false}";
        QTest::newRow("JavaScript WebKit, tabs of 4, short functions never on one line")
            << "JavaScript" << "{BasedOnStyle: WebKit, UseTab: Always, TabWidth: 4, "
                               "AllowShortFunctionsOnASingleLine: None}";
    }
    void option_sets_round_trip() {
        QFETCH(QString, language);
        QFETCH(QString, options);
        auto const& description = description_of(language);
        std::string const addon = tarnel_engine::addon_written_in(options.toStdString(), "Round trip", description);
        QVERIFY(!addon.empty());
        QCOMPARE(forms_not_coming_back_in(addon, description), QStringList());
    }

    // Options the forms of how lines break and of nested blocks show: each value comes back from
    // the forms written in it (a penalty away from the base's where the forms show another, tabs of
    // their own width whatever the indent step, no column limit where a short call keeps its line
    // break; tabs for indentation with an indent of 2 used to come back as no tabs at all).
    void break_and_tab_options_come_back_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QStringList>("inferred");
        // 200 and the 1000 of another base lay every form out alike: either, but not LLVM's 60.
        QTest::newRow("return type on its own line less often (200)")
            << "C" << "{BasedOnStyle: LLVM, PenaltyReturnTypeOnItsOwnLine: 200}"
            << QStringList{"!PenaltyReturnTypeOnItsOwnLine: 60"};
        QTest::newRow("return type on its own line more often (60)")
            << "C++" << "{BasedOnStyle: Google, PenaltyReturnTypeOnItsOwnLine: 60}"
            << QStringList{"PenaltyReturnTypeOnItsOwnLine: 60"};
        QTest::newRow("breaking after = costs more (100)")
            << "C" << "{BasedOnStyle: LLVM, PenaltyBreakAssignment: 100}" << QStringList{"PenaltyBreakAssignment: 100"};
        QTest::newRow("breaking before the first argument costs more (100)")
            << "C++" << "{BasedOnStyle: LLVM, PenaltyBreakBeforeFirstCallParameter: 100}"
            << QStringList{"PenaltyBreakBeforeFirstCallParameter: 100"};
        QTest::newRow("no column limit, the author's breaks kept")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0}" << QStringList{"ColumnLimit: 0"};
        QTest::newRow("no column limit, C++ Google")
            << "C++" << "{BasedOnStyle: Google, ColumnLimit: 0, IndentWidth: 4}" << QStringList{"ColumnLimit: 0"};
        QTest::newRow("tabs of 8 columns, indent width 8")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 8, UseTab: Always, BreakBeforeBraces: Linux}"
            << QStringList{"IndentWidth: 8", "TabWidth: 8", "UseTab: Always"};
        QTest::newRow("tabs for indentation, indent width 2")
            << "C++" << "{BasedOnStyle: LLVM, IndentWidth: 2, TabWidth: 8, UseTab: ForIndentation}"
            << QStringList{"IndentWidth: 2", "TabWidth: 8", "UseTab: ForIndentation"};
        QTest::newRow("tabs for indentation, indent width 4")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 4, TabWidth: 8, UseTab: ForIndentation}"
            << QStringList{"IndentWidth: 4", "TabWidth: 8", "UseTab: ForIndentation"};
        QTest::newRow("tabs of 4 for indentation, indent width 2")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 2, TabWidth: 4, UseTab: ForIndentation}"
            << QStringList{"IndentWidth: 2", "TabWidth: 4", "UseTab: ForIndentation"};
        // Labels in a function's own block look alike under either value: one in a nested block tells.
        QTest::newRow("labels in nested blocks at the start of the line")
            << "C" << "{BasedOnStyle: LLVM, IndentGotoLabels: false}" << QStringList{"IndentGotoLabels: false"};
        QTest::newRow("macros used as statements, the base's list replaced")
            << "C++" << "{BasedOnStyle: LLVM, StatementMacros: [DECLARE_ITEMS, Q_UNUSED]}"
            << QStringList{"StatementMacros:\n - DECLARE_ITEMS\n - Q_UNUSED", "! - QT_REQUIRE_VERSION"};
        QTest::newRow("macros used as attributes")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 8, UseTab: Always, AttributeMacros: [__rcu, __init, notrace]}"
            << QStringList{"AttributeMacros:\n - __rcu\n - __init\n - notrace", "! - __capability"};
        // Braces indented on the line of their statement put the statement a step in and its body
        // two (read as an indent of 8 without indented braces, and 22 forms lost).
        QTest::newRow("braces indented on the line of their statement, indent width 4")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 4, BreakBeforeBraces: Custom, BraceWrapping: {IndentBraces: true}}"
            << QStringList{"IndentWidth: 4", " IndentBraces: true"};
        // A function's name wrapped a continuation in: its body is measured from the function's first
        // line, not from the name's (measured from the name, an `if` looked two steps in, and 21 forms
        // were lost to braces read as indented).
        QTest::newRow("function names wrapped and indented, braces not indented")
            << "C++" << "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 4, UseTab: Always, IndentWrappedFunctionNames: true, "
                        "BreakAfterReturnType: AllDefinitions}"
            << QStringList{"IndentWidth: 8", " IndentBraces: false"};
        // A wrapped function name 8 blanks in under tabs of 4: the continuation indent and the tab use
        // move together (one at a time, the search settled on 4 and tabs for alignment).
        QTest::newRow("tabs of 4 for indentation, wrapped names a continuation of 8 in")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 2, TabWidth: 4, UseTab: ForIndentation, ContinuationIndentWidth: 8, "
                      "IndentWrappedFunctionNames: true, BreakAfterReturnType: TopLevel}"
            << QStringList{"ContinuationIndentWidth: 8", "UseTab: ForIndentation"};
        // Members two steps in are one tab of 8 where a function's body is 4 blanks, which tabs of 4
        // would have made a tab (read as tabs of 4, and 14 forms lost).
        QTest::newRow("tabs of 8 under an indent of 4, access specifiers indented")
            << "C++" << "{BasedOnStyle: LLVM, AlignAfterOpenBracket: DontAlign, AlignEscapedNewlines: DontAlign, "
                        "IndentAccessModifiers: true, IndentWidth: 4, UseTab: ForContinuationAndIndentation}"
            << QStringList{"IndentWidth: 4", "TabWidth: 8"};
        // The parameters of a declaration on the line after its `(` although they are not packed: the
        // penalty before a call's first argument, with the options that pack lists (one at a time,
        // the search kept 19 and lost the long return type).
        QTest::newRow("parameters on the next line together, not packed")
            << "C" << "{BasedOnStyle: LLVM, BinPackParameters: false, PenaltyBreakBeforeFirstCallParameter: 100, "
                      "PenaltyReturnTypeOnItsOwnLine: 200}"
            << QStringList{"BinPackParameters: false", "PenaltyBreakBeforeFirstCallParameter: 100"};
        // A long call continued one tab of 4 in: a continuation indent of 4, tabs for continuation
        // (read as 8 blanks, and six long forms lost).
        QTest::newRow("tabs of 4 for continuation, arguments not aligned")
            << "C" << "{BasedOnStyle: LLVM, AlignAfterOpenBracket: DontAlign, ColumnLimit: 100, PenaltyBreakAssignment: 100, "
                      "TabWidth: 4, UseTab: AlignWithSpaces}"
            << QStringList{"ContinuationIndentWidth: 4", "TabWidth: 4"};
        // A chain of conditions without braces tells the first `if` alone from every `if` and `else`
        // (a lone short `if` looks alike under three of the four values).
        QTest::newRow("short ifs, the first of a chain only")
            << "C" << "{BasedOnStyle: LLVM, AllowShortIfStatementsOnASingleLine: OnlyFirstIf}"
            << QStringList{"AllowShortIfStatementsOnASingleLine: OnlyFirstIf"};
        QTest::newRow("short ifs and elses, every one")
            << "C++" << "{BasedOnStyle: Google, AllowShortIfStatementsOnASingleLine: AllIfsAndElse}"
            << QStringList{"AllowShortIfStatementsOnASingleLine: AllIfsAndElse"};
        // Without a column limit the author's breaks stay: the chain's form is written joined.
        QTest::newRow("short ifs and elses, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, AllowShortIfStatementsOnASingleLine: AllIfsAndElse}"
            << QStringList{"AllowShortIfStatementsOnASingleLine: AllIfsAndElse", "ColumnLimit: 0"};
        // A blank before empty parentheses too (C has no member declared without arguments to show it).
        QTest::newRow("a blank before every (, empty ones too, C")
            << "C" << "{BasedOnStyle: LLVM, SpaceBeforeParens: Always}" << QStringList{"SpaceBeforeParens: Always"};
        // An index in brackets (the empty `[]` of an array initializer has no blank inside under either).
        QTest::newRow("blanks inside square brackets")
            << "C" << "{BasedOnStyle: LLVM, SpacesInSquareBrackets: true}" << QStringList{"SpacesInSquareBrackets: true"};
        // Comments at different distances from their code, kept so (read as not lined up before).
        QTest::newRow("trailing comments left where they stand")
            << "C" << "{BasedOnStyle: Google, AlignTrailingComments: {Kind: Leave}}" << QStringList{" Kind: Leave"};
        QTest::newRow("trailing comments left where they stand, over blank lines too")
            << "C++" << "{BasedOnStyle: LLVM, AlignTrailingComments: {Kind: Leave, OverEmptyLines: 1}, "
                        "SpacesBeforeTrailingComments: 2}"
            << QStringList{" Kind: Leave"};
        // A call outside any function is read as a declaration: only one inside a body shows how
        // arguments pack.
        QTest::newRow("arguments one a line")
            << "C" << "{BasedOnStyle: LLVM, BinPackArguments: false}" << QStringList{"BinPackArguments: false"};
        QTest::newRow("arguments one a line, limit 120")
            << "C++" << "{BasedOnStyle: Google, BinPackArguments: false, ColumnLimit: 120}"
            << QStringList{"BinPackArguments: false"};
        // Without a column limit no long call breaks: a call its author continued inside a function
        // shows the tabs that fill the way to its parenthesis (read as tabs for indentation alone).
        QTest::newRow("tabs for continuation, indent 8, arguments aligned, no column limit")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 8, UseTab: ForContinuationAndIndentation, "
                      "AlignAfterOpenBracket: Align, ColumnLimit: 0}"
            << QStringList{"UseTab: ForContinuationAndIndentation", "ColumnLimit: 0"};
        QTest::newRow("tabs for continuation, GNU, indent 2, no column limit")
            << "C" << "{BasedOnStyle: GNU, IndentWidth: 2, TabWidth: 8, UseTab: ForContinuationAndIndentation, "
                      "AlignAfterOpenBracket: Align, ColumnLimit: 0}"
            << QStringList{"UseTab: ForContinuationAndIndentation", "IndentWidth: 2"};
        // Tabs everywhere show only in the blanks before a trailing comment that reach past a tab stop
        // (read as tabs for continuation and indentation, which lay every other form out alike).
        QTest::newRow("tabs everywhere, comments the style's distance away")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 2, TabWidth: 8, UseTab: Always, AlignTrailingComments: Never, "
                      "SpacesBeforeTrailingComments: 2}"
            << QStringList{"UseTab: Always"};
        QTest::newRow("tabs of 4 everywhere, comments left where they stand")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 4, UseTab: Always, AlignTrailingComments: Leave}"
            << QStringList{"UseTab: Always", "TabWidth: 4"};
        // A lone pointer keeps its leaning where the style derives it, declarations leaning two ways
        // take their majority's: the forms lean two ways (read as the lone pointer's leaning, not derived).
        QTest::newRow("* leaning derived from the code, on the type otherwise")
            << "C++" << "{BasedOnStyle: LLVM, DerivePointerAlignment: true, PointerAlignment: Left}"
            << QStringList{"DerivePointerAlignment: true"};
        QTest::newRow("* leaning derived from the code, C")
            << "C" << "{BasedOnStyle: Mozilla, DerivePointerAlignment: true, PointerAlignment: Right}"
            << QStringList{"DerivePointerAlignment: true"};
        QTest::newRow("* on the type, not derived")
            << "C++" << "{BasedOnStyle: Google, DerivePointerAlignment: false, PointerAlignment: Left}"
            << QStringList{"DerivePointerAlignment: false", "PointerAlignment: Left"};
        // Without a column limit a break right after the `(` joins a short call its author broke after an
        // argument: every other value gives the joined call back too (read as not aligned).
        QTest::newRow("a break after the (, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, AlignAfterOpenBracket: AlwaysBreak}"
            << QStringList{"AlignAfterOpenBracket: AlwaysBreak", "ColumnLimit: 0"};
        QTest::newRow("a break after the (, arguments one a line, no column limit")
            << "C" << "{BasedOnStyle: Mozilla, ColumnLimit: 0, AlignAfterOpenBracket: AlwaysBreak, BinPackArguments: false, "
                      "ContinuationIndentWidth: 2}"
            << QStringList{"AlignAfterOpenBracket: AlwaysBreak", "ColumnLimit: 0"};
        // A line of exactly 80 columns breaks under 79 alone: backslashes not at the limit and operands
        // not lined up leave no other form that tells (read as 80, the narrowest the longest line fits).
        QTest::newRow("a column limit of 79, backslashes and operands not lined up")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 79, AlignEscapedNewlines: LeftWithLastLine, AlignOperands: DontAlign}"
            << QStringList{"ColumnLimit: 79"};
        // Without a column limit parameters one a line join a declaration its author broke between packed
        // ones, which packed parameters give back too (read as packed).
        QTest::newRow("parameters one a line, no column limit")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BinPackParameters: false}"
            << QStringList{"BinPackParameters: false", "ColumnLimit: 0"};
        QTest::newRow("parameters one a line, GNU, not aligned, no column limit")
            << "C" << "{BasedOnStyle: GNU, ColumnLimit: 0, BinPackParameters: false, AlignAfterOpenBracket: DontAlign}"
            << QStringList{"BinPackParameters: false", "ColumnLimit: 0"};
        // Without a column limit a condition's brace stays where its author put it under `MultiLine`:
        // a condition written over two lines with its brace below tells it from `Never` (read as `Never`).
        QTest::newRow("brace below conditions over several lines only, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakBeforeBraces: Custom, "
                      "BraceWrapping: {AfterControlStatement: MultiLine}}"
            << QStringList{" AfterControlStatement: MultiLine", "ColumnLimit: 0"};
        QTest::newRow("brace below every condition, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakBeforeBraces: Custom, "
                      "BraceWrapping: {AfterControlStatement: Always}}"
            << QStringList{" AfterControlStatement: Always", "ColumnLimit: 0"};
        // Under no column limit `MultiLine` leaves every brace where its author put it, so it gives
        // back the forms of `Always` too, and the `do` that short loops and blocks keep joined to its
        // brace lets it reach them first: the brace placement read from the forms wins the tie
        // (read as `MultiLine`, and every `if (…) {` of real code kept so).
        QTest::newRow("brace below every condition, no column limit, short loops and empty blocks")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, AllowShortBlocksOnASingleLine: Empty, "
                      "AllowShortLoopsOnASingleLine: true, BreakBeforeBraces: Custom, "
                      "BraceWrapping: {AfterControlStatement: Always}}"
            << QStringList{" AfterControlStatement: Always"};
        // Without a column limit a long call its author packed over two lines stays so only where
        // arguments are packed (written on one line, it stayed so either way, and read as packed).
        QTest::newRow("arguments one a line, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BinPackArguments: false}"
            << QStringList{"BinPackArguments: false", "ColumnLimit: 0"};
        QTest::newRow("arguments one a line, a blank before every (, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BinPackArguments: false, SpaceBeforeParens: Always}"
            << QStringList{"BinPackArguments: false"};
        QTest::newRow("arguments packed, not aligned, no column limit")
            << "C++" << "{BasedOnStyle: Mozilla, ColumnLimit: 0, BinPackArguments: true, AlignAfterOpenBracket: DontAlign}"
            << QStringList{"BinPackArguments: true", "AlignAfterOpenBracket: DontAlign"};
        // Under a limit of 120 no other long form breaks: an expression longer than that shows where
        // operators go, whether operands line up and the continuation indent (read as the base's).
        QTest::newRow("operators first, operands not aligned, continuation 8, limit 120")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 120, BreakBeforeBinaryOperators: All, AlignOperands: DontAlign, "
                      "ContinuationIndentWidth: 8}"
            << QStringList{"AlignOperands: DontAlign", "ContinuationIndentWidth: 8", "!BreakBeforeBinaryOperators: None"};
        // Comments left where they stand give back comments lined up too: the reading of "comment
        // spacing" wins the tie (the search reached the "leave" alignment first, real code's
        // comments then kept wherever they stood).
        QTest::newRow("trailing comments lined up over a blank line, reached past leaving them")
            << "C" << "{BasedOnStyle: LLVM, AlignTrailingComments: {Kind: Always, OverEmptyLines: 1}, "
                      "BreakBeforeBinaryOperators: All, SpaceBeforeAssignmentOperators: false, SpacesInParens: Custom, "
                      "SpacesInParensOptions: {InConditionalStatements: true, Other: true}}"
            << QStringList{" Kind: Always", " OverEmptyLines: 1"};
        // Without a column limit a statement stays on the line its author wrote it on: the short
        // condition and loop are written joined (written split, they were read as never joined).
        QTest::newRow("short ifs on one line, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, AllowShortIfStatementsOnASingleLine: WithoutElse}"
            << QStringList{"AllowShortIfStatementsOnASingleLine: WithoutElse"};
        QTest::newRow("short loops on one line, no column limit")
            << "C++" << "{BasedOnStyle: Mozilla, ColumnLimit: 0, AllowShortLoopsOnASingleLine: true}"
            << QStringList{"AllowShortLoopsOnASingleLine: true"};
        QTest::newRow("short ifs and loops never on one line, no column limit")
            << "C" << "{BasedOnStyle: Google, ColumnLimit: 0, AllowShortIfStatementsOnASingleLine: Never, "
                      "AllowShortLoopsOnASingleLine: false}"
            << QStringList{"AllowShortIfStatementsOnASingleLine: Never", "AllowShortLoopsOnASingleLine: false"};
        // Without a column limit no long form breaks and arguments line up under their `(`: a
        // declaration broken after its `(` shows the continuation indent (read as the base's).
        QTest::newRow("continuation 8, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, ContinuationIndentWidth: 8}"
            << QStringList{"ContinuationIndentWidth: 8", "ColumnLimit: 0"};
        QTest::newRow("continuation 8, operators first, no column limit")
            << "C++" << "{BasedOnStyle: GNU, ColumnLimit: 0, ContinuationIndentWidth: 8}"
            << QStringList{"ContinuationIndentWidth: 8"};
        // Without a column limit an expression broken on the other side of its operator is joined:
        // expressions broken after and before an operator tell where operators go (read as `None`).
        QTest::newRow("operators first but after =, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakBeforeBinaryOperators: NonAssignment}"
            << QStringList{"BreakBeforeBinaryOperators: NonAssignment", "ColumnLimit: 0"};
        // Operands not lined up show only in an expression broken at an operator, kept so without a
        // column limit (read as aligned).
        QTest::newRow("operands not aligned, no column limit")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, AlignOperands: DontAlign}"
            << QStringList{"AlignOperands: DontAlign", "ColumnLimit: 0"};
        // A string in parts on lines of their own shows whether a line breaks before it (read as the
        // base's either way).
        QTest::newRow("no break before strings in parts, Google, no column limit")
            << "C++" << "{BasedOnStyle: Google, ColumnLimit: 0, AlignOperands: DontAlign, AlwaysBreakBeforeMultilineStrings: false}"
            << QStringList{"AlignOperands: DontAlign", "AlwaysBreakBeforeMultilineStrings: false"};
        QTest::newRow("a break before strings in parts, continuation 8, tabs, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, IndentWidth: 8, TabWidth: 8, UseTab: ForContinuationAndIndentation, "
                      "BreakBeforeBraces: Linux, ContinuationIndentWidth: 8, AlwaysBreakBeforeMultilineStrings: true}"
            << QStringList{"AlwaysBreakBeforeMultilineStrings: true", "ContinuationIndentWidth: 8"};
        // Without a column limit a case split by its author stays split: one written on the line of its
        // label shows whether short cases are joined (read as never).
        QTest::newRow("short cases on one line, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, AllowShortCaseLabelsOnASingleLine: true}"
            << QStringList{"AllowShortCaseLabelsOnASingleLine: true"};
        // The engine never adds a blank line: three in a row kept show a limit the form of two cannot
        // (read as 2).
        QTest::newRow("three blank lines kept, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, MaxEmptyLinesToKeep: 3}"
            << QStringList{"MaxEmptyLinesToKeep: 3"};
        // Without a column limit the engine keeps a return type where its author put it, so breaking
        // only where a line is too long gives the broken forms back too (read as `Automatic`); a
        // member of a class or a declaration in an indented extern block tells the top level alone
        // from every function (read as `All`).
        QTest::newRow("return types on their own line at the top level, no column limit")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakAfterReturnType: TopLevel}"
            << QStringList{"BreakAfterReturnType: TopLevel"};
        QTest::newRow("return types of definitions on their own line at the top level, no column limit")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakAfterReturnType: TopLevelDefinitions}"
            << QStringList{"BreakAfterReturnType: TopLevelDefinitions"};
        QTest::newRow("return types on their own line at the top level, C, extern blocks indented, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakAfterReturnType: TopLevel, IndentExternBlock: Indent}"
            << QStringList{"BreakAfterReturnType: TopLevel"};
        // An assignment whose value cannot break breaks at its `=`, on the side of the style's
        // operators; without a limit a break its author made before the `=` stays only where `=`
        // goes first too (each read as the other: no form broke at an `=`).
        QTest::newRow("every operator first, = too, breaking after = costs more")
            << "C++" << "{BasedOnStyle: LLVM, BreakBeforeBinaryOperators: All, BreakBeforeTernaryOperators: false, "
                        "BreakConstructorInitializers: BeforeComma, PenaltyBreakAssignment: 100, "
                        "PenaltyReturnTypeOnItsOwnLine: 1000, SpacesInParens: Custom, "
                        "SpacesInParensOptions: {InConditionalStatements: true, Other: true}}"
            << QStringList{"BreakBeforeBinaryOperators: All"};
        QTest::newRow("operators first but after =, breaking after = costs more")
            << "C++" << "{BasedOnStyle: LLVM, PenaltyBreakAssignment: 100, BreakBeforeBinaryOperators: NonAssignment}"
            << QStringList{"BreakBeforeBinaryOperators: NonAssignment"};
        QTest::newRow("every operator first, = too, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakBeforeBinaryOperators: All}"
            << QStringList{"BreakBeforeBinaryOperators: All", "ColumnLimit: 0"};
        // Initializers too long for the line of their constructor (the short ones fit on it under
        // any value, and read as the base's).
        QTest::newRow("initializers after a comma first, together on the next line, 8 in")
            << "C++" << "{BasedOnStyle: LLVM, BreakConstructorInitializers: BeforeComma, PackConstructorInitializers: NextLine, "
                        "ConstructorInitializerIndentWidth: 8}"
            << QStringList{"BreakConstructorInitializers: BeforeComma", "PackConstructorInitializers: NextLine",
                           "ConstructorInitializerIndentWidth: 8"};
        QTest::newRow("initializers after the colon, packed, 2 in")
            << "C++" << "{BasedOnStyle: LLVM, BreakConstructorInitializers: AfterColon, PackConstructorInitializers: BinPack, "
                        "ConstructorInitializerIndentWidth: 2}"
            << QStringList{"BreakConstructorInitializers: AfterColon", "PackConstructorInitializers: BinPack",
                           "ConstructorInitializerIndentWidth: 2"};
        QTest::newRow("initializers one a line unless they fit on the current one, limit of 120")
            << "C++" << "{BasedOnStyle: Google, ColumnLimit: 120, PackConstructorInitializers: CurrentLine}"
            << QStringList{"PackConstructorInitializers: CurrentLine"};
        // Under a limit, after a comment too long for it, the engine sets trailing comments the
        // style's distance away even where it leaves them where they stand (read as 1).
        QTest::newRow("comments left where they stand, 2 blanks")
            << "C" << "{BasedOnStyle: LLVM, AlignTrailingComments: {Kind: Leave}, SpacesBeforeTrailingComments: 2}"
            << QStringList{"SpacesBeforeTrailingComments: 2"};
        // Arguments not packed go together on the line after the `(` only where that is allowed; a
        // call whose arguments fit there under any limit shows it (read as allowed: no form had one).
        QTest::newRow("arguments one a line, never together on the next line")
            << "C" << "{BasedOnStyle: LLVM, BinPackArguments: false, AllowAllArgumentsOnNextLine: false}"
            << QStringList{"AllowAllArgumentsOnNextLine: false"};
        QTest::newRow("arguments one a line, never together on the next line, broken after (, limit of 79")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 79, AlignAfterOpenBracket: AlwaysBreak, BinPackArguments: false, "
                      "AllowAllArgumentsOnNextLine: false}"
            << QStringList{"AllowAllArgumentsOnNextLine: false"};
        // Indented with tabs as wide as the indent, code shows the tab's width only where it meets the
        // column limit: calls two blocks deep break under one width and not the other (read as tabs of
        // 8 once the macro's backslashes no longer lined up).
        QTest::newRow("tabs of 4 for indentation, indent width 4, backslashes not lined up")
            << "C++" << "{BasedOnStyle: LLVM, AlignEscapedNewlines: DontAlign, IndentWidth: 4, TabWidth: 4, "
                        "UseTab: ForIndentation}"
            << QStringList{"IndentWidth: 4", "TabWidth: 4", "UseTab: ForIndentation"};
        // Assignments whose value fits on the next line break at the `=` where that costs little
        // (read as 2: the long call assignment breaks inside its value under either).
        QTest::newRow("breaking after = costs more, every operator first, continuation 8")
            << "C++" << "{BasedOnStyle: LLVM, BreakBeforeBinaryOperators: All, ContinuationIndentWidth: 8, "
                        "SpacesInParens: Custom, SpacesInParensOptions: {InConditionalStatements: true, Other: true}, "
                        "PenaltyBreakAssignment: 100}"
            << QStringList{"PenaltyBreakAssignment: 100"};
        // A chain of conditionals returned: `?` and `:` lined up so that the operands after them do
        // (read as lined-up operands: no form broke an expression before an operator).
        QTest::newRow("operands lined up after the operators, conditionals broken before ? and :")
            << "C++" << "{BasedOnStyle: LLVM, AlignOperands: AlignAfterOperator}"
            << QStringList{"AlignOperands: AlignAfterOperator"};
        // Without a column limit only a conditional its author broke shows where `?` and `:` go.
        QTest::newRow("conditionals broken after ? and :, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakBeforeTernaryOperators: false}"
            << QStringList{"BreakBeforeTernaryOperators: false", "ColumnLimit: 0"};
        // The template head before the return type where the declaration breaks (the short template
        // forms fit on their line: read as LLVM's head on a line of its own for a declaration broken).
        QTest::newRow("template heads never on a line of their own")
            << "C++" << "{BasedOnStyle: LLVM, BreakTemplateDeclarations: No}" << QStringList{"BreakTemplateDeclarations: No"};
        QTest::newRow("return type on its own line more often (60), parameters broken as a block")
            << "C++" << "{BasedOnStyle: Google, PenaltyReturnTypeOnItsOwnLine: 60, AlignAfterOpenBracket: BlockIndent}"
            << QStringList{"PenaltyReturnTypeOnItsOwnLine: 60"};
        // A call broken after its `(` with a string in parts last: the string stays on the line of the
        // argument before it (read as a break before it, which the short strings in parts do not tell).
        QTest::newRow("no break before strings in parts, parameters one a line, continuation 8")
            << "C++" << "{BasedOnStyle: LLVM, BinPackParameters: false, ContinuationIndentWidth: 8, "
                        "AlwaysBreakBeforeMultilineStrings: false}"
            << QStringList{"AlwaysBreakBeforeMultilineStrings: false"};
        // A blank on the side of the qualifier that the `*` does not lean to: no option group moves
        // it, the reading carries it.
        QTest::newRow("a blank before a pointer's qualifier")
            << "C" << "{BasedOnStyle: LLVM, SpaceAroundPointerQualifiers: Before}"
            << QStringList{"SpaceAroundPointerQualifiers: Before"};
        QTest::newRow("a blank after a pointer's qualifier, pointers leaning on the type")
            << "C++" << "{BasedOnStyle: LLVM, PointerAlignment: Left, SpaceAroundPointerQualifiers: After}"
            << QStringList{"SpaceAroundPointerQualifiers: After"};
        QTest::newRow("no blank added around a pointer's qualifier, pointers leaning on the type")
            << "C" << "{BasedOnStyle: LLVM, PointerAlignment: Left}" << QStringList{"SpaceAroundPointerQualifiers: Default"};
        // Without a limit the engine keeps a short function broken where its author broke it, even
        // where it joins every short function: the readings decide (read as every one joined).
        QTest::newRow("short functions of a class and empty ones, WebKit's")
            << "C++" << "{BasedOnStyle: WebKit, AllowShortFunctionsOnASingleLine: Inline}"
            << QStringList{"AllowShortFunctionsOnASingleLine: Inline"};
        // Return types on lines of their own keep every function of the other forms apart; the
        // destructors have none (read as a style that joins only functions of a class, or none).
        QTest::newRow("short functions of a class and empty ones, return types on their own line, no column limit")
            << "C++" << "{BasedOnStyle: Mozilla, ColumnLimit: 0}" << QStringList{"AllowShortFunctionsOnASingleLine: Inline"};
        QTest::newRow("empty functions, return types on their own line, no column limit")
            << "C++" << "{BasedOnStyle: Mozilla, ColumnLimit: 0, AllowShortFunctionsOnASingleLine: Empty}"
            << QStringList{"AllowShortFunctionsOnASingleLine: Empty"};
        QTest::newRow("every short function, return types on their own line, no column limit")
            << "C++" << "{BasedOnStyle: Mozilla, ColumnLimit: 0, AllowShortFunctionsOnASingleLine: All}"
            << QStringList{"AllowShortFunctionsOnASingleLine: All"};
        // A constructor whose author broke its initializers: without a limit the engine keeps them
        // so, showing how far they are indented and where the commas go, and keeps its empty body
        // apart where initializers go on the next line only.
        QTest::newRow("initializers on the next line only, no column limit")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, PackConstructorInitializers: NextLineOnly, "
                        "BreakBeforeBraces: Custom, BraceWrapping: {AfterFunction: true}}"
            << QStringList{"PackConstructorInitializers: NextLineOnly"};
        QTest::newRow("initializers 8 in, no column limit")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, ConstructorInitializerIndentWidth: 8, IndentWidth: 8, "
                        "UseTab: ForContinuationAndIndentation}"
            << QStringList{"ConstructorInitializerIndentWidth: 8"};
        QTest::newRow("initializers with commas first, on the next line only, no column limit")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BreakConstructorInitializers: BeforeComma, "
                        "PackConstructorInitializers: NextLineOnly}"
            << QStringList{"BreakConstructorInitializers: BeforeComma"};
        // A call whose author packed two of its three arguments on a line: without a limit the
        // engine keeps them so where it packs arguments, and one a line as well where it does not.
        QTest::newRow("arguments one a line, no column limit, the `)` on a line of its own")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, AlignAfterOpenBracket: BlockIndent, BinPackArguments: false, "
                        "AllowAllArgumentsOnNextLine: false}"
            << QStringList{"BinPackArguments: false", "AllowAllArgumentsOnNextLine: false"};
        QTest::newRow("arguments one a line, never together on the next line, no column limit")
            << "C" << "{BasedOnStyle: LLVM, ColumnLimit: 0, BinPackArguments: false, AllowAllArgumentsOnNextLine: false}"
            << QStringList{"BinPackArguments: false", "AllowAllArgumentsOnNextLine: false"};
        QTest::newRow("arguments together on the next line, not packed, no column limit")
            << "C++" << "{BasedOnStyle: LLVM, ColumnLimit: 0, AlignAfterOpenBracket: BlockIndent, BinPackArguments: false}"
            << QStringList{"BinPackArguments: false", "AllowAllArgumentsOnNextLine: true"};
        // No other form holds a `!`.
        QTest::newRow("a blank after the logical not")
            << "C" << "{BasedOnStyle: LLVM, SpaceAfterLogicalNot: true}" << QStringList{"SpaceAfterLogicalNot: true"};
        // Stepping back further than the indent step, `public:` of a class at the top level stands
        // where it would stand a step in; in a nested class it shows how far (read as 0).
        QTest::newRow("access specifiers 3 back, indent width 2")
            << "C++" << "{BasedOnStyle: LLVM, AccessModifierOffset: -3}" << QStringList{"AccessModifierOffset: -3"};
        // Tabs and blanks for alignment: no line of the other forms goes on past a tab stop beyond
        // its block's indentation without lining up, but a trailing comment continued under itself
        // does (read as tabs for indentation only).
        QTest::newRow("tabs of 8 and blanks for alignment, indent 2, no column limit")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 2, TabWidth: 8, UseTab: AlignWithSpaces, ColumnLimit: 0, "
                      "AlignAfterOpenBracket: AlwaysBreak, ContinuationIndentWidth: 2}"
            << QStringList{"UseTab: AlignWithSpaces"};
        QTest::newRow("tabs of 8 and blanks for alignment, indent 4, C++")
            << "C++" << "{BasedOnStyle: Google, IndentWidth: 4, TabWidth: 8, UseTab: AlignWithSpaces, "
                        "ContinuationIndentWidth: 2, ColumnLimit: 100}"
            << QStringList{"UseTab: AlignWithSpaces"};
        // A condition lined up past a tab stop beyond its block's indentation, which blanks fill
        // (read as tabs for continuation: the long forms' lines line up at the top level, and the
        // continued comment has a tab under either).
        QTest::newRow("tabs of 8 and blanks for alignment, indent 3, arguments after a break")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 3, TabWidth: 8, UseTab: AlignWithSpaces, ColumnLimit: 100, "
                      "ContinuationIndentWidth: 4, AlignAfterOpenBracket: AlwaysBreak, AlignOperands: DontAlign}"
            << QStringList{"UseTab: AlignWithSpaces"};
        // Two tabs a step read alike as tabs of 4 under an indent of 8 and tabs of 8 under 16: the
        // continued comment, lined up under the trailing one with tabs, shows the width (read as 8,
        // the search ended on comments left where they stand, 2 blanks away, and one form lost).
        QTest::newRow("tabs of 4 and blanks for alignment, indent 8")
            << "C" << "{BasedOnStyle: LLVM, IndentWidth: 8, TabWidth: 4, UseTab: AlignWithSpaces}"
            << QStringList{"IndentWidth: 8", "TabWidth: 4", "UseTab: AlignWithSpaces", "SpacesBeforeTrailingComments: 1"};
    }
    void break_and_tab_options_come_back() {
        QFETCH(QString, language);
        QFETCH(QString, options);
        QFETCH(QStringList, inferred);
        auto const& description = description_of(language);
        std::string const addon = tarnel_engine::addon_written_in(options.toStdString(), "Round trip", description);
        QVERIFY(!addon.empty());
        QCOMPARE(forms_not_coming_back_in(addon, description), QStringList());
        QString const found = QString("\n" + QString::fromStdString(tarnel_engine::options_inferred_from(addon, description)))
                                  .replace(QRegularExpression(" +"), " ");
        // "!" before an option: a value the inferred options must not hold.
        for (QString const& option : inferred)
            QVERIFY2(found.contains("\n" + option.mid(option.startsWith('!')) + "\n") != option.startsWith('!'),
                     qPrintable(option + " in:" + found));
    }

    // An addon written before the forms of line breaks and nested blocks existed: it loads, its
    // forms come back, and it revises as the same addon with those forms does.
    void addon_without_the_newer_forms_revises_the_same_data() {
        QTest::addColumn<QString>("addon_file");
        QTest::newRow("LLVM, C++") << "LLVM[C++].style";
        QTest::newRow("Linux kernel, C") << "Linux kernel[C].style";
        QTest::newRow("Stroustrup, C++") << "Stroustrup[C++].style";
    }
    void addon_without_the_newer_forms_revises_the_same() {
        QFETCH(QString, addon_file);
        std::string const shipped = shipped_addon(addon_file);
        std::string older = shipped;
        for (char const* structure :
             {"kept line break", "long call assignment", "long comment", "long return type", "long string", "nested blocks",
              "statement macro", "attribute macro", "label in a block", "comment spacing", "short if else",
              "subscript", "long call in a function", "call without arguments", "kept line break in a condition",
              "kept line break in a function", "mixed pointers", "very long assignment",
              "kept line break in a declaration", "kept line breaks around operators", "multiline string",
              "short case label", "blank lines in a row", "long assignment to an element", "long call through members",
              "long constructor initializers", "trailing comments after a long comment",
              "declaration eighty columns wide", "kept line break in parameters", "comments near a tab stop",
              "long assignments in a function", "long conditional chain", "long calls in a loop",
              "long template function", "pointer qualifiers", "long call with a string in parts",
              "destructors", "kept line breaks in arguments", "kept line breaks in constructor initializers",
              "logical not", "nested class", "trailing comment continued", "long loop condition"}) {
            std::size_t const begin = older.find(std::string("\nS_NAME=") + structure + "\n");
            if (begin == std::string::npos)
                continue;
            older.erase(begin, older.find("\nS_END\n", begin) + 7 - begin);
        }
        std::string const language = language_of_addon(shipped);
        auto const& description = description_of(QString::fromStdString(language));
        QCOMPARE(forms_not_coming_back_in(older, description), QStringList());
        loaded_plugin plugin(plugin_file_of(language));
        QVERIFY(plugin.get());
        std::string const source =
            "static struct list_head *find_entry_in(struct list_head *head, unsigned long key, int flags) {\n"
            "\tif (key) { while (flags) { if (head) { while (key) { key--; flags--; } } } }\n"
            "\tint total = compute_the_total(head, key, flags) + compute_the_total(head, flags, key);\n"
            "\tprintf(\"a message long enough to pass the column limit of the style: %lu\\n\", key);\n"
            "\treturn head;\n}\n";
        std::string const revised = plugin->revise(source, older, traits_of(source));
        QVERIFY(revised != STYLE_TARNEL_SYNTAX_ERROR_TEXT);
        QCOMPARE(QString::fromStdString(revised), QString::fromStdString(plugin->revise(source, shipped, traits_of(source))));
    }

    void addon_with_indent_width_4_revises_with_4_spaces() {
        std::string const addon =
            tarnel_engine::addon_written_in("{BasedOnStyle: Google, IndentWidth: 4}", "G4", cpp_language());
        std::string const source = "int f(int a) {\n  if (a) {\n    return 1;\n  }\n  return 0;\n}\n";
        loaded_plugin plugin(cpp_plugin_file());
        QVERIFY(plugin.get());
        QCOMPARE(QString::fromStdString(plugin->revise(source, addon, traits_of(source))),
                 QString("int f(int a) {\n    if (a) {\n        return 1;\n    }\n    return 0;\n}\n"));
    }

    // Every form that the edit concerns is edited, so that one option set reproduces them all.
    void consistent_edit_takes_effect_data() {
        QTest::addColumn<QString>("addon_file");
        QTest::addColumn<int>("edit");
        QTest::newRow("LLVM, brace of every function on its own line") << "LLVM[C++].style" << 0;
        QTest::newRow("Google, * and & leaning on the type") << "Google[C++].style" << 1;
    }
    void consistent_edit_takes_effect() {
        static std::vector<std::vector<form_edit>> const edits = {
            {{"function definition", "type name(type argument, type argument) {", "type name(type argument, type argument)\n{"},
             {"goto", "type name(void) {", "type name(void)\n{"},
             {"blank lines", "type name(void) {", "type name(void)\n{"},
             {"blank lines in a row", "type name(void) {", "type name(void)\n{"},
             {"for each macro", "type name(void) {", "type name(void)\n{"},
             {"statement macro", "type name(void) {", "type name(void)\n{"},
             {"label in a block", "type name(void) {", "type name(void)\n{"},
             {"long call in a function", "type name(void) {", "type name(void)\n{"},
             {"long call through members", "type name(void) {", "type name(void)\n{"},
             {"long loop condition", "type name(void) {", "type name(void)\n{"},
             {"long constructor initializers", "name(SOME_LONG) {", "name(SOME_LONG)\n{"},
             {"long constructor initializers", "name(SOME) {", "name(SOME)\n{"},
             {"long assignments in a function", "type name(void) {", "type name(void)\n{"},
             {"long conditional chain", "type name(void) {", "type name(void)\n{"},
             {"long call with a string in parts", "type name(void) {", "type name(void)\n{"},
             {"long calls in a loop", "type name(type argument) {", "type name(type argument)\n{"},
             // Without the ` {` the declaration fits its line of 80.
             {"long template function", "(type SOME_LONG,\n                                   type *name_part) {",
              "(type SOME_LONG, type *name_part)\n{"}},
            {{"attribute macro", "type *name", "type* name"},
             {"cast", "(type *)", "(type*)"},
             {"consecutive declarations", "type *name_long_part", "type* name_long_part"},
             {"function declaration", "type *argument", "type* argument"},
             {"pointer", "type *name", "type* name"},
             {"range for", "type &name", "type& name"},
             {"reference", "type &name", "type& name"},
             {"reference", "const &argument", "const& argument"},
             {"struct", "type *name_part", "type* name_part"},
             {"try catch", "type &name", "type& name"},
             {"pointer qualifiers", "type *const *name", "type* const* name"},
             {"long template function", "type *name_part", "type* name_part"}},
        };
        QFETCH(QString, addon_file);
        QFETCH(int, edit);
        std::string addon = shipped_addon(addon_file);
        for (form_edit const& each : edits[static_cast<std::size_t>(edit)]) {
            addon = with_form_edited(addon, each.structure, each.from, each.to);
            QVERIFY2(!addon.empty(), each.structure);
        }
        QCOMPARE(forms_not_coming_back_in(addon, cpp_language()), QStringList());
    }

    // A user edits the forms that show one option to another of its values, consistently (here,
    // as the engine lays them out under that value), or adds or removes a loop macro: the options
    // inferred hold that value.
    void edited_forms_give_the_value_back_data() {
        QTest::addColumn<QString>("addon_file");
        QTest::addColumn<QString>("structure");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("value");
        auto const row = [](char const* name, char const* addon_file, char const* value) {
            QTest::newRow(name) << addon_file << QString() << QString() << QString() << value;
        };
        row("assignments aligned", "LLVM[C++].style", "{AlignConsecutiveAssignments: {Enabled: true}}");
        row("declarations aligned", "LLVM[C++].style", "{AlignConsecutiveDeclarations: {Enabled: true}}");
        row("macros aligned", "LLVM[C++].style", "{AlignConsecutiveMacros: {Enabled: true}}");
        row("backslashes left", "LLVM[C++].style", "{AlignEscapedNewlines: Left}");
        row("backslashes left with the last line", "LLVM[C++].style", "{AlignEscapedNewlines: LeftWithLastLine}");
        row("backslashes not aligned", "LLVM[C++].style", "{AlignEscapedNewlines: DontAlign}");
        row("backslashes at the column limit", "Kernighan&Ritchie[C].style", "{AlignEscapedNewlines: Right}");
        row("two blanks before trailing comments", "LLVM[C++].style", "{SpacesBeforeTrailingComments: 2}");
        row("one blank before trailing comments", "Google[C++].style", "{SpacesBeforeTrailingComments: 1}");
        row("trailing comments not aligned", "LLVM[C++].style", "{AlignTrailingComments: {Kind: Never}}");
        row("trailing comments aligned", "Linux kernel[C].style", "{AlignTrailingComments: {Kind: Always}}");
        row("trailing comments aligned over a blank line", "LLVM[C++].style", "{AlignTrailingComments: {OverEmptyLines: 1}}");
        row("two blank lines kept", "LLVM[C++].style", "{MaxEmptyLinesToKeep: 2}");
        row("no blank line at a block's start", "LLVM[C++].style", "{KeepEmptyLines: {AtStartOfBlock: false}}");
        row("enums one enumerator a line", "LLVM[C++].style", "{AllowShortEnumsOnASingleLine: false}");
        row("enums on one line", "Kernighan&Ritchie[C].style", "{AllowShortEnumsOnASingleLine: true}");
        row("brace of a long enum on its own line", "LLVM[C++].style",
            "{BreakBeforeBraces: Custom, BraceWrapping: {AfterEnum: true}}");
        row("brace of an extern block on its own line", "LLVM[C++].style",
            "{BreakBeforeBraces: Custom, BraceWrapping: {AfterExternBlock: true}}");
        row("brace of an extern block on its own line, C", "Kernighan&Ritchie[C].style",
            "{BreakBeforeBraces: Custom, BraceWrapping: {AfterExternBlock: true}}");
        row("no blank before the ( of a loop macro", "LLVM[C++].style",
            "{SpaceBeforeParens: ControlStatementsExceptForEachMacros}");
        // Java, JavaScript and C# show a function's body, a short and an empty function under names
        // of their own (method, function, short method, empty method); the readings find them.
        row("braces indented, JavaScript", "Google[JavaScript].style",
            "{BreakBeforeBraces: Custom, BraceWrapping: {IndentBraces: true}}");
        row("short methods joined in a class only, Java", "Chromium[Java].style",
            "{AllowShortFunctionsOnASingleLine: InlineOnly}");
        // Three blank lines in a row show a limit of three where two blank lines read back two.
        row("three blank lines kept, Java", "Google[Java].style", "{MaxEmptyLinesToKeep: 3}");
        row("three blank lines kept, JavaScript", "Mozilla[JavaScript].style", "{MaxEmptyLinesToKeep: 3}");
        row("three blank lines kept, C#", "Google[C#].style", "{MaxEmptyLinesToKeep: 3}");
        row("three blank lines kept, Protocol Buffers", "Google[Protocol Buffers].style", "{MaxEmptyLinesToKeep: 3}");
        // A long method call broken over lines rules out no column limit, as a long function call does.
        row("parameters one a line, C#", "Google[C#].style", "{BinPackParameters: false}");
        row("return type on its own line, C#", "Google[C#].style", "{BreakAfterReturnType: All}");
        // Java's and C# long method declaration is the declaration whose return type may break.
        row("return type on its own line in definitions, C#", "Microsoft[C#].style",
            "{BreakAfterReturnType: AllDefinitions}");
        // C#'s forms after its query formatted with it, as the engine does with a query at the top
        // level, would never come back under any options.
        row("operators first but `=`, C#", "Google[C#].style", "{BreakBeforeBinaryOperators: NonAssignment}");
        // The attributes' method, defined in its class, tells the top level alone from every definition.
        row("return type on its own line in top-level definitions only, C#", "Google[C#].style",
            "{BreakAfterReturnType: TopLevelDefinitions}");
        // An adopted protocol list and the superclass's colon before it: only moved together do
        // they give the forms back, so the form that shows both names both.
        row("no blank before an adopted protocol list, Objective-C", "Google[Objective-C].style",
            "{ObjCSpaceBeforeProtocolList: false}");
        QTest::newRow("a loop macro added") << "LLVM[C++].style" << "for each macro" << "  BOOST_FOREACH"
                                            << "  my_for_each (name, SOME) {\n    SOME;\n  }\n  BOOST_FOREACH"
                                            << "{ForEachMacros: [foreach, Q_FOREACH, my_for_each, BOOST_FOREACH]}";
        QTest::newRow("a loop macro taken out")
            << "LLVM[C++].style" << "for each macro" << "  Q_FOREACH (name, SOME) {\n    SOME;\n  }\n" << ""
            << "{ForEachMacros: [foreach, BOOST_FOREACH]}";
        QTest::newRow("a statement macro added") << "LLVM[C++].style" << "statement macro" << "  QT_REQUIRE_VERSION"
                                                 << "  DECLARE_ITEMS(name)\n  SOME;\n  QT_REQUIRE_VERSION"
                                                 << "{StatementMacros: [Q_UNUSED, DECLARE_ITEMS, QT_REQUIRE_VERSION]}";
        QTest::newRow("a statement macro taken out")
            << "LLVM[C++].style" << "statement macro" << "  Q_UNUSED(name)\n  SOME;\n" << ""
            << "{StatementMacros: [QT_REQUIRE_VERSION]}";
        QTest::newRow("an attribute macro added")
            << "LLVM[C++].style" << "attribute macro" << "static __capability"
            << "static __item_init type *name;\nstatic __capability"
            << "{AttributeMacros: [__item_init, __capability]}";
    }
    void edited_forms_give_the_value_back() {
        QFETCH(QString, addon_file);
        QFETCH(QString, structure);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, value);
        std::string addon = shipped_addon(addon_file);
        auto const& language = description_of(QString::fromStdString(language_of_addon(addon)));
        // The options read as the engine reads those of the addon's language.
        clang::format::FormatStyle shipped = clang::format::getLLVMStyle();
        shipped.Language = tarnel_engine::engine_kind_of(language.lexing);
        QVERIFY(tarnel_engine::read_configuration(tarnel_engine::options_inferred_from(addon, language), shipped));
        if (structure.isEmpty()) {
            clang::format::FormatStyle moved = shipped;
            QVERIFY(tarnel_engine::apply_candidate(moved, value.toStdString()));
            QVERIFY2(!tarnel_engine::same_options(moved, shipped), "the shipped style has the value already");
            std::string const written =
                tarnel_engine::addon_written_in(clang::format::configurationAsText(moved), "Edited", language);
            int changed = 0;
            for (tarnel_engine::structure const& each : language.structures) {
                std::string const before = obtain_structure_form(each.name).from_already_reading(addon);
                std::string const after = obtain_structure_form(each.name).from_already_reading(written);
                // A structure the addon lacks (newer than the addon) is not the user's to edit.
                if (!before.empty() && before != after) {
                    addon = with_form_edited(addon, each.name, before, after);
                    QVERIFY2(!addon.empty(), each.name.c_str());
                    ++changed;
                }
            }
            QVERIFY2(changed > 0, "no form shows the value");
        } else {
            addon = with_form_edited(addon, structure.toStdString(), from.toStdString(), to.toStdString());
            QVERIFY(!addon.empty());
        }
        QCOMPARE(forms_not_coming_back_in(addon, language), QStringList());
        clang::format::FormatStyle inferred = clang::format::getLLVMStyle();
        inferred.Language = shipped.Language;
        QVERIFY(tarnel_engine::read_configuration(tarnel_engine::options_inferred_from(addon, language), inferred));
        clang::format::FormatStyle held = inferred;
        QVERIFY(tarnel_engine::apply_candidate(held, value.toStdString()));
        QVERIFY2(tarnel_engine::same_options(held, inferred), tarnel_engine::options_inferred_from(addon, language).c_str());
    }

    // An addon written before the forms of alignment, blank lines and loop macros existed lacks
    // them (one of Java, JavaScript, C# or Protocol Buffers, its three blank lines in a row): it
    // still loads, and revises as before (its golden file), the options those forms would show
    // keeping its base style's values.
    void addon_without_the_newer_forms_revises_as_before_data() {
        QTest::addColumn<QString>("golden_case");
        for (QString const& golden_case : golden_cases())
            for (char const* language : {"C/", "C++/", "Java/", "JavaScript/", "C#/", "Protocol Buffers/"})
                if (golden_case.startsWith(language))
                    QTest::newRow(qPrintable(golden_case)) << golden_case;
    }
    void addon_without_the_newer_forms_revises_as_before() {
        QFETCH(QString, golden_case);
        QString const language = golden_case.section('/', 0, 0);
        std::string addon = shipped_addon(golden_case.section('/', 1) + "[" + language + "].style");
        std::vector<char const*> const of_c_family = {"blank lines", "consecutive assignments",
                                                      "consecutive declarations", "escaped newlines",
                                                      "for each macro", "long enum", "macro definitions",
                                                      "trailing comments"};
        std::vector<char const*> const of_others = {"blank lines in a row"};
        for (char const* newer : language == "C" || language == "C++" ? of_c_family : of_others) {
            std::size_t const begin = addon.find(std::string("\nS_NAME=") + newer + "\nS_BEG\n");
            QVERIFY2(begin != std::string::npos, newer);
            addon.erase(begin, addon.find("\nS_END\n", begin) + 7 - begin);
        }
        if (language == "C") {
            std::size_t const begin = addon.find("\nS_NAME=extern block\nS_BEG\n");
            QVERIFY(begin != std::string::npos);
            addon.erase(begin, addon.find("\nS_END\n", begin) + 7 - begin);
        }
        std::string const input = golden_file(golden_case, "input");
        loaded_plugin plugin(plugin_file_of(language.toStdString()));
        QCOMPARE(QString::fromStdString(plugin->revise(input, addon, traits_of(input))),
                 QString::fromStdString(golden_file(golden_case, "expected")));
    }

    // One rule of the engine covers several structures: the edited form alone does not come back,
    // every other form does, and the reason names the option and the forms sharing the rule.
    void contradicting_form_gives_the_closest_rules_data() {
        QTest::addColumn<QString>("structure");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("sharing");
        QTest::newRow("for without a blank before (") << "for" << "for (name" << "for(name" << "SpaceBeforeParens" << "while";
        QTest::newRow("brace of if alone on its own line")
            << "if" << "if (SOME) {" << "if (SOME)\n{" << "AfterControlStatement" << "for";
    }
    void contradicting_form_gives_the_closest_rules() {
        QFETCH(QString, structure);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, option);
        QFETCH(QString, sharing);
        std::string const shipped = shipped_addon("LLVM[C++].style");
        std::string const addon = with_form_edited(shipped, structure.toStdString(), from.toStdString(), to.toStdString());
        QVERIFY(!addon.empty());
        std::string const options = tarnel_engine::options_inferred_from(addon, cpp_language());
        // The same forms under another name: another cache entry, the same search, the same result.
        std::string const renamed = "NAME=Renamed" + addon.substr(addon.find('\n'));
        QCOMPARE(tarnel_engine::options_inferred_from(renamed, cpp_language()), options);

        std::vector<tarnel_engine::form_not_coming_back> const failing =
            tarnel_engine::forms_not_coming_back(addon, cpp_language());
        QCOMPARE(failing.size(), std::size_t(1));
        QCOMPARE(QString::fromStdString(failing.front().structure), structure);
        QVERIFY2(QString::fromStdString(failing.front().needs).contains(option), failing.front().needs.c_str());
        std::vector<std::string> const& conflicting = failing.front().conflicting;
        QVERIFY(std::find(conflicting.begin(), conflicting.end(), sharing.toStdString()) != conflicting.end());
    }
};

QTEST_GUILESS_MAIN(test_inference)
#include "test_inference.moc"
