#include "Reports.h"

#include "Commands.h"

#include <filesystem>
#include <fstream>
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

void RequireWholeFile(const std::string& fileName, std::string_view ending) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(fileName, error)) {
        return;
    }
    std::ifstream file(fileName, std::ios_base::binary);
    std::string found(ending.size(), '\0');
    file.seekg(-static_cast<std::streamoff>(ending.size()), std::ios_base::end);
    file.read(found.data(), static_cast<std::streamsize>(found.size()));
    if (found != ending) {
        throw CommandFailed("'" + fileName + "' couldn't be written whole. Is the disk full?");
    }
}

} // namespace FluidBenchTool
