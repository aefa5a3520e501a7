// Replaces a file's content with new bytes, never leaving it half-written: the bytes go to a
// temporary file beside it, flushed to the disk, which then takes its place; the directory is
// flushed before the replacement is reported (by a run, once per directory before its report).
//
// A revision replaces a file only while it still holds exactly the text that was revised: the new
// file is exchanged with the old one in one step (renameat2 with RENAME_EXCHANGE), and the old one,
// now under the temporary name, is compared with what was read (same inode, same bytes). If anybody
// saved the file in between, the exchange is undone and the user's version stays, so an edit that
// lands at any moment before the exchange is kept. On a file system without that exchange the
// check is made just before a plain rename: an edit landing in the microseconds between that check
// and the rename can then still be lost. What neither can keep: a write into the old file through a
// descriptor opened before the exchange and landing after the comparison (microseconds).
//
// A file with several hard links is refused: a rename would give only this name the new text while
// the others keep the old one, and a rewrite in place can be neither atomic nor checked against a
// concurrent save, so it could leave the file half-written.
#ifndef STYLE_TARNEL_ENGINE_WRITE_TO_H
#define STYLE_TARNEL_ENGINE_WRITE_TO_H

#include "engine/directory_flushes.h"
#include "engine/file_status.h"

#include <QString>
#include <string>

enum class replacement {
    done,
    // The file no longer holds the text that was read: it was kept as it is.
    edited_meanwhile,
    // Not writable, several hard links, no temporary file beside it, a write that failed midway
    // (disk full, file-size limit): the file is as it was.
    failed,
};

class write_to {
public:
    explicit write_to(QString const& path) : path(path.toStdString()) {}
    // Leaves the flush of the file's directory to `later`, which its owner makes before it
    // reports the replacement.
    write_to(QString const& path, directory_flushes& later) : path(path.toStdString()), later(&later) {}

    // True when the file now holds `text`. False, with the file as it was, when the file is not
    // writable, a temporary file cannot be made beside it, or any write fails midway (disk full,
    // file-size limit). The file keeps its permissions, owner and extended attributes; a symbolic
    // link stays a link and its target is rewritten.
    bool from(std::string const& text) const;

    // The same for a file whose text `read` was read through a descriptor with `as_read` status:
    // replaced only if it still holds `read`. On `done`, `written` is the status of the new
    // content as it reached the disk, which a change record keeps.
    replacement from(std::string const& text, std::string const& read, file_status const& as_read,
                     file_status& written) const;

private:
    // Makes the rename in the file's directory durable, now or through `later`.
    void flush_the_directory_of(std::string const& target) const;

    std::string path;
    directory_flushes* later = nullptr;
};

#endif
