// The search: predefined base, direct reading of the indentation, then coordinate descent over
// the option table. A few hundred engine calls on small texts settle an addon.
#include "option_inference.h"

#include "engine_call.h"
#include "option_moves.h"
#include "token_safe_settings.h"
#include "white_space.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <sstream>

namespace tarnel_engine {

namespace {

// Forms are formatted together, between comment lines that the engine leaves alone; blank lines
// around them keep alignment and comment rules from reaching from one form into the next.
std::string const boundary = "/* style tarnel: form boundary */";

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

int width_of_indent(std::string const& line) {
    int width = 0;
    for (char c : line) {
        if (c == ' ')
            ++width;
        else if (c == '\t')
            width += 8 - width % 8;
        else
            break;
    }
    return width;
}

// What the forms show directly: the most common step of indentation after an opening brace, and
// whether lines are indented with tabs. Read together, because the options only work together.
std::string indentation_read_from(std::vector<form_case> const& forms) {
    std::map<int, int> steps;
    bool tabs = false;
    for (form_case const& form : forms) {
        std::istringstream lines(form.code);
        std::string line;
        std::string previous;
        while (std::getline(lines, line)) {
            if (line.find_first_not_of(" \t") == std::string::npos)
                continue;
            tabs = tabs || (!line.empty() && line[0] == '\t');
            std::size_t const end = previous.find_last_not_of(" \t");
            if (end != std::string::npos && previous[end] == '{') {
                int const step = width_of_indent(line) - width_of_indent(previous);
                if (step > 0)
                    ++steps[step];
            }
            previous = line;
        }
    }
    if (steps.empty())
        return std::string();
    auto const most_common = std::max_element(steps.begin(), steps.end(),
                                              [](auto const& a, auto const& b) { return a.second < b.second; });
    std::string const width = std::to_string(most_common->first);
    return tabs ? "{IndentWidth: " + width + ", TabWidth: 8, UseTab: ForIndentation}"
                : "{IndentWidth: " + width + ", UseTab: Never}";
}

std::vector<form_case> subset(std::vector<form_case> const& forms, std::vector<std::size_t> const& indices) {
    std::vector<form_case> chosen;
    for (std::size_t index : indices)
        chosen.push_back(forms[index]);
    return chosen;
}

}  // namespace

std::vector<unsigned long> distances_of(std::vector<form_case> const& forms, clang::format::FormatStyle const& style) {
    std::string joined;
    for (std::size_t i = 0; i < forms.size(); ++i)
        joined += (i == 0 ? "" : "\n\n" + boundary + "\n\n") + forms[i].code;
    engine_outcome const outcome = format_with(style).the_code(joined + "\n");
    std::vector<std::string> const pieces = pieces_of(outcome.text);
    std::vector<unsigned long> distances(forms.size(), 1000000000UL);
    if (pieces.size() != forms.size())
        return distances;
    for (std::size_t i = 0; i < forms.size(); ++i)
        distances[i] = white_space_distance(form_as_code(forms[i].code), form_as_code(pieces[i]));
    return distances;
}

clang::format::FormatStyle infer_options::from(std::vector<form_case> const& forms) const {
    clang::format::FormatStyle style = token_safe_predefined_style(names_of_predefined_styles().front());
    if (forms.empty())
        return style;
    std::vector<unsigned long> distances = distances_of(forms, style);
    for (std::string const& name : names_of_predefined_styles()) {
        clang::format::FormatStyle const base = token_safe_predefined_style(name);
        std::vector<unsigned long> const base_distances = distances_of(forms, base);
        if (total_of(base_distances) < total_of(distances)) {
            style = base;
            distances = base_distances;
        }
    }

    // A style that is a predefined one keeps all its rules, Google's "the file's majority decides
    // where * leans" included; any other style shows where * and & lean in its forms, and those
    // forms, not the file being revised, decide.
    if (total_of(distances) > 0)
        style.DerivePointerAlignment = false;

    clang::format::FormatStyle read = style;
    std::string const indentation = indentation_read_from(forms);
    if (total_of(distances) > 0 && !indentation.empty() && apply_candidate(read, indentation)) {
        for (std::string const& offset :
             std::vector<std::string>{"", "{AccessModifierOffset: -" + std::to_string(read.IndentWidth) + "}"}) {
            clang::format::FormatStyle trial = read;
            if (!offset.empty() && !apply_candidate(trial, offset))
                continue;
            std::vector<unsigned long> const trial_distances = distances_of(forms, trial);
            if (total_of(trial_distances) < total_of(distances)) {
                style = trial;
                distances = trial_distances;
            }
        }
    }

    for (int pass = 0; pass < 4 && total_of(distances) > 0; ++pass) {
        bool improved = false;
        for (option_group const& group : option_groups()) {
            std::vector<std::size_t> relevant;
            for (std::size_t i = 0; i < forms.size(); ++i) {
                std::vector<std::string> const& decides = forms[i].decides;
                if (applies_to_every_structure(group.name) ||
                    std::find(decides.begin(), decides.end(), group.name) != decides.end())
                    relevant.push_back(i);
            }
            unsigned long current = 0;
            for (std::size_t index : relevant)
                current += distances[index];
            if (current == 0)
                continue;
            std::vector<form_case> const judged = subset(forms, relevant);
            clang::format::FormatStyle best = style;
            unsigned long best_distance = current;
            for (std::string const& candidate : group.candidates) {
                clang::format::FormatStyle trial = style;
                if (!apply_candidate(trial, candidate) || trial == style)
                    continue;
                unsigned long const distance = total_of(distances_of(judged, trial));
                if (distance < best_distance) {
                    best = trial;
                    best_distance = distance;
                }
            }
            if (best_distance == current)
                continue;
            std::vector<unsigned long> const best_distances = distances_of(forms, best);
            if (total_of(best_distances) < total_of(distances)) {
                style = best;
                distances = best_distances;
                improved = true;
            }
        }
        if (!improved)
            break;
    }
    return style;
}

}  // namespace tarnel_engine
