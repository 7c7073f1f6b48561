// Reads a black-oil file with commas and prints the processor time in seconds, of each of so many
// reads: what black_oil.py has for a baseline. Diagnostics are asked for, as Python does.
//
//     ReadBlackOil FILE COUNT
#include "io/BlackOilExportFileWriter.h"

#include <ctime>
#include <iostream>
#include <string>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: ReadBlackOil FILE COUNT\n";
        return 2;
    }
    Orv::FluidBench::IO::BlackOilExportFileWriter reader;
    reader.SetDiagnosticSink([](const Orv::FluidBench::IO::Diagnostic&) {});
    reader.SetReadsSaturationPoint(true);
    for (int count = std::stoi(arguments[2]); count > 0; --count) {
        const std::clock_t begin = std::clock();
        const auto table = reader.GetTableFromCSVFile(arguments[1]);
        const std::clock_t end = std::clock();
        if (table.GetLiveOilData().GetTableSize() == 0) {
            std::cerr << "the file has no oil\n";
            return 1;
        }
        std::cout << static_cast<double>(end - begin) / CLOCKS_PER_SEC << '\n';
    }
}
