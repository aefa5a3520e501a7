// Whether a text matches a regular expression as a whole, as the host checks structure forms
// against a plugin's expressions (Boost.Xpressive, ECMAScript syntax). Xpressive recurses once
// per character for some expressions (a repeated group, for one), so a long form would overflow
// an ordinary stack: the match runs on a thread of its own whose stack grows with the text.
// Header only; needs Boost's headers and POSIX threads.
#ifndef STYLE_TARNEL_MATCH_IN_FULL_H
#define STYLE_TARNEL_MATCH_IN_FULL_H

#include <boost/xpressive/xpressive.hpp>

#include <pthread.h>
#include <string>
#include <unistd.h>

namespace style_tarnel {

class match_in_full {
public:
    explicit match_in_full(std::string const& expression) : expression(expression) {}

    // False also when the expression does not compile, or when no thread with a large enough
    // stack can be had.
    bool of(std::string const& text) const {
        job work{expression, text};
        pthread_attr_t attributes;
        if (::pthread_attr_init(&attributes) != 0)
            return false;
        pthread_t thread;
        bool const started = ::pthread_attr_setstacksize(&attributes, stack_size_for(text.size())) == 0 &&
                             ::pthread_create(&thread, &attributes, run, &work) == 0;
        ::pthread_attr_destroy(&attributes);
        if (!started)
            return false;
        ::pthread_join(thread, nullptr);
        return work.matches;
    }

private:
    struct job {
        std::string const& expression;
        std::string const& text;
        bool matches = false;
    };

    static void* run(void* argument) {
        namespace xp = boost::xpressive;
        auto& work = *static_cast<job*>(argument);
        try {
            work.matches = xp::regex_match(work.text, xp::sregex::compile(work.expression));
        } catch (...) {
            work.matches = false;  // An expression that does not compile accepts no text.
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
