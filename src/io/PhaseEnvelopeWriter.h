// Writes phase envelope files.
#pragma once

#include "FluidBench/Common/CommonPlottingObject.h"

#include <ostream>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// Writes a block for each plot. The separator stands behind each cell; numbers have six
/// significant digits, whatever the stream is set to.
void WritePhaseEnvelopes(std::ostream& out, const std::vector<Common::CommonPlottingObject>& plots,
                         char separator);

} // namespace Orv::FluidBench::Impl::IO
