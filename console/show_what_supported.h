// The listing of installed languages with their styles, aligned in columns:
//    C .... GNU
//         . Kernighan&Ritchie
//
//    C++ .. Google
#ifndef STYLE_TARNEL_CONSOLE_SHOW_WHAT_SUPPORTED_H
#define STYLE_TARNEL_CONSOLE_SHOW_WHAT_SUPPORTED_H

#include <map>
#include <string>
#include <vector>

namespace console {

class show_what_supported {
public:
    void operator()() const;
};

namespace detail {

using languages_n_styles = std::map<std::string, std::vector<std::string>>;

// The listing's lines, each ending in a line end; none for an empty map.
class extract_info_about {
public:
    std::vector<std::string> operator()(languages_n_styles const& languages) const;

    std::size_t obtain_length_of_longest_name_of_language_from(languages_n_styles const& languages) const;
    std::vector<std::string> extract_info_about_this(std::string const& language,
                                                     std::vector<std::string> const& styles,
                                                     std::size_t longest) const;
    // " <language> .." and a dot for every byte the name is shorter than the longest, then " ".
    std::string create_raw_lister_from(std::string const& language, std::size_t longest) const;
    // Blanks out all but the lister's last dot and blank in every line after the first.
    void replace_raw_lister_for_styles_except_first(std::string const& lister,
                                                    std::vector<std::string>& lines) const;
};

}  // namespace detail
}  // namespace console

#endif
