// Turns a path a user typed into an absolute one: a leading "~" or "~user" becomes that home
// directory (a name of no known user is left as written), a relative path is taken against the
// current directory, and the result is normalised.
#ifndef STYLE_TARNEL_CORE_TRANSFORM_H
#define STYLE_TARNEL_CORE_TRANSFORM_H

#include <QString>

class transform {
public:
    explicit transform(QString path) : path(std::move(path)) {}
    QString to_absolute() const;

private:
    QString path;
};

#endif
