// The order of a K-value file:
//
//     ECHO
//     -- Temperature (K): 350.0          where the table has one
//     -- Components:           C1 ...    cells of 24 characters and a blank
//     -- Units: bar            dimensionless ...
//     KVTABLE
//     -- K-Values
//     --
//     100.0                    2.5 ...   a record: pressure and K-values
//     /
//                                        an empty line, and perhaps another table
//
//     FILEUNIT
//     METRIC
//     /
//
// The comment "-- " ahead of the records ends in a blank.
#include "io/KValuesExportFileWriter.h"

#include "Decimals.h"
#include "DeckText.h"
#include "Messages.h"
#include "OutputFile.h"
#include "StreamFormat.h"
#include "io/KValuesTableFormatter.h"

#include <ios>
#include <memory>
#include <ostream>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::Units;
using Impl::IO::CsvUnsupported;
using Impl::IO::WriteFile;
using Model::KValuesTable;
using Text::StreamFormat;

KValuesExportFileWriter::KValuesExportFileWriter(bool useHighPrecision, FILE_TYPE type)
    : highPrecision(useHighPrecision), fileType(type) {}

ErrorReport KValuesExportFileWriter::ExportToFile(const KValuesTable& table,
                                                  const std::string& fileName,
                                                  Units::UNIT_TYPE unitType) const {
    return WriteFile(fileName,
                     [&](std::ostream& out) { return ExportToFile(table, out, unitType); });
}

ErrorReport KValuesExportFileWriter::ExportToFile(const KValuesTable& table, std::ostream& out,
                                                  Units::UNIT_TYPE unitType) const {
    return WriteTables({&table, 1}, out, unitType);
}

ErrorReport KValuesExportFileWriter::ExportTables(const std::vector<KValuesTable>& tables,
                                                  std::ostream& out,
                                                  Units::UNIT_TYPE unitType) const {
    return WriteTables(tables, out, unitType);
}

ErrorReport KValuesExportFileWriter::WriteTables(std::span<const KValuesTable> tables,
                                                 std::ostream& out,
                                                 Units::UNIT_TYPE unitType) const {
    if (fileType != PVO) {
        ErrorReport report;
        report.Add(CsvUnsupported());
        return report;
    }
    const StreamFormat format(out);
    out << std::fixed;
    out.precision(highPrecision ? decimalsOfHighPrecision : decimalsOfTables);
    const std::unique_ptr<IKValuesTableFormatter> formatter =
        std::make_unique<KValuesTableFormatter>(unitType);
    formatter->Echo(out);
    for (const KValuesTable& table : tables) {
        formatter->KVTable(out, table);
    }
    formatter->EndDataRecord(out);
    out << std::endl << FileUnitHeader(unitType == Units::METRIC);
    return {};
}

} // namespace Orv::FluidBench::IO
