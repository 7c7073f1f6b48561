// Writes K-value tables as keyword files.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/KValuesTable.h"
#include "io/Export.h"

#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {

/// Holds two options: an object may be used any number of times, by one thread at a time. The
/// caller owns the table; a file is open only during a call.
///
/// The operation on a stream writes the same bytes as the one on a file; the stream belongs to the
/// caller, and its format flags, precision, width and fill are put back.
class FLUIDBENCH_IO_API KValuesExportFileWriter {
public:
    /// Form of a file. Only the keyword form is available; any value but PVO counts as CSV.
    enum FILE_TYPE : std::int32_t { PVO = 0, CSV = 1 };

    /// High precision is 15 decimals, otherwise there are 8.
    explicit KValuesExportFileWriter(bool useHighPrecision = false, FILE_TYPE type = PVO);

    /// Writes the table, replacing an existing file. Pressures are in psi and the temperature in
    /// degrees Fahrenheit for FIELD, in bar and K otherwise; the closing record says METRIC for
    /// METRIC and FIELD for anything else.
    ///
    /// An empty report is success. Message 3369 with the file name tells that the file can't be
    /// opened, and nothing is written; message 1001 that the CSV form was asked for, and the file
    /// is empty. A write that fails afterwards, on a full disk for instance, isn't detected:
    /// whoever has to know gives a stream and asks it when it is flushed.
    Common::ErrorReport ExportToFile(const Model::KValuesTable& table, const std::string& fileName,
                                     Common::Units::UNIT_TYPE unitType) const;
    /// The same to a stream. The report is empty, or message 1001 tells that the CSV form was asked
    /// for, and nothing is written.
    Common::ErrorReport ExportToFile(const Model::KValuesTable& table, std::ostream& out,
                                     Common::Units::UNIT_TYPE unitType) const;

    /// Writes several tables, of one temperature each for one, behind each other. With one table
    /// the bytes are those of `ExportToFile`, and so is the report.
    Common::ErrorReport ExportTables(const std::vector<Model::KValuesTable>& tables,
                                     std::ostream& out, Common::Units::UNIT_TYPE unitType) const;

private:
    Common::ErrorReport WriteTables(std::span<const Model::KValuesTable> tables, std::ostream& out,
                                    Common::Units::UNIT_TYPE unitType) const;

    bool highPrecision;
    FILE_TYPE fileType;
};

} // namespace Orv::FluidBench::IO
