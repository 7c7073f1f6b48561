// The file that a writer of the library makes.
#pragma once

#include "FluidBench/Common/ErrorReport.h"

#include <fstream>
#include <span>
#include <string>

namespace Orv::FluidBench::Impl::IO {

/// Opens a text file for writing as `Text::OpenForWriting` does. Where it can't be written, the
/// report gets message 3369 with its name, and there is nothing more to do.
std::ofstream OpenOrReport(const std::string& fileName, Common::ErrorReport& report,
                           std::span<char> buffer = {});

} // namespace Orv::FluidBench::Impl::IO
