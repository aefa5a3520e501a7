// The one fixture of the tests: a bundle of our own (the executable copied into <tmp>/bin, chosen
// plugins and addons in <tmp>/PlugIns, its own settings, cache and home), so that no test touches
// the user's settings or the real bundle; installed_bundle adds the test languages, running_program
// acts on a run midway, and cases_in reads the tables of cases beside the tests.
#ifndef STYLE_TARNEL_TESTS_TEMPORARY_BUNDLE_H
#define STYLE_TARNEL_TESTS_TEMPORARY_BUNDLE_H

#include <QByteArray>
#include <QList>
#include <QMap>
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
    bool unprivileged = false;  // as nobody, so that permissions stop the program (CI runs as root)
    QByteArray input;
    QString working_directory;
    QProcessEnvironment extra_environment;
    int timeout_ms = 120000;
    QString shell_prefix;  // such as "ulimit -f 1;", run by /bin/sh before the executable
};

run_options as_nobody();

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
    // XDG_DATA_HOME, which holds the user's own styles where the bundle cannot be written.
    QString data_home() const;
    QString user_addons_directory() const;
    QString home() const;
    QString work_directory() const;  // the sources a test revises, imports or exports

    // Copies a built plugin into the plugins directory, under its own name or `as`.
    bool add_plugin(QString const& built_plugin, QString const& as = QString()) const;
    bool add_addon(QString const& file_name, QByteArray const& content) const;
    // Writes a file below the work directory, creating its directories; returns its path.
    QString write_file(QString const& relative_path, QByteArray const& content) const;
    static QByteArray contents_of(QString const& path);
    QStringList installed_addons() const;
    QStringList installed_plugins() const;

    QProcessEnvironment environment() const;
    run_result run(QStringList const& arguments, run_options const& options = run_options()) const;
    // Starts the executable as run() does (but for input and timeout_ms) and returns at once.
    void start(QProcess& process, QStringList const& arguments, run_options const& options) const;

    // Opens everything below the bundle to the unprivileged user for reading.
    void share_with_unprivileged_user() const;

private:
    QTemporaryDir directory;
    bool valid = false;
};

// An addon of `style` for `language` with a valid form of the test language's "block".
QByteArray addon_text(QByteArray const& style, QByteArray const& language,
                      QByteArray const& block_form = "begin SOME end");
inline QByteArray addon_file(QByteArray const& style, QByteArray const& language) {
    return style + "[" + language + "].style";
}
// Copies the test plugins "Test" (styles Plain and Wide) and "Other" (style Plain) with their
// addons into a plugins and an addons directory.
void install_test_languages(QString const& plugins_directory, QString const& addons_directory);

struct installed_bundle : temporary_bundle {
    installed_bundle() { install_test_languages(plugins_directory(), addons_directory()); }
};

// The cases of a table file beside a test: blocks separated by a blank line, one "key: value" a
// line, "#" lines for comments; and a value with its \n, \r, \0 and \\ turned into those bytes.
QList<QMap<QString, QString>> cases_in(QString const& table_file);
QByteArray unescaped(QString const& value);

// Waits for a started process (killing it after `timeout_ms`) and collects its outcome.
run_result result_of_finished(QProcess& process, int timeout_ms);

// A run of the executable that a test acts on midway: the test plugin logs every file it is asked
// about and sleeps `delay_ms` first, so the test can wait until the run is at a known file and
// then change files, send signals, and collect the result.
class running_program {
public:
    running_program(temporary_bundle const& bundle, QStringList const& arguments, int delay_ms,
                    run_options options = run_options());
    ~running_program();
    running_program(running_program const&) = delete;
    running_program& operator=(running_program const&) = delete;

    bool wait_until_plugin_was_asked_about(int files, int timeout_ms = 60000) const;
    int files_asked_about() const;
    void send(int signal_number) const;
    run_result finish(int timeout_ms = 120000);

private:
    QProcess process;
    QString log;
};

// Every file below `directory` whose name marks it as a temporary file of an atomic write.
QStringList temporary_files_below(QString const& directory);

// Compares one run's standard error, standard output and status.
#define COMPARE_RUN(result, expected_err, expected_out, expected_status)                \
    do {                                                                                \
        run_result const& r_ = (result);                                                \
        QCOMPARE(QString::fromUtf8(r_.err), QString::fromUtf8(expected_err));           \
        QCOMPARE(QString::fromUtf8(r_.out), QString::fromUtf8(expected_out));           \
        QCOMPARE(r_.status, (expected_status));                                         \
    } while (false)

#endif
