// A system of units.
#pragma once

#include "Visibility.h"

#include <string>

namespace Orv::Kes::Core::Service::Units {

/// A value that stands for the system: which unit a measurement has in it, `UnitManager::GetUnit`
/// knows.
class FLUIDBENCH_BOUNDARY_API UnitSystem {
public:
    UnitSystem(const UnitSystem&);
    UnitSystem& operator=(const UnitSystem&);
    ~UnitSystem();

    // The stand-in's own operations.

    /// By the name that `UnitManager` knows it by.
    explicit UnitSystem(std::string name);
    const std::string& GetName() const noexcept { return name_; }

private:
    std::string name_;
};

} // namespace Orv::Kes::Core::Service::Units
