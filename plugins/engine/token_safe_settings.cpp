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
}

std::vector<std::string> const& names_of_token_safe_settings() {
    static std::vector<std::string> const names = {
        "DisableFormat", "SortIncludes", "IncludeBlocks", "SortUsingDeclarations", "InsertBraces",
        "RemoveBracesLLVM", "FixNamespaceComments", "ReflowComments", "QualifierAlignment", "RemoveSemicolon",
        "RemoveParentheses", "IntegerLiteralSeparator", "InsertTrailingCommas", "JavaScriptQuotes",
        "BreakStringLiterals", "InsertNewlineAtEOF", "KeepEmptyLines", "ObjCPropertyAttributeOrder", "Standard"};
    return names;
}

std::vector<std::string> const& names_of_predefined_styles() {
    static std::vector<std::string> const names = {"LLVM", "Google", "Chromium", "Mozilla", "WebKit", "GNU", "Microsoft"};
    return names;
}

clang::format::FormatStyle token_safe_predefined_style(std::string const& name) {
    clang::format::FormatStyle style = clang::format::getLLVMStyle();
    clang::format::getPredefinedStyle(name, clang::format::FormatStyle::LK_Cpp, &style);
    make_token_safe(style);
    return style;
}

}  // namespace tarnel_engine
