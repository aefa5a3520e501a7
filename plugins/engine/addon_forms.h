// Reads structure forms out of a style addon's text by the same rules as the host, so that the
// plugin formats with exactly the forms the host validated.
#ifndef TARNEL_ENGINE_ADDON_FORMS_H
#define TARNEL_ENGINE_ADDON_FORMS_H

#include <string>

namespace tarnel_engine {

// The line ending of a text as the host detects it from its first line break: "\r\n", "\n", "\r",
// or empty for a text without one.
std::string line_ending_of(std::string const& text);

// The form of one structure: found by substring search for "S_NAME=" + name, starting after the
// next "S_BEG" + EOL and ending before the next EOL + "S_END" (or at the end of the text).
class form_of_structure {
public:
    explicit form_of_structure(std::string name) : name(std::move(name)) {}
    // The form in `addon` (NUL bytes dropped first), or empty when it has no section for it.
    std::string in(std::string const& addon) const;

private:
    std::string name;
};

}  // namespace tarnel_engine

#endif
