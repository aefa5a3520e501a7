// Whether a text matches a regular expression as a whole, as the host checks structure forms
// against a plugin's expressions (Boost.Xpressive, ECMAScript syntax). Xpressive recurses once
// per character for some expressions (a repeated group, for one), so a long form would overflow
// an ordinary stack: the match runs on a thread of its own whose stack grows with the text.
// Header only; needs Boost's headers and POSIX threads.
#ifndef STYLE_TARNEL_MATCH_IN_FULL_H
#define STYLE_TARNEL_MATCH_IN_FULL_H

#include <boost/xpressive/xpressive.hpp>

#include <algorithm>
#include <pthread.h>
#include <string>
#include <utility>
#include <vector>
#include <unistd.h>

namespace style_tarnel {

class match_in_full {
public:
    explicit match_in_full(std::string const& expression) : expression(expression) {}

    // False also when the expression does not compile, or when no thread with a large enough
    // stack can be had.
    bool of(std::string const& text) const {
        std::vector<std::pair<std::string, std::string>> const one{{expression, text}};
        return first_mismatch_among(one) == one.size();
    }

    // The index of the first (expression, text) pair whose text does not match its expression
    // in full, or the number of pairs when every one matches. All on one thread, so that many
    // forms cost one thread, not one each.
    static std::size_t first_mismatch_among(std::vector<std::pair<std::string, std::string>> const& pairs) {
        if (pairs.empty())
            return 0;
        std::size_t longest = 0;
        for (auto const& pair : pairs)
            longest = std::max(longest, pair.second.size());
        job work{pairs, 0};
        pthread_attr_t attributes;
        if (::pthread_attr_init(&attributes) != 0)
            return 0;
        pthread_t thread;
        bool const started = ::pthread_attr_setstacksize(&attributes, stack_size_for(longest)) == 0 &&
                             ::pthread_create(&thread, &attributes, run, &work) == 0;
        ::pthread_attr_destroy(&attributes);
        if (!started)
            return 0;
        ::pthread_join(thread, nullptr);
        return work.first_mismatch;
    }

private:
    struct job {
        std::vector<std::pair<std::string, std::string>> const& pairs;
        std::size_t first_mismatch;
    };

    static void* run(void* argument) {
        namespace xp = boost::xpressive;
        auto& work = *static_cast<job*>(argument);
        for (; work.first_mismatch < work.pairs.size(); ++work.first_mismatch) {
            auto const& [expression, text] = work.pairs[work.first_mismatch];
            try {
                if (!xp::regex_match(text, xp::sregex::compile(expression)))
                    break;
            } catch (...) {
                break;  // An expression that does not compile accepts no text.
            }
        }
        return nullptr;
    }

    // Measured: a group repeated per character takes under 200 bytes of stack per character in
    // an optimised build and about 600 with the address sanitizer; the stack is reserved, not
    // used, until the match needs it.
    static std::size_t stack_size_for(std::size_t text_size) {
        std::size_t const base = std::size_t(64) << 20;
        std::size_t const per_character = 2048;
        std::size_t const page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
        std::size_t const size = base + text_size * per_character;
        return (size + page - 1) / page * page;
    }

    std::string const& expression;
};

}  // namespace style_tarnel

#endif
