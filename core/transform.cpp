#include "core/transform.h"

#include <QDir>
#include <QFile>

#include <pwd.h>

namespace {

// "~" and "~/x" name the user's home, "~bob/x" that of the user bob; empty when the path does not
// begin with the home of a user the system knows.
QString home_named_by(QString const& path, int& length) {
    length = path.indexOf('/');
    if (length < 0)
        length = path.size();
    if (length == 1)
        return QDir::homePath();
    struct passwd const* user = ::getpwnam(QFile::encodeName(path.mid(1, length - 1)).constData());
    if (user == nullptr || user->pw_dir == nullptr)
        return QString();
    return QFile::decodeName(user->pw_dir);
}

}  // namespace

QString transform::to_absolute() const {
    QString expanded = path;
    if (expanded.startsWith('~')) {
        int length = 0;
        QString const home = home_named_by(expanded, length);
        // A path that only looks like it begins with a user's home is taken as written.
        if (!home.isEmpty())
            expanded.replace(0, length, home);
    }
    QDir directory(expanded);
    directory.makeAbsolute();
    return directory.absolutePath();
}
