// The unit services: a table of unit systems and measurements, and conversion by factors.
#include "Kes/Core/Service/Measurements/UnitManager.h"
#include "Kes/Core/Service/Units/UnitConverter.h"
#include "UnitDefinitions.h"

#include <map>
#include <stdexcept>
#include <utility>

namespace Orv::Kes::Core::Service::Units {

Unit::Unit(std::string name, double canonicalUnits)
    : name_(std::move(name)), canonicalUnits_(canonicalUnits) {}

UnitSystem::UnitSystem(std::string name) : name_(std::move(name)) {}
UnitSystem::UnitSystem(const UnitSystem&) = default;
UnitSystem& UnitSystem::operator=(const UnitSystem&) = default;
UnitSystem::~UnitSystem() = default;

double UnitConverter::Convert(double value, Unit* from, Unit* to) {
    return value * from->InCanonicalUnits() / to->InCanonicalUnits();
}

} // namespace Orv::Kes::Core::Service::Units

namespace Orv::Kes::Core::Service::Measurements {

using Units::Unit;
using Units::UnitSystem;
using namespace UnitDefinitions;

namespace {

struct UnitDefinition {
    const char* name;
    double canonicalUnits;
};

constexpr UnitDefinition pascal{"Pa", 1.0};
constexpr UnitDefinition bar{"bar", pascalPerBar};
constexpr UnitDefinition psia{"psia", pascalPerPsi};
constexpr UnitDefinition atmosphere{"atm", pascalPerAtmosphere};

constexpr UnitDefinition kilogramPerCubicMetre{"kg/m3", 1.0};
constexpr UnitDefinition poundPerCubicFoot{"lb/ft3", kilogramPerPound / cubicMetrePerCubicFoot};
constexpr UnitDefinition gramPerCubicCentimetre{"g/cc", 1000.0};

constexpr UnitDefinition kelvin{"K", 1.0};
constexpr UnitDefinition rankine{"R", 1.0 / rankinePerKelvin};

constexpr UnitDefinition cubicMetrePerKilogramMole{"m3/kg-mole", 1.0};
constexpr UnitDefinition cubicFootPerPoundMole{"ft3/lb-mole",
                                               cubicMetrePerCubicFoot / kilogramPerPound};
constexpr UnitDefinition cubicCentimetrePerGramMole{"cc/g-mole", 0.001};

struct System {
    const char* name;
    UnitDefinition pressure;
    UnitDefinition density;
    UnitDefinition absoluteTemperature;
    UnitDefinition molarVolume;
};

// clang-format off
constexpr System systems[] = {
    {"KESTREL_METRIC", bar,        kilogramPerCubicMetre,  kelvin,  cubicMetrePerKilogramMole},
    {"KESTREL_FIELD",  psia,       poundPerCubicFoot,      rankine, cubicFootPerPoundMole},
    {"KESTREL_LAB",    atmosphere, gramPerCubicCentimetre, kelvin,  cubicCentimetrePerGramMole},
    {"KESTREL_PVT-M",  atmosphere, kilogramPerCubicMetre,  kelvin,  cubicMetrePerKilogramMole},
    {"Canonical",      pascal,     kilogramPerCubicMetre,  kelvin,  cubicMetrePerKilogramMole},
};
// clang-format on

template <typename Map, typename Key>
auto& Find(Map& map, const Key& key, const std::string& what) {
    const auto found = map.find(key);
    if (found == map.end()) {
        throw std::invalid_argument("The unit services don't know " + what);
    }
    return found->second;
}

} // namespace

Measurement::Measurement(std::string name) : name_(std::move(name)) {}

struct UnitManager::Directory {
    std::map<std::string, Measurement> measurements;
    std::map<std::string, UnitSystem> systems;
    std::map<std::pair<std::string, std::string>, Unit> units; // by system and measurement

    void Add(const System& system, const std::string& measurement, UnitDefinition unit) {
        measurements.emplace(measurement, Measurement(measurement));
        units.emplace(std::pair(system.name, measurement), Unit(unit.name, unit.canonicalUnits));
    }
};

UnitManager::UnitManager() : directory_(std::make_unique<Directory>()) {
    for (const System& system : Measurements::systems) {
        directory_->systems.emplace(system.name, UnitSystem(system.name));
        directory_->Add(system, "Pressure", system.pressure);
        directory_->Add(system, "Density", system.density);
        directory_->Add(system, "AbsoluteTemperature", system.absoluteTemperature);
        directory_->Add(system, "MolarVolume", system.molarVolume);
    }
}
UnitManager::~UnitManager() = default;

const UnitManager& UnitManager::GetUnitManager() {
    static const UnitManager manager;
    return manager;
}

Measurement& UnitManager::GetMeasurement(const std::string& name) const {
    return Find(directory_->measurements, name, "a measurement '" + name + "'");
}

UnitSystem& UnitManager::GetUnitSystem(const std::string& name) const {
    return Find(directory_->systems, name, "a unit system '" + name + "'");
}

Unit& UnitManager::GetUnit(UnitSystem& system, Measurement& measurement) const {
    return Find(directory_->units, std::pair(system.GetName(), measurement.GetName()),
                "a unit of '" + measurement.GetName() + "' in '" + system.GetName() + "'");
}

} // namespace Orv::Kes::Core::Service::Measurements
