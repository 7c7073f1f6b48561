// The columns of a K-value table, for the eye of a reader and for the names above them.
#pragma once

#include <cstddef>

namespace Orv::FluidBench::IO {

/// A cell, without the blank behind it. What is wider isn't cut.
inline constexpr std::size_t kValuesCellWidth = 24;

} // namespace Orv::FluidBench::IO
