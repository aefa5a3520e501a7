// A tab stops at the next multiple of the tab width, counted from the line's start.
#include "text_columns.h"

namespace tarnel_engine {

namespace {

int after(char c, int column, int tab_width) { return c == '\t' ? column + tab_width - column % tab_width : column + 1; }

}  // namespace

int columns_of(std::string_view text, int tab_width) {
    int column = 0;
    for (char c : text)
        column = after(c, column, tab_width);
    return column;
}

int indentation_columns_of(std::string_view line, int tab_width) {
    int column = 0;
    for (char c : line) {
        if (c != ' ' && c != '\t')
            break;
        column = after(c, column, tab_width);
    }
    return column;
}

}  // namespace tarnel_engine
