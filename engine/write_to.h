// Replaces a file's content with new bytes, never leaving it half-written: the bytes go to a
// temporary file beside it, flushed to the disk, which then takes its place in one rename; the
// directory is flushed after the rename.
#ifndef STYLE_TARNEL_ENGINE_WRITE_TO_H
#define STYLE_TARNEL_ENGINE_WRITE_TO_H

#include <QString>
#include <string>

class write_to {
public:
    explicit write_to(QString const& path) : path(path.toStdString()) {}

    // True when the file now holds `text`. False, with the file as it was, when the file is not
    // writable, a temporary file cannot be made beside it, or any write fails midway (disk full,
    // file-size limit). The file keeps its permissions and owner; a symbolic link stays a link
    // and its target is rewritten.
    bool from(std::string const& text) const;

private:
    std::string path;
};

#endif
