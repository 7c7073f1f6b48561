// Writes the three depth variation tables of a gas cap over an oil, in metric units:
//
//     ExportDepthTables compositions.txt saturation-pressures.txt ratios.txt
#include "FluidBench/Common/Units.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/MSTExperiment.h"
#include "io/PVOFileWriter.h"

#include <iostream>
#include <vector>

using namespace Orv::FluidBench;
using Experiments::ExperimentResults;
using Experiments::Stage;

namespace {

Stage StageAt(double depth, double saturationPressure, double shareOfC1) {
    Stage stage;
    stage.Results->Depth.Set(depth); // m
    stage.Results->SaturationPressure.Set(Common::Units::Pressure_bar_To_Pa(saturationPressure));
    stage.Results->GasOilRatio.Set(0.0); // that there is one makes a row of the ratios
    stage.Fluid.SetComponent(Model::FluidComponent("C1"), shareOfC1);
    stage.Fluid.SetComponent(Model::FluidComponent("C10"), 1.0 - shareOfC1);
    return stage;
}

// A separator in one stage that parts methane and decane: 23.645 m3 of gas a kg-mole, and 0.195 m3
// of oil.
ExperimentResults Separate(const Model::CompositionalFluid& fluid, const std::vector<Stage>&) {
    Stage stage;
    stage.Results->GasOilRatio.Set(23.645 * fluid.GetComponentFraction("C1") /
                                   (0.195 * fluid.GetComponentFraction("C10")));
    ExperimentResults run;
    run.Stages.push_back(stage);
    return run;
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4) {
        std::cerr << "usage: ExportDepthTables COMPOSITIONS SATURATION-PRESSURES RATIOS\n";
        return 2;
    }
    ExperimentResults results;
    results.Stages = {StageAt(2440, 155.1, 0.99), StageAt(2470, 160.2, 0.98),
                      StageAt(2530, 158.8, 0.50), StageAt(2560, 154.0, 0.48)};
    results.ContactStage = StageAt(2500, 165.0, 0.52);

    const IO::PVOFileWriter writer;
    const auto units = Common::Units::METRIC;
    const auto reports = {
        writer.ExportZMFVD(results.Stages.front().Fluid, results, arguments[1], units),
        writer.ExportPSATVD(results, arguments[2], units),
        writer.ExportRSVD(results, Experiments::MSTExperiment(Separate), {}, arguments[3], units)};
    int status = 0;
    for (const auto& report : reports) {
        for (const auto& message : report.GetMessages()) {
            std::cerr << message.GetText() << '\n';
        }
        status = report.HasErrors() ? 1 : status;
    }
    return status;
}
