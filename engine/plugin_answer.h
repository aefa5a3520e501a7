// What a plugin makes of one text: its revised text, a refusal when it throws, returns the
// syntax-error text, or returns nothing for a text with content, or a crash (crash_recovery.h),
// after which the plugin must not be called again.
#ifndef STYLE_TARNEL_ENGINE_PLUGIN_ANSWER_H
#define STYLE_TARNEL_ENGINE_PLUGIN_ANSWER_H

#include "interface_to_language_plugin.h"

#include <string>
#include <vector>

enum class plugin_answer { revised, refused, crashed };

// Asks `plugin` to revise `text` with `addon_text`, the line ending and space detected in the
// text; `result` gets the revised text.
plugin_answer ask(interface_to_language_plugin& plugin, std::string const& text,
                  std::string const& addon_text, std::string& result);

// The same for the lines of `ranges` alone, through the plugin's range interface.
plugin_answer ask_for_lines(interface_to_range_revision& plugin, std::string const& text,
                            std::string const& addon_text, std::vector<line_range> const& ranges,
                            std::string& result);

#endif
