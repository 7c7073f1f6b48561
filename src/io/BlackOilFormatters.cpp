#include "BlackOilFormatters.h"

#include "BlackOilUnits.h"
#include "NumberText.h"

#include <array>
#include <string_view>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::Units;
using Text::AppendNumber;
using Text::FormatOf;
using Text::NumberFormat;
using Text::TextBuffer;

namespace {

// A table's heading in the keyword form. The column line and the units are comments.
struct TableHeading {
    const char* columns;
    const char* fieldUnits;
    const char* metricUnits;
    const char* keyword;
};

// clang-format off
constexpr TableHeading liveOilHeading{
    "--      'Oil GOR'    'PSAT'    'Oil FVF'    'Oil Visc'",
    "Mscf /stb     psia     rb /stb     cp",
    "sm3 /sm3     bar     rm3 /sm3     cp",
    "PVTO"};
constexpr TableHeading deadOilHeading{
    "--      'PSAT'    'Oil FVF'    'Oil Visc'",
    "psia     rb /stb     cp",
    "bar     rm3 /sm3     cp",
    "PVDO"};
constexpr TableHeading wetGasHeading{
    "--   'Gas Pressure'  'Gas OGR'   'Gas FVF'    'Gas Visc'",
    " psia     rb /Mscf    rb /stb    cp ",
    "bar     sm3 /sm3     rm3 /sm3     cp",
    "PVTG"};
constexpr TableHeading dryGasHeading{
    "--   'Gas Pressure'  'Gas FVF'    'Gas Visc'",
    "psia     rb /Mscf     cp ",
    "bar     rm3 /sm3     cp",
    "PVDG"};
// clang-format on

constexpr std::size_t blackOilCellWidth = 8;
constexpr std::size_t densityWidth = 12;
// A cell without a number leaves its width to the tab behind it.
constexpr std::string_view emptyCell = "       \t";

void Write(std::ostream& out, std::string_view text) {
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

void WriteHeading(std::ostream& out, const TableHeading* heading, bool isField) {
    std::string text = "-- Column Properties are: \n";
    if (heading == nullptr) {
        text += "NOT VALID";
    } else {
        (text += heading->columns) += "\n-- Units: ";
        (text += isField ? heading->fieldUnits : heading->metricUnits) += '\n';
        text += heading->keyword;
    }
    Write(out, text);
}

// A line of the CSV form: a key and its number.
void WriteKey(std::ostream& out, std::string_view key, double value) {
    std::string line(key);
    line += ',';
    AppendNumber(line, value, FormatOf(out));
    line += '\n';
    Write(out, line);
}

// A row of the CSV form; the numbers are in the units of the file.
void WriteCSVRow(std::ostream& out, TextBuffer& row, const std::array<double, 4>& cells) {
    const NumberFormat format = FormatOf(out);
    row += '\t';
    for (const double cell : cells) {
        row += ',';
        AppendNumber(row, cell, format);
    }
    row.WriteTo(out);
}

} // namespace

IBlackoilTableFormatter::~IBlackoilTableFormatter() = default;

PVOFormatter::PVOFormatter(Units::UNIT_TYPE unitChoice, EXPORT_TYPE tables)
    : units(unitChoice), exportType(tables) {}
PVOFormatter::~PVOFormatter() = default;

void PVOFormatter::OilTableHeader(std::ostream& out) {
    const TableHeading* const heading = HasLiveOil(exportType)   ? &liveOilHeading
                                        : HasDeadOil(exportType) ? &deadOilHeading
                                                                 : nullptr;
    WriteHeading(out, heading, IsField());
}

void PVOFormatter::GasTableHeader(std::ostream& out) {
    const TableHeading* const heading = HasWetGas(exportType)   ? &wetGasHeading
                                        : HasDryGas(exportType) ? &dryGasHeading
                                                                : nullptr;
    WriteHeading(out, heading, IsField());
}

void PVOFormatter::SurfaceDensities(std::ostream& out, double oilDensity, double waterDensity,
                                    double gasDensity) {
    const NumberFormat format = FormatOf(out);
    const auto convert = DensityUnit(IsField());
    std::string text;
    if (!std::exchange(hasDensities, true)) {
        text = "-- DENSITY:\tOIL\tWATER\tGAS\n-- Units: ";
        text += IsField() ? "lb /ft^3  \t   lb /ft^3  \t   lb /ft^3"
                          : "kg /m^3  \t   kg /m^3  \t   kg /m^3 ";
        text += "\nDENSITY\n-- \n-- Fluid Densities at Surface Conditions\n-- \n";
    }
    AppendNumber(text, convert(oilDensity), format, densityWidth);
    text += '\t';
    AppendNumber(text, convert(waterDensity), format);
    text += '\t';
    AppendNumber(text, convert(gasDensity), format);
    text += "\n/\n\n";
    Write(out, text);
}

void PVOFormatter::SaturationPoint(std::ostream& out, double gasOilRatio, double pressure) {
    if (!HasDeadOil(exportType)) {
        return;
    }
    const NumberFormat format = FormatOf(out);
    const RowUnits& convert = IsField() ? fieldOilRow : metricRow;
    std::string text;
    if (!std::exchange(hasSaturationPoint, true)) {
        text = "-- RSCONSTT: Gas Oil Ratio at Saturation Pressure\n-- Units: ";
        text += IsField() ? "Mscf /stb     psia" : "sm3 /sm3     bar ";
        text += "\nRSCONSTT\n";
    }
    AppendNumber(text, convert.property(gasOilRatio), format);
    text += '\t';
    AppendNumber(text, convert.pressure(pressure), format);
    text += "\n/\n";
    Write(out, text);
}

void PVOFormatter::OilTableEntry(std::ostream& out, double pressure, double property,
                                 double formationVolumeFactor, double viscosity,
                                 bool firstOfRecord) {
    const NumberFormat format = FormatOf(out);
    const RowUnits& convert = IsField() ? fieldOilRow : metricRow;
    row += '\t';
    if (HasLiveOil(exportType) && firstOfRecord) {
        AppendNumber(row, convert.property(property), format, blackOilCellWidth);
        row += '\t';
    } else {
        row += emptyCell;
    }
    AppendNumber(row, convert.pressure(pressure), format, blackOilCellWidth);
    row += '\t';
    AppendNumber(row, convert.formationVolumeFactor(formationVolumeFactor), format,
                 blackOilCellWidth);
    row += '\t';
    AppendNumber(row, Units::Viscosity_Pas_To_cp(viscosity), format, blackOilCellWidth);
    row.WriteTo(out);
}

void PVOFormatter::GasTableEntry(std::ostream& out, double pressure, double property,
                                 double formationVolumeFactor, double viscosity,
                                 bool firstOfRecord) {
    const NumberFormat format = FormatOf(out);
    const RowUnits& convert = IsField() ? fieldGasRow : metricRow;
    row += '\t';
    if (firstOfRecord) {
        AppendNumber(row, convert.pressure(pressure), format, blackOilCellWidth);
        row += '\t';
    } else {
        row += emptyCell;
    }
    if (HasWetGas(exportType)) {
        AppendNumber(row, convert.property(property), format);
    }
    row += '\t';
    AppendNumber(row, convert.formationVolumeFactor(formationVolumeFactor), format,
                 blackOilCellWidth);
    row += '\t';
    AppendNumber(row, Units::Viscosity_Pas_To_cp(viscosity), format, blackOilCellWidth);
    row.WriteTo(out);
}

void PVOFormatter::EndDataRecord(std::ostream& out) {
    Write(out, "\t/");
}

CSVFormatter::CSVFormatter() = default;
CSVFormatter::~CSVFormatter() = default;

void CSVFormatter::OilTableHeader(std::ostream& out) {
    Write(out, "Units, METRIC\nPVTO, Rs, PSAT, Bo, Muo");
}

void CSVFormatter::GasTableHeader(std::ostream& out) {
    Write(out, "Units, METRIC\nPVTG, PSAT, Rv, Bg, Mug");
}

void CSVFormatter::SurfaceDensities(std::ostream& out, double oilDensity, double waterDensity,
                                    double gasDensity) {
    WriteKey(out, "ODEN", oilDensity);
    WriteKey(out, "WDEN", waterDensity);
    WriteKey(out, "GDEN", gasDensity);
}

void CSVFormatter::SaturationPoint(std::ostream& out, double gasOilRatio, double pressure) {
    WriteKey(out, "RSCONST", gasOilRatio);
    WriteKey(out, "PSAT", pressure);
}

void CSVFormatter::OilTableEntry(std::ostream& out, double pressure, double property,
                                 double formationVolumeFactor, double viscosity, bool) {
    WriteCSVRow(out, row,
                {property, Units::Pressure_Pa_To_bar(pressure), formationVolumeFactor,
                 Units::Viscosity_Pas_To_cp(viscosity)});
}

void CSVFormatter::GasTableEntry(std::ostream& out, double pressure, double property,
                                 double formationVolumeFactor, double viscosity, bool) {
    WriteCSVRow(out, row,
                {Units::Pressure_Pa_To_bar(pressure), property, formationVolumeFactor,
                 Units::Viscosity_Pas_To_cp(viscosity)});
}

void CSVFormatter::EndDataRecord(std::ostream& out) {
    Write(out, "\n");
}

} // namespace Orv::FluidBench::IO
