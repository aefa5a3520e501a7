#include "console/runner.h"

#include "console/first_start_agreement.h"
#include "console/result_of_run.h"
#include "core/kernel.h"

#include <iostream>
#include <unistd.h>

namespace console {

int runner::operator()(int argc, char** argv) const {
    // Only a person at a terminal can answer: scripts, editors and CI go straight on, and
    // nothing is recorded for them.
    if (::isatty(STDIN_FILENO) && kernel().this_is_first_start_of_app() &&
        !first_start_agreement().is_accepted_through(std::cin, std::cerr))
        return 0;
    return result_of_run()(argc, argv);
}

}  // namespace console
