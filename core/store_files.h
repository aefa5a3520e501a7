// Copying files into, and removing files from, the plugins and addons directories. A copy never
// loses the file it replaces: it goes to a hidden temporary name in the target directory, is
// checked there, and only then takes the old file's place in one rename.
#ifndef STYLE_TARNEL_CORE_STORE_FILES_H
#define STYLE_TARNEL_CORE_STORE_FILES_H

#include "core/path_to.h"

#include <QString>

#include <functional>
#include <string>

// The two directories of the bundle that the store writes to, as template arguments.
struct plugins_directory {
    static QString path() { return path_to().plugins_directory(); }
};
struct addons_directory {
    static QString path() { return path_to().addons_directory(); }
};

// Whether `name` can only name a file inside a directory: not empty, no directory separator, no
// NUL byte, and neither "." nor "..". Names read from addons and reported by plugins are checked
// with this before a path is built from them.
bool is_plain_file_name(std::string const& name);

// What a copy must pass before it replaces anything: gets the temporary copy's bare file name
// (it lies in the target directory).
using check_of_copy = std::function<bool(QString const& temporary_file_name)>;

namespace detail {

bool store_in(QString const& directory, QString const& source, check_of_copy const& check);
bool remove_from(QString const& directory, std::string const& file_name);

}  // namespace detail

class store {
public:
    // Copies the file at `source` into the directory under its own file name, replacing a file of
    // that name. False, with the directory as it was, when the source cannot be read, the copy
    // cannot be written, `check` refuses it, or the old file cannot be replaced.
    template <class directory>
    static bool in(QString const& source, check_of_copy const& check = check_of_copy()) {
        return detail::store_in(directory::path(), source, check);
    }
};

namespace detail {

class remove {
public:
    // Removes the directory's file of that name; false when it is not removed (or the name is no
    // plain file name).
    template <class directory>
    static bool from(std::string const& file_name) {
        return remove_from(directory::path(), file_name);
    }
};

}  // namespace detail

#endif
