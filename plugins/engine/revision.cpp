// The revision pipeline: decode, check brackets and what the engine can take, format until
// stable, check that only white space changed and every token stayed, encode back.
#include "revision.h"

#include "addon_forms.h"
#include "block_comment_lines.h"
#include "bracket_balance.h"
#include "deep_stack.h"
#include "engine_call.h"
#include "engine_hazards.h"
#include "engine_limits.h"
#include "inference_cache.h"
#include "kept_regions.h"
#include "option_moves.h"
#include "placeholder_instances.h"
#include "project_macros.h"
#include "text_encoding.h"
#include "token_safe_settings.h"
#include "token_sequence.h"
#include "white_space.h"

#include <map>

namespace tarnel_engine {

namespace {

// The engine changes its own output again on a few files in a hundred; a handful of rounds
// settles them.
int const rounds_to_stability = 4;
// Lines above and below each change that a round of the stability check formats with it.
unsigned const lines_of_context = 3;

std::string const syntax_error = STYLE_TARNEL_SYNTAX_ERROR_TEXT;

}  // namespace

struct reviser::run_state {
    std::string addon;
    clang::format::FormatStyle style;
};

reviser::reviser(language_description const& language) : language(language) {}
reviser::~reviser() = default;

void reviser::forget_the_run() {
    std::lock_guard<std::mutex> const lock(guard);
    run.reset();
}

std::shared_ptr<reviser::run_state const> reviser::options_for(std::string const& addon) {
    {
        std::lock_guard<std::mutex> const lock(guard);
        if (run && run->addon == addon)
            return run;
    }
    // The inference cache makes workers asking for the same addon wait for one search.
    auto found = std::make_shared<run_state const>(run_state{addon, inference_cache::shared().style_for(addon, language)});
    std::lock_guard<std::mutex> const lock(guard);
    run = found;
    return found;
}

std::string reviser::revise(std::string const& source, std::string const& addon, line_ending_traits const& traits) {
    std::string revised;
    run_on_a_deep_stack([&] {
        try {
            revised = revise_here(source, options_for(addon)->style, traits, false);
        } catch (...) {
            revised = syntax_error;
        }
    });
    return revised;
}

std::string reviser::revise_under(std::string const& source, clang::format::FormatStyle const& style,
                                  line_ending_traits const& traits) {
    std::string revised;
    run_on_a_deep_stack([&] { revised = revise_here(source, style, traits, false); });
    return revised;
}

std::string reviser::revise_here(std::string const& source, clang::format::FormatStyle const& options,
                                 line_ending_traits const& traits, bool next_revision) {
    try {
        text_encoding const encoding = text_encoding::of(source, traits);
        std::optional<std::string> const decoded = encoding.decoded_for_revision(source);
        if (!decoded)
            return source;
        // Nested deeper than the engine's stack survives, or larger than memory allows, the code
        // would crash the engine or abort the process: it is refused before the engine sees it.
        if (!brackets_are_balanced_in(*decoded, language.lexing) || !the_engine_takes(*decoded, language.lexing))
            return syntax_error;
        clang::format::FormatStyle style = options;
        style.LineEnding = engine_line_ending(encoding.ending());

        // The engine is told our markers of regions kept as written in its own words.
        kept_regions const regions(*decoded, language.lexing);
        std::string const& told = regions.for_the_engine();
        engine_outcome outcome = format_with(style).the_code(told);
        if (!outcome.complete)
            return syntax_error;
        move_block_comment_lines(style, language.lexing).with_their_first_lines(told, outcome);
        // The result is stable when formatting it again changes nothing. Only the lines a round
        // changed, with a few around them, can change in the next: the others were laid out in
        // the same surroundings already.
        bool stable = outcome.text == told;
        for (int round = 0; round < rounds_to_stability && !stable; ++round) {
            engine_outcome again = format_with(style).the_lines_around(outcome.text, outcome.changed, lines_of_context);
            if (!again.complete)
                break;  // the engine cannot settle this text: it stays unstable
            move_block_comment_lines(style, language.lexing).with_their_first_lines(outcome.text, again);
            stable = again.text == outcome.text;
            outcome = std::move(again);
        }
        // A text the engine keeps changing is left as it is: never a half-settled result.
        if (!stable)
            return source;
        bool closers_kept_apart = false;
        std::string answer = answer_for(source, *decoded, regions.with_markers_put_back(std::move(outcome.text)),
                                        encoding, language.lexing, &closers_kept_apart);
        // The engine settled on `>>` where the source keeps `> >`, and so does the answer: what
        // the next revision reads is then not the text the engine settled, and the engine may lay
        // it out otherwise (it reads the two closers differently). The answer stands only when
        // the next revision, made here, gives it back.
        if (closers_kept_apart && !next_revision && answer != source &&
            revise_here(answer, options, traits, true) != answer)
            return source;
        return answer;
    } catch (...) {
        return syntax_error;
    }
}

std::string answer_for(std::string const& source, std::string const& decoded, std::string formatted,
                       text_encoding const& encoding, lexed_as lexing, bool* closers_kept_apart) {
    // A text the engine left as it was keeps its tokens and its brackets, which paired up before:
    // neither is read again (on a tree already in its style, that is almost every file).
    bool const unchanged = formatted == decoded;
    std::size_t const formatted_size = formatted.size();
    // Only white space may change, and white space alone can still join two tokens (`! =` to
    // `!=`) or split one (`u8"x"` to `u8 "x"`): the compiler's tokens must stay the same too.
    std::optional<std::string> kept =
        unchanged ? std::optional<std::string>(std::move(formatted))
                  : result_with_the_tokens_of(decoded, std::move(formatted), lexing);
    if (!kept)
        return source;
    // Keeping closers apart only puts blanks back.
    if (closers_kept_apart != nullptr)
        *closers_kept_apart = kept->size() != formatted_size;
    // The next revision checks the result as this one checked the source. An unclosed quote
    // (a stray apostrophe) ends at the end of its line; joined with the next line, it takes
    // in brackets that the source had outside it. Such code is no proper source anyway.
    if (!unchanged && !brackets_are_balanced_in(*kept, lexing))
        return syntax_error;
    std::optional<std::string> encoded = encoding.encoded(*kept);
    if (!encoded || *encoded == source)
        return source;
    // Taken for text of another encoding, the result would be revised again differently.
    if (!encoding.result_is_told_alike(source, *encoded))
        return source;
    return std::move(*encoded);
}

std::string options_inferred_from(std::string const& addon, language_description const& language) {
    return clang::format::configurationAsText(inference_cache::shared().style_for(addon, language));
}

std::map<std::string, std::string> forms_formatted_by_inferred_options(std::string const& addon,
                                                                       language_description const& language) {
    clang::format::FormatStyle const style = inference_cache::shared().style_for(addon, language);
    std::map<std::string, std::string> formatted;
    for (structure const& each : language.structures) {
        std::string const form = form_of_structure(each.name).in(addon);
        if (form.empty())
            continue;
        std::string const code = form_as_code(form);
        if (!the_engine_takes(code, language.lexing))
            continue;
        formatted[each.name] =
            form_as_code(without_instances(format_with(style).the_code(with_instances(code) + "\n").text));
    }
    return formatted;
}

namespace {

// The macros of a kind the style names.
std::vector<std::string> const& macros_named_by(clang::format::FormatStyle const& style, macro_kind const& kind) {
    if (kind.option == "StatementMacros")
        return style.StatementMacros;
    if (kind.option == "AttributeMacros")
        return style.AttributeMacros;
    return style.ForEachMacros;
}

}  // namespace

std::string addon_written_in(std::string const& options, std::string const& style_name, language_description const& language) {
    clang::format::FormatStyle style = token_safe_predefined_style("LLVM", language.lexing);
    bool const predefined = clang::format::getPredefinedStyle(options, engine_kind_of(language.lexing), &style);
    if (!predefined && !read_configuration(options, style))
        return std::string();
    make_token_safe(style);
    if (!engine_survives(style))
        return std::string();
    std::map<std::string, std::string> forms;
    for (structure const& each : language.structures) {
        // The uses of the macros the style names; no form when it names none a form can hold.
        macro_kind const* const macros = macro_kind_of(each.name);
        std::string const code = with_instances(
            form_as_code(macros ? macros_form_for(*macros, macros_named_by(style, *macros)) : each.tokens));
        if (macros && macros_named_in(*macros, code).empty())
            continue;
        forms[each.name] = form_as_code(without_instances(format_with(style).the_code(code + "\n").text));
    }
    return addon_of_forms(forms, style_name, language);
}

std::string addon_of_forms(std::map<std::string, std::string> const& forms, std::string const& style_name,
                           language_description const& language) {
    std::string addon = "NAME=" + style_name + "\nLANGUAGE=" + language.name + "\n";
    for (auto const& [name, form] : forms)
        addon += "\nS_NAME=" + name + "\nS_BEG\n" + form + "\nS_END\n";
    return addon;
}

}  // namespace tarnel_engine
