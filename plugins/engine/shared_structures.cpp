// The structures that the catalogues of Java, JavaScript and C# write alike (those they share with
// the C family come from its catalogue): one definition each, which a catalogue takes by name.
#include "shared_structures.h"

namespace tarnel_engine {

namespace {

structure_catalogue methods_languages_structures() {
    return {
        {"blank lines", "void name() {\n\n  SOME;\n\n\n  SOME;\n}",
         "How many blank lines in a row are kept, and whether a block may begin with one.",
         {"MaxEmptyLinesToKeep", "KeepEmptyLines.AtStartOfBlock"}},
        {"blank lines in a row", "void name() {\n  SOME;\n\n\n\n  SOME;\n}",
         "Three blank lines in a row inside a method: how many of them are kept.", {"MaxEmptyLinesToKeep"}},
        {"empty method", "void name() {}",
         "A method with an empty body: on one line, or with its braces on lines of their own.",
         {"AllowShortFunctionsOnASingleLine", "BraceWrapping.SplitEmptyFunction", "BraceWrapping.AfterFunction",
          "SpaceInEmptyBlock"}},
        {"for", "for (int name = SOME; name < SOME; ++name) {\n  SOME;\n}",
         "A for loop: the blanks in its head and where its braces go.",
         {"BraceWrapping.AfterControlStatement", "SpaceBeforeParens", "SpacesInParens", "AllowShortBlocksOnASingleLine"}},
        {"function call", "name(SOME, SOME);", "Whether a blank stands between a method's name and its arguments.",
         {"SpaceBeforeParens", "SpacesInParens"}},
        {"long call chain", "name = SOME_LONG.name_part(SOME).name_long_part(SOME_LONG).name_part(SOME).name_long_part();",
         "A chain of calls too long for one line: where it breaks, and how far the calls after the first are indented.",
         {"ColumnLimit", "ContinuationIndentWidth", "AlignAfterOpenBracket", "PenaltyBreakBeforeFirstCallParameter"}},
        {"long method call", "name(SOME_LONG, SOME_LONG, SOME_LONG, SOME_LONG, SOME_LONG);",
         "How the arguments of a call too long for one line are laid out, and where lines end.",
         {"AlignAfterOpenBracket", "BinPackArguments", "AllowAllArgumentsOnNextLine", "ColumnLimit",
          "ContinuationIndentWidth"}},
        {"short if", "if (SOME)\n  SOME;", "A condition without braces: whether its statement may share its line.",
         {"AllowShortIfStatementsOnASingleLine"}},
        {"short loop", "while (SOME)\n  SOME;", "A loop without braces: whether its statement may share its line.",
         {"AllowShortLoopsOnASingleLine"}},
        {"short method", "type name() { return SOME; }",
         "A method whose body is one short statement: on one line or not.",
         {"AllowShortFunctionsOnASingleLine", "BraceWrapping.AfterFunction"}},
        {"switch",
         "switch (SOME) {\ncase SOME:\n  SOME;\n  break;\ncase SOME: {\n  SOME;\n  break;\n}\ndefault:\n  SOME;\n}",
         "A switch statement: whether case labels are indented, and how a case with a block is laid out.",
         {"IndentCaseLabels", "IndentCaseBlocks", "BraceWrapping.AfterCaseLabel", "AllowShortCaseLabelsOnASingleLine",
          "SpaceBeforeCaseColon", "BraceWrapping.AfterControlStatement"}},
        {"try catch", "try {\n  SOME;\n} catch (type name) {\n  SOME;\n} finally {\n  SOME;\n}",
         "Exception handling: whether `catch` and `finally` share the line of the closing brace.",
         {"BraceWrapping.BeforeCatch", "BraceWrapping.AfterControlStatement"}},    };
}

}  // namespace

structure structure_named(std::string const& name, structure_catalogue const& catalogue) {
    for (structure const& each : catalogue)
        if (each.name == name)
            return each;
    return {name, std::string(), std::string(), {}};
}

structure shared_structure(std::string const& name) {
    static structure_catalogue const catalogue = methods_languages_structures();
    return structure_named(name, catalogue);
}

}  // namespace tarnel_engine
