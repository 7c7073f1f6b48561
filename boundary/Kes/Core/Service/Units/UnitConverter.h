// Conversion from one unit to another.
#pragma once

#include "Kes/Core/Service/Units/Unit.h"
#include "Visibility.h"

namespace Orv::Kes::Core::Service::Units {

/// Static operations only.
class FLUIDBENCH_BOUNDARY_API UnitConverter {
public:
    /// The same quantity in another unit of its measurement. Neither pointer may be null.
    static double Convert(double value, Unit* from, Unit* to);
};

} // namespace Orv::Kes::Core::Service::Units
