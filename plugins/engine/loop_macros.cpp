// Finding the macros used as loops is a scan of the sources' lines, bounded by their size.
#include "loop_macros.h"

#include "project_macros.h"
#include "text_lines.h"

#include <map>
#include <sstream>

namespace tarnel_engine {

using namespace macro_reading;

std::vector<std::string> loop_macros_used_in(std::vector<std::string> const& sources) {
    std::map<std::string, int> uses;
    for (std::string const& source : sources) {
        std::istringstream stream(source);
        std::string line;
        std::string previous;
        std::string before_previous;
        // At statement level: after a line that ends a statement or opens a block (not after a
        // function's head, which annotations such as `__acquires(lock)` may follow).
        auto const after_statement = [](std::string const& line_before) {
            std::string const last = trimmed(line_before);
            return last.empty() || last.back() == ';' || last.back() == '{' || last.back() == '}' ||
                   last.back() == ':' || last.back() == '/';
        };
        while (std::getline(stream, line)) {
            std::string const text = trimmed(line);
            if (!text.empty() && (line[0] == ' ' || line[0] == '\t') && after_statement(previous)) {
                std::string const name = name_opening(text, "{");
                if (!name.empty())
                    ++uses[name];
            }
            // The brace on a line of its own under the loop's head.
            if (text == "{" && (previous.size() > 0 && (previous[0] == ' ' || previous[0] == '\t')) &&
                after_statement(before_previous)) {
                std::string const name = name_opening(trimmed(previous), std::string());
                if (!name.empty())
                    ++uses[name];
            }
            if (!text.empty()) {
                before_previous = previous;
                previous = line;
            }
        }
    }
    return used_twice_naming_no_type(uses, sources);
}

}  // namespace tarnel_engine
