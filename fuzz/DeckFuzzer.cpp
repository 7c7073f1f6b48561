// Keyword decks: any text is refused and leaves a blank fluid, or gives a fluid of sound numbers
// that comes back from a deck of its own.
#include "Fuzz.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

#include <cmath>

namespace {

using namespace FluidBenchFuzz;
using namespace Orv::FluidBench;
using Common::pvtEnumPVOErrorSeverityLevel;
using Model::CompositionalFluid;

bool Read(const std::string& deck, CompositionalFluid& fluid) {
    constexpr bool detectUnitSystem = true;
    IO::PVOFileReader reader;
    reader.SetPVOName(deck);
    reader.SetPVOErrorMessageSeverityLevel(pvtEnumPVOErrorSeverityLevel::Fatal);
    return !reader.Read(fluid, detectUnitSystem).HasErrors();
}

// The sample's own include isn't there.
std::string WithoutInclude(std::string deck) {
    const std::size_t include = deck.find("INCLUDE");
    return deck.replace(include, deck.find('/', include) - include, "ECHO\n");
}

bool IsSound(double value) {
    return std::isfinite(value) && value >= 0.0;
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    return {WithoutInclude(ProjectFile("examples/data/reservoir-oil-field.dat")),
            ProjectFile("tests/data/deck-import/cut.dat"),
            "CNAMES\n'C1' C2 /\nINCLUDE\n'included.inc' /\nMW\n2*16 /\nBIC\n0.1 /\n"};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    FileWith("included.inc", input.substr(0, input.size() / 2));
    CompositionalFluid fluid("before");
    if (!Read(FileWith("input.dat", input), fluid)) {
        Require(fluid.GetName().empty() && fluid.NumberOfComponents() == 0,
                "A deck that is refused leaves a blank fluid");
        return;
    }
    const std::vector<std::string> names = fluid.ListComponents();
    for (std::size_t i = 0; i < names.size(); ++i) {
        const Model::FluidComponent component = fluid.GetOrderedComponents()[i];
        Require(!names[i].empty() && IsSound(fluid.GetComponentFraction(names[i])) &&
                    IsSound(component.GetTcrit()) && IsSound(component.GetPcrit()) &&
                    IsSound(component.GetVcrit()),
                "A component has a name and sound numbers");
    }
    const std::string written = PathOf("written.dat");
    constexpr bool metric = true;
    constexpr bool withRunspec = true;
    IO::PVOFileWriter().ExportToPVO(fluid, written, 350.0, metric, withRunspec);
    // A name that has blanks loses them, and may be another one's then; a quote may end it early.
    for (const std::string& name : names) {
        if (name.find_first_of(" '") != std::string::npos) {
            return;
        }
    }
    CompositionalFluid again("");
    Require(Read(written, again) && again.ListComponents() == names,
            "What is written of a fluid comes back");
}
