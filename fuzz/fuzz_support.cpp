// What the fuzz targets share.
#include "fuzz_support.h"

#include "engine/traits_of.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sstream>

namespace fuzz {

void start_quiet_application(int* argc, char*** argv) {
    static QTemporaryDir cache;
    if (std::getenv("XDG_CACHE_HOME") == nullptr)
        qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
    static QCoreApplication application(*argc, *argv);
    static std::ostringstream sink;
    std::cerr.rdbuf(sink.rdbuf());
    std::cout.rdbuf(sink.rdbuf());
    sink.str(std::string());
}

std::vector<std::string> shipped_addons_of(std::string const& language) {
    std::vector<std::string> texts;
    QDir const styles(STYLE_TARNEL_STYLES_SOURCE);
    QString const suffix = "[" + QString::fromStdString(language) + "].style";
    for (auto const& name : styles.entryList(QDir::Files, QDir::Name)) {
        if (!name.endsWith(suffix))
            continue;
        QFile file(styles.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            texts.push_back(file.readAll().toStdString());
    }
    return texts;
}

void check(bool promise, char const* what) {
    if (promise)
        return;
    std::fprintf(stderr, "Broken promise: %s\n", what);
    std::abort();
}

code_units code_units_of(std::string const& text, line_ending_traits const& traits) {
    code_units units;
    std::string const& EOL = traits.EOL;
    if (EOL.empty()) {
        if (text.rfind(std::string("\xFF\xFE\0\0", 4), 0) == 0 || text.rfind(std::string("\0\0\xFE\xFF", 4), 0) == 0)
            units.size = 4;
        else if (text.rfind("\xFF\xFE", 0) == 0 || text.rfind("\xFE\xFF", 0) == 0)
            units.size = 2;
        units.little_endian = !text.empty() && text[0] == '\xFF';
        return units;
    }
    if (EOL.find('\0') == std::string::npos)
        return units;
    // CR LF in UTF-16 or UTF-32 is two units; CR or LF alone is one.
    auto const non_zero = std::count_if(EOL.begin(), EOL.end(), [](char c) { return c != '\0'; });
    units.size = static_cast<unsigned>(EOL.size() / static_cast<std::size_t>(non_zero));
    units.little_endian = EOL[0] != '\0';
    return units;
}

namespace {

// The text's characters as numbers; a trailing piece shorter than a unit becomes a character that
// equals no whole unit.
std::vector<std::uint64_t> characters_of(std::string const& text, code_units units) {
    std::vector<std::uint64_t> characters;
    for (std::size_t at = 0; at < text.size(); at += units.size) {
        std::size_t const length = std::min<std::size_t>(units.size, text.size() - at);
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < length; ++i) {
            std::size_t const index = units.little_endian ? length - 1 - i : i;
            value = (value << 8) | static_cast<unsigned char>(text[at + index]);
        }
        if (length < units.size)
            value |= std::uint64_t(1) << 40;
        characters.push_back(value);
    }
    return characters;
}

bool is_blank(std::uint64_t c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f'; }

std::vector<std::uint64_t> non_white_space_of(std::string const& text, code_units units) {
    std::vector<std::uint64_t> const characters = characters_of(text, units);
    std::vector<std::uint64_t> kept;
    for (std::size_t at = 0; at < characters.size(); ++at) {
        if (is_blank(characters[at]))
            continue;
        if (characters[at] == '\\') {
            std::size_t next = at + 1;
            while (next < characters.size() && (characters[next] == ' ' || characters[next] == '\t'))
                ++next;
            if (next < characters.size() && (characters[next] == '\n' || characters[next] == '\r'))
                continue;
        }
        kept.push_back(characters[at]);
    }
    return kept;
}

}  // namespace

bool same_non_white_space(std::string const& a, std::string const& b, code_units units) {
    return non_white_space_of(a, units) == non_white_space_of(b, units);
}

void check_revise_promises(interface_to_language_plugin& plugin, std::string const& source,
                           std::string const& addon, token_comparison const& same_tokens) {
    line_ending_traits const traits = detail::traits_of()(source);
    std::string const result = plugin.revise(source, addon, traits);
    if (result == STYLE_TARNEL_SYNTAX_ERROR_TEXT)
        return;
    if (!same_non_white_space(result, source, code_units_of(source, traits))) {
        std::fprintf(stderr, "--- source\n%s\n--- result\n%s\n---\n", source.c_str(), result.c_str());
        check(false, "revise changed more than white space");
    }
    if (code_units_of(source, traits).size == 1 && !same_tokens(source, result)) {
        std::fprintf(stderr, "--- source\n%s\n--- result\n%s\n---\n", source.c_str(), result.c_str());
        check(false, "revise changed the tokens");
    }
    std::string const again = plugin.revise(result, addon, detail::traits_of()(result));
    check(again == result, "revising the result again changed it");
}

std::pair<std::string, std::string> split_at_first_zero(std::uint8_t const* data, std::size_t size) {
    std::string const input(reinterpret_cast<char const*>(data), size);
    std::size_t const zero = input.find('\0');
    if (zero == std::string::npos)
        return {input, std::string()};
    return {input.substr(0, zero), input.substr(zero + 1)};
}

}  // namespace fuzz
