// The candidate table. Values are kept as configuration text so that the table reads like the
// engine's own documentation, and adding a value is one string.
#include "option_moves.h"

#include "engine_hazards.h"
#include "token_safe_settings.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <utility>

namespace tarnel_engine {

namespace {

std::vector<std::string> each_of(std::string const& option, std::vector<std::string> const& values) {
    std::vector<std::string> candidates;
    for (std::string const& value : values)
        candidates.push_back("{" + option + ": " + value + "}");
    return candidates;
}

std::vector<std::string> true_or_false(std::string const& option) { return each_of(option, {"true", "false"}); }

option_group flag(std::string const& option) { return {option, true_or_false(option)}; }

option_group one_of(std::string const& option, std::vector<std::string> const& values) {
    return {option, each_of(option, values)};
}

option_group brace_wrapping(std::string const& flag, std::vector<std::string> const& values = {"true", "false"}) {
    std::vector<std::string> candidates;
    for (std::string const& value : values)
        candidates.push_back("{BreakBeforeBraces: Custom, BraceWrapping: {" + flag + ": " + value + "}}");
    return {"BraceWrapping." + flag, candidates};
}

option_group enabled(std::string const& option) {
    return {option, {"{" + option + ": {Enabled: true}}", "{" + option + ": {Enabled: false}}"}};
}

std::vector<option_group> make_groups() {
    std::vector<option_group> groups = {
        {"Indentation",
         {"{IndentWidth: 2, UseTab: Never}", "{IndentWidth: 3, UseTab: Never}", "{IndentWidth: 4, UseTab: Never}",
          "{IndentWidth: 8, UseTab: Never}", "{IndentWidth: 8, TabWidth: 8, UseTab: Always}",
          "{IndentWidth: 8, TabWidth: 8, UseTab: ForIndentation}", "{IndentWidth: 4, TabWidth: 4, UseTab: ForIndentation}",
          "{IndentWidth: 4, TabWidth: 4, UseTab: Always}"}},
        one_of("UseTab", {"Never", "ForIndentation", "ForContinuationAndIndentation", "AlignWithSpaces", "Always"}),
        one_of("ContinuationIndentWidth", {"2", "4", "8"}),
        one_of("ColumnLimit", {"80", "79", "100", "120", "0"}),
        one_of("BreakBeforeBraces", {"Attach", "Linux", "Mozilla", "Stroustrup", "Allman", "Whitesmiths", "GNU", "WebKit"}),
        brace_wrapping("AfterFunction"),
        brace_wrapping("AfterControlStatement", {"Never", "MultiLine", "Always"}),
        brace_wrapping("BeforeElse"),
        brace_wrapping("AfterClass"),
        brace_wrapping("AfterStruct"),
        brace_wrapping("AfterUnion"),
        brace_wrapping("AfterEnum"),
        brace_wrapping("AfterNamespace"),
        brace_wrapping("AfterExternBlock"),
        brace_wrapping("AfterCaseLabel"),
        brace_wrapping("BeforeCatch"),
        brace_wrapping("BeforeWhile"),
        brace_wrapping("BeforeLambdaBody"),
        brace_wrapping("IndentBraces"),
        brace_wrapping("SplitEmptyFunction"),
        brace_wrapping("SplitEmptyRecord"),
        one_of("SpaceBeforeParens", {"ControlStatements", "Never", "ControlStatementsExceptControlMacros",
                                     "ControlStatementsExceptForEachMacros", "NonEmptyParentheses", "Always"}),
        {"SpacesInParens",
         {"{SpacesInParens: Never}",
          "{SpacesInParens: Custom, SpacesInParensOptions: {InConditionalStatements: true, Other: true}}",
          "{SpacesInParens: Custom, SpacesInParensOptions: {InConditionalStatements: true, Other: false}}"}},
        one_of("PointerAlignment", {"Right", "Left", "Middle"}),
        flag("DerivePointerAlignment"),
        one_of("ReferenceAlignment", {"Pointer", "Left", "Right", "Middle"}),
        one_of("AllowShortIfStatementsOnASingleLine", {"Never", "WithoutElse", "OnlyFirstIf", "AllIfsAndElse"}),
        flag("AllowShortLoopsOnASingleLine"),
        one_of("AllowShortFunctionsOnASingleLine", {"None", "Empty", "Inline", "InlineOnly", "All"}),
        one_of("AllowShortBlocksOnASingleLine", {"Never", "Empty", "Always"}),
        flag("AllowShortCaseLabelsOnASingleLine"),
        flag("AllowShortEnumsOnASingleLine"),
        one_of("AllowShortLambdasOnASingleLine", {"None", "Empty", "Inline", "All"}),
        flag("IndentCaseLabels"),
        flag("IndentCaseBlocks"),
        one_of("NamespaceIndentation", {"None", "Inner", "All"}),
        one_of("AccessModifierOffset", {"-2", "-1", "-4", "-3", "-8", "0"}),
        flag("IndentAccessModifiers"),
        one_of("EmptyLineBeforeAccessModifier", {"LogicalBlock", "Never", "Leave", "Always"}),
        one_of("BreakAfterReturnType", {"None", "Automatic", "ExceptShortType", "All", "TopLevel", "AllDefinitions",
                                        "TopLevelDefinitions"}),
        one_of("BreakBeforeBinaryOperators", {"None", "NonAssignment", "All"}),
        flag("BreakBeforeTernaryOperators"),
        one_of("AlignAfterOpenBracket", {"Align", "DontAlign", "AlwaysBreak", "BlockIndent"}),
        one_of("AlignOperands", {"Align", "DontAlign", "AlignAfterOperator"}),
        flag("BinPackArguments"),
        flag("BinPackParameters"),
        flag("AllowAllArgumentsOnNextLine"),
        flag("AllowAllParametersOfDeclarationOnNextLine"),
        one_of("BreakConstructorInitializers", {"BeforeColon", "BeforeComma", "AfterColon"}),
        one_of("PackConstructorInitializers", {"BinPack", "Never", "CurrentLine", "NextLine", "NextLineOnly"}),
        one_of("ConstructorInitializerIndentWidth", {"4", "2", "8"}),
        one_of("BreakInheritanceList", {"BeforeColon", "BeforeComma", "AfterColon", "AfterComma"}),
        flag("SpaceAfterCStyleCast"),
        flag("SpaceBeforeAssignmentOperators"),
        flag("SpaceAfterTemplateKeyword"),
        flag("SpaceBeforeCpp11BracedList"),
        flag("Cpp11BracedListStyle"),
        flag("SpaceBeforeRangeBasedForLoopColon"),
        flag("SpaceBeforeCtorInitializerColon"),
        flag("SpaceBeforeInheritanceColon"),
        flag("SpaceInEmptyBlock"),
        flag("SpaceAfterLogicalNot"),
        flag("SpaceBeforeSquareBrackets"),
        flag("SpacesInSquareBrackets"),
        one_of("SpacesInAngles", {"Never", "Always", "Leave"}),
        one_of("SpacesBeforeTrailingComments", {"1", "2"}),
        // Before the kind of alignment: leaving comments where they stand gives back any form.
        {"AlignTrailingComments.OverEmptyLines",
         {"{AlignTrailingComments: {OverEmptyLines: 0}}", "{AlignTrailingComments: {OverEmptyLines: 1}}"}},
        {"AlignTrailingComments",
         {"{AlignTrailingComments: {Kind: Always}}", "{AlignTrailingComments: {Kind: Never}}",
          "{AlignTrailingComments: {Kind: Leave}}"}},
        one_of("BreakTemplateDeclarations", {"MultiLine", "Yes", "No", "Leave"}),
        one_of("IndentPPDirectives", {"None", "AfterHash", "BeforeHash"}),
        one_of("PPIndentWidth", {"-1", "1", "2", "4"}),
        one_of("AlignEscapedNewlines", {"Right", "Left", "LeftWithLastLine", "DontAlign"}),
        enabled("AlignConsecutiveAssignments"),
        enabled("AlignConsecutiveDeclarations"),
        enabled("AlignConsecutiveMacros"),
        enabled("AlignConsecutiveBitFields"),
        flag("IndentGotoLabels"),
        flag("IndentWrappedFunctionNames"),
        one_of("IndentExternBlock", {"AfterExternBlock", "NoIndent", "Indent"}),
        one_of("LambdaBodyIndentation", {"Signature", "OuterScope"}),
        one_of("BitFieldColonSpacing", {"Both", "None", "Before", "After"}),
        one_of("AlignArrayOfStructures", {"None", "Left", "Right"}),
        flag("SpaceBeforeCaseColon"),
        one_of("MaxEmptyLinesToKeep", {"1", "2", "3"}),
        {"KeepEmptyLines.AtStartOfBlock",
         {"{KeepEmptyLines: {AtStartOfBlock: true}}", "{KeepEmptyLines: {AtStartOfBlock: false}}"}},
    };
    // The indent step alone, whatever the tabs (a step read twice over where braces are indented
    // is mended without moving the tabs). How lines break under the column limit: for each
    // penalty, values that lay the forms (and real code) out differently; values that give the
    // same forms as one of these are left out, as the search keeps the base's value where several
    // give the same forms. The penalty for characters past the limit is left out: the values
    // projects use (100 and more) lay every form out as the predefined styles' 1000000 does, and
    // the small ones that do not (2) made a fifth of the random sets the search could not bring
    // back.
    std::vector<option_group> const breaks = {
        one_of("IndentWidth", {"2", "3", "4", "8"}),
        one_of("PenaltyReturnTypeOnItsOwnLine", {"60", "200"}),
        one_of("PenaltyBreakAssignment", {"2", "100"}),
        one_of("PenaltyBreakBeforeFirstCallParameter", {"19", "100"}),
    };
    groups.insert(groups.end(), breaks.begin(), breaks.end());
    // Strings written in parts on lines of their own (the C family's adjacent literals): whether a
    // line breaks before them.
    groups.push_back(flag("AlwaysBreakBeforeMultilineStrings"));
    return groups;
}

// The C family's groups but those named.
std::vector<option_group> make_groups_without(std::set<std::string> const& names) {
    std::vector<option_group> groups = make_groups();
    groups.erase(std::remove_if(groups.begin(), groups.end(),
                                [&](option_group const& group) { return names.count(group.name) > 0; }),
                 groups.end());
    return groups;
}

// The groups of what Java, JavaScript and TypeScript lack: pointers, references, namespaces,
// access labels of their own, templates, constructor initializer lists, structures, unions, the
// preprocessor, bit fields and strings written in parts.
std::set<std::string> const& without_pointers_templates_or_preprocessor() {
    static std::set<std::string> const groups = {
        "PointerAlignment", "DerivePointerAlignment", "ReferenceAlignment", "NamespaceIndentation",
        "AccessModifierOffset", "IndentAccessModifiers", "EmptyLineBeforeAccessModifier",
        "BreakConstructorInitializers", "PackConstructorInitializers", "ConstructorInitializerIndentWidth",
        "BreakInheritanceList", "SpaceBeforeCtorInitializerColon", "SpaceBeforeInheritanceColon",
        "SpaceAfterTemplateKeyword", "BreakTemplateDeclarations", "BraceWrapping.AfterStruct",
        "BraceWrapping.AfterUnion", "BraceWrapping.AfterNamespace", "BraceWrapping.AfterExternBlock",
        "AlignConsecutiveMacros", "AlignConsecutiveBitFields", "BitFieldColonSpacing", "IndentExternBlock",
        "AlignEscapedNewlines", "IndentPPDirectives", "PPIndentWidth", "IndentGotoLabels", "AlignArrayOfStructures",
        "AlwaysBreakBeforeMultilineStrings"};
    return groups;
}

// Java's groups, with its annotations of fields.
std::vector<option_group> make_java_groups() {
    std::vector<option_group> groups = make_groups_without(without_pointers_templates_or_preprocessor());
    groups.push_back(flag("BreakAfterJavaFieldAnnotations"));
    return groups;
}

// A .proto file has messages, enums and services, fields with options in brackets, and messages
// written out as values of options.
std::vector<option_group> make_protocol_buffers_groups() {
    static std::set<std::string> const kept = {
        "Indentation", "UseTab", "ContinuationIndentWidth", "ColumnLimit", "BreakBeforeBraces",
        "BraceWrapping.AfterClass", "BraceWrapping.AfterEnum", "BraceWrapping.AfterFunction",
        "BraceWrapping.SplitEmptyRecord", "SpaceBeforeParens", "SpacesInParens", "Cpp11BracedListStyle",
        "SpaceBeforeAssignmentOperators", "SpaceBeforeSquareBrackets", "SpacesInSquareBrackets", "SpacesInAngles",
        "SpaceInEmptyBlock", "SpacesBeforeTrailingComments", "AlignTrailingComments.OverEmptyLines",
        "AlignTrailingComments", "AlignConsecutiveAssignments", "AlignConsecutiveDeclarations",
        "AlignAfterOpenBracket", "BinPackArguments", "MaxEmptyLinesToKeep", "KeepEmptyLines.AtStartOfBlock",
        "IndentWidth", "PenaltyBreakBeforeFirstCallParameter"};
    std::vector<option_group> groups = make_groups();
    groups.erase(std::remove_if(groups.begin(), groups.end(),
                                [](option_group const& group) { return kept.count(group.name) == 0; }),
                 groups.end());
    groups.push_back(flag("SpacesInContainerLiterals"));
    return groups;
}

// Objective-C is C's (and, in .mm files, C++'s) with blocks, protocol lists and properties.
std::vector<option_group> make_objective_c_groups() {
    std::vector<option_group> groups = make_groups();
    std::vector<option_group> const objective_c = {
        one_of("ObjCBlockIndentWidth", {"2", "4", "8"}),
        flag("ObjCSpaceAfterProperty"),
        flag("ObjCSpaceBeforeProtocolList"),
        flag("ObjCBreakBeforeNestedBlockParam"),
        one_of("ObjCBinPackProtocolList", {"Auto", "Always", "Never"}),
    };
    groups.insert(groups.end(), objective_c.begin(), objective_c.end());
    return groups;
}

// C# has no references, templates, constructor initializer lists of C++'s kind, unions,
// preprocessor macros or bit fields; its pointers (in unsafe code) are rare enough to leave out.
std::vector<option_group> make_csharp_groups() {
    static std::set<std::string> const c_family_only = {
        "PointerAlignment", "DerivePointerAlignment", "ReferenceAlignment", "AccessModifierOffset",
        "IndentAccessModifiers", "EmptyLineBeforeAccessModifier", "BreakConstructorInitializers",
        "PackConstructorInitializers", "ConstructorInitializerIndentWidth", "SpaceBeforeCtorInitializerColon",
        "SpaceAfterTemplateKeyword", "BreakTemplateDeclarations", "BraceWrapping.AfterUnion",
        "BraceWrapping.AfterExternBlock", "AlignConsecutiveMacros", "AlignConsecutiveBitFields",
        "BitFieldColonSpacing", "IndentExternBlock", "AlignEscapedNewlines", "IndentPPDirectives", "PPIndentWidth",
        "IndentGotoLabels", "AlignArrayOfStructures", "AlwaysBreakBeforeMultilineStrings"};
    std::vector<option_group> groups = make_groups_without(c_family_only);
    return groups;
}

// JavaScript's and TypeScript's groups: their imports may be wrapped, their object and array
// literals spaced inside.
std::vector<option_group> make_javascript_groups() {
    std::vector<option_group> groups = make_groups_without(without_pointers_templates_or_preprocessor());
    groups.push_back(flag("JavaScriptWrapImports"));
    groups.push_back(flag("SpacesInContainerLiterals"));
    return groups;
}

}  // namespace

std::vector<option_group> const& option_groups() {
    static std::vector<option_group> const groups = make_groups();
    return groups;
}

std::vector<option_group> const& option_groups(lexed_as language) {
    static std::vector<option_group> const java = make_java_groups();
    static std::vector<option_group> const protocol_buffers = make_protocol_buffers_groups();
    static std::vector<option_group> const objective_c = make_objective_c_groups();
    static std::vector<option_group> const csharp = make_csharp_groups();
    static std::vector<option_group> const javascript = make_javascript_groups();
    return of_language(language, option_groups(), java, protocol_buffers, objective_c, csharp, javascript);
}

bool applies_to_every_structure(std::string const& group_name) {
    return group_name == "Indentation" || group_name == "UseTab" || group_name == "IndentWidth" ||
           group_name == "BreakBeforeBraces";
}

bool same_options(clang::format::FormatStyle const& one, clang::format::FormatStyle const& other) {
    return one == other && clang::format::configurationAsText(one) == clang::format::configurationAsText(other);
}

bool read_configuration(std::string const& text, clang::format::FormatStyle& style) {
    clang::format::FormatStyle read = style;
    // A list the text sets replaces the base style's (the engine would overwrite it element by
    // element); the key itself, not the value ControlStatementsExceptForEachMacros of another option.
    for (auto const& [name, list] : {std::make_pair("ForEachMacros:", &read.ForEachMacros),
                                     std::make_pair("StatementMacros:", &read.StatementMacros),
                                     std::make_pair("AttributeMacros:", &read.AttributeMacros)}) {
        std::size_t const key = text.find(name);
        if (key != std::string::npos && (key == 0 || !std::isalnum(static_cast<unsigned char>(text[key - 1]))))
            list->clear();
    }
    if (clang::format::parseConfiguration(text, &read))
        return false;
    style = read;
    return true;
}

bool apply_candidate(clang::format::FormatStyle& style, std::string const& candidate) {
    clang::format::FormatStyle moved = style;
    // A preset is expanded by writing the style out and reading it back; a custom style already
    // holds its flags.
    bool const on_expansion =
        (candidate.find("BraceWrapping") != std::string::npos &&
         style.BreakBeforeBraces != clang::format::FormatStyle::BS_Custom) ||
        (candidate.find("SpacesInParensOptions") != std::string::npos &&
         style.SpacesInParens != clang::format::FormatStyle::SIPO_Custom);
    if (on_expansion && clang::format::parseConfiguration(clang::format::configurationAsText(style), &moved))
        return false;
    if (!read_configuration(candidate, moved) || !engine_survives(moved))
        return false;
    style = moved;
    return true;
}

}  // namespace tarnel_engine
