// fluidbench-io depth: shows fluids by depth and writes their depth variation tables.
#include "Commands.h"
#include "DataRows.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/MSTExperiment.h"
#include "FormatFinder.h"
#include "Json.h"
#include "NumberText.h"
#include "PlotCommands.h"
#include "Progress.h"
#include "ShownUnit.h"
#include "TableFiles.h"
#include "io/PVOFileWriter.h"

#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Experiments::ExperimentResults;
using Orv::FluidBench::Experiments::MSTExperiment;
using Orv::FluidBench::Experiments::oilLikeFluidState;
using Orv::FluidBench::Experiments::Stage;
using Orv::FluidBench::IO::PVOFileWriter;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

namespace {

constexpr Option table{
    "--table", "compositions|saturation|ratios",
    "The table to write: compositions, unless given (ZMFVD); saturation pressures (PBVD, PDVD); "
    "or gas-oil and oil-gas ratios (RSVD, RVVD), which are those of the file"};

// clang-format off
constexpr ShownUnit metre{"m"};
constexpr ShownUnit foot {"ft",       Units::Depth_m_to_ft};
constexpr ShownUnit bar  {"bar",      Units::Pressure_Pa_To_bar};
constexpr ShownUnit psia {"psia",     Units::Pressure_Pa_To_psi};
constexpr ShownUnit ratio{"m3/m3"};
constexpr ShownUnit mscf {"Mscf/stb", Units::GOR_m3m3_To_Mscfstb};
// clang-format on

// Rows, all in m, bar and m3/m3:
//
//     component,NAME,...                   further cells don't count, nor do rows "separator"
//     gas,DEPTH,SATURATION PRESSURE,GOR,FRACTION,...      a fraction for each component
//     oil, contact                         the same
class RunReader {
public:
    RunReader(Input& input, Call& call) : rows_(input, call.Told()) {}

    void Read(DepthRun& run);

private:
    Stage StageOfRow(const std::vector<std::string>& components) const;

    DataRows rows_;
};

Stage RunReader::StageOfRow(const std::vector<std::string>& components) const {
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

void RunReader::Read(DepthRun& run) {
    while (rows_.Next()) {
        const std::string& name = rows_.Name();
        if (name == "component" && !rows_.Texts().empty()) {
            run.components.push_back(rows_.Texts().front());
        } else if (name == "contact") {
            run.results.ContactStage = StageOfRow(run.components);
        } else if (name == "gas" || name == "oil") {
            run.results.Stages.push_back(StageOfRow(run.components));
            run.kinds.push_back(name);
        } else if (name != "separator") {
            rows_.Fail("a row 'component', 'separator', 'gas', 'oil' or 'contact'",
                       "'" + name + "'");
        }
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

void ReadDepthRun(Input& input, Call& call, DepthRun& run) {
    const Progress progress(call.Told(), "Reading " + input.Name());
    if (FindFormat(input.Text()).hasKeywords) {
        call.Told().Fail(ToolKinds::keywordForm, input.Name(),
                         "Expected the form with commas, found keywords, which this command can't "
                         "read.");
    }
    RunReader(input, call).Read(run);
}

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

void Write(std::ostream& out, const DepthRun& run) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", "depth");
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
        for (const std::string& component : run.components) {
            fractions.push_back(stage.Fluid.GetComponentFraction(component));
        }
        json.Add("composition", fractions);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    Input input(call.Operand(0), call.Told());
    DepthRun run;
    ReadDepthRun(input, call, run);
    const bool field = IsField(call, Options::showUnits);
    switch (form) {
    case ShowForm::Text:
        PrintTable(call.Out(), TableOfRun(run, field, [](double v) { return NumberText(v); }),
                   ExtentOf(call));
        break;
    case ShowForm::Csv:
        PrintCsv(call.Out(), TableOfRun(run, field, DataText));
        break;
    case ShowForm::Json:
        Write(call.Out(), run);
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

void Convert(Call& call) {
    const std::string which = call.Asked().Value(table, "compositions");
    const auto units = UnitsOf(call.Asked().Value(Options::toUnits, "metric"));
    Input input(call.Operand(0), call.Told());
    DepthRun run;
    ReadDepthRun(input, call, run);
    const PVOFileWriter writer;
    call.Write(call.Operand(1), [&](std::ostream& out) {
        if (which == "compositions") {
            writer.ExportZMFVD(run.results.Stages.front().Fluid, run.results, out, units);
        } else if (which == "saturation") {
            writer.ExportPSATVD(run.results, out, units);
        } else {
            writer.ExportRSVD(run.results, MSTExperiment(RatioOfFile), {}, out, units);
        }
    });
}

constexpr Option showOptions[] = {Options::showUnits, Options::all, Options::json, Options::csv,
                                  Options::strict};
constexpr Option convertOptions[] = {table, Options::toUnits, Options::strict};
constexpr Command commands[] = {
    {"depth", "show", "Show the fluids of a depth run", "IN", showOptions, Show},
    {"depth", "convert", "Write a depth variation table as keywords for a simulator", "IN OUT",
     convertOptions, Convert},
    depthPlot,
};

} // namespace

std::span<const Command> DepthCommands() {
    return commands;
}

void CheckDepth(Input& input, Call& call) {
    DepthRun run;
    ReadDepthRun(input, call, run);
}

} // namespace FluidBenchTool
