// Only comments whose words are exactly "style-tarnel off" or "style-tarnel on" count, so that a
// comment that mentions the words in a sentence never switches formatting.
#include "kept_regions.h"

#include "lexing.h"

#include <sstream>

namespace tarnel_engine {

namespace {

// "off" or "on" when the comment is one of our markers; empty otherwise.
std::string marker_word_of(std::string const& comment) {
    // On one line, so that the engine's marker takes the place of ours line for line.
    if (comment.find_first_of("\r\n") != std::string::npos)
        return std::string();
    std::string body;
    if (comment.compare(0, 2, "//") == 0)
        body = comment.substr(2);
    else if (comment.size() >= 4 && comment.compare(0, 2, "/*") == 0 && comment.compare(comment.size() - 2, 2, "*/") == 0)
        body = comment.substr(2, comment.size() - 4);
    else
        return std::string();
    std::istringstream words(body);
    std::string first, second, third;
    words >> first >> second >> third;
    if (first != "style-tarnel" || !third.empty() || (second != "off" && second != "on"))
        return std::string();
    return second;
}

// The engine's own marker of the same kind and word.
std::string engine_marker(std::string const& comment, std::string const& word) {
    return comment.compare(0, 2, "//") == 0 ? "// clang-format " + word : "/* clang-format " + word + " */";
}

}  // namespace

kept_regions::kept_regions(std::string const& code, lexed_as language) : language(language) {
    if (code.find("style-tarnel") == std::string::npos) {
        told = code;
        return;
    }
    std::vector<comment_place> const comments = comments_in(code, language);
    std::size_t copied = 0;
    for (std::size_t index = 0; index < comments.size(); ++index) {
        std::string const comment = code.substr(comments[index].begin, comments[index].length);
        std::string const word = marker_word_of(comment);
        if (word.empty())
            continue;
        told += code.substr(copied, comments[index].begin - copied);
        told += engine_marker(comment, word);
        copied = comments[index].begin + comments[index].length;
        markers.emplace_back(index, comment);
    }
    told += code.substr(copied);
}

std::string kept_regions::with_markers_put_back(std::string formatted) const {
    if (markers.empty())
        return formatted;
    std::vector<comment_place> const comments = comments_in(formatted, language);
    std::string result;
    std::size_t copied = 0;
    for (auto const& [index, written] : markers) {
        if (index >= comments.size())
            break;  // not the same comments: the token check refuses such a result anyway
        result += formatted.substr(copied, comments[index].begin - copied);
        result += written;
        copied = comments[index].begin + comments[index].length;
    }
    result += formatted.substr(copied);
    return result;
}

}  // namespace tarnel_engine
