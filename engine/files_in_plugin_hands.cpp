#include "engine/files_in_plugin_hands.h"

#include "engine/change_records.h"

#include <QDateTime>
#include <QDir>
#include <QMap>
#include <QFile>
#include <QSettings>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

void append_line(int fd, QString const& line) {
    if (fd < 0)
        return;
    QByteArray const bytes = (line + '\n').toUtf8();
    // One write of one line with O_APPEND: lines of several workers never mix.
    while (::write(fd, bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0 && errno == EINTR) {
    }
}

// Paths may hold tabs and line ends: the list keeps them in Base64.
QString in_line(QString const& path) { return QString::fromLatin1(path.toUtf8().toBase64()); }
QString path_in(QString const& field) { return QString::fromUtf8(QByteArray::fromBase64(field.toLatin1())); }

}  // namespace

files_in_plugin_hands::files_in_plugin_hands(QSettings& records, QString const& language,
                                             QString const& style, QString const& addon_stamp)
    : records(records) {
    if (records.fileName().isEmpty() || !QDir().mkpath(records.fileName() + ".in-hands"))
        return;
    directory = records.fileName() + ".in-hands";
    // The process and the moment: a later process with the same number never takes a dead run's list.
    list = directory + "/" + QString::number(::getpid()) + "-" + QString::number(QDateTime::currentMSecsSinceEpoch());
    fd = ::open(QFile::encodeName(list).constData(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, 0600);
    if (fd >= 0 && ::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        fd = -1;
    }
    append_line(fd, language + '\t' + style + '\t' + addon_stamp);
}

files_in_plugin_hands::~files_in_plugin_hands() {
    if (fd < 0)
        return;
    ::unlink(QFile::encodeName(list).constData());
    ::close(fd);
}

QStringList files_in_plugin_hands::left_by_runs_that_died() const {
    QStringList left;
    if (directory.isEmpty())
        return left;
    for (QString const& name : QDir(directory).entryList(QDir::Files, QDir::Name)) {
        QString const other = directory + "/" + name;
        if (other == list)
            continue;
        int const other_fd = ::open(QFile::encodeName(other).constData(), O_RDONLY | O_CLOEXEC);
        if (other_fd < 0)
            continue;
        // Locked: its run is alive. (Taken, the lock goes with the descriptor.)
        if (::flock(other_fd, LOCK_EX | LOCK_NB) != 0) {
            ::close(other_fd);
            continue;
        }
        QFile file;
        QStringList lines;
        if (file.open(other_fd, QIODevice::ReadOnly))
            lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
        QStringList const run = lines.isEmpty() ? QStringList() : lines.takeFirst().split('\t');
        QMap<QString, QString> in_hands;  // path -> stamp
        QMap<QString, QString> earned;    // path -> stamp of its record, empty when it was removed
        for (QString const& line : lines) {
            QStringList const fields = line.split('\t');
            if (fields.size() == 3 && fields[0] == "+")
                in_hands[path_in(fields[2])] = fields[1];
            else if (fields.size() == 2 && fields[0] == "-")
                in_hands.remove(path_in(fields[1]));
            else if (fields.size() == 3 && fields[0] == "=")
                earned[path_in(fields[2])] = fields[1];
            else if (fields.size() == 2 && fields[0] == "x")
                earned[path_in(fields[1])] = QString();
        }
        if (run.size() == 3) {
            for (auto record = earned.begin(); record != earned.end(); ++record)
                if (record.value().isEmpty())
                    remove_info_about_changes_of(records).this_source_file(record.key());
                else
                    save_info_about_changes_of(records).this_source_file(record.key(), record.value(), run[0],
                                                                         run[1], run[2]);
            for (auto file_left = in_hands.begin(); file_left != in_hands.end(); ++file_left) {
                save_info_about_changes_of(records).this_source_file(file_left.key(), file_left.value(), run[0],
                                                                     run[1], run[2]);
                left << file_left.key();
            }
        }
        ::unlink(QFile::encodeName(other).constData());
        file.close();
        ::close(other_fd);
    }
    return left;
}

void files_in_plugin_hands::given(QString const& path, QString const& stamp) const {
    append_line(fd, "+\t" + stamp + '\t' + in_line(path));
}

void files_in_plugin_hands::taken_back(QString const& path) const { append_line(fd, "-\t" + in_line(path)); }

void files_in_plugin_hands::recorded(QString const& path, QString const& stamp) const {
    append_line(fd, "=\t" + stamp + '\t' + in_line(path));
}

void files_in_plugin_hands::forgotten(QString const& path) const { append_line(fd, "x\t" + in_line(path)); }
