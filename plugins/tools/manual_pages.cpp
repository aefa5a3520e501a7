// Pages in Markdown: purpose, tokens, placeholders used, the options the form decides, and the
// form as each shipped style writes it.
#include "manual_pages.h"

#include "addon_forms.h"
#include "structure_catalogue.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace {

std::string lower_case(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

std::string file_name_of(std::string const& structure_name) {
    std::string name = structure_name;
    std::replace(name.begin(), name.end(), ' ', '-');
    return name + ".md";
}

std::string placeholders_in(std::string const& tokens) {
    static std::set<std::string> const placeholders = {"SOME", "SOME_LONG", "type", "name", "name_long_part",
                                                       "name_part", "label", "argument", "attribute", "directive",
                                                       "protocols"};
    std::set<std::string> found;
    for (std::string const& token : tarnel_engine::tokens_of(tokens))
        if (placeholders.count(token))
            found.insert(token);
    std::string list;
    for (std::string const& each : found)
        list += (list.empty() ? "`" : ", `") + each + "`";
    return list;
}

}  // namespace

std::map<std::string, std::string> manual_pages_of(tarnel_engine::language_description const& language,
                                                   std::map<std::string, std::string> const& examples) {
    std::map<std::string, std::string> pages;
    // Blanks in a language name (Protocol Buffers) as in structure names.
    std::string folder = lower_case(language.name) + "/";
    std::replace(folder.begin(), folder.end(), ' ', '-');
    // A `#` (C#) spelled out: in a link it would begin a fragment.
    if (std::size_t const sharp = folder.find('#'); sharp != std::string::npos)
        folder.replace(sharp, 1, "sharp");
    std::string index = "# Structures of " + language.name + "\n\nEvery style addon of " + language.name +
                        " holds one form for each of these structures.\n\n";
    for (tarnel_engine::structure const& each : language.structures) {
        std::string page = "# " + language.name + ": " + each.name + "\n\n" + each.purpose + "\n\n";
        page += "Write the structure as `S_NAME=" + each.name + "` in an addon (see [Writing a style addon by "
                "hand](../../user-guide/style-addon-by-hand.md)). " +
                (each.writing.empty() ? std::string("Its form holds exactly these tokens, in this order; only the "
                                                    "white space between them is yours to choose:")
                                      : each.writing) +
                "\n\n```\n" + each.tokens + "\n```\n\n";
        std::string const placeholders = placeholders_in(each.tokens);
        if (!placeholders.empty())
            page += "Placeholders in it: " + placeholders + ".\n\n";
        if (!each.decides.empty()) {
            page += "The plugin reads from this form the engine's options:";
            for (std::string const& option : each.decides)
                page += " `" + option + "`" + (&option == &each.decides.back() ? "." : ",");
            page += "\n\n";
        }
        page += "## As the shipped styles write it\n\n";
        for (auto const& [style, addon] : examples) {
            std::string const form = tarnel_engine::form_of_structure(each.name).in(addon);
            if (!form.empty())
                page += "### " + style + "\n\n```\n" + form + "\n```\n\n";
        }
        pages[folder + file_name_of(each.name)] = page;
        index += "- [" + each.name + "](" + file_name_of(each.name) + "): " + each.purpose + "\n";
    }
    pages[folder + "README.md"] = index;
    return pages;
}
