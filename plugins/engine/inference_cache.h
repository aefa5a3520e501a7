// The options inferred from an addon, kept in memory for the plugin's lifetime and on disk under
// $XDG_CACHE_HOME/style-tarnel/ (or ~/.cache/style-tarnel/), so that a run of the command line
// does not pay for the search again (internal to the engine library).
#ifndef TARNEL_ENGINE_INFERENCE_CACHE_H
#define TARNEL_ENGINE_INFERENCE_CACHE_H

#include "language.h"
#include "option_inference.h"

#include <clang/Format/Format.h>

#include <map>
#include <mutex>
#include <string>

namespace tarnel_engine {

// The forms of an addon as the inference takes them: present, matching their expression, with
// placeholders replaced by their instances.
std::vector<form_case> form_cases_in(std::string const& addon, language_description const& language);

class inference_cache {
public:
    static inference_cache& shared();
    // Keyed by a hash of the addon, the language's catalogue and the plugin's version.
    clang::format::FormatStyle style_for(std::string const& addon, language_description const& language);

private:
    std::mutex guard;
    std::map<std::string, clang::format::FormatStyle> in_memory;
};

}  // namespace tarnel_engine

#endif
