#include "ComponentSections.h"

#include "DeckText.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Utilities/ModelParameters.h"
#include "FluidBench/Utilities/Strings.h"
#include "NumberText.h"

#include <string>

namespace Orv::FluidBench::IO {

using Common::pvtEnumBICType;
using Common::pvtEnumEoS;
using Common::pvtEnumPropertySource;
using Common::pvtEnumViscosityMethod;
using Common::Units;
using Model::CompositionalFluid;
using Model::FluidComponent;
using Text::AppendNumber;
using Text::TextBuffer;
using Utilities::ModelParameters;
using Utilities::Strings;

namespace {

using Conversion = double (*)(double);

double AsItIs(double value) {
    return value;
}

// How a quantity stands in each unit system: the comment line that names the unit, if it has one,
// and the conversion from the model's unit.
struct Quantity {
    const char* metricUnit;
    Conversion toMetric;
    const char* fieldUnit;
    Conversion toField;
};

constexpr const char* noUnit = nullptr;

// clang-format off
constexpr Quantity dimensionless{
    noUnit,                 AsItIs,
    noUnit,                 AsItIs};
constexpr Quantity temperature{
    "--Units: K",           AsItIs,
    "--Units: R",           Units::Temperature_K_To_R};
constexpr Quantity pressure{
    "--Units: bar",         Units::Pressure_Pa_To_bar,
    "--Units: psia",        Units::Pressure_Pa_To_psi};
constexpr Quantity molarVolume{
    "--Units: m3/kg-mole",  Units::MolarVolume_m3gmmol_To_m3kgmol,
    "--Units: ft3/lb-mole", Units::MolarVolume_m3gmmol_To_ft3lbmol};
// clang-format on

// A section of one property: its keyword, what it measures, where the value comes from.
struct PropertySection {
    const char* keyword;
    Quantity quantity;
    pvtEnumPropertySource (FluidComponent::*source)() const;
    double (FluidComponent::*value)() const;
};

using FC = FluidComponent;
// clang-format off
constexpr PropertySection molecularWeight{
    "MW",       dimensionless, &FC::GetMolecularWeightSource, &FC::GetMolecularWeight};
constexpr PropertySection omegaA{
    "OMEGAA",   dimensionless, &FC::GetOmegaASource,          &FC::GetOmegaA};
constexpr PropertySection omegaB{
    "OMEGAB",   dimensionless, &FC::GetOmegaBSource,          &FC::GetOmegaB};
constexpr PropertySection criticalTemperature{
    "TCRIT",    temperature,   &FC::GetTcritSource,           &FC::GetTcrit};
constexpr PropertySection criticalPressure{
    "PCRIT",    pressure,      &FC::GetPcritSource,           &FC::GetPcrit};
constexpr PropertySection criticalVolume{
    "VCRIT",    molarVolume,   &FC::GetVcritSource,           &FC::GetVcrit};
constexpr PropertySection criticalZFactor{
    "ZCRIT",    dimensionless, &FC::GetZcritSource,           &FC::GetZcrit};
constexpr PropertySection acentricFactor{
    "ACF",      dimensionless, &FC::GetAcfSource,             &FC::GetAcf};
constexpr PropertySection parachor{
    "PARACHOR", dimensionless, &FC::GetParachorSource,        &FC::GetParachor};
constexpr PropertySection criticalVolumeForViscosity{
    "VCRITVIS", molarVolume,   &FC::GetVcritViscositySource,  &FC::GetVcritViscosity};
// clang-format on

constexpr const char* separator = "--";
constexpr const char* noValue = "0.0";
constexpr const char* noVolumeShift = "0";
constexpr std::size_t fullInteractionLine = 76;
constexpr std::size_t longestSixDigitNumber = 13; // -1.23457e-300

void BeginSection(std::ostream& deck, const char* keyword) {
    WriteDeckLine(deck, keyword);
    WriteDeckLine(deck, separator);
}

void EndSection(std::ostream& deck) {
    WriteDeckLine(deck, "/");
    WriteDeckLine(deck, separator);
}

void WriteSection(std::ostream& deck, const PropertySection& section, const Components& components,
                  std::size_t n, bool metric) {
    const Quantity& quantity = section.quantity;
    const char* const unit = metric ? quantity.metricUnit : quantity.fieldUnit;
    const Conversion convert = metric ? quantity.toMetric : quantity.toField;
    if (unit != noUnit) {
        WriteDeckLine(deck, unit);
    }
    BeginSection(deck, section.keyword);
    std::string line;
    for (std::size_t i = 0; i < n; ++i) {
        const FluidComponent& component = components[i];
        if ((component.*section.source)() == pvtEnumPropertySource::NoValue) {
            line = noValue;
        } else {
            AppendNumber(line, convert((component.*section.value)()), deckNumber);
        }
        WriteDeckLine(deck, line);
    }
    EndSection(deck);
}

void WriteUnitless(std::ostream& deck, const PropertySection& section, const Components& components,
                   std::size_t n) {
    constexpr bool eitherSystem = true;
    WriteSection(deck, section, components, n, eitherSystem);
}

bool HasVolumeShift(pvtEnumEoS eos) {
    return eos == pvtEnumEoS::PengRobinsonVolumeShift ||
           eos == pvtEnumEoS::PengRobinson78VolumeShift ||
           eos == pvtEnumEoS::SoaveRedlichKwongVolumeShift;
}

// Whether a line of this length is broken ahead of a known value. The value counts with the six
// digits of a plain text stream and a blank, though it is written with ten digits.
bool IsFull(std::size_t lineLength, double next) {
    if (lineLength + longestSixDigitNumber + 1 < fullInteractionLine) {
        return false;
    }
    TextBuffer measure;
    AppendNumber(measure, next, {});
    return lineLength + measure.Size() + 1 >= fullInteractionLine;
}

// Writes a row of the interaction matrix: the component `row` with every one before it. All lines
// of the row go to the file at once, because a flush per line takes longer than the numbers.
void WriteInteractionRow(std::ostream& deck, const CompositionalFluid& fluid,
                         const std::vector<std::string>& names, std::size_t row,
                         TextBuffer& lines) {
    constexpr auto set = pvtEnumBICType::ReservoirEoS;
    std::size_t lineBegin = 0;
    for (std::size_t column = 0; column < row; ++column) {
        if (fluid.GetBICSource(names[row], names[column], set) == pvtEnumPropertySource::NoValue) {
            lines += "0.0 ";
            continue;
        }
        const double value = fluid.GetBIC(names[row], names[column], set);
        if (IsFull(lines.Size() - lineBegin, value)) {
            lines += '\n';
            lineBegin = lines.Size();
        }
        AppendNumber(lines, value, deckNumber);
        lines += ' ';
    }
    if (lines.Size() > 0) {
        WriteDeckLine(deck, lines);
    }
}

} // namespace

void WriteComponentNames(std::ostream& deck, const CompositionalFluid& fluid, std::size_t n) {
    std::string line;
    BeginSection(deck, "NCOMPS");
    AppendNumber(line, std::uint64_t{n});
    WriteDeckLine(deck, line);
    EndSection(deck);

    BeginSection(deck, "CNAMES");
    const std::vector<std::string> names = fluid.ListComponents();
    for (std::size_t i = 0; i < n; ++i) {
        std::string name = names[i];
        Strings::RemoveAllSpaces(name);
        line = "'" + name + "'";
        WriteDeckLine(deck, line);
    }
    EndSection(deck);
}

void WriteMolecularWeights(std::ostream& deck, const Components& components, std::size_t n) {
    WriteUnitless(deck, molecularWeight, components, n);
}

void WriteOmegas(std::ostream& deck, const Components& components, std::size_t n) {
    WriteUnitless(deck, omegaA, components, n);
    WriteUnitless(deck, omegaB, components, n);
}

void WriteCriticalTemperatures(std::ostream& deck, const Components& components, std::size_t n,
                               bool metric) {
    WriteSection(deck, criticalTemperature, components, n, metric);
}

void WriteCriticalPressures(std::ostream& deck, const Components& components, std::size_t n,
                            bool metric) {
    WriteSection(deck, criticalPressure, components, n, metric);
}

void WriteCriticalVolumes(std::ostream& deck, const Components& components, std::size_t n,
                          bool metric) {
    WriteSection(deck, criticalVolume, components, n, metric);
}

void WriteCriticalZFactors(std::ostream& deck, const Components& components, std::size_t n) {
    WriteUnitless(deck, criticalZFactor, components, n);
}

void WriteVolumeShifts(std::ostream& deck, const CompositionalFluid& fluid,
                       double reservoirTemperature, const Components& components, std::size_t n) {
    if (!HasVolumeShift(fluid.GetEoS())) {
        return;
    }
    BeginSection(deck, "SSHIFT");
    std::string line;
    for (std::size_t i = 0; i < n; ++i) {
        const FluidComponent& component = components[i];
        if (component.GetEoSVolumeShiftSource() == pvtEnumPropertySource::NoValue) {
            line = noVolumeShift;
        } else {
            const bool temperatureDependent = fluid.GetUseTemperatureDependentVolumeShift();
            AppendNumber(
                line,
                component.GetEoSTDependantVolumeShift(reservoirTemperature, temperatureDependent),
                deckNumber);
        }
        WriteDeckLine(deck, line);
    }
    EndSection(deck);
}

void WriteAcentricFactors(std::ostream& deck, const Components& components, std::size_t n) {
    WriteUnitless(deck, acentricFactor, components, n);
}

void WriteBinaryInteractions(std::ostream& deck, const CompositionalFluid& fluid, std::size_t n) {
    BeginSection(deck, "BIC");
    const std::vector<std::string> names = fluid.ListComponents();
    TextBuffer lines;
    for (std::size_t row = 0; row < n; ++row) {
        WriteInteractionRow(deck, fluid, names, row, lines);
    }
    EndSection(deck);
}

void WriteParachors(std::ostream& deck, const Components& components, std::size_t n) {
    WriteUnitless(deck, parachor, components, n);
}

void WriteViscosityAndComposition(std::ostream& deck, const CompositionalFluid& fluid,
                                  const Components& components, std::size_t n, bool metric) {
    WriteSection(deck, criticalVolumeForViscosity, components, n, metric);

    std::string line;
    BeginSection(deck, "LBCCOEF");
    if (fluid.GetViscosityCorrelation() == pvtEnumViscosityMethod::LohrenzBrayClark) {
        const std::vector<double> coefficients =
            ModelParameters::GetLohrenzBrayClarkViscosityCoeffs();
        constexpr std::size_t numberOfCoefficients = 5;
        for (std::size_t i = 0; i < numberOfCoefficients; ++i) {
            AppendNumber(line, coefficients[i], deckNumber);
            line += ' ';
        }
        WriteDeckLine(deck, line);
    }
    EndSection(deck);

    BeginSection(deck, "ZI");
    const std::vector<std::string> names = fluid.ListComponents();
    for (std::size_t i = 0; i < n; ++i) {
        AppendNumber(line, fluid.GetComponentFraction(names[i]), deckNumber);
        WriteDeckLine(deck, line);
    }
    EndSection(deck);
}

} // namespace Orv::FluidBench::IO
