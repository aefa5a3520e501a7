// Name, keywords (Java 21, with the contextual ones and the literals), default extensions and
// structures.
#include "java_language.h"

#include "java_structures.h"

tarnel_engine::language_description const& java_language() {
    static tarnel_engine::language_description const language = {
        "Java",
        {"abstract", "assert", "boolean", "break", "byte", "case", "catch", "char", "class", "const", "continue",
         "default", "do", "double", "else", "enum", "extends", "final", "finally", "float", "for", "goto", "if",
         "implements", "import", "instanceof", "int", "interface", "long", "native", "new", "package", "private",
         "protected", "public", "return", "short", "static", "strictfp", "super", "switch", "synchronized", "this",
         "throw", "throws", "transient", "try", "void", "volatile", "while", "true", "false", "null", "var", "yield",
         "record", "sealed", "non-sealed", "permits", "when", "module", "open", "opens", "exports", "requires",
         "transitive", "uses", "provides", "with", "to"},
        {"java"},
        java_structures(),
        tarnel_engine::lexed_as::java,
    };
    return language;
}
