// The stand-in's text form of an MFL file. The toolbox's own files are another matter: nothing here
// knows them.
#pragma once

#include "CompositionalFluidCommand.h"
#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Impl/Command/ImportCommand.h"

#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::Command {

/// What such a file holds.
struct MflContent {
    CompositionalFluidCommand fluid;
    std::vector<std::vector<double>> streams; ///< one amount per component each
};

/// Reads the file into `content`, which is of no use when the report has errors. The form's layout
/// is drawn at ImportCommand. Each message of the report goes to `tell`, too, which may be empty.
Common::ErrorReport ReadMflText(const std::string& fileName, MflContent& content,
                                const ImportProblemSink& tell);

} // namespace Orv::FluidBench::Impl::Command
