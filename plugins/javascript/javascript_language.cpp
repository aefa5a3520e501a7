// Name, keywords (ECMAScript 2024 with its contextual words and literals, and TypeScript's),
// default extensions (the modules and JSX of both languages) and structures.
#include "javascript_language.h"

#include "javascript_structures.h"

tarnel_engine::language_description const& javascript_language() {
    static tarnel_engine::language_description const language = {
        "JavaScript",
        {"async", "await", "break", "case", "catch", "class", "const", "continue", "debugger", "default", "delete",
         "do", "else", "export", "extends", "finally", "for", "from", "function", "get", "if", "import", "in",
         "instanceof", "let", "new", "of", "return", "set", "static", "super", "switch", "this", "throw", "try",
         "typeof", "var", "void", "while", "with", "yield", "true", "false", "null", "undefined",
         // TypeScript
         "abstract", "any", "as", "asserts", "bigint", "boolean", "declare", "enum", "implements", "infer",
         "interface", "is", "keyof", "module", "namespace", "never", "number", "object", "override", "private",
         "protected", "public", "readonly", "satisfies", "string", "symbol", "type", "unique", "unknown"},
        {"js", "mjs", "cjs", "jsx", "ts", "mts", "cts", "tsx"},
        javascript_structures(),
        tarnel_engine::lexed_as::javascript,
    };
    return language;
}
