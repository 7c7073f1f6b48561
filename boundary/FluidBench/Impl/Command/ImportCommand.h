// The toolbox's command that reads an MFL file.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/TarnExtraData.h"
#include "FluidBench/Impl/Command/BaseCommand.h"
#include "FluidBench/Impl/Command/CompositionalFluidCommand.h"
#include "Visibility.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::Command {

/// What is wrong with a file, once for each message of an import's report. The stand-in's own.
struct ImportProblem {
    /// What it is about.
    enum class Kind : std::int32_t {
        CantOpen = 0,        ///< the file can't be opened
        ReadFailed = 1,      ///< reading failed ahead of the file's end
        Utf16 = 2,           ///< two bytes a character
        CarriageReturns = 3, ///< lines that end in carriage returns alone
        Form = 4,            ///< not a file of the form that is read
        Keyword = 5,         ///< a keyword, or the word behind it
        Table = 6,           ///< a table's headings, units or end
        Row = 7,             ///< a row of a table as a whole
        Value = 8,           ///< a value that is no number, or that the model refuses
        LineTooLong = 9,     ///< a line, or a comment, that is too long to be held
        Incomplete = 10,     ///< the file ends too early
        TooMany = 11         ///< more problems than are told; the rest of the file wasn't read
    };
    Kind kind = Kind::Form; ///< what it is about
    std::uint64_t line = 0; ///< counted from 1; 0 where none applies
    std::string text;       ///< what was expected and what was found, as part of a sentence
};

/// Takes the problems of an import, one after another. The stand-in's own.
using ImportProblemSink = std::function<void(const ImportProblem&)>;

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

    // The stand-in's own operations.

    /// The same, and each problem goes to the sink when it is found, ahead of the report. What the
    /// sink throws ends the import.
    Common::ErrorReport Import(CompositionalFluidCommand& fluidCommand,
                               std::vector<std::vector<double>>& streams,
                               const ImportProblemSink& tell) const;

    /// The same for a Tarn read.
    Common::ErrorReport ImportForTarn(CompositionalFluidCommand& fluidCommand,
                                      Common::TarnExtraData& extraData,
                                      const ImportProblemSink& tell) const;

private:
    std::string fileName_;
};

} // namespace Orv::FluidBench::Impl::Command
