// The instances are words, so the engine never breaks inside them and mapping back is a plain
// replacement; their length fixes where a style's column limit makes lines break.
#include "placeholder_instances.h"

#include <cctype>

namespace tarnel_engine {

namespace {

std::string const long_placeholder = "SOME_LONG";
std::string const long_instance = "long_item_of_some_kind";

bool is_word_character(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

// Replaces whole words only, so that SOME_LONG_X or xSOME_LONG stay as they are.
std::string with_words_replaced(std::string const& text, std::string const& word, std::string const& by) {
    std::string result;
    std::size_t at = 0;
    while (true) {
        std::size_t const found = text.find(word, at);
        if (found == std::string::npos)
            break;
        bool const starts_word = found == 0 || !is_word_character(text[found - 1]);
        std::size_t const end = found + word.size();
        bool const ends_word = end == text.size() || !is_word_character(text[end]);
        result.append(text, at, found - at);
        result += starts_word && ends_word ? by : word;
        at = end;
    }
    return result + text.substr(at);
}

}  // namespace

std::string with_instances(std::string const& form) {
    return with_words_replaced(form, long_placeholder, long_instance);
}

std::string without_instances(std::string const& text) {
    return with_words_replaced(text, long_instance, long_placeholder);
}

}  // namespace tarnel_engine
