// What becomes of an operation: its report and the file that it wrote.
#pragma once

#include "FluidBench/Common/ErrorReport.h"

#include <string>
#include <string_view>

namespace FluidBenchTool {

/// Prints the messages to the error stream, and throws `CommandFailed` when the report has errors.
void TellReport(const Orv::FluidBench::Common::ErrorReport& report);

/// Throws `CommandFailed` unless the file has the ending that it was written with. The library's
/// writers don't notice a write that fails, on a full disk for instance. What isn't an ordinary
/// file, such as a pipe, can't be looked into and passes.
void RequireWholeFile(const std::string& fileName, std::string_view ending);

} // namespace FluidBenchTool
