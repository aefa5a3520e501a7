// Disk entries are the inferred options in clang-format's configuration syntax: readable by a
// person, and re-read by the engine's own parser. Their first line, a comment, holds the SHA-256
// of the rest; an entry whose rest does not have it (emptied, cut short, edited) is damaged and
// is inferred again and rewritten, never trusted.
#include "inference_cache.h"

#include "addon_forms.h"
#include "engine_limits.h"
#include "match_in_full.h"
#include "option_inference.h"
#include "option_moves.h"
#include "placeholder_instances.h"
#include "token_safe_settings.h"
#include "white_space.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>


namespace tarnel_engine {

namespace {

// Raise when the search itself changes, so that entries written by an older search are not used.
char const* const search_revision = "15";

std::string key_of(std::string const& addon, language_description const& language) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (std::string const& part : {std::string(STYLE_TARNEL_PLUGIN_VERSION), std::string(search_revision), language.name, addon}) {
        hash.addData(part.data(), static_cast<int>(part.size()));
        hash.addData("\n", 1);
    }
    for (structure const& each : language.structures) {
        for (std::string const& part : {each.name, each.tokens})
            hash.addData(part.data(), static_cast<int>(part.size()));
        for (std::string const& option : each.decides)
            hash.addData(option.data(), static_cast<int>(option.size()));
    }
    return hash.result().toHex().toStdString();
}

QString cache_directory() {
    QByteArray const cache_home = qgetenv("XDG_CACHE_HOME");
    if (!cache_home.isEmpty())
        return QString::fromLocal8Bit(cache_home) + "/style-tarnel";
    QByteArray const home = qgetenv("HOME");
    if (home.isEmpty())
        return QString();
    return QString::fromLocal8Bit(home) + "/.cache/style-tarnel";
}

QString cache_file_for(std::string const& key) {
    QString const directory = cache_directory();
    return directory.isEmpty() ? QString() : directory + "/" + QString::fromStdString(key) + ".clang-format";
}

QByteArray const checksum_lead = "# sha256 ";

QByteArray checksum_line_of(QByteArray const& options) {
    return checksum_lead + QCryptographicHash::hash(options, QCryptographicHash::Sha256).toHex() + "\n";
}

// The options an entry holds, when its checksum line vouches for them.
bool verified_options_of(QByteArray const& entry, QByteArray& options) {
    int const end_of_first_line = entry.indexOf('\n');
    if (!entry.startsWith(checksum_lead) || end_of_first_line < 0)
        return false;
    options = entry.mid(end_of_first_line + 1);
    return !options.isEmpty() && entry.left(end_of_first_line + 1) == checksum_line_of(options);
}

bool read_from_disk(std::string const& key, lexed_as language, clang::format::FormatStyle& style) {
    QString const path = cache_file_for(key);
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    QByteArray options;
    if (!verified_options_of(file.readAll(), options))
        return false;
    clang::format::FormatStyle read = token_safe_predefined_style("LLVM", language);
    if (!read_configuration(options.toStdString(), read))
        return false;
    make_token_safe(read);
    style = read;
    return true;
}

// A cache that cannot be written is only slower, never wrong: failures are ignored. The entry
// takes the place of a damaged one in one rename.
void write_to_disk(std::string const& key, clang::format::FormatStyle const& style) {
    QString const path = cache_file_for(key);
    if (path.isEmpty() || !QDir().mkpath(cache_directory()))
        return;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    std::string const text = clang::format::configurationAsText(style);
    QByteArray const options(text.data(), static_cast<int>(text.size()));
    file.write(checksum_line_of(options) + options);
    file.commit();
}

}  // namespace

namespace {

// No layout needs more white space in one place than this; a form that has more (a run of
// hundreds of kilobytes of blanks) would make every one of the thousands of formattings the
// search makes that much slower, and tells no more than a run of this length.
std::size_t const longest_white_space_run = 256;

std::string with_white_space_runs_bounded(std::string const& form) {
    std::string bounded;
    bounded.reserve(std::min(form.size(), std::size_t(1) << 16));
    std::size_t run = 0;
    for (char c : form) {
        bool const blank = c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
        run = blank ? run + 1 : 0;
        if (run <= longest_white_space_run)
            bounded += c;
    }
    return bounded;
}

}  // namespace

std::vector<form_case> form_cases_in(std::string const& addon, language_description const& language) {
    std::map<std::string, std::string> const expressions = expressions_of(language.structures);
    std::vector<form_case> cases;
    for (structure const& each : language.structures) {
        std::string const form = form_of_structure(each.name).in(addon);
        if (form.empty() || !style_tarnel::match_in_full(expressions.at(each.name)).of(form) ||
            !the_engine_takes(form, language.lexing))
            continue;
        cases.push_back({each.name, with_instances(form_as_code(with_white_space_runs_bounded(form))), each.decides});
    }
    return cases;
}

inference_cache& inference_cache::shared() {
    static inference_cache cache;
    return cache;
}

clang::format::FormatStyle inference_cache::style_for(std::string const& addon, language_description const& language) {
    std::string const key = key_of(addon, language);
    std::lock_guard<std::mutex> const lock(guard);
    auto const known = in_memory.find(key);
    if (known != in_memory.end())
        return known->second;
    clang::format::FormatStyle style;
    if (!read_from_disk(key, language.lexing, style)) {
        style = infer_options(language.lexing).from(form_cases_in(addon, language));
        write_to_disk(key, style);
    }
    in_memory.emplace(key, style);
    return style;
}

}  // namespace tarnel_engine
