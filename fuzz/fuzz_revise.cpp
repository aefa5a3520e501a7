// One of our plugins' revise() (built once for each, FUZZED_LANGUAGE "C", "C++", "Java",
// "Protocol Buffers", "Objective-C" or "C#") on any source, in the style of a shipped addon of that language
// chosen by the input's first byte.
// Promises: the result is the syntax-error text or has the source's non-white-space bytes and its
// tokens (read by the plugins' own lexer, as the language's compiler reads them), and revising the
// result again changes nothing.
#include "fuzz_support.h"

#include "c_language.h"
#include "cpp_language.h"
#include "java_language.h"
#include "javascript_language.h"
#include "proto_language.h"
#ifdef FUZZED_OBJECTIVE_C  // only its own target links the Objective-C language
#include "objc_language.h"
#endif
#include "csharp_language.h"
#include "language_plugin_base.h"
#include "token_sequence.h"

#include <cstring>

namespace {
std::vector<std::string> addons;
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::start_quiet_application(argc, argv);
    addons = fuzz::shipped_addons_of(FUZZED_LANGUAGE);
    return 0;
}

tarnel_engine::language_description const& fuzzed_language() {
    if (std::strcmp(FUZZED_LANGUAGE, "Java") == 0)
        return java_language();
    if (std::strcmp(FUZZED_LANGUAGE, "Protocol Buffers") == 0)
        return proto_language();
#ifdef FUZZED_OBJECTIVE_C
    if (std::strcmp(FUZZED_LANGUAGE, "Objective-C") == 0)
        return objc_language();
#endif
    if (std::strcmp(FUZZED_LANGUAGE, "C#") == 0)
        return csharp_language();
    if (std::strcmp(FUZZED_LANGUAGE, "JavaScript") == 0)
        return javascript_language();
    return std::strcmp(FUZZED_LANGUAGE, "C") == 0 ? c_language() : cpp_language();
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static tarnel_engine::language_description const& language = fuzzed_language();
    static tarnel_engine::language_plugin_base plugin(language);
    if (size == 0 || addons.empty())
        return 0;
    auto const same_tokens = [](std::string const& before, std::string const& after) {
        return tarnel_engine::same_tokens_in(before, after, language.lexing);
    };
    fuzz::check_revise_promises(plugin, std::string(reinterpret_cast<char const*>(data) + 1, size - 1),
                                addons[data[0] % addons.size()], same_tokens);
    return 0;
}
