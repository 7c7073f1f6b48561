// fluidbench-io dfa: looks into the exports of a downhole fluid analysis job.
#include "Commands.h"
#include "FluidBench/Common/Units.h"
#include "Json.h"
#include "Progress.h"
#include "Shown.h"
#include "ShownUnit.h"
#include "io/DFAReader.h"

#include <limits>
#include <string>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::DFAReader;
using Orv::FluidBench::IO::WellData;

namespace Dfa {
namespace {

constexpr Option ft{"--ft", "FILE",
                    "The file with the pressures. Unless given, it is beside IN, with FT.txt in "
                    "place of the last seven characters of its name"};

constexpr double metresPerFoot = 0.3048;
constexpr double percentPerFraction = 100.0;

// A quantity of a station, from the units of the export. The field units are those of the export.
struct Quantity {
    const char* name;
    const char* key; // in JSON
    std::vector<double> WellData::*values;
    double (*toModel)(double);
    ShownUnit metric; // from the export's unit
    const char* fieldUnit;
};

// clang-format off
constexpr Quantity quantities[] = {
    {"depth", "depths", &WellData::depths,
     [](double feet) { return feet * metresPerFoot; },
     {"m", [](double feet) { return feet * metresPerFoot; }}, "ft"},
    {"pressure", "pressures", &WellData::pressures,
     Units::Pressure_psi_To_Pa,
     {"bar", [](double psi) { return Units::Pressure_Pa_To_bar(Units::Pressure_psi_To_Pa(psi)); }},
     "psi"},
    {"temperature", "temperatures", &WellData::temperatures,
     Units::Temperature_F_To_K,
     {"C", [](double f) { return Units::Temperature_K_To_C(Units::Temperature_F_To_K(f)); }}, "F"},
    {"density", "densities", &WellData::densities,
     Units::Density_gmcc_To_kgm3,
     {"kg/m3", Units::Density_gmcc_To_kgm3}, "g/cc"},
    {"GOR", "gasOilRatios", &WellData::gasOilRatios,
     Units::GOR_scfstb_To_m3m3,
     {"m3/m3", Units::GOR_scfstb_To_m3m3}, "scf/stb"},
};
// clang-format on

constexpr const char* components[] = {"C1", "C2", "C3-C5", "C6+", "CO2"};

// A pressure of zero is one that wasn't measured.
bool IsMissing(const Quantity& quantity, double value) {
    return quantity.values == &WellData::pressures && value == 0.0;
}

void ImportOrFail(DFAReader& reader, Input& main, Call& call) {
    Messages& messages = call.Told();
    const Progress progress(messages, "Reading " + main.Name());
    const std::uint64_t errors = messages.Errors();
    reader.SetDiagnosticSink(messages.Sink());
    bool isRead = false;
    if (const auto pressureFile = call.Asked().Value(ft)) {
        Input pressures(*pressureFile, messages);
        isRead = reader.Import(main.Text(), pressures.Text(), main.Name(), pressures.Name());
    } else {
        isRead = reader.Import(main.FileName());
    }
    if (!isRead && messages.Errors() == errors) {
        messages.Tell(ToolKinds::nothingRead, main.Name(),
                      "Expected a line BEGIN HEADER, a line END HEADER behind it, and a file of "
                      "pressures with the same, found none.");
    }
    if (!isRead) {
        throw CommandFailed();
    }
}

void ImportOperand(DFAReader& reader, Call& call) {
    Input input(call.Operand(0), call.Told());
    ImportOrFail(reader, input, call);
}

Cells Headings(bool field) {
    Cells headings;
    for (const Quantity& quantity : quantities) {
        headings.push_back(std::string(quantity.name) + ' ' +
                           (field ? quantity.fieldUnit : quantity.metric.name));
    }
    for (const char* const component : components) {
        headings.push_back(std::string(component) + " %");
    }
    headings.emplace_back("value");
    return headings;
}

Cells RowOf(const WellData& well, std::size_t station, bool field, std::string (*text)(double),
            const char* missing) {
    Cells cells;
    for (const Quantity& quantity : quantities) {
        const double value = (well.*quantity.values)[station];
        cells.push_back(IsMissing(quantity, value)
                            ? missing
                            : text(field ? value : quantity.metric.convert(value)));
    }
    for (const double fraction : well.compositions[station]) {
        cells.push_back(text(fraction * percentPerFraction));
    }
    cells.push_back(text(well.stationValues[station]));
    return cells;
}

void Print(std::ostream& out, const std::vector<WellData>& wells, bool field, Extent extent) {
    if (wells.empty()) {
        out << "No stations.\n";
    }
    for (std::size_t i = 0; i < wells.size(); ++i) {
        const WellData& well = wells[i];
        const std::size_t count = well.depths.size();
        out << (i > 0 ? "\n" : "") << "Well " << Shown(well.name) << ": " << std::to_string(count)
            << (count == 1 ? " station\n\n" : " stations\n\n");
        const auto text = [](double value) { return NumberText(value); };
        PrintTable(out,
                   {Headings(field), count,
                    [&](std::uint64_t row) { return RowOf(well, row, field, text, "-"); }},
                   extent, 2);
    }
}

void PrintStations(std::ostream& out, const std::vector<WellData>& wells, bool field) {
    Cells headings = Headings(field);
    headings.insert(headings.begin(), "well");
    std::vector<Table> tables;
    tables.reserve(wells.size());
    for (const WellData& well : wells) {
        tables.push_back({{}, well.depths.size(), [&well, field](std::uint64_t row) {
                              Cells cells = RowOf(well, row, field, DataText, "");
                              cells.insert(cells.begin(), well.name);
                              return cells;
                          }});
    }
    PrintCsv(out, Joined(std::move(headings), std::move(tables)));
}

void Write(std::ostream& out, const std::vector<WellData>& wells) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", "dfa");
    json.BeginArray("wells");
    for (const WellData& well : wells) {
        json.BeginObject();
        json.Add("name", well.name);
        for (const Quantity& quantity : quantities) {
            std::vector<double> values = well.*quantity.values;
            for (double& value : values) {
                // What isn't a number becomes null.
                value = IsMissing(quantity, value) ? std::numeric_limits<double>::quiet_NaN()
                                                   : quantity.toModel(value);
            }
            json.Add(quantity.key, values);
        }
        json.Add("stationValues", well.stationValues);
        json.AddRows("compositions", well.compositions);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    DFAReader reader;
    ImportOperand(reader, call);
    const bool field = IsField(call, Options::showUnits);
    switch (form) {
    case ShowForm::Text:
        Print(call.Out(), reader.GetExtractedData(), field, ExtentOf(call));
        break;
    case ShowForm::Csv:
        PrintStations(call.Out(), reader.GetExtractedData(), field);
        break;
    case ShowForm::Json:
        Write(call.Out(), reader.GetExtractedData());
        break;
    }
}

void Convert(Call& call) {
    DFAReader reader;
    ImportOperand(reader, call);
    call.Write(call.Operand(1), [&](std::ostream& out) {
        PrintStations(out, reader.GetExtractedData(), IsField(call, Options::toUnits));
    });
}

constexpr Option showOptions[] = {ft,           Options::showUnits, Options::all, Options::json,
                                  Options::csv, Options::strict};
constexpr Option convertOptions[] = {ft, Options::toUnits, Options::strict};
constexpr Command commands[] = {
    {"dfa", "show", "Show the wells and their stations by depth", "IN", showOptions, Show},
    {"dfa", "convert", "Write the wells and their stations with commas, a row for each station",
     "IN OUT", convertOptions, Convert},
};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    if (input.Name().ends_with("FT.txt")) {
        call.Told().Fail(ToolKinds::nothingRead, input.Name(),
                         "Expected the main file of an analysis, found the file of its pressures "
                         "by the name; a check of the main file reads both.");
    }
    DFAReader reader;
    ImportOrFail(reader, input, call);
}

} // namespace Dfa

} // namespace FluidBenchTool
