// A language plugin whose every answer a test can predict.
//
// revise(): collapses every run of two spaces (in the text's own encoding, from the traits) into
// one, so a text without double spaces comes back unchanged. Markers in the source:
//   SYNTAX_ERROR -> the syntax-error text;  THROW -> throws;  EMPTY -> returns "".
// With TEST_PLUGIN_LOG set, each call appends a line to that file:
//   "<tag> revise <EOL in hex> <space in hex> <source size>" and "<tag> end_of_revision".
// With TEST_PLUGIN_DELAY_MS set, each revise() sleeps that long first (ten times as long for a
// source holding SLOW). A revise() called while
// another is under way logs "<tag> overlapping revise" as well; only a build with
// TEST_PLUGIN_REENTRANT says in its metadata that the host may do that.
// With TEST_PLUGIN_THROWING set to its tag, the plugin throws from language_name(),
// list_of_keywords(), filename_extensions() and forms_of_structures(); with
// TEST_PLUGIN_FORMS_THROWING, from forms_of_structures() alone; with TEST_PLUGIN_INTERRUPTING,
// forms_of_structures() raises SIGINT in the host's process. A build with TEST_PLUGIN_CRASHING
// crashes in revise() on a source holding CRASH_NULL (a write through a null pointer), CRASH_ABORT
// (abort()), CRASH_RECURSION (a recursion that overflows the stack) or CRASH_KILL (SIGKILL to the
// whole process, which nothing survives). A build with TEST_PLUGIN_LEARNING learns a style too:
// always the one whose addon holds the form "begin  SOME  end" (two blanks), under which revise()
// makes every single blank two instead (so a text of single blanks changes on every such line).
// A build with TEST_PLUGIN_LEARNING_FROM_STARTS as well learns from starts too: it keeps the first
// start that leaves more lines as they are than that style, under the new name, and names it; and
// it has the configuration interface, whose configuration is the text of the form "block".
#ifndef TEST_LANGUAGE_PLUGIN_H
#define TEST_LANGUAGE_PLUGIN_H

#include "interface_to_language_plugin.h"

#include <QObject>

// A build may claim another interface version, as a plugin built against another SDK would.
#ifndef TEST_PLUGIN_IID
#define TEST_PLUGIN_IID STYLE_TARNEL_INTERFACE_ID
#endif

class test_language_plugin : public QObject,
                             public interface_to_language_plugin
#ifdef TEST_PLUGIN_LEARNING
    ,
                             public interface_to_style_learning
#endif
#ifdef TEST_PLUGIN_LEARNING_FROM_STARTS
    ,
                             public interface_to_style_learning_from_starts,
                             public interface_to_engine_configuration
#endif
{
    Q_OBJECT
#ifdef TEST_PLUGIN_REENTRANT
    Q_PLUGIN_METADATA(IID TEST_PLUGIN_IID FILE "reentrant.json")
#else
    Q_PLUGIN_METADATA(IID TEST_PLUGIN_IID)
#endif
#if defined(TEST_PLUGIN_LEARNING_FROM_STARTS)
    Q_INTERFACES(interface_to_language_plugin interface_to_style_learning interface_to_style_learning_from_starts
                 interface_to_engine_configuration)
#elif defined(TEST_PLUGIN_LEARNING)
    Q_INTERFACES(interface_to_language_plugin interface_to_style_learning)
#else
    Q_INTERFACES(interface_to_language_plugin)
#endif
public:
#ifdef TEST_PLUGIN_LEARNING
    learned_style learn_style(std::vector<std::string> const& sources, std::string const& style_name,
                              std::function<bool(unsigned long done, unsigned long whole)> const& going_on) override;
#endif
#ifdef TEST_PLUGIN_LEARNING_FROM_STARTS
    style_learned_from_starts learn_style_from(
        std::vector<std::string> const& sources, std::vector<learning_start> const& starts,
        std::string const& style_name,
        std::function<bool(unsigned long done, unsigned long whole)> const& going_on) override;
    std::string engine_configuration_of(std::string const& addon) override;
    configured_addon addon_from_configuration(std::string const& configuration, std::string const& style_name) override;
#endif
    std::string language_name() override;
    std::vector<std::string> list_of_keywords() override;
    std::vector<std::string> filename_extensions() override;
    std::map<std::string, std::string> forms_of_structures() override;
    std::string revise(std::string const& source, std::string const& addon,
                       line_ending_traits const& traits) override;
    void end_of_revision() override;
};

#endif
