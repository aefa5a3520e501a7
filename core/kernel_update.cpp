// kernel: replacing the running executable by a newer file, in effect from the next start; the
// old one stays beside it under a "~" name until then. The candidate must prove itself first: a
// copy of it, marked executable, is run with "-v" and must answer with this product's version
// line; only that very copy is then put in place.
#include "core/kernel.h"

#include "core/path_to.h"

#include "core/product.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QRandomGenerator>

namespace {

// Long enough for a cold start from a slow disk, short enough that a program that never answers
// cannot hold the update.
int const seconds_to_answer = 5;
// An answer longer than this is no version line.
qint64 const longest_answer = 4096;

// Runs the executable at `path` with "-v", without a shell, with no input, and for a few seconds
// at most; true when it ends normally with status 0 and its first line of standard error is this
// product's version line (any version).
bool answers_with_our_version_line(QString const& path) {
    QProcess candidate;
    candidate.setProgram(path);
    candidate.setArguments({"-v"});
    candidate.setStandardInputFile(QProcess::nullDevice());
    candidate.setStandardOutputFile(QProcess::nullDevice());
    candidate.start(QIODevice::ReadOnly);
    if (!candidate.waitForStarted(seconds_to_answer * 1000))
        return false;
    QDeadlineTimer const deadline(seconds_to_answer * 1000);
    QByteArray answer;
    while (candidate.state() != QProcess::NotRunning && !deadline.hasExpired() && answer.size() <= longest_answer) {
        candidate.waitForReadyRead(static_cast<int>(std::min<qint64>(deadline.remainingTime(), 100)));
        candidate.setReadChannel(QProcess::StandardError);
        answer += candidate.readAll();
    }
    if (candidate.state() != QProcess::NotRunning) {
        candidate.kill();
        candidate.waitForFinished(seconds_to_answer * 1000);
        return false;
    }
    candidate.setReadChannel(QProcess::StandardError);
    answer += candidate.readAll();
    if (candidate.exitStatus() != QProcess::NormalExit || candidate.exitCode() != 0)
        return false;
    QByteArray const first_line = answer.left(answer.indexOf('\n'));
    QRegularExpression const version_line("^" + QRegularExpression::escape(QString::fromStdString(product::version_line_lead())) +
                                          "[0-9]+(\\.[0-9]+)*$");
    return version_line.match(QString::fromUtf8(first_line)).hasMatch();
}

}  // namespace

update_outcome kernel::update_with(std::string const& path_to_new_executable) const {
    QString const current = QCoreApplication::applicationFilePath();
    QString const backup = current + "~";
    QString const candidate = QString::fromStdString(path_to_new_executable);
    // The running executable as its own update would only replace itself by itself.
    if (QFileInfo(candidate).canonicalFilePath() == QFileInfo(current).canonicalFilePath())
        return update_outcome::not_applied;
    if (!directory_is_writable(QFileInfo(current).absolutePath()))
        return update_outcome::installation_read_only;
    QFile source(candidate);
    if (!source.open(QIODevice::ReadOnly))
        return update_outcome::not_applied;
    // Beside the executable, so that the copy that proved itself takes its place in one rename.
    QFile copy(QFileInfo(current).absolutePath() + QString("/.update-%1").arg(QRandomGenerator::global()->generate(), 8, 16, QChar('0')));
    if (!copy.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return update_outcome::not_applied;
    auto refused = [&](update_outcome outcome) {
        copy.remove();
        return outcome;
    };
    while (!source.atEnd()) {
        QByteArray const block = source.read(1 << 20);
        if (block.isEmpty() || copy.write(block) != block.size())
            return refused(update_outcome::not_applied);
    }
    // Closed before it runs: a file open for writing cannot be executed.
    copy.close();
    if (copy.error() != QFileDevice::NoError ||
        !copy.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                             QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther))
        return refused(update_outcome::not_applied);
    if (!answers_with_our_version_line(copy.fileName()))
        return refused(update_outcome::not_an_executable_of_ours);

    if (QFile::exists(backup))
        QFile::remove(backup);
    if (!QFile::rename(current, backup))
        return refused(update_outcome::not_applied);
    if (QFile::rename(copy.fileName(), current))
        return update_outcome::applied;
    // Never leave the program without its executable: the old one goes back in place.
    QFile::remove(current);
    QFile::rename(backup, current);
    return refused(update_outcome::not_applied);
}

bool kernel::apply(std::string const& path_to_new_executable) const {
    return update_with(path_to_new_executable) == update_outcome::applied;
}

void kernel::remove_old_executable_if_required() const {
    // Only the backup that `apply` made: other files ending in "~" beside the executable are
    // somebody else's.
    QString const backup = QCoreApplication::applicationFilePath() + "~";
    if (QFileInfo(backup).isFile())
        QFile::remove(backup);
}
