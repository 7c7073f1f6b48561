// Reads the exports of a downhole fluid analysis job and prints its stations in SI units.
//
//     ReadDfa examples/data/north-field_DFA.txt
//
// The pressures come from the FT file beside it, north-field_FT.txt.
#include "io/DFAReader.h"

#include <iostream>

using namespace Orv::FluidBench;

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: ReadDfa FILE\n";
        return 2;
    }
    IO::DFAReader reader;
    reader.SetDiagnosticSink([](const IO::Diagnostic& found) {
        std::cerr << found.file << ':' << found.line << ": " << found.sentence << '\n';
    });
    if (!reader.Import(arguments[1])) {
        return 1;
    }
    int index = 0;
    for (const IO::WellData& well : reader.GetExtractedData()) {
        std::cout << well.name << '\n';
        reader.SetIndexOfWell(index++);
        for (const Experiments::Stage& stage : reader.GetDFAExperiment().Stages) {
            std::cout << "  " << stage.Results->Depth.Value << " m, "
                      << stage.Results->Pressure.Value << " Pa, methane "
                      << stage.Fluid.GetComponentFraction("C1") << '\n';
        }
    }
    return 0;
}
