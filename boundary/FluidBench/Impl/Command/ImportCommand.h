// The toolbox's command that reads an MFL file.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/TarnExtraData.h"
#include "FluidBench/Impl/Command/BaseCommand.h"
#include "FluidBench/Impl/Command/CompositionalFluidCommand.h"
#include "Visibility.h"

#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::Command {

/// Knows a file and reads it into the inside of a fluid.
///
/// The stand-in doesn't read the toolbox's MFL files. It reads a text form of its own, which exists
/// so that programs on this library can be run without the toolbox:
///
///     MFL 1
///     FLUID "Volatile oil"
///     EOS PR
///     VISCOSITY LBC
///     FRACTIONS mole
///     COMPONENTS
///     NAME  FRACTION  MW      TCRIT   PCRIT  ACF
///     -     -         g/mol   K       bar    -
///     C1    0.60      16.043  190.56  45.99  0.011
///     C10   0.40      142.29  617.67  20.96  -
///     END
///     COEFFICIENTS
///     C1 C10 0.05
///     END
///     STREAMS
///     0.9 0.1
///     END
///
/// The page on the format, docs/formats/mfl.md, tells its rules. Each bad line gives one message or
/// more, number 1001, with file and line; the thousandth ends the reading. When the report has
/// errors, what the caller passed in to be filled is as it was; otherwise it is replaced as a
/// whole.
class FLUIDBENCH_BOUNDARY_API ImportCommand : public BaseCommand {
public:
    ImportCommand();
    ~ImportCommand() override;

    /// Path of the MFL file; empty at first.
    void SetFileName(const std::string& fileName);
    const std::string& GetFileName() const;

    std::string GetCommandName() const override;

    /// Reads the file into the fluid, and its streams: one vector of numbers each.
    Common::ErrorReport Import(CompositionalFluidCommand& fluidCommand,
                               std::vector<std::vector<double>>& streams) const;

    /// The same, with the further data that a Tarn read asks for.
    Common::ErrorReport ImportForTarn(CompositionalFluidCommand& fluidCommand,
                                      Common::TarnExtraData& extraData) const;

private:
    std::string fileName_;
};

} // namespace Orv::FluidBench::Impl::Command
