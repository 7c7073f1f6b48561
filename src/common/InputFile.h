// The file that a reader of the library reads.
#pragma once

#include "Diagnostics.h"

#include <fstream>
#include <string>

namespace Orv::FluidBench::Impl::IO {

/// Opens a file for reading as `Text::OpenForReading` does. Where it can't be read, the diagnostics
/// say why.
std::ifstream OpenOrTell(const std::string& fileName, Diagnostics& diagnostics);

} // namespace Orv::FluidBench::Impl::IO
