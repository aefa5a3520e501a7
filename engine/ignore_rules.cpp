#include "engine/ignore_rules.h"

#include <QFile>

#include <algorithm>

char const* const ignore_file_name = ".style-tarnel-ignore";

namespace {

// The `[...]` at `p` (just after '['), against the character `c`. Sets `end` to the character
// after the closing ']'; false with `end` null when the class is not closed (the '[' is then a
// plain character).
bool class_matches(char const* p, char const* p_end, char c, char const*& end) {
    bool negated = false;
    if (p < p_end && (*p == '!' || *p == '^')) {
        negated = true;
        ++p;
    }
    bool matched = false;
    bool first = true;
    while (p < p_end && (*p != ']' || first)) {
        first = false;
        char low = *p;
        if (low == '\\' && p + 1 < p_end)
            low = *++p;
        ++p;
        char high = low;
        if (p + 1 < p_end && *p == '-' && p[1] != ']') {
            high = p[1];
            p += 2;
            if (high == '\\' && p < p_end)
                high = *p++;
        }
        if (static_cast<unsigned char>(low) <= static_cast<unsigned char>(c) &&
            static_cast<unsigned char>(c) <= static_cast<unsigned char>(high))
            matched = true;
    }
    if (p >= p_end) {
        end = nullptr;
        return false;
    }
    end = p + 1;
    return matched != negated;
}

// How a match ended. A failure that no later start of a star can mend ends every star before it
// at once (`abort_all`), and one that only a double star can mend ends the single stars before it
// (`abort_to_double_star`): so a pattern of many stars takes time in proportion to the text's
// length times the pattern's, not exponential time.
enum class match_result { match, no_match, abort_all, abort_to_double_star };

match_result matches(char const* p, char const* p_end, char const* t, char const* t_end, char const* p_begin) {
    while (p < p_end) {
        if (t == t_end && *p != '*')
            return match_result::abort_all;
        switch (*p) {
        case '*': {
            char const* const stars = p;
            while (p < p_end && *p == '*')
                ++p;
            bool const double_star = p - stars >= 2 && (stars == p_begin || stars[-1] == '/') &&
                                     (p == p_end || *p == '/');
            if (p == p_end) {  // a trailing star: the rest of the name, or with "/**" everything below
                if (double_star)
                    return match_result::match;
                return std::find(t, t_end, '/') == t_end ? match_result::match : match_result::no_match;
            }
            // "**/": none or any number of whole directories; tried without a directory first.
            if (double_star && matches(p + 1, p_end, t, t_end, p_begin) == match_result::match)
                return match_result::match;
            for (char const* at = t; at < t_end; ++at) {
                match_result const rest = matches(p, p_end, at, t_end, p_begin);
                if (rest != match_result::no_match) {
                    if (!double_star || rest != match_result::abort_to_double_star)
                        return rest;
                } else if (!double_star && *at == '/') {
                    return match_result::abort_to_double_star;
                }
            }
            return match_result::abort_all;
        }
        case '?':
            if (*t == '/')
                return match_result::no_match;
            ++p;
            ++t;
            break;
        case '[': {
            if (*t == '/')
                return match_result::no_match;
            char const* end = nullptr;
            bool const in_class = class_matches(p + 1, p_end, *t, end);
            if (end == nullptr) {  // not a class: a plain '['
                if (*t != '[')
                    return match_result::no_match;
                ++p;
                ++t;
                break;
            }
            if (!in_class)
                return match_result::no_match;
            p = end;
            ++t;
            break;
        }
        case '\\':
            if (p + 1 < p_end)
                ++p;
            [[fallthrough]];
        default:
            if (*t != *p)
                return match_result::no_match;
            ++p;
            ++t;
        }
    }
    return t == t_end ? match_result::match : match_result::no_match;
}

}  // namespace

bool path_matches(QByteArray const& pattern, QByteArray const& text) {
    char const* const p = pattern.constData();
    char const* const t = text.constData();
    return matches(p, p + pattern.size(), t, t + text.size(), p) == match_result::match;
}

void ignore_rules::add_lines(QByteArray const& text, QByteArray const& directory) {
    for (QByteArray line : text.split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        // Trailing blanks do not count, unless the last is escaped.
        while (line.endsWith(' ') && !(line.size() >= 2 && line[line.size() - 2] == '\\'))
            line.chop(1);
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        pattern rule;
        rule.directory = directory;
        if (line.startsWith('!')) {
            rule.brought_back = true;
            line.remove(0, 1);
        }
        if (line.endsWith('/') && !line.endsWith("\\/")) {
            rule.directories_only = true;
            while (line.endsWith('/'))
                line.chop(1);
        }
        rule.anchored = line.contains('/');
        if (line.startsWith('/'))
            line.remove(0, 1);
        if (line.isEmpty())
            continue;
        rule.text = line;
        patterns.push_back(rule);
    }
}

void ignore_rules::add_file_of(QByteArray const& directory) {
    QFile file(QFile::decodeName((directory.isEmpty() ? QByteArray() : directory) + '/' + ignore_file_name));
    if (file.open(QIODevice::ReadOnly))
        add_lines(file.readAll(), directory);
}

ignore_rules::verdict ignore_rules::on(QByteArray const& path, bool directory) const {
    for (auto rule = patterns.rbegin(); rule != patterns.rend(); ++rule) {
        if (rule->directories_only && !directory)
            continue;
        if (!path.startsWith(rule->directory + '/'))
            continue;
        QByteArray const below = path.mid(rule->directory.size() + 1);
        QByteArray const name = rule->anchored ? below : below.mid(below.lastIndexOf('/') + 1);
        if (path_matches(rule->text, name))
            return rule->brought_back ? verdict::brought_back : verdict::left_out;
    }
    return verdict::none;
}
