// Writes a fluid as a keyword deck, in both unit systems.
//
//     ExportDeck examples/data/six-component-fluid.csv FOLDER
//
// writes the fluid of the data file to FOLDER/six-component-fluid-metric.pvo and
// FOLDER/six-component-fluid-field.pvo.
#include "FluidData.h"

#include "FluidBench/Common/ErrorReport.h"
#include "io/PVOFileWriter.h"

#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

using ExampleData::ReservoirFluid;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::IO::PVOFileWriter;

void Export(const ReservoirFluid& reservoir, const std::string& fileName, bool metric) {
    constexpr bool writeRunspec = true;
    const ErrorReport report = PVOFileWriter().ExportToPVO(
        reservoir.fluid, fileName, reservoir.temperature, metric, writeRunspec);
    if (report.HasErrors()) {
        throw std::runtime_error(report.GetMessages().front().GetText());
    }
    std::cout << fileName << '\n';
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: ExportDeck FLUID.csv FOLDER\n";
        return 2;
    }
    try {
        const ReservoirFluid reservoir = ExampleData::ReadFluid(arguments[1]);
        const std::string stem = std::string(arguments[2]) + "/" + reservoir.fluid.GetName();
        Export(reservoir, stem + "-metric.pvo", true);
        Export(reservoir, stem + "-field.pvo", false);
    } catch (const std::exception& error) {
        std::cerr << "ExportDeck: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
