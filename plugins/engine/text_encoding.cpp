// Conversions between UTF-16/UTF-32 (either byte order) and UTF-8. Invalid sequences are refused,
// not repaired, so that a conversion there and back always gives the original bytes.
#include "text_encoding.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace tarnel_engine {

namespace {

bool starts_with(std::string const& text, std::string const& prefix) { return text.compare(0, prefix.size(), prefix) == 0; }

std::uint32_t unit_at(std::string const& bytes, std::size_t at, unsigned unit, bool little_endian) {
    std::uint32_t value = 0;
    for (unsigned i = 0; i < unit; ++i) {
        unsigned const index = little_endian ? unit - 1 - i : i;
        value = (value << 8) | static_cast<unsigned char>(bytes[at + index]);
    }
    return value;
}

void append_unit(std::string& bytes, std::uint32_t value, unsigned unit, bool little_endian) {
    for (unsigned i = 0; i < unit; ++i) {
        unsigned const shift = 8 * (little_endian ? i : unit - 1 - i);
        bytes += static_cast<char>((value >> shift) & 0xFF);
    }
}

void append_utf8(std::string& text, std::uint32_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | (code >> 6));
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        text += static_cast<char>(0xE0 | (code >> 12));
        text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xF0 | (code >> 18));
        text += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
        text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

bool is_surrogate(std::uint32_t code) { return code >= 0xD800 && code <= 0xDFFF; }

// The code points of UTF-8 text; nothing for an invalid or overlong sequence.
std::optional<std::vector<std::uint32_t>> code_points_of_utf8(std::string const& text) {
    std::vector<std::uint32_t> codes;
    for (std::size_t at = 0; at < text.size();) {
        unsigned char const lead = static_cast<unsigned char>(text[at]);
        unsigned const length = lead < 0x80 ? 1 : lead >> 5 == 0x6 ? 2 : lead >> 4 == 0xE ? 3 : lead >> 3 == 0x1E ? 4 : 0;
        if (length == 0 || at + length > text.size())
            return std::nullopt;
        std::uint32_t code = length == 1 ? lead : lead & (0xFF >> (length + 1));
        for (unsigned i = 1; i < length; ++i) {
            unsigned char const next = static_cast<unsigned char>(text[at + i]);
            if (next >> 6 != 0x2)
                return std::nullopt;
            code = (code << 6) | (next & 0x3F);
        }
        static std::uint32_t const smallest[] = {0, 0, 0x80, 0x800, 0x10000};
        if (code < smallest[length] || code > 0x10FFFF || is_surrogate(code))
            return std::nullopt;
        codes.push_back(code);
        at += length;
    }
    return codes;
}

}  // namespace

text_encoding text_encoding::of(std::string const& source, line_ending_traits const& traits) {
    text_encoding result;
    std::string const& EOL = traits.EOL;
    long const non_zero = std::count_if(EOL.begin(), EOL.end(), [](char c) { return c != '\0'; });
    if (EOL.empty()) {
        if (starts_with(source, std::string("\xFF\xFE\0\0", 4)) || starts_with(source, std::string("\0\0\xFE\xFF", 4)))
            result.unit = 4;
        else if (starts_with(source, "\xFF\xFE") || starts_with(source, "\xFE\xFF"))
            result.unit = 2;
        result.little_endian = source.size() > 0 && source[0] == '\xFF';
        return result;
    }
    if (non_zero == 2 && EOL.size() > 2) {
        result.line_ending_kind = line_ending::carriage_return_line_feed;
        result.unit = static_cast<unsigned>(EOL.size() / 2);
    } else if (non_zero == 2) {
        result.line_ending_kind = line_ending::carriage_return_line_feed;
    } else {
        result.unit = static_cast<unsigned>(EOL.size());
        char const ending = *std::find_if(EOL.begin(), EOL.end(), [](char c) { return c != '\0'; });
        result.line_ending_kind = ending == '\r' ? line_ending::carriage_return : line_ending::line_feed;
    }
    result.little_endian = EOL[0] != '\0';
    return result;
}

bool text_encoding::contradicts_byte_order_mark_of(std::string const& source) const {
    text_encoding const by_mark = of(source, line_ending_traits{});
    if (by_mark.unit == 1)
        return false;
    return by_mark.unit != unit || by_mark.little_endian != little_endian;
}

namespace {

// The line break the host takes a file's line ending from: its first, LF where there is none.
std::string first_line_break_of(std::string const& text) {
    std::size_t const at = text.find_first_of("\r\n");
    if (at == std::string::npos || text[at] == '\n')
        return "\n";
    return text.compare(at, 2, "\r\n") == 0 ? "\r\n" : "\r";
}

}  // namespace

bool text_encoding::result_is_told_alike(std::string const& source, std::string const& result) const {
    // A result that joined away the line break that told the file's line ending (a lone CR in a
    // string may come first then) would be read with another ending next time, and revised again
    // otherwise.
    if (unit == 1)
        return first_line_break_of(source) == first_line_break_of(result);
    bool const told_by_mark = of(source, line_ending_traits{}).unit > 1;
    if (told_by_mark)
        return true;
    std::size_t at = source.find('\n');
    if (at == std::string::npos) {
        if (result.find('\n') != std::string::npos)
            return false;
        at = source.find('\r');
    }
    // The host looks no further than seven bytes away from that byte.
    std::size_t const told_by = at == std::string::npos ? std::string::npos : at + 7;
    return source.compare(0, told_by, result, 0, told_by) == 0;
}

std::optional<std::string> text_encoding::decoded(std::string const& source) const {
    std::string text;
    if (unit == 1) {
        text = source;
    } else {
        if (source.size() % unit != 0)
            return std::nullopt;
        text.reserve(source.size());
        for (std::size_t at = 0; at < source.size(); at += unit) {
            std::uint32_t code = unit_at(source, at, unit, little_endian);
            if (unit == 2 && code >= 0xD800 && code <= 0xDBFF && at + 2 < source.size()) {
                std::uint32_t const low = unit_at(source, at + 2, unit, little_endian);
                if (low < 0xDC00 || low > 0xDFFF)
                    return std::nullopt;
                code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
                at += 2;
            } else if (is_surrogate(code) || code > 0x10FFFF) {
                return std::nullopt;
            }
            append_utf8(text, code);
        }
    }
    // The engine knows LF and CR LF; a text that ends its lines with CR alone holds no LF at all,
    // so mapping CR to LF here and back later is exact.
    if (line_ending_kind == line_ending::carriage_return)
        std::replace(text.begin(), text.end(), '\r', '\n');
    return text;
}

std::optional<std::string> text_encoding::encoded(std::string const& text) const {
    std::string utf8 = text;
    if (line_ending_kind == line_ending::carriage_return)
        std::replace(utf8.begin(), utf8.end(), '\n', '\r');
    if (unit == 1)
        return utf8;
    std::optional<std::vector<std::uint32_t>> const codes = code_points_of_utf8(utf8);
    if (!codes)
        return std::nullopt;
    std::string bytes;
    bytes.reserve(codes->size() * unit);
    for (std::uint32_t code : *codes) {
        if (unit == 2 && code >= 0x10000) {
            append_unit(bytes, 0xD800 + ((code - 0x10000) >> 10), unit, little_endian);
            append_unit(bytes, 0xDC00 + ((code - 0x10000) & 0x3FF), unit, little_endian);
        } else {
            append_unit(bytes, code, unit, little_endian);
        }
    }
    return bytes;
}

std::optional<std::string> text_encoding::decoded_for_revision(std::string const& source) const {
    if (contradicts_byte_order_mark_of(source))
        return std::nullopt;
    std::optional<std::string> decoded_text = decoded(source);
    if (!decoded_text || decoded_text->find('\0') != std::string::npos)
        return std::nullopt;
    return decoded_text;
}

}  // namespace tarnel_engine
