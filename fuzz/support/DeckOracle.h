// A fluid that is written as a deck comes back, value by value.
#pragma once

#include "FluidBench/Model/CompositionalFluid.h"
#include "Told.h"
#include "io/DeckNames.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

#include <cmath>
#include <optional>

namespace FluidBenchFuzz {

using Orv::FluidBench::Common::pvtEnumPVOUnitSystemType;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

struct Deck {
    CompositionalFluid fluid{"before"};
    bool isRead = false;
    pvtEnumPVOUnitSystemType units{};
    std::optional<double> temperature;
    Told told;
};

inline void ReadDeck(const std::string& path, Deck& deck) {
    using namespace Orv::FluidBench;
    constexpr bool detectUnitSystem = true;
    IO::PVOFileReader reader;
    reader.SetPVOName(path);
    reader.SetPVOErrorMessageSeverityLevel(Common::pvtEnumPVOErrorSeverityLevel::Fatal);
    reader.SetDiagnosticSink(deck.told.Sink());
    deck.isRead = !reader.Read(deck.fluid, detectUnitSystem).HasErrors();
    deck.units = reader.GetPVOUnitSystemToUse();
    deck.temperature = reader.GetReservoirTemperature();
    Require(deck.isRead != deck.told.HasErrors(),
            "A deck that is refused says why, and no other one does");
}

// Ten digits of a deck, and what the conversion of units may move.
inline bool AgreesInDeck(double written, double read) {
    return AreClose(written, read, 6e-10, 1e-300);
}

inline constexpr double (FluidComponent::*componentValues[])() const = {
    &FluidComponent::GetMolecularWeight, &FluidComponent::GetOmegaA, &FluidComponent::GetOmegaB,
    &FluidComponent::GetTcrit,           &FluidComponent::GetPcrit,  &FluidComponent::GetVcrit,
    &FluidComponent::GetVcritViscosity,  &FluidComponent::GetZcrit,  &FluidComponent::GetAcf,
    &FluidComponent::GetParachor};

// A unit makes infinities of the largest numbers.
inline bool IsUsual(const CompositionalFluid& fluid) {
    return std::ranges::all_of(fluid.GetOrderedComponents(), [](const FluidComponent& component) {
        return std::ranges::all_of(componentValues, [&](const auto value) {
            return std::abs((component.*value)()) < 1e100;
        });
    });
}

inline void RequireSame(const CompositionalFluid& written, const CompositionalFluid& read) {
    using namespace Orv::FluidBench;
    constexpr auto bicType = Common::pvtEnumBICType::ReservoirEoS;
    Require(read.GetEoS() == written.GetEoS() &&
                read.GetViscosityCorrelation() == written.GetViscosityCorrelation(),
            "The models come back");
    const std::vector<std::string> names = written.ListComponents();
    Require(read.ListComponents() == names, "The names come back");
    const std::vector<FluidComponent> components = written.GetOrderedComponents();
    const std::vector<FluidComponent> readComponents = read.GetOrderedComponents();
    for (std::size_t i = 0; i < names.size(); ++i) {
        for (const auto value : componentValues) {
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

/// In either units, to a file and to a stream.
inline void RequireDeckComesBack(const CompositionalFluid& fluid) {
    using namespace Orv::FluidBench;
    constexpr double temperature = 350.0; // K
    for (const bool metric : {false, true}) {
        const bool withRunspec = !metric;
        const std::string path = PathOf("written.dat");
        Require(!IO::PVOFileWriter()
                     .ExportToPVO(fluid, path, temperature, metric, withRunspec)
                     .HasErrors(),
                "A fluid can be written");
        std::ostringstream out;
        IO::PVOFileWriter().ExportToPVO(fluid, out, temperature, metric, withRunspec);
        Require(out.str() == ReadFile(path), "A stream and a file are written alike");
        if (!IsUsual(fluid) || !IO::NamesThatADeckChanges(fluid).empty()) {
            continue;
        }
        Deck again;
        ReadDeck(path, again);
        Require(again.isRead && again.temperature && AgreesInDeck(temperature, *again.temperature),
                "What is written of a fluid comes back: " + again.told.Text());
        RequireSame(fluid, again.fluid);
    }
}

} // namespace FluidBenchFuzz
