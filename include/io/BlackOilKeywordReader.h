// Reads black-oil tables from keyword files.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/BlackOilTable.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {

/// Reads the keyword form of `BlackOilExportFileWriter`, and files that a person typed or a
/// simulator wrote: DENSITY, RSCONSTT, PVTO, PVDO, PVTG and PVDG, in any order, with one record or
/// table for each region. Other keywords are passed over, and files that are included are read.
///
/// Holds a diagnostic sink alone: an object may be used any number of times, by one thread at a
/// time. The caller owns the tables; a file is open only during a call. A stream belongs to the
/// caller and is read to its end, or up to the keyword END.
class FLUIDBENCH_IO_API BlackOilKeywordReader {
public:
    BlackOilKeywordReader();
    ~BlackOilKeywordReader();
    BlackOilKeywordReader(const BlackOilKeywordReader&) = default;
    BlackOilKeywordReader& operator=(const BlackOilKeywordReader&) = default;

    /// Takes what `Read` has to say ("keywords..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Replaces `regions` by the tables of the file, one for each region. The units are those of
    /// the record FILEUNIT, wherever it stands, or of the caller: FIELD (psia, Mscf/stb, lb/ft3),
    /// or metric ones (bar, m3/m3, kg/m3) for any other choice.
    ///
    /// An empty report is success. Otherwise it has message 1001, an error, with file, line and
    /// keyword, what was expected and what was found, and `regions` is empty: for a file that can't
    /// be opened or read, that holds none of the keywords, whose units aren't told or contradict
    /// each other, and for any table that isn't whole and in order.
    ///
    /// An entry of live oil has its record's gas-oil ratio, one of wet gas its record's pressure,
    /// and one of dead oil the gas-oil ratio of RSCONSTT. Dead oil is one record, and each row of
    /// dry gas a record of its own.
    Common::ErrorReport Read(const std::string& fileName,
                             std::vector<Model::BlackOilTable>& regions,
                             std::optional<Common::Units::UNIT_TYPE> units = {}) const;
    /// The same from a stream, which messages call `name`. What it includes is sought in the folder
    /// of `name`.
    Common::ErrorReport Read(std::istream& in, std::vector<Model::BlackOilTable>& regions,
                             std::optional<Common::Units::UNIT_TYPE> units = {},
                             const std::string& name = {}) const;

private:
    DiagnosticSink diagnosticSink;
};

} // namespace Orv::FluidBench::IO
