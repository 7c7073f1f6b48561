// The toolbox's library of pure components.
#pragma once

#include "FluidBench/Model/FluidComponent.h"
#include "Visibility.h"

#include <string>

namespace Orv::FluidBench::Model {

/// Critical properties of pure components from standard tables.
class FLUIDBENCH_BOUNDARY_API ComponentLibrary {
public:
    /// Opens a library; the stand-in has one, number 0. Throws `std::invalid_argument` for any
    /// other number.
    explicit ComponentLibrary(int library);
    ~ComponentLibrary();

    /// The component of that name with molecular weight, critical properties, acentric factor and
    /// parachor set, source `Library`. Throws `std::invalid_argument` for a name that the library
    /// doesn't hold.
    FluidComponent GetComponent(const std::string& name) const;
};

} // namespace Orv::FluidBench::Model
