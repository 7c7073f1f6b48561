// Reads black-oil tables from a CSV file, tells what the reader has to say about it, and writes the
// tables as keywords for a simulator, in metric units:
//
//     ConvertBlackOil examples/data/reservoir-black-oil.csv black-oil.inc
#include "io/BlackOilExportFileWriter.h"

#include <fstream>
#include <iostream>

int main(int argumentCount, char** arguments) {
    using namespace Orv::FluidBench;
    if (argumentCount != 3) {
        std::cerr << "usage: ConvertBlackOil IN.csv OUT\n";
        return 2;
    }
    bool isSound = true;
    IO::BlackOilExportFileWriter files;
    files.SetDiagnosticSink([&](const IO::Diagnostic& diagnostic) {
        std::cerr << diagnostic.file << ':' << diagnostic.line << ": " << diagnostic.sentence
                  << '\n';
        isSound = isSound && diagnostic.severity != IO::Severity::Error;
    });
    const Model::BlackOilTable table = files.GetTableFromCSVFile(arguments[1]);
    if (!isSound) {
        return 1;
    }
    // A stream, unlike a file name, tells whether everything reached the disk.
    std::ofstream out(arguments[2]);
    files.ExportToFile(table, out, Common::Units::METRIC,
                       IO::BlackOilExportFileWriter::LIVE_OIL_WET_GAS,
                       IO::BlackOilExportFileWriter::PVO);
    out.close();
    if (!out) {
        std::cerr << arguments[2] << " can't be written.\n";
        return 1;
    }
    return 0;
}
