// MFL files: a text is refused with messages, and nothing changes, or gives a whole fluid.
#include "DeckOracle.h"
#include "io/MFLFileReader.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace {

using namespace FluidBenchFuzz;
using Orv::FluidBench::Common::ErrorReport;
using Orv::FluidBench::IO::MFLFileReader;

void RequireWhole(const CompositionalFluid& fluid,
                  const std::vector<std::vector<double>>& streams) {
    const std::vector<std::string> names = fluid.ListComponents();
    Require(!names.empty() && std::set(names.begin(), names.end()).size() == names.size(),
            "A fluid has components of different names");
    for (const std::string& name : names) {
        const double fraction = fluid.GetComponentFraction(name);
        Require(std::isfinite(fraction) && fraction >= 0.0, "Fractions are numbers, none negative");
    }
    Require(std::ranges::all_of(streams, [&](const auto& s) { return s.size() == names.size(); }),
            "A stream has an amount for each component");
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    return {ProjectFile("examples/data/six-component-oil.mfl"),
            "MFL 1\nFLUID \"a b\"\nEOS SRK-SSHIFT\nVISCOSITY PEDERSEN\nFRACTIONS mass\n"
            "COMPONENTS\nNAME FRACTION SSHIFT VCRIT\n- - - m3/kg-mole\n\"C1 #\" 0.5 - 1e-1\n"
            "b 0.5 0.1 -\nEND\nCOEFFICIENTS\nb \"C1 #\" 0.1\nEND\nSTREAMS\n1 0\n0.5 0.5\nEND\n"};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    MFLFileReader reader;
    reader.SetMFLFileName(FileWith("input.mfl", input));
    CompositionalFluid fluid("as it was");
    std::vector<std::vector<double>> streams{{1.0}};
    Told told;
    reader.SetDiagnosticSink(told.Sink());
    const ErrorReport report = reader.ReadStreams(fluid, streams);
    Require(report.HasErrors() == !report.GetMessages().empty() &&
                report.HasErrors() == told.HasErrors(),
            "Messages, diagnostics and failure go together");
    if (report.HasErrors()) {
        Require(fluid.GetName() == "as it was" && fluid.NumberOfComponents() == 0 &&
                    streams.size() == 1,
                "A refused file changes nothing");
        return;
    }
    RequireWhole(fluid, streams);
    RequireDeckComesBack(fluid);
}
