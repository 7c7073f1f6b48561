// Writes black-oil tables and compositions against pressure, and reads black-oil CSV text back.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Model/BlackOilTable.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {

/// Holds its options: an object may be used any number of times, by one thread at a time. The
/// caller owns every model object; a file is open only during a call.
///
/// A file that can't be opened for writing is reported by message 3369 with its name, and nothing
/// is written. A write that fails afterwards, on a full disk for instance, isn't detected: whoever
/// has to know gives a stream and asks it when it is flushed. The operations on streams write and
/// read the same bytes as those on files; the stream belongs to the caller, and its format flags,
/// precision, width and fill are put back.
class FLUIDBENCH_IO_API BlackOilExportFileWriter {
public:
    /// Form of a file: the keywords that a simulator reads, or comma-separated text that
    /// `GetTableFromCSVFile` reads. Any value but PVO counts as CSV.
    enum FILE_TYPE : std::int32_t { PVO = 0, CSV = 1 };

    /// The tables that go into a file. With any other value the file has no tables.
    enum EXPORT_TYPE : std::int32_t {
        LIVE_OIL_WET_GAS = 0,
        LIVE_OIL_DRY_GAS = 1,
        DEAD_OIL_WET_GAS = 2,
        DEAD_OIL_DRY_GAS = 3
    };

    /// High precision is 15 decimals everywhere; otherwise black-oil tables have 8 and compositions
    /// have 4.
    explicit BlackOilExportFileWriter(bool useHighPrecision = false);
    ~BlackOilExportFileWriter();
    BlackOilExportFileWriter(const BlackOilExportFileWriter&) = default;
    BlackOilExportFileWriter& operator=(const BlackOilExportFileWriter&) = default;

    /// Writes the surface densities, the saturation point, the oil table and the gas table,
    /// replacing an existing file. The water density is 1000 kg/m3 whatever the table says.
    ///
    /// The keyword form has field units (psia, Mscf/stb, lb/ft3) for FIELD and metric ones (bar,
    /// m3/m3, kg/m3) otherwise. The CSV form is metric always. The closing record says METRIC for
    /// METRIC and FIELD for anything else, in both forms.
    Common::ErrorReport ExportToFile(const Model::BlackOilTable& table, const std::string& fileName,
                                     Common::Units::UNIT_TYPE units, EXPORT_TYPE exportType,
                                     FILE_TYPE fileType) const;
    /// The same to a stream. The report is empty.
    Common::ErrorReport ExportToFile(const Model::BlackOilTable& table, std::ostream& out,
                                     Common::Units::UNIT_TYPE units, EXPORT_TYPE exportType,
                                     FILE_TYPE fileType) const;

    /// Writes the tables of several regions in the keyword form: each keyword once, with a record
    /// or table for each region. With one region the bytes are those of `ExportToFile`. The report
    /// is empty.
    Common::ErrorReport ExportRegions(const std::vector<Model::BlackOilTable>& regions,
                                      std::ostream& out, Common::Units::UNIT_TYPE units,
                                      EXPORT_TYPE exportType) const;

    /// Writes the vapour and then the liquid compositions of the stages against pressure, from the
    /// last stage back to the first, replacing an existing file. A phase that a stage lacks is
    /// written as zeros, one for each component of `fluid`. Pressures are in psi for FIELD and in
    /// bar otherwise; the closing record is as for `ExportToFile`.
    Common::ErrorReport ExportXMFYMFVP(const Model::CompositionalFluid& fluid,
                                       const Experiments::ExperimentResults& results,
                                       const std::string& fileName,
                                       Common::Units::UNIT_TYPE units) const;
    /// The same to a stream. The report is empty.
    Common::ErrorReport ExportXMFYMFVP(const Model::CompositionalFluid& fluid,
                                       const Experiments::ExperimentResults& results,
                                       std::ostream& out, Common::Units::UNIT_TYPE units) const;

    /// Takes what `GetTableFromCSVFile` has to say beside its table ("blackoil..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// From here on `GetTableFromCSVFile` takes the saturation point too, from the lines "RSCONST,"
    /// and "PSAT," ahead of the tables, or passes over it, as it does at first.
    void SetReadsSaturationPoint(bool reads);

    /// Reads the CSV form of `ExportToFile`. Oil rows become live oil and gas rows wet gas,
    /// whatever export type wrote them. The saturation point isn't read unless that was asked for.
    ///
    /// There is no failure: a file that can't be opened gives an empty table, one whose reading
    /// fails the table up to there, what isn't recognised is skipped, and a cell without a number
    /// counts as 0.0. All of that is told to the diagnostic sink.
    Model::BlackOilTable GetTableFromCSVFile(const std::string& fileName) const;
    /// The same from a stream, which is read to its end; diagnostics call it `name`.
    Model::BlackOilTable GetTableFromCSVFile(std::istream& in, const std::string& name = {}) const;

private:
    void WriteRegions(std::span<const Model::BlackOilTable> regions, std::ostream& out,
                      Common::Units::UNIT_TYPE units, EXPORT_TYPE exportType,
                      FILE_TYPE fileType) const;

    bool highPrecision;
    bool readsSaturationPoint = false;
    DiagnosticSink diagnosticSink;
};

} // namespace Orv::FluidBench::IO
