// What the store tests share: the temporary bundle's plugins and addons directories (emptied
// between test functions), writing addons and files, and running a check as an unprivileged user.
#ifndef STYLE_TARNEL_TESTS_STORE_FIXTURE_H
#define STYLE_TARNEL_TESTS_STORE_FIXTURE_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <string>

namespace fixture {

QString plugins_directory();
QString addons_directory();

// Empties both directories (hidden files too) and makes them writable again.
void clear_bundle();

// Copies a built test plugin into the plugins directory, under its own name or `as`.
void install_plugin(QString const& built_plugin, QString const& as = QString());
// Writes a file into the addons directory.
void install_addon(QString const& file_name, QByteArray const& content);

// "NAME=<style>\nLANGUAGE=<language>\n" followed by `sections`, with `EOL` for every line end.
QByteArray addon(QByteArray const& style, QByteArray const& language,
                 QByteArray const& sections = QByteArray(), QByteArray const& EOL = "\n");
// One structure section: "S_NAME=<name>", "S_BEG", the form, "S_END", each line ended by `EOL`.
QByteArray section(QByteArray const& name, QByteArray const& form, QByteArray const& EOL = "\n");

// All names in a directory, hidden ones too, sorted.
QStringList files_in(QString const& directory);
QByteArray contents_of(QString const& path);
void write_file(QString const& path, QByteArray const& content);

// Runs `check` in a child process as the unprivileged user "nobody" when the tests run as root
// (where permissions stop nothing), as the current user otherwise. The bundle's directories are
// opened to that user for reading first; files keep their permissions. True when `check` returned true.
bool as_unprivileged_user(std::function<bool()> const& check);

}  // namespace fixture

#endif
