// Colours and dashes that stay apart: the colours for the colour-blind too, and the dashes in a
// copy without colours.
#pragma once

#include <cstddef>
#include <iterator>

namespace FluidBenchTool {

inline constexpr const char* paletteColours[] = {"#0b5fa5", "#c8461e", "#009e73", "#a64d8f",
                                                 "#8c6d1f", "#2a9fd6", "#444444", "#d98b00"};
inline constexpr const char* paletteDashes[] = {"", "9 4", "2 3", "12 4 2 4", "5 3", "9 3 2 3 2 3"};

/// Of the first, the second and so on; they begin anew where there are no more.
constexpr const char* ColourOf(std::size_t index) {
    return paletteColours[index % std::size(paletteColours)];
}
constexpr const char* DashesOf(std::size_t index) {
    return paletteDashes[index % std::size(paletteDashes)];
}

} // namespace FluidBenchTool
