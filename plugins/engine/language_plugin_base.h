// The plugin interfaces implemented once for every language of ours: a plugin's root object
// derives from QObject and from this class, passes its language description and names the five
// interfaces.
#ifndef TARNEL_ENGINE_LANGUAGE_PLUGIN_BASE_H
#define TARNEL_ENGINE_LANGUAGE_PLUGIN_BASE_H

#include "interface_to_language_plugin.h"
#include "language.h"
#include "revision.h"

namespace tarnel_engine {

class language_plugin_base : public interface_to_language_plugin,
                             public interface_to_style_learning,
                             public interface_to_style_learning_from_starts,
                             public interface_to_range_revision,
                             public interface_to_engine_configuration {
public:
    // The description must outlive the plugin (plugins pass a function-local static).
    explicit language_plugin_base(language_description const& language);

    std::string language_name() override;
    std::vector<std::string> list_of_keywords() override;
    std::vector<std::string> filename_extensions() override;
    std::map<std::string, std::string> forms_of_structures() override;
    std::string revise(std::string const& source, std::string const& addon, line_ending_traits const& traits) override;
    void end_of_revision() override;

    std::string revise_lines(std::string const& source, std::string const& addon, line_ending_traits const& traits,
                             std::vector<line_range> const& ranges) override;

    learned_style learn_style(std::vector<std::string> const& sources, std::string const& style_name,
                              std::function<bool(unsigned long done, unsigned long whole)> const& going_on) override;
    style_learned_from_starts learn_style_from(
        std::vector<std::string> const& sources, std::vector<learning_start> const& starts,
        std::string const& style_name,
        std::function<bool(unsigned long done, unsigned long whole)> const& going_on) override;

    std::string engine_configuration_of(std::string const& addon) override;
    configured_addon addon_from_configuration(std::string const& configuration, std::string const& style_name) override;

private:
    language_description const& language;
    reviser revisions;
};

}  // namespace tarnel_engine

#endif
