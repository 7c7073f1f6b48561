// The order of a black-oil file, and the composition tables against pressure.
//
//     densities, an empty line
//     saturation point, an empty line
//     oil header
//     oil rows                 the last one of a live record with the record's end behind it
//     the table's end, an empty line
//     gas header
//     gas rows                 the same for wet gas
//     the table's end
//     FILEUNIT
//
// Several regions have their records and tables one behind the other below each heading.
#include "io/BlackOilExportFileWriter.h"

#include "BlackOilFormatters.h"
#include "Decimals.h"
#include "DeckText.h"
#include "NumberText.h"
#include "OutputFile.h"
#include "StreamFormat.h"

#include <ios>
#include <memory>
#include <ranges>
#include <vector>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::Phase;
using Common::Units;
using Experiments::ExperimentResults;
using Experiments::Stage;
using Impl::IO::WriteFile;
using Model::BlackOilDataRecords;
using Model::BlackOilTable;
using Model::CompositionalFluid;
using Text::AppendNumber;
using Text::NumberFormat;
using Text::StreamFormat;

namespace {

constexpr int decimalsOfCompositions = 4;

constexpr double waterDensity = 1000.0; // kg/m3, whatever the table has

std::unique_ptr<IBlackoilTableFormatter> MakeFormatter(BlackOilExportFileWriter::FILE_TYPE fileType,
                                                       Units::UNIT_TYPE units,
                                                       EXPORT_TYPE exportType) {
    if (fileType == BlackOilExportFileWriter::PVO) {
        return std::make_unique<PVOFormatter>(units, exportType);
    }
    return std::make_unique<CSVFormatter>();
}

using EntryOperation = void (IBlackoilTableFormatter::*)(std::ostream&, double, double, double,
                                                         double, bool);

// `endRecords` tells whether the last row of each record has the record's end behind it.
void WriteRecords(std::ostream& out, IBlackoilTableFormatter& formatter, EntryOperation writeEntry,
                  const BlackOilDataRecords& records, bool endRecords) {
    const std::uint64_t size = records.GetTableSize();
    for (std::uint64_t i = 0; i < size; ++i) {
        const std::uint64_t entries = records.GetRecordContentSize(i);
        for (std::uint64_t j = 0; j < entries; ++j) {
            (formatter.*writeEntry)(out, records.GetPressure(i, j), records.GetProperty(i, j),
                                    records.GetFormationVolumeFactor(i, j),
                                    records.GetViscosity(i, j), j == 0);
            if (endRecords && j + 1 == entries) {
                formatter.EndDataRecord(out);
            }
            out.put('\n');
        }
    }
}

// The blocks of one phase, from the last stage back to the first:
//
//         200.0000 0.9000          the pressure, 12 wide, and the first fraction
//                  0.1000          12 blanks, a blank, the next fraction
//                                  12 blanks
void WriteCompositions(std::ostream& out, const std::vector<Stage>& stages, Phase Stage::*phase,
                       const std::vector<double>& zeros, double (*convert)(double),
                       NumberFormat format) {
    constexpr std::size_t pressureWidth = 12;
    std::string block;
    for (const Stage& stage : std::views::reverse(stages)) {
        const Phase& ofStage = stage.*phase;
        block.clear();
        AppendNumber(block, convert(stage.Results->Pressure.GetValue()), format, pressureWidth);
        for (const double fraction : ofStage.Present() ? ofStage.Composition : zeros) {
            block += ' ';
            AppendNumber(block, fraction, format);
            block += '\n';
            block.append(pressureWidth, ' ');
        }
        block += '\n';
        out << block;
    }
    out << "/\n";
}

} // namespace

BlackOilExportFileWriter::BlackOilExportFileWriter(bool useHighPrecision)
    : highPrecision(useHighPrecision) {}
BlackOilExportFileWriter::~BlackOilExportFileWriter() = default;

ErrorReport BlackOilExportFileWriter::ExportToFile(const BlackOilTable& table,
                                                   const std::string& fileName,
                                                   Units::UNIT_TYPE units, EXPORT_TYPE exportType,
                                                   FILE_TYPE fileType) const {
    return WriteFile(fileName, [&](std::ostream& out) {
        return ExportToFile(table, out, units, exportType, fileType);
    });
}

ErrorReport BlackOilExportFileWriter::ExportToFile(const BlackOilTable& table, std::ostream& out,
                                                   Units::UNIT_TYPE units, EXPORT_TYPE exportType,
                                                   FILE_TYPE fileType) const {
    WriteRegions({&table, 1}, out, units, exportType, fileType);
    return {};
}

ErrorReport BlackOilExportFileWriter::ExportRegions(const std::vector<BlackOilTable>& regions,
                                                    std::ostream& out, Units::UNIT_TYPE units,
                                                    EXPORT_TYPE exportType) const {
    WriteRegions(regions, out, units, exportType, PVO);
    return {};
}

void BlackOilExportFileWriter::WriteRegions(std::span<const BlackOilTable> regions,
                                            std::ostream& out, Units::UNIT_TYPE units,
                                            EXPORT_TYPE exportType, FILE_TYPE fileType) const {
    const StreamFormat format(out);
    out << std::fixed;
    out.precision(highPrecision ? decimalsOfHighPrecision : decimalsOfTables);
    const auto formatter = MakeFormatter(fileType, units, exportType);
    for (const BlackOilTable& region : regions) {
        formatter->SurfaceDensities(out, region.GetOilDensity(), waterDensity,
                                    region.GetGasDensity());
    }
    out << '\n';
    for (const BlackOilTable& region : regions) {
        formatter->SaturationPoint(out, region.GetSaturationPointRs(),
                                   region.GetSaturationPointPressure());
    }
    out << '\n';

    const BlackOilDataRecords none;
    formatter->OilTableHeader(out);
    out << '\n';
    for (const BlackOilTable& region : regions) {
        const BlackOilDataRecords& oil = HasLiveOil(exportType)   ? region.GetLiveOilData()
                                         : HasDeadOil(exportType) ? region.GetDeadOilData()
                                                                  : none;
        WriteRecords(out, *formatter, &IBlackoilTableFormatter::OilTableEntry, oil,
                     !HasDeadOil(exportType));
        formatter->EndDataRecord(out);
        out << '\n';
    }
    out << '\n';

    formatter->GasTableHeader(out);
    out << '\n';
    for (const BlackOilTable& region : regions) {
        const BlackOilDataRecords& gas = HasWetGas(exportType)   ? region.GetWetGasData()
                                         : HasDryGas(exportType) ? region.GetDryGasData()
                                                                 : none;
        WriteRecords(out, *formatter, &IBlackoilTableFormatter::GasTableEntry, gas,
                     !HasDryGas(exportType));
        formatter->EndDataRecord(out);
        out << '\n';
    }

    out << FileUnitHeader(units == Units::METRIC);
}

ErrorReport BlackOilExportFileWriter::ExportXMFYMFVP(const CompositionalFluid& fluid,
                                                     const ExperimentResults& results,
                                                     const std::string& fileName,
                                                     Units::UNIT_TYPE units) const {
    return WriteFile(fileName,
                     [&](std::ostream& out) { return ExportXMFYMFVP(fluid, results, out, units); });
}

ErrorReport BlackOilExportFileWriter::ExportXMFYMFVP(const CompositionalFluid& fluid,
                                                     const ExperimentResults& results,
                                                     std::ostream& out,
                                                     Units::UNIT_TYPE units) const {
    const StreamFormat streamFormat(out);
    const NumberFormat format{std::chars_format::fixed,
                              highPrecision ? decimalsOfHighPrecision : decimalsOfCompositions};
    const bool isField = units == Units::FIELD;
    const auto convert = isField ? Units::Pressure_Pa_To_psi : Units::Pressure_Pa_To_bar;
    const char* const unitLine = isField ? "-- Units: psi\n" : "-- Units: bar\n";
    const std::vector<double> zeros(static_cast<std::size_t>(fluid.NumberOfComponents()), 0.0);

    out << unitLine << "YMFVP\n-- \n-- Vapour Composition vs Pressure\n-- \n";
    WriteCompositions(out, results.Stages, &Stage::VapourPhase, zeros, convert, format);
    out << unitLine << "XMFVP\n-- \n-- Liquid Composition vs Pressure\n-- \n";
    WriteCompositions(out, results.Stages, &Stage::LiquidPhase, zeros, convert, format);
    out << '\n' << FileUnitHeader(units == Units::METRIC);
    return {};
}

} // namespace Orv::FluidBench::IO
