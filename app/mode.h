// Tells the windowed start from the command-line start by the shape of the command line alone.
#ifndef STYLE_TARNEL_APP_MODE_H
#define STYLE_TARNEL_APP_MODE_H

// True with no arguments, or with the one process-serial-number argument ("-psn...", any case)
// that the macOS launcher adds to a start from the desktop.
bool program_starts_in_GUI_mode(int argc, char** argv);

#endif
