// A bundle of our own for one test: the executable copied into <tmp>/bin, empty or chosen
// <tmp>/PlugIns/languages and <tmp>/PlugIns/styles, and its own settings, cache and home
// directories, so that no test ever touches the user's settings or the real bundle.
#ifndef STYLE_TARNEL_TESTS_TEMPORARY_BUNDLE_H
#define STYLE_TARNEL_TESTS_TEMPORARY_BUNDLE_H

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

struct run_result {
    QByteArray out;
    QByteArray err;
    int status = -1;
    bool crashed = false;
};

struct run_options {
    // Run as an unprivileged user (nobody), so that permissions stop the program as they stop a
    // user; tests run as root on CI.
    bool unprivileged = false;
    QByteArray input;
    QString working_directory;
    QProcessEnvironment extra_environment;
    int timeout_ms = 120000;
    // Shell prefix such as "ulimit -f 1;", run through /bin/sh before the executable.
    QString shell_prefix;
};

class temporary_bundle {
public:
    // With the built executable, or with `executable` (for a test that runs itself in a bundle).
    explicit temporary_bundle(QString const& executable = QString());

    bool is_valid() const { return valid; }
    QString root() const;
    QString executable() const;
    QString plugins_directory() const;
    QString addons_directory() const;
    QString config_home() const;
    QString cache_home() const;
    QString home() const;
    // A directory for the sources a test revises, imports or exports.
    QString work_directory() const;

    // Copies a built plugin into the plugins directory, under its own name or `as`.
    bool add_plugin(QString const& built_plugin, QString const& as = QString()) const;
    bool add_addon(QString const& file_name, QByteArray const& content) const;
    // Writes a file below the work directory, creating its directories; returns its path.
    QString write_file(QString const& relative_path, QByteArray const& content) const;
    static QByteArray contents_of(QString const& path);

    QProcessEnvironment environment() const;
    run_result run(QStringList const& arguments, run_options const& options = run_options()) const;
    // Starts the executable as run() does (all options but input and timeout_ms) and returns at
    // once, for a test that acts on the program while it runs; the process's pid is the
    // program's own.
    void start(QProcess& process, QStringList const& arguments, run_options const& options) const;

    // Opens everything below the bundle to the unprivileged user (directories and files keep
    // whatever write bits a test then takes away).
    void share_with_unprivileged_user() const;

private:
    QTemporaryDir directory;
    bool valid = false;
};

// Waits for a started process (killing it after `timeout_ms`) and collects what it wrote and how
// it ended.
run_result result_of_finished(QProcess& process, int timeout_ms);

#endif
