#include "engine/plugin_descriptions.h"

#include "engine/plugin_obtainer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPluginLoader>
#include <QSaveFile>

#include <sys/stat.h>

namespace {

// What tells one plugin file from the next one of the same name: replacing or rewriting a file
// changes at least one of these.
QString identity_of(QString const& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return QString();
    return QStringLiteral("%1:%2:%3:%4.%5:%6.%7")
        .arg(status.st_dev)
        .arg(status.st_ino)
        .arg(status.st_size)
        .arg(status.st_mtim.tv_sec)
        .arg(status.st_mtim.tv_nsec)
        .arg(status.st_ctim.tv_sec)
        .arg(status.st_ctim.tv_nsec);
}

QJsonArray json_of(std::vector<std::string> const& words) {
    QJsonArray array;
    for (auto const& word : words)
        array.append(QString::fromStdString(word));
    return array;
}

std::vector<std::string> words_of(QJsonValue const& value) {
    std::vector<std::string> words;
    for (auto const& word : value.toArray())
        words.push_back(word.toString().toStdString());
    return words;
}

QJsonObject json_of(plugin_description const& description, QString const& identity) {
    QJsonObject structures;
    for (auto const& [name, expression] : description.structures)
        structures.insert(QString::fromStdString(name), QString::fromStdString(expression));
    return {{"identity", identity},
            {"language", QString::fromStdString(description.language)},
            {"extensions", json_of(description.extensions)},
            {"keywords", json_of(description.keywords)},
            {"structures", structures}};
}

plugin_description description_of(QJsonObject const& json, std::string const& file_name) {
    plugin_description description{file_name, json.value("language").toString().toStdString(),
                                   words_of(json.value("extensions")),
                                   words_of(json.value("keywords")),
                                   {}};
    QJsonObject const structures = json.value("structures").toObject();
    for (auto at = structures.begin(); at != structures.end(); ++at)
        description.structures[at.key().toStdString()] = at.value().toString().toStdString();
    return description;
}

std::optional<plugin_description> description_by_loading(QString const& path,
                                                         std::string const& file_name,
                                                         bool& complete) {
    complete = false;
    QPluginLoader loader;
    interface_to_language_plugin* plugin = plugin_obtainer(loader)(path);
    if (plugin == nullptr)
        return std::nullopt;
    plugin_description description{file_name, {}, {}, {}, {}};
    // A plugin is code from outside: one that throws counts as no plugin, or as one without
    // the part it threw on.
    try {
        description.language = plugin->language_name();
    } catch (...) {
        return std::nullopt;
    }
    complete = true;
    auto ask = [&](auto& part, auto question) {
        try {
            part = question();
        } catch (...) {
            complete = false;
        }
    };
    ask(description.extensions, [&] { return plugin->filename_extensions(); });
    ask(description.keywords, [&] { return plugin->list_of_keywords(); });
    ask(description.structures, [&] { return plugin->forms_of_structures(); });
    return description;
}

QJsonObject read_cache(QString const& cache_file) {
    QFile file(cache_file);
    if (cache_file.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    QJsonObject const cache = QJsonDocument::fromJson(file.readAll()).object();
    // Descriptions were asked through one layout of the interface; another may answer otherwise.
    if (cache.value("interface").toString() != STYLE_TARNEL_INTERFACE_VERSION)
        return {};
    return cache.value("plugins").toObject();
}

// A cache that cannot be written is only slower, never wrong: failures are ignored.
void write_cache(QString const& cache_file, QJsonObject plugins) {
    for (auto at = plugins.begin(); at != plugins.end();) {
        if (QFileInfo::exists(at.key()))
            ++at;
        else
            at = plugins.erase(at);
    }
    QDir().mkpath(QFileInfo(cache_file).absolutePath());
    QSaveFile file(cache_file);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QJsonObject const cache{{"interface", STYLE_TARNEL_INTERFACE_VERSION}, {"plugins", plugins}};
    file.write(QJsonDocument(cache).toJson(QJsonDocument::Compact));
    file.commit();
}

}  // namespace

std::vector<plugin_description> describe_plugins::in(
    QString const& directory, std::vector<std::string> const& file_names) const {
    QJsonObject plugins = read_cache(cache_file);
    bool cache_changed = false;
    std::vector<plugin_description> descriptions;
    for (auto const& file_name : file_names) {
        QString const path = QDir::cleanPath(QDir(directory).absoluteFilePath(QString::fromStdString(file_name)));
        QString const identity = identity_of(path);
        QJsonObject const cached = plugins.value(path).toObject();
        if (!identity.isEmpty() && cached.value("identity").toString() == identity) {
            descriptions.push_back(description_of(cached, file_name));
            continue;
        }
        bool complete = false;
        auto const description = description_by_loading(path, file_name, complete);
        if (!description)
            continue;
        descriptions.push_back(*description);
        if (complete && !identity.isEmpty() && !cache_file.isEmpty()) {
            plugins.insert(path, json_of(*description, identity));
            cache_changed = true;
        }
    }
    if (cache_changed)
        write_cache(cache_file, plugins);
    return descriptions;
}

std::optional<plugin_description> describe_plugins::asking(QString const& path, bool& complete) const {
    return description_by_loading(path, QFileInfo(path).fileName().toStdString(), complete);
}

void describe_plugins::remember(QString const& path, plugin_description const& description) const {
    QString const absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QString const identity = identity_of(absolute);
    if (cache_file.isEmpty() || identity.isEmpty())
        return;
    QJsonObject plugins = read_cache(cache_file);
    plugins.insert(absolute, json_of(description, identity));
    write_cache(cache_file, plugins);
}
