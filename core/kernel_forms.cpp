// kernel: reading and replacing the form of one structure in an installed style, and how the
// plugin revises a text under that style.
#include "core/kernel.h"

#include "core/installed_files.h"
#include "core/style_addon.h"
#include "core/style_addon_editing.h"

std::string kernel::language_structure_form_based_on(std::string const& language,
                                                     std::string const& style,
                                                     std::string const& structure) const {
    std::string file_name;
    if (addon_of(style, language, file_name) != addons_pass::found)
        return std::string();
    return obtain_structure_form(structure).from(file_name);
}

std::vector<std::string> kernel::structures_with_a_form_in(std::string const& language,
                                                          std::string const& style) const {
    std::vector<std::string> structures;
    std::string file_name;
    if (addon_of(style, language, file_name) != addons_pass::found)
        return structures;
    boost::optional<std::string> const addon_text = addon_text_of(file_name);
    if (!addon_text)
        return structures;
    for (auto const& structure : info_about_structures_of(language))
        if (!obtain_structure_form(structure.first).from_already_reading(*addon_text).empty())
            structures.push_back(structure.first);
    return structures;
}

bool kernel::update_language_structure_form(std::string const& language, std::string const& style,
                                            std::string const& structure,
                                            std::string const& form) const {
    return with_addon_of(style, language, [&](std::string const& file_name) {
        return update_this(structure, file_name).by(form);
    });
}

boost::optional<std::string> kernel::text_as_revised_under(std::string const& language,
                                                           std::string const& style,
                                                           std::string const& text) const {
    // The same path as an editor's buffer takes: the addon checked and read, the plugin asked.
    revision_task task;
    task.language = language;
    task.style = style;
    std::string revised;
    std::string report;
    if (revise_text(task, std::string(), text, revised, report) != text_outcome_status::revised)
        return boost::none;
    return revised;
}
