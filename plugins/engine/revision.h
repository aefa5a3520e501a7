// Revising one source in the style of an addon: what a language plugin's revise() does, with the
// promises it keeps (only white space changes, idempotent, encoding and line ending kept).
#ifndef TARNEL_ENGINE_REVISION_H
#define TARNEL_ENGINE_REVISION_H

#include "interface_to_language_plugin.h"
#include "language.h"
#include "text_encoding.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace clang::format {
struct FormatStyle;
}

namespace tarnel_engine {

// Safe to use from several threads at once: the host revises files on several workers.
class reviser {
public:
    explicit reviser(language_description const& language);
    ~reviser();

    // The source in the addon's style; the source itself, byte for byte, when nothing changes or
    // when the only result would change more than white space; STYLE_TARNEL_SYNTAX_ERROR_TEXT for
    // code the engine cannot format completely, whose brackets do not pair up, or that the engine
    // cannot take (engine_limits.h). Never throws. The engine runs on a stack of its own
    // (deep_stack.h), whatever the calling thread's.
    std::string revise(std::string const& source, std::string const& addon, line_ending_traits const& traits);
    // The same under options given as they stand, not inferred from an addon: what a revision
    // gives where the addon carries its options whole.
    std::string revise_under(std::string const& source, clang::format::FormatStyle const& style,
                             line_ending_traits const& traits);

    // Drops what this run remembered (the last addon and its options); the inference caches stay.
    void forget_the_run();

private:
    struct run_state;
    // A revision under the options on the calling thread's stack; as the `next_revision` of an
    // answer, that answer is not proven again.
    std::string revise_here(std::string const& source, clang::format::FormatStyle const& options,
                            line_ending_traits const& traits, bool next_revision);
    // The options of the addon last asked for; revisions on several threads share it.
    std::shared_ptr<run_state const> options_for(std::string const& addon);

    language_description const& language;
    std::mutex guard;
    std::shared_ptr<run_state const> run;
};

// What a revision answers for a source once the engine's result has settled: the result encoded
// as the source was, when it keeps the source's tokens and changes something; the source itself
// when it would change more than white space or nothing at all; STYLE_TARNEL_SYNTAX_ERROR_TEXT
// when its brackets no longer pair up. The brackets of `decoded` pair up. `closers_kept_apart`,
// when given, tells whether the answer keeps apart template closers that the engine joined.
std::string answer_for(std::string const& source, std::string const& decoded, std::string formatted,
                       text_encoding const& encoding, lexed_as lexing, bool* closers_kept_apart = nullptr);

// The options inferred from an addon, in clang-format's configuration syntax.
std::string options_inferred_from(std::string const& addon, language_description const& language);

// For each present form of the addon: whether formatting it alone under the inferred options gives
// it back unchanged. Structure name -> the formatted form (equal to the form when it is a fixed
// point), placeholders restored.
std::map<std::string, std::string> forms_formatted_by_inferred_options(std::string const& addon,
                                                                       language_description const& language);

// Writes an addon for the language: each structure's tokens formatted under the options given in
// clang-format's configuration syntax (or a predefined style's name), in the order of the names.
// Empty when the options cannot be read.
std::string addon_written_in(std::string const& options, std::string const& style_name, language_description const& language);

// An addon of the language holding these forms (structure name -> form), in the order of the names.
std::string addon_of_forms(std::map<std::string, std::string> const& forms, std::string const& style_name,
                           language_description const& language);

}  // namespace tarnel_engine

#endif
