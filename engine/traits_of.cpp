#include "engine/traits_of.h"

#include <algorithm>

namespace detail {

namespace {

std::string bytes(std::initializer_list<unsigned char> list) {
    return std::string(list.begin(), list.end());
}

bool is_8_bit(std::string const& EOL) {
    return (EOL.size() == 1 || EOL.size() == 2) && EOL.find('\0') == std::string::npos;
}

// Fourteen bytes around the line break at `at` hold any candidate that contains it.
constexpr std::size_t reach = 7;

}  // namespace

std::vector<std::string> traits_of::EOLs_with_LF() const {
    return {
        bytes({0x0D, 0, 0, 0, 0x0A, 0, 0, 0}),  // CR LF, UTF-32 LE
        bytes({0, 0, 0, 0x0D, 0, 0, 0, 0x0A}),  // CR LF, UTF-32 BE
        bytes({0x0D, 0, 0x0A, 0}),              // CR LF, UTF-16 LE
        bytes({0, 0x0D, 0, 0x0A}),              // CR LF, UTF-16 BE
        bytes({0x0D, 0x0A}),                    // CR LF, 8-bit
        bytes({0x0A, 0, 0, 0}),                 // LF, UTF-32 LE
        bytes({0, 0, 0, 0x0A}),                 // LF, UTF-32 BE
        bytes({0x0A, 0}),                       // LF, UTF-16 LE
        bytes({0, 0x0A}),                       // LF, UTF-16 BE
        bytes({0x0A}),                          // LF, 8-bit
    };
}

std::vector<std::string> traits_of::EOLs_with_CR_only() const {
    return {
        bytes({0x0D, 0, 0, 0}),  // CR, UTF-32 LE
        bytes({0, 0, 0, 0x0D}),  // CR, UTF-32 BE
        bytes({0x0D, 0}),        // CR, UTF-16 LE
        bytes({0, 0x0D}),        // CR, UTF-16 BE
        bytes({0x0D}),           // CR, 8-bit
    };
}

line_ending_traits traits_of::operator()(std::string const& text) const {
    line_ending_traits traits;
    std::vector<std::string> candidates;
    std::size_t at = text.find('\n');
    if (at != std::string::npos) {
        candidates = EOLs_with_LF();
    } else {
        at = text.find('\r');
        if (at == std::string::npos)
            return traits;
        candidates = EOLs_with_CR_only();
    }
    std::size_t const begin = at >= reach ? at - reach : 0;
    std::size_t const end = std::min(at + reach, text.size());
    fill().based_on(traits, candidates, text.substr(begin, end - begin), begin);
    return traits;
}

void fill::based_on(line_ending_traits& traits, std::vector<std::string> const& candidates,
                    std::string const& window, std::size_t window_offset) const {
    for (auto const& candidate : candidates) {
        std::size_t found = window.find(candidate);
        if (found == std::string::npos)
            continue;
        if (is_8_bit(candidate) || (window_offset + found) % candidate.size() == 0) {
            traits = fill_traits_based_on(candidate);
            return;
        }
    }
}

line_ending_traits fill::fill_traits_based_on(std::string const& EOL) const {
    line_ending_traits traits;
    traits.EOL = EOL;
    if (is_8_bit(EOL)) {
        traits.space = " ";
        return traits;
    }
    // Decided by length alone: so a UTF-16 CR LF (four bytes) gets the four-byte space, as the
    // UTF-32 line endings do.
    bool const little_endian = EOL[0] != '\0';
    if (EOL.size() != 2)
        traits.space += little_endian ? bytes({0x20, 0}) : bytes({0, 0});
    if (little_endian)
        traits.space += EOL.size() != 2 ? bytes({0, 0}) : bytes({0x20, 0});
    else
        traits.space += bytes({0, 0x20});
    return traits;
}

}  // namespace detail
