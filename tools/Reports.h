// What becomes of an operation's report.
#pragma once

#include "FluidBench/Common/ErrorReport.h"

namespace FluidBenchTool {

/// Prints the messages to the error stream, and throws `CommandFailed` when the report has errors.
void TellReport(const Orv::FluidBench::Common::ErrorReport& report);

} // namespace FluidBenchTool
