// kernel: what is installed, the languages (one per plugin), their styles, structures, keywords
// and extensions, and the placeholder words of a form.
#include "core/kernel.h"

#include "core/installed_files.h"

std::vector<std::string> kernel::supported_programming_languages() const {
    std::vector<std::string> languages;
    for (auto const& plugin : installed_plugins())
        languages.push_back(plugin.language);
    return languages;
}

boost::optional<std::vector<style_description>> kernel::supported_formatting_styles_for(
    std::string const& language) const {
    std::vector<style_description> styles;
    // One file that is no valid addon makes every list absent: the directory is then broken.
    addons_pass const pass = first_addon_where([&](std::string const&, style_description const& d) {
        if (d.language == language)
            styles.push_back(d);
        return false;
    });
    if (pass == addons_pass::broken)
        return boost::none;
    return styles;
}

std::map<std::string, std::vector<std::string>> kernel::supported_langs_n_styles() const {
    std::map<std::string, std::vector<std::string>> languages;
    for (auto const& language : supported_programming_languages())
        languages[language];
    for (auto& [language, style_names] : languages) {
        auto const styles = supported_formatting_styles_for(language);
        if (!styles)
            return {};
        for (auto const& style : *styles)
            style_names.push_back(style.style);
    }
    return languages;
}

std::map<std::string, std::string> kernel::info_about_structures_of(
    std::string const& language) const {
    auto const plugin = plugin_of(language);
    return plugin ? plugin->structures : std::map<std::string, std::string>();
}

std::vector<std::string> kernel::list_of_keywords_of(std::string const& language) const {
    auto const plugin = plugin_of(language);
    return plugin ? plugin->keywords : std::vector<std::string>();
}

std::vector<std::string> kernel::filename_extensions_for(std::string const& language) const {
    auto const plugin = plugin_of(language);
    return plugin ? plugin->extensions : std::vector<std::string>();
}

std::vector<std::string> kernel::list_of_placeholders() const {
    return {"SOME",     "SOME_LONG", "type",      "name",     "name_long_part", "name_part",
            "label",    "protocols", "attribute", "argument", "directive"};
}
