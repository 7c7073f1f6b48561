// fluidbench-io depth: shows fluids by depth and depth variation tables, and writes such tables.
#include "Commands.h"
#include "DataRows.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/MSTExperiment.h"
#include "Json.h"
#include "NumberText.h"
#include "PlotCommands.h"
#include "Progress.h"
#include "ShownUnit.h"
#include "TableFiles.h"
#include "io/DepthTableReader.h"
#include "io/PVOFileWriter.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Experiments::ExperimentResults;
using Orv::FluidBench::Experiments::MSTExperiment;
using Orv::FluidBench::Experiments::oilLikeFluidState;
using Orv::FluidBench::Experiments::Stage;
using Orv::FluidBench::IO::DepthTable;
using Orv::FluidBench::IO::DepthTableReader;
using Orv::FluidBench::IO::PVOFileWriter;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

namespace Depth {
namespace {

constexpr Option table{
    "--table", "compositions|saturation|ratios",
    "The tables to write: compositions (ZMFVD); saturation pressures (PBVD, PDVD); or gas-oil and "
    "oil-gas ratios (RSVD, RVVD), which are those of the file. Unless given, compositions of a "
    "depth run, and all tables of a file that has tables"};

// clang-format off
constexpr ShownUnit metre{"m"};
constexpr ShownUnit foot {"ft",       Units::Depth_m_to_ft};
constexpr ShownUnit ratio{"m3/m3"};
constexpr ShownUnit mscf {"Mscf/stb", Units::GOR_m3m3_To_Mscfstb};
constexpr ShownUnit stb  {"stb/Mscf", [](double oilGasRatio) {
                              return 1.0 / Units::GOR_m3m3_To_Mscfstb(1.0 / oilGasRatio); }};
constexpr ShownUnit number{};

// A table against depth: its keyword, the choice that it belongs to, and what its values are.
struct TableKind {
    std::string_view keyword;
    std::string_view choice;
    const char* title;
    const char* value;
    ShownUnit metric;
    ShownUnit field;
    bool hasComponents = false; // a value for each of them
};
constexpr TableKind tableKinds[] = {
    {"ZMFVD", "compositions", "compositions",         "fraction", number, number, true},
    {"PBVD",  "saturation",   "bubble points",        "pressure", bar,    psia},
    {"PDVD",  "saturation",   "dew points",           "pressure", bar,    psia},
    {"RSVD",  "ratios",       "dissolved gas",        "GOR",      ratio,  mscf},
    {"RVVD",  "ratios",       "vaporised oil",        "OGR",      ratio,  stb},
};
// clang-format on

const TableKind* FindKind(std::string_view keyword) {
    const auto kind = std::ranges::find(tableKinds, keyword, &TableKind::keyword);
    return kind == std::end(tableKinds) ? nullptr : &*kind;
}

// Rows, all in m, bar and m3/m3: of a run
//
//     component,NAME,...                   further cells don't count, nor do rows "separator"
//     gas,DEPTH,SATURATION PRESSURE,GOR,FRACTION,...      a fraction for each component
//     oil, contact                         the same
//
// or of tables
//
//     keyword,PBVD
//     row,DEPTH,VALUE                      in ZMFVD, a value for each component
class RowReader {
public:
    RowReader(Input& input, Call& call) : rows_(input, call.Told()) {}

    void Read(DepthFile& file);

private:
    void TakeOfRun(DepthRun& run);
    void TakeOfTables(std::vector<DepthTable>& tables);
    Stage StageOfRow(const std::vector<std::string>& components) const;

    DataRows rows_;
};

Stage RowReader::StageOfRow(const std::vector<std::string>& components) const {
    constexpr std::size_t cellsAhead = 3;
    rows_.RequireCells(cellsAhead + components.size());
    const std::vector<double> numbers = rows_.Numbers();
    const bool isGas = rows_.Name() == "gas";
    Stage stage;
    stage.Results->Depth.Set(numbers[0]);
    stage.Results->SaturationPressure.Set(Units::Pressure_bar_To_Pa(numbers[1]));
    stage.Results->GasOilRatio.Set(numbers[2]);
    stage.VapourPhase.SetPresent(isGas);
    stage.LiquidPhase.SetPresent(!isGas);
    stage.FluidState = isGas ? 0 : oilLikeFluidState;
    // The separator, which sees the fluid alone, finds the ratio in its name.
    stage.Fluid = CompositionalFluid(ExactText(numbers[2]));
    for (std::size_t i = 0; i < components.size(); ++i) {
        if (numbers[cellsAhead + i] < 0.0) {
            rows_.Fail("fractions of zero or more", "one below zero");
        }
        stage.Fluid.SetComponent(FluidComponent(components[i]), numbers[cellsAhead + i]);
    }
    return stage;
}

void RowReader::TakeOfRun(DepthRun& run) {
    const std::string& name = rows_.Name();
    if (name == "component" && !rows_.Texts().empty()) {
        const std::string component = rows_.Texts().front();
        if (component.empty() || std::ranges::count(run.components, component) > 0) {
            rows_.Fail("the name of a component that isn't there yet", "'" + component + "'");
        }
        run.components.push_back(component);
    } else if (name == "contact") {
        run.results.ContactStage = StageOfRow(run.components);
    } else if (name == "gas" || name == "oil") {
        run.results.Stages.push_back(StageOfRow(run.components));
        run.kinds.push_back(name);
    } else if (name != "separator") {
        rows_.Fail("a row 'component', 'separator', 'gas', 'oil' or 'contact', or 'keyword'",
                   "'" + name + "'");
    }
}

void RowReader::TakeOfTables(std::vector<DepthTable>& tables) {
    if (rows_.Name() == "keyword") {
        rows_.RequireCells(1);
        const std::string keyword = rows_.Texts().front();
        if (FindKind(keyword) == nullptr) {
            rows_.Fail("ZMFVD, PBVD, PDVD, RSVD or RVVD", "'" + keyword + "'");
        }
        tables.push_back({keyword, {}, {}});
        return;
    }
    if (rows_.Name() != "row") {
        rows_.Fail("a row 'keyword' or 'row'", "'" + rows_.Name() + "'");
    }
    DepthTable& last = tables.back();
    const TableKind& kind = *FindKind(last.Keyword);
    if (!kind.hasComponents) {
        rows_.RequireCells(2);
    } else if (!last.Values.empty()) {
        rows_.RequireCells(1 + last.Values.front().size());
    } else if (rows_.Texts().size() < 2) {
        rows_.Fail("a depth and fractions behind 'row'", "fewer cells");
    }
    const std::vector<double> numbers = rows_.Numbers();
    last.Depths.push_back(numbers.front());
    last.Values.emplace_back(numbers.begin() + 1, numbers.end());
    if (kind.choice == "saturation") {
        last.Values.back().front() = Units::Pressure_bar_To_Pa(numbers[1]);
    }
}

void RowReader::Read(DepthFile& file) {
    DepthRun& run = file.run;
    while (rows_.Next()) {
        const bool isOfRun = !run.components.empty() || !run.results.Stages.empty();
        if (!file.tables.empty() || (rows_.Name() == "keyword" && !isOfRun)) {
            TakeOfTables(file.tables);
        } else {
            TakeOfRun(run);
        }
    }
    if (!file.tables.empty()) {
        return;
    }
    if (run.results.Stages.empty()) {
        rows_.FailMissing("gas");
    }
    for (const Stage& stage : run.results.Stages) {
        run.rows.push_back(&stage);
    }
    if (run.results.ContactStage.Results->Depth.IsSet) {
        run.rows.push_back(&run.results.ContactStage);
        run.kinds.emplace_back("contact");
    }
}

} // namespace
} // namespace Depth

void ReadDepth(Input& input, Call& call, DepthFile& file) {
    const Progress progress(call.Told(), "Reading " + input.Name());
    if (HasKeywords(input)) {
        ReadKeywords<DepthTableReader>(input, call, file.tables);
        return;
    }
    RequireMetric(input, call);
    Depth::RowReader(input, call).Read(file);
}

namespace Depth {
namespace {

Table TableOfRun(const DepthRun& run, bool field, std::string (*text)(double)) {
    const ShownUnit& depth = field ? foot : metre;
    const ShownUnit& pressure = field ? psia : bar;
    const ShownUnit& gasOilRatio = field ? mscf : ratio;
    Cells headings{"fluid", std::string("depth ") + depth.name,
                   std::string("saturation pressure ") + pressure.name,
                   std::string("GOR ") + gasOilRatio.name};
    headings.insert(headings.end(), run.components.begin(), run.components.end());
    return {std::move(headings), run.rows.size(), [=, &run](std::uint64_t row) {
                const Stage& stage = *run.rows[row];
                Cells cells{run.kinds[row], text(depth.convert(stage.Results->Depth.GetValue())),
                            text(pressure.convert(stage.Results->SaturationPressure.GetValue())),
                            text(gasOilRatio.convert(stage.Results->GasOilRatio.GetValue()))};
                for (const std::string& component : run.components) {
                    cells.push_back(text(stage.Fluid.GetComponentFraction(component)));
                }
                return cells;
            }};
}

Cells HeadingsOf(const DepthTable& ofDepth, const TableKind& kind, bool field) {
    Cells headings{std::string("depth ") + (field ? foot : metre).name};
    if (!kind.hasComponents) {
        headings.push_back(std::string(kind.value) + ' ' + (field ? kind.field : kind.metric).name);
    } else if (!ofDepth.Values.empty()) {
        // A file doesn't name the components: they have numbers, from 1.
        for (std::size_t i = 1; i <= ofDepth.Values.front().size(); ++i) {
            headings.push_back(std::to_string(i));
        }
    }
    return headings;
}

void PrintTables(std::ostream& out, const std::vector<DepthTable>& tables, bool field,
                 Extent extent) {
    const ShownUnit& depth = field ? foot : metre;
    for (const DepthTable& ofDepth : tables) {
        const TableKind& kind = *FindKind(ofDepth.Keyword);
        const ShownUnit& unit = field ? kind.field : kind.metric;
        out << (&ofDepth == &tables.front() ? "" : "\n") << ofDepth.Keyword << ", " << kind.title
            << '\n';
        PrintTable(out,
                   {HeadingsOf(ofDepth, kind, field), ofDepth.Depths.size(),
                    [&](std::uint64_t row) {
                        Cells cells{NumberText(depth.convert(ofDepth.Depths[row]))};
                        for (const double value : ofDepth.Values[row]) {
                            cells.push_back(NumberText(unit.convert(value)));
                        }
                        return cells;
                    }},
                   extent, 2);
    }
}

// A row for each value.
void PrintTablesCsv(std::ostream& out, const std::vector<DepthTable>& tables, bool field) {
    const ShownUnit& depth = field ? foot : metre;
    PrintCsvRow(out, {"table", "keyword", std::string("depth ") + depth.name, "component", "value",
                      "unit"});
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const DepthTable& ofDepth = tables[i];
        const TableKind& kind = *FindKind(ofDepth.Keyword);
        const ShownUnit& unit = field ? kind.field : kind.metric;
        for (std::size_t row = 0; row < ofDepth.Depths.size(); ++row) {
            for (std::size_t j = 0; j < ofDepth.Values[row].size(); ++j) {
                PrintCsvRow(out, {std::to_string(i + 1), ofDepth.Keyword,
                                  DataText(depth.convert(ofDepth.Depths[row])),
                                  kind.hasComponents ? std::to_string(j + 1) : std::string(),
                                  DataText(unit.convert(ofDepth.Values[row][j])), unit.name});
            }
        }
    }
}

void WriteStages(JsonWriter& json, const DepthRun& run) {
    json.Add("components", run.components);
    json.BeginArray("stages");
    for (std::size_t i = 0; i < run.rows.size(); ++i) {
        const Stage& stage = *run.rows[i];
        json.BeginObject();
        json.Add("fluid", run.kinds[i]);
        json.Add("depth", stage.Results->Depth.GetValue());
        json.Add("saturationPressure", stage.Results->SaturationPressure.GetValue());
        json.Add("gasOilRatio", stage.Results->GasOilRatio.GetValue());
        std::vector<double> fractions;
        fractions.reserve(run.components.size());
        for (const std::string& component : run.components) {
            fractions.push_back(stage.Fluid.GetComponentFraction(component));
        }
        json.Add("composition", fractions);
        json.EndObject();
    }
    json.EndArray();
}

void Write(std::ostream& out, const DepthFile& file) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", "depth");
    WriteStages(json, file.run);
    json.BeginArray("tables");
    for (const DepthTable& ofDepth : file.tables) {
        json.BeginObject();
        json.Add("keyword", ofDepth.Keyword);
        json.Add("depths", ofDepth.Depths);
        json.AddRows("values", ofDepth.Values);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    Input input(call.Operand(0), call.Told());
    DepthFile file;
    ReadDepth(input, call, file);
    const bool field = IsField(call, Options::showUnits);
    switch (form) {
    case ShowForm::Text:
        if (file.tables.empty()) {
            PrintTable(call.Out(),
                       TableOfRun(file.run, field, [](double v) { return NumberText(v); }),
                       ExtentOf(call));
        } else {
            PrintTables(call.Out(), file.tables, field, ExtentOf(call));
        }
        break;
    case ShowForm::Csv:
        if (file.tables.empty()) {
            PrintCsv(call.Out(), TableOfRun(file.run, field, DataText));
        } else {
            PrintTablesCsv(call.Out(), file.tables, field);
        }
        break;
    case ShowForm::Json:
        Write(call.Out(), file);
        break;
    }
}

// Gives the ratio that the fluid has in the file, in place of a separator's.
ExperimentResults RatioOfFile(const CompositionalFluid& fluid, const std::vector<Stage>&) {
    ExperimentResults results;
    results.Stages.emplace_back();
    results.Stages.back().Results->GasOilRatio.Set(Orv::Text::ParseAsAtof(fluid.GetName()));
    return results;
}

void WriteRun(std::ostream& out, const DepthRun& run, const std::string& which,
              Units::UNIT_TYPE units) {
    const PVOFileWriter writer;
    if (which == "compositions") {
        writer.ExportZMFVD(run.results.Stages.front().Fluid, run.results, out, units);
    } else if (which == "saturation") {
        writer.ExportPSATVD(run.results, out, units);
    } else {
        writer.ExportRSVD(run.results, MSTExperiment(RatioOfFile), {}, out, units);
    }
}

// The form that `RowReader` reads.
void WriteRowsOfRun(std::ostream& out, const DepthRun& run) {
    for (const std::string& component : run.components) {
        PrintCsvRow(out, {"component", component});
    }
    for (std::size_t i = 0; i < run.rows.size(); ++i) {
        const Stage& stage = *run.rows[i];
        Cells cells{run.kinds[i], DataText(stage.Results->Depth.GetValue()),
                    DataText(bar.convert(stage.Results->SaturationPressure.GetValue())),
                    DataText(stage.Results->GasOilRatio.GetValue())};
        for (const std::string& component : run.components) {
            cells.push_back(DataText(stage.Fluid.GetComponentFraction(component)));
        }
        PrintCsvRow(out, cells);
    }
}

void WriteRowsOfTables(std::ostream& out, const std::vector<DepthTable>& tables) {
    for (const DepthTable& ofDepth : tables) {
        PrintCsvRow(out, {"keyword", ofDepth.Keyword});
        const ShownUnit& unit = FindKind(ofDepth.Keyword)->metric;
        for (std::size_t i = 0; i < ofDepth.Depths.size(); ++i) {
            Cells cells{"row", DataText(ofDepth.Depths[i])};
            for (const double value : ofDepth.Values[i]) {
                cells.push_back(DataText(unit.convert(value)));
            }
            PrintCsvRow(out, cells);
        }
    }
}

// Keeps the tables that were asked for.
void ChooseTables(Call& call, std::vector<DepthTable>& tables) {
    const auto which = call.Asked().Value(table);
    if (which) {
        std::erase_if(tables, [&](const DepthTable& ofDepth) {
            return FindKind(ofDepth.Keyword)->choice != *which;
        });
    }
    if (tables.empty()) {
        call.Told().Fail(ToolKinds::noSuchTable, call.Operand(0),
                         "Expected tables of " + *which + ", found others alone.");
    }
}

void Convert(Call& call) {
    const bool toRows = IsToCsv(call, call.Operand(1));
    const auto units = UnitsOf(call.Asked().Value(Options::toUnits, "metric"));
    Input input(call.Operand(0), call.Told());
    DepthFile file;
    ReadDepth(input, call, file);
    if (!file.tables.empty()) {
        ChooseTables(call, file.tables);
        call.Write(call.Operand(1), [&](std::ostream& out) {
            if (toRows) {
                WriteRowsOfTables(out, file.tables);
            } else {
                PVOFileWriter().ExportDepthTables(file.tables, out, units);
            }
        });
        return;
    }
    const auto which = call.Asked().Value(table);
    if (toRows && which) {
        throw WrongUsage("--table chooses what is written of a depth run as keywords; the form "
                         "with commas has all of it.",
                         "depth convert");
    }
    call.Write(call.Operand(1), [&](std::ostream& out) {
        if (toRows) {
            WriteRowsOfRun(out, file.run);
        } else {
            WriteRun(out, file.run, which.value_or("compositions"), units);
        }
    });
}

constexpr Option showOptions[] = {Options::fromUnits, Options::showUnits, Options::all,
                                  Options::json,      Options::csv,       Options::strict};
constexpr Option convertOptions[] = {table, Options::toKeywordsOrCsv, Options::toUnits,
                                     Options::fromUnits, Options::strict};
constexpr Command commands[] = {
    {"depth", "show", "Show the fluids of a depth run, or tables against depth", "IN", showOptions,
     Show},
    {"depth", "convert", "Write depth variation tables as keywords for a simulator, or with commas",
     "IN OUT", convertOptions, Convert},
    depthPlot,
};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    DepthFile file;
    ReadDepth(input, call, file);
}

} // namespace Depth

} // namespace FluidBenchTool
