// Revision benchmark: times command-line runs (kernel::start_revise, in process) over generated
// trees of small files, with a plugin that changes nothing and one that changes every file, and
// the floors of the same machine: a metadata walk of the tree, reading and writing every file, and
// reading every file and replacing it through a temporary file and a rename.
// It runs itself inside a temporary bundle with temporary settings; results go to standard output
// as a Markdown table.
//
//     bench_revision [number of files ...]     (default: 1000 10000 50000)
#include "core/kernel.h"
#include "core/product.h"
#include "core/settings_keys.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fts.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr char inside_marker[] = "STYLE_TARNEL_BENCH_BUNDLE";

double seconds_of(std::function<void()> const& work) {
    auto const start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Standard output and error go to /dev/null while a run is timed, so that its writes cost what
// they cost on a terminal without flooding one; the table goes to the saved standard output.
class quiet_streams {
public:
    quiet_streams() : out(::dup(1)), err(::dup(2)) {
        std::fflush(stdout);
        int const null = ::open("/dev/null", O_WRONLY);
        ::dup2(null, 1);
        ::dup2(null, 2);
        ::close(null);
    }
    ~quiet_streams() {
        std::fflush(stdout);
        ::dup2(out, 1);
        ::dup2(err, 2);
        ::close(out);
        ::close(err);
    }

private:
    int out;
    int err;
};

std::string const sample =
    "int add(int a, int b)\n{\n    return a + b;\n}\n\n"
    "int main()\n{\n    int total = 0;\n    for (int i = 0; i < 10; ++i)\n"
    "        total = add(total, i);\n    return total;\n}\n";

void generate(QString const& root, int files) {
    for (int i = 0; i < files; ++i) {
        QString const directory = root + QString("/d%1").arg(i / 100, 4, 10, QChar('0'));
        if (i % 100 == 0)
            QDir().mkpath(directory);
        QFile file(directory + QString("/f%1.bnc").arg(i % 100, 2, 10, QChar('0')));
        if (file.open(QIODevice::WriteOnly))
            file.write(sample.data(), static_cast<qint64>(sample.size()));
    }
}

// Visits every entry below `root` with its metadata, as a directory walk does.
std::vector<std::string> walk(QString const& root) {
    std::vector<std::string> files;
    QByteArray path = QFile::encodeName(root);
    char* roots[] = {path.data(), nullptr};
    FTS* tree = ::fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR, nullptr);
    while (FTSENT* entry = ::fts_read(tree))
        if (entry->fts_info == FTS_F)
            files.emplace_back(entry->fts_path);
    ::fts_close(tree);
    return files;
}

// Reads the whole file into `text`; its mode goes to `mode`.
void read_whole(std::string const& path, std::string& text, mode_t& mode) {
    int const fd = ::open(path.c_str(), O_RDONLY);
    struct stat status {};
    ::fstat(fd, &status);
    text.resize(static_cast<std::size_t>(status.st_size));
    ssize_t const got = ::read(fd, &text[0], text.size());
    text.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    mode = status.st_mode;
    ::close(fd);
}

void read_and_write(std::vector<std::string> const& files) {
    std::string text;
    mode_t mode = 0;
    for (auto const& path : files) {
        read_whole(path, text, mode);
        int const fd = ::open(path.c_str(), O_WRONLY | O_TRUNC);
        if (::write(fd, text.data(), text.size()) < 0)
            std::perror("write");
        ::close(fd);
    }
}

// The same, but each file replaced as a revision replaces it, so that no file is ever
// half-written: a temporary file beside it, renamed over it.
void read_and_replace(std::vector<std::string> const& files) {
    std::string text;
    mode_t mode = 0;
    for (auto const& path : files) {
        read_whole(path, text, mode);
        std::string temporary = path + ".XXXXXX";
        int const fd = ::mkostemp(&temporary[0], O_CLOEXEC);
        if (::write(fd, text.data(), text.size()) < 0)
            std::perror("write");
        ::fchmod(fd, mode & 07777);
        ::close(fd);
        if (::rename(temporary.c_str(), path.c_str()) != 0)
            std::perror("rename");
    }
}

void forget_every_record() {
    QSettings records(product::organisation_name, settings_key::change_records_store);
    records.clear();
    records.sync();
}

double run(std::string const& language, QString const& root) {
    revision_task const task{language, "Bench", "bnc", QStringList{root}};
    quiet_streams quiet;
    return seconds_of([&] { kernel().start_revise(task); });
}

int benchmark(QStringList const& sizes) {
    std::printf("| files | metadata walk | read and write | read and replace | plugin | first run | unchanged run | forced run |\n");
    std::printf("|---:|---:|---:|---:|---|---:|---:|---:|\n");
    for (auto const& size : sizes) {
        int const files = size.toInt();
        QString const root = QDir::current().filePath(QString("tree-%1").arg(files));
        generate(root, files);
        walk(root);  // warm the caches once, as a second run on the user's tree finds them
        double const walk_time = seconds_of([&] { walk(root); });
        std::vector<std::string> const all = walk(root);
        double const read_write_time = seconds_of([&] { read_and_write(all); });
        double const read_replace_time = seconds_of([&] { read_and_replace(all); });
        QStringList languages{"Same", "Change"};
        if (qEnvironmentVariableIsSet("BENCH_LANGUAGES"))
            languages = qEnvironmentVariable("BENCH_LANGUAGES").split(' ');
        for (auto const& name : languages) {
            std::string const language = name.toStdString();
            forget_every_record();
            double const first = run(language, root);
            double const unchanged = run(language, root);
            double const forced = seconds_of([&] {
                kernel().forget_change_records_of({root});
            }) + run(language, root);
            std::printf("| %d | %.3f s | %.3f s | %.3f s | %s | %.3f s | %.3f s | %.3f s |\n", files, walk_time,
                        read_write_time, read_replace_time, language == "Same" ? "changes nothing" : "changes every file",
                        first, unchanged, forced);
            std::fflush(stdout);
        }
        QDir(root).removeRecursively();
        forget_every_record();
    }
    return 0;
}

// Makes <tmp>/bin/<this program>, <tmp>/PlugIns/{languages,styles} and settings of its own, and
// runs the copy there.
int run_in_bundle(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QTemporaryDir bundle;
    QDir const root(bundle.path());
    for (auto const& directory : {"bin", "PlugIns/languages", "PlugIns/styles", "config", "work"})
        root.mkpath(directory);
    QString const copy = root.filePath("bin/bench_revision");
    QFile::copy(QCoreApplication::applicationFilePath(), copy);
    QFile::copy(BENCH_SAME_PLUGIN, root.filePath("PlugIns/languages/libbench-same-plugin.so"));
    QFile::copy(BENCH_CHANGE_PLUGIN, root.filePath("PlugIns/languages/libbench-change-plugin.so"));
    for (auto const& language : {"Same", "Change"}) {
        QFile addon(root.filePath(QString("PlugIns/styles/Bench[%1].style").arg(language)));
        if (addon.open(QIODevice::WriteOnly))
            addon.write(QByteArray("NAME=Bench\nLANGUAGE=") + language + "\n");
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", root.filePath("config"));
    environment.insert(inside_marker, "1");
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(root.filePath("work"));
    process.start(copy, application.arguments().mid(1));
    if (!process.waitForStarted() || !process.waitForFinished(-1))
        return 2;
    return process.exitCode();
}

}  // namespace

int main(int argc, char** argv) {
    if (std::getenv(inside_marker) == nullptr)
        return run_in_bundle(argc, argv);
    QCoreApplication application(argc, argv);
    application.setOrganizationName(product::organisation_name);
    application.setApplicationName(product::title);
    QStringList sizes = application.arguments().mid(1);
    if (sizes.isEmpty())
        sizes = QStringList{"1000", "10000", "50000"};
    return benchmark(sizes);
}
