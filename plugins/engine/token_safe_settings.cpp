// One place that lists every token-editing option of clang-format 19.
#include "token_safe_settings.h"

namespace tarnel_engine {

void make_token_safe(clang::format::FormatStyle& style) {
    using clang::format::FormatStyle;
    style.DisableFormat = false;
    style.SortIncludes = FormatStyle::SI_Never;
    style.IncludeStyle.IncludeBlocks = clang::tooling::IncludeStyle::IBS_Preserve;
    style.SortUsingDeclarations = FormatStyle::SUD_Never;
    style.InsertBraces = false;
    style.RemoveBracesLLVM = false;
    style.FixNamespaceComments = false;
    style.ReflowComments = false;
    style.QualifierAlignment = FormatStyle::QAS_Leave;
    style.RemoveSemicolon = false;
    style.RemoveParentheses = FormatStyle::RPS_Leave;
    style.IntegerLiteralSeparator = FormatStyle::IntegerLiteralSeparatorStyle();
    style.InsertTrailingCommas = FormatStyle::TCS_None;
    style.JavaScriptQuotes = FormatStyle::JSQS_Leave;
    style.BreakStringLiterals = false;
    style.InsertNewlineAtEOF = false;
    style.KeepEmptyLines.AtEndOfFile = true;
    style.ObjCPropertyAttributeOrder.clear();
    // Read as an older standard, the engine splits what later ones made single tokens: digit
    // separators, encoding prefixes, digraphs. The latest standard reads every older program alike
    // (a few old names that became keywords aside).
    style.Standard = FormatStyle::LS_Latest;
    // Java has no pointers or references, yet the engine takes a `*` or `&` in the rules of a
    // switch expression for one (`case A -> a* b;`): there it is an operator, with a blank on each
    // side.
    if (style.Language == FormatStyle::LK_Java) {
        style.PointerAlignment = FormatStyle::PAS_Middle;
        style.ReferenceAlignment = FormatStyle::RAS_Pointer;
        style.DerivePointerAlignment = false;
    }
}

std::vector<std::string> const& names_of_token_safe_settings() {
    static std::vector<std::string> const names = {
        "DisableFormat", "SortIncludes", "IncludeBlocks", "SortUsingDeclarations", "InsertBraces",
        "RemoveBracesLLVM", "FixNamespaceComments", "ReflowComments", "QualifierAlignment", "RemoveSemicolon",
        "RemoveParentheses", "IntegerLiteralSeparator", "InsertTrailingCommas", "JavaScriptQuotes",
        "BreakStringLiterals", "InsertNewlineAtEOF", "KeepEmptyLines", "ObjCPropertyAttributeOrder", "Standard"};
    return names;
}

clang::format::FormatStyle::LanguageKind engine_kind_of(lexed_as language) {
    using kind = clang::format::FormatStyle;
    return of_language(language, kind::LK_Cpp, kind::LK_Java, kind::LK_Proto, kind::LK_ObjC, kind::LK_CSharp,
                       kind::LK_JavaScript);
}

std::vector<std::string> const& names_of_predefined_styles(lexed_as language) {
    // GNU's and Microsoft's styles are those of C and C++ whatever the language: for the others they
    // are only a further start of the search.
    static std::vector<std::string> const c_family = {"LLVM", "Google", "Chromium", "Mozilla", "WebKit", "GNU", "Microsoft"};
    static std::vector<std::string> const java = {"Google", "Chromium", "Mozilla", "LLVM", "WebKit"};
    static std::vector<std::string> const protocol_buffers = {"Google", "LLVM", "Mozilla", "WebKit"};
    static std::vector<std::string> const objective_c = {"Google", "WebKit", "LLVM", "Chromium", "Mozilla"};
    static std::vector<std::string> const csharp = {"Microsoft", "Google", "LLVM", "Mozilla", "WebKit"};
    static std::vector<std::string> const javascript = {"Google", "Chromium", "Mozilla", "WebKit", "LLVM"};
    return of_language(language, c_family, java, protocol_buffers, objective_c, csharp, javascript);
}

clang::format::FormatStyle token_safe_predefined_style(std::string const& name, lexed_as language) {
    clang::format::FormatStyle style = clang::format::getLLVMStyle(engine_kind_of(language));
    clang::format::getPredefinedStyle(name, engine_kind_of(language), &style);
    make_token_safe(style);
    return style;
}

}  // namespace tarnel_engine
