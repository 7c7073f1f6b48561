// Reads thermal tables from keyword files.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/ThermalExportTable.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace Orv::FluidBench::IO {

/// Reads the files of `ThermalExportFileWriter`, and others with its keywords. Other keywords are
/// passed over, and files that are included are read.
///
/// Holds a diagnostic sink alone: an object may be used any number of times, by one thread at a
/// time. The caller owns the table; a file is open only during a call. A stream belongs to the
/// caller and is read to its end, or up to the keyword END.
class FLUIDBENCH_IO_API ThermalKeywordReader {
public:
    ThermalKeywordReader();
    ~ThermalKeywordReader();
    ThermalKeywordReader(const ThermalKeywordReader&) = default;
    ThermalKeywordReader& operator=(const ThermalKeywordReader&) = default;

    /// Takes what `Read` has to say ("keywords..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Replaces `table` by that of the file. The units are those of the record FILEUNIT, wherever
    /// it stands, or of the caller: those that the writer has for FIELD, or for METRIC with any
    /// other choice. CNAMES has to stand ahead of what has a value for each component; the values
    /// of a keyword that isn't there are zeros, and of one that is there twice the last ones count.
    ///
    /// A file has each heat capacity as a value and a slope at one temperature. The table gets the
    /// line through them: two coefficients of four, which the writer turns into the same numbers. A
    /// table holds one heat capacity for oil and gas: the oil's, or the gas's where there is no
    /// other.
    ///
    /// An empty report is success. Otherwise it has message 1001, an error, with file, line and
    /// keyword, what was expected and what was found, and `table` is a new one: for a file that
    /// can't be opened or read, that holds none of the keywords, whose components or units aren't
    /// told or contradict each other, and for any record that isn't whole.
    Common::ErrorReport Read(const std::string& fileName, Model::ThermalExportTable& table,
                             std::optional<Common::Units::UNIT_TYPE> units = {}) const;
    /// The same from a stream, which messages call `name`. What it includes is sought in the folder
    /// of `name`.
    Common::ErrorReport Read(std::istream& in, Model::ThermalExportTable& table,
                             std::optional<Common::Units::UNIT_TYPE> units = {},
                             const std::string& name = {}) const;

private:
    DiagnosticSink diagnosticSink;
};

} // namespace Orv::FluidBench::IO
