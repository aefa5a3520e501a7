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
// Where new and changed addons go: the bundle's addons directory while the user can write it,
// the user's own (created when needed) otherwise.
struct new_addons_directory {
    static QString path();
};

// Where imported plugins go: the bundle's plugins directory while the user can write it, the
// user's own (created when needed) otherwise.
struct new_plugins_directory {
    static QString path();
};

// Where a changed addon at `path` is written: the path itself when the user can write its
// directory; otherwise the file of the same name in the user's addons directory (created when
// needed), which then hides the original.
QString where_to_write_addon(QString const& path);

// Removes the addon file that a listing of the addons directories gave (an absolute path); false
// when it is not removed.
bool remove_addon_at(std::string const& file);
// Removes the plugin file at that absolute path; false when it is not removed.
bool remove_plugin_at(QString const& file);

// Whether `name` can only name a file inside a directory: not empty, no directory separator, no
// NUL byte, and neither "." nor "..". Names read from addons and reported by plugins are checked
// with this before a path is built from them.
bool is_plain_file_name(std::string const& name);

// What a copy must pass before it replaces anything: gets the temporary copy's absolute path (it
// lies in the target directory).
using check_of_copy = std::function<bool(QString const& temporary_file)>;

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
