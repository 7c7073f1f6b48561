// fluidbench-io dfa: looks into the exports of a downhole fluid analysis job.
#include "Commands.h"
#include "Table.h"
#include "io/DFAReader.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Experiments::ObservedExperiment;
using Orv::FluidBench::Experiments::Stage;
using Orv::FluidBench::IO::DFAReader;
using Orv::FluidBench::IO::WellData;

namespace {

void PrintInFileUnits(const WellData& well) {
    Table table({"depth ft", "pressure psi", "temperature F", "density g/cc", "GOR scf/stb", "C1 %",
                 "C2 %", "C3-C5 %", "C6+ %", "CO2 %", "value"});
    for (std::size_t i = 0; i < well.depths.size(); ++i) {
        std::vector<std::string> row;
        for (const double value : {well.depths[i], well.pressures[i], well.temperatures[i],
                                   well.densities[i], well.gasOilRatios[i]}) {
            row.push_back(NumberText(value));
        }
        for (const double fraction : well.compositions[i]) {
            row.push_back(NumberText(fraction * 100.0));
        }
        row.push_back(NumberText(well.stationValues[i]));
        table.AddRow(std::move(row));
    }
    table.Print(std::cout, 2);
}

constexpr int digitsOfPascals = 9; // a reservoir's pressure without an exponent

void PrintInModelUnits(const ObservedExperiment& experiment) {
    Table table({"depth m", "pressure Pa", "temperature K", "density kg/m3", "GOR m3/m3", "C1",
                 "C2", "C3toC5", "C6+", "CO2", "value"});
    for (const Stage& stage : experiment.Stages) {
        const auto& results = *stage.Results;
        std::vector<std::string> row;
        row.push_back(NumberText(results.Depth.GetValue()));
        row.push_back(NumberText(results.Pressure.GetValue(), digitsOfPascals));
        for (const auto& result : {results.Temperature, results.Density, results.GasOilRatio}) {
            row.push_back(NumberText(result.GetValue()));
        }
        for (const std::string& component : stage.Fluid.ListComponents()) {
            row.push_back(NumberText(stage.Fluid.GetComponentFraction(component)));
        }
        row.push_back(NumberText(results.StationValue.GetValue()));
        table.AddRow(std::move(row));
    }
    table.Print(std::cout, 2);
}

void Show(const std::string& fileName) {
    DFAReader reader;
    if (!reader.Import(fileName)) {
        throw CommandFailed(
            "'" + fileName +
            "' can't be imported. It and the FT file beside it, whose name has FT.txt in place of "
            "the last seven characters, must both be there, and each needs a line BEGIN HEADER "
            "followed by a line END HEADER.");
    }
    const std::vector<WellData>& wells = reader.GetExtractedData();
    if (wells.empty()) {
        std::cout << "No stations.\n";
    }
    for (std::size_t i = 0; i < wells.size(); ++i) {
        const std::size_t n = wells[i].depths.size();
        std::cout << (i > 0 ? "\n" : "") << "Well " << wells[i].name << ": " << std::to_string(n)
                  << (n == 1 ? " station\n\n" : " stations\n\n");
        PrintInFileUnits(wells[i]);
        reader.SetIndexOfWell(static_cast<int>(i));
        std::cout << "\n  As an experiment in model units:\n";
        PrintInModelUnits(reader.GetDFAExperiment());
    }
}

} // namespace

void AddDfaCommands(CLI::App& program) {
    CLI::App* const dfa = program.add_subcommand("dfa", "Exports of downhole fluid analysis jobs");
    dfa->require_subcommand(1);
    CLI::App* const show = dfa->add_subcommand(
        "show", "Show the wells and their stations by depth, in file units and in model units");
    const auto fileName = std::make_shared<std::string>();
    show->add_option("MAIN", *fileName,
                     "The main file. The FT file with the pressures stands beside it: its name has "
                     "FT.txt in place of the last seven characters")
        ->required();
    show->callback([fileName] { Show(*fileName); });
}

} // namespace FluidBenchTool
