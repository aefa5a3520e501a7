#include "engine/write_in.h"

#include "interface_to_language_plugin.h"

#include <algorithm>

void write_in::about_problem_with_plugin(std::string const& plugin_file) const {
    report += "Sorry, I can't revise, something wrong with plugin '" + plugin_file + "'.\n\n";
}

void write_in::about_plugin_interface_version(std::string const& plugin_file,
                                              std::string const& version) const {
    report += "Sorry, I can't revise, plugin '" + plugin_file + "' was built for version '" + version +
              "' of the plugin interface, but this program needs version '" +
              STYLE_TARNEL_INTERFACE_VERSION + "'.\n\n";
}

void write_in::about_plugin_without_forms(std::string const& plugin_file) const {
    report += "Sorry, I can't revise, plugin '" + plugin_file +
              "' failed to give the forms of its structures.\n\n";
}

void write_in::about_plugin_without_line_ranges(QString const& language) const {
    report += "Sorry, I can't revise only some lines: the plugin of language '" + language.toStdString() +
              "' revises whole files only.\n\n";
}

void write_in::about_path_outside_git(QString const& path) const {
    report += "Sorry, I can't revise changed lines: '" + path.toStdString() +
              "' is not in a git work tree.\n\n";
}

void write_in::about_revision_unknown_to_git(std::string const& revision, QString const& path) const {
    report += "Sorry, I can't revise changed lines: git does not know revision '" + revision +
              "' in the work tree of '" + path.toStdString() + "'.\n\n";
}

void write_in::about_problem_with_addon(std::string const& addon_file) const {
    report += "Sorry, I can't revise, something wrong with addon '" + addon_file + "'.\n\n";
}

void write_in::about_invalid_format_of_addon(std::string const& structure,
                                             std::string const& addon_file,
                                             std::string const& manual) const {
    report += "Sorry, format of structure '" + structure + "' in the style addon '" + addon_file +
              "' is invalid. Please make sure this addon corresponds to requirements specified at " +
              manual + ".\n\n";
}

void write_in::about_invalid_file(QString const& path) const {
    report += "Sorry, I can't revise file '" + path.toStdString() +
              "'. If this file exists - please check read/write permissions.\n\n";
}

void write_in::about_syntax_error_in(QString const& path) const {
    report += "Sorry, I can't revise file '" + path.toStdString() +
              "', because it contains syntax error, or language structure "
              "that cannot be formatted correctly.\n\n";
}

void write_in::about_file_edited_meanwhile(QString const& path) const {
    report += "Sorry, I can't revise file '" + path.toStdString() +
              "', because it was edited while it was being revised. The edit is kept.\n\n";
}

void write_in::about_file_with_several_names(QString const& path) const {
    report += "Sorry, I can't revise file '" + path.toStdString() +
              "', because it has several hard links, which a revision would separate.\n\n";
}

void write_in::about_plugin_crash_on(QString const& path, std::string const& plugin_file) const {
    report += "Sorry, I can't revise file '" + path.toStdString() + "', because plugin '" + plugin_file +
              "' crashed on it.\n\n";
}

void write_in::about_file_left_after_a_crash(QString const& path, std::string const& plugin_file) const {
    report += "Sorry, I didn't revise file '" + path.toStdString() + "', because plugin '" + plugin_file +
              "' crashed on an earlier file.\n\n";
}

void write_in::about_file_left_by_a_run_that_died(QString const& path) const {
    report += "Sorry, I can't revise file '" + path.toStdString() +
              "', because an earlier run ended while the plugin had it. It waits until it changes.\n\n";
}

void write_in::about_paths_with_unallowed(std::string const& extensions) const {
    std::string listed = extensions;
    std::replace(listed.begin(), listed.end(), ' ', ',');
    report += "Sorry, but you can specify only paths to files with extensions '" + listed +
              "', please correct it.";
}

void write_in::about_interruption() const { report += "\nRevision was interrupted by user!\n\n"; }

namespace {

// How the counts of a run read: a revision's files "was revised" and "was changed", a check's "was
// checked" and "would be changed".
struct words_of_counts {
    char const* nothing_found;
    char const* done;
    char const* changed;
};

void append_counts(std::string& report, int found, unsigned long done, unsigned long changed,
                   words_of_counts const& words) {
    if (found == 0) {
        report += words.nothing_found;
        return;
    }
    report += found == 1 ? std::string("1 file was found, ") : std::to_string(found) + " files was found, ";
    if (done == 0) {
        report += std::string("no files was ") + words.done + ".";
        return;
    }
    report += done == 1 ? std::string("1 file was ") + words.done + ", "
                        : std::to_string(done) + " files was " + words.done + ", ";
    if (changed == 0)
        report += std::string("no files ") + words.changed + ".";
    else if (changed == 1)
        report += std::string("1 file ") + words.changed + ".";
    else
        report += std::to_string(changed) + " files " + words.changed + ".";
}

}  // namespace

void write_in::finish_info(int found, unsigned long revised, unsigned long changed) const {
    append_counts(report, found, revised, changed,
                  {"No files was found, revision was canceled.", "revised", "was changed"});
}

void write_in::about_files_left_out_by_ignore_rules(int count) const {
    if (count <= 0)
        return;
    report += count == 1 ? std::string("\n1 file was left out by ignore rules.")
                         : "\n" + std::to_string(count) + " files was left out by ignore rules.";
}

void write_in::about_file_that_would_change(QString const& path) const {
    report += "File '" + path.toStdString() + "' would be changed.\n";
}

void write_in::about_file_left_out_of_diff(QString const& path) const {
    report += "File '" + path.toStdString() +
              "' is left out of the diff: git cannot read its name there (a tab, a line break, or a date at its end).\n";
}

void write_in::about_lines_the_style_changes(unsigned long changed, unsigned long lines, int files_changed,
                                             int files) const {
    report += "\nThis style changes " + std::to_string(changed) + " of " + std::to_string(lines) + " lines in " +
              std::to_string(files_changed) + " of " + std::to_string(files) + " files";
}

void write_in::finish_info_of_check(int found, unsigned long checked, unsigned long would_change) const {
    append_counts(report, found, checked, would_change,
                  {"No files was found, nothing was checked.", "checked", "would be changed"});
}
