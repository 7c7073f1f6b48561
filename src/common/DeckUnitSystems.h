// The unit systems of keyword decks, and the way of a deck's numbers into the model's units.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "FluidBench/Common/Units.h"
#include "Kes/Core/Service/Units/UnitSystem.h"

#include <string>

namespace Orv::FluidBench::Impl::IO {

/// The choice of units for a deck in that system. The two enumerations number the same systems the
/// other way round; whatever isn't field counts as metric.
Common::Units::UNIT_TYPE UnitTypeOf(Common::pvtEnumPVOUnitSystemType deckUnits) noexcept;

/// The system of the unit services that the choice stands for; metric where it stands for none.
Kes::Core::Service::Units::UnitSystem GetDeckUnitSystem(Common::Units::UNIT_TYPE unit);

/// A value of a deck in the canonical unit of its measurement: Pa, kg/m3, K, m3 per kg-mole.
/// `measurement` is a name that the unit services know; they throw `std::invalid_argument` for
/// another.
double ConvertToCanonical(double value, const std::string& measurement,
                          Common::Units::UNIT_TYPE unit);

} // namespace Orv::FluidBench::Impl::IO
