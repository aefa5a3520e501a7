// The columns text takes on the screen, with a tab reaching the next multiple of the tab width:
// how the readings of forms and of a project's code measure indentation and line lengths.
#ifndef TARNEL_ENGINE_TEXT_COLUMNS_H
#define TARNEL_ENGINE_TEXT_COLUMNS_H

#include <string_view>

namespace tarnel_engine {

// The columns all of `text` takes.
int columns_of(std::string_view text, int tab_width);

// The columns the blanks and tabs that begin `line` take.
int indentation_columns_of(std::string_view line, int tab_width);

}  // namespace tarnel_engine

#endif
