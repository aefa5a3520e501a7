// What asking a language's plugin for its engine's configuration came to: the configuration a
// style stands for, or a style made from a configuration file, and how each ended.
#ifndef STYLE_TARNEL_CORE_ENGINE_CONFIGURATION_OUTCOME_H
#define STYLE_TARNEL_CORE_ENGINE_CONFIGURATION_OUTCOME_H

#include <string>
#include <vector>

enum class engine_configuration_end {
    // The configuration was written, or the style made from it is installed.
    done,
    no_such_language,
    no_such_style,
    // The language's plugin has no configuration interface.
    language_without_configuration,
    // A file (the addon, or the configuration) could not be read.
    unreadable_file,
    bad_style_name,
    // The plugin refused: `reason` says why when the plugin said.
    refused,
    // The addon could not be written into the addons directory.
    not_installed,
};

struct engine_configuration_outcome {
    engine_configuration_end how = engine_configuration_end::done;
    // The configuration text, in the engine's own format.
    std::string configuration;
};

struct configuration_import_outcome {
    engine_configuration_end how = engine_configuration_end::done;
    std::string reason;
    // Options the configuration sets that the style leaves out, because they change more than white
    // space, and those that no form of the style shows.
    std::vector<std::string> left_out;
    std::vector<std::string> not_shown;
};

#endif
