#include "engine/lines_changed_in_run.h"

#include "engine/read_from.h"

#include <algorithm>

#include "lines_left_as_they_are.h"

void lines_changed_in_run::take(QString const& path, std::string const& text, std::string const& revised) {
    unsigned long const changed = lines_changed_between(text, revised);
    std::lock_guard<std::mutex> const hold(lock);
    changed_files.emplace_back(path, changed);
}

void lines_changed_in_run::add_lines_of(QStringList const& run_files, int done) {
    for (int file = 0; file < done && file < run_files.size(); ++file) {
        std::string text;
        if (read_from(run_files[file]).to(text))
            lines += style_tarnel::lines_of(text);
    }
    files = std::min(done, static_cast<int>(run_files.size()));
    files_changed = static_cast<int>(changed_files.size());
    lines_changed = 0;
    for (auto const& file : changed_files)
        lines_changed += file.second;
    std::sort(changed_files.begin(), changed_files.end(), [](auto const& one, auto const& other) {
        return one.second != other.second ? one.second > other.second : one.first < other.first;
    });
}

unsigned long lines_changed_between(std::string const& text, std::string const& revised) {
    return style_tarnel::lines_of(text) - style_tarnel::lines_left_between(text, revised);
}
