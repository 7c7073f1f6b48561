// Reads K-value tables from keyword files.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/KValuesTable.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {

/// Reads the files of `KValuesExportFileWriter`, and others with the keyword KVTABLE and the same
/// heading of comments. Other keywords are passed over, and files that are included are read.
///
/// Holds a diagnostic sink alone: an object may be used any number of times, by one thread at a
/// time. The caller owns the tables; a file is open only during a call. A stream belongs to the
/// caller and is read to its end, or up to the keyword END.
class FLUIDBENCH_IO_API KValuesKeywordReader {
public:
    KValuesKeywordReader();
    ~KValuesKeywordReader();
    KValuesKeywordReader(const KValuesKeywordReader&) = default;
    KValuesKeywordReader& operator=(const KValuesKeywordReader&) = default;

    /// Takes what `Read` has to say ("keywords..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Replaces `tables` by those of the file, one for each record of KVTABLE. The units are those
    /// of the record FILEUNIT, wherever it stands, or of the caller: pressures in psia for FIELD
    /// and in bar for any other choice. The temperature and the components are those of the
    /// comments ahead of the table; without such a comment the components are those of CNAMES, and
    /// the table has no temperature.
    ///
    /// An empty report is success. Otherwise it has message 1001, an error, with file, line and
    /// keyword, what was expected and what was found, and `tables` is empty: for a file that can't
    /// be opened or read, that has no KVTABLE, whose components or units aren't told or contradict
    /// each other, and for any table that isn't whole.
    Common::ErrorReport Read(const std::string& fileName, std::vector<Model::KValuesTable>& tables,
                             std::optional<Common::Units::UNIT_TYPE> units = {}) const;
    /// The same from a stream, which messages call `name`. What it includes is sought in the folder
    /// of `name`.
    Common::ErrorReport Read(std::istream& in, std::vector<Model::KValuesTable>& tables,
                             std::optional<Common::Units::UNIT_TYPE> units = {},
                             const std::string& name = {}) const;

private:
    DiagnosticSink diagnosticSink;
};

} // namespace Orv::FluidBench::IO
