// Reads MFL fluid files through the toolbox's import command.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/TarnExtraData.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <memory>
#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::Command {
class ImportCommand;
}

namespace Orv::FluidBench::IO {

/// Owns the command that does the reading and knows nothing of the format itself. The caller owns
/// what is read into. Name a file, then read it any number of times; one thread at a time.
///
/// Every failure of a read is in the report, in the command's words, and leaves what was to be read
/// into as it was. A failure of the disk midway is one, too. Movable, as there is one
/// command to one reader; a reader that was moved from may only be assigned to or destroyed.
class FLUIDBENCH_IO_API MFLFileReader {
public:
    MFLFileReader();
    ~MFLFileReader();
    MFLFileReader(MFLFileReader&&) noexcept;
    MFLFileReader& operator=(MFLFileReader&&) noexcept;
    MFLFileReader(const MFLFileReader&) = delete;
    MFLFileReader& operator=(const MFLFileReader&) = delete;

    /// Path of the file that the reads read.
    void SetMFLFileName(const std::string& fileName);
    /// Valid until the name is set again or the reader goes.
    const std::string& GetMFLFileName() const;

    /// Takes what the reports of the reads say, with lines ("mfl..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Reads the fluid.
    Common::ErrorReport Read(Model::CompositionalFluid& fluid) const;

    /// Reads the fluid and the further data of a Tarn read.
    Common::ErrorReport ReadForTarn(Model::CompositionalFluid& fluid,
                                    Common::TarnExtraData& extraData) const;

    /// Reads the fluid and its streams, one vector of numbers each.
    Common::ErrorReport ReadStreams(Model::CompositionalFluid& fluid,
                                    std::vector<std::vector<double>>& streams) const;

private:
    std::unique_ptr<Impl::Command::ImportCommand> command_;
    DiagnosticSink diagnosticSink_;
};

} // namespace Orv::FluidBench::IO
