// The messages of a revision run, each appended to the run's one report. Their words are the
// product's own and are kept exactly as they stand ("files was found").
#ifndef STYLE_TARNEL_ENGINE_WRITE_IN_H
#define STYLE_TARNEL_ENGINE_WRITE_IN_H

#include <QString>

#include <string>

class write_in {
public:
    explicit write_in(std::string& report) : report(report) {}

    void about_problem_with_plugin(std::string const& plugin_file) const;
    // A plugin built for another version of the plugin interface ("none": without a version).
    void about_plugin_interface_version(std::string const& plugin_file, std::string const& version) const;
    // A plugin that failed when asked for the expressions of its structures.
    void about_plugin_without_forms(std::string const& plugin_file) const;
    void about_problem_with_addon(std::string const& addon_file) const;
    // Lines were asked for, and the language's plugin revises whole files only.
    void about_plugin_without_line_ranges(QString const& language) const;
    void about_path_outside_git(QString const& path) const;
    void about_revision_unknown_to_git(std::string const& revision, QString const& path) const;
    void about_invalid_format_of_addon(std::string const& structure, std::string const& addon_file,
                                       std::string const& manual) const;
    void about_invalid_file(QString const& path) const;
    void about_syntax_error_in(QString const& path) const;
    // A file saved by someone else while it was being revised: it keeps that edit.
    void about_file_edited_meanwhile(QString const& path) const;
    // A file with more than one name (hard links), which a revision would separate.
    void about_file_with_several_names(QString const& path) const;
    // The file (or text) on which the plugin crashed, and each file the run then did not hand to it.
    void about_plugin_crash_on(QString const& path, std::string const& plugin_file) const;
    void about_file_left_after_a_crash(QString const& path, std::string const& plugin_file) const;
    // A file that was in the plugin's hands when an earlier run died.
    void about_file_left_by_a_run_that_died(QString const& path) const;
    // `extensions` joined by single spaces; the message lists them joined by commas.
    void about_paths_with_unallowed(std::string const& extensions) const;
    void about_interruption() const;
    void finish_info(int found, unsigned long revised, unsigned long changed) const;
    // After the counts: files of the run's extensions that ignore rules left out (nothing for 0).
    void about_files_left_out_by_ignore_rules(int count) const;

    // A check, which writes nothing: a file the revision would change, and the counts.
    void about_file_that_would_change(QString const& path) const;
    // A file that would change, left out of a diff because git could not read its name there.
    void about_file_left_out_of_diff(QString const& path) const;
    void finish_info_of_check(int found, unsigned long checked, unsigned long would_change) const;
    // A check's last line: how much of the code its style changes, the window's figure.
    void about_lines_the_style_changes(unsigned long changed, unsigned long lines, int files_changed,
                                       int files) const;

private:
    std::string& report;
};

#endif
