// The measuring half of the inference benchmark (the script `run` drives it; one line of tab-
// separated fields per addon on standard output):
//   inference_bench round-trip <C|C++> <count> <seed> <directory>
//       random option sets, each drawn group by group from the option table on a random predefined
//       base; the addon written from each (kept in <directory>), its options inferred from the
//       forms alone. Fields: set, reproducible (the generating set's own forms are fixed points),
//       forms, fixed points, groups shown by the forms, of those recovered, seconds (cold), the
//       generating options (one line of configuration; also kept in <directory>). With
//       `fixed-points` last, the groups shown are not counted (both fields 0): a third of the time.
//   inference_bench edits <addon>...
//       for each addon and each value of each option group: the options inferred from the addon
//       with that value, the forms that this changes rewritten as the engine lays them out; kept
//       when the edited options reproduce their own forms and some form changed. Fields: addon,
//       edit, forms, fixed points, seconds (cold), the forms that do not come back (comma-separated).
//   inference_bench carries <C|C++> <count> <seed> <source>...
//       what an addon carries of its options: the same random sets as round-trip, each one's addon
//       written, the sources revised with it as a user's run does, and compared line by line with
//       the engine run with the generating options themselves (comments reflowed on neither side).
//       Fields: set, lines, lines the same, the option groups whose value the inferred options
//       lose (comma-separated), the generating options, and for each group lost the lines that
//       the engine under the inferred options gains when that group alone takes the generating
//       value (group:lines, comma-separated); then the lines, and the lines the same, against a
//       revision under the generating options themselves (which moves a block comment's lines with
//       its first line and leaves a file the engine keeps changing as it stands, as the addon's
//       revision does, where one pass of the engine does neither).
//   inference_bench explain <addon> <generating options>
//       why a round trip missed: the forms that do not come back under the inferred options (and
//       their distance), then each option group whose inferred value differs from the generating
//       one (with the forms that this moves), and each pair of them that brings the total distance
//       down, with that total.
//   inference_bench warm <addon>...
//       seconds to obtain the options of each addon in this process (from the disk cache when a
//       previous run filled it).
#include "addon_forms.h"
#include "c_language.h"
#include "code_sample.h"
#include "cpp_language.h"
#include "csharp_language.h"
#include "engine_call.h"
#include "inference_cache.h"
#include "java_language.h"
#include "javascript_language.h"
#include "objc_language.h"
#include "option_inference.h"
#include "option_moves.h"
#include "placeholder_instances.h"
#include "proto_language.h"
#include "revision.h"
#include "style_learning.h"
#include "text_lines.h"
#include "token_safe_settings.h"
#include "white_space.h"

#include <QFile>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <iostream>
#include <map>
#include <random>

namespace {

using clang::format::FormatStyle;

std::string contents_of(std::string const& path) {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

void write_to(std::string const& path, std::string const& text) {
    QFile file(QString::fromStdString(path));
    if (file.open(QIODevice::WriteOnly))
        file.write(text.data(), static_cast<qint64>(text.size()));
}

// The language the addon names on its LANGUAGE line (C where it names none of ours).
tarnel_engine::language_description const& language_of(std::string const& addon) {
    for (tarnel_engine::language_description const* language :
         {&cpp_language(), &objc_language(), &java_language(), &javascript_language(), &csharp_language(),
          &proto_language()})
        if (addon.find("\nLANGUAGE=" + language->name + "\n") != std::string::npos)
            return *language;
    return c_language();
}

std::string one_line(std::string const& configuration) {
    std::string line;
    for (char c : configuration)
        line += c == '\n' ? ' ' : c;
    return line;
}

double seconds_since(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Each form formatted alone under the style, placeholders restored: what a user writing the forms
// in that style would write.
std::map<std::string, std::string> forms_under(FormatStyle const& style, std::map<std::string, std::string> const& forms) {
    std::map<std::string, std::string> formatted;
    for (auto const& [name, form] : forms) {
        std::string const code = tarnel_engine::with_instances(tarnel_engine::form_as_code(form));
        formatted[name] = tarnel_engine::form_as_code(
            tarnel_engine::without_instances(tarnel_engine::format_with(style).the_code(code + "\n").text));
    }
    return formatted;
}

std::map<std::string, std::string> forms_of(std::string const& addon, tarnel_engine::language_description const& language) {
    std::map<std::string, std::string> forms;
    for (tarnel_engine::structure const& each : language.structures) {
        std::string const form = tarnel_engine::form_of_structure(each.name).in(addon);
        if (!form.empty())
            forms[each.name] = form;
    }
    return forms;
}

std::string addon_of(std::string const& name, tarnel_engine::language_description const& language,
                     std::map<std::string, std::string> const& forms) {
    std::string addon = "NAME=" + name + "\nLANGUAGE=" + language.name + "\n";
    for (auto const& [structure, form] : forms)
        addon += "\nS_NAME=" + structure + "\nS_BEG\n" + form + "\nS_END\n";
    return addon;
}

int fixed_points_of(std::map<std::string, std::string> const& forms, std::map<std::string, std::string> const& formatted) {
    int fixed = 0;
    for (auto const& [name, form] : forms) {
        auto const found = formatted.find(name);
        fixed += found != formatted.end() && found->second == form;
    }
    return fixed;
}

// The style with the group at the candidate's value, when that is a change.
bool moved(FormatStyle const& style, std::string const& candidate, FormatStyle& result) {
    result = style;
    return tarnel_engine::apply_candidate(result, candidate) && !tarnel_engine::same_options(result, style);
}

// One random option set: a random predefined base, then each group at the base's value or one of
// the table's, with equal chances.
FormatStyle drawn_from(std::mt19937& random) {
    auto const& groups = tarnel_engine::option_groups();
    auto const& bases = tarnel_engine::names_of_predefined_styles(tarnel_engine::lexed_as::latest_cpp);
    FormatStyle style = tarnel_engine::token_safe_predefined_style(bases[random() % bases.size()], tarnel_engine::lexed_as::latest_cpp);
    for (std::size_t group = 0; group < groups.size(); ++group) {
        std::size_t const pick = random() % (groups[group].candidates.size() + 1);
        if (pick < groups[group].candidates.size())
            tarnel_engine::apply_candidate(style, groups[group].candidates[pick]);
    }
    tarnel_engine::make_token_safe(style);
    return style;
}

// Whether the two styles hold the same value of the group: each of its values changes both or neither.
bool same_value_of(tarnel_engine::option_group const& group, FormatStyle const& one, FormatStyle const& other) {
    for (std::string const& candidate : group.candidates) {
        FormatStyle in_one, in_other;
        if (moved(one, candidate, in_one) != moved(other, candidate, in_other))
            return false;
    }
    return true;
}

int round_trip(std::string const& language_name, int count, unsigned seed, std::string const& directory,
               bool fixed_points_only) {
    tarnel_engine::language_description const& language = language_name == "C" ? c_language() : cpp_language();
    std::mt19937 random(seed);
    auto const& groups = tarnel_engine::option_groups();
    for (int set = 0; set < count; ++set) {
        FormatStyle const style = drawn_from(random);
        std::string const configuration = clang::format::configurationAsText(style);
        std::string const name = language_name + "-" + std::to_string(set);
        std::string const addon = tarnel_engine::addon_written_in(configuration, name, language);
        write_to(directory + "/" + name + ".style", addon);
        write_to(directory + "/" + name + ".clang-format", configuration);
        std::map<std::string, std::string> const forms = forms_of(addon, language);
        bool const reproducible = fixed_points_of(forms, forms_under(style, forms)) == static_cast<int>(forms.size());

        auto const start = std::chrono::steady_clock::now();
        FormatStyle const inferred = tarnel_engine::inference_cache::shared().style_for(addon, language);
        double const took = seconds_since(start);
        int const fixed = fixed_points_of(forms, forms_under(inferred, forms));

        // A group is shown when another of its values changes some form; recovered when the
        // inferred options hold the drawn value (or the base's, when none was drawn).
        int shown = 0, recovered = 0;
        for (std::size_t group = 0; group < groups.size() && !fixed_points_only; ++group) {
            bool is_shown = false;
            for (std::string const& candidate : groups[group].candidates) {
                FormatStyle other;
                if (moved(style, candidate, other) && forms_under(other, forms) != forms) {
                    is_shown = true;
                    break;
                }
            }
            if (!is_shown)
                continue;
            ++shown;
            recovered += same_value_of(groups[group], style, inferred);
        }
        std::cout << name << "\t" << reproducible << "\t" << forms.size() << "\t" << fixed << "\t" << shown << "\t"
                  << recovered << "\t" << took << "\t" << one_line(configuration) << std::endl;
    }
    return 0;
}

int edits(std::vector<std::string> const& paths) {
    for (std::string const& path : paths) {
        std::string const addon = contents_of(path);
        tarnel_engine::language_description const& language = language_of(addon);
        std::map<std::string, std::string> const forms = forms_of(addon, language);
        FormatStyle const inferred = tarnel_engine::inference_cache::shared().style_for(addon, language);
        // The values the form editor offers for the addon's language.
        for (auto const& group : tarnel_engine::option_groups(language.lexing))
            for (std::string const& candidate : group.candidates) {
                FormatStyle edited;
                if (!moved(inferred, candidate, edited))
                    continue;
                std::map<std::string, std::string> const rewritten = forms_under(edited, forms);
                if (rewritten == forms || forms_under(edited, rewritten) != rewritten)
                    continue;
                std::string const edited_addon = addon_of("edited", language, rewritten);
                auto const start = std::chrono::steady_clock::now();
                FormatStyle const again = tarnel_engine::inference_cache::shared().style_for(edited_addon, language);
                double const took = seconds_since(start);
                std::map<std::string, std::string> const back = forms_under(again, rewritten);
                std::string missed;
                for (auto const& [name, form] : rewritten)
                    if (back.at(name) != form)
                        missed += (missed.empty() ? "" : ",") + name;
                std::cout << path << "\t" << candidate << "\t" << rewritten.size() << "\t"
                          << fixed_points_of(rewritten, back) << "\t" << took << "\t" << missed << std::endl;
            }
    }
    return 0;
}

// The engine run again on its own output until nothing changes (a few passes at most): what a
// revision under the style gives, where one pass of the engine is not yet its own fixed point.
int carries(std::string const& language_name, int count, unsigned seed, std::vector<std::string> const& paths) {
    tarnel_engine::language_description const& language = language_name == "C" ? c_language() : cpp_language();
    std::vector<std::string> sources;
    for (std::string const& path : paths)
        sources.push_back(contents_of(path));
    std::mt19937 random(seed);
    tarnel_engine::reviser revisions(language);
    for (int set = 0; set < count; ++set) {
        FormatStyle const style = drawn_from(random);
        std::string const configuration = clang::format::configurationAsText(style);
        std::string const name = language_name + "-" + std::to_string(set);
        std::string const addon = tarnel_engine::addon_written_in(configuration, name, language);
        unsigned long lines = 0, same = 0, revision_lines = 0, same_as_revision = 0;
        for (std::string const& source : sources) {
            tarnel_engine::engine_outcome const wanted = tarnel_engine::format_with(style).the_code(source);
            std::string const revised = revisions.revise(source, addon, {"\n", " "});
            std::string const revised_under_generating = revisions.revise_under(source, style, {"\n", " "});
            lines += tarnel_engine::lines_of(wanted.text).size();
            revision_lines += tarnel_engine::lines_of(revised_under_generating).size();
            if (revised != STYLE_TARNEL_SYNTAX_ERROR_TEXT) {
                same += tarnel_engine::lines_left_between(wanted.text, revised);
                same_as_revision += tarnel_engine::lines_left_between(revised_under_generating, revised);
            }
        }
        FormatStyle const inferred = tarnel_engine::inference_cache::shared().style_for(addon, language);
        std::vector<std::string> wanted_texts;
        for (std::string const& source : sources)
            wanted_texts.push_back(tarnel_engine::format_with(style).the_code(source).text);
        // Lines the engine leaves as the generating options lay them out, under a style.
        auto const lines_same_under = [&](FormatStyle const& candidate_style) {
            unsigned long kept = 0;
            for (std::size_t source = 0; source < sources.size(); ++source)
                kept += tarnel_engine::lines_left_between(
                    wanted_texts[source], tarnel_engine::format_with(candidate_style).the_code(sources[source]).text);
            return kept;
        };
        unsigned long const same_inferred = lines_same_under(inferred);
        // The groups that some structure of the language shows, or that apply to every one; each
        // lost one with the lines the inferred options gain when it alone takes the generating value.
        std::string lost, costs;
        for (auto const& group : tarnel_engine::option_groups()) {
            bool shown = tarnel_engine::applies_to_every_structure(group.name);
            for (tarnel_engine::structure const& each : language.structures)
                shown = shown || std::find(each.decides.begin(), each.decides.end(), group.name) != each.decides.end();
            if (!shown || same_value_of(group, style, inferred))
                continue;
            lost += (lost.empty() ? "" : ",") + group.name;
            for (std::string const& candidate : group.candidates) {
                FormatStyle unchanged, mended;
                if (moved(style, candidate, unchanged) || !moved(inferred, candidate, mended))
                    continue;
                long const gained = static_cast<long>(lines_same_under(mended)) - static_cast<long>(same_inferred);
                costs += (costs.empty() ? "" : ",") + group.name + ":" + std::to_string(gained);
                break;
            }
        }
        std::cout << name << "\t" << lines << "\t" << same << "\t" << (lost.empty() ? "-" : lost) << "\t"
                  << one_line(configuration) << "\t" << (costs.empty() ? "-" : costs) << "\t" << revision_lines << "\t"
                  << same_as_revision << std::endl;
    }
    return 0;
}

int explain(std::string const& addon_path, std::string const& options_path) {
    std::string const addon = contents_of(addon_path);
    tarnel_engine::language_description const& language = language_of(addon);
    FormatStyle generating = tarnel_engine::token_safe_predefined_style("LLVM", language.lexing);
    if (!tarnel_engine::read_configuration(contents_of(options_path), generating)) {
        std::cerr << "cannot read " << options_path << "\n";
        return 1;
    }
    std::vector<tarnel_engine::form_case> const forms = tarnel_engine::form_cases_in(addon, language);
    FormatStyle const inferred = tarnel_engine::infer_options(language.lexing).from(forms);
    auto const total_under = [&](FormatStyle const& style) {
        std::vector<unsigned long> const distances = tarnel_engine::distances_of(forms, style);
        unsigned long total = 0;
        for (unsigned long each : distances)
            total += each;
        return total;
    };
    std::vector<unsigned long> const distances = tarnel_engine::distances_of(forms, inferred);
    unsigned long const total = total_under(inferred);
    std::cout << "inferred: " << total << ", generating: " << total_under(generating) << "\n";
    for (std::size_t i = 0; i < forms.size(); ++i)
        if (distances[i])
            std::cout << "  differs: " << forms[i].structure << " (" << distances[i] << ")\n";
    std::vector<std::pair<std::string, std::string>> differing;
    for (auto const& group : tarnel_engine::option_groups(language.lexing)) {
        if (same_value_of(group, generating, inferred))
            continue;
        for (std::string const& candidate : group.candidates) {
            FormatStyle unchanged, mended;
            if (moved(generating, candidate, unchanged) || !moved(inferred, candidate, mended))
                continue;
            differing.emplace_back(group.name, candidate);
            std::vector<unsigned long> const after = tarnel_engine::distances_of(forms, mended);
            std::cout << "single " << candidate << ": " << total_under(mended);
            for (std::size_t i = 0; i < forms.size(); ++i)
                if (after[i] != distances[i])
                    std::cout << ", " << forms[i].structure << " " << distances[i] << " to " << after[i];
            std::cout << "\n";
            break;
        }
    }
    for (std::size_t a = 0; a < differing.size(); ++a)
        for (std::size_t b = a + 1; b < differing.size(); ++b) {
            FormatStyle both = inferred;
            tarnel_engine::apply_candidate(both, differing[a].second);
            tarnel_engine::apply_candidate(both, differing[b].second);
            unsigned long const moved_total = total_under(both);
            if (moved_total < total)
                std::cout << "pair " << differing[a].second << " " << differing[b].second << ": " << moved_total << "\n";
        }
    return 0;
}

int warm(std::vector<std::string> const& paths) {
    for (std::string const& path : paths) {
        std::string const addon = contents_of(path);
        auto const start = std::chrono::steady_clock::now();
        tarnel_engine::inference_cache::shared().style_for(addon, language_of(addon));
        std::cout << path << "\t" << seconds_since(start) << std::endl;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> const arguments(argv + 1, argv + argc);
    if ((arguments.size() == 5 || (arguments.size() == 6 && arguments[5] == "fixed-points")) &&
        arguments[0] == "round-trip")
        return round_trip(arguments[1], std::stoi(arguments[2]), static_cast<unsigned>(std::stoul(arguments[3])),
                          arguments[4], arguments.size() == 6);
    if (arguments.size() >= 2 && arguments[0] == "edits")
        return edits({arguments.begin() + 1, arguments.end()});
    if (arguments.size() >= 5 && arguments[0] == "carries")
        return carries(arguments[1], std::stoi(arguments[2]), static_cast<unsigned>(std::stoul(arguments[3])),
                       {arguments.begin() + 4, arguments.end()});
    if (arguments.size() == 3 && arguments[0] == "explain")
        return explain(arguments[1], arguments[2]);
    if (arguments.size() >= 2 && arguments[0] == "warm")
        return warm({arguments.begin() + 1, arguments.end()});
    std::cerr << "usage: inference_bench round-trip <C|C++> <count> <seed> <directory> [fixed-points] |\n"
                 "       edits <addon>... |\n"
                 "       carries <C|C++> <count> <seed> <source>... | explain <addon> <options> |\n"
                 "       warm <addon>...\n";
    return 2;
}
