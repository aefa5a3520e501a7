// Addon text through header values, the style description and the reading of structure forms.
// Input: a structure name, a zero byte, then the addon text. Promises: no crash; a header value
// and a form are pieces of the text (forms of the text without its NUL bytes, as addons are
// read); a value never runs past its line.
#include "fuzz_support.h"

#include "core/style_addon.h"

#include <algorithm>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::start_quiet_application(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    auto const [structure, text] = fuzz::split_at_first_zero(data, size);
    for (char const* key : {"NAME", "LANGUAGE"}) {
        auto const value = extract_value_of().from_ini_like(key, text, "=");
        if (!value)
            continue;
        fuzz::check(value->find('\n') == std::string::npos, "a header value runs past its line");
        fuzz::check(text.find(std::string(key) + "=" + *value) != std::string::npos,
                    "a header value that is not in the text");
    }
    std::string text_without_NUL = text;
    text_without_NUL.erase(std::remove(text_without_NUL.begin(), text_without_NUL.end(), '\0'), text_without_NUL.end());
    style_description const description = obtain_style_description().from_text(text);
    if (!description.is_empty())
        fuzz::check(text.find(description.style) != std::string::npos &&
                        text.find(description.language) != std::string::npos,
                    "a style description that is not in the text");
    for (std::string const& name : {structure, std::string("block"), std::string("function")}) {
        std::string const form = obtain_structure_form(name).from_already_reading(text);
        fuzz::check(form.empty() || text_without_NUL.find(form) != std::string::npos, "a form that is not in the text");
    }
    return 0;
}
