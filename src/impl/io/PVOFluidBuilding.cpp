// The fluid, from what the deck interpreter put into the store.
#include "DeckPlaces.h"
#include "DeckUnitSystems.h"
#include "FluidBench/Common/Exceptions.h"
#include "FluidBench/Model/Characterisation.h"
#include "FluidBench/Model/CharacterisationControl.h"
#include "IOException.h"
#include "Messages.h"
#include "PVOCompositionalModelAdaptor.h"
#include "PVOImporter.h"
#include "Quote.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <string_view>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

using Common::ErrorReport;
using Common::pvtEnumEoS;
using Common::pvtEnumHCForm;
using Common::pvtEnumInterfacialTensionMethod;
using Common::pvtEnumStandardConditions;
using Common::pvtEnumViscosityMethod;
using Common::RelatedPropertyOutOfRangeException;
using Common::Units;
using Kes::SimFluid::IComponent;
using Kes::SimFluid::IInitialCondition;
using Model::CompositionalFluid;
using Model::FluidComponent;

namespace {

// Properties that a fluid of the toolbox can't have, and their keywords.
struct ForeignProperty {
    IComponent::Property key;
    std::string_view keyword;
};
constexpr ForeignProperty foreignProperties[] = {{IComponent::SPECIFIC_HEAT_A, "SPECHA"},
                                                 {IComponent::SPECIFIC_HEAT_B, "SPECHB"},
                                                 {IComponent::SPECIFIC_HEAT_G, "SPECHG"},
                                                 {IComponent::SPECIFIC_HEAT_H, "SPECHH"}};

constexpr std::string_view nonHydrocarbons[] = {"H2", "N2", "H2S", "H2O", "CO2", "CO"};

// The interpreter's code of an equation of state, and what it is without and with a volume shift.
struct EquationOfState {
    int code;
    pvtEnumEoS plain;
    pvtEnumEoS shifted;
};
constexpr EquationOfState equationsOfState[] = {
    {0, pvtEnumEoS::PengRobinson, pvtEnumEoS::PengRobinsonVolumeShift},
    {1, pvtEnumEoS::PengRobinson78, pvtEnumEoS::PengRobinson78VolumeShift},
    {2, pvtEnumEoS::RedlichKwong, pvtEnumEoS::RedlichKwong},
    {3, pvtEnumEoS::SoaveRedlichKwong, pvtEnumEoS::SoaveRedlichKwongVolumeShift},
};

constexpr int lohrenzBrayClarkCode = 0;
constexpr int pedersenCode = 1;
constexpr int parachorCode = 0;

// What the numbers of a deck measure, and how many canonical units make one of the model's.
struct Quantity {
    const char* measurement; // null for a number without a unit
    double canonicalUnits;
};
constexpr Quantity number{nullptr, 1.0};
constexpr Quantity pressure{"Pressure", 1.0};
constexpr Quantity density{"Density", 1.0};
constexpr Quantity temperature{"AbsoluteTemperature", 1.0};
constexpr Quantity molarVolume{"MolarVolume", 1000.0}; // per gram-mole, not per kilogram-mole

// What a component has of its own, in the order in which it is copied, and the keyword that gives
// it. The reference density, which takes two properties, comes between the two tables.
struct CopiedProperty {
    IComponent::Property key;
    std::string_view keyword; // empty where no keyword gives it
    const Quantity& quantity;
    void (FluidComponent::*set)(double);
};

// clang-format off
constexpr CopiedProperty beforeReferenceDensity[] = {
    {IComponent::MOLECULAR_WEIGHT,              "MW",       number,      &FluidComponent::SetMolecularWeight},
    {IComponent::CRITICAL_PRESSURE,             "PCRIT",    pressure,    &FluidComponent::SetPcrit},
};
constexpr CopiedProperty behindReferenceDensity[] = {
    {IComponent::CRITICAL_TEMPERATURE,          "TCRIT",    temperature, &FluidComponent::SetTcrit},
    {IComponent::CRITICAL_Z_FACTOR,             "ZCRIT",    number,      &FluidComponent::SetZcrit},
    {IComponent::CRITICAL_VOLUME,               "VCRIT",    molarVolume, &FluidComponent::SetVcrit},
    {IComponent::CRITICAL_VOLUME_FOR_VISCOSITY, "VCRITVIS", molarVolume, &FluidComponent::SetVcritViscosity},
    {IComponent::ACENTRIC_FACTOR,               "ACF",      number,      &FluidComponent::SetAcf},
    {IComponent::PARACHOR,                      "PARACHOR", number,      &FluidComponent::SetParachor},
    {IComponent::VOLUME_SHIFT,                  "SSHIFT",   number,      &FluidComponent::SetEoSVolumeShift},
    {IComponent::OMEGA_A,                       "OMEGAA",   number,      &FluidComponent::SetOmegaA},
    {IComponent::OMEGA_B,                       "OMEGAB",   number,      &FluidComponent::SetOmegaB},
    {IComponent::HEAT_OF_VAPORISATION,          "",         number,      &FluidComponent::SetHeatVapourisation},
    {IComponent::THERMAL_EXPANSION,             "",         number,      &FluidComponent::SetThermExpCoeff},
};
// clang-format on

double ToModel(double value, const Quantity& quantity, Units::UNIT_TYPE units) {
    return quantity.measurement == nullptr
               ? value
               : ConvertToCanonical(value, quantity.measurement, units) / quantity.canonicalUnits;
}

// The standard conditions of a density, by their temperature in K. The first that fits counts.
struct StandardConditions {
    double temperature;
    pvtEnumStandardConditions conditions;
};
constexpr StandardConditions standardConditions[] = {
    {288.706, pvtEnumStandardConditions::Fahrenheit60},
    {293.15, pvtEnumStandardConditions::Celsius20},
};
constexpr double temperatureTolerance = 0.01; // relative

bool AnyComponentHas(const PVOCompositionalModelAdaptor& model, int key) {
    for (int i = 0; i < model.getNumComponents(); ++i) {
        if (model.getComponent(i).hasProperty(key)) {
            return true;
        }
    }
    return false;
}

// The first row of the composition against depth; zeros where there is none.
std::vector<double> Fractions(const PVOCompositionalModelAdaptor& model) {
    std::vector<double> fractions(static_cast<std::size_t>(model.getNumComponents()), 0.0);
    const std::set<std::string> conditions = model.getInitialConditionNames();
    if (conditions.empty()) {
        return fractions;
    }
    const IInitialCondition& condition = model.getInitialCondition(*conditions.begin());
    if (condition.hasDepthTable(IInitialCondition::TOTAL_COMPOSITION)) {
        const auto& table = condition.getDepthTable(IInitialCondition::TOTAL_COMPOSITION);
        for (int i = 0; i < model.getNumComponents(); ++i) {
            fractions[static_cast<std::size_t>(i)] = table.getValue(0, i);
        }
    }
    return fractions;
}

// The toolbox's names of the models, from the interpreter's codes. Each throws for a code that a
// fluid can't have.

pvtEnumEoS EquationOfStateOf(const PVOCompositionalModelAdaptor& model) {
    const auto* const known =
        std::ranges::find(equationsOfState, model.getEquationOfState(), &EquationOfState::code);
    if (known == std::end(equationsOfState)) {
        throw IOUnsupportedEoS();
    }
    return AnyComponentHas(model, IComponent::VOLUME_SHIFT) ? known->shifted : known->plain;
}

pvtEnumViscosityMethod ViscosityMethodOf(const PVOCompositionalModelAdaptor& model) {
    switch (model.getViscosityModel()) {
    case lohrenzBrayClarkCode:
        return pvtEnumViscosityMethod::LohrenzBrayClark;
    case pedersenCode:
        return pvtEnumViscosityMethod::Pedersen;
    default:
        throw IOUnsupportedViscosityModel();
    }
}

pvtEnumInterfacialTensionMethod
InterfacialTensionMethodOf(const PVOCompositionalModelAdaptor& model) {
    if (model.getInterfacialTensionModel() != parachorCode) {
        throw IOUnsupportedViscosityModel();
    }
    return pvtEnumInterfacialTensionMethod::Parachor;
}

void SetModels(const PVOCompositionalModelAdaptor& model, CompositionalFluid& fluid,
               ErrorReport& report, DeckPlaces& places) {
    const auto refuse = [&](std::int32_t id, const char* expected) {
        report.Add(Failure(id));
        places.Tell(DeckKinds::modelUnsupported,
                    std::string("expected ") + expected + ", found another one.");
    };
    places.GoTo("EOS");
    try {
        fluid.SetEoS(EquationOfStateOf(model));
    } catch (const IOUnsupportedEoS&) {
        refuse(MessageId::unsupportedEoS, "one of the equations of state PR, RK and SRK");
    }
    places.GoTo("");
    try {
        fluid.SetViscosityCorrelation(ViscosityMethodOf(model));
    } catch (const IOUnsupportedViscosityModel&) {
        refuse(MessageId::unsupportedViscosityModel, "a viscosity model that a fluid can have");
    }
    try {
        fluid.SetInterfacialTensionMethod(InterfacialTensionMethodOf(model));
    } catch (const IOUnsupportedViscosityModel&) {
        refuse(MessageId::unsupportedInterfacialTensionModel,
               "an interfacial tension model that a fluid can have");
    }
}

// Every pair, also those that the deck doesn't give.
void SetCoefficients(const PVOCompositionalModelAdaptor& model, CompositionalFluid& fluid) {
    const auto& coefficients = model.getBinaryInteractionCoefficients();
    const int n = model.getNumComponents();
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        names.push_back(model.getComponent(i).getName());
    }
    for (int i = 0; i < n; ++i) {
        for (int j = i + 1; j < n; ++j) {
            fluid.SetBIC(names[static_cast<std::size_t>(i)], names[static_cast<std::size_t>(j)],
                         coefficients.get(i, j));
        }
    }
}

// The report stays untold: what can't be completed stays as the deck has it.
void Characterise(CompositionalFluid& fluid) {
    const Model::Characterisation characterisation;
    const Model::CharacterisationControl control;
    characterisation.CharacteriseFor(fluid, control);
}

} // namespace

void PVOImporter::BuildFluid(const PVOCompositionalModelAdaptor& model, bool characterise,
                             CompositionalFluid& fluid, ErrorReport& report,
                             DeckPlaces& places) const {
    if (RefuseForeignProperties(model, report, places)) {
        return;
    }
    const std::vector<double> fractions = Fractions(model);
    SetModels(model, fluid, report, places);
    SetComponents(model, fractions, fluid, report, places);
    places.GoTo("BIC");
    SetCoefficients(model, fluid);
    if (characterise) {
        Characterise(fluid);
    }
}

bool PVOImporter::RefuseForeignProperties(const PVOCompositionalModelAdaptor& model,
                                          ErrorReport& report, DeckPlaces& places) const {
    for (int i = 0; i < model.getNumComponents(); ++i) {
        const IComponent& component = model.getComponent(i);
        for (const ForeignProperty& property : foreignProperties) {
            if (component.hasProperty(property.key)) {
                places.GoTo(property.keyword);
                places.Tell(DeckKinds::specificHeats,
                            "expected a deck without SPECHA, SPECHB, SPECHG and SPECHH, found a "
                            "specific heat of component " +
                                Text::Quote(component.getName()) + ", which a fluid can't hold.");
                report.Add(Failure(MessageId::deckNotInterpreted));
                return true;
            }
        }
    }
    return false;
}

void PVOImporter::SetComponents(const PVOCompositionalModelAdaptor& model,
                                const std::vector<double>& fractions, CompositionalFluid& fluid,
                                ErrorReport& report, DeckPlaces& places) const {
    for (int i = 0; i < model.getNumComponents(); ++i) {
        const IComponent& source = model.getComponent(i);
        const std::string& name = source.getName();
        places.GoTo("CNAMES");
        FluidComponent component(name);
        if (std::ranges::find(nonHydrocarbons, name) != std::end(nonHydrocarbons)) {
            component.SetHydrocarbonForm(pvtEnumHCForm::NonHydrocarbon);
        }
        try {
            FillComponent(source, component, places);
        } catch (const RelatedPropertyOutOfRangeException& error) {
            report.Add(PropertyRefused(error.what()));
            places.Tell(DeckKinds::valueDropped, error.what());
        }
        places.GoToFractions();
        fluid.SetComponent(component, fractions[static_cast<std::size_t>(i)]);
    }
}

void PVOImporter::FillComponent(const IComponent& source, FluidComponent& target,
                                DeckPlaces& places) const {
    const auto copy = [&](const CopiedProperty& property) {
        if (source.hasProperty(property.key)) {
            places.GoTo(property.keyword);
            (target.*property.set)(ToModel(source.getProperty(property.key), property.quantity,
                                           UnitTypeOf(unitSystem)));
        }
    };
    std::ranges::for_each(beforeReferenceDensity, copy);
    places.GoTo("");
    FillReferenceDensity(source, target);
    std::ranges::for_each(behindReferenceDensity, copy);
}

// A density without a temperature, or at a temperature that no standard conditions have, is
// dropped.
void PVOImporter::FillReferenceDensity(const IComponent& source, FluidComponent& target) const {
    if (!source.hasProperty(IComponent::REFERENCE_DENSITY) ||
        !source.hasProperty(IComponent::REFERENCE_TEMPERATURE)) {
        return;
    }
    const auto value = [&](IComponent::Property key, const Quantity& quantity) {
        return ToModel(source.getProperty(key), quantity, UnitTypeOf(unitSystem));
    };
    const double referenceDensity = value(IComponent::REFERENCE_DENSITY, density);
    const double referenceTemperature = value(IComponent::REFERENCE_TEMPERATURE, temperature);
    for (const StandardConditions& standard : standardConditions) {
        if (std::abs(referenceTemperature - standard.temperature) / standard.temperature <
            temperatureTolerance) {
            target.SetReferenceDensity(referenceDensity, standard.conditions);
            return;
        }
    }
}

} // namespace Orv::FluidBench::Impl::IO
