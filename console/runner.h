// The command-line front end's entry: its result is the process's exit status.
#ifndef STYLE_TARNEL_CONSOLE_RUNNER_H
#define STYLE_TARNEL_CONSOLE_RUNNER_H

namespace console {

class runner {
public:
    int operator()(int argc, char** argv) const;
};

}  // namespace console

#endif
