// Option combinations on which the clang-format 19 library crashes, kept away from every style the
// engine formats with (internal to the engine library).
#ifndef TARNEL_ENGINE_ENGINE_HAZARDS_H
#define TARNEL_ENGINE_ENGINE_HAZARDS_H

#include <clang/Format/Format.h>

namespace tarnel_engine {

// False for a style that makes the engine crash on some input: Whitesmiths braces with the content
// of extern blocks not indented (a segmentation fault on any `extern "C" { ... }`).
bool engine_survives(clang::format::FormatStyle const& style);

}  // namespace tarnel_engine

#endif
