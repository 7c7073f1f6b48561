#include "DeckUnitSystems.h"

#include "Kes/Core/Service/Measurements/UnitManager.h"
#include "Kes/Core/Service/Units/UnitConverter.h"

namespace Orv::FluidBench::Impl::IO {

using Common::pvtEnumPVOUnitSystemType;
using Kes::Core::Service::Measurements::Measurement;
using Kes::Core::Service::Measurements::UnitManager;
using Kes::Core::Service::Units::UnitConverter;
using Kes::Core::Service::Units::UnitSystem;
using UnitType = Common::Units::UNIT_TYPE;

namespace {

const char* SystemName(UnitType unit) noexcept {
    switch (unit) {
    case UnitType::METRIC:
        return "KESTREL_METRIC";
    case UnitType::FIELD:
        return "KESTREL_FIELD";
    case UnitType::LAB:
        return "KESTREL_LAB";
    case UnitType::PVT_M:
        return "KESTREL_PVT-M";
    }
    return "KESTREL_METRIC";
}

} // namespace

UnitType UnitTypeOf(pvtEnumPVOUnitSystemType deckUnits) noexcept {
    return deckUnits == pvtEnumPVOUnitSystemType::Field ? UnitType::FIELD : UnitType::METRIC;
}

UnitSystem GetDeckUnitSystem(UnitType unit) {
    return UnitManager::GetUnitManager().GetUnitSystem(SystemName(unit));
}

double ConvertToCanonical(double value, const std::string& measurement, UnitType unit) {
    const UnitManager& manager = UnitManager::GetUnitManager();
    UnitSystem deck = GetDeckUnitSystem(unit);
    Measurement& measured = manager.GetMeasurement(measurement);
    return UnitConverter::Convert(value, &manager.GetUnit(deck, measured),
                                  &manager.GetUnit(manager.GetUnitSystem("Canonical"), measured));
}

} // namespace Orv::FluidBench::Impl::IO
