// The contract between Style Tarnel and a language plugin. Self-contained: a plugin needs only this
// header, Qt 5 Core and the standard library to be built and loaded by the host.
//
// A plugin's root object derives from QObject and from interface_to_language_plugin, names the
// interface with Q_INTERFACES(interface_to_language_plugin) and declares
//     Q_PLUGIN_METADATA(IID STYLE_TARNEL_INTERFACE_ID)
// The order of the virtual members below is the binary interface: never reorder them.
//
// The host calls a plugin from one thread at a time, unless the plugin's metadata says that
// revise() may run on several threads at once: a JSON file given to the metadata macro,
//     Q_PLUGIN_METADATA(IID STYLE_TARNEL_INTERFACE_ID FILE "my_plugin.json")
// holding {"reentrant": true}. The host then revises the files of a run on several workers (one
// per core unless STYLE_TARNEL_JOBS=N says otherwise), and a plugin must keep whatever revise()
// shares between calls (caches, the last addon read) safe for that. The other members are still
// called from one thread at a time. A plugin without the key keeps being called as before.
#ifndef STYLE_TARNEL_INTERFACE_TO_LANGUAGE_PLUGIN_H
#define STYLE_TARNEL_INTERFACE_TO_LANGUAGE_PLUGIN_H

#include <QtPlugin>

#include <functional>
#include <map>
#include <string>
#include <vector>

// How one source file ends its lines and spells a space, in the file's own encoding: EOL is the
// exact byte sequence ("\n", "\r\n", "\r", or their UTF-16 and UTF-32 forms), space is " " for
// 8-bit text and two or four bytes for UTF-16 and UTF-32. Both are empty for a text without a
// line break.
struct line_ending_traits {
    std::string EOL;
    std::string space;
};

// What revise() returns, in place of a result, for source it cannot format.
#define STYLE_TARNEL_SYNTAX_ERROR_TEXT "Style Tarnel: syntax error was detected!"

class interface_to_language_plugin {
public:
    virtual ~interface_to_language_plugin() = default;

    // The language's display name, e.g. "C++": the name the language is known by everywhere.
    virtual std::string language_name() = 0;

    // The language's keywords, for highlighting.
    virtual std::vector<std::string> list_of_keywords() = 0;

    // Default filename extensions of the language's sources, without the dot.
    virtual std::vector<std::string> filename_extensions() = 0;

    // Structure name -> ECMAScript regular expression that a form of that structure must match
    // in full. An empty map accepts every addon.
    virtual std::map<std::string, std::string> forms_of_structures() = 0;

    // Reformats `source` (raw bytes as on disk) in the style that `addon` (the whole addon text)
    // describes. Returns `source` unchanged, byte for byte, when there is nothing to change, and
    // STYLE_TARNEL_SYNTAX_ERROR_TEXT when the source cannot be formatted.
    virtual std::string revise(std::string const& source, std::string const& addon,
                               line_ending_traits const& traits) = 0;

    // Called once after the last file of a revision run, whatever happened to the files.
    virtual void end_of_revision() = 0;
};

// The interface's identifier: its name, "/", and the version of its binary layout, which every
// plugin carries in its metadata. The version goes up whenever this header changes in a way that
// breaks plugins built against the one before (a member added, removed, reordered, or given
// another signature; a type above changed): the host then refuses plugins of any other version,
// naming the file and both versions, instead of loading code that would call the wrong member.
// History: 1.0, the first versioned layout (plugins whose identifier has no version are older).
#define STYLE_TARNEL_INTERFACE_NAME "org.style-tarnel.interface_to_language_plugin"
#define STYLE_TARNEL_INTERFACE_VERSION "1.0"
#define STYLE_TARNEL_INTERFACE_ID STYLE_TARNEL_INTERFACE_NAME "/" STYLE_TARNEL_INTERFACE_VERSION
Q_DECLARE_INTERFACE(interface_to_language_plugin, STYLE_TARNEL_INTERFACE_ID)

// What a plugin learned from a project's files: the addon, and how many lines of the files the
// addon leaves as they are when they are revised in it.
struct learned_style {
    // The whole text of a style addon of the plugin's language, every form a fixed point of the
    // rules the plugin reads from it; empty when nothing could be learned or learning was stopped.
    std::string addon;
    unsigned long lines = 0;
    unsigned long lines_left = 0;
};

// Optional: a plugin that can learn a style from code also derives its root object from this
// class and names both interfaces, Q_INTERFACES(interface_to_language_plugin
// interface_to_style_learning). The host finds it with qobject_cast on the root object; a plugin
// without it keeps working, and its language only cannot learn styles. Called from one thread at a
// time, never during a revision run.
class interface_to_style_learning {
public:
    virtual ~interface_to_style_learning() = default;

    // Learns the style that `sources` (the raw bytes of a project's files, as on disk, in a fixed
    // order) are written in and returns it as an addon named `style_name`. The same sources give
    // the same addon. `going_on` is called now and then with the work done and the whole work (in
    // any unit, done <= whole); when it returns false the plugin stops soon and returns an empty
    // addon. A plugin may learn from a sample of large projects.
    virtual learned_style learn_style(std::vector<std::string> const& sources, std::string const& style_name,
                                      std::function<bool(unsigned long done, unsigned long whole)> const& going_on) = 0;
};

// The learning interface's identifier, versioned as the first one is.
#define STYLE_TARNEL_LEARNING_INTERFACE_NAME "org.style-tarnel.interface_to_style_learning"
#define STYLE_TARNEL_LEARNING_INTERFACE_VERSION "1.0"
#define STYLE_TARNEL_LEARNING_INTERFACE_ID \
    STYLE_TARNEL_LEARNING_INTERFACE_NAME "/" STYLE_TARNEL_LEARNING_INTERFACE_VERSION
Q_DECLARE_INTERFACE(interface_to_style_learning, STYLE_TARNEL_LEARNING_INTERFACE_ID)

// A style the learning may start from: an installed style of the language, or the project's own
// engine configuration made into an addon.
struct learning_start {
    // The installed style's name; empty for a style that is not installed.
    std::string style;
    // The whole addon text.
    std::string addon;
};

// What a plugin learned from a project's files and the starts it was given.
struct style_learned_from_starts {
    learned_style learned;
    // The start whose forms the addon has as they are (under the new name), because they leave more
    // of the files' lines as they are than any rules learned; -1 when the forms are the plugin's own.
    long start_taken = -1;
};

// Optional, beside the learning interface: a plugin that can learn a style from starting styles as
// well as from code also derives its root object from this class and names it among its
// interfaces. The host asks for it first and, when a plugin lacks it (one built against the
// learning interface alone), calls learn_style() of the learning interface. Called as
// learn_style() is.
class interface_to_style_learning_from_starts {
public:
    virtual ~interface_to_style_learning_from_starts() = default;

    // As learn_style(), and the addon leaves at least as many lines of `sources` as they are as
    // each start does, by the plugin's own count: the plugin weighs the starts (and what it makes
    // of them) beside its own rules and keeps the best. The same sources and starts, in the same
    // order, give the same addon.
    virtual style_learned_from_starts learn_style_from(
        std::vector<std::string> const& sources, std::vector<learning_start> const& starts,
        std::string const& style_name, std::function<bool(unsigned long done, unsigned long whole)> const& going_on) = 0;
};

// The identifier of the learning from starts, versioned as the first one is.
#define STYLE_TARNEL_LEARNING_FROM_STARTS_INTERFACE_NAME "org.style-tarnel.interface_to_style_learning_from_starts"
#define STYLE_TARNEL_LEARNING_FROM_STARTS_INTERFACE_VERSION "1.0"
#define STYLE_TARNEL_LEARNING_FROM_STARTS_INTERFACE_ID \
    STYLE_TARNEL_LEARNING_FROM_STARTS_INTERFACE_NAME "/" STYLE_TARNEL_LEARNING_FROM_STARTS_INTERFACE_VERSION
Q_DECLARE_INTERFACE(interface_to_style_learning_from_starts, STYLE_TARNEL_LEARNING_FROM_STARTS_INTERFACE_ID)

// A span of a source's lines: the first and the last line, counted from 1 by the source's own
// line breaks, both included.
struct line_range {
    unsigned long first = 0;
    unsigned long last = 0;
};

// Optional: a plugin that can revise some lines of a source and leave the others alone (for an
// editor's "format selection", or the lines that a change touched) also derives its root object
// from this class and names it among its interfaces, as the learning interface above is named. The
// host finds it with qobject_cast on the root object; a plugin without it is asked for whole files
// only, and the host refuses a request for lines in its language. Called as revise() is: from
// several threads at once only when the plugin's metadata says "reentrant".
class interface_to_range_revision {
public:
    virtual ~interface_to_range_revision() = default;

    // Reformats the lines of `source` that `ranges` name (in ascending order, not overlapping;
    // lines past the end of the source name nothing) in the style of `addon`, answering as
    // revise() does: `source` unchanged, byte for byte, when there is nothing to change, and
    // STYLE_TARNEL_SYNTAX_ERROR_TEXT when the source cannot be formatted. A plugin guarantees:
    //  - every line outside the ranges comes back byte for byte, except where the language's
    //    layout must join a line that a range touches with its neighbour, or split it (a statement
    //    that runs over a range's edge); only white space changes, as in revise();
    //  - the revised ranges revised again change nothing: with the ranges moved to where the
    //    revised lines stand in the result, the result comes back unchanged.
    virtual std::string revise_lines(std::string const& source, std::string const& addon,
                                     line_ending_traits const& traits, std::vector<line_range> const& ranges) = 0;
};

// The range interface's identifier, versioned as the first one is.
#define STYLE_TARNEL_RANGE_INTERFACE_NAME "org.style-tarnel.interface_to_range_revision"
#define STYLE_TARNEL_RANGE_INTERFACE_VERSION "1.0"
#define STYLE_TARNEL_RANGE_INTERFACE_ID STYLE_TARNEL_RANGE_INTERFACE_NAME "/" STYLE_TARNEL_RANGE_INTERFACE_VERSION
Q_DECLARE_INTERFACE(interface_to_range_revision, STYLE_TARNEL_RANGE_INTERFACE_ID)

// What a plugin makes of a configuration of its formatting engine: the addon written from it, or
// the reason it refuses the configuration, and the options the addon does not carry.
struct configured_addon {
    // The whole text of a style addon; empty when the configuration is refused.
    std::string addon;
    // Why the configuration is refused (it cannot be read, or the engine cannot work under it);
    // empty when an addon was written.
    std::string refusal;
    // Options the configuration sets that would change more than white space (include sorting and
    // the like): revisions never use them.
    std::vector<std::string> left_out;
    // Options the configuration sets that no form of the addon shows: the options read back from
    // the addon give them other values.
    std::vector<std::string> not_shown;
};

// Optional: a plugin built on a formatting engine that has a configuration format of its own (a
// file that editors and other tools read) also derives its root object from this class and names
// it among its interfaces, as the learning interface above is named. The host finds it with
// qobject_cast on the root object; a plugin without it keeps working, and its styles only cannot
// be exported as, or imported from, an engine configuration. Called from one thread at a time,
// never during a revision run.
class interface_to_engine_configuration {
public:
    virtual ~interface_to_engine_configuration() = default;

    // The engine configuration that `addon` (the whole addon text) stands for, in the engine's own
    // configuration format: the options a style decides, under which the engine formats code as a
    // revision in the addon's style does, and the settings the plugin forces whatever the style
    // (so that only white space changes), said as such. Empty when the addon cannot be read.
    virtual std::string engine_configuration_of(std::string const& addon) = 0;

    // An addon named `style_name` whose forms the engine writes under the configuration
    // `configuration` (text in the engine's configuration format), with the options left out.
    virtual configured_addon addon_from_configuration(std::string const& configuration,
                                                      std::string const& style_name) = 0;
};

// The configuration interface's identifier, versioned as the first one is.
#define STYLE_TARNEL_CONFIGURATION_INTERFACE_NAME "org.style-tarnel.interface_to_engine_configuration"
#define STYLE_TARNEL_CONFIGURATION_INTERFACE_VERSION "1.0"
#define STYLE_TARNEL_CONFIGURATION_INTERFACE_ID \
    STYLE_TARNEL_CONFIGURATION_INTERFACE_NAME "/" STYLE_TARNEL_CONFIGURATION_INTERFACE_VERSION
Q_DECLARE_INTERFACE(interface_to_engine_configuration, STYLE_TARNEL_CONFIGURATION_INTERFACE_ID)

#endif
