// Each hazard was found by formatting the forms of random option sets, and reproduced with the
// clang-format-19 binary.
#include "engine_hazards.h"

namespace tarnel_engine {

bool engine_survives(clang::format::FormatStyle const& style) {
    using clang::format::FormatStyle;
    return !(style.BreakBeforeBraces == FormatStyle::BS_Whitesmiths &&
             style.IndentExternBlock == FormatStyle::IEBS_NoIndent);
}

}  // namespace tarnel_engine
