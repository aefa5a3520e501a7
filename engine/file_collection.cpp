#include "engine/file_collection.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

void split_by_string(std::vector<std::string>& parts, std::string const& text,
                     std::string const& separator) {
    if (text.empty())
        return;
    if (separator.empty()) {
        parts.push_back(text);
        return;
    }
    std::string::size_type from = 0;
    for (auto at = text.find(separator); at != std::string::npos; at = text.find(separator, from)) {
        parts.push_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    parts.push_back(text.substr(from));
}

QStringList obtain_full_file_paths_from::with(QString const& extensions) const {
    QStringList name_filters;
    for (auto const& extension : extensions.split(' ', Qt::SkipEmptyParts)) {
        QString const filter = "*." + extension;
        if (!name_filters.contains(filter))
            name_filters << filter;
    }
    QStringList files;
    for (auto const& path : paths)
        files << paths_from_this(path, name_filters);
    return files;
}

QStringList obtain_full_file_paths_from::paths_from_this(QString const& path,
                                                         QStringList const& name_filters) const {
    QStringList files;
    QFileInfo const info(path);
    if (info.isDir()) {
        QDirIterator it(path, name_filters, QDir::Files | QDir::NoSymLinks,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            it.next();
            files << it.fileInfo().absoluteFilePath();
        }
    } else if (info.isFile()) {
        files << path;
    }
    return files;
}

bool there_are_some::with_extensions_that_not_corresponds_to(std::string const& extensions) const {
    std::vector<std::string> allowed;
    split_by_string(allowed, extensions, " ");
    for (auto const& path : paths) {
        QFileInfo const info(path);
        if (!info.isFile())
            continue;
        std::string const suffix = info.suffix().toStdString();
        if (std::find(allowed.begin(), allowed.end(), suffix) == allowed.end())
            return true;
    }
    return false;
}
