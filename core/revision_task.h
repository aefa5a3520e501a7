// One revision request: which language and style, which extensions, which paths.
#ifndef STYLE_TARNEL_CORE_REVISION_TASK_H
#define STYLE_TARNEL_CORE_REVISION_TASK_H

#include <QStringList>
#include <string>

struct revision_task {
    std::string language;
    std::string style;
    // Extensions without dots, separated by single spaces (UTF-8).
    std::string extensions;
    // Raw paths of files and directories, one per element.
    QStringList paths;
};

#endif
