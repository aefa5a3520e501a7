// The licence terms a user accepts once, at the first start from a terminal.
#ifndef STYLE_TARNEL_CONSOLE_FIRST_START_AGREEMENT_H
#define STYLE_TARNEL_CONSOLE_FIRST_START_AGREEMENT_H

#include <iosfwd>

namespace console {

class first_start_agreement {
public:
    // Shows the terms and reads the answer. True when the user accepted, which is remembered.
    bool is_accepted_through(std::istream& in, std::ostream& out) const;
};

}  // namespace console

#endif
