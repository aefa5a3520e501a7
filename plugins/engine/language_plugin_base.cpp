// Nothing may leave the plugin as an exception: every member answers even when it fails.
#include "language_plugin_base.h"

#include "range_revision.h"
#include "deep_stack.h"
#include "engine_configuration.h"
#include "style_learning.h"

namespace tarnel_engine {

language_plugin_base::language_plugin_base(language_description const& language)
    : language(language), revisions(language) {}

std::string language_plugin_base::language_name() { return language.name; }

std::vector<std::string> language_plugin_base::list_of_keywords() { return language.keywords; }

std::vector<std::string> language_plugin_base::filename_extensions() { return language.filename_extensions; }

std::map<std::string, std::string> language_plugin_base::forms_of_structures() {
    try {
        return expressions_of(language.structures);
    } catch (...) {
        return {};
    }
}

std::string language_plugin_base::revise(std::string const& source, std::string const& addon,
                                         line_ending_traits const& traits) {
    return revisions.revise(source, addon, traits);
}

std::string language_plugin_base::revise_lines(std::string const& source, std::string const& addon,
                                               line_ending_traits const& traits, std::vector<line_range> const& ranges) {
    return revise_lines_of(language).in(source, addon, traits, ranges);
}

void language_plugin_base::end_of_revision() { revisions.forget_the_run(); }

learned_style language_plugin_base::learn_style(std::vector<std::string> const& sources, std::string const& style_name,
                                                std::function<bool(unsigned long, unsigned long)> const& going_on) {
    // The search formats pieces of the sources on this thread: on the engine's own stack too.
    learned_style learned;
    run_on_a_deep_stack([&] { learned = learn_style_of(language).from(sources, style_name, going_on); });
    return learned;
}

style_learned_from_starts language_plugin_base::learn_style_from(
    std::vector<std::string> const& sources, std::vector<learning_start> const& starts, std::string const& style_name,
    std::function<bool(unsigned long, unsigned long)> const& going_on) {
    style_learned_from_starts learned;
    run_on_a_deep_stack([&] { learned = learn_style_of(language).from(sources, starts, style_name, going_on); });
    return learned;
}

std::string language_plugin_base::engine_configuration_of(std::string const& addon) {
    // The inference formats the forms: on the engine's own stack too.
    std::string configuration;
    run_on_a_deep_stack([&] { configuration = tarnel_engine::engine_configuration_of(addon, language); });
    return configuration;
}

configured_addon language_plugin_base::addon_from_configuration(std::string const& configuration,
                                                                std::string const& style_name) {
    configured_addon made;
    run_on_a_deep_stack([&] { made = tarnel_engine::addon_from_configuration(configuration, style_name, language); });
    return made;
}

}  // namespace tarnel_engine
