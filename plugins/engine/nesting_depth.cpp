// One walk over the tokens (bracket_balance.h), counting each kind of nesting where it stands.
#include "nesting_depth.h"

#include "bracket_balance.h"

#include <algorithm>
#include <string_view>

namespace tarnel_engine {

namespace {

// Both are asked of every token: by length first, without a table.
bool is_control_keyword(std::string const& spelling) {
    switch (spelling.size()) {
    case 2: return spelling == "if" || spelling == "do";
    case 3: return spelling == "for";
    case 5: return spelling == "while";
    case 6: return spelling == "switch";
    default: return false;
    }
}

bool is_prefix_operator(std::string const& spelling) {
    switch (spelling.size()) {
    case 1: return std::string_view("!~-+*&").find(spelling[0]) != std::string_view::npos;
    case 2: return spelling == "++" || spelling == "--" || spelling == "&&";
    case 3: return spelling == "not";
    case 5: return spelling == "compl";
    default: return false;
    }
}

// The counts that a statement (or a preprocessor line) starts afresh.
struct statement_counts {
    unsigned long questions = 0;
    unsigned long questions_open = 0;  // `?` not yet answered by their `:`
    unsigned long angles = 0;
    unsigned long prefixes_in_a_row = 0;
    unsigned long directive_brackets = 0;
};

}  // namespace

nesting_reading nesting_of(std::string const& code, lexed_as language) {
    nesting_reading reading;
    statement_counts counts;
    unsigned long controls_in_a_row = 0;
    bool statement_ended = false;  // by a `;`: the next token begins another unless it is `else`
    bool was_in_directive = false;
    auto const deepen = [&](unsigned long depth) { reading.deepest = std::max(reading.deepest, depth); };
    auto const count = [&](bracket_step const& step) {
        ++reading.tokens;
        std::string const& token = step.spelling;
        bool const directive_starts = step.in_directive && step.starts_line;
        if (directive_starts || step.in_directive != was_in_directive)
            counts = statement_counts();
        was_in_directive = step.in_directive;
        if (statement_ended && token != "else")
            controls_in_a_row = 0;
        statement_ended = false;

        if (step.in_directive) {
            if (token == "(" || token == "[" || token == "{" || token == "<:" || token == "<%")
                deepen(++counts.directive_brackets);
            else if ((token == ")" || token == "]" || token == "}" || token == ":>" || token == "%>") &&
                     counts.directive_brackets > 0)
                --counts.directive_brackets;
        } else {
            deepen(step.open);
            if (token == "{" || token == "}" || token == "<%" || token == "%>") {
                counts = statement_counts();
                controls_in_a_row = 0;
            } else if (token == ";") {
                counts = statement_counts();
                statement_ended = true;
            }
        }
        // A comma after the last `:` ends a conditional: the elements of a table of them do not
        // nest. One before it belongs to a nested conditional (`a ? b, c ? ...`).
        if (token == "," && counts.questions_open == 0)
            counts.questions = 0;
        if (token == ":" && counts.questions_open > 0)
            --counts.questions_open;
        if (token == "?") {
            ++counts.questions_open;
            deepen(++counts.questions);
        } else if (token == "<")
            deepen(++counts.angles);
        if (is_control_keyword(token))
            deepen(++controls_in_a_row);
        if (is_prefix_operator(token))
            deepen(++counts.prefixes_in_a_row);
        else
            counts.prefixes_in_a_row = 0;
    };
    if (language != lexed_as::javascript && language != lexed_as::java) {
        walk_brackets_of(code, count, language);
        return reading;
    }
    // A piece of a template literal between two substitutions closes one and opens the next.
    unsigned long open = 0;
    for (std::string const& token : tokens_of(code, language)) {
        bool const piece = language == lexed_as::javascript && token.size() > 1 && (token.front() == '`' || token.front() == '}');
        bool const closes = token == ")" || token == "]" || token == "}" || (piece && token.front() == '}');
        if (closes && open > 0)
            --open;
        if (token == "(" || token == "[" || token == "{" ||
            (piece && token.size() >= 2 && token.compare(token.size() - 2, 2, "${") == 0))
            ++open;
        count(bracket_step{token, false, false, open});
    }
    return reading;
}

}  // namespace tarnel_engine
