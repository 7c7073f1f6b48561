#include "FluidView.h"

#include "FluidBench/Common/Units.h"
#include "Shown.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::pvtEnumBICType;
using Orv::FluidBench::Common::pvtEnumEoS;
using Orv::FluidBench::Common::pvtEnumPropertySource;
using Orv::FluidBench::Common::pvtEnumUnitFraction;
using Orv::FluidBench::Common::pvtEnumViscosityMethod;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

namespace {

struct Property {
    const char* name;
    const char* key; // in JSON
    pvtEnumPropertySource (FluidComponent::*source)() const;
    double (FluidComponent::*value)() const;
    ShownUnit metric;
    ShownUnit field;
};

// clang-format off
constexpr ShownUnit number{};
constexpr ShownUnit kelvin {"K",    };
constexpr ShownUnit rankine{"R",    Units::Temperature_K_To_R};
constexpr ShownUnit cubicMetres{"m3/kg-mole",  Units::MolarVolume_m3gmmol_To_m3kgmol};
constexpr ShownUnit cubicFeet  {"ft3/lb-mole", Units::MolarVolume_m3gmmol_To_ft3lbmol};

constexpr Property properties[] = {
    {"MW", "molecularWeight", &FluidComponent::GetMolecularWeightSource,
     &FluidComponent::GetMolecularWeight, number, number},
    {"Tc", "tcrit", &FluidComponent::GetTcritSource, &FluidComponent::GetTcrit, kelvin, rankine},
    {"Pc", "pcrit", &FluidComponent::GetPcritSource, &FluidComponent::GetPcrit, bar, psia},
    {"Vc", "vcrit", &FluidComponent::GetVcritSource, &FluidComponent::GetVcrit,
     cubicMetres, cubicFeet},
    {"Vc,visc", "vcritViscosity", &FluidComponent::GetVcritViscositySource,
     &FluidComponent::GetVcritViscosity, cubicMetres, cubicFeet},
    {"Zc", "zcrit", &FluidComponent::GetZcritSource, &FluidComponent::GetZcrit, number, number},
    {"acentric", "acf", &FluidComponent::GetAcfSource, &FluidComponent::GetAcf, number, number},
    {"parachor", "parachor", &FluidComponent::GetParachorSource, &FluidComponent::GetParachor,
     number, number},
    {"shift", "eosVolumeShift", &FluidComponent::GetEoSVolumeShiftSource,
     &FluidComponent::GetEoSVolumeShift, number, number},
    {"omega A", "omegaA", &FluidComponent::GetOmegaASource, &FluidComponent::GetOmegaA,
     number, number},
    {"omega B", "omegaB", &FluidComponent::GetOmegaBSource, &FluidComponent::GetOmegaB,
     number, number},
};

struct EoSName {
    pvtEnumEoS eos;
    const char* key;
    const char* text;
};
constexpr EoSName eosNames[] = {
    {pvtEnumEoS::PengRobinson, "PengRobinson", "Peng-Robinson"},
    {pvtEnumEoS::PengRobinson78, "PengRobinson78", "Peng-Robinson (1978)"},
    {pvtEnumEoS::PengRobinsonVolumeShift, "PengRobinsonVolumeShift",
     "Peng-Robinson with volume shift"},
    {pvtEnumEoS::PengRobinson78VolumeShift, "PengRobinson78VolumeShift",
     "Peng-Robinson (1978) with volume shift"},
    {pvtEnumEoS::RedlichKwong, "RedlichKwong", "Redlich-Kwong"},
    {pvtEnumEoS::SoaveRedlichKwong, "SoaveRedlichKwong", "Soave-Redlich-Kwong"},
    {pvtEnumEoS::SoaveRedlichKwongVolumeShift, "SoaveRedlichKwongVolumeShift",
     "Soave-Redlich-Kwong with volume shift"},
    {pvtEnumEoS::ZudkevitchJoffe, "ZudkevitchJoffe", "Zudkevitch-Joffe"},
};
// clang-format on

constexpr EoSName unknownEoS{pvtEnumEoS::PengRobinson, "Unknown", "unknown"};

const EoSName& NameOf(pvtEnumEoS eos) {
    const auto name = std::ranges::find(eosNames, eos, &EoSName::eos);
    return name == std::end(eosNames) ? unknownEoS : *name;
}

struct ViscosityName {
    const char* key;
    const char* text;
};

ViscosityName NameOf(pvtEnumViscosityMethod method) {
    switch (method) {
    case pvtEnumViscosityMethod::LohrenzBrayClark:
        return {"LohrenzBrayClark", "Lohrenz-Bray-Clark"};
    case pvtEnumViscosityMethod::Pedersen:
        return {"Pedersen", "Pedersen"};
    }
    return {"Unknown", "unknown"};
}

ViscosityName NameOf(pvtEnumUnitFraction type) {
    switch (type) {
    case pvtEnumUnitFraction::Mole:
        return {"Mole", "mole fraction"};
    case pvtEnumUnitFraction::Mass:
        return {"Mass", "mass fraction"};
    }
    return {"Unknown", "fraction"};
}

bool HasValue(const FluidComponent& component, const Property& property) {
    return (component.*property.source)() != pvtEnumPropertySource::NoValue;
}

std::string Heading(const Property& property, bool field) {
    const char* const unit = (field ? property.field : property.metric).name;
    return std::string(property.name) + (*unit == '\0' ? "" : " ") + unit;
}

// A name as a table has room for it.
std::string Cut(const std::string& name, Extent extent) {
    constexpr std::size_t longest = 24;
    std::string shown = Shown(name);
    if (extent == Extent::All || ShownWidth(shown) <= longest) {
        return shown;
    }
    std::size_t end = 0;
    for (std::size_t width = 0; width < longest; ++end) {
        width += (static_cast<unsigned char>(shown[end]) & 0xC0U) != 0x80U ? 1 : 0;
    }
    return shown.substr(0, end - 1) + "\u2026";
}

struct ComponentTable {
    std::vector<FluidComponent> components;
    std::vector<const Property*> used;

    explicit ComponentTable(const CompositionalFluid& fluid)
        : components(fluid.GetOrderedComponents()) {
        for (const Property& property : properties) {
            if (std::ranges::any_of(components,
                                    [&](const auto& c) { return HasValue(c, property); })) {
                used.push_back(&property);
            }
        }
    }
};

// What `text` makes of numbers stands in the cells, and `missing` where there is none.
Table TableOfComponents(const CompositionalFluid& fluid, const ComponentTable& table, bool field,
                        Extent extentOfNames, std::string (*text)(double), const char* missing) {
    Cells headings{"component", NameOf(fluid.GetComponentFractionType()).text};
    for (const Property* const property : table.used) {
        headings.push_back(Heading(*property, field));
    }
    return {std::move(headings), table.components.size(),
            [&fluid, &table, field, extentOfNames, text, missing](std::uint64_t row) {
                const FluidComponent& component = table.components[row];
                const std::string& name = component.GetName();
                Cells cells{Cut(name, extentOfNames), text(fluid.GetComponentFraction(name))};
                for (const Property* const property : table.used) {
                    const ShownUnit& unit = field ? property->field : property->metric;
                    cells.push_back(HasValue(component, *property)
                                        ? text(unit.convert((component.*property->value)()))
                                        : missing);
                }
                return cells;
            }};
}

struct Coefficient {
    std::uint32_t first;
    std::uint32_t second;
    double value;
};

std::vector<Coefficient> CoefficientsOf(const CompositionalFluid& fluid,
                                        const std::vector<std::string>& names) {
    std::vector<Coefficient> coefficients;
    for (std::uint32_t row = 1; row < names.size(); ++row) {
        for (std::uint32_t column = 0; column < row; ++column) {
            const double value =
                fluid.GetBIC(names[column], names[row], pvtEnumBICType::ReservoirEoS);
            if (value != 0.0) {
                coefficients.push_back({column, row, value});
            }
        }
    }
    return coefficients;
}

// Keeps so many coefficients, the largest ones, in their order.
void KeepLargest(std::vector<Coefficient>& coefficients, std::size_t count) {
    std::vector<double> sizes;
    sizes.reserve(coefficients.size());
    for (const Coefficient& coefficient : coefficients) {
        sizes.push_back(std::abs(coefficient.value));
    }
    std::ranges::nth_element(sizes, sizes.begin() + static_cast<std::ptrdiff_t>(count - 1),
                             std::greater<>());
    const double least = sizes[count - 1];
    const auto larger = static_cast<std::size_t>(std::ranges::count_if(
        coefficients, [least](const Coefficient& c) { return std::abs(c.value) > least; }));
    std::size_t asLarge = count - larger;
    std::erase_if(coefficients, [least, &asLarge](const Coefficient& c) {
        const double size = std::abs(c.value);
        return size < least || (size == least && (asLarge == 0 || asLarge-- == 0));
    });
}

void PrintCoefficients(std::ostream& out, const CompositionalFluid& fluid, Extent extent) {
    constexpr std::size_t mostShown = 200;
    const std::vector<std::string> names = fluid.ListComponents();
    std::vector<Coefficient> coefficients = CoefficientsOf(fluid, names);
    if (coefficients.empty()) {
        out << "All interaction coefficients are zero.\n";
        return;
    }
    const std::size_t count = coefficients.size();
    const bool isCut = extent == Extent::HeadAndTail && count > mostShown;
    if (isCut) {
        KeepLargest(coefficients, mostShown);
    }
    PrintTable(
        out,
        {{"interaction of", "and", "coefficient"}, coefficients.size(), [&](std::uint64_t row) {
             const Coefficient& c = coefficients[row];
             return Cells{Cut(names[c.first], extent), Cut(names[c.second], extent),
                          NumberText(c.value)};
         }});
    if (isCut) {
        out << "... and " << std::to_string(count - mostShown)
            << " smaller ones, which --all shows ...\n";
    }
}

} // namespace

void PrintFluid(std::ostream& out, const CompositionalFluid& fluid, bool field, Extent extent) {
    const std::string& name = fluid.GetName();
    out << "fluid                  " << (name.empty() ? "(without a name)" : Shown(name)) << '\n'
        << "equation of state      " << NameOf(fluid.GetEoS()).text << '\n'
        << "viscosity correlation  " << NameOf(fluid.GetViscosityCorrelation()).text << "\n\n";
    const ComponentTable components(fluid);
    if (components.components.empty()) {
        out << "The fluid has no components.\n";
        return;
    }
    PrintTable(
        out,
        TableOfComponents(
            fluid, components, field, extent, [](double value) { return NumberText(value); }, "-"),
        extent);
    out << '\n';
    PrintCoefficients(out, fluid, extent);
}

void PrintFluidCsv(std::ostream& out, const CompositionalFluid& fluid, bool field) {
    const ComponentTable components(fluid);
    PrintCsv(out, TableOfComponents(fluid, components, field, Extent::All, DataText, ""));
}

void WriteFluid(JsonWriter& json, const CompositionalFluid& fluid) {
    json.Add("name", fluid.GetName());
    json.Add("eos", NameOf(fluid.GetEoS()).key);
    json.Add("viscosityCorrelation", NameOf(fluid.GetViscosityCorrelation()).key);
    json.Add("componentFractionType", NameOf(fluid.GetComponentFractionType()).key);
    json.BeginArray("components");
    for (const FluidComponent& component : fluid.GetOrderedComponents()) {
        json.BeginObject();
        json.Add("name", component.GetName());
        json.Add("fraction", fluid.GetComponentFraction(component.GetName()));
        for (const Property& property : properties) {
            if (HasValue(component, property)) {
                json.Add(property.key, (component.*property.value)());
            } else {
                json.AddNull(property.key);
            }
        }
        json.EndObject();
    }
    json.EndArray();
    const std::vector<std::string> names = fluid.ListComponents();
    json.BeginArray("interactionCoefficients");
    for (const Coefficient& c : CoefficientsOf(fluid, names)) {
        json.BeginObject();
        json.Add("first", names[c.first]);
        json.Add("second", names[c.second]);
        json.Add("value", c.value);
        json.EndObject();
    }
    json.EndArray();
}

void CompareFluids(Comparison& comparison, const CompositionalFluid& first,
                   const CompositionalFluid& second, bool field) {
    comparison.Compare("fluid", "equation of state", NameOf(first.GetEoS()).text,
                       NameOf(second.GetEoS()).text);
    comparison.Compare("fluid", "viscosity correlation",
                       NameOf(first.GetViscosityCorrelation()).text,
                       NameOf(second.GetViscosityCorrelation()).text);
    const std::vector<std::string> firstNames = first.ListComponents();
    const std::vector<std::string> secondNames = second.ListComponents();
    const std::vector<FluidComponent> firstComponents = first.GetOrderedComponents();
    const std::vector<FluidComponent> secondComponents = second.GetOrderedComponents();
    std::vector<std::string> common;
    for (const auto& [i, j] : MatchNames(firstNames, secondNames)) {
        if (i == Match::none || j == Match::none) {
            comparison.AddMissing(i == Match::none ? secondNames[j] : firstNames[i],
                                  j == Match::none);
            continue;
        }
        const std::string& name = firstNames[i];
        common.push_back(name);
        comparison.Compare(name, NameOf(first.GetComponentFractionType()).text, number,
                           first.GetComponentFraction(name), second.GetComponentFraction(name));
        for (const Property& property : properties) {
            // No value is a zero in files.
            comparison.Compare(name, property.name, field ? property.field : property.metric,
                               (firstComponents[i].*property.value)(),
                               (secondComponents[j].*property.value)());
        }
    }
    for (std::size_t row = 1; row < common.size(); ++row) {
        for (std::size_t column = 0; column < row; ++column) {
            const auto coefficient = [&](const CompositionalFluid& fluid) {
                return fluid.GetBIC(common[column], common[row], pvtEnumBICType::ReservoirEoS);
            };
            if (!comparison.AreSame(coefficient(first), coefficient(second))) {
                comparison.Compare(common[column] + " and " + common[row], "coefficient", number,
                                   coefficient(first), coefficient(second));
            }
        }
    }
}

} // namespace FluidBenchTool
