// The usage text and the version line, written to standard error.
#ifndef STYLE_TARNEL_CONSOLE_SHOW_HELP_INFO_H
#define STYLE_TARNEL_CONSOLE_SHOW_HELP_INFO_H

namespace console {

class show_help_info {
public:
    void operator()() const;
};

class show_version {
public:
    void operator()() const;
};

}  // namespace console

#endif
