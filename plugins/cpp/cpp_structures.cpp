// Each structure: its name, its tokens (written out in one style; only their order matters), what
// it shows a reader, and the option groups of the inference its form decides.
#include "cpp_structures.h"

tarnel_engine::structure_catalogue cpp_only_structures() {
    return {
        {"access specifiers",
         "class name {\npublic:\n  name();\n  ~name();\n\nprotected:\n  type name_part();\n\nprivate:\n  type name_long_part;\n};",
         "How far `public:`, `protected:` and `private:` are indented, and the blank lines around them.",
         {"AccessModifierOffset", "IndentAccessModifiers", "EmptyLineBeforeAccessModifier", "BraceWrapping.AfterClass"}},
        {"class", "class name {\n  type name;\n  type name_part(type argument);\n};", "A class: where its brace goes.",
         {"BraceWrapping.AfterClass", "SpaceBeforeParens"}},
        {"constructor initializers",
         "name::name(type argument) : name_part(argument), name_long_part(SOME) {\n  SOME;\n}",
         "How the member initializers of a constructor are laid out: where the colon and the commas go.",
         {"BreakConstructorInitializers", "PackConstructorInitializers", "ConstructorInitializerIndentWidth",
          "SpaceBeforeCtorInitializerColon", "BraceWrapping.AfterFunction"}},
        {"destructors", "name::~name() {}\nname_part::~name_part() { SOME; }",
         "Destructors defined outside their class, one with an empty body and one with a one-statement body: on "
         "one line or not, where no return type stands on a line of its own to keep them apart.",
         {"AllowShortFunctionsOnASingleLine", "BraceWrapping.SplitEmptyFunction", "BraceWrapping.AfterFunction",
          "SpaceInEmptyBlock"}},
        {"empty class", "class name {};", "A class with an empty body.",
         {"BraceWrapping.SplitEmptyRecord", "BraceWrapping.AfterClass", "SpaceInEmptyBlock"}},
        {"inheritance", "class name : public type, private name_part {\n  type name;\n};",
         "The base classes of a class: the blank before the colon and where lines break.",
         {"BreakInheritanceList", "SpaceBeforeInheritanceColon", "BraceWrapping.AfterClass"}},
        {"initializer list", "type name{SOME, SOME};\nname = type{SOME};",
         "Brace initialization: the blanks inside the braces and before them.",
         {"Cpp11BracedListStyle", "SpaceBeforeCpp11BracedList"}},
        {"inline method", "class name {\n  type name_part() const { return SOME; }\n};",
         "A member function defined in its class with a one-statement body: on one line or not.",
         {"AllowShortFunctionsOnASingleLine", "BraceWrapping.AfterFunction", "BraceWrapping.AfterClass"}},
        {"kept line breaks in constructor initializers",
         "name::name(type argument)\n    : name_part(argument),\n      name_long_part(SOME) {}",
         "A constructor with an empty body whose author broke the line before its initializers and between them: "
         "kept so where the style has no column limit, and then where the colon and the commas go, how far the "
         "initializers are indented, and whether the empty body joins their line, as it does where they may share a "
         "line with the parameters.",
         {"BreakConstructorInitializers", "PackConstructorInitializers", "ConstructorInitializerIndentWidth",
          "ColumnLimit", "AllowShortFunctionsOnASingleLine", "BraceWrapping.AfterFunction",
          "BraceWrapping.SplitEmptyFunction"}},
        {"lambda",
         "auto name = [&](type argument) { return SOME; };\nname_part(SOME, [](type argument) {\n  SOME;\n  SOME;\n});",
         "A lambda: a short one on one line, and how the body of a longer one is indented.",
         {"AllowShortLambdasOnASingleLine", "BraceWrapping.BeforeLambdaBody", "LambdaBodyIndentation"}},
        {"long constructor initializers",
         "name::name(type SOME_LONG, type SOME_LONG) : name_part(SOME_LONG), name(SOME_LONG) {\n  SOME;\n}\n"
         "name::name(type SOME_LONG) : name_part(SOME_LONG), name(SOME_LONG), name_long_part(SOME_LONG), name_part(SOME), "
         "name(SOME) {\n  SOME;\n}",
         "Two constructors whose initializers do not fit on the line of their parameters, the first's together on "
         "the next line under any column limit and the second's on no line: where the colon and the commas go, "
         "whether the initializers share lines, and how far they are indented.",
         {"BreakConstructorInitializers", "PackConstructorInitializers", "ConstructorInitializerIndentWidth",
          "ColumnLimit", "BraceWrapping.AfterFunction"}},
        {"long calls in a loop",
         "type name(type argument) {\n  name::type name;\n  char name_part = SOME;\n  for (SOME; SOME; SOME) {\n"
         "    name_part(SOME_LONG, SOME_LONG, name_part);\n    name_long_part(SOME_LONG, SOME_LONG, SOME_LONG, SOME);\n"
         "    name_long_part(SOME_LONG, SOME_LONG, SOME_LONG, SOME_LONG, name_part);\n  }\n}",
         "Calls two blocks deep in a function, each of them near one of the column limits, after declarations that "
         "may line up: where tabs indent them, how wide a tab is decides which of them break.",
         {"Indentation", "UseTab", "IndentWidth", "ColumnLimit", "AlignAfterOpenBracket", "BinPackArguments",
          "ContinuationIndentWidth", "AlignConsecutiveDeclarations", "BraceWrapping.AfterFunction"}},
        {"long template function",
         "template <typename type>\nstatic type SOME_LONG(type SOME_LONG, type *name_part) {\n  return SOME;\n}",
         "A function template whose declaration is too long for its line: whether its template head keeps a line of "
         "its own or goes before the return type, and whether the return type or the parameters break.",
         {"BreakTemplateDeclarations", "BreakAfterReturnType", "PenaltyReturnTypeOnItsOwnLine", "AlignAfterOpenBracket",
          "ColumnLimit", "ContinuationIndentWidth", "BraceWrapping.AfterFunction", "PointerAlignment"}},
        {"namespace", "namespace name {\nnamespace name_part {\ntype name();\n}\ntype name_long_part();\n}",
         "Namespaces: where their braces go and whether their content is indented.",
         {"NamespaceIndentation", "BraceWrapping.AfterNamespace"}},
        {"nested class", "class name {\n  class name_part {\n  public:\n    type name;\n  };\n};",
         "A class inside a class: how far its `public:` steps back from its members. Two steps in, an offset "
         "further back than one step shows too, which a class at the top level lays out as no offset at all.",
         {"AccessModifierOffset", "IndentAccessModifiers", "BraceWrapping.AfterClass"}},
        {"range for", "for (type &name : SOME) {\n  SOME;\n}", "A range-based for loop: the blanks around its colon.",
         {"SpaceBeforeRangeBasedForLoopColon", "ReferenceAlignment", "PointerAlignment",
          "BraceWrapping.AfterControlStatement"}},
        {"reference", "type &name = SOME;\ntype name_part(type const &argument);",
         "Where the `&` of a reference leans: on the type, on the name, or neither.",
         {"ReferenceAlignment", "PointerAlignment", "DerivePointerAlignment"}},
        {"template",
         "template <typename type> type name(type argument);\ntemplate <typename type> class name {\n  type name_part;\n};",
         "Templates: whether the template head has a line of its own, and the blanks in its angle brackets.",
         {"BreakTemplateDeclarations", "SpaceAfterTemplateKeyword", "SpacesInAngles", "BraceWrapping.AfterClass"}},
        {"try catch", "try {\n  SOME;\n} catch (type &name) {\n  SOME;\n} catch (...) {\n  SOME;\n}",
         "Exception handling: whether `catch` shares the line of the closing brace.",
         {"BraceWrapping.BeforeCatch", "BraceWrapping.AfterControlStatement", "ReferenceAlignment"}},
    };
}
