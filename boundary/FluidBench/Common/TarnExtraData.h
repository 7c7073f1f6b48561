// What a Tarn read of an MFL file gives beyond the fluid.
#pragma once

#include <vector>

namespace Orv::FluidBench::Common {

/// The I/O library only passes it through, so its content is the stand-in's own.
struct TarnExtraData {
    /// The streams of the file, one amount per component each.
    std::vector<std::vector<double>> Streams;
};

} // namespace Orv::FluidBench::Common
