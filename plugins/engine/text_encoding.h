// The encoding and line ending of a source, told by the line-ending traits the host passes, and
// the way to UTF-8 with line feeds (what the engine formats) and back to the file's own bytes.
#ifndef TARNEL_ENGINE_TEXT_ENCODING_H
#define TARNEL_ENGINE_TEXT_ENCODING_H

#include "interface_to_language_plugin.h"

#include <optional>
#include <string>

namespace tarnel_engine {

enum class line_ending { line_feed, carriage_return_line_feed, carriage_return };

class text_encoding {
public:
    // UTF-16 and UTF-32 are recognised by the pattern of the EOL bytes (how many bytes, which of
    // them are zero), not by the length of the space: a UTF-16 CR LF comes with a four-byte space.
    // A text without line break is 8-bit unless it starts with a UTF-16 or UTF-32 byte-order mark.
    static text_encoding of(std::string const& source, line_ending_traits const& traits);

    // The source as UTF-8 with the file's line ending mapped as the engine needs it (CR alone
    // becomes LF); nothing when the bytes are not valid in the encoding.
    std::optional<std::string> decoded(std::string const& source) const;
    // The formatted UTF-8 text back in the file's encoding and line ending.
    std::optional<std::string> encoded(std::string const& text) const;

    // Whether the source begins with the byte-order mark of another encoding than this one. Such
    // bytes are no proper text in either: formatting them could make the next revision, which
    // may see no line break and go by the mark, read them in the other encoding.
    bool contradicts_byte_order_mark_of(std::string const& source) const;

    // Whether the host will take `result` for text of the same encoding as `source`. A UTF-16 or
    // UTF-32 text without byte-order mark is known by the bytes around its first LF byte (or, in a
    // text without any, its first CR byte), which may belong to another character; so the result
    // must hold that byte at the same place, with the same bytes before and around it. An 8-bit
    // text's line ending is told by its first line break, which the result must keep of its kind.
    bool result_is_told_alike(std::string const& source, std::string const& result) const;

    line_ending ending() const { return line_ending_kind; }
    // The source decoded for a revision; nothing when it must come back as it is: its byte-order
    // mark contradicts the encoding, it cannot be decoded, or it holds a NUL character.
    std::optional<std::string> decoded_for_revision(std::string const& source) const;

private:
    unsigned unit = 1;          // bytes per code unit: 1, 2 or 4
    bool little_endian = true;  // for units of 2 and 4 bytes
    line_ending line_ending_kind = line_ending::line_feed;
};

}  // namespace tarnel_engine

#endif
