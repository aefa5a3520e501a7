#include "console/first_start_agreement.h"

#include "core/kernel.h"
#include "core/product.h"

#include <istream>
#include <ostream>
#include <string>

namespace console {

namespace {

char const terms[] =
    "Style Tarnel licence agreement\n"
    "\n"
    "Style Tarnel rewrites the source files you name, in place. It is provided \"as is\", without\n"
    "warranty of any kind; keep your sources under version control or backed up. You may use it for\n"
    "any purpose, and share unchanged copies of it with its licence. Language plugins and style\n"
    "addons you import are their authors' and come under their own terms.\n";

}  // namespace

bool first_start_agreement::is_accepted_through(std::istream& in, std::ostream& out) const {
    out << terms << "\nMore at " << product::web_site << "\n\nDo you accept these terms? [y/n] " << std::flush;
    std::string answer;
    std::getline(in, answer);
    if (answer != "y" && answer != "Y" && answer != "yes" && answer != "Yes")
        return false;
    kernel().remember_that_EULA_was_accepted();
    return true;
}

}  // namespace console
