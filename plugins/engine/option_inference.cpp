// The search: exact predefined styles first, then a beam of starts (predefined base plus direct
// readings) that each descend by single and coupled moves over the option table.
#include "option_inference.h"

#include "engine_call.h"
#include "form_readings.h"
#include "option_moves.h"
#include "text_lines.h"
#include "token_safe_settings.h"
#include "white_space.h"

#include <algorithm>
#include <numeric>
#include <map>
#include <set>
#include <string>

namespace tarnel_engine {

namespace {

// Forms are formatted together, between comment lines that the engine leaves alone; blank lines
// around them keep alignment and comment rules from reaching from one form into the next.
std::string const boundary = "/* style tarnel: form boundary */";

// How many starts descend, and how many forms the whole search may have the engine format (a
// call on a few forms costs little more than those forms): enough for the addons of the
// benchmark, small enough for its time goals.
std::size_t const beam_width = 3;

// The groups that lay out a list too long for its line (a declaration's parameters, a call's
// arguments, the parenthesis before them, the cost of breaking after it): the engine weighs them
// together, so a form that breaks one kind of list may need another kind's option moved with its own.
std::vector<std::string> const list_packing = {"AlignAfterOpenBracket", "BinPackArguments", "BinPackParameters",
                                               "AllowAllArgumentsOnNextLine",
                                               "AllowAllParametersOfDeclarationOnNextLine",
                                               "PenaltyBreakBeforeFirstCallParameter"};

// The groups that decide how a line too long for the limit breaks, and how far its second line
// goes: a structure names those it shows most, but a form that one of them puts off may need
// another of them moved with it (a string in parts after `=` comes back only with operators broken
// before as the style breaks them).
std::vector<std::string> const line_breaking = {"ColumnLimit", "ContinuationIndentWidth", "BreakBeforeBinaryOperators",
                                                "AlignOperands", "BreakBeforeTernaryOperators",
                                                "AlwaysBreakBeforeMultilineStrings", "PenaltyBreakAssignment"};

bool among(std::vector<std::string> const& names, std::string const& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

unsigned long total_of(std::vector<unsigned long> const& distances) {
    return std::accumulate(distances.begin(), distances.end(), 0UL);
}

std::vector<std::string> pieces_of(std::string const& text) {
    std::vector<std::string> pieces;
    std::size_t at = 0;
    while (true) {
        std::size_t const found = text.find(boundary, at);
        pieces.push_back(text.substr(at, found == std::string::npos ? std::string::npos : found - at));
        if (found == std::string::npos)
            return pieces;
        at = found + boundary.size();
    }
}

struct scored_style {
    clang::format::FormatStyle style;
    std::vector<unsigned long> distances;
    unsigned long total = 0;
};

bool names(form_case const& form, std::string const& group) {
    return applies_to_every_structure(group) ||
           std::find(form.decides.begin(), form.decides.end(), group) != form.decides.end();
}

class option_search {
public:
    option_search(std::vector<option_group> const& groups, std::vector<form_case> const& forms,
                  std::vector<std::string> const& excluded, long budget, infer_options::going_on_check const& going_on,
                  infer_options::distance_measure const& measure)
        : groups(groups), forms(forms), excluded(excluded), budget(budget), going_on(going_on), measure(measure) {}

    // Lets the search reach the values it kept away from so far.
    void exclude_nothing() { excluded.clear(); }

    scored_style scored(clang::format::FormatStyle const& style) {
        formatted += static_cast<long>(forms.size());
        std::vector<unsigned long> distances = distances_of(forms, style, measure);
        unsigned long const total = total_of(distances);
        return {style, std::move(distances), total};
    }

    // Single moves until none improves, then one coupled move, and again; until every form is a
    // fixed point, nothing improves, or the budget is spent. Pinned candidates (readings) hold in
    // every style the descent moves to.
    void descend(scored_style& current, std::vector<std::string> const& pinned) {
        kept = pinned;
        unhelpful.clear();
        while (current.total > 0 && within_budget()) {
            if (single_moves(current))
                continue;
            if (!coupled_move(current) && !mending_move(current) && !tab_width_move(current))
                return;
        }
    }

    bool within_budget() {
        if (going_on && !stopped)
            stopped = !going_on(static_cast<unsigned long>(std::min(formatted, budget)), static_cast<unsigned long>(budget));
        return formatted < budget + reserve && !stopped;
    }

    // Where the bound is spent with forms still differing, the single moves from the best style found
    // (a search that ran out on another start never tried them there), within a tenth of the bound
    // more; then, within another tenth, the preferred readings as kicks.
    void last_single_moves(scored_style& current, std::vector<std::string> const& pinned,
                           std::vector<std::string> const& preferred) {
        if (current.total == 0 || stopped)
            return;
        a_tenth_of_the_bound_more();
        kept = pinned;
        unhelpful.clear();
        while (current.total > 0 && within_budget() && single_moves(current)) {
        }
        // Then each reading that a style giving every form back should follow, where the best style
        // does not, applied and followed by single moves (comments read as lined up, where leaving
        // them where they stand came closer on the way: lining them up takes their distance and the
        // blank lines they line up over with it, a move each, which no pair reaches).
        if (current.total > 0 && !stopped)
            a_tenth_of_the_bound_more();
        for (std::string const& reading : preferred) {
            if (current.total == 0 || !within_budget())
                return;
            scored_style kicked{current.style, {}, 0};
            if (!apply_candidate(kicked.style, reading) || same_options(kicked.style, current.style))
                continue;
            kicked = scored(kicked.style);
            kept = pinned;
            kept.push_back(reading);
            unhelpful.clear();
            while (kicked.total > 0 && within_budget() && single_moves(kicked)) {
            }
            if (kicked.total < current.total)
                current = std::move(kicked);
        }
    }

private:
    // From what is formatted so far (or the bound, where less was), a tenth of the bound more.
    void a_tenth_of_the_bound_more() { reserve = std::max(formatted, budget) - budget + budget / 10; }

    // The option table of the language.
    std::vector<option_group> const& groups;
    std::vector<form_case> const& forms;
    // Values no move may reach.
    std::vector<std::string> excluded;
    long const budget;
    infer_options::going_on_check const& going_on;
    infer_options::distance_measure const& measure;
    bool stopped = false;
    long formatted = 0;
    // Forms formatted past the bound by the last single moves.
    long reserve = 0;
    std::vector<std::string> kept;
    // The distances (with the readings held) under which no mending move, and no move of the tab
    // width, improved: not tried there again, in this descent or a later one.
    std::set<std::pair<std::vector<unsigned long>, std::vector<std::string>>> unmended;
    std::set<std::pair<std::vector<unsigned long>, std::vector<std::string>>> untabbed;
    // The moves (one group, or two) that did not improve, with the distances of the forms that
    // judged them then: tried again only once those distances have changed.
    std::map<std::vector<std::size_t>, std::vector<unsigned long>> unhelpful;

    // The forms that name one of the groups, and those that still differ (a catalogue names the
    // groups a structure shows most, not every one that reaches it), with their current distance.
    std::vector<form_case> judged_by(std::vector<std::size_t> const& groups, scored_style const& current,
                                     unsigned long& distance, std::vector<unsigned long>& signature) const {
        std::vector<form_case> judged;
        distance = 0;
        signature.clear();
        for (std::size_t i = 0; i < forms.size(); ++i) {
            bool named = current.distances[i] > 0;
            for (std::size_t group : groups)
                named = named || names(forms[i], this->groups[group].name);
            if (named) {
                judged.push_back(forms[i]);
                distance += current.distances[i];
                signature.push_back(i);
                signature.push_back(current.distances[i]);
            }
        }
        return judged;
    }

    // Tries the styles on the forms that judge them; the best one that improves there is taken if
    // it also improves the total over all forms. A move that did not help is not tried again while
    // the forms that judge it stay as they were.
    bool take_best_of(std::vector<clang::format::FormatStyle> const& trials, std::vector<std::size_t> const& groups,
                      scored_style& current) {
        unsigned long judged_distance = 0;
        std::vector<unsigned long> signature;
        std::vector<form_case> const judged = judged_by(groups, current, judged_distance, signature);
        if (judged_distance == 0)
            return false;
        auto const known = unhelpful.find(groups);
        if (known != unhelpful.end() && known->second == signature)
            return false;
        bool const taken = take_best_of(trials, judged, judged_distance, current);
        if (taken)
            unhelpful.erase(groups);
        else
            unhelpful[groups] = signature;
        return taken;
    }

    // The forms that judge a move are not all those it reaches (a pair that packs arguments may put a
    // form off that names neither group): where the best one there puts the whole further, the others
    // as good there are scored on the whole too, in turn.
    bool take_best_of(std::vector<clang::format::FormatStyle> const& trials, std::vector<form_case> const& judged,
                      unsigned long judged_distance, scored_style& current) {
        std::vector<std::size_t> best;
        unsigned long best_distance = judged_distance;
        for (std::size_t t = 0; t < trials.size(); ++t) {
            if (!within_budget())
                break;
            formatted += static_cast<long>(judged.size());
            unsigned long const distance = total_of(distances_of(judged, trials[t], measure));
            if (distance < best_distance)
                best.clear();
            if (distance <= best_distance && distance < judged_distance) {
                best.push_back(t);
                best_distance = distance;
            }
        }
        for (std::size_t b = 0; b < best.size() && (b == 0 || within_budget()); ++b) {
            scored_style moved = scored(trials[best[b]]);
            if (moved.total >= current.total)
                continue;
            current = std::move(moved);
            return true;
        }
        return false;
    }

    std::vector<clang::format::FormatStyle> moves_of(std::size_t group, clang::format::FormatStyle const& style) const {
        std::vector<clang::format::FormatStyle> moved;
        for (std::string const& candidate : groups[group].candidates) {
            clang::format::FormatStyle trial = style;
            if (apply_candidate(trial, candidate) && !same_options(trial, style) && holds_readings(trial))
                moved.push_back(std::move(trial));
        }
        return moved;
    }

    // Whether a style the search may move to holds the pinned readings and no excluded value.
    bool holds_readings(clang::format::FormatStyle const& trial) const {
        bool holds = true;
        for (std::string const& reading : kept) {
            clang::format::FormatStyle held = trial;
            holds = holds && apply_candidate(held, reading) && same_options(held, trial);
        }
        for (std::string const& value : excluded) {
            clang::format::FormatStyle held = trial;
            holds = holds && !(apply_candidate(held, value) && same_options(held, trial));
        }
        return holds;
    }

    bool single_moves(scored_style& current) {
        bool improved = false;
        for (std::size_t group = 0; group < groups.size() && current.total > 0 && within_budget(); ++group)
            improved = take_best_of(moves_of(group, current.style), {group}, current) || improved;
        return improved;
    }

    // The groups that the structure of a form names, in table order, then tab use where tabs indent
    // and every group that packs lists where it names one.
    std::vector<std::size_t> moving_with(form_case const& form, bool uses_tabs) const {
        std::vector<std::size_t> named;
        for (std::size_t group = 0; group < groups.size(); ++group)
            if (among(form.decides, groups[group].name))
                named.push_back(group);
        bool const lays_out_lists = std::any_of(form.decides.begin(), form.decides.end(),
                                                [](auto const& name) { return among(list_packing, name); });
        for (std::size_t group = 0; group < groups.size(); ++group) {
            std::string const& name = groups[group].name;
            bool const joins = (name == "UseTab" && uses_tabs) || (lays_out_lists && among(list_packing, name));
            if (joins && std::find(named.begin(), named.end(), group) == named.end())
                named.push_back(group);
        }
        return named;
    }

    // The groups that the structure of a form still differing names (and tab use, where tabs
    // indent; and every group that packs lists, where it names one); for each pair of them, every
    // combination of their values. The first pair (in table order, form by form) that improves is
    // taken.
    bool coupled_move(scored_style& current) {
        std::set<std::pair<std::size_t, std::size_t>> tried;
        // Where tabs indent, which lines take them moves with the options that shift those lines
        // (a continuation indent, an alignment): tab use pairs with every group a form names.
        bool const uses_tabs = current.style.UseTab != clang::format::FormatStyle::UT_Never;
        for (std::size_t i = 0; i < forms.size() && within_budget(); ++i) {
            if (current.distances[i] == 0)
                continue;
            std::vector<std::size_t> const named = moving_with(forms[i], uses_tabs);
            for (std::size_t a = 0; a < named.size(); ++a)
                for (std::size_t b = a + 1; b < named.size(); ++b) {
                    if (!tried.insert({named[a], named[b]}).second || !within_budget())
                        continue;
                    std::vector<clang::format::FormatStyle> trials;
                    for (clang::format::FormatStyle const& first : moves_of(named[a], current.style))
                        for (clang::format::FormatStyle const& both : moves_of(named[b], first))
                            trials.push_back(both);
                    if (take_best_of(trials, {named[a], named[b]}, current))
                        return true;
                }
        }
        return false;
    }

    // Where no pair that one form names improves: a group that a differing form names may bring
    // that form closer but put others off, which need a group of their own moved with it (a
    // continuation indent with the cost of breaking after `=`, operand alignment with the packing
    // of parameters, the parenthesis left open with a break before strings in parts). Each such
    // group pairs with the groups that the forms it puts off name and, where it breaks long lines,
    // with the others that do; every combination of their values.
    bool mending_move(scored_style& current) {
        if (unmended.count({current.distances, kept}))
            return false;
        bool const uses_tabs = current.style.UseTab != clang::format::FormatStyle::UT_Never;
        std::set<std::size_t> moved_groups;
        std::set<std::pair<std::size_t, std::size_t>> tried;
        for (std::size_t i = 0; i < forms.size(); ++i) {
            if (current.distances[i] == 0)
                continue;
            for (std::size_t group : moving_with(forms[i], uses_tabs)) {
                if (!within_budget())
                    return false;
                if (!moved_groups.insert(group).second)
                    continue;
                std::set<std::size_t> partners;
                if (among(line_breaking, groups[group].name))
                    for (std::size_t other = 0; other < groups.size(); ++other)
                        if (among(line_breaking, groups[other].name))
                            partners.insert(other);
                std::vector<clang::format::FormatStyle> const group_moves = moves_of(group, current.style);
                for (clang::format::FormatStyle const& trial : group_moves) {
                    if (!within_budget())
                        return false;
                    scored_style const moved = scored(trial);
                    if (moved.distances[i] >= current.distances[i])
                        continue;
                    for (std::size_t j = 0; j < forms.size(); ++j)
                        if (moved.distances[j] > current.distances[j])
                            for (std::size_t other : moving_with(forms[j], uses_tabs))
                                partners.insert(other);
                }
                partners.erase(group);
                for (std::size_t other : partners) {
                    if (!tried.insert(std::minmax(group, other)).second || !within_budget())
                        continue;
                    std::vector<clang::format::FormatStyle> trials;
                    for (clang::format::FormatStyle const& first : group_moves)
                        for (clang::format::FormatStyle const& both : moves_of(other, first))
                            trials.push_back(both);
                    if (take_best_of(trials, {std::min(group, other), std::max(group, other)}, current))
                        return true;
                }
            }
        }
        unmended.insert({current.distances, kept});
        return false;
    }

    // Scales a width measured in tabs of one width to another (an indent of 8 in tabs of 4 is 4 in tabs
    // of 2); false where it does not scale to a whole value that the table's group holds (an indent of
    // 16 is no step a style of the table takes).
    template <typename width_type>
    bool scaled_exactly(width_type& value, unsigned from_width, unsigned to_width, std::string const& group) const {
        long const scaled = static_cast<long>(value) * to_width / static_cast<long>(from_width);
        if (scaled * from_width != static_cast<long>(value) * to_width || !table_holds(group, std::to_string(scaled)))
            return false;
        value = static_cast<width_type>(scaled);
        return true;
    }

    // Whether a group of the table has the value among its candidates.
    bool table_holds(std::string const& group, std::string const& value) const {
        std::string const candidate = "{" + group + ": " + value + "}";
        return std::any_of(groups.begin(), groups.end(), [&](option_group const& each) {
            return each.name == group && among(each.candidates, candidate);
        });
    }

    // Code indented with tabs alone looks the same under every tab width whose indent step is the
    // same number of tabs: where tabs indent, the tab width moves to each other width, alone and
    // with the indent step (and the access labels' offset) and the continuation indent measured in
    // it (an indent of 8 in tabs of 4 reads as 4 in tabs of 2), each scaled only to a value the
    // table holds, and each of those with one value of tab use, the continuation indent or indented
    // braces (the groups whose lines reach past the tabs), or of a group that a form still
    // differing names.
    bool tab_width_move(scored_style& current) {
        clang::format::FormatStyle const& style = current.style;
        if (style.UseTab == clang::format::FormatStyle::UT_Never || untabbed.count({current.distances, kept}) ||
            style.TabWidth == 0)
            return false;
        std::vector<clang::format::FormatStyle> widths;
        for (unsigned const width : {2U, 4U, 8U}) {
            if (width == style.TabWidth)
                continue;
            for (bool const scaled_step : {false, true})
                for (bool const scaled_continuation : {false, true}) {
                    clang::format::FormatStyle trial = style;
                    trial.TabWidth = width;
                    if ((scaled_step && !scaled_exactly(trial.IndentWidth, style.TabWidth, width, "IndentWidth")) ||
                        (scaled_continuation && !scaled_exactly(trial.ContinuationIndentWidth, style.TabWidth, width,
                                                                "ContinuationIndentWidth")))
                        continue;
                    // An access label's offset is measured in the step's columns too (-16 under a step
                    // of 16 in tabs of 8 is -8 under 8 in tabs of 4), or else keeps the label's column
                    // (-5 under a step of 8 is -1 under 4), and so is the directives' indent where it is
                    // the step's; the initializers of a constructor, where they are continued as far as
                    // other lines, in the continuation's columns.
                    if (scaled_step && !scaled_exactly(trial.AccessModifierOffset, style.TabWidth, width,
                                                       "AccessModifierOffset")) {
                        int const same_column = style.AccessModifierOffset + static_cast<int>(trial.IndentWidth) -
                                                static_cast<int>(style.IndentWidth);
                        if (table_holds("AccessModifierOffset", std::to_string(same_column)))
                            trial.AccessModifierOffset = same_column;
                    }
                    if (scaled_step && trial.PPIndentWidth == static_cast<int>(style.IndentWidth))
                        scaled_exactly(trial.PPIndentWidth, style.TabWidth, width, "PPIndentWidth");
                    if (scaled_continuation && style.ConstructorInitializerIndentWidth == style.ContinuationIndentWidth)
                        scaled_exactly(trial.ConstructorInitializerIndentWidth, style.TabWidth, width,
                                       "ConstructorInitializerIndentWidth");
                    if (!holds_readings(trial) || std::any_of(widths.begin(), widths.end(), [&](auto const& known) {
                            return same_options(known, trial);
                        }))
                        continue;
                    widths.push_back(trial);
                }
        }
        // A width that brings as many forms closer as it puts off (or more) pairs, as a mending move
        // does, with the groups that the forms it puts off name: tabs of 4 that bring a multiline
        // string back put long constructor initializers off until their indent moves too (8 in tabs
        // of 8 to 4), and tabs of 4 that bring macros back put a long call off until breaking after
        // `=` costs more.
        std::vector<std::set<std::string>> mending(widths.size());
        for (std::size_t w = 0; w < widths.size() && within_budget(); ++w) {
            scored_style const moved = scored(widths[w]);
            std::size_t closer = 0;
            std::size_t further = 0;
            for (std::size_t i = 0; i < forms.size(); ++i) {
                closer += moved.distances[i] < current.distances[i] ? 1 : 0;
                further += moved.distances[i] > current.distances[i] ? 1 : 0;
            }
            for (std::size_t j = 0; j < forms.size() && further <= closer; ++j)
                if (moved.distances[j] > current.distances[j])
                    mending[w].insert(forms[j].decides.begin(), forms[j].decides.end());
        }
        std::vector<clang::format::FormatStyle> trials = widths;
        for (std::size_t group = 0; group < groups.size(); ++group) {
            std::string const& name = groups[group].name;
            bool const named = std::any_of(forms.begin(), forms.end(), [&](form_case const& form) {
                return current.distances[&form - forms.data()] > 0 && among(form.decides, name);
            });
            bool const with_every_width =
                named || name == "UseTab" || name == "ContinuationIndentWidth" || name == "BraceWrapping.IndentBraces";
            for (std::size_t w = 0; w < widths.size(); ++w)
                if (with_every_width || mending[w].count(name) > 0)
                    for (clang::format::FormatStyle& both : moves_of(group, widths[w]))
                        trials.push_back(std::move(both));
        }
        if (take_best_of(trials, forms, current.total, current))
            return true;
        untabbed.insert({current.distances, kept});
        return false;
    }
};

// Whether a line of the code holds a comment after code.
bool has_trailing_comment(std::string const& code) {
    for (std::string const& line : lines_of(code)) {
        std::size_t const first = line.find_first_not_of(" \t");
        for (char const* const opening : {"//", "/*"}) {
            std::size_t const comment = line.find(opening);
            if (comment != std::string::npos && first < comment)
                return true;
        }
    }
    return false;
}

// Forms formatted each on its own, as a revision formats a form, where what the engine does to one
// form depends on the others before it. A style that derives where `*` leans from the code it
// formats takes the leaning of most of that code: the forms that show it, so that their own
// majority decides. A style that leaves trailing comments where they stand sets every comment after
// a line longer than the limit its own distance away: the forms with trailing comments, so that
// another form's long line does not reach them.
bool formatted_alone(form_case const& form, clang::format::FormatStyle const& style) {
    if (style.DerivePointerAlignment &&
        std::find(form.decides.begin(), form.decides.end(), "DerivePointerAlignment") != form.decides.end())
        return true;
    return style.AlignTrailingComments.Kind == clang::format::FormatStyle::TCAS_Leave && style.ColumnLimit > 0 &&
           has_trailing_comment(form.code);
}

}  // namespace

std::vector<unsigned long> distances_of(std::vector<form_case> const& forms, clang::format::FormatStyle const& style,
                                        infer_options::distance_measure const& measure) {
    std::string joined;
    std::vector<std::size_t> together;
    std::vector<std::string> pieces(forms.size());
    for (std::size_t i = 0; i < forms.size(); ++i) {
        if (formatted_alone(forms[i], style)) {
            pieces[i] = format_with(style).the_code(forms[i].code + "\n").text;
            continue;
        }
        joined += (together.empty() ? "" : "\n\n" + boundary + "\n\n") + forms[i].code;
        together.push_back(i);
    }
    std::vector<unsigned long> distances(forms.size(), 1000000000UL);
    if (!together.empty()) {
        std::vector<std::string> const joined_pieces = pieces_of(format_with(style).the_code(joined + "\n").text);
        if (joined_pieces.size() != together.size())
            return distances;
        for (std::size_t j = 0; j < together.size(); ++j)
            pieces[together[j]] = joined_pieces[j];
    }
    for (std::size_t i = 0; i < forms.size(); ++i)
        distances[i] = measure ? measure(form_as_code(forms[i].code), form_as_code(pieces[i]))
                               : white_space_distance(form_as_code(forms[i].code), form_as_code(pieces[i]));
    return distances;
}

clang::format::FormatStyle infer_options::from(std::vector<form_case> const& forms) const {
    return from(forms, readings_of(forms));
}

clang::format::FormatStyle infer_options::from(std::vector<form_case> const& forms, form_readings const& readings) const {
    if (forms.empty())
        return token_safe_predefined_style(names_of_predefined_styles(language).front(), language);
    option_search search(option_groups(language), forms, readings.ruled_out, formatting_budget, going_on, measure);

    // A style that is a predefined one keeps all its rules, Google's "the file's majority decides
    // where * leans" included; holding what the forms pass, as every style the search tries, and
    // only where it holds what the forms tell that its own forms would not (forms that all lean
    // one way, where a lone pointer and a majority leaning the other way would show a derived leaning).
    std::vector<clang::format::FormatStyle> bases;
    scored_style best_base;
    for (std::string const& name : names_of_predefined_styles(language)) {
        bases.push_back(token_safe_predefined_style(name, language));
        for (std::string const& names : readings.passed)
            apply_candidate(bases.back(), names);
        scored_style base = search.scored(bases.back());
        bool const tells_apart = std::all_of(readings.telling.begin(), readings.telling.end(), [&](auto const& reading) {
            clang::format::FormatStyle held = base.style;
            return apply_candidate(held, reading) && same_options(held, base.style);
        });
        if (base.total == 0 && tells_apart)
            return base.style;
        if (tells_apart && (best_base.distances.empty() || base.total < best_base.total))
            best_base = std::move(base);
    }

    // Any other style shows where * and & lean in its forms (the readings say so), and those
    // forms, not the file being revised, decide; unless its forms lean two ways as a derived
    // leaning makes them.
    std::vector<scored_style> starts;
    for (clang::format::FormatStyle const& base : bases)
        for (bool const with_braces : {true, false}) {
            if (with_braces && readings.braces.empty())
                continue;
            clang::format::FormatStyle start = base;
            for (std::string const& reading : readings.layout)
                apply_candidate(start, reading);
            if (with_braces)
                apply_candidate(start, readings.braces);
            starts.push_back(search.scored(start));
        }
    // Closest first; among equals, in the order they were made.
    std::vector<std::size_t> order(starts.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return starts[a].total != starts[b].total ? starts[a].total < starts[b].total : a < b;
    });
    std::vector<scored_style> by_distance;
    for (std::size_t i : order)
        by_distance.push_back(std::move(starts[i]));
    starts = std::move(by_distance);

    // A predefined style as it stands is a result too: the search never ends further from the forms.
    scored_style best = !best_base.distances.empty() && best_base.total < starts.front().total ? best_base : starts.front();
    std::vector<clang::format::FormatStyle> descended;
    for (scored_style& start : starts) {
        if (best.total == 0 || descended.size() == beam_width || !search.within_budget())
            break;
        if (std::any_of(descended.begin(), descended.end(),
                        [&](auto const& style) { return same_options(style, start.style); }))
            continue;
        descended.push_back(start.style);
        search.descend(start, readings.certain);
        if (start.total < best.total)
            best = start;
    }

    // Out of a local optimum: each reading that the best style no longer follows is applied again
    // and held while the style descends anew (an option that helped early may block the way later),
    // then let go for a last descent.
    std::vector<std::string> kicks = readings.layout;
    kicks.push_back(readings.braces);
    for (std::string const& kick : kicks) {
        if (best.total == 0 || !search.within_budget())
            break;
        clang::format::FormatStyle kicked = best.style;
        if (kick.empty() || !apply_candidate(kicked, kick) || same_options(kicked, best.style))
            continue;
        scored_style restart = search.scored(kicked);
        std::vector<std::string> pinned = readings.certain;
        pinned.push_back(kick);
        search.descend(restart, pinned);
        search.descend(restart, readings.certain);
        if (restart.total < best.total)
            best = restart;
    }

    // Where several styles give every form back, the one that follows what the forms show
    // directly is the closer (without a column limit, braces left where their author put them
    // give back braces placed by any rule; comments left where they stand give back comments
    // lined up): each such reading is applied, held while the style descends anew, and kept if
    // every form still comes back.
    for (std::string const& reading : readings.preferred) {
        if (best.total != 0 || !search.within_budget())
            break;
        clang::format::FormatStyle kicked = best.style;
        if (!apply_candidate(kicked, reading) || same_options(kicked, best.style))
            continue;
        scored_style restart = search.scored(kicked);
        std::vector<std::string> pinned = readings.certain;
        pinned.push_back(reading);
        search.descend(restart, pinned);
        if (restart.total == 0)
            best = restart;
    }

    // Values the forms rule out are likely, not certain (a hand-written addon may keep its breaks
    // under no column limit): a last descent may reach them.
    if (best.total > 0 && !readings.ruled_out.empty() && search.within_budget()) {
        search.exclude_nothing();
        search.descend(best, readings.certain);
    }
    search.last_single_moves(best, readings.certain, readings.preferred);
    return best.style;
}

}  // namespace tarnel_engine
