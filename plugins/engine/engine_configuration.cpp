// Options are compared as the engine writes them: one top-level entry of its configuration text,
// with the lines nested under it, per option.
#include "engine_configuration.h"

#include "inference_cache.h"
#include "option_moves.h"
#include "revision.h"
#include "token_safe_settings.h"

#include <clang/Format/Format.h>
#include <llvm/Support/MemoryBuffer.h>
#include <llvm/Support/SourceMgr.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <sstream>

namespace tarnel_engine {

namespace {

bool is_top_level_entry(std::string const& line) {
    return !line.empty() && std::isalpha(static_cast<unsigned char>(line[0])) && line.find(':') != std::string::npos;
}

std::string key_of(std::string const& line) {
    std::string key = line.substr(0, line.find(':'));
    while (!key.empty() && (key.back() == ' ' || key.back() == '\t'))
        key.pop_back();
    return key;
}

// Option name -> its entry (the line and the lines nested under it), in the order of the text.
std::vector<std::pair<std::string, std::string>> entries_of(std::string const& text) {
    std::vector<std::pair<std::string, std::string>> entries;
    std::istringstream lines(text);
    std::string line;
    bool inside = false;
    while (std::getline(lines, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (is_top_level_entry(line)) {
            entries.emplace_back(key_of(line), line + "\n");
            inside = true;
        } else if (inside && !line.empty() && (line[0] == ' ' || line[0] == '\t')) {
            entries.back().second += line + "\n";
        } else {
            inside = false;
        }
    }
    return entries;
}

std::map<std::string, std::string> options_in(clang::format::FormatStyle const& style) {
    std::map<std::string, std::string> options;
    for (auto& [key, entry] : entries_of(clang::format::configurationAsText(style)))
        options[key] = std::move(entry);
    return options;
}

// The options a configuration text names itself, in its order, each once; its documents'
// language and the style it is based on are no options.
std::vector<std::string> options_named_in(std::string const& configuration) {
    std::vector<std::string> names;
    for (auto const& entry : entries_of(configuration))
        if (entry.first != "Language" && entry.first != "BasedOnStyle" &&
            std::find(names.begin(), names.end(), entry.first) == names.end())
            names.push_back(entry.first);
    return names;
}

// An option that names a preset of another, and that other: the engine writes the preset out in
// full, so a style may hold the same layout under another preset name ("Custom").
std::string expansion_of(std::string const& option) {
    if (option == "BreakBeforeBraces")
        return "BraceWrapping";
    if (option == "SpacesInParens")
        return "SpacesInParensOptions";
    return std::string();
}

bool same_option(std::map<std::string, std::string> const& one, std::map<std::string, std::string> const& other,
                 std::string const& option) {
    auto const in_one = one.find(option), in_other = other.find(option);
    if (in_one == one.end() || in_other == other.end())
        return false;
    if (in_one->second == in_other->second)
        return true;
    std::string const expanded = expansion_of(option);
    return !expanded.empty() && one.count(expanded) && other.count(expanded) &&
           one.at(expanded) == other.at(expanded);
}

// Why the engine's parser cannot read the configuration, in its own words and without printing
// them; empty when it reads it.
std::string why_unreadable(std::string const& configuration, lexed_as language) {
    clang::format::FormatStyle style = clang::format::getLLVMStyle(engine_kind_of(language));
    std::string reason;
    auto const told = [](llvm::SMDiagnostic const& diagnostic, void* context) {
        std::string& said = *static_cast<std::string*>(context);
        if (said.empty())
            said = diagnostic.getMessage().str() + " (line " + std::to_string(diagnostic.getLineNo()) + ")";
    };
    std::error_code const error = clang::format::parseConfiguration(
        llvm::MemoryBufferRef(configuration, "configuration"), &style, false, told, &reason);
    if (!error)
        return std::string();
    return reason.empty() ? error.message() : reason;
}

// The name the engine's configuration gives the kind of source a language is formatted as.
char const* configuration_name_of(lexed_as language) {
    switch (engine_kind_of(language)) {
    case clang::format::FormatStyle::LK_Java:
        return "Java";
    case clang::format::FormatStyle::LK_Proto:
        return "Proto";
    case clang::format::FormatStyle::LK_ObjC:
        return "ObjC";
    case clang::format::FormatStyle::LK_CSharp:
        return "CSharp";
    case clang::format::FormatStyle::LK_JavaScript:
        return "JavaScript";
    default:
        return "Cpp";
    }
}

// An option the engine reads only when it formats another kind of source than the language's
// (Java, JavaScript, JSON, Objective-C, TableGen, Verilog for C and C++; Objective-C's own are
// Objective-C's): in an exported configuration such an option would say nothing of the style.
bool of_other_languages_only(std::string const& option, lexed_as language) {
    static char const* const prefixes[] = {"Java", "ObjC", "TableGen", "AlignConsecutiveTableGen", "Verilog"};
    static char const* const java_names[] = {"BreakAfterJavaFieldAnnotations", "SortJavaStaticImport"};
    static char const* const names[] = {"SpaceBeforeJsonColon", "BreakArrays", "InsertTrailingCommas"};
    bool const java = engine_kind_of(language) == clang::format::FormatStyle::LK_Java;
    bool const objective_c = engine_kind_of(language) == clang::format::FormatStyle::LK_ObjC;
    if (engine_kind_of(language) == clang::format::FormatStyle::LK_JavaScript && option.rfind("JavaScript", 0) == 0)
        return false;
    if (std::find(std::begin(java_names), std::end(java_names), option) != std::end(java_names))
        return !java;
    for (char const* prefix : prefixes)
        if (option.rfind(prefix, 0) == 0)
            return !(java && std::string(prefix) == "Java") && !(objective_c && std::string(prefix) == "ObjC");
    return std::find(std::begin(names), std::end(names), option) != std::end(names);
}

// An option that tells only how includes are sorted and grouped: with the sorting left out, it
// is left out with it (no form could show it).
bool serves_include_sorting(std::string const& option) {
    return option == "IncludeCategories" || option == "IncludeIsMainRegex" || option == "IncludeIsMainSourceRegex";
}

bool forced(std::string const& option) {
    std::vector<std::string> const& names = names_of_token_safe_settings();
    return std::find(names.begin(), names.end(), option) != names.end();
}

}  // namespace

std::string engine_configuration_of(std::string const& addon, language_description const& language) {
    std::string text;
    try {
        text = clang::format::configurationAsText(inference_cache::shared().style_for(addon, language));
    } catch (...) {
        return std::string();
    }
    std::string decided, forced_ones;
    for (auto const& [key, entry] : entries_of(text))
        if (key != "Language" && !of_other_languages_only(key, language.lexing) && !serves_include_sorting(key))
            (forced(key) ? forced_ones : decided) += entry;
    std::string const options =
        decided + "# Forced by Style Tarnel whatever the style, so that only white space changes:\n" + forced_ones;
    std::string const heading =
        "# The options of a Style Tarnel style: the engine formats code under them as a revision\n"
        "# in the style does.\n---\nLanguage:        " +
        std::string(configuration_name_of(language.lexing)) + "\n" + options;
    if (engine_kind_of(language.lexing) != clang::format::FormatStyle::LK_Cpp)
        return heading + "...\n";
    // The engine takes a header that names an Objective-C type or keyword for Objective-C, and
    // refuses to format it under a configuration for C++ alone; a revision formats it as any other.
    return heading +
           "---\n# The same options for the headers that the engine takes for Objective-C.\n"
           "Language:        ObjC\n" +
           options + "...\n";
}

configured_addon addon_from_configuration(std::string const& configuration, std::string const& style_name,
                                          language_description const& language) {
    configured_addon made;
    try {
        made.refusal = why_unreadable(configuration, language.lexing);
        clang::format::FormatStyle as_given = clang::format::getLLVMStyle(engine_kind_of(language.lexing));
        if (!made.refusal.empty() || !read_configuration(configuration, as_given)) {
            if (made.refusal.empty())
                made.refusal = "the engine cannot read it";
            return made;
        }
        clang::format::FormatStyle safe = as_given;
        make_token_safe(safe);
        made.addon = addon_written_in(configuration, style_name, language);
        if (made.addon.empty()) {
            made.refusal = "the engine cannot format code under it";
            return made;
        }
        std::map<std::string, std::string> const given = options_in(as_given), kept = options_in(safe),
                                                 read_back = options_in(
                                                     inference_cache::shared().style_for(made.addon, language));
        std::vector<std::string> const named = options_named_in(configuration);
        for (std::string const& option : named) {
            auto const was = kept.find(option);
            if (was == kept.end() || of_other_languages_only(option, language.lexing))
                continue;
            if (given.at(option) != was->second || serves_include_sorting(option))
                made.left_out.push_back(option);
            else if (!same_option(kept, read_back, option))
                made.not_shown.push_back(option);
        }
        // Then those it takes from the style it is based on (or from the engine's defaults): the
        // editors that read it use them as much as those it names.
        for (auto const& entry : kept) {
            std::string const& option = entry.first;
            if (option != "Language" && std::find(named.begin(), named.end(), option) == named.end() &&
                !forced(option) && !of_other_languages_only(option, language.lexing) &&
                !serves_include_sorting(option) && !same_option(kept, read_back, option))
                made.not_shown.push_back(option);
        }
    } catch (...) {
        made = configured_addon();
        made.refusal = "the engine cannot format code under it";
    }
    return made;
}

}  // namespace tarnel_engine
