// Writes the three depth variation tables of a column of gas over oil.
//
//     ExportDepthTables examples/data/depth-run.csv FOLDER
//
// reads the depth run from the file and writes FOLDER/compositions.txt (ZMFVD),
// FOLDER/saturation-pressures.txt (PDVD and PBVD) and FOLDER/ratios.txt (RVVD and RSVD), in metric
// units. The separator behind the ratios is a function of this program: a flash with the K-values
// of Wilson's correlation (1968).
#include "ExampleData.h"

#include "FluidBench/Common/Units.h"
#include "FluidBench/Experiments/ExperimentResults.h"
#include "FluidBench/Experiments/MSTExperiment.h"
#include "FluidBench/Experiments/Stage.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "io/PVOFileWriter.h"

#include <cmath>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ExampleData::Number;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Experiments::ExperimentResults;
using Orv::FluidBench::Experiments::MSTExperiment;
using Orv::FluidBench::Experiments::oilLikeFluidState;
using Orv::FluidBench::Experiments::Stage;
using Orv::FluidBench::IO::PVOFileWriter;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

using Row = std::vector<std::string>;

struct DepthRun {
    std::vector<FluidComponent> components;
    std::vector<Stage> separator;
    ExperimentResults results;
};

FluidComponent MakeComponent(const Row& row) {
    FluidComponent component(row.at(1));
    component.SetMolecularWeight(Number(row.at(2)));
    component.SetTcrit(Number(row.at(3)));
    component.SetPcrit(Units::Pressure_bar_To_Pa(Number(row.at(4))));
    component.SetAcf(Number(row.at(5)));
    return component;
}

Stage MakeSeparatorStage(const Row& row) {
    Stage stage;
    stage.Results->Pressure.Set(Units::Pressure_bar_To_Pa(Number(row.at(1))));
    stage.Results->Temperature.Set(Number(row.at(2)));
    return stage;
}

Stage MakeDepthStage(const Row& row, const std::vector<FluidComponent>& components) {
    const bool isGas = row.at(0) == "gas";
    Stage stage;
    stage.Results->Depth.Set(Number(row.at(1)));
    stage.Results->SaturationPressure.Set(Units::Pressure_bar_To_Pa(Number(row.at(2))));
    stage.Results->GasOilRatio.Set(Number(row.at(3)));
    stage.VapourPhase.SetPresent(isGas);
    stage.LiquidPhase.SetPresent(!isGas);
    stage.FluidState = isGas ? 0 : oilLikeFluidState;
    for (std::size_t i = 0; i < components.size(); ++i) {
        stage.Fluid.SetComponent(components[i], Number(row.at(4 + i)));
    }
    return stage;
}

DepthRun ReadDepthRun(const std::string& fileName) {
    DepthRun run;
    for (const Row& row : ExampleData::ReadRows(fileName)) {
        if (row[0] == "component") {
            run.components.push_back(MakeComponent(row));
        } else if (row[0] == "separator") {
            run.separator.push_back(MakeSeparatorStage(row));
        } else if (row[0] == "contact") {
            run.results.ContactStage = MakeDepthStage(row, run.components);
        } else {
            run.results.Stages.push_back(MakeDepthStage(row, run.components));
        }
    }
    return run;
}

// Moles of vapour and liquid of each component.
struct Split {
    std::vector<double> vapour;
    std::vector<double> liquid;
};

// Solves the Rachford-Rice equation for the vapour fraction by bisection.
Split Flash(const std::vector<FluidComponent>& components, const std::vector<double>& moles,
            double pressure, double temperature) {
    const std::size_t n = components.size();
    std::vector<double> k(n);
    for (std::size_t i = 0; i < n; ++i) {
        const FluidComponent& c = components[i];
        k[i] = c.GetPcrit() / pressure *
               std::exp(5.373 * (1.0 + c.GetAcf()) * (1.0 - c.GetTcrit() / temperature));
    }
    double low = 0.0;
    double high = 1.0;
    while (high - low > 1e-12) {
        const double vapourFraction = (low + high) / 2.0;
        double imbalance = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            imbalance += moles[i] * (k[i] - 1.0) / (1.0 + vapourFraction * (k[i] - 1.0));
        }
        (imbalance > 0.0 ? low : high) = vapourFraction;
    }
    Split split{moles, moles};
    for (std::size_t i = 0; i < n; ++i) {
        split.vapour[i] = moles[i] * low * k[i] / (1.0 + low * (k[i] - 1.0));
        split.liquid[i] = moles[i] - split.vapour[i];
    }
    return split;
}

double Sum(const std::vector<double>& values) {
    double sum = 0.0;
    for (const double value : values) {
        sum += value;
    }
    return sum;
}

// Leads a fluid through the separator. Each stage of the result has the gas that left there, per
// volume of the oil that is left in the end.
ExperimentResults Separate(const CompositionalFluid& fluid, const std::vector<Stage>& separator) {
    constexpr double gasVolumePerKilogramMole = 23.645; // m3, ideal gas at 15.556 C and 1 atm
    constexpr double oilDensity = 800.0;                // kg/m3, taken as the same for all oils

    const std::vector<FluidComponent> components = fluid.GetOrderedComponents();
    std::vector<double> moles;
    for (const FluidComponent& component : components) {
        moles.push_back(fluid.GetComponentFraction(component.GetName()));
    }
    std::vector<double> gasMoles;
    for (const Stage& stage : separator) {
        const Split split = Flash(components, moles, stage.Results->Pressure.GetValue(),
                                  stage.Results->Temperature.GetValue());
        gasMoles.push_back(Sum(split.vapour));
        moles = split.liquid;
    }
    double oilMass = 0.0;
    for (std::size_t i = 0; i < components.size(); ++i) {
        oilMass += moles[i] * components[i].GetMolecularWeight();
    }
    ExperimentResults run;
    run.Failed = !(oilMass > 0.0);
    for (const double gas : gasMoles) {
        Stage stage;
        stage.Results->GasOilRatio.Set(gas * gasVolumePerKilogramMole * oilDensity / oilMass);
        run.Stages.push_back(stage);
    }
    return run;
}

void Export(const std::string& dataFile, const std::string& folder) {
    const DepthRun run = ReadDepthRun(dataFile);
    if (run.results.Stages.empty()) {
        throw std::runtime_error("'" + dataFile + "' has no depths");
    }
    const PVOFileWriter writer;
    const CompositionalFluid& names = run.results.Stages.front().Fluid;
    const auto reports = {
        writer.ExportZMFVD(names, run.results, folder + "/compositions.txt", Units::METRIC),
        writer.ExportPSATVD(run.results, folder + "/saturation-pressures.txt", Units::METRIC),
        writer.ExportRSVD(run.results, MSTExperiment(Separate), run.separator,
                          folder + "/ratios.txt", Units::METRIC)};
    for (const auto& report : reports) {
        if (report.HasErrors()) {
            throw std::runtime_error(report.GetMessages().front().GetText());
        }
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: ExportDepthTables DATA.csv FOLDER\n";
        return 2;
    }
    try {
        Export(arguments[1], arguments[2]);
    } catch (const std::exception& error) {
        std::cerr << "ExportDepthTables: " << error.what() << '\n';
        return 1;
    }
    std::cout << "The tables are in " << arguments[2] << ".\n";
    return 0;
}
