// Validating an addon's forms against a plugin's expressions: the test plugin's, and our C++
// plugin's (chosen by the input's first byte). Promises: no crash, no runaway expression; a form
// called invalid is one the plugin names and the addon holds.
#include "fuzz_support.h"

#include "engine/format_of_this.h"
#include "core/style_addon.h"
#include "cpp_language.h"
#include "language_plugin_base.h"
#include "tests/test_plugins/test_language_plugin.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::start_quiet_application(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static test_language_plugin test_plugin;
    static tarnel_engine::language_plugin_base cpp_plugin(cpp_language());
    if (size == 0)
        return 0;
    interface_to_language_plugin& plugin = data[0] % 2 == 0 ? static_cast<interface_to_language_plugin&>(test_plugin)
                                                            : cpp_plugin;
    std::string const text(reinterpret_cast<char const*>(data) + 1, size - 1);
    std::string bad_structure;
    if (!format_of_this(text).is_invalid_based_on(&plugin, bad_structure))
        return 0;
    auto const forms = plugin.forms_of_structures();
    fuzz::check(forms.count(bad_structure) == 1, "an invalid structure the plugin does not name");
    fuzz::check(!obtain_structure_form(bad_structure).from_already_reading(text).empty(),
                "an invalid form the addon does not hold");
    return 0;
}
