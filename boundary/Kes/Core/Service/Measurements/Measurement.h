// A kind of quantity.
#pragma once

#include "Visibility.h"

#include <string>

namespace Orv::Kes::Core::Service::Measurements {

/// What can be measured: "Pressure", "Density", "AbsoluteTemperature", "MolarVolume". A value.
class FLUIDBENCH_BOUNDARY_API Measurement {
public:
    // The stand-in's own operations.

    /// By the name that `UnitManager` knows it by.
    explicit Measurement(std::string name);
    const std::string& GetName() const noexcept { return name_; }

private:
    std::string name_;
};

} // namespace Orv::Kes::Core::Service::Measurements
