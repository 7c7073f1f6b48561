// fluidbench-io mfl: looks into MFL fluid files.
#include "Commands.h"
#include "FluidTable.h"
#include "Reports.h"
#include "Table.h"
#include "io/MFLFileReader.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::IO::MFLFileReader;
using Orv::FluidBench::Model::CompositionalFluid;

namespace {

void PrintStreams(const CompositionalFluid& fluid,
                  const std::vector<std::vector<double>>& streams) {
    std::vector<std::string> headings{"stream"};
    for (const std::string& name : fluid.ListComponents()) {
        headings.push_back(name);
    }
    Table table(std::move(headings));
    for (std::size_t i = 0; i < streams.size(); ++i) {
        std::vector<std::string> row{std::to_string(i + 1)};
        for (const double amount : streams[i]) {
            row.push_back(NumberText(amount));
        }
        table.AddRow(std::move(row));
    }
    table.Print(std::cout);
}

void Show(const std::string& fileName) {
    MFLFileReader reader;
    reader.SetMFLFileName(fileName);
    CompositionalFluid fluid("");
    std::vector<std::vector<double>> streams;
    TellReport(reader.ReadStreams(fluid, streams));
    PrintFluid(std::cout, fluid, FluidUnits::Metric);
    if (!streams.empty()) {
        std::cout << '\n';
        PrintStreams(fluid, streams);
    }
}

} // namespace

void AddMflCommands(CLI::App& program) {
    CLI::App* const mfl = program.add_subcommand("mfl", "MFL fluid files");
    mfl->require_subcommand(1);
    CLI::App* const show = mfl->add_subcommand(
        "show", "Show the fluid of an MFL file: its components, coefficients and streams");
    const auto fileName = std::make_shared<std::string>();
    show->add_option("FILE", *fileName, "The MFL file")->required();
    show->callback([fileName] { Show(*fileName); });
}

} // namespace FluidBenchTool
