// Finds out which format a text has.
#pragma once

#include <istream>
#include <string_view>

namespace FluidBenchTool {

struct FoundFormat {
    std::string_view name; ///< as on the command line; empty where no format is known by the text
    bool hasKeywords = false; ///< where a format has a form with keywords and one with commas
};

/// Looks at the keywords and headings of the text: reads the stream as far as it takes, to the end
/// at most, and holds one line.
FoundFormat FindFormat(std::istream& text);

} // namespace FluidBenchTool
