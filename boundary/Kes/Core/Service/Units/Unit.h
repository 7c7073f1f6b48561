// One unit of a measurement.
#pragma once

#include "Visibility.h"

#include <string>

namespace Orv::Kes::Core::Service::Units {

/// A unit by its measure: so many canonical units of the same measurement. Every measurement here
/// has its zero in the same place in all units. A value.
class FLUIDBENCH_BOUNDARY_API Unit {
public:
    // The stand-in's own operations.

    /// "bar", for instance, is 100,000 canonical units of a pressure.
    Unit(std::string name, double canonicalUnits);

    /// As given when the unit was made.
    const std::string& GetName() const noexcept { return name_; }
    double InCanonicalUnits() const noexcept { return canonicalUnits_; }

private:
    std::string name_;
    double canonicalUnits_;
};

} // namespace Orv::Kes::Core::Service::Units
