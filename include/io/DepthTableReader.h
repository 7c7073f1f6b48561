// Reads tables against depth from keyword files.
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

/// A table against depth. A value.
struct DepthTable {
    std::string Keyword;        ///< ZMFVD, PBVD, PDVD, RSVD or RVVD
    std::vector<double> Depths; ///< m
    /// For each depth the fractions of the components (ZMFVD), a saturation pressure in Pa (PBVD,
    /// PDVD), or a gas-oil (RSVD) or oil-gas ratio (RVVD) in m3/m3.
    std::vector<std::vector<double>> Values;
};

/// Reads the files of `PVOFileWriter::ExportZMFVD`, `ExportPSATVD` and `ExportRSVD`, and others
/// with these keywords. Other keywords are passed over, and files that are included are read.
///
/// Holds a diagnostic sink alone: an object may be used any number of times, by one thread at a
/// time. The caller owns the tables; a file is open only during a call. A stream belongs to the
/// caller and is read to its end, or up to the keyword END.
class FLUIDBENCH_IO_API DepthTableReader {
public:
    DepthTableReader();
    ~DepthTableReader();
    DepthTableReader(const DepthTableReader&) = default;
    DepthTableReader& operator=(const DepthTableReader&) = default;

    /// Takes what `Read` has to say ("keywords..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Replaces `tables` by those of the file, in its order. The units are those of the record
    /// FILEUNIT, wherever it stands, or of the caller: ft, psia, Mscf/stb and stb/Mscf for FIELD,
    /// and m, bar and m3/m3 for any other choice.
    ///
    /// A row of ZMFVD has as many fractions as NCOMPS or CNAMES say. Without either, an empty line
    /// ends each row, or else each row has a line of its own.
    ///
    /// An empty report is success. Otherwise it has message 1001, an error, with file, line and
    /// keyword, what was expected and what was found, and `tables` is empty: for a file that can't
    /// be opened or read, that holds none of the keywords, whose units aren't told or contradict
    /// each other, and for any table that isn't whole.
    Common::ErrorReport Read(const std::string& fileName, std::vector<DepthTable>& tables,
                             std::optional<Common::Units::UNIT_TYPE> units = {}) const;
    /// The same from a stream, which messages call `name`. What it includes is sought in the folder
    /// of `name`.
    Common::ErrorReport Read(std::istream& in, std::vector<DepthTable>& tables,
                             std::optional<Common::Units::UNIT_TYPE> units = {},
                             const std::string& name = {}) const;

private:
    DiagnosticSink diagnosticSink;
};

} // namespace Orv::FluidBench::IO
