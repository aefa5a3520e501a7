#include "engine/unified_diff.h"

#include <algorithm>
#include <regex>
#include <string_view>
#include <vector>

namespace {

using lines = std::vector<std::string_view>;

// Each line with its line feed; a last line without one as it is.
lines lines_of(std::string const& text) {
    lines result;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t const end = text.find('\n', start);
        std::size_t const next = end == std::string::npos ? text.size() : end + 1;
        result.emplace_back(text.data() + start, next - start);
        start = next;
    }
    return result;
}

// Marks the lines of `a` that are removed and the lines of `b` that are added in a shortest edit
// script (Myers' algorithm in linear space: the middle snake, then both halves).
class shortest_edit {
public:
    shortest_edit(lines const& a, lines const& b)
        : a(a), b(b), removed(a.size(), false), added(b.size(), false) {
        compare(0, a.size(), 0, b.size());
    }

    lines const& a;
    lines const& b;
    std::vector<bool> removed;
    std::vector<bool> added;

private:
    void compare(std::size_t a_begin, std::size_t a_end, std::size_t b_begin, std::size_t b_end) {
        while (a_begin < a_end && b_begin < b_end && a[a_begin] == b[b_begin])
            ++a_begin, ++b_begin;
        while (a_begin < a_end && b_begin < b_end && a[a_end - 1] == b[b_end - 1])
            --a_end, --b_end;
        if (a_begin == a_end || b_begin == b_end) {
            std::fill(removed.begin() + static_cast<long>(a_begin), removed.begin() + static_cast<long>(a_end), true);
            std::fill(added.begin() + static_cast<long>(b_begin), added.begin() + static_cast<long>(b_end), true);
            return;
        }
        std::size_t x = 0, y = 0;
        if (!middle_snake(a_begin, a_end, b_begin, b_end, x, y)) {
            std::fill(removed.begin() + static_cast<long>(a_begin), removed.begin() + static_cast<long>(a_end), true);
            std::fill(added.begin() + static_cast<long>(b_begin), added.begin() + static_cast<long>(b_end), true);
            return;
        }
        compare(a_begin, a_begin + x, b_begin, b_begin + y);
        compare(a_begin + x, a_end, b_begin + y, b_end);
    }

    // A point (x, y), relative to the beginnings, where a forward and a reverse furthest-reaching
    // path meet; both halves around it are smaller problems.
    bool middle_snake(std::size_t a_begin, std::size_t a_end, std::size_t b_begin, std::size_t b_end,
                      std::size_t& split_x, std::size_t& split_y) const {
        long const n = static_cast<long>(a_end - a_begin), m = static_cast<long>(b_end - b_begin);
        auto A = [&](long i) { return a[a_begin + static_cast<std::size_t>(i)]; };
        auto B = [&](long j) { return b[b_begin + static_cast<std::size_t>(j)]; };
        long const max_d = (n + m + 1) / 2;
        long const offset = max_d;
        long const length = 2 * max_d + 2;
        std::vector<long> forward(static_cast<std::size_t>(length), -1), reverse(static_cast<std::size_t>(length), -1);
        auto F = [&](long k) -> long& { return forward[static_cast<std::size_t>(k)]; };
        auto R = [&](long k) -> long& { return reverse[static_cast<std::size_t>(k)]; };
        F(offset + 1) = 0;
        R(offset + 1) = 0;
        long const delta = n - m;
        bool const front = delta % 2 != 0;
        long k1_start = 0, k1_end = 0, k2_start = 0, k2_end = 0;
        for (long d = 0; d < max_d; ++d) {
            for (long k1 = -d + k1_start; k1 <= d - k1_end; k1 += 2) {
                long const k1_offset = offset + k1;
                long x1 = (k1 == -d || (k1 != d && F(k1_offset - 1) < F(k1_offset + 1))) ? F(k1_offset + 1)
                                                                                        : F(k1_offset - 1) + 1;
                long y1 = x1 - k1;
                while (x1 < n && y1 < m && A(x1) == B(y1))
                    ++x1, ++y1;
                F(k1_offset) = x1;
                if (x1 > n) {
                    k1_end += 2;
                } else if (y1 > m) {
                    k1_start += 2;
                } else if (front) {
                    long const k2_offset = offset + delta - k1;
                    if (k2_offset >= 0 && k2_offset < length && R(k2_offset) != -1 && x1 >= n - R(k2_offset)) {
                        split_x = static_cast<std::size_t>(x1);
                        split_y = static_cast<std::size_t>(y1);
                        return true;
                    }
                }
            }
            for (long k2 = -d + k2_start; k2 <= d - k2_end; k2 += 2) {
                long const k2_offset = offset + k2;
                long x2 = (k2 == -d || (k2 != d && R(k2_offset - 1) < R(k2_offset + 1))) ? R(k2_offset + 1)
                                                                                        : R(k2_offset - 1) + 1;
                long y2 = x2 - k2;
                while (x2 < n && y2 < m && A(n - x2 - 1) == B(m - y2 - 1))
                    ++x2, ++y2;
                R(k2_offset) = x2;
                if (x2 > n) {
                    k2_end += 2;
                } else if (y2 > m) {
                    k2_start += 2;
                } else if (!front) {
                    long const k1_offset = offset + delta - k2;
                    if (k1_offset >= 0 && k1_offset < length && F(k1_offset) != -1) {
                        long const x1 = F(k1_offset);
                        long const y1 = offset + x1 - k1_offset;
                        if (x1 >= n - x2) {
                            split_x = static_cast<std::size_t>(x1);
                            split_y = static_cast<std::size_t>(y1);
                            return true;
                        }
                    }
                }
            }
        }
        return false;
    }
};

enum class edit { kept, removed, added };

struct step {
    edit kind;
    std::size_t a_line;  // lines of the text before this step
    std::size_t b_line;  // lines of the revised text before this step
};

std::vector<step> steps_of(shortest_edit const& script) {
    std::vector<step> steps;
    std::size_t i = 0, j = 0;
    while (i < script.a.size() || j < script.b.size()) {
        if (i < script.a.size() && script.removed[i]) {
            steps.push_back({edit::removed, i, j});
            ++i;
        } else if (j < script.b.size() && script.added[j]) {
            steps.push_back({edit::added, i, j});
            ++j;
        } else {
            steps.push_back({edit::kept, i, j});
            ++i, ++j;
        }
    }
    return steps;
}

// "start,count" as unified diffs write it: a range of no lines starts at the line before it, and
// a count of one is left out.
std::string range(std::size_t first_line, std::size_t count) {
    std::size_t const start = count == 0 ? first_line : first_line + 1;
    return std::to_string(start) + (count == 1 ? std::string() : "," + std::to_string(count));
}

void append_line(std::string& diff, char mark, std::string_view line) {
    diff += mark;
    diff.append(line.data(), line.size());
    if (line.empty() || line.back() != '\n')
        diff += "\n\\ No newline at end of file\n";
}

}  // namespace

bool git_reads_the_name_in_a_diff(std::string const& label) {
    if (label.find_first_of("\t\n\r") != std::string::npos)
        return false;
    static std::regex const date_at_the_end(
        " [0-9]{4}-[0-9]{2}-[0-9]{2}( [0-9]{2}:[0-9]{2}:[0-9]{2}(\\.[0-9]+)?)?( [+-][0-9]{4})?$");
    return !std::regex_search(label, date_at_the_end);
}

std::string unified_diff_of::between(std::string const& text, std::string const& revised) const {
    if (text == revised)
        return std::string();
    lines const a = lines_of(text), b = lines_of(revised);
    shortest_edit const script(a, b);
    std::vector<step> const steps = steps_of(script);

    // A step belongs to a hunk when it lies within three steps of a change: so changes apart by
    // up to six kept lines share one hunk.
    std::size_t const context = 3;
    std::vector<bool> shown(steps.size(), false);
    for (std::size_t s = 0; s < steps.size(); ++s)
        if (steps[s].kind != edit::kept) {
            std::size_t const from = s >= context ? s - context : 0;
            std::size_t const to = std::min(steps.size(), s + context + 1);
            std::fill(shown.begin() + static_cast<long>(from), shown.begin() + static_cast<long>(to), true);
        }

    std::string diff = "--- a/" + label + "\n+++ b/" + label + "\n";
    for (std::size_t s = 0; s < steps.size();) {
        if (!shown[s]) {
            ++s;
            continue;
        }
        std::size_t end = s;
        std::size_t a_count = 0, b_count = 0;
        for (; end < steps.size() && shown[end]; ++end) {
            a_count += steps[end].kind != edit::added;
            b_count += steps[end].kind != edit::removed;
        }
        diff += "@@ -" + range(steps[s].a_line, a_count) + " +" + range(steps[s].b_line, b_count) + " @@\n";
        for (; s < end; ++s) {
            step const& current = steps[s];
            if (current.kind == edit::kept)
                append_line(diff, ' ', a[current.a_line]);
            else if (current.kind == edit::removed)
                append_line(diff, '-', a[current.a_line]);
            else
                append_line(diff, '+', b[current.b_line]);
        }
    }
    return diff;
}
