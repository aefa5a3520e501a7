// Name, keywords (C's, the `@` keywords and the contextual ones of Objective-C), default extensions
// and structures (C's, then those of Objective-C alone, in name order).
#include "objc_language.h"

#include "c_family_structures.h"
#include "objc_only_structures.h"

#include <algorithm>

namespace {

tarnel_engine::structure_catalogue all_objc_structures() {
    tarnel_engine::structure_catalogue structures = c_family_structures();
    tarnel_engine::structure_catalogue const own = objc_only_structures();
    structures.insert(structures.end(), own.begin(), own.end());
    std::sort(structures.begin(), structures.end(), [](auto const& a, auto const& b) { return a.name < b.name; });
    return structures;
}

}  // namespace

tarnel_engine::language_description const& objc_language() {
    static tarnel_engine::language_description const language = {
        "Objective-C",
        {"auto", "bool", "break", "case", "char", "const", "continue", "default", "do", "double", "else", "enum",
         "extern", "false", "float", "for", "goto", "if", "inline", "int", "long", "register", "restrict", "return",
         "short", "signed", "sizeof", "static", "struct", "switch", "true", "typedef", "union", "unsigned", "void",
         "volatile", "while", "@interface", "@implementation", "@protocol", "@end", "@class", "@property",
         "@synthesize", "@dynamic", "@selector", "@encode", "@try", "@catch", "@finally", "@throw", "@synchronized",
         "@autoreleasepool", "@optional", "@required", "@private", "@protected", "@public", "@package",
         "@available", "id", "self", "super", "nil", "Nil", "YES", "NO", "SEL", "BOOL", "IMP", "instancetype",
         "in", "out", "inout", "oneway", "bycopy", "byref", "nonatomic", "atomic", "strong", "weak", "assign",
         "copy", "retain", "readonly", "readwrite", "nullable", "nonnull", "__block", "__weak", "__strong",
         "__kindof"},
        {"m", "mm"},
        all_objc_structures(),
        tarnel_engine::lexed_as::objective_c,
    };
    return language;
}
