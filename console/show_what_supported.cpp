#include "console/show_what_supported.h"

#include "core/kernel.h"

#include <algorithm>
#include <iostream>

namespace console {

void show_what_supported::operator()() const {
    auto const lines = detail::extract_info_about()(kernel().supported_langs_n_styles());
    if (lines.empty()) {
        std::cerr << "Unfortunately, you have no programming languages. Please import it." << std::endl;
        return;
    }
    std::cerr << " Supported programming languages and formatting styles: " << '\n' << '\n';
    for (auto const& line : lines)
        std::cerr << line;
    std::cerr.flush();
}

namespace detail {

std::vector<std::string> extract_info_about::operator()(languages_n_styles const& languages) const {
    std::vector<std::string> lines;
    std::size_t const longest = obtain_length_of_longest_name_of_language_from(languages);
    for (auto const& [language, styles] : languages) {
        auto const block = extract_info_about_this(language, styles, longest);
        lines.insert(lines.end(), block.begin(), block.end());
    }
    return lines;
}

std::size_t extract_info_about::obtain_length_of_longest_name_of_language_from(
    languages_n_styles const& languages) const {
    std::size_t longest = 0;
    for (auto const& entry : languages)
        longest = std::max(longest, entry.first.size());
    return longest;
}

std::vector<std::string> extract_info_about::extract_info_about_this(std::string const& language,
                                                                     std::vector<std::string> const& styles,
                                                                     std::size_t longest) const {
    std::string const lister = create_raw_lister_from(language, longest);
    std::vector<std::string> lines;
    for (auto const& style : styles)
        lines.push_back(lister + style + "\n");
    if (styles.empty())
        lines.push_back(lister + "there's no styles" + "\n");
    replace_raw_lister_for_styles_except_first(lister, lines);
    lines.push_back("\n");
    return lines;
}

std::string extract_info_about::create_raw_lister_from(std::string const& language, std::size_t longest) const {
    return " " + language + " .." + std::string(longest - language.size(), '.') + " ";
}

void extract_info_about::replace_raw_lister_for_styles_except_first(std::string const& lister,
                                                                    std::vector<std::string>& lines) const {
    std::size_t const blanked = lister.size() - 2;
    for (std::size_t i = 1; i < lines.size(); ++i)
        lines[i].replace(0, blanked, std::string(blanked, ' '));
}

}  // namespace detail
}  // namespace console
