// Keyword decks: any text is refused and leaves a blank fluid, or gives a fluid of sound numbers
// that comes back, value by value, from a deck of its own. Whatever is read says why it isn't.
#include "Fuzz.h"
#include "io/DeckNames.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

#include <cmath>
#include <optional>

namespace {

using namespace FluidBenchFuzz;
using namespace Orv::FluidBench;
using Common::pvtEnumPVOErrorSeverityLevel;
using Model::CompositionalFluid;
using Model::FluidComponent;

constexpr double reservoirTemperature = 350.0; // K

struct Deck {
    CompositionalFluid fluid{"before"};
    bool isRead = false;
    std::optional<double> temperature;
};

Deck Read(const std::string& path) {
    constexpr bool detectUnitSystem = true;
    bool hasError = false;
    IO::PVOFileReader reader;
    reader.SetPVOName(path);
    reader.SetPVOErrorMessageSeverityLevel(pvtEnumPVOErrorSeverityLevel::Fatal);
    reader.SetDiagnosticSink([&](const IO::Diagnostic& told) {
        hasError = hasError || told.severity == IO::Severity::Error;
        Require(!told.file.empty() && told.code.find('.') != std::string::npos &&
                    told.sentence.ends_with('.'),
                "A diagnostic has a file, a code and a sentence");
    });
    Deck deck;
    deck.isRead = !reader.Read(deck.fluid, detectUnitSystem).HasErrors();
    deck.temperature = reader.GetReservoirTemperature();
    Require(deck.isRead != hasError, "A deck that is refused says why, and no other one does");
    return deck;
}

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

// Ten digits of a deck, and what the conversion of units may move.
bool AgreesInDeck(double written, double read) {
    return std::abs(written - read) <= 6e-10 * std::abs(written) + 1e-300;
}

constexpr double (FluidComponent::*values[])() const = {
    &FluidComponent::GetMolecularWeight, &FluidComponent::GetOmegaA, &FluidComponent::GetOmegaB,
    &FluidComponent::GetTcrit,           &FluidComponent::GetPcrit,  &FluidComponent::GetVcrit,
    &FluidComponent::GetVcritViscosity,  &FluidComponent::GetZcrit,  &FluidComponent::GetAcf,
    &FluidComponent::GetParachor};

void RequireSame(const CompositionalFluid& written, const CompositionalFluid& read) {
    constexpr auto bicType = Common::pvtEnumBICType::ReservoirEoS;
    Require(read.GetEoS() == written.GetEoS() &&
                read.GetViscosityCorrelation() == written.GetViscosityCorrelation(),
            "The models come back");
    const std::vector<std::string> names = written.ListComponents();
    Require(read.ListComponents() == names, "The names come back");
    const std::vector<FluidComponent> components = written.GetOrderedComponents();
    const std::vector<FluidComponent> readComponents = read.GetOrderedComponents();
    for (std::size_t i = 0; i < names.size(); ++i) {
        for (const auto value : values) {
            Require(AgreesInDeck((components[i].*value)(), (readComponents[i].*value)()),
                    "Every value comes back");
        }
        Require(AgreesInDeck(written.GetComponentFraction(names[i]),
                             read.GetComponentFraction(names[i])),
                "The fractions come back");
        constexpr auto noValue = Common::pvtEnumPropertySource::NoValue;
        Require(readComponents[i].GetEoSVolumeShiftSource() == noValue ||
                    AgreesInDeck(components[i].GetEoSVolumeShift(),
                                 readComponents[i].GetEoSVolumeShift()),
                "The volume shifts come back where the equation of state has one");
        for (std::size_t j = 0; j < i; ++j) {
            Require(AgreesInDeck(written.GetBIC(names[i], names[j], bicType),
                                 read.GetBIC(names[i], names[j], bicType)),
                    "The coefficients come back");
        }
    }
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    const std::string golden = "tests/data/deck-export/";
    return {WithoutInclude(ProjectFile("examples/data/reservoir-oil-field.dat")),
            WithInclude(ProjectFile("tests/data/deck-import/simulation.dat"),
                        ProjectFile("tests/data/deck-import/include/names.inc")),
            ProjectFile("tests/data/deck-import/cut.dat"),
            ProjectFile(golden + "no-components-field.pvo"),
            ProjectFile(golden + "one-component-metric.pvo"),
            ProjectFile(golden + "six-component-fluid-field.pvo"),
            ProjectFile(golden + "six-component-fluid-metric.pvo"),
            ProjectFile(golden + "two-components-metric.pvo"),
            ProjectFile(golden + "wide-interactions.pvo"),
            "CNAMES\n'C1' C2 /\nINCLUDE\n'included.inc' /\nMW\n2*16 /\nBIC\n0.1 /\n"};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    FileWith("included.inc", input.substr(0, input.size() / 2));
    const Deck deck = Read(FileWith("input.dat", input));
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
    const std::string written = PathOf("written.dat");
    constexpr bool metric = true;
    constexpr bool withRunspec = true;
    IO::PVOFileWriter().ExportToPVO(fluid, written, reservoirTemperature, metric, withRunspec);
    if (!IO::NamesThatADeckChanges(fluid).empty()) {
        return;
    }
    const Deck again = Read(written);
    Require(again.isRead && again.temperature &&
                AgreesInDeck(reservoirTemperature, *again.temperature),
            "What is written of a fluid comes back");
    RequireSame(fluid, again.fluid);
}
