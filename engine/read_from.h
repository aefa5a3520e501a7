// Reads a whole file as raw bytes: sources and addons are never decoded by the host.
#ifndef STYLE_TARNEL_ENGINE_READ_FROM_H
#define STYLE_TARNEL_ENGINE_READ_FROM_H

#include "engine/file_status.h"

#include <QString>
#include <string>

class read_from {
public:
    explicit read_from(QString const& path) : path(path.toStdString()) {}

    // False when the file cannot be opened or read; otherwise `out` holds the whole file.
    bool to(std::string& out) const;
    // The same, and `as_read` gets the `fstat` of the descriptor the text was read through, taken
    // before the first byte: a write during the reading makes the file differ from it.
    bool to(std::string& out, file_status& as_read) const;

private:
    std::string path;
};

#endif
