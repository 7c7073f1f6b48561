#include "Fluids.h"

#include "FluidBench/Common/Enumerations.h"
#include "FluidBench/Common/Exceptions.h"
#include "Values.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::Common::Exception;
using Orv::FluidBench::Common::pvtEnumBICType;
using Orv::FluidBench::Common::pvtEnumEoS;
using Orv::FluidBench::Common::pvtEnumHCForm;
using Orv::FluidBench::Common::pvtEnumPropertySource;
using Orv::FluidBench::Common::pvtEnumStandardConditions;
using Orv::FluidBench::Common::pvtEnumUnitFraction;
using Orv::FluidBench::Common::pvtEnumViscosityMethod;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

namespace {

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

using Component = FluidComponent;
using Conditions = pvtEnumStandardConditions;

template <void (Component::*setter)(double)>
void Set(Component& component, double value, Conditions /*ofReferenceDensity*/) {
    (component.*setter)(value);
}

struct Property {
    const char* name;
    const char* unit;
    double (Component::*get)() const;
    pvtEnumPropertySource (Component::*source)() const;
    void (*set)(Component&, double, Conditions);
};

// clang-format off
constexpr std::array properties{
    Property{"molecular_weight", "g/mol",
             &Component::GetMolecularWeight, &Component::GetMolecularWeightSource,
             Set<&Component::SetMolecularWeight>},
    Property{"critical_pressure", "Pa",
             &Component::GetPcrit, &Component::GetPcritSource,
             Set<&Component::SetPcrit>},
    Property{"critical_temperature", "K",
             &Component::GetTcrit, &Component::GetTcritSource,
             Set<&Component::SetTcrit>},
    Property{"critical_volume", "m3/mol",
             &Component::GetVcrit, &Component::GetVcritSource,
             Set<&Component::SetVcrit>},
    Property{"critical_volume_viscosity", "m3/mol",
             &Component::GetVcritViscosity, &Component::GetVcritViscositySource,
             Set<&Component::SetVcritViscosity>},
    Property{"critical_z_factor", "1",
             &Component::GetZcrit, &Component::GetZcritSource,
             Set<&Component::SetZcrit>},
    Property{"acentric_factor", "1",
             &Component::GetAcf, &Component::GetAcfSource,
             Set<&Component::SetAcf>},
    Property{"parachor", "1",
             &Component::GetParachor, &Component::GetParachorSource,
             Set<&Component::SetParachor>},
    Property{"volume_shift", "1",
             &Component::GetEoSVolumeShift, &Component::GetEoSVolumeShiftSource,
             Set<&Component::SetEoSVolumeShift>},
    Property{"omega_a", "1",
             &Component::GetOmegaA, &Component::GetOmegaASource,
             Set<&Component::SetOmegaA>},
    Property{"omega_b", "1",
             &Component::GetOmegaB, &Component::GetOmegaBSource,
             Set<&Component::SetOmegaB>},
    Property{"heat_of_vaporisation", "as in the file",
             &Component::GetHeatVapourisation, &Component::GetHeatVapourisationSource,
             Set<&Component::SetHeatVapourisation>},
    Property{"thermal_expansion", "1/K",
             &Component::GetThermExpCoeff, &Component::GetThermExpCoeffSource,
             Set<&Component::SetThermExpCoeff>},
    Property{"reference_density", "kg/m3",
             &Component::GetReferenceDensity, &Component::GetReferenceDensitySource,
             [](Component& component, double value, Conditions conditions) {
                 component.SetReferenceDensity(value, conditions);
             }},
};

// The words of Python are the names of the enumerators.
template <typename Enumeration>
struct Word {
    const char* text;
    Enumeration value;
};
constexpr std::array<Word<pvtEnumEoS>, 8> equationsOfState{{
    {"PengRobinson",                 pvtEnumEoS::PengRobinson},
    {"PengRobinson78",               pvtEnumEoS::PengRobinson78},
    {"PengRobinsonVolumeShift",      pvtEnumEoS::PengRobinsonVolumeShift},
    {"PengRobinson78VolumeShift",    pvtEnumEoS::PengRobinson78VolumeShift},
    {"RedlichKwong",                 pvtEnumEoS::RedlichKwong},
    {"SoaveRedlichKwong",            pvtEnumEoS::SoaveRedlichKwong},
    {"SoaveRedlichKwongVolumeShift", pvtEnumEoS::SoaveRedlichKwongVolumeShift},
    {"ZudkevitchJoffe",              pvtEnumEoS::ZudkevitchJoffe},
}};
constexpr std::array<Word<pvtEnumViscosityMethod>, 2> viscosities{{
    {"LohrenzBrayClark", pvtEnumViscosityMethod::LohrenzBrayClark},
    {"Pedersen",         pvtEnumViscosityMethod::Pedersen},
}};
constexpr std::array<Word<pvtEnumUnitFraction>, 2> fractionBases{{
    {"Mole", pvtEnumUnitFraction::Mole},
    {"Mass", pvtEnumUnitFraction::Mass},
}};
constexpr std::array<Word<pvtEnumStandardConditions>, 2> standardConditions{{
    {"Fahrenheit60", pvtEnumStandardConditions::Fahrenheit60},
    {"Celsius20",    pvtEnumStandardConditions::Celsius20},
}};
// clang-format on

template <typename Words, typename Enumeration>
std::string TextOf(const Words& words, Enumeration value) {
    for (const auto& word : words) {
        if (word.value == value) {
            return word.text;
        }
    }
    return "another (" + std::to_string(static_cast<std::int32_t>(value)) + ")";
}

template <typename Enumeration, std::size_t size>
Enumeration ValueOf(const std::array<Word<Enumeration>, size>& words, const char* what,
                    const std::string& text) {
    std::string known;
    for (const auto& word : words) {
        if (word.text == text) {
            return word.value;
        }
        known += (known.empty() ? "" : ", ") + std::string(word.text);
    }
    throw std::invalid_argument(std::string(what) + " '" + text + "' isn't one of " + known);
}

// A text of the dictionary's, as an enumerator.
template <typename Words>
auto Chosen(const Words& words, const py::dict& fluid, const char* key) {
    return ValueOf(words, key, fluid[key].cast<std::string>());
}

Numbers InteractionsOf(const CompositionalFluid& fluid, const std::vector<std::string>& names) {
    const auto n = static_cast<py::ssize_t>(names.size());
    Numbers block({n, n});
    auto cells = block.mutable_unchecked<2>();
    for (py::ssize_t i = 0; i < n; ++i) {
        const std::string& first = names[static_cast<std::size_t>(i)];
        cells(i, i) = 0.0;
        for (py::ssize_t j = 0; j < i; ++j) {
            constexpr auto set = pvtEnumBICType::ReservoirEoS;
            const std::string& second = names[static_cast<std::size_t>(j)];
            const bool isSet =
                fluid.GetBICSource(first, second, set) != pvtEnumPropertySource::NoValue;
            cells(i, j) = cells(j, i) = isSet ? fluid.GetBIC(first, second, set) : missing;
        }
    }
    return block;
}

void SetInteractions(CompositionalFluid& fluid, const std::vector<std::string>& names,
                     const Numbers& block) {
    const auto cells = block.unchecked<2>();
    for (std::size_t i = 0; i < names.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const double value = cells(static_cast<py::ssize_t>(i), static_cast<py::ssize_t>(j));
            if (!std::isnan(value)) {
                fluid.SetBIC(names[i], names[j], value);
            }
        }
    }
}

Component MakeComponent(const std::string& name, const double* values, Conditions conditions) {
    Component component(name);
    for (std::size_t k = 0; k < properties.size(); ++k) {
        if (std::isnan(values[k])) {
            continue;
        }
        try {
            properties[k].set(component, values[k], conditions);
        } catch (const Exception& refusal) {
            throw std::invalid_argument("component '" + name + "', " + properties[k].name + ": " +
                                        refusal.what());
        }
    }
    return component;
}

} // namespace

py::list ComponentProperties() {
    py::list list;
    for (const Property& property : properties) {
        list.append(py::make_tuple(property.name, property.unit));
    }
    return list;
}

py::dict FluidToPython(const CompositionalFluid& fluid) {
    const std::vector<Component> components = fluid.GetOrderedComponents();
    const std::vector<std::string> names = fluid.ListComponents();
    const auto n = static_cast<py::ssize_t>(components.size());
    Numbers fractions(n);
    Numbers block({n, static_cast<py::ssize_t>(properties.size())});
    py::array_t<bool> nonHydrocarbon(n);
    py::list referenceConditions;
    double* value = block.mutable_data();
    for (py::ssize_t i = 0; i < n; ++i) {
        const Component& component = components[static_cast<std::size_t>(i)];
        fractions.mutable_at(i) = fluid.GetComponentFraction(component.GetName());
        nonHydrocarbon.mutable_at(i) =
            component.GetHydrocarbonForm() == pvtEnumHCForm::NonHydrocarbon;
        referenceConditions.append(
            TextOf(standardConditions, component.GetReferenceDensityConditions()));
        for (const Property& property : properties) {
            const bool isSet = (component.*property.source)() != pvtEnumPropertySource::NoValue;
            *value++ = isSet ? (component.*property.get)() : missing;
        }
    }
    py::dict result;
    result["name"] = NameToPython(fluid.GetName());
    result["eos"] = TextOf(equationsOfState, fluid.GetEoS());
    result["viscosity"] = TextOf(viscosities, fluid.GetViscosityCorrelation());
    result["fraction_basis"] = TextOf(fractionBases, fluid.GetComponentFractionType());
    result["temperature_dependent_shift"] = fluid.GetUseTemperatureDependentVolumeShift();
    result["names"] = NamesToPython(names);
    result["fractions"] = fractions;
    result["properties"] = block;
    result["non_hydrocarbon"] = nonHydrocarbon;
    result["reference_conditions"] = referenceConditions;
    result["interactions"] = InteractionsOf(fluid, names);
    return result;
}

CompositionalFluid FluidFromPython(const py::dict& fluid) {
    const auto names = NamesFromPython(fluid["names"]);
    const auto fractions = fluid["fractions"].cast<Numbers>();
    const auto block = fluid["properties"].cast<Numbers>();
    const auto nonHydrocarbon = fluid["non_hydrocarbon"].cast<py::array_t<bool>>();
    const auto referenceConditions = NamesFromPython(fluid["reference_conditions"]);

    CompositionalFluid result(NameFromPython(fluid["name"]));
    result.SetEoS(Chosen(equationsOfState, fluid, "eos"));
    result.SetViscosityCorrelation(Chosen(viscosities, fluid, "viscosity"));
    result.SetComponentFractionType(Chosen(fractionBases, fluid, "fraction_basis"));
    result.SetUseTemperatureDependentVolumeShift(fluid["temperature_dependent_shift"].cast<bool>());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto row = static_cast<py::ssize_t>(i);
        Component component = MakeComponent(
            names[i], block.data(row, 0),
            ValueOf(standardConditions, "reference_conditions", referenceConditions.at(i)));
        component.SetHydrocarbonForm(nonHydrocarbon.at(row) ? pvtEnumHCForm::NonHydrocarbon
                                                            : pvtEnumHCForm::Hydrocarbon);
        try {
            result.SetComponent(component, fractions.at(row));
        } catch (const Exception& refusal) {
            throw std::invalid_argument("component '" + names[i] +
                                        "', fraction: " + refusal.what());
        }
    }
    SetInteractions(result, names, fluid["interactions"].cast<Numbers>());
    return result;
}

} // namespace FluidBenchPython
