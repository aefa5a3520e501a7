// What the fuzz targets share.
#include "fuzz_support.h"

#include "engine/traits_of.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

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

bool same_non_white_space(std::string const& a, std::string const& b, bool wide) {
    auto is_blank = [wide](char c) {
        return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f' || (c == '\0' && wide);
    };
    auto strip = [&](std::string const& text) {
        std::string kept;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (is_blank(text[at]))
                continue;
            if (text[at] == '\\') {
                std::size_t next = at + 1;
                while (next < text.size() && (text[next] == ' ' || text[next] == '\t'))
                    ++next;
                if (next < text.size() && (text[next] == '\n' || text[next] == '\r'))
                    continue;
            }
            kept += text[at];
        }
        return kept;
    };
    return strip(a) == strip(b);
}

namespace {

// UTF-16 or UTF-32 by its line endings, or by a byte-order mark the plugins decode by.
bool is_wide(std::string const& source, line_ending_traits const& traits) {
    return traits.space.size() > 1 || source.rfind("\xFE\xFF", 0) == 0 || source.rfind("\xFF\xFE", 0) == 0 ||
           source.rfind(std::string("\0\0\xFE\xFF", 4), 0) == 0;
}

}  // namespace

void check_revise_promises(interface_to_language_plugin& plugin, std::string const& source,
                           std::string const& addon) {
    line_ending_traits const traits = detail::traits_of()(source);
    std::string const result = plugin.revise(source, addon, traits);
    if (result == STYLE_TARNEL_SYNTAX_ERROR_TEXT)
        return;
    if (!same_non_white_space(result, source, is_wide(source, traits))) {
        std::fprintf(stderr, "--- source\n%s\n--- result\n%s\n---\n", source.c_str(), result.c_str());
        check(false, "revise changed more than white space");
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
