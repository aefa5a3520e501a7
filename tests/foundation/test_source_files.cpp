// Reading and writing source files as raw bytes, and the promise that a write never leaves a file
// half-written: it either holds the new bytes or stays exactly as it was.
#include "engine/read_from.h"
#include "engine/write_to.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray contents_of(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void put(QString const& path, QByteArray const& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

// Runs `step` in a child process (to change its user or limits) and returns its exit status.
template <typename step_t>
int in_child(step_t step) {
    pid_t child = ::fork();
    if (child == 0)
        ::_exit(step());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 100 + WTERMSIG(status);
}

// As root, permissions stop nothing: the checks run as the unprivileged user "nobody".
bool become_nobody() { return ::geteuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0); }

// 0 when the unprivileged user's write to `file` failed, 1 when it succeeded.
int write_as_nobody(QString const& file, std::string const& text) {
    return in_child([&] {
        if (!become_nobody())
            return 2;
        return write_to(file).from(text) ? 1 : 0;
    });
}

mode_t mode_of(QString const& path) {
    struct stat status {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return status.st_mode;
}

}  // namespace

class test_source_files : public QObject {
    Q_OBJECT
private slots:
    void init();
    void reads_every_byte();
    void reading_a_missing_file_or_a_directory_fails();
    void writes_every_byte_and_leaves_no_temporary_file();
    void keeps_permissions_and_owner();
    void rewrites_the_target_of_a_symbolic_link();
    void a_file_that_is_not_writable_stays_untouched();
    void a_write_beyond_the_file_size_limit_keeps_the_old_file();
    void a_directory_without_write_permission_keeps_the_file();

private:
    std::unique_ptr<QTemporaryDir> directory;
    QString path(QString const& name) const { return directory->path() + "/" + name; }
};

void test_source_files::init() {
    directory = std::make_unique<QTemporaryDir>();
    QVERIFY(directory->isValid());
    // The unprivileged user must reach the files the tests give it.
    QFile::setPermissions(directory->path(), QFile::permissions(directory->path()) |
                                                 QFile::ExeOther | QFile::ReadOther);
}

void test_source_files::reads_every_byte() {
    QByteArray const bytes = QByteArray("a\0b\r\n\xff\xfe", 7) + QByteArray(300000, 'x');
    put(path("f.c"), bytes);
    std::string text = "stale";
    QVERIFY(read_from(path("f.c")).to(text));
    QCOMPARE(QByteArray::fromStdString(text), bytes);

    put(path("empty.c"), QByteArray());
    QVERIFY(read_from(path("empty.c")).to(text));
    QVERIFY(text.empty());
}

void test_source_files::reading_a_missing_file_or_a_directory_fails() {
    std::string text = "kept";
    QVERIFY(!read_from(path("missing.c")).to(text));
    QVERIFY(!read_from(directory->path()).to(text));
    QCOMPARE(text, std::string("kept"));
}

void test_source_files::writes_every_byte_and_leaves_no_temporary_file() {
    put(path("f.c"), "old content that is longer than the new one\n");
    std::string const text("new\0\r\n", 6);
    QVERIFY(write_to(path("f.c")).from(text));
    QCOMPARE(contents_of(path("f.c")), QByteArray::fromStdString(text));
    QCOMPARE(QDir(directory->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{"f.c"});

    QVERIFY(write_to(path("new.c")).from("created"));
    QCOMPARE(contents_of(path("new.c")), QByteArray("created"));
}

void test_source_files::keeps_permissions_and_owner() {
    put(path("script.sh"), "echo a\n");
    ::chmod(QFile::encodeName(path("script.sh")).constData(), 0751);
    ::chown(QFile::encodeName(path("script.sh")).constData(), 65534, 65534);
    QVERIFY(write_to(path("script.sh")).from("echo b\n"));
    QCOMPARE(mode_of(path("script.sh")) & 07777, mode_t(0751));
    struct stat status {};
    ::stat(QFile::encodeName(path("script.sh")).constData(), &status);
    if (::geteuid() == 0) {
        QCOMPARE(status.st_uid, uid_t(65534));
        QCOMPARE(status.st_gid, gid_t(65534));
    }
}

void test_source_files::rewrites_the_target_of_a_symbolic_link() {
    QDir(directory->path()).mkdir("real");
    put(path("real/target.c"), "old\n");
    QVERIFY(QFile::link(path("real/target.c"), path("link.c")));
    QVERIFY(write_to(path("link.c")).from("new\n"));
    QVERIFY(S_ISLNK(mode_of(path("link.c"))));
    QCOMPARE(contents_of(path("real/target.c")), QByteArray("new\n"));
    QCOMPARE(QDir(path("real")).entryList(QDir::Files | QDir::Hidden), QStringList{"target.c"});
}

void test_source_files::a_file_that_is_not_writable_stays_untouched() {
    put(path("locked.c"), "original\n");
    ::chmod(QFile::encodeName(path("locked.c")).constData(), 0444);
    ::chmod(QFile::encodeName(directory->path()).constData(), 0777);
    QString const file = path("locked.c");
    QCOMPARE(write_as_nobody(file, "changed\n"), 0);
    QCOMPARE(contents_of(file), QByteArray("original\n"));
    QCOMPARE(QDir(directory->path()).entryList(QDir::Files | QDir::Hidden), QStringList{"locked.c"});
}

void test_source_files::a_write_beyond_the_file_size_limit_keeps_the_old_file() {
    QByteArray const original(10000, 'o');
    put(path("big.c"), original);
    QString const file = path("big.c");
    int const status = in_child([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{20000, 20000};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return 2;
        return write_to(file).from(std::string(100000, 'n')) ? 1 : 0;
    });
    QCOMPARE(status, 0);
    QCOMPARE(contents_of(file), original);
    QCOMPARE(QDir(directory->path()).entryList(QDir::Files | QDir::Hidden), QStringList{"big.c"});
}

void test_source_files::a_directory_without_write_permission_keeps_the_file() {
    // Without a temporary file beside it, the file cannot be replaced safely: it is left alone.
    QDir(directory->path()).mkdir("closed");
    put(path("closed/f.c"), "original\n");
    ::chmod(QFile::encodeName(path("closed/f.c")).constData(), 0666);
    ::chmod(QFile::encodeName(path("closed")).constData(), 0555);
    QString const file = path("closed/f.c");
    QCOMPARE(write_as_nobody(file, "changed\n"), 0);
    QCOMPARE(contents_of(file), QByteArray("original\n"));
    ::chmod(QFile::encodeName(path("closed")).constData(), 0755);
}

QTEST_GUILESS_MAIN(test_source_files)
#include "test_source_files.moc"
