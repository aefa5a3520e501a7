// Reading the form of one structure out of a style addon's text. The host validates and edits
// forms with it and our plugins format with it, so both see exactly the same form. Header only,
// standard library only.
#ifndef STYLE_TARNEL_STYLE_ADDON_FORMS_H
#define STYLE_TARNEL_STYLE_ADDON_FORMS_H

#include <algorithm>
#include <string>

namespace style_tarnel {

// An addon saved in a 16-bit encoding whose characters are all ASCII reads as its ASCII text.
inline std::string without_NUL_bytes(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    return text;
}

// The line ending of a text, told by its first line break: "\r\n", "\n", "\r", or empty for a
// text without one.
inline std::string line_ending_of(std::string const& text) {
    std::size_t const line_feed = text.find('\n');
    if (line_feed != std::string::npos)
        return line_feed > 0 && text[line_feed - 1] == '\r' ? "\r\n" : "\n";
    return text.find('\r') != std::string::npos ? "\r" : "";
}

// The form of `structure` in `addon` (NUL bytes dropped first): found by substring search for
// "S_NAME=" + structure (so a longer name that begins with it and comes first is found), starting
// after the next "S_BEG" + line ending and ending before the next line ending + "S_END" or at the
// end of the text. Empty when there is no such section.
inline std::string form_of_structure(std::string const& structure, std::string const& addon) {
    std::string const text = without_NUL_bytes(addon);
    std::string const EOL = line_ending_of(text);
    std::string const name_marker = "S_NAME=" + structure;
    std::size_t const name = text.find(name_marker);
    if (name == std::string::npos)
        return std::string();
    std::string const begin_marker = "S_BEG" + EOL;
    std::size_t const begin = text.find(begin_marker, name + name_marker.size());
    if (begin == std::string::npos)
        return std::string();
    std::size_t const form = begin + begin_marker.size();
    std::size_t const end = text.find(EOL + "S_END", form);
    return text.substr(form, end == std::string::npos ? std::string::npos : end - form);
}

}  // namespace style_tarnel

#endif
