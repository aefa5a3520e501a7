#include "app/mode.h"

#include <boost/algorithm/string/predicate.hpp>

#include <string>
#include <vector>

bool program_starts_in_GUI_mode(int argc, char** argv) {
    if (argc != 2)
        return argc == 1;
    std::vector<std::string> const arguments(argv, argv + argc);
    return boost::algorithm::istarts_with(arguments[1], "-psn");
}
