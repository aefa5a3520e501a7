#include "engine/ignore_rules.h"

#include <QFile>

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

bool matches(char const* p, char const* p_end, char const* t, char const* t_end, char const* p_begin) {
    while (p < p_end) {
        switch (*p) {
        case '*': {
            char const* stars = p;
            while (p < p_end && *p == '*')
                ++p;
            bool const whole_part = p - stars >= 2 && (stars == p_begin || stars[-1] == '/') &&
                                    (p == p_end || *p == '/');
            if (whole_part) {
                if (p == p_end)  // a trailing "/**": everything below
                    return true;
                // "**/": none or any number of whole directories.
                for (char const* at = t; at <= t_end; ++at)
                    if ((at == t || at[-1] == '/') && matches(p + 1, p_end, at, t_end, p_begin))
                        return true;
                return false;
            }
            for (char const* at = t;; ++at) {
                if (matches(p, p_end, at, t_end, p_begin))
                    return true;
                if (at == t_end || *at == '/')
                    return false;
            }
        }
        case '?':
            if (t == t_end || *t == '/')
                return false;
            ++p;
            ++t;
            break;
        case '[': {
            if (t == t_end || *t == '/')
                return false;
            char const* end = nullptr;
            bool const in_class = class_matches(p + 1, p_end, *t, end);
            if (end == nullptr) {  // not a class: a plain '['
                if (*t != '[')
                    return false;
                ++p;
                ++t;
                break;
            }
            if (!in_class)
                return false;
            p = end;
            ++t;
            break;
        }
        case '\\':
            if (p + 1 < p_end)
                ++p;
            [[fallthrough]];
        default:
            if (t == t_end || *t != *p)
                return false;
            ++p;
            ++t;
        }
    }
    return t == t_end;
}

}  // namespace

bool path_matches(QByteArray const& pattern, QByteArray const& text) {
    char const* const p = pattern.constData();
    char const* const t = text.constData();
    return matches(p, p + pattern.size(), t, t + text.size(), p);
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
