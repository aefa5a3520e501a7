// Line-ending detection on any bytes. Promises: the end of line found is one of the candidates
// and occurs in the text, at an offset aligned to its length when it is wide; none is found when
// the text holds neither LF nor CR; the space has the width the end of line implies.
#include "fuzz_support.h"

#include "engine/traits_of.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const text(reinterpret_cast<char const*>(data), size);
    line_ending_traits const traits = detail::traits_of()(text);
    bool const has_break = text.find_first_of("\n\r") != std::string::npos;
    if (traits.EOL.empty()) {
        fuzz::check(traits.space.empty(), "a space without an end of line");
        return 0;
    }
    fuzz::check(has_break, "an end of line in a text without line breaks");
    auto const with_LF = detail::traits_of().EOLs_with_LF();
    auto const with_CR = detail::traits_of().EOLs_with_CR_only();
    bool const candidate = std::find(with_LF.begin(), with_LF.end(), traits.EOL) != with_LF.end() ||
                           std::find(with_CR.begin(), with_CR.end(), traits.EOL) != with_CR.end();
    fuzz::check(candidate, "an end of line that is no candidate");
    fuzz::check(text.find(traits.EOL) != std::string::npos, "an end of line that is not in the text");
    std::size_t const width = traits.space.size();
    fuzz::check(width == 1 || width == 2 || width == 4, "a space of odd width");
    fuzz::check((width == 1) == (traits.EOL.find('\0') == std::string::npos),
                "an 8-bit space for a wide end of line, or the reverse");
    return 0;
}
