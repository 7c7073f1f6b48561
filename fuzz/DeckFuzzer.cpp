// Keyword decks: any text is refused and leaves a blank fluid, or gives a fluid of sound numbers
// that comes back, value by value, from a deck of its own. Whatever is read says why it isn't.
#include "DeckOracle.h"
#include "Keywords.h"

#include <sstream>

namespace {

using namespace FluidBenchFuzz;

// The sample's own include isn't there.
std::string WithoutInclude(std::string deck) {
    const std::size_t include = deck.find("INCLUDE");
    return deck.replace(include, deck.find(" /", include) - include, "ECHO\n");
}
std::string WithInclude(std::string deck, const std::string& included) {
    const std::size_t include = deck.find("INCLUDE");
    return deck.replace(include, deck.find('\n', deck.find(" /", include)) - include, included);
}

bool IsSound(double value) {
    return std::isfinite(value) && value >= 0.0;
}

// What a plain reader finds in a deck that has each keyword once, and everything else too.
void RequirePlain(std::string_view input, const Deck& deck) {
    const std::vector<std::string> keywords = {"MW",     "TCRIT",  "PCRIT", "ACF",
                                               "OMEGAA", "OMEGAB", "ZCRIT", "ZI"};
    const auto plain = ReadPlainly(input, keywords, true);
    const std::vector<std::string> names = deck.fluid.ListComponents();
    const std::vector<FluidComponent> components = deck.fluid.GetOrderedComponents();
    if (!plain ||
        deck.told.HasAny({"deck.did-you-mean", "deck.small-letters", "deck.text-behind",
                          "deck.in-open-record", "deck.other-section", "deck.section-ignored",
                          "deck.record-not-closed", "deck.skip-not-closed", "deck.second-time",
                          "deck.further-records", "deck.value-dropped"}) ||
        plain->times.contains("END") || plain->times.contains("INCLUDE") ||
        plain->times.contains("SKIP") || plain->times.contains("TITLE")) {
        return;
    }
    const bool isField = deck.units == pvtEnumPVOUnitSystemType::Field;
    const FileUnits units(isField);
    const auto inFile = [&](const std::string& keyword, std::size_t i) {
        const FluidComponent& each = components[i];
        return keyword == "MW"       ? each.GetMolecularWeight()
               : keyword == "TCRIT"  ? each.GetTcrit() / units.degree
               : keyword == "PCRIT"  ? each.GetPcrit() / units.pressure
               : keyword == "ACF"    ? each.GetAcf()
               : keyword == "OMEGAA" ? each.GetOmegaA()
               : keyword == "OMEGAB" ? each.GetOmegaB()
               : keyword == "ZCRIT"  ? each.GetZcrit()
                                     : deck.fluid.GetComponentFraction(names[i]);
    };
    for (const auto& [keyword, numbers] : plain->columns) {
        for (std::size_t i = 0; numbers.size() == names.size() && i < names.size(); ++i) {
            Require(AreClose(numbers[i], inFile(keyword, i), 1e-9, 1e-9),
                    "A plain reader reads the same " + keyword);
        }
    }
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    std::vector<std::string> samples = ProjectFiles("tests/data/deck-export", ".pvo");
    for (const char* const file : {"tests/data/deck-import/cut.dat", "tests/data/tool/deck.dat",
                                   "tests/data/tool/deck2.dat"}) {
        samples.push_back(ProjectFile(file));
    }
    samples.push_back(WithoutInclude(ProjectFile("examples/data/reservoir-oil-field.dat")));
    samples.push_back(WithInclude(ProjectFile("tests/data/deck-import/simulation.dat"),
                                  ProjectFile("tests/data/deck-import/include/names.inc")));
    samples.emplace_back("CNAMES\n'C1' C2 /\nINCLUDE\n'included.inc' /\nMW\n2*16 /\nBIC\n0.1 /\n");
    return samples;
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    FileWith("included.inc", input.substr(0, input.size() / 2));
    Deck deck;
    ReadDeck(FileWith("input.dat", input), deck);
    const CompositionalFluid& fluid = deck.fluid;
    if (!deck.isRead) {
        Require(fluid.GetName().empty() && fluid.NumberOfComponents() == 0 && !deck.temperature,
                "A deck that is refused leaves a blank fluid");
        return;
    }
    const std::vector<std::string> names = fluid.ListComponents();
    const std::vector<FluidComponent> components = fluid.GetOrderedComponents();
    for (std::size_t i = 0; i < names.size(); ++i) {
        Require(!names[i].empty() && IsSound(fluid.GetComponentFraction(names[i])) &&
                    IsSound(components[i].GetTcrit()) && IsSound(components[i].GetPcrit()) &&
                    IsSound(components[i].GetVcrit()),
                "A component has a name and sound numbers");
    }
    RequirePlain(input, deck);
    RequireDeckComesBack(fluid);
}
