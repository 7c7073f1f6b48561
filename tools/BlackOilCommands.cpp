// fluidbench-io blackoil: shows black-oil CSV files and converts them.
#include "Choices.h"
#include "Commands.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/BlackOilTable.h"
#include "LineReader.h"
#include "NumberText.h"
#include "Reports.h"
#include "Table.h"
#include "TextFile.h"
#include "io/BlackOilExportFileWriter.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::BlackOilExportFileWriter;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;
using Orv::Text::LineReader;
using Orv::Text::ParseAsAtof;

namespace {

using Writer = BlackOilExportFileWriter;

const std::map<std::string, Units::UNIT_TYPE> unitChoices{{"metric", Units::METRIC},
                                                          {"field", Units::FIELD}};
const std::map<std::string, Writer::FILE_TYPE> forms{{"keyword", Writer::PVO},
                                                     {"csv", Writer::CSV}};
const std::map<std::string, Writer::EXPORT_TYPE> tableChoices{
    {"live-wet", Writer::LIVE_OIL_WET_GAS},
    {"live-dry", Writer::LIVE_OIL_DRY_GAS},
    {"dead-wet", Writer::DEAD_OIL_WET_GAS},
    {"dead-dry", Writer::DEAD_OIL_DRY_GAS}};

std::string LowerCase(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

// The two keys of a file that the library's reader passes over, so that a conversion keeps them.
// They stand ahead of the tables.
void ReadSaturationPoint(std::istream& file, BlackOilTable& table) {
    double ratio = 0.0;
    double pressure = 0.0;
    LineReader lines(file);
    for (std::string_view line; lines.Next(line);) {
        const std::size_t comma = line.find(',');
        if (comma == std::string_view::npos) {
            continue;
        }
        const std::string key = LowerCase(std::string(line.substr(0, comma)));
        const std::string_view value = line.substr(comma + 1);
        if (key == "rsconst") {
            ratio = ParseAsAtof(value);
        } else if (key == "psat") {
            pressure = ParseAsAtof(value);
        } else if (key == "pvto" || key == "pvtg") {
            break;
        }
    }
    table.SetSaturationPoint(ratio, pressure);
}

// The library's reader gives an empty table for what it can't read; here that is a failure.
BlackOilTable ReadTable(const std::string& fileName) {
    std::ifstream file = Orv::Text::OpenForReading(fileName);
    if (!file.is_open()) {
        throw CommandFailed("'" + fileName + "' can't be opened for reading.");
    }
    BlackOilTable table = Writer().GetTableFromCSVFile(fileName);
    if (table.GetLiveOilData().GetTableSize() == 0 && table.GetWetGasData().GetTableSize() == 0) {
        throw CommandFailed("'" + fileName +
                            "' holds no black-oil table: no line that begins with \"PVTO,\" or "
                            "\"PVTG,\" has rows of five cells below it.");
    }
    ReadSaturationPoint(file, table);
    return table;
}

template <typename Visit>
void ForEachRow(const BlackOilDataRecords& records, Visit visit) {
    for (std::uint64_t record = 0; record < records.GetTableSize(); ++record) {
        const std::uint64_t entries = records.GetRecordContentSize(record);
        for (std::uint64_t entry = 0; entry < entries; ++entry) {
            visit(record, entry);
        }
    }
}

// The rows, each in a record of its own: a dry gas row shows its pressure only as a record's first.
BlackOilDataRecords RecordPerRow(const BlackOilDataRecords& records) {
    BlackOilDataRecords rows;
    ForEachRow(records, [&](std::uint64_t record, std::uint64_t entry) {
        rows.AddEntry(rows.GetTableSize(), records.GetPressure(record, entry),
                      records.GetProperty(record, entry),
                      records.GetFormationVolumeFactor(record, entry),
                      records.GetViscosity(record, entry));
    });
    return rows;
}

// A table by pressure alone has one row for each pressure.
void WarnUnlessPressureRises(const BlackOilDataRecords& records, const std::string& kind) {
    std::optional<double> previous;
    bool rises = true;
    ForEachRow(records, [&](std::uint64_t record, std::uint64_t entry) {
        const double pressure = records.GetPressure(record, entry);
        rises = rises && (!previous || pressure > *previous);
        previous = pressure;
    });
    if (!rises) {
        std::cerr << "warning: A " << kind
                  << " table has one row for each pressure, by rising pressure. The rows of this "
                     "file don't follow that; all of them were written as they are.\n";
    }
}

// The reader takes all rows for live oil and wet gas. Puts them where the choice reads them.
void MoveRows(BlackOilTable& table, Writer::EXPORT_TYPE tables) {
    if (tables == Writer::DEAD_OIL_WET_GAS || tables == Writer::DEAD_OIL_DRY_GAS) {
        table.SetDeadOilData(table.GetLiveOilData());
        WarnUnlessPressureRises(table.GetDeadOilData(), "dead oil");
    }
    if (tables == Writer::LIVE_OIL_DRY_GAS || tables == Writer::DEAD_OIL_DRY_GAS) {
        table.SetDryGasData(RecordPerRow(table.GetWetGasData()));
        WarnUnlessPressureRises(table.GetDryGasData(), "dry gas");
    }
}

struct Conversion {
    std::string input;
    std::string output;
    Writer::FILE_TYPE form = Writer::PVO;
    Units::UNIT_TYPE units = Units::METRIC;
    Writer::EXPORT_TYPE tables = Writer::LIVE_OIL_WET_GAS;
    bool highPrecision = false;
};

void Convert(const Conversion& conversion) {
    constexpr double writtenWaterDensity = 1000.0;
    BlackOilTable table = ReadTable(conversion.input);
    if (table.GetWaterDensity() != 0.0 && table.GetWaterDensity() != writtenWaterDensity) {
        std::cerr << "warning: Files are written with a water density of 1000 kg/m3; that of '"
                  << conversion.input << "' is " << NumberText(table.GetWaterDensity()) << ".\n";
    }
    MoveRows(table, conversion.tables);
    TellReport(Writer(conversion.highPrecision)
                   .ExportToFile(table, conversion.output, conversion.units, conversion.tables,
                                 conversion.form));
    RequireWholeFile(conversion.output, conversion.units == Units::METRIC ? "FILEUNIT\nMETRIC\n/\n"
                                                                          : "FILEUNIT\nFIELD\n/\n");
}

double AsItIs(double value) {
    return value;
}

// A column of a table: its heading, and the way from the model's unit to the one shown.
struct Column {
    const char* heading;
    double (*convert)(double);
};

struct Columns {
    Column ratio;
    Column pressure;
    Column volumeFactor;
};

// clang-format off
constexpr Columns metricOil{{"GOR m3/m3",    AsItIs},
                            {"pressure bar", Units::Pressure_Pa_To_bar},
                            {"FVF m3/m3",    AsItIs}};
constexpr Columns metricGas{{"OGR m3/m3",    AsItIs},
                            {"pressure bar", Units::Pressure_Pa_To_bar},
                            {"FVF m3/m3",    AsItIs}};
constexpr Columns fieldOil{{"GOR Mscf/stb",  Units::VolumeRatio_m3m3_to_mscfbbl},
                           {"pressure psia", Units::Pressure_Pa_To_psi},
                           {"FVF rb/stb",    Units::VolumeRatio_m3m3_to_bblbbl}};
constexpr Columns fieldGas{{"OGR stb/Mscf",  Units::VolumeRatio_m3m3_to_bblmscf},
                           {"pressure psia", Units::Pressure_Pa_To_psi},
                           {"FVF rb/Mscf",   Units::VolumeRatio_m3m3_to_bblmscf}};
// clang-format on

void PrintRecords(const char* title, const BlackOilDataRecords& records, const Columns& columns) {
    std::cout << '\n' << title << '\n';
    if (records.GetTableSize() == 0) {
        std::cout << "  No rows.\n";
        return;
    }
    Table table({"record", columns.ratio.heading, columns.pressure.heading,
                 columns.volumeFactor.heading, "viscosity cP"});
    ForEachRow(records, [&](std::uint64_t record, std::uint64_t entry) {
        table.AddRow({entry == 0 ? std::to_string(record + 1) : std::string(),
                      NumberText(columns.ratio.convert(records.GetProperty(record, entry))),
                      NumberText(columns.pressure.convert(records.GetPressure(record, entry))),
                      NumberText(columns.volumeFactor.convert(
                          records.GetFormationVolumeFactor(record, entry))),
                      NumberText(Units::Viscosity_Pas_To_cp(records.GetViscosity(record, entry)))});
    });
    table.Print(std::cout, 2);
}

void Show(const std::string& fileName, Units::UNIT_TYPE units) {
    const BlackOilTable table = ReadTable(fileName);
    const bool field = units == Units::FIELD;
    const auto density = field ? Units::Density_kgm3_To_lbft3 : AsItIs;
    const Columns& oil = field ? fieldOil : metricOil;
    const Columns& gas = field ? fieldGas : metricGas;
    Table summary({"quantity", "value", "unit"});
    const auto add = [&](const char* name, double value, const char* metric,
                         const char* fieldUnit) {
        summary.AddRow({name, NumberText(value), field ? fieldUnit : metric});
    };
    add("oil density", density(table.GetOilDensity()), "kg/m3", "lb/ft3");
    add("water density", density(table.GetWaterDensity()), "kg/m3", "lb/ft3");
    add("gas density", density(table.GetGasDensity()), "kg/m3", "lb/ft3");
    add("GOR at saturation", oil.ratio.convert(table.GetSaturationPointRs()), "m3/m3", "Mscf/stb");
    add("saturation pressure", oil.pressure.convert(table.GetSaturationPointPressure()), "bar",
        "psia");
    summary.Print(std::cout);
    PrintRecords("Oil", table.GetLiveOilData(), oil);
    PrintRecords("Gas", table.GetWetGasData(), gas);
}

void AddConvert(CLI::App& blackoil) {
    CLI::App* const convert = blackoil.add_subcommand(
        "convert", "Write a CSV file as keywords for a simulator, or as CSV anew");
    const auto conversion = std::make_shared<Conversion>();
    convert->add_option("IN", conversion->input, "The CSV file to read")->required();
    convert
        ->add_option("OUT", conversion->output, "The file to write; one that is there is replaced")
        ->required();
    AddChoice(*convert, "--form", conversion->form, forms,
              "Form to write: keyword, unless given, for a simulator, or csv");
    AddChoice(
        *convert, "--units", conversion->units, unitChoices,
        "Units to write: metric, unless given. The numbers of the csv form are metric always");
    AddChoice(*convert, "--tables", conversion->tables, tableChoices,
              "Tables to write: live-wet, unless given, writes PVTO and PVTG; live-dry PVTO and "
              "PVDG; dead-wet PVDO and PVTG; dead-dry PVDO and PVDG. All rows of the file go into "
              "these tables, whichever it was written from");
    convert->add_flag("--high-precision", conversion->highPrecision, "15 decimals in place of 8");
    convert->callback([conversion] { Convert(*conversion); });
}

void AddShow(CLI::App& blackoil) {
    CLI::App* const show =
        blackoil.add_subcommand("show", "Show the densities and tables of a CSV file");
    const auto fileName = std::make_shared<std::string>();
    const auto units = std::make_shared<Units::UNIT_TYPE>(Units::METRIC);
    show->add_option("IN", *fileName, "The CSV file")->required();
    AddChoice(*show, "--units", *units, unitChoices, "Units to show: metric, unless given");
    show->callback([fileName, units] { Show(*fileName, *units); });
}

} // namespace

void AddBlackOilCommands(CLI::App& program) {
    CLI::App* const blackoil =
        program.add_subcommand("blackoil", "Black-oil tables in comma-separated files");
    blackoil->require_subcommand(1);
    AddConvert(*blackoil);
    AddShow(*blackoil);
}

} // namespace FluidBenchTool
