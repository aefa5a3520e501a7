// Name, keywords (C# 12, with the contextual ones and the literals), default extensions and
// structures.
#include "csharp_language.h"

#include "csharp_structures.h"

tarnel_engine::language_description const& csharp_language() {
    static tarnel_engine::language_description const language = {
        "C#",
        {"abstract", "as", "base", "bool", "break", "byte", "case", "catch", "char", "checked", "class", "const",
         "continue", "decimal", "default", "delegate", "do", "double", "else", "enum", "event", "explicit", "extern",
         "false", "finally", "fixed", "float", "for", "foreach", "goto", "if", "implicit", "in", "int", "interface",
         "internal", "is", "lock", "long", "namespace", "new", "null", "object", "operator", "out", "override",
         "params", "private", "protected", "public", "readonly", "ref", "return", "sbyte", "sealed", "short",
         "sizeof", "stackalloc", "static", "string", "struct", "switch", "this", "throw", "true", "try", "typeof",
         "uint", "ulong", "unchecked", "unsafe", "ushort", "using", "virtual", "void", "volatile", "while", "add",
         "and", "alias", "ascending", "async", "await", "by", "descending", "dynamic", "equals", "file", "from",
         "get", "global", "group", "init", "into", "join", "let", "managed", "nameof", "nint", "not", "notnull",
         "nuint", "on", "or", "orderby", "partial", "record", "remove", "required", "scoped", "select", "set",
         "unmanaged", "value", "var", "when", "where", "with", "yield"},
        {"cs"},
        csharp_structures(),
        tarnel_engine::lexed_as::csharp,
    };
    return language;
}
