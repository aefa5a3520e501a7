// What a plugin makes of one text: its revised text, or a refusal when it throws, returns the
// syntax-error text, or returns nothing for a text with content.
#ifndef STYLE_TARNEL_ENGINE_PLUGIN_ANSWER_H
#define STYLE_TARNEL_ENGINE_PLUGIN_ANSWER_H

#include "interface_to_language_plugin.h"

#include <string>

enum class plugin_answer { revised, refused };

// Asks `plugin` to revise `text` with `addon_text`, the line ending and space detected in the
// text; `result` gets the revised text.
plugin_answer ask(interface_to_language_plugin& plugin, std::string const& text,
                  std::string const& addon_text, std::string& result);

#endif
