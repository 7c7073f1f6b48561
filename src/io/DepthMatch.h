// Finds the readings that were taken at the depths of stations.
#pragma once

#include <cstddef>
#include <limits>
#include <string_view>
#include <vector>

namespace Orv::FluidBench::IO {

/// A depth in a well, in any unit. Not a not-a-number.
struct WellDepth {
    std::string_view well;
    double depth;
};

inline constexpr std::size_t noMatch = std::numeric_limits<std::size_t>::max();

/// For each station the index of the last of the readings in the same well whose depth equals the
/// station's within `tolerance`, by `Equations::RelativeDoublesEqual`; `noMatch` where there is
/// none. Takes no longer than sorting both, whatever depths repeat or lie close together.
std::vector<std::size_t> LastMatches(const std::vector<WellDepth>& stations,
                                     const std::vector<WellDepth>& readings, double tolerance);

} // namespace Orv::FluidBench::IO
