// The command line's revision, check and diff: paths made absolute and checked, records forgotten
// for a forced run, the style of every path chosen (flags first, then the project's .style-tarnel
// file), language, style and extensions checked, then one run per language and style. And the
// revision of standard input to standard output, for editors.
#include "console/result_of_run.h"

#include "console/messages.h"
#include "core/kernel.h"
#include "core/project_styles.h"
#include "core/style_addon.h"
#include "core/there_is_no_such.h"
#include "core/transform.h"

#include <QDir>
#include <QFileInfo>
#include <boost/algorithm/string/replace.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <tuple>

namespace console {

namespace {

// What the words of a revision ask for.
struct revision_wishes {
    std::string language;
    std::string style;
    std::string extensions;
    std::string addon;
    std::string assumed_name;
    bool force = false;
    bool check = false;
    bool diff = false;
    std::vector<std::string> paths;
    // Patterns given with --exclude, those that bring a path back last.
    QStringList excluded;
    bool git_followed = true;
    bool quiet = false;
    // The values of --lines, as typed.
    std::vector<std::string> lines;
    // The revision of --changed ("HEAD" when none is given); empty: not asked.
    std::string changed_since;

    bool writes_nothing() const { return check || diff; }
    // A check that cannot start says so with 2, apart from the 1 of files that would change.
    int refusal() const { return writes_nothing() ? 2 : 1; }
};

revision_wishes revision_wishes_from(argument_list const& arguments) {
    revision_wishes wishes;
    for (auto const& [name, value] : arguments) {
        if (name == "-l" || name == "--lang")
            wishes.language = value;
        else if (name == "-s" || name == "--style")
            wishes.style = value;
        else if (name == "--exts")
            wishes.extensions = value;
        else if (name == "-f" || name == "--force")
            wishes.force = true;
        else if (name == "--check")
            wishes.check = true;
        else if (name == "--diff")
            wishes.diff = true;
        else if (name == "--addon")
            wishes.addon = value;
        else if (name == "--assume-filename")
            wishes.assumed_name = value;
        else if (name == "-p" || name == "--path")
            wishes.paths.push_back(value);
        else if (name == "--exclude")
            wishes.excluded << QString::fromStdString(value);
        else if (name == "--no-gitignore")
            wishes.git_followed = false;
        else if (name == "--quiet")
            wishes.quiet = true;
        else if (name == "--lines")
            wishes.lines.push_back(value);
        else if (name == "--changed")
            wishes.changed_since = value.empty() ? std::string("HEAD") : value;
    }
    // The words come in byte order, not as typed: a pattern that brings a path back weighs more
    // than one that leaves paths out, whatever their order.
    QStringList leaving_out, bringing_back;
    for (QString const& pattern : wishes.excluded)
        (pattern.startsWith('!') ? bringing_back : leaving_out) << pattern;
    wishes.excluded = leaving_out + bringing_back;
    return wishes;
}

// A line number: decimal digits alone, 1 or more, small enough to count.
bool line_number_from(std::string const& text, unsigned long& number) {
    if (text.empty() || text.size() > 9 || text.find_first_not_of("0123456789") != std::string::npos)
        return false;
    number = std::stoul(text);
    return number >= 1;
}

// The ranges of the --lines values, each "N:M" with 1 <= N <= M; false, with the value said, at
// the first that is not.
bool line_ranges_from(revision_wishes const& wishes, std::vector<line_range>& ranges) {
    for (auto const& value : wishes.lines) {
        std::size_t const colon = value.find(':');
        line_range range;
        if (colon == std::string::npos || !line_number_from(value.substr(0, colon), range.first) ||
            !line_number_from(value.substr(colon + 1), range.last) || range.first > range.last) {
            say(message::invalid_lines(value));
            return false;
        }
        ranges.push_back(range);
    }
    return true;
}

QString absolute(std::string const& path) { return transform(QString::fromStdString(path)).to_absolute(); }

// The default extensions of a language, each followed by one blank.
std::string default_extensions_of(std::string const& language) {
    std::string extensions;
    for (auto const& extension : kernel().filename_extensions_for(language))
        extensions += extension + " ";
    return extensions;
}

std::string what_is_wrong_with(project_styles const& styles) {
    switch (styles.fault) {
    case project_styles_fault::unknown_line:
        return "expected '[language]', 'style = name', 'addon = file', 'extensions = list', a comment or an empty line";
    case project_styles_fault::unknown_key:
        return "only 'style', 'addon' and 'extensions' may be given for a language";
    case project_styles_fault::key_outside_language:
        return "a style must follow the '[language]' it is for";
    case project_styles_fault::empty_name:
        return "a name is missing";
    case project_styles_fault::language_twice:
        return "this language is named twice";
    case project_styles_fault::second_style:
        return "a language may have one style or one addon only";
    case project_styles_fault::second_extensions:
        return "a language may have one 'extensions' line only";
    case project_styles_fault::invalid_extensions:
        return "extensions are letters and digits, separated by commas";
    case project_styles_fault::extension_twice:
        return "an extension on this line is given twice";
    case project_styles_fault::language_without_style:
        return "this language has no style";
    case project_styles_fault::addon_of_another_language:
        return "this addon is a style of language '" + styles.language_of_faulty_addon + "', not of the language it is given for";
    case project_styles_fault::none:
    case project_styles_fault::unreadable:
        break;
    }
    return std::string();
}

// The project's styles for a path; false, with the fault said, when the file is broken or there
// is none.
bool project_styles_for(QString const& path, project_styles& styles) {
    styles = read_project_styles().nearest_to(path);
    if (styles.fault == project_styles_fault::unreadable) {
        say(message::cannot_read_file(styles.file.toStdString()));
        return false;
    }
    if (styles.fault != project_styles_fault::none) {
        say(message::invalid_line_of_project_styles(styles.file.toStdString(), styles.faulty_line,
                                                    what_is_wrong_with(styles)));
        return false;
    }
    // Without a project file and flags, the words ask for nothing known, as they always did.
    if (!styles.were_found()) {
        say(message::not_understood() + message::usage_hint());
        return false;
    }
    // A file of comments alone names no style.
    if (styles.by_language.empty()) {
        say(message::no_style_for(path.toStdString()));
        return false;
    }
    return true;
}

// The language and the style (or addon file) of one revision. An addon given on the command line
// names its language itself.
struct chosen_style {
    std::string language;
    std::string style;
    QString addon_path;
    // The extensions that a project file gives the language, each followed by one blank; empty:
    // its plugin's own.
    std::string extensions;

    bool operator<(chosen_style const& other) const {
        return std::tie(language, style, addon_path, extensions) <
               std::tie(other.language, other.style, other.addon_path, other.extensions);
    }
};

// The language of a file named `name`: the one whose "extensions" line in the project file gives
// its extension; otherwise, among those that know its extension, the first that the project file
// names without giving other extensions, or else the first. Empty, with the reason said, when
// none knows it.
std::string language_of_file(std::string const& name, project_styles const& project) {
    std::string const extension = QFileInfo(QString::fromStdString(name)).suffix().toStdString();
    std::string const given = project.language_given(extension);
    if (!given.empty())
        return given;
    std::vector<std::string> const languages = kernel().languages_of_file_named(name);
    if (languages.empty()) {
        say(message::no_language_of_file(name));
        return std::string();
    }
    for (auto const& language : languages) {
        auto const named = project.by_language.find(language);
        if (named != project.by_language.end() && named->second.extensions.empty())
            return language;
    }
    return languages.front();
}

// The styles to revise `path` with, flags first: an addon, or a language and a style; otherwise
// what the nearest .style-tarnel names. `language_by_name` is the file name whose extension tells
// the language when --lang does not (empty for a directory: then every language the file names,
// or the one given).
bool choose_styles_for(QString const& path, QString const& language_by_name, revision_wishes const& wishes,
                       std::vector<chosen_style>& chosen) {
    if (!wishes.addon.empty()) {
        chosen.push_back({std::string(), std::string(), absolute(wishes.addon), std::string()});
        return true;
    }
    if (!wishes.language.empty() && !wishes.style.empty()) {
        chosen.push_back({wishes.language, wishes.style, QString(), std::string()});
        return true;
    }
    if (!wishes.style.empty() && !language_by_name.isEmpty()) {
        std::string const language = language_of_file(language_by_name.toStdString(), project_styles());
        if (language.empty())
            return false;
        chosen.push_back({language, wishes.style, QString(), std::string()});
        return true;
    }
    project_styles styles;
    if (!project_styles_for(path, styles))
        return false;
    std::vector<std::string> languages;
    if (!wishes.language.empty()) {
        languages.push_back(wishes.language);
    } else if (!language_by_name.isEmpty()) {
        std::string const language = language_of_file(language_by_name.toStdString(), styles);
        if (language.empty())
            return false;
        languages.push_back(language);
    } else {
        for (auto const& named : styles.by_language)
            languages.push_back(named.first);
    }
    for (auto const& language : languages) {
        auto const named = styles.by_language.find(language);
        if (!wishes.style.empty()) {
            std::string const extensions = named == styles.by_language.end() ? std::string() : named->second.extensions;
            chosen.push_back({language, wishes.style, QString(), extensions});
            continue;
        }
        if (named == styles.by_language.end()) {
            say(message::no_style_for_language_in(language, styles.file.toStdString()));
            return false;
        }
        chosen.push_back({language, named->second.style, named->second.addon_path, named->second.extensions});
    }
    return true;
}

// The default extensions of a language, each followed by one blank, but for those that belong to
// another of the languages revised in the same command (the one whose project file's line gives
// it; otherwise the first plugin that knows it), so that no file is revised in two languages.
std::string default_extensions_of(std::string const& language, std::set<std::string> const& revised_languages,
                                  std::set<std::string> const& given_to_others) {
    std::string extensions;
    for (auto const& extension : kernel().filename_extensions_for(language)) {
        if (given_to_others.count(extension) != 0)
            continue;
        std::string owner = language;
        for (auto const& candidate : kernel().languages_of_file_named("x." + extension))
            if (revised_languages.count(candidate) != 0) {
                owner = candidate;
                break;
            }
        if (owner == language)
            extensions += extension + " ";
    }
    return extensions;
}

// Says why the chosen style cannot be used, as the rest of the command line does; otherwise fills
// the task's language, style, addon and extensions.
bool task_can_start(chosen_style const& chosen, std::string const& extensions,
                    std::set<std::string> const& revised_languages, std::set<std::string> const& given_to_others,
                    revision_task& task) {
    task.addon_path = chosen.addon_path;
    if (!chosen.addon_path.isEmpty()) {
        style_description description;
        if (!addon_file_is_usable(chosen.addon_path.toStdString(), description))
            return false;
        task.language = description.language;
        task.style = description.style;
    } else {
        task.language = chosen.language;
        task.style = chosen.style;
        if (there_is_no_such().language(task.language)) {
            say(message::no_such_language(task.language) + message::listing_hint());
            return false;
        }
        if (there_is_no_such().style(task.style, task.language)) {
            say(message::no_such_style(task.style, task.language) + message::listing_hint());
            return false;
        }
    }
    if (extensions.empty() && !chosen.extensions.empty()) {
        task.extensions = chosen.extensions;
    } else if (extensions.empty()) {
        task.extensions = revised_languages.size() > 1 || !given_to_others.empty()
                              ? default_extensions_of(task.language, revised_languages, given_to_others)
                              : default_extensions_of(task.language);
    } else {
        task.extensions = extensions;
        boost::algorithm::replace_all(task.extensions, ",", " ");
        if (!these_are_filename_extensions(task.extensions)) {
            say(message::invalid_extensions());
            return false;
        }
    }
    return true;
}

std::string standard_input() {
    std::ostringstream text;
    text << std::cin.rdbuf();
    return text.str();
}

// Standard input to standard output: whatever happens, standard output gets the text back, revised
// or as it came, so that an editor never loses its buffer; the reason goes to standard error.
int revise_standard_input(revision_wishes const& wishes, std::vector<line_range> const& lines) {
    // Closed, the editor would get nothing back; and the first file opened would take its place.
    bool const gives_text_back = !wishes.check || wishes.diff;
    if (gives_text_back && ::fcntl(STDOUT_FILENO, F_GETFL) == -1) {
        say(message::cannot_write_standard_output());
        return 2;
    }
    std::string const text = standard_input();
    std::string result = text;
    // A text that did not reach standard output (a full disk, a closed pipe) is a failure of its
    // own, whatever came before.
    auto written = [&](int status) {
        std::cout.flush();
        if (std::cout)
            return status;
        say(message::cannot_write_standard_output());
        return 2;
    };
    auto give_back = [&](int status) {
        if (!wishes.writes_nothing())
            std::cout.write(result.data(), static_cast<std::streamsize>(result.size()));
        return written(status);
    };
    QString const assumed = wishes.assumed_name.empty() ? QString() : absolute(wishes.assumed_name);
    std::string const name = wishes.assumed_name.empty() ? std::string("-") : wishes.assumed_name;
    if (wishes.addon.empty() && wishes.language.empty() && assumed.isEmpty()) {
        say(message::no_language_for_standard_input());
        return give_back(wishes.refusal());
    }
    std::vector<chosen_style> chosen;
    QString const start = assumed.isEmpty() ? QDir::currentPath() : assumed;
    revision_task task;
    if (!choose_styles_for(start, assumed, wishes, chosen) ||
        !task_can_start(chosen.front(), std::string(), {}, {}, task))
        return give_back(wishes.refusal());
    task.lines = lines;
    std::string report;
    text_outcome_status const outcome = kernel().revise_text(task, name, text, result, report);
    while (!report.empty() && report.back() == '\n')
        report.pop_back();
    if (!report.empty())
        say(report);
    if (outcome == text_outcome_status::not_started)
        return give_back(wishes.refusal());
    if (outcome == text_outcome_status::refused)
        return give_back(2);
    if (wishes.diff && result != text && !kernel().git_reads_the_name_in_a_diff(name))
        say(message::left_out_of_diff(name));
    else if (wishes.diff)
        std::cout << kernel().unified_diff_of(name, text, result);
    if (wishes.writes_nothing())
        return written(result == text ? 0 : 1);
    return give_back(0);
}

}  // namespace

int result_of_run::revise_based_on(argument_list const& arguments) const {
    revision_wishes const wishes = revision_wishes_from(arguments);
    bool const from_standard_input =
        std::find(wishes.paths.begin(), wishes.paths.end(), "-") != wishes.paths.end();
    if (from_standard_input && wishes.paths.size() > 1) {
        say(message::standard_input_with_other_paths());
        return wishes.refusal();
    }
    std::vector<line_range> lines;
    if (!line_ranges_from(wishes, lines))
        return wishes.refusal();
    if (!lines.empty() && wishes.paths.size() > 1) {
        say(message::lines_of_several_paths());
        return wishes.refusal();
    }
    if (!wishes.changed_since.empty() && (from_standard_input || !lines.empty())) {
        say(message::changed_lines_of_given_lines_or_standard_input());
        return wishes.refusal();
    }
    if (from_standard_input)
        return revise_standard_input(wishes, lines);

    QStringList paths;
    for (auto const& raw : wishes.paths) {
        QString const path = absolute(raw);
        if (!QFileInfo::exists(path)) {
            say(message::no_such_file_or_directory(path.toStdString()));
            return wishes.refusal();
        }
        if (!lines.empty() && QFileInfo(path).isDir()) {
            say(message::lines_of_a_directory(path.toStdString()));
            return wishes.refusal();
        }
        paths << path;
    }
    // Forgotten before anything else is checked: a forced run that then fails on a bad style
    // name has still forgotten the records. A check writes nothing: it ignores them instead; so
    // does a revision of lines, which neither asks nor keeps them.
    if (wishes.force && !wishes.writes_nothing() && lines.empty() && wishes.changed_since.empty())
        kernel().forget_change_records_of(paths);

    // Where project files name the styles, the nearest one above each file decides, also in a
    // walk: a directory below a walked one that holds its own is walked as a path of its own, in
    // its own styles, and left out of the walk above it.
    bool const project_files_decide = wishes.addon.empty() && (wishes.language.empty() || wishes.style.empty());
    if (project_files_decide) {
        QStringList with_nested;
        for (QString const& path : paths) {
            if (!with_nested.contains(path))
                with_nested << path;
            if (QFileInfo(path).isDir())
                for (QString const& nested : read_project_styles().directories_with_their_own_below(path))
                    if (!with_nested.contains(nested))
                        with_nested << nested;
        }
        paths = with_nested;
    }

    // One run per language and style, with the paths in the order given.
    std::map<chosen_style, revision_task> tasks;
    for (auto const& path : paths) {
        std::vector<chosen_style> chosen;
        QString const language_by_name = QFileInfo(path).isDir() ? QString() : path;
        if (!choose_styles_for(path, language_by_name, wishes, chosen))
            return wishes.refusal();
        for (auto const& style : chosen)
            tasks[style].paths << path;
    }
    for (auto& [chosen, task] : tasks) {
        // The languages a path of this task is revised in: an extension two of them know must go
        // to one only. Paths of other tasks (a nested project file's directory) do not count.
        // Those that a project file gives another language are its alone.
        std::set<std::string> revised_languages;
        std::set<std::string> given_to_others;
        for (auto const& [other_chosen, other] : tasks)
            for (QString const& path : task.paths)
                if (other.paths.contains(path)) {
                    revised_languages.insert(other_chosen.language);
                    if (other_chosen.language != chosen.language) {
                        std::istringstream words(other_chosen.extensions);
                        for (std::string extension; words >> extension;)
                            given_to_others.insert(extension);
                    }
                }
        if (!task_can_start(chosen, wishes.extensions, revised_languages, given_to_others, task))
            return wishes.refusal();
        task.lines = lines;
        task.changed_since = wishes.changed_since;
    }

    int status = 0;
    int found = 0;
    for (auto& [chosen, task] : tasks) {
        task.excluded = wishes.excluded;
        task.excluded_from = QDir::currentPath();
        task.git_followed = wishes.git_followed;
        task.quiet = wishes.quiet;
        if (project_files_decide)
            task.subtrees_marked_by = project_styles_file_name();
        int const run_status =
            wishes.writes_nothing()
                ? kernel().start_check(task, check_options{wishes.diff, wishes.force, &found})
                : kernel().start_revise(task);
        // Stopped by a signal: the other runs are not started.
        if (run_status >= 128)
            return run_status;
        status = std::max(status, run_status);
    }
    // A check of no file at all proves nothing: a mistyped path, or sources all left out.
    if (wishes.writes_nothing() && found == 0 && status == 0) {
        say(message::no_file_to_check());
        return 2;
    }
    return status;
}

}  // namespace console
