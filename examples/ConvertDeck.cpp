// Reads a fluid from a keyword deck, which somebody typed for one, and writes it as a deck in
// metric units:
//
//     ConvertDeck examples/data/reservoir-oil-field.dat oil-metric.dat
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

#include <iostream>

int main(int argumentCount, char** arguments) {
    using namespace Orv::FluidBench;
    if (argumentCount != 3) {
        std::cerr << "usage: ConvertDeck IN OUT\n";
        return 2;
    }
    IO::PVOFileReader reader;
    reader.SetPVOName(arguments[1]);
    Model::CompositionalFluid fluid("");
    constexpr bool detectUnits = true;
    const auto reading = reader.Read(fluid, detectUnits);
    for (const auto& message : reading.GetMessages()) {
        std::cerr << message.GetText() << '\n';
    }
    if (reading.HasErrors()) {
        return 1;
    }
    constexpr double reservoirTemperature = 344.26; // K
    constexpr bool metric = true;
    constexpr bool withRunspec = false;
    const auto report = IO::PVOFileWriter().ExportToPVO(fluid, arguments[2], reservoirTemperature,
                                                        metric, withRunspec);
    for (const auto& message : report.GetMessages()) {
        std::cerr << message.GetText() << '\n';
    }
    return report.HasErrors() ? 1 : 0;
}
