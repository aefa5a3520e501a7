// A fixed, bounded sample of a project's files for learning a style: every k-th file, a bounded
// number of lines of each, cut into pieces at top-level boundaries so that each piece is code the
// engine can format alone (internal to the engine library).
#ifndef TARNEL_ENGINE_CODE_SAMPLE_H
#define TARNEL_ENGINE_CODE_SAMPLE_H

#include <string>
#include <vector>

namespace tarnel_engine {

// How much of a project a sample takes.
struct sample_bounds {
    std::size_t files = 60;
    std::size_t lines_of_a_file = 160;
    std::size_t lines_of_a_piece = 60;
    std::size_t lines = 2400;
};

class take_sample {
public:
    explicit take_sample(sample_bounds bounds = sample_bounds()) : bounds(bounds) {}

    // Pieces of the texts (line feeds only, decoded text), the same for the same texts: every k-th
    // text gives an even share of the lines, a long one from its second third. A piece inside
    // namespaces or extern blocks is given their opening lines and closing braces. Texts whose
    // braces, comments or strings do not close give fewer pieces, or none; so do pieces the engine
    // could not format in bounded time (brackets that do not pair up, deeply nested conditionals).
    std::vector<std::string> of(std::vector<std::string> const& texts) const;

private:
    sample_bounds bounds;
};

}  // namespace tarnel_engine

#endif
