// The engine answers with replacements; applying them gives the formatted text.
#include "engine_call.h"

#include <clang/Tooling/Core/Replacement.h>

namespace tarnel_engine {

engine_outcome format_with::the_code(std::string const& code) const {
    clang::format::FormattingAttemptStatus status;
    clang::tooling::Replacements const replacements = clang::format::reformat(
        style, code, {clang::tooling::Range(0, static_cast<unsigned>(code.size()))}, "<stdin>", &status);
    llvm::Expected<std::string> formatted = clang::tooling::applyAllReplacements(code, replacements);
    if (!formatted) {
        llvm::consumeError(formatted.takeError());
        return {code, false};
    }
    return {std::move(*formatted), status.FormatComplete};
}

}  // namespace tarnel_engine
