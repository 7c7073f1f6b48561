// What the deck writer writes, the deck reader reads back: a property over generated fluids.
#include "FluidBench/Utilities/Strings.h"
#include "TestSupport.h"
#include "io/DeckNames.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

#include <cmath>
#include <random>

using namespace Orv::FluidBench;
using Common::pvtEnumBICType;
using Common::pvtEnumEoS;
using Common::pvtEnumPropertySource;
using Common::pvtEnumViscosityMethod;
using Model::CompositionalFluid;
using Model::FluidComponent;

namespace {

constexpr auto bicType = pvtEnumBICType::ReservoirEoS;
constexpr double reservoirTemperature = 360.0;

struct Property {
    const char* name;
    void (FluidComponent::*set)(double);
    double (FluidComponent::*get)() const;
    pvtEnumPropertySource (FluidComponent::*source)() const;
    double least, most;
};
constexpr Property properties[] = {
    {"MW", &FluidComponent::SetMolecularWeight, &FluidComponent::GetMolecularWeight,
     &FluidComponent::GetMolecularWeightSource, 2.0, 600.0},
    {"omega A", &FluidComponent::SetOmegaA, &FluidComponent::GetOmegaA,
     &FluidComponent::GetOmegaASource, 0.2, 0.9},
    {"omega B", &FluidComponent::SetOmegaB, &FluidComponent::GetOmegaB,
     &FluidComponent::GetOmegaBSource, 0.01, 0.19},
    {"Tc", &FluidComponent::SetTcrit, &FluidComponent::GetTcrit, &FluidComponent::GetTcritSource,
     30.0, 1200.0},
    {"Pc", &FluidComponent::SetPcrit, &FluidComponent::GetPcrit, &FluidComponent::GetPcritSource,
     5e5, 3e7},
    {"Vc", &FluidComponent::SetVcrit, &FluidComponent::GetVcrit, &FluidComponent::GetVcritSource,
     5e-5, 3e-3},
    {"Vc for viscosity", &FluidComponent::SetVcritViscosity, &FluidComponent::GetVcritViscosity,
     &FluidComponent::GetVcritViscositySource, 5e-5, 3e-3},
    {"Zc", &FluidComponent::SetZcrit, &FluidComponent::GetZcrit, &FluidComponent::GetZcritSource,
     0.2, 0.4},
    {"acentric factor", &FluidComponent::SetAcf, &FluidComponent::GetAcf,
     &FluidComponent::GetAcfSource, -0.3, 2.0},
    {"parachor", &FluidComponent::SetParachor, &FluidComponent::GetParachor,
     &FluidComponent::GetParachorSource, 30.0, 2000.0},
};

// Fluids of 1 to 60 components, the same ones for the same seed.
class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}

    CompositionalFluid Fluid(pvtEnumEoS eos, bool withMissingValues) {
        missing_ = withMissingValues ? 0.3 : 0.0;
        CompositionalFluid fluid("generated");
        fluid.SetEoS(eos);
        fluid.SetViscosityCorrelation(Chance(0.5) ? pvtEnumViscosityMethod::LohrenzBrayClark
                                                  : pvtEnumViscosityMethod::Pedersen);
        const int n = std::uniform_int_distribution(1, 60)(random_);
        for (int i = 0; i < n; ++i) {
            fluid.SetComponent(Component(i), Number(0.0, 1.0));
        }
        const std::vector<std::string> names = fluid.ListComponents();
        for (std::size_t i = 0; i < names.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                if (!IsMissing()) {
                    fluid.SetBIC(names[i], names[j], Chance(0.3) ? 0.0 : Number(-0.1, 0.3));
                }
            }
        }
        return fluid;
    }

    bool Chance(double probability) { return Number(0.0, 1.0) < probability; }

private:
    double Number(double least, double most) {
        return std::uniform_real_distribution(least, most)(random_);
    }
    bool IsMissing() { return Chance(missing_); }

    FluidComponent Component(int number) {
        constexpr const char* stems[] = {"C",  "n C",   "it's ",  "a/b ", "MW",
                                         "--", "\"q\"", "TCRIT*", "3*",   "\xC3\xA4ther "};
        FluidComponent component(
            stems[std::uniform_int_distribution<std::size_t>(0, std::size(stems) - 1)(random_)] +
            std::to_string(number));
        for (const Property& property : properties) {
            if (!IsMissing()) {
                (component.*property.set)(Number(property.least, property.most));
            }
        }
        if (!IsMissing()) {
            component.SetEoSVolumeShift(Number(-0.5, 0.5));
        }
        return component;
    }

    std::mt19937 random_;
    double missing_ = 0.0;
};

// To the ten digits of a deck, which the conversion of units may move by a few units in the last
// place of a double.
bool AgreesInDeck(double written, double read) {
    return std::abs(written - read) <= 5.1e-10 * std::abs(written);
}

void ExpectSameFluid(const CompositionalFluid& written, const CompositionalFluid& read) {
    EXPECT_EQ(read.GetEoS(), written.GetEoS());
    EXPECT_EQ(read.GetViscosityCorrelation(), written.GetViscosityCorrelation());
    const bool hasShift = written.GetEoS() == pvtEnumEoS::PengRobinsonVolumeShift ||
                          written.GetEoS() == pvtEnumEoS::PengRobinson78VolumeShift ||
                          written.GetEoS() == pvtEnumEoS::SoaveRedlichKwongVolumeShift;
    const std::vector<std::string> names = written.ListComponents();
    const std::vector<std::string> readNames = read.ListComponents();
    const std::vector<FluidComponent> components = written.GetOrderedComponents();
    const std::vector<FluidComponent> readComponents = read.GetOrderedComponents();
    ASSERT_EQ(readNames.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        std::string name = names[i];
        Utilities::Strings::RemoveAllSpaces(name);
        ASSERT_EQ(readNames[i], name);
        EXPECT_TRUE(
            AgreesInDeck(written.GetComponentFraction(names[i]), read.GetComponentFraction(name)));
        // A value that is missing is written as a zero.
        for (const Property& property : properties) {
            EXPECT_NE((readComponents[i].*property.source)(), pvtEnumPropertySource::NoValue);
            EXPECT_TRUE(
                AgreesInDeck((components[i].*property.get)(), (readComponents[i].*property.get)()))
                << property.name << " of " << name;
        }
        EXPECT_EQ(readComponents[i].GetEoSVolumeShiftSource() != pvtEnumPropertySource::NoValue,
                  hasShift);
        EXPECT_TRUE(!hasShift || AgreesInDeck(components[i].GetEoSVolumeShift(),
                                              readComponents[i].GetEoSVolumeShift()));
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_TRUE(AgreesInDeck(written.GetBIC(names[i], names[j], bicType),
                                     read.GetBIC(readNames[i], readNames[j], bicType)));
        }
    }
}

} // namespace

TEST(DeckRoundTripTest, EveryFluidThatCanComeBackDoes) {
    const FluidBenchTest::TemporaryFolder folder;
    const std::string file = folder / "deck.dat";
    unsigned seed = 1;
    for (const pvtEnumEoS eos :
         {pvtEnumEoS::PengRobinson, pvtEnumEoS::PengRobinson78, pvtEnumEoS::PengRobinsonVolumeShift,
          pvtEnumEoS::PengRobinson78VolumeShift, pvtEnumEoS::RedlichKwong,
          pvtEnumEoS::SoaveRedlichKwong, pvtEnumEoS::SoaveRedlichKwongVolumeShift}) {
        for (const bool metric : {true, false}) {
            for (const bool withMissingValues : {true, false, true, false}) {
                SCOPED_TRACE("seed " + std::to_string(seed));
                Generator generator(seed++);
                const CompositionalFluid written = generator.Fluid(eos, withMissingValues);
                const bool withRunspec = generator.Chance(0.5);
                ASSERT_FALSE(
                    IO::PVOFileWriter()
                        .ExportToPVO(written, file, reservoirTemperature, metric, withRunspec)
                        .HasErrors());
                IO::PVOFileReader reader;
                reader.SetPVOName(file);
                CompositionalFluid read("");
                constexpr bool detectUnitSystem = true;
                const auto report = reader.Read(read, detectUnitSystem);
                ASSERT_EQ(FluidBenchTest::MessageIds(report), std::vector<std::int32_t>());
                ExpectSameFluid(written, read);
            }
        }
    }
}

TEST(DeckRoundTripTest, TellsWhichNamesDoNotComeBack) {
    const std::pair<std::string, const char*> names[] = {
        {"C1", nullptr},
        {"it's", nullptr},
        {"a/b", nullptr},
        {"2--", nullptr},
        {"'q'", nullptr},
        {"a'--b", "becomes 'a'."},
        {"C1' /", "becomes no name that can be read."},
        {"C7", nullptr},
        {"C 7", "becomes the same as that of 'C7'."},
        {" C8", "becomes 'C8'."},
        {"C\n9", "becomes no name that can be read."},
        {std::string(20'000, 'C'), "becomes no name that can be read."},
    };
    CompositionalFluid fluid("");
    std::vector<std::string> expected;
    for (const auto& [name, change] : names) {
        fluid.SetComponent(FluidComponent(name), 0.1);
        if (change != nullptr) {
            expected.emplace_back(change);
        }
    }
    const auto told = IO::NamesThatADeckChanges(fluid);
    ASSERT_EQ(told.size(), expected.size());
    for (std::size_t i = 0; i < told.size(); ++i) {
        EXPECT_TRUE(told[i].sentence.ends_with(expected[i])) << told[i].sentence;
        EXPECT_EQ(told[i].code, "deck.name-changed");
    }
}
