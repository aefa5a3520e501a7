// Sources on which the clang-format 19 library crashes whatever the options, refused before it
// sees them as code it cannot format (internal to the engine library).
#ifndef TARNEL_ENGINE_SOURCE_HAZARDS_H
#define TARNEL_ENGINE_SOURCE_HAZARDS_H

#include <clang/Format/Format.h>

#include <string>

namespace tarnel_engine {

// False for code of the style's language that makes the engine crash: in C#, a `{` right after
// what the engine took for the accessors of a property (source_hazards.cpp says why); in
// JavaScript, a text ending in a backslash. True for every other language.
bool engine_survives_the_code(std::string const& code, clang::format::FormatStyle const& style);

}  // namespace tarnel_engine

#endif
