// The single facade through which both front ends reach the language and style store and the
// revision engine. It holds no state: every call lists the bundle's directories again and reads
// the settings again. What a plugin says of itself (language, extensions, keywords, structures) is
// kept in a cache file while the plugin file stays the same, so only a revision, or a plugin file
// that changed, loads a plugin. Nothing here prints; failures come back as false, empty strings,
// empty descriptions or absent lists, and the front ends word them.
#ifndef STYLE_TARNEL_CORE_KERNEL_H
#define STYLE_TARNEL_CORE_KERNEL_H

#include "core/changes_under_style.h"
#include "core/engine_configuration_outcome.h"
#include "core/style_description.h"
#include "core/revision_task.h"
#include "core/style_learning_outcome.h"

#include <boost/optional.hpp>

#include <atomic>
#include <functional>
#include <map>
#include <string>
#include <vector>

// How a check reports and which files it looks at.
struct check_options {
    // A unified diff of every file that would change on standard output, and the rest on
    // standard error.
    bool with_diff = false;
    // Every file is revised in memory, whatever its change record says (the records are neither
    // asked nor forgotten).
    bool records_ignored = false;
    // When set, the number of files the run found is added to it.
    int* files_found = nullptr;
};

// What became of an update of the executable.
enum class update_outcome {
    applied,
    // The file does not run as this product's executable: it must answer "-v" with the version
    // line. The installation is as it was.
    not_an_executable_of_ours,
    // It could not be read, copied or put in place; the installation is as it was.
    not_applied,
    // The user cannot write where the executable lies (a package installed by the system's
    // package manager, which updates it); nothing was read.
    installation_read_only,
};

// What became of a text revised in memory.
enum class text_outcome_status { revised = 0, not_started = 1, refused = 2 };

class kernel {
public:
    // Catalogue.
    std::vector<std::string> supported_programming_languages() const;
    boost::optional<std::vector<style_description>> supported_formatting_styles_for(
        std::string const& language) const;
    std::map<std::string, std::vector<std::string>> supported_langs_n_styles() const;
    std::map<std::string, std::string> info_about_structures_of(std::string const& language) const;
    std::vector<std::string> list_of_keywords_of(std::string const& language) const;
    std::vector<std::string> filename_extensions_for(std::string const& language) const;
    std::vector<std::string> list_of_placeholders() const;
    bool this_is_a_plugin(std::string const& path) const;
    // The version of the plugin interface that the plugin file at `path` was built for ("none"
    // for one older than versioned interfaces; empty for no plugin of ours), and the version this
    // program loads.
    std::string plugin_interface_version_of(std::string const& path) const;
    std::string plugin_interface_version() const;

    // Import and export. An addon is imported only under the name its own text gives it,
    // "<style>[<language>].style"; another name gives an empty description.
    std::string import_language_from(std::string const& path) const;
    style_description import_style_from(std::string const& path, std::string const& language) const;
    style_description import_style_from(std::string const& path) const;
    bool export_style(std::string const& style, std::string const& language,
                      std::string const& destination) const;
    std::string full_path_to_style_addon_by(std::string const& style,
                                            std::string const& language) const;

    // The engine configuration a style stands for, in the engine's own format (what editors read),
    // from the language's plugin; of an addon file used as it is, in its own language.
    engine_configuration_outcome engine_configuration_of(std::string const& style,
                                                         std::string const& language) const;
    engine_configuration_outcome engine_configuration_of_addon(std::string const& path) const;
    // A style of the language made by its plugin from the engine configuration file at `path`,
    // installed as an import installs an addon (an installed style of that name is replaced).
    configuration_import_outcome import_style_from_configuration(std::string const& path,
                                                                 std::string const& language,
                                                                 std::string const& style) const;

    // Deleting and renaming.
    bool delete_language_by(std::string const& language) const;
    bool delete_style_by(std::string const& style, std::string const& language) const;
    // Whether the style's addon lies where the user cannot change it (a bundle installed by the
    // package manager): it cannot be deleted; renaming or editing it makes the user's own copy.
    bool style_is_read_only(std::string const& style, std::string const& language) const;
    bool rename_style(std::string const& style, std::string const& language,
                      std::string const& new_name) const;

    // Structure forms.
    std::string language_structure_form_based_on(std::string const& language,
                                                 std::string const& style,
                                                 std::string const& structure) const;
    bool update_language_structure_form(std::string const& language, std::string const& style,
                                        std::string const& structure,
                                        std::string const& form) const;
    // The structures of the language to which the style gives a form, in name order: one reading
    // of the addon for all of them.
    std::vector<std::string> structures_with_a_form_in(std::string const& language,
                                                       std::string const& style) const;
    // What the language's plugin makes of `text` when it revises it with the whole addon of that
    // style, as a revision would: how a form comes back under the rules the plugin reads from the
    // addon. Absent when the plugin or the addon is not there or the plugin refuses the text.
    boost::optional<std::string> text_as_revised_under(std::string const& language,
                                                       std::string const& style,
                                                       std::string const& text) const;

    // Change records: forgets those of the files at and below the paths, so that the next run
    // revises them whatever they hold.
    void forget_change_records_of(QStringList const& paths) const;

    // Revision: on the calling thread, printing progress and report, returning 0, 1 when the run
    // cannot start, or 128 + the number of the SIGINT or SIGTERM that interrupted it; or on a
    // detached worker thread that reports through the four callbacks and reads `stop` before
    // every file. There, a run that starts calls `maximum` once, before any `value`; one that
    // cannot start (a path outside git for changed lines, a plugin without line ranges, a broken
    // addon...) calls `finished` alone, with the reason.
    int start_revise(revision_task const& task) const;
    int start_revise(revision_task const& task, std::function<void(int)> maximum,
                     std::function<void(int)> value, std::function<void(std::string)> status,
                     std::function<void(std::string)> finished,
                     std::atomic<bool> const& stop) const;

    // Checking: the command line's run, in memory: writes no file and no change record, prints the
    // files that would change (or their diff) and the counts. 0 when nothing would change, 1 when
    // some file would, 2 when the run cannot start or a file cannot be read or revised, 128 +
    // the number of a SIGINT or SIGTERM that stopped it.
    int start_check(revision_task const& task, check_options const& options) const;
    // One text in memory (an editor's buffer), revised with the task's plugin and addon; the
    // task's paths are not used. `result` gets the revised text, or the text unchanged when the
    // plugin refused it or the revision could not start; `report` the reason, naming the text as
    // `name`.
    text_outcome_status revise_text(revision_task const& task, std::string const& name,
                                    std::string const& text, std::string& result,
                                    std::string& report) const;
    // The files a run of the task would revise, in its order: its paths walked with its extensions
    // and its ignore rules. Nothing is read or revised.
    QStringList files_of(revision_task const& task) const;
    // What the task's style would change in its files, every file revised in memory whatever its
    // change record says, on the run's workers; `progress` hears the files done and found, and
    // `stop`, read before every file, ends the count early. Nothing is written.
    changes_under_style changes_under_style_of(revision_task const& task,
                                               std::function<void(unsigned long, int)> const& progress,
                                               std::atomic<bool> const& stop) const;
    // The lines of `text` that `revised` no longer holds: how the count above counts a file.
    unsigned long lines_changed_between(std::string const& text, std::string const& revised) const;
    // A unified diff ("--- a/LABEL", "+++ b/LABEL", three lines of context) from `text` to
    // `revised`; empty when they are equal.
    std::string unified_diff_of(std::string const& label, std::string const& text,
                                std::string const& revised) const;
    // Whether `git apply` can find the file of that label in such a diff.
    bool git_reads_the_name_in_a_diff(std::string const& label) const;
    // The languages (in the order of the plugins) whose filename extensions hold the extension
    // of `file_name` (compared exactly).
    std::vector<std::string> languages_of_file_named(std::string const& file_name) const;
    // Learning a style from the files of `task.paths` with `task.extensions` (the language's own
    // when empty), installed as the style `task.style` of `task.language`; nothing is installed
    // unless it ends as learned. `progress` gets the work done and the whole work now and then. On
    // the calling thread, where SIGINT and SIGTERM stop it; or where `stop`, read now and then,
    // does.
    style_learning_outcome learn_style(revision_task const& task,
                                       std::function<void(unsigned long, unsigned long)> const& progress) const;
    style_learning_outcome learn_style(revision_task const& task,
                                       std::function<void(unsigned long, unsigned long)> const& progress,
                                       std::atomic<bool> const& stop) const;

    // Self-update: a copy of the file, proved to be this product's executable, replaces the
    // running one at its next start.
    update_outcome update_with(std::string const& path_to_new_executable) const;
    bool apply(std::string const& path_to_new_executable) const;
    void remove_old_executable_if_required() const;

    // First-start agreement.
    void remember_that_EULA_was_accepted() const;
    bool this_is_first_start_of_app() const;
};

#endif
