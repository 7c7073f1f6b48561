// Reads a phase envelope file and tells how far each line of its plots reaches.
//
//     ReadEnvelope examples/data/rich-gas-envelope.csv
#include "io/PhaseEnvelopeReaderWriter.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

using namespace Orv::FluidBench;

namespace {

void Print(const Common::CommonPlottingObject& plot) {
    using Phase = Common::Line::Phase;
    constexpr std::pair<Phase, const char*> phases[] = {{Phase::Bubble, "bubble points"},
                                                        {Phase::Dew, "dew points"},
                                                        {Phase::CriticalPoint, "critical point"},
                                                        {Phase::VapourFraction, "vapour fraction"}};
    for (const auto& [phase, name] : phases) {
        const auto type = Common::Line::Type::PhaseCurve;
        for (int i = 0; i < plot.NumberOfLines(type, phase); ++i) {
            const Common::Line& line = plot.GetLine(type, phase, i);
            double highest = 0.0;
            for (const Common::Point& point : line.GetPoints()) {
                highest = std::max(highest, point.y);
            }
            std::cout << name << ' ' << line.GetPhaseFraction() << ": " << line.GetPoints().size()
                      << " points up to " << highest << " Pa\n";
        }
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: ReadEnvelope FILE\n";
        return 2;
    }
    try {
        IO::PhaseEnvelopeReaderWriter file;
        file.SetDiagnosticSink([](const IO::Diagnostic& found) {
            std::cerr << found.file << ':' << found.line << ": " << found.sentence << '\n';
        });
        file.SetFileName(arguments[1]);
        std::vector<Common::CommonPlottingObject> plots;
        std::vector<std::string> messages;
        const bool isRead = file.Read(plots, messages);
        for (const Common::CommonPlottingObject& plot : plots) {
            Print(plot);
        }
        return isRead ? 0 : 1;
    } catch (const std::exception& error) { // a number in the headings without its separator
        std::cerr << "ReadEnvelope: " << error.what() << '\n';
        return 1;
    }
}
