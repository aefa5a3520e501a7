// The one fixture of the tests: temporary bundles, runs of the copied executable, test languages.
#include "tests/harness/temporary_bundle.h"

#include "tests/harness/built_files.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <csignal>
#include <unistd.h>

temporary_bundle::temporary_bundle(QString const& executable_to_copy)
    : directory(QDir::tempPath() + "/style-tarnel-test-XXXXXX") {
    if (!directory.isValid())
        return;
    QDir root_dir(directory.path());
    for (auto sub : {"bin", "PlugIns/languages", "PlugIns/styles", "config", "cache", "data", "home", "work"})
        root_dir.mkpath(sub);
    QString const source = executable_to_copy.isEmpty() ? built::executable() : executable_to_copy;
    valid = QFile::copy(source, executable());
    QFile::setPermissions(executable(), QFile::permissions(source));
}

QString temporary_bundle::root() const { return directory.path(); }
QString temporary_bundle::executable() const { return root() + "/bin/Style Tarnel"; }
QString temporary_bundle::plugins_directory() const { return root() + "/PlugIns/languages"; }
QString temporary_bundle::addons_directory() const { return root() + "/PlugIns/styles"; }
QString temporary_bundle::config_home() const { return root() + "/config"; }
QString temporary_bundle::cache_home() const { return root() + "/cache"; }
QString temporary_bundle::data_home() const { return root() + "/data"; }
QString temporary_bundle::user_addons_directory() const { return data_home() + "/style-tarnel/styles"; }
QString temporary_bundle::home() const { return root() + "/home"; }
QString temporary_bundle::work_directory() const { return root() + "/work"; }

bool temporary_bundle::add_plugin(QString const& built_plugin, QString const& as) const {
    QString const name = as.isEmpty() ? QFileInfo(built_plugin).fileName() : as;
    QString const target = plugins_directory() + "/" + name;
    QFile::remove(target);
    return QFile::copy(built_plugin, target);
}

bool temporary_bundle::add_addon(QString const& file_name, QByteArray const& content) const {
    QFile file(addons_directory() + "/" + file_name);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size();
}

QString temporary_bundle::write_file(QString const& relative_path, QByteArray const& content) const {
    QString const path = work_directory() + "/" + relative_path;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(content);
    return path;
}

QByteArray temporary_bundle::contents_of(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList temporary_bundle::installed_addons() const { return QDir(addons_directory()).entryList(QDir::Files); }
QStringList temporary_bundle::installed_plugins() const { return QDir(plugins_directory()).entryList(QDir::Files); }

run_options as_nobody() {
    run_options options;
    options.unprivileged = true;
    return options;
}

QByteArray addon_text(QByteArray const& style, QByteArray const& language, QByteArray const& block_form) {
    return "NAME=" + style + "\nLANGUAGE=" + language + "\n\nS_NAME=block\nS_BEG\n" + block_form + "\nS_END\n";
}

void install_test_languages(QString const& plugins_directory, QString const& addons_directory) {
    QFile::copy(built::test_language_plugin(), plugins_directory + "/libtest-language-plugin.so");
    QFile::copy(built::other_language_plugin(), plugins_directory + "/libother-language-plugin.so");
    for (auto const& [style, language] : {std::pair{"Plain", "Test"}, {"Wide", "Test"}, {"Plain", "Other"}}) {
        QFile file(addons_directory + "/" + addon_file(style, language));
        if (file.open(QIODevice::WriteOnly))
            file.write(addon_text(style, language));
    }
}

QProcessEnvironment temporary_bundle::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", config_home());
    environment.insert("XDG_CACHE_HOME", cache_home());
    environment.insert("XDG_DATA_HOME", data_home());
    environment.insert("HOME", home());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    return environment;
}

void temporary_bundle::share_with_unprivileged_user() const {
    // Settings, cache and home are the program's own: it must be able to write there.
    QProcess::execute("chmod", {"-R", "o+rX", root()});
    QProcess::execute("chmod", {"-R", "o+w", config_home(), cache_home(), data_home(), home()});
}

void temporary_bundle::start(QProcess& process, QStringList const& arguments,
                             run_options const& options) const {
    QProcessEnvironment environment = this->environment();
    for (auto const& key : options.extra_environment.keys())
        environment.insert(key, options.extra_environment.value(key));

    QString program = executable();
    QStringList program_arguments = arguments;
    if (!options.shell_prefix.isEmpty()) {
        program_arguments = QStringList{"-c", options.shell_prefix + " exec \"$0\" \"$@\"", program} + arguments;
        program = "/bin/sh";
    }
    if (options.unprivileged && ::geteuid() == 0) {
        share_with_unprivileged_user();
        program_arguments = QStringList{"--reuid=65534", "--regid=65534", "--clear-groups", "--", program} +
                            program_arguments;
        program = "setpriv";
    }
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(options.working_directory.isEmpty() ? work_directory()
                                                                    : options.working_directory);
    process.start(program, program_arguments);
}

run_result temporary_bundle::run(QStringList const& arguments, run_options const& options) const {
    QProcess process;
    start(process, arguments, options);
    run_result result;
    if (!process.waitForStarted())
        return result;
    if (!options.input.isEmpty())
        process.write(options.input);
    process.closeWriteChannel();
    return result_of_finished(process, options.timeout_ms);
}

QList<QMap<QString, QString>> cases_in(QString const& table_file) {
    QList<QMap<QString, QString>> cases;
    for (QString const& block : QString::fromUtf8(temporary_bundle::contents_of(table_file)).split("\n\n")) {
        QMap<QString, QString> fields;
        for (QString const& line : block.split('\n'))
            if (!line.startsWith('#') && line.contains(": "))
                fields[line.section(": ", 0, 0)] = line.section(": ", 1);
        if (!fields.isEmpty())
            cases << fields;
    }
    if (cases.isEmpty())
        qFatal("no cases in the table file '%s'", qPrintable(table_file));
    return cases;
}

QByteArray unescaped(QString const& value) {
    QByteArray const escaped = value.toUtf8();
    QByteArray bytes;
    for (int i = 0; i < escaped.size(); ++i) {
        if (escaped[i] != '\\' || i + 1 == escaped.size()) {
            bytes += escaped[i];
            continue;
        }
        char const next = escaped[++i];
        bytes += next == 'n' ? '\n' : next == 'r' ? '\r' : next == '0' ? '\0' : next;
    }
    return bytes;
}

run_result result_of_finished(QProcess& process, int timeout_ms) {
    if (!process.waitForFinished(timeout_ms)) {
        process.kill();
        process.waitForFinished();
    }
    run_result result;
    result.out = process.readAllStandardOutput();
    result.err = process.readAllStandardError();
    result.crashed = process.exitStatus() != QProcess::NormalExit;
    result.status = result.crashed ? -1 : process.exitCode();
    return result;
}

running_program::running_program(temporary_bundle const& bundle, QStringList const& arguments, int delay_ms,
                                 run_options options)
    : log(bundle.home() + "/plugin.log") {
    QFile::remove(log);
    options.extra_environment.insert("TEST_PLUGIN_LOG", log);
    options.extra_environment.insert("TEST_PLUGIN_DELAY_MS", QString::number(delay_ms));
    bundle.start(process, arguments, options);
    process.waitForStarted();
    process.closeWriteChannel();
}

running_program::~running_program() {
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
    }
}

int running_program::files_asked_about() const { return temporary_bundle::contents_of(log).count(" revise "); }

bool running_program::wait_until_plugin_was_asked_about(int files, int timeout_ms) const {
    QElapsedTimer timer;
    timer.start();
    while (files_asked_about() < files) {
        if (timer.elapsed() > timeout_ms || process.state() == QProcess::NotRunning)
            return false;
        QThread::msleep(5);
    }
    return true;
}

void running_program::send(int signal_number) const { ::kill(static_cast<pid_t>(process.processId()), signal_number); }

run_result running_program::finish(int timeout_ms) { return result_of_finished(process, timeout_ms); }

QStringList temporary_files_below(QString const& directory) {
    QStringList found;
    QDirIterator it(directory, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QString const path = it.next();
        if (it.fileName().contains(".tarnel-"))
            found << path;
    }
    return found;
}
