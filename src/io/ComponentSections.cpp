#include "ComponentSections.h"

#include "DeckText.h"
#include "FileNumber.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Utilities/ModelParameters.h"
#include "FluidBench/Utilities/Strings.h"
#include "NumberText.h"
#include "TextBuffer.h"
#include "TextFile.h"

#include <string>
#include <string_view>

namespace Orv::FluidBench::IO {

using Common::pvtEnumBICType;
using Common::pvtEnumEoS;
using Common::pvtEnumPropertySource;
using Common::pvtEnumViscosityMethod;
using Common::Units;
using Model::CompositionalFluid;
using Model::FluidComponent;
using Text::AppendNumber;
using Text::blockSize;
using Text::TextBuffer;
using Utilities::ModelParameters;
using Utilities::Strings;

namespace {

using Conversion = FileNumber::Conversion;

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

constexpr std::string_view separator = "--";
constexpr std::string_view noValue = "0.0";
constexpr std::string_view noVolumeShift = "0";
constexpr std::size_t fullInteractionLine = 76;
constexpr std::size_t longestSixDigitNumber = 13; // -1.23457e-300

// A section on its way to the deck. Its lines go there together, because a flush for each takes
// longer than its number; only a large section goes in blocks.
class Section {
public:
    Section(std::ostream& deck, std::string_view keyword) : deck_(deck) {
        AddLine(keyword);
        AddLine(separator);
    }

    /// What is added here is ended by `EndLine`.
    TextBuffer& Line() noexcept { return lines_; }
    void EndLine() {
        lines_ += '\n';
        if (lines_.Size() >= blockSize) {
            lines_.WriteTo(deck_);
        }
    }
    void AddLine(std::string_view text) {
        lines_ += text;
        EndLine();
    }
    void AddLine(double number) {
        AppendNumber(lines_, number, deckNumber);
        EndLine();
    }
    void End() {
        AddLine("/");
        lines_ += separator;
        WriteDeckLine(deck_, lines_);
    }

private:
    std::ostream& deck_;
    TextBuffer lines_;
};

void WriteSection(std::ostream& deck, const PropertySection& property, const Components& components,
                  std::size_t n, bool metric) {
    const Quantity& quantity = property.quantity;
    const char* const unit = metric ? quantity.metricUnit : quantity.fieldUnit;
    const Conversion convert = metric ? quantity.toMetric : quantity.toField;
    if (unit != noUnit) {
        WriteDeckLine(deck, unit);
    }
    Section section(deck, property.keyword);
    for (std::size_t i = 0; i < n; ++i) {
        const FluidComponent& component = components[i];
        if ((component.*property.source)() == pvtEnumPropertySource::NoValue) {
            section.AddLine(noValue);
        } else {
            section.AddLine(convert((component.*property.value)()));
        }
    }
    section.End();
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

// Whether the line that begins at `lineBegin` is broken ahead of a known value. The value counts
// with the six digits of a plain text stream and a blank, though it is written with ten digits.
bool IsFull(TextBuffer& lines, std::size_t lineBegin, double next) {
    const std::size_t end = lines.Size();
    if (end - lineBegin + longestSixDigitNumber + 1 < fullInteractionLine) {
        return false;
    }
    AppendNumber(lines, next, {}); // there for its length alone
    const bool isFull = lines.Size() - lineBegin + 1 >= fullInteractionLine;
    lines.CutTo(end);
    return isFull;
}

// Adds a row of the interaction matrix: the component `row` with every one before it. `lines` is
// only room to put it together.
void AddInteractionRow(Section& section, const CompositionalFluid& fluid,
                       const std::vector<std::string>& names, std::size_t row, TextBuffer& lines) {
    constexpr auto set = pvtEnumBICType::ReservoirEoS;
    std::size_t lineBegin = 0;
    lines.Clear();
    for (std::size_t column = 0; column < row; ++column) {
        if (fluid.GetBICSource(names[row], names[column], set) == pvtEnumPropertySource::NoValue) {
            lines += "0.0 ";
            continue;
        }
        const double value = fluid.GetBIC(names[row], names[column], set);
        if (IsFull(lines, lineBegin, value)) {
            lines += '\n';
            lineBegin = lines.Size();
        }
        AppendNumber(lines, value, deckNumber);
        lines += ' ';
    }
    if (lines.Size() > 0) {
        section.AddLine(lines.View());
    }
}

} // namespace

void WriteComponentNames(std::ostream& deck, const CompositionalFluid& fluid, std::size_t n) {
    Section count(deck, "NCOMPS");
    AppendNumber(count.Line(), std::uint64_t{n});
    count.EndLine();
    count.End();

    Section section(deck, "CNAMES");
    const std::vector<std::string> names = fluid.ListComponents();
    for (std::size_t i = 0; i < n; ++i) {
        std::string name = names[i];
        Strings::RemoveAllSpaces(name);
        section.AddLine("'" + name + "'");
    }
    section.End();
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
    Section section(deck, "SSHIFT");
    for (std::size_t i = 0; i < n; ++i) {
        const FluidComponent& component = components[i];
        if (component.GetEoSVolumeShiftSource() == pvtEnumPropertySource::NoValue) {
            section.AddLine(noVolumeShift);
        } else {
            const bool temperatureDependent = fluid.GetUseTemperatureDependentVolumeShift();
            section.AddLine(
                component.GetEoSTDependantVolumeShift(reservoirTemperature, temperatureDependent));
        }
    }
    section.End();
}

void WriteAcentricFactors(std::ostream& deck, const Components& components, std::size_t n) {
    WriteUnitless(deck, acentricFactor, components, n);
}

void WriteBinaryInteractions(std::ostream& deck, const CompositionalFluid& fluid, std::size_t n) {
    Section section(deck, "BIC");
    const std::vector<std::string> names = fluid.ListComponents();
    TextBuffer lines;
    for (std::size_t row = 0; row < n; ++row) {
        AddInteractionRow(section, fluid, names, row, lines);
    }
    section.End();
}

void WriteParachors(std::ostream& deck, const Components& components, std::size_t n) {
    WriteUnitless(deck, parachor, components, n);
}

void WriteViscosityAndComposition(std::ostream& deck, const CompositionalFluid& fluid,
                                  const Components& components, std::size_t n, bool metric) {
    WriteSection(deck, criticalVolumeForViscosity, components, n, metric);

    Section correlation(deck, "LBCCOEF");
    if (fluid.GetViscosityCorrelation() == pvtEnumViscosityMethod::LohrenzBrayClark) {
        const std::vector<double> coefficients =
            ModelParameters::GetLohrenzBrayClarkViscosityCoeffs();
        constexpr std::size_t numberOfCoefficients = 5;
        for (std::size_t i = 0; i < numberOfCoefficients; ++i) {
            AppendNumber(correlation.Line(), coefficients[i], deckNumber);
            correlation.Line() += ' ';
        }
        correlation.EndLine();
    }
    correlation.End();

    Section composition(deck, "ZI");
    const std::vector<std::string> names = fluid.ListComponents();
    for (std::size_t i = 0; i < n; ++i) {
        composition.AddLine(fluid.GetComponentFraction(names[i]));
    }
    composition.End();
}

} // namespace Orv::FluidBench::IO
