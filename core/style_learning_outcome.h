// What learning a style from a project's files came to: how it ended, and the figures the front
// ends report.
#ifndef STYLE_TARNEL_CORE_STYLE_LEARNING_OUTCOME_H
#define STYLE_TARNEL_CORE_STYLE_LEARNING_OUTCOME_H

#include <cstddef>
#include <string>

struct style_learning_outcome {
    enum class end {
        // The style is installed.
        learned,
        no_such_language,
        // The language's plugin has no learning interface.
        language_cannot_learn,
        bad_style_name,
        style_exists,
        // No file of the paths has one of the extensions.
        no_files,
        // The plugin learned nothing from the files found (none of them is code of the language).
        nothing_learned,
        stopped,
        // The addon could not be written into the addons directory.
        not_installed,
    };
    end how = end::learned;
    // The installed style whose forms the new style took, because they leave more of the files'
    // lines as they are than the rules learned; empty when the style is the learned one.
    std::string forms_of;
    // The file name of the project's own engine configuration whose forms the new style took, for
    // the same reason; empty otherwise.
    std::string configuration_of;
    std::size_t files = 0;
    unsigned long lines = 0;
    unsigned long lines_left = 0;
};

#endif
