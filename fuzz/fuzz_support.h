// What the fuzz targets share: a quiet process with a Qt application, the shipped style addons,
// a promise check that aborts (so libFuzzer keeps the input), and the promises of a plugin's
// revise().
#ifndef STYLE_TARNEL_FUZZ_SUPPORT_H
#define STYLE_TARNEL_FUZZ_SUPPORT_H

#include "interface_to_language_plugin.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace fuzz {

// A QCoreApplication for the process (the store finds its directories through it), standard
// output and error silenced (the command line writes its refusals there), and XDG_CACHE_HOME in a
// temporary directory unless it is set.
void start_quiet_application(int* argc, char*** argv);

// The texts of the shipped addons for `language` ("C", "C++").
std::vector<std::string> shipped_addons_of(std::string const& language);

// Aborts with `what` when `promise` is false: libFuzzer then keeps the input as a crash.
void check(bool promise, char const* what);

// How a text's bytes make characters: code units of 1, 2 or 4 bytes, in either byte order.
struct code_units {
    unsigned size = 1;
    bool little_endian = true;
};

// The code units the host's line-ending traits tell (a UTF-16 or UTF-32 line ending), or, for a
// text without line break, its byte-order mark; one byte otherwise.
code_units code_units_of(std::string const& text, line_ending_traits const& traits);

// Whether the two texts hold the same characters once every white-space character is removed,
// both read in `units`. A backslash that continues a line (before LF, CR LF or, in a text whose
// lines end with CR, CR) is white space, as the plugins define it: they lay out macros again,
// moving and removing those.
bool same_non_white_space(std::string const& a, std::string const& b, code_units units);

// Whether two 8-bit texts hold the same tokens, as the plugin's language reads them.
using token_comparison = std::function<bool(std::string const& before, std::string const& after)>;

// Revises `source` with `plugin` in the style of `addon` and checks the product's promises: the
// result is the syntax-error text or has the same non-white-space bytes as the source and, for
// 8-bit text, the same tokens, and revising the result again gives it back unchanged.
void check_revise_promises(interface_to_language_plugin& plugin, std::string const& source,
                           std::string const& addon, token_comparison const& same_tokens);

// Splits fuzz input at its first byte 0: the part before and the rest (empty when there is none).
std::pair<std::string, std::string> split_at_first_zero(std::uint8_t const* data, std::size_t size);

}  // namespace fuzz

#endif
