#include "Reports.h"

#include "Commands.h"

#include <iostream>

namespace FluidBenchTool {

using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::Common::pvtEnumErrorCode;

namespace {

const char* Kind(pvtEnumErrorCode code) {
    switch (code) {
    case pvtEnumErrorCode::Information:
        return "note: ";
    case pvtEnumErrorCode::Warning:
        return "warning: ";
    case pvtEnumErrorCode::Error:
        return "error: ";
    }
    return "";
}

} // namespace

void TellReport(const ErrorReport& report) {
    for (const auto& message : report.GetMessages()) {
        std::cerr << Kind(message.GetErrorCode()) << message.GetText() << '\n';
    }
    if (report.HasErrors()) {
        throw CommandFailed();
    }
}

} // namespace FluidBenchTool
