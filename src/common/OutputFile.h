// The file that a writer of the library makes.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "TextFile.h"

#include <fstream>
#include <span>
#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// Opens a text file for writing as `Text::OpenForWriting` does. Where it can't be written, the
/// report gets message 3369 with its name, and there is nothing more to do.
std::ofstream OpenOrReport(const std::string& fileName, Common::ErrorReport& report,
                           std::span<char> buffer = {});

/// An operation on a file around the one on its stream: opens the file, calls `write` with the
/// stream, which gives the report, and closes the file. Where it can't be opened, `write` isn't
/// called and the report has message 3369.
template <typename Write>
Common::ErrorReport WriteFile(const std::string& fileName, Write write) {
    Common::ErrorReport report;
    std::vector<char> buffer(Text::blockSize);
    std::ofstream out = OpenOrReport(fileName, report, buffer);
    return out.is_open() ? write(out) : report;
}

} // namespace Orv::FluidBench::Impl::IO
