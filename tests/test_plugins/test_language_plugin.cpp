#include "test_language_plugin.h"

#ifdef TEST_PLUGIN_LEARNING
#include "lines_left_as_they_are.h"
#endif

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace {

std::string hex(std::string const& bytes) {
    static char const digits[] = "0123456789abcdef";
    std::string text;
    for (unsigned char byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text.empty() ? "-" : text;
}

void log(std::string const& line) {
    char const* file = std::getenv("TEST_PLUGIN_LOG");
    if (file == nullptr)
        return;
    if (FILE* out = std::fopen(file, "a")) {
        std::fprintf(out, "%s %s\n", TEST_PLUGIN_TAG, line.c_str());
        std::fclose(out);
    }
}

bool asked(char const* variable) {
    char const* tag = std::getenv(variable);
    return tag != nullptr && std::string(tag) == TEST_PLUGIN_TAG;
}

void throw_if_asked(char const* variable = "TEST_PLUGIN_THROWING") {
    if (asked(variable))
        throw std::runtime_error("the test plugin was asked to throw");
}

std::atomic<int> calls_under_way{0};

// Counts the revise() calls under way while it lives.
class call_under_way {
public:
    call_under_way() {
        if (++calls_under_way > 1)
            log("overlapping revise");
    }
    ~call_under_way() { --calls_under_way; }
};

#ifdef TEST_PLUGIN_CRASHING
int* volatile nowhere = nullptr;
volatile int depth_limit = 0;  // never reached: the stack ends first

// Not a tail call, and a frame that is used after the call: no compiler turns it into a loop.
int deeper(int depth) {
    volatile char frame[512];
    frame[0] = static_cast<char>(depth);
    if (depth_limit != 0 && depth >= depth_limit)
        return frame[0];
    return deeper(depth + 1) + frame[0];
}

void crash_if_asked(std::string const& source) {
    if (source.find("CRASH_NULL") != std::string::npos)
        *nowhere = 1;
    if (source.find("CRASH_ABORT") != std::string::npos)
        std::abort();
    if (source.find("CRASH_RECURSION") != std::string::npos)
        deeper(0);
    if (source.find("CRASH_KILL") != std::string::npos)
        std::raise(SIGKILL);
}
#else
void crash_if_asked(std::string const&) {}
#endif

}  // namespace

std::string test_language_plugin::language_name() {
    throw_if_asked();
    return TEST_LANGUAGE_NAME;
}

std::vector<std::string> test_language_plugin::list_of_keywords() {
    throw_if_asked();
    return {"begin", "end", "if"};
}

std::vector<std::string> test_language_plugin::filename_extensions() {
    throw_if_asked();
    return {"tst", "test"};
}

std::map<std::string, std::string> test_language_plugin::forms_of_structures() {
    throw_if_asked();
    throw_if_asked("TEST_PLUGIN_FORMS_THROWING");
    if (asked("TEST_PLUGIN_INTERRUPTING"))
        std::raise(SIGINT);
    // "function" is a prefix of "function call": forms are found by a substring search.
    return {
        {"block", R"(begin\s+SOME\s+end)"},
        {"function", R"(type\s+name\s*\(\s*\)\s*\{\s*SOME\s*\})"},
        {"function call", R"(name\s*\(\s*argument\s*\)\s*;)"},
    };
}

#ifdef TEST_PLUGIN_LEARNING
namespace {
char const learned_form[] = "begin  SOME  end";
}

learned_style test_language_plugin::learn_style(std::vector<std::string> const& sources, std::string const& style_name,
                                                std::function<bool(unsigned long, unsigned long)> const& going_on) {
    learned_style learned;
    if (!going_on(0, 1))
        return learned;
    learned.addon = "NAME=" + style_name + "\nLANGUAGE=" TEST_LANGUAGE_NAME "\n\nS_NAME=block\nS_BEG\n" +
                    learned_form + "\nS_END\n";
    for (std::string const& source : sources) {
        learned.lines += style_tarnel::lines_of(source);
        learned.lines_left += style_tarnel::lines_left_between(source, revise(source, learned.addon, {"\n", " "}));
    }
    return learned;
}
#endif

#ifdef TEST_PLUGIN_LEARNING_FROM_STARTS
style_learned_from_starts test_language_plugin::learn_style_from(
    std::vector<std::string> const& sources, std::vector<learning_start> const& starts, std::string const& style_name,
    std::function<bool(unsigned long, unsigned long)> const& going_on) {
    style_learned_from_starts learned;
    learned.learned = learn_style(sources, style_name, going_on);
    for (std::size_t i = 0; i < starts.size() && !learned.learned.addon.empty(); ++i) {
        std::size_t const first_line_end = starts[i].addon.find('\n');
        if (starts[i].addon.compare(0, 5, "NAME=") != 0 || first_line_end == std::string::npos)
            continue;
        learned_style start;
        start.addon = "NAME=" + style_name + starts[i].addon.substr(first_line_end);
        for (std::string const& source : sources) {
            start.lines += style_tarnel::lines_of(source);
            start.lines_left += style_tarnel::lines_left_between(source, revise(source, start.addon, {"\n", " "}));
        }
        if (start.lines_left > learned.learned.lines_left) {
            learned.learned = start;
            learned.start_taken = static_cast<long>(i);
        }
    }
    return learned;
}

std::string test_language_plugin::engine_configuration_of(std::string const& addon) {
    std::size_t const begin = addon.find("S_BEG\n");
    std::size_t const end = addon.find("\nS_END");
    return begin == std::string::npos || end == std::string::npos ? std::string() : addon.substr(begin + 6, end - begin - 6);
}

configured_addon test_language_plugin::addon_from_configuration(std::string const& configuration,
                                                                std::string const& style_name) {
    configured_addon made;
    std::string form = configuration;
    while (!form.empty() && form.back() == '\n')
        form.pop_back();
    made.addon = "NAME=" + style_name + "\nLANGUAGE=" TEST_LANGUAGE_NAME "\n\nS_NAME=block\nS_BEG\n" + form + "\nS_END\n";
    return made;
}
#endif

std::string test_language_plugin::revise(std::string const& source, std::string const& addon,
                                         line_ending_traits const& traits) {
    call_under_way const counted;
    log("revise " + hex(traits.EOL) + " " + hex(traits.space) + " " + std::to_string(source.size()));
    if (char const* delay = std::getenv("TEST_PLUGIN_DELAY_MS")) {
        int const slower = source.find("SLOW") != std::string::npos ? 10 : 1;
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(delay) * slower));
    }
    crash_if_asked(source);
    if (source.find("SYNTAX_ERROR") != std::string::npos)
        return STYLE_TARNEL_SYNTAX_ERROR_TEXT;
    if (source.find("THROW") != std::string::npos)
        throw std::runtime_error("the test plugin was asked to throw");
    if (source.find("EMPTY") != std::string::npos)
        return std::string();

    std::string const space = traits.space.empty() ? std::string(" ") : traits.space;
    std::string const twice = space + space;
    std::string result = source;
    static_cast<void>(addon);
#ifdef TEST_PLUGIN_LEARNING
    if (addon.find(learned_form) != std::string::npos) {
        result.clear();
        for (std::size_t at = 0; at < source.size();) {
            bool const single = source.compare(at, space.size(), space) == 0 &&
                                source.compare(at + space.size(), space.size(), space) != 0 &&
                                (at < space.size() || source.compare(at - space.size(), space.size(), space) != 0);
            result += single ? twice : source.substr(at, 1);
            at += single ? space.size() : 1;
        }
        return result;
    }
#endif
    for (std::size_t at = result.find(twice); at != std::string::npos; at = result.find(twice, at))
        result.erase(at, space.size());
    return result;
}

void test_language_plugin::end_of_revision() { log("end_of_revision"); }
