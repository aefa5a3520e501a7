// Each structure: its name, its tokens (written out in one style; only their order matters), what
// it shows a reader, and the option groups of the inference its form decides.
#include "c_family_structures.h"

#include "project_macros.h"
#include "shared_structures.h"

tarnel_engine::structure_catalogue c_family_structures() {
    return {
        {"array initializer", "type name[] = {SOME, SOME, SOME};",
         "How a braced list of values is spaced inside its braces and before them.",
         {"Cpp11BracedListStyle", "SpaceBeforeCpp11BracedList", "SpacesInSquareBrackets", "SpaceBeforeSquareBrackets"}},
        {tarnel_engine::attribute_macros().structure,
         tarnel_engine::macros_form_for(tarnel_engine::attribute_macros(), {"__item_attribute"}),
         "The macros the project uses as attributes among a declaration's specifiers, one declaration each: their "
         "names, and how the declarations around them are laid out.",
         {"AttributeMacros", "PointerAlignment"}, tarnel_engine::macros_expression(tarnel_engine::attribute_macros()),
         "Its form holds one declaration for each macro the project uses as an attribute; the name after `static` "
         "is the macro's. Add a declaration to add a macro, take one out to remove it, and keep the tokens around "
         "the names as they are:"},
        {"binary operators", "name = SOME + SOME * SOME;\nname += SOME << SOME;",
         "The blanks around assignments and arithmetic operators.",
         {"SpaceBeforeAssignmentOperators"}},
        {"bit field", "struct name {\n  type name : 4;\n  type name_long_part : 2;\n};",
         "The blanks around the colon of a bit field, and whether widths line up.",
         {"BitFieldColonSpacing", "AlignConsecutiveBitFields", "BraceWrapping.AfterStruct"}},
        {"blank lines", "type name(void) {\n\n  SOME;\n\n\n  SOME;\n}",
         "How many blank lines in a row are kept, and whether a block may begin with one.",
         {"MaxEmptyLinesToKeep", "KeepEmptyLines.AtStartOfBlock"}},
        {"blank lines in a row", "type name(void) {\n  SOME;\n\n\n\n  SOME;\n}",
         "Three blank lines in a row inside a function: how many of them are kept.",
         {"MaxEmptyLinesToKeep"}},
        {"call without arguments", "name = name_part();",
         "A call with empty parentheses: whether a blank stands before them where one stands before other calls' "
         "arguments.",
         {"SpaceBeforeParens"}},
        {"cast", "name = (type *)SOME;",
         "Whether a blank follows the parentheses of a cast, and where its `*` leans.",
         {"SpaceAfterCStyleCast", "PointerAlignment", "SpacesInParens"}},
        {"comment", "type name; // SOME\ntype name_long_part; // SOME\n/* SOME */",
         "How far trailing comments stand from the code, and whether those of neighbouring lines line up.",
         {"SpacesBeforeTrailingComments", "AlignTrailingComments", "AlignConsecutiveDeclarations"}},
        {"comment spacing", "SOME(name);// SOME\nname_long_part(SOME); // SOME",
         "Trailing comments their author set at different distances from the code (none and one blank): kept where "
         "they stand, lined up, or each the style's distance away.",
         {"AlignTrailingComments", "SpacesBeforeTrailingComments"}},
        {"comments near a tab stop", "int name;    // SOME\n\ntype name_part; // SOME",
         "Trailing comments whose distance from the code reaches past a tab stop: whether a tab fills the way there, "
         "as the style's tabs used everywhere do, or blanks.",
         {"UseTab", "SpacesBeforeTrailingComments", "AlignTrailingComments"}},
        {"consecutive assignments", "name = SOME;\nname_long_part = SOME;\nname_part = SOME;",
         "Whether the `=` of assignments on neighbouring lines line up.",
         {"AlignConsecutiveAssignments", "SpaceBeforeAssignmentOperators"}},
        {"consecutive declarations", "int name;\nunsigned long name_part;\ntype *name_long_part;",
         "Whether the names declared on neighbouring lines line up after types of different lengths.",
         {"AlignConsecutiveDeclarations", "PointerAlignment"}},
        {"declaration eighty columns wide", "type SOME_LONG, SOME_LONG, name_long_part, name, SOME;",
         "A declaration of several names exactly 80 columns wide with blanks only after its commas: on one line "
         "under a column limit of 80 or more, or none, and broken after its last comma under 79.",
         {"ColumnLimit", "ContinuationIndentWidth"}},
        {"declarations", "type name = SOME;\ntype name_long_part = SOME;",
         "Whether the names and the `=` of neighbouring declarations line up.",
         {"AlignConsecutiveAssignments", "AlignConsecutiveDeclarations"}},
        {"do while", "do {\n  SOME;\n} while (SOME);",
         "Where the braces of a do-while loop stand, and where its `while` goes.",
         {"BraceWrapping.AfterControlStatement", "BraceWrapping.BeforeWhile", "SpaceBeforeParens"}},
        {"else if", "if (SOME) {\n  SOME;\n} else if (SOME) {\n  SOME;\n} else {\n  SOME;\n}",
         "A chain of conditions: where each `else` and each brace goes.",
         {"BraceWrapping.AfterControlStatement", "BraceWrapping.BeforeElse", "AllowShortIfStatementsOnASingleLine"}},
        {"empty function", "type name(void) {}",
         "A function with an empty body: on one line, or with its braces on lines of their own.",
         {"AllowShortFunctionsOnASingleLine", "BraceWrapping.SplitEmptyFunction", "BraceWrapping.AfterFunction",
          "SpaceInEmptyBlock"}},
        {"enum", "enum name { name_part, name_long_part = SOME };",
         "An enumeration: on one line when it fits, or one enumerator a line; where its brace goes.",
         {"AllowShortEnumsOnASingleLine", "BraceWrapping.AfterEnum"}},
        {"escaped newlines", "#define name(argument) \\\n  SOME(argument); \\\n  name_part(argument, SOME_LONG)",
         "A macro whose last line is its longest: whether the backslashes line up, and with which lines.",
         {"AlignEscapedNewlines", "ColumnLimit"}},
        {"extern block", "extern \"C\" {\ntype name(type argument);\n}",
         "A block of declarations with C linkage: where its brace goes and whether its content is indented.",
         {"BraceWrapping.AfterExternBlock", "IndentExternBlock"}},
        {"for", "for (name = SOME; name < SOME; ++name) {\n  SOME;\n}",
         "A for loop: the blanks in its head and where its braces go.",
         {"BraceWrapping.AfterControlStatement", "SpaceBeforeParens", "SpacesInParens", "AllowShortBlocksOnASingleLine"}},
        {tarnel_engine::loop_macros().structure, tarnel_engine::macros_form_for(tarnel_engine::loop_macros(), {"for_each_item"}),
         "The macros the project uses as loops, one loop each: their names, and how their heads and braces are laid out.",
         {"ForEachMacros", "SpaceBeforeParens", "BraceWrapping.AfterControlStatement", "AllowShortBlocksOnASingleLine"},
         tarnel_engine::macros_expression(tarnel_engine::loop_macros()),
         "Its form is a function whose body holds one loop for each macro the project uses as a loop; "
         "the name that opens each loop is the macro's. Add a loop to add a macro, take one out to remove it, "
         "and keep the tokens around the names as they are:"},
        {"function call", "name(SOME, SOME);", "Whether a blank stands between a function's name and its arguments.",
         {"SpaceBeforeParens", "SpacesInParens"}},
        {"function declaration", "type name(type argument, type *argument);",
         "A function declaration: the blank before its parameters and where `*` leans.",
         {"SpaceBeforeParens", "PointerAlignment", "BreakAfterReturnType", "SpacesInParens"}},
        {"function definition", "type name(type argument, type argument) {\n  SOME;\n  return SOME;\n}",
         "A function definition: whether the return type has its own line, and where the body's braces go.",
         {"BraceWrapping.AfterFunction", "BreakAfterReturnType", "SpaceBeforeParens", "SpacesInParens"}},
        {"goto", "type name(void) {\n  SOME;\n  goto label;\nlabel:\n  return SOME;\n}",
         "How far a label is indented in the body of a function.",
         {"IndentGotoLabels", "BraceWrapping.AfterFunction"}},
        {"if", "if (SOME) {\n  SOME;\n}", "A condition with a block: the blanks around its condition and where its braces go.",
         {"BraceWrapping.AfterControlStatement", "SpaceBeforeParens", "SpacesInParens", "AllowShortBlocksOnASingleLine"}},
        {"if else", "if (SOME) {\n  SOME;\n} else {\n  SOME;\n}",
         "A condition with two branches: whether `else` shares the line of the closing brace.",
         {"BraceWrapping.AfterControlStatement", "BraceWrapping.BeforeElse"}},
        {"kept line break", "name(SOME,\n     SOME);",
         "A short call its author wrote over two lines: kept so where the style has no column limit and keeps the "
         "author's breaks, joined otherwise.",
         {"ColumnLimit", "AlignAfterOpenBracket", "ContinuationIndentWidth", "SpaceBeforeParens"}},
        {"kept line break in a condition", "if (SOME &&\n    SOME)\n{\n  SOME;\n}",
         "A condition its author wrote over two lines, its brace on a line of its own: kept so where the style has no "
         "column limit, and then whether the brace stays there, as it does where the style leaves it where the author "
         "put it.",
         {"BraceWrapping.AfterControlStatement", "ColumnLimit", "AlignOperands", "BreakBeforeBinaryOperators",
          "ContinuationIndentWidth"}},
        {"kept line break in a declaration", "type name =\n    SOME_LONG;\ntype name_part = name_long_part(\n    SOME, SOME);",
         "Declarations their author broke after the `=` and after a call's `(`: kept so where the style has no column "
         "limit, and then how far their second lines are indented.",
         {"ColumnLimit", "ContinuationIndentWidth", "UseTab", "BreakBeforeBinaryOperators", "BinPackArguments"}},
        {"kept line break in a function", "type name(void) {\n  name_long_part(SOME,\n                 SOME);\n}",
         "A call inside a function its author wrote over two lines: kept so where the style has no column limit, and "
         "then how its second line lines up and whether tabs fill the way there.",
         {"ColumnLimit", "UseTab", "AlignAfterOpenBracket", "ContinuationIndentWidth", "BraceWrapping.AfterFunction"}},
        {"kept line break in parameters", "type name(type argument, type argument,\n          type argument);",
         "A declaration its author broke between its parameters, packed: kept so where the style has no column limit "
         "and packs parameters, joined where it puts them one a line.",
         {"BinPackParameters", "ColumnLimit", "AlignAfterOpenBracket", "ContinuationIndentWidth"}},
        {"kept line breaks around operators", "name = SOME_LONG +\n       SOME_LONG;\nname_part = SOME_LONG\n            - SOME_LONG;",
         "Two expressions their author broke, one after an operator and one before: where the style has no column "
         "limit, the break on the side the style puts operators stays and the other is joined, and then whether the "
         "operands line up.",
         {"ColumnLimit", "BreakBeforeBinaryOperators", "AlignOperands", "ContinuationIndentWidth"}},
        {"kept line breaks in arguments", "type name(void) {\n  name_part(\n      SOME, SOME,\n      SOME);\n}",
         "A call inside a function its author broke after its `(` and between its arguments: kept so where the style "
         "has no column limit and packs arguments, one a line or joined where it does not.",
         {"BinPackArguments", "AllowAllArgumentsOnNextLine", "AlignAfterOpenBracket", "ColumnLimit",
          "ContinuationIndentWidth", "BraceWrapping.AfterFunction"}},
        {"label in a block", "type name(void) {\n  if (SOME) {\n    SOME;\n    goto label;\n  label:\n    SOME;\n  }\n}",
         "How far a label inside a nested block is indented: one step out from the block's statements, or at the "
         "start of the line.",
         {"IndentGotoLabels", "BraceWrapping.AfterFunction", "BraceWrapping.AfterControlStatement"}},
        {"logical not", "name = !SOME;", "A negation: whether a blank follows the `!`.",
         {"SpaceAfterLogicalNot", "SpaceBeforeAssignmentOperators"}},
        {"long assignment", "name = SOME_LONG + SOME_LONG * SOME_LONG - SOME_LONG;",
         "How an expression too long for one line breaks: before or after its operators, and how far the rest is indented.",
         {"BreakBeforeBinaryOperators", "AlignOperands", "ContinuationIndentWidth", "ColumnLimit"}},
        {"long assignment to an element",
         "name_long_part[SOME_LONG]\n    = SOME_LONG.SOME_LONG.SOME_LONG.SOME_LONG;",
         "An assignment too long for its line whose value cannot break, its author's line broken before the `=`: "
         "broken at the `=` under any column limit, before it or after it, and without a limit kept so only where "
         "the style puts every operator, `=` too, first on a line.",
         {"BreakBeforeBinaryOperators", "ContinuationIndentWidth", "ColumnLimit"}},
        {"long assignments in a function",
         "type name(void) {\n  type name = SOME_LONG(SOME_LONG, SOME_LONG);\n\n  name_part = SOME_LONG(SOME_LONG) + SOME;\n\n"
         "  type name_long_part = SOME_LONG(SOME, name, SOME_LONG);\n\n  name = SOME_LONG(SOME_LONG.SOME_LONG);\n\n"
         "  type name_long_part = SOME_LONG(SOME) == SOME_LONG ? SOME : name;\n}",
         "Assignments inside a function a little too long for their line, whose value fits on the next: broken "
         "after the `=`, or inside the value (after a call's `(`, between its arguments, at an operator), as breaking "
         "at the `=` costs the style more or less than those breaks.",
         {"PenaltyBreakAssignment", "PenaltyBreakBeforeFirstCallParameter", "AlignAfterOpenBracket",
          "ContinuationIndentWidth", "ColumnLimit", "BreakBeforeBinaryOperators", "AlignOperands",
          "BreakBeforeTernaryOperators", "BraceWrapping.AfterFunction"}},
        {"long call assignment",
         "type name = SOME_LONG(SOME_LONG, SOME_LONG, SOME_LONG);\nname_part = SOME_LONG(SOME_LONG, SOME_LONG) + SOME_LONG;",
         "How assignments of calls too long for one line break: after the `=`, after the `(`, or between the arguments.",
         {"PenaltyBreakAssignment", "PenaltyBreakBeforeFirstCallParameter",
          "AlignAfterOpenBracket", "ContinuationIndentWidth", "ColumnLimit", "BreakBeforeBinaryOperators",
          "AlignOperands"}},
        {"long call in a function",
         "type name(void) {\n  name_part(SOME_LONG, SOME_LONG, SOME_LONG,\n            SOME_LONG, SOME_LONG, SOME_LONG);\n}",
         "A call too long for one line inside a function's body: its arguments packed onto each line, or one a line "
         "(a call outside any function is read as a declaration, whose parameters other options pack).",
         {"BinPackArguments", "AllowAllArgumentsOnNextLine", "AlignAfterOpenBracket",
          "PenaltyBreakBeforeFirstCallParameter", "ColumnLimit", "ContinuationIndentWidth", "BraceWrapping.AfterFunction"}},
        {"long call through members",
         "type name(void) {\n  SOME_LONG->SOME_LONG->SOME_LONG(SOME_LONG, SOME_LONG, SOME);\n}",
         "A call reached through members, too long for its line under any column limit while its arguments fit "
         "together on the next: whether they go there together where they are not packed, or one a line.",
         {"AllowAllArgumentsOnNextLine", "BinPackArguments", "AlignAfterOpenBracket", "ContinuationIndentWidth",
          "ColumnLimit", "BraceWrapping.AfterFunction"}},
        {"long call with a string in parts",
         "type name(void) {\n  name_long_part(SOME_LONG, \"a string in two parts, \"\n                 \"the first line of them long\");\n}",
         "A call inside a function whose last argument is a string written in parts over two lines, the call too long "
         "for one line under any column limit: whether the line breaks before the string, and where its parts line up.",
         {"AlwaysBreakBeforeMultilineStrings", "AlignAfterOpenBracket", "ContinuationIndentWidth", "ColumnLimit",
          "BinPackArguments", "BraceWrapping.AfterFunction"}},
        {"long comment", "name_part = SOME_LONG(SOME_LONG, SOME); // SOME comment that reaches past the column limit",
         "How the code before a trailing comment too long for its line breaks; the comment itself is never broken.",
         {"ColumnLimit", "ContinuationIndentWidth", "AlignAfterOpenBracket"}},
        {"long condition", "if (SOME_LONG && SOME_LONG || SOME_LONG && SOME_LONG) {\n  SOME;\n}",
         "How a condition too long for one line breaks around `&&` and `||`.",
         {"BreakBeforeBinaryOperators", "AlignOperands", "ColumnLimit", "ContinuationIndentWidth",
          "BraceWrapping.AfterControlStatement"}},
        {"long conditional chain",
         "type name(void) {\n  return SOME_LONG == SOME ? SOME_LONG(SOME_LONG)\n         : SOME_LONG == name ? SOME_LONG\n"
         "                             : SOME_LONG(SOME_LONG, SOME_LONG);\n}",
         "A chain of conditional expressions returned, too long for any column limit and written broken before each "
         "`?` and `:` (kept so where the style has no limit): whether the lines break before or after `?` and `:`, "
         "and where the operators and the operands after them line up.",
         {"BreakBeforeTernaryOperators", "AlignOperands", "ContinuationIndentWidth", "ColumnLimit",
          "AlignAfterOpenBracket", "BraceWrapping.AfterFunction"}},
        {"long enum",
         "enum name {\n  name_part,\n  name_long_part = SOME,\n  SOME_LONG,\n  SOME_LONG,\n  SOME_LONG,\n  SOME_LONG\n};",
         "An enumeration too long for one line: one enumerator a line, and where its brace goes.",
         {"BraceWrapping.AfterEnum", "AllowShortEnumsOnASingleLine"}},
        {"long function call", "name(SOME_LONG, SOME_LONG, SOME_LONG, SOME_LONG, SOME_LONG);",
         "How the arguments of a call too long for one line are laid out, and where lines end.",
         {"AlignAfterOpenBracket", "BinPackArguments", "AllowAllArgumentsOnNextLine", "ColumnLimit",
          "ContinuationIndentWidth", "SpaceBeforeParens"}},
        {"long function declaration", "type name(type SOME_LONG, type SOME_LONG, type SOME_LONG, type SOME_LONG);",
         "How the parameters of a declaration too long for one line are laid out.",
         {"AlignAfterOpenBracket", "BinPackParameters", "AllowAllParametersOfDeclarationOnNextLine", "ColumnLimit",
          "ContinuationIndentWidth", "IndentWrappedFunctionNames", "BreakAfterReturnType"}},
        {"long loop condition",
         "type name(void) {\n  while (SOME_LONG && SOME_LONG || SOME_LONG && SOME_LONG ||\n         SOME_LONG) {\n"
         "    SOME;\n  }\n}",
         "A loop in a function whose condition is too long for one line: its later lines line up after `while (`, "
         "past a tab stop beyond the loop's own indentation, and whether tabs fill the way there (tabs for "
         "continuation, tabs everywhere) or blanks after the loop's indentation (tabs with blanks for alignment, "
         "tabs for indentation alone).",
         {"UseTab", "BreakBeforeBinaryOperators", "AlignOperands", "ColumnLimit", "BraceWrapping.AfterControlStatement"}},
        {"long return type", "static struct SOME_LONG SOME_LONG(type SOME_LONG, type SOME_LONG);",
         "A declaration whose return type and name leave no room for its parameters: the return type on a line of its "
         "own, or the parameters broken.",
         {"PenaltyReturnTypeOnItsOwnLine", "BreakAfterReturnType", "AlignAfterOpenBracket", "IndentWrappedFunctionNames",
          "ColumnLimit", "ContinuationIndentWidth"}},
        {"long string", "name_part(SOME, \"a string literal as long as a message of some length, or longer\");",
         "A call with a string too long for its line: where the line breaks around it; the string itself is never split.",
         {"AlignAfterOpenBracket", "ColumnLimit", "ContinuationIndentWidth"}},
        {"long ternary", "name = SOME ? SOME_LONG + SOME_LONG + SOME_LONG : SOME_LONG + SOME_LONG + SOME_LONG;",
         "How a conditional expression too long for one line breaks around `?` and `:`.",
         {"BreakBeforeTernaryOperators", "AlignOperands", "ContinuationIndentWidth", "ColumnLimit"}},
        {"macro", "#define name(argument) \\\n  do { \\\n    SOME(argument); \\\n  } while (0)",
         "A macro over several lines: where the backslashes that continue its lines stand.",
         {"AlignEscapedNewlines", "BraceWrapping.AfterControlStatement", "ColumnLimit"}},
        {"macro definitions", "#define name SOME\n#define name_long_part SOME\n#define name_part(argument) (argument)",
         "Whether the bodies of macros defined on neighbouring lines line up.",
         {"AlignConsecutiveMacros"}},
        {"mixed pointers", "type* name;\ntype* name_part;\ntype *name_long_part;",
         "Declarations whose `*` lean two ways, most of them on the type: all lean as most do where the style takes "
         "the leaning from each file, all the style's own way otherwise.",
         {"DerivePointerAlignment", "PointerAlignment", "AlignConsecutiveDeclarations"}},
        {"multiline string",
         "name = \"a string \"\n       \"in two parts\";\nname_part(SOME, \"a string \"\n                \"in two parts\");",
         "Strings written in parts on lines of their own, after an `=` and as an argument: whether the line breaks "
         "before them, and how far their parts are then indented.",
         {"AlwaysBreakBeforeMultilineStrings", "ContinuationIndentWidth", "AlignAfterOpenBracket"}},
        {"nested blocks",
         "if (SOME) {\n  while (SOME) {\n    if (SOME) {\n      while (SOME) {\n        SOME;\n        SOME;\n      }\n    }\n  }\n}",
         "Blocks four deep: how each level is indented, and where tabs take over from blanks.",
         {"BraceWrapping.AfterControlStatement", "AllowShortBlocksOnASingleLine"}},
        {"pointer", "type *name = &SOME;", "Where the `*` of a pointer declaration leans: on the type, on the name, or neither.",
         {"PointerAlignment", "DerivePointerAlignment"}},
        {"pointer qualifiers", "type *const *name = SOME;",
         "A pointer to a constant pointer: whether a blank stands on both sides of the `const` between the two `*`, "
         "where the pointers' leaning alone would leave it on one.",
         {"PointerAlignment", "DerivePointerAlignment", "SpaceAroundPointerQualifiers"}},
        {"preprocessor", "#ifdef name\n#define name_part SOME\n#endif",
         "Whether directives inside a conditional block are indented, and how.",
         {"IndentPPDirectives", "PPIndentWidth"}},
        {"return", "return SOME;", "A return statement.", {}},
        {"short case label", "switch (SOME) {\ncase SOME: SOME; break;\ndefault: return SOME;\n}",
         "Cases whose statements their author wrote on the line of their label: kept so where the style joins short "
         "cases, split otherwise.",
         {"AllowShortCaseLabelsOnASingleLine", "IndentCaseLabels", "BraceWrapping.AfterControlStatement"}},
        {"short function", "type name(type argument) { return SOME; }",
         "A function whose body is one short statement: on one line or not.",
         {"AllowShortFunctionsOnASingleLine", "BraceWrapping.AfterFunction", "BreakAfterReturnType"}},
        {"short if", "if (SOME) SOME;", "A condition without braces: whether its statement may share its line.",
         {"AllowShortIfStatementsOnASingleLine"}},
        {"short if else", "if (SOME) SOME;\nelse if (SOME) SOME;\nelse SOME;",
         "A chain of conditions without braces: whether the first statement, or every one, may share the line of its "
         "`if` or `else`.",
         {"AllowShortIfStatementsOnASingleLine"}},
        {"short loop", "while (SOME) SOME;", "A loop without braces: whether its statement may share its line.",
         {"AllowShortLoopsOnASingleLine"}},
        {tarnel_engine::statement_macros().structure,
         tarnel_engine::macros_form_for(tarnel_engine::statement_macros(), {"DECLARE_ITEM"}),
         "The macros the project uses as whole statements, without a semicolon after them, one each: their names, "
         "and that the statement after each stays on a line of its own.",
         {"StatementMacros", "SpaceBeforeParens"}, tarnel_engine::macros_expression(tarnel_engine::statement_macros()),
         "Its form is a function whose body holds one use of each macro the project uses as a statement, each "
         "followed by a statement; the name that opens each use is the macro's. Add a use to add a macro, take one "
         "out to remove it, and keep the tokens around the names as they are:"},
        {"struct", "struct name {\n  type name;\n  type *name_part;\n};", "A structure: where its brace goes.",
         {"BraceWrapping.AfterStruct", "PointerAlignment"}},
        {"subscript", "name[SOME] = name_part[SOME][SOME];",
         "Indexing into arrays: blanks inside the square brackets and before them.",
         {"SpacesInSquareBrackets", "SpaceBeforeSquareBrackets"}},
        {"switch",
         "switch (SOME) {\ncase SOME:\n  SOME;\n  break;\ncase SOME: {\n  SOME;\n  break;\n}\ndefault:\n  SOME;\n}",
         "A switch: whether case labels are indented, and how a case with a block is laid out.",
         {"IndentCaseLabels", "IndentCaseBlocks", "BraceWrapping.AfterCaseLabel", "AllowShortCaseLabelsOnASingleLine",
          "SpaceBeforeCaseColon", "BraceWrapping.AfterControlStatement"}},
        {"ternary", "name = SOME ? SOME : SOME;", "A conditional expression that fits on its line.", {}},
        {"trailing comment continued", "int name_long_part; // SOME\n                    // SOME",
         "A trailing comment continued on a line of its own, which the engine lines up under the first: whether tabs "
         "fill the way there (tabs for continuation, tabs with blanks only for alignment, tabs everywhere) or blanks "
         "(tabs for indentation alone, or none).",
         {"UseTab", "AlignTrailingComments"}},
        {"trailing comments", "type name; // SOME\n\ntype name_long_part; // SOME",
         "Trailing comments with a blank line between them: whether they still line up.",
         {"AlignTrailingComments", "AlignTrailingComments.OverEmptyLines", "SpacesBeforeTrailingComments"}},
        {"trailing comments after a long comment",
         "// SOME_LONG comment on a line of its own, longer than any column limit: SOME_LONG SOME_LONG\n"
         "type name;// SOME",
         "A trailing comment its author set right after the code, below a comment too long for any column limit: "
         "under a limit the engine sets it the style's distance away even where it leaves other comments where "
         "they stand (it does so to every trailing comment after such a line).",
         {"SpacesBeforeTrailingComments", "AlignTrailingComments", "ColumnLimit"}},
        {"typedef", "typedef struct {\n  type name;\n} name;", "A type definition of an unnamed structure.",
         {"BraceWrapping.AfterStruct"}},
        {"union", "union name {\n  type name;\n  type name_part;\n};", "A union: where its brace goes.",
         {"BraceWrapping.AfterUnion"}},
        {"very long assignment",
         "name = SOME_LONG + SOME_LONG * SOME_LONG - SOME_LONG + SOME_LONG * SOME_LONG - SOME_LONG;",
         "An expression too long for the widest column limit: before or after which operators it breaks, whether "
         "its operands line up, and how far its later lines are indented.",
         {"BreakBeforeBinaryOperators", "AlignOperands", "ContinuationIndentWidth", "ColumnLimit"}},
        {"while", "while (SOME) {\n  SOME;\n}", "A while loop: the blanks around its condition and where its braces go.",
         {"BraceWrapping.AfterControlStatement", "SpaceBeforeParens", "SpacesInParens"}},
    };
}

// The C family's entries that other languages' catalogues take as they stand ("if", "while",
// "long assignment", ...): the same code, showing the same rules.
tarnel_engine::structure c_family_structure(std::string const& name) {
    static tarnel_engine::structure_catalogue const catalogue = c_family_structures();
    return tarnel_engine::structure_named(name, catalogue);
}
