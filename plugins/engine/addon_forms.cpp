// Reading forms the way the host reads them: substring searches, no line-by-line parsing.
#include "addon_forms.h"

#include <algorithm>

namespace tarnel_engine {

std::string line_ending_of(std::string const& text) {
    std::size_t const line_feed = text.find('\n');
    if (line_feed != std::string::npos)
        return line_feed > 0 && text[line_feed - 1] == '\r' ? "\r\n" : "\n";
    return text.find('\r') != std::string::npos ? "\r" : "";
}

std::string form_of_structure::in(std::string const& addon) const {
    std::string text = addon;
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    std::string const EOL = line_ending_of(text);
    std::size_t const section = text.find("S_NAME=" + name);
    if (section == std::string::npos)
        return std::string();
    std::string const begin_marker = "S_BEG" + EOL;
    std::size_t const begin = text.find(begin_marker, section + 7 + name.size());
    if (begin == std::string::npos)
        return std::string();
    std::size_t const form_begin = begin + begin_marker.size();
    std::size_t const end = text.find(EOL + "S_END", form_begin);
    return text.substr(form_begin, end == std::string::npos ? std::string::npos : end - form_begin);
}

}  // namespace tarnel_engine
