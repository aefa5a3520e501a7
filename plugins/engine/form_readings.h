// What the forms of an addon show directly, read from their text without the engine: the indent
// step and tabs, the continuation indent, the access-specifier offset, case-label and namespace
// indentation, brace placement per construct, the blanks before and inside parentheses, where `*`
// and `&` lean and the blanks around a pointer's `const`, which short statements share a line, how
// many blank lines are kept, the macros used as loops, the narrowest column limit the forms allow
// or none where a short call keeps its author's line break, and the width of a tab (internal to
// the engine library).
#ifndef TARNEL_ENGINE_FORM_READINGS_H
#define TARNEL_ENGINE_FORM_READINGS_H

#include "form_case.h"

#include <string>
#include <vector>

namespace tarnel_engine {

struct form_readings {
    // Everything read except brace placement, as candidates of the option table's syntax, applied
    // in order.
    std::vector<std::string> layout;
    // Brace placement per construct, as one custom brace wrapping; empty when no form shows one.
    std::string braces;
    // Readings no other value could explain (the column limit where a macro's backslashes line up
    // at it), held by every style the search moves to; also applied with `layout`.
    std::vector<std::string> certain;
    // Values the forms make unlikely (no column limit, where a long call breaks inside its
    // statement), moved to only by a last descent when nothing else gives every form back.
    std::vector<std::string> ruled_out;
    // Taken as read: what no fixed point tells apart (the macros used as loops, names the engine
    // is told; how many blank lines are kept, as the engine keeps blank lines and never adds one),
    // and rules the search has no move for (the blanks around a pointer's qualifier). Every style
    // the search tries, and the one it ends on, holds them.
    std::vector<std::string> passed;
    // What the forms show that some predefined style's forms do not tell apart from another value
    // (a leaning derived from the code, where the forms all lean one way): a predefined style is
    // taken as it stands only where it holds these.
    std::vector<std::string> telling;
    // Readings that decide between styles which all give every form back (brace placement, which
    // braces left where their author put them give back too; trailing comments lined up or set
    // apart, which comments left where they stand give back too): the search ends on them where
    // every form still comes back.
    std::vector<std::string> preferred;
};

form_readings readings_of(std::vector<form_case> const& forms);

// The width of a tab, read where tabs and blanks must line up: a line indented with tabs under
// the parenthesis the line above leaves open, under the first item after a brace it leaves open or
// under its trailing comment, and the steps after an opening brace (a tab-indented
// line one step in from a blank-indented one). 8 when nothing shows another width: code indented
// with tabs alone does not show it, and the indent step never decides it.
int tab_width_read_from(std::vector<std::string> const& codes);

// The same width where some line shows it, or 0 where every width fits the code alike.
int tab_width_shown_by(std::vector<std::string> const& codes);

}  // namespace tarnel_engine

#endif
