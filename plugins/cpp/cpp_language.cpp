// Name, keywords (C++23, with the identifiers of special meaning), default extensions and
// structures (those shared with C, then those of C++ alone, in name order).
#include "cpp_language.h"

#include "c_family_structures.h"
#include "cpp_structures.h"

#include <algorithm>

namespace {

tarnel_engine::structure_catalogue all_cpp_structures() {
    tarnel_engine::structure_catalogue structures = c_family_structures();
    tarnel_engine::structure_catalogue const own = cpp_only_structures();
    structures.insert(structures.end(), own.begin(), own.end());
    std::sort(structures.begin(), structures.end(), [](auto const& a, auto const& b) { return a.name < b.name; });
    return structures;
}

}  // namespace

tarnel_engine::language_description const& cpp_language() {
    static tarnel_engine::language_description const language = {
        "C++",
        {"alignas", "alignof", "and", "and_eq", "asm", "auto", "bitand", "bitor", "bool", "break", "case", "catch",
         "char", "char8_t", "char16_t", "char32_t", "class", "compl", "concept", "const", "consteval", "constexpr",
         "constinit", "const_cast", "continue", "co_await", "co_return", "co_yield", "decltype", "default", "delete",
         "do", "double", "dynamic_cast", "else", "enum", "explicit", "export", "extern", "false", "float", "for",
         "friend", "goto", "if", "inline", "int", "long", "mutable", "namespace", "new", "noexcept", "not", "not_eq",
         "nullptr", "operator", "or", "or_eq", "private", "protected", "public", "register", "reinterpret_cast",
         "requires", "return", "short", "signed", "sizeof", "static", "static_assert", "static_cast", "struct",
         "switch", "template", "this", "thread_local", "throw", "true", "try", "typedef", "typeid", "typename",
         "union", "unsigned", "using", "virtual", "void", "volatile", "wchar_t", "while", "xor", "xor_eq", "final",
         "override", "import", "module"},
        {"cpp", "cc", "cxx", "c++", "hpp", "hh", "hxx", "h++", "h"},
        all_cpp_structures(),
        tarnel_engine::lexed_as::latest_cpp,
    };
    return language;
}
