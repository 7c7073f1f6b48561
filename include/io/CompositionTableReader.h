// Reads compositions against pressure from keyword files.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {

/// Compositions of the vapour and the liquid of a fluid at the same pressures. A value.
struct CompositionTable {
    std::vector<double> Pressures; ///< Pa, in the order of the file
    /// For each pressure one fraction for each component; zeros where the phase isn't present.
    /// Empty where the file lacks the phase.
    std::vector<std::vector<double>> VapourFractions;
    std::vector<std::vector<double>> LiquidFractions;
};

/// Reads the files of `BlackOilExportFileWriter::ExportXMFYMFVP`, and others with the keywords
/// YMFVP and XMFVP. Other keywords are passed over, and files that are included are read.
///
/// Holds a diagnostic sink alone: an object may be used any number of times, by one thread at a
/// time. The caller owns the tables; a file is open only during a call. A stream belongs to the
/// caller and is read to its end, or up to the keyword END.
class FLUIDBENCH_IO_API CompositionTableReader {
public:
    CompositionTableReader();
    ~CompositionTableReader();
    CompositionTableReader(const CompositionTableReader&) = default;
    CompositionTableReader& operator=(const CompositionTableReader&) = default;

    /// Takes what `Read` has to say ("keywords..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Replaces `tables` by those of the file: the first has the first table of YMFVP and the first
    /// of XMFVP, and so on. The units are those of the record FILEUNIT, wherever it stands, or of
    /// the caller: psia for FIELD, and bar for any other choice.
    ///
    /// A row has as many fractions as NCOMPS or CNAMES say. Without either, an empty line ends each
    /// row, or else each row has a line of its own.
    ///
    /// An empty report is success. Otherwise it has message 1001, an error, with file, line and
    /// keyword, what was expected and what was found, and `tables` is empty: for a file that can't
    /// be opened or read, that holds none of the keywords, whose units aren't told or contradict
    /// each other, for two phases at different
    /// pressures, and for any table that isn't whole.
    Common::ErrorReport Read(const std::string& fileName, std::vector<CompositionTable>& tables,
                             std::optional<Common::Units::UNIT_TYPE> units = {}) const;
    /// The same from a stream, which messages call `name`. What it includes is sought in the folder
    /// of `name`.
    Common::ErrorReport Read(std::istream& in, std::vector<CompositionTable>& tables,
                             std::optional<Common::Units::UNIT_TYPE> units = {},
                             const std::string& name = {}) const;

private:
    DiagnosticSink diagnosticSink;
};

} // namespace Orv::FluidBench::IO
