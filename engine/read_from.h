// Reads a whole file as raw bytes: sources and addons are never decoded by the host.
#ifndef STYLE_TARNEL_ENGINE_READ_FROM_H
#define STYLE_TARNEL_ENGINE_READ_FROM_H

#include <QString>
#include <string>

class read_from {
public:
    explicit read_from(QString const& path) : path(path.toStdString()) {}

    // False when the file cannot be opened or read; otherwise `out` holds the whole file.
    bool to(std::string& out) const;

private:
    std::string path;
};

#endif
