// Completes the properties of a fluid from those that are known.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Model/CharacterisationControl.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "Visibility.h"

namespace Orv::FluidBench::Model {

/// Lives for one operation.
class FLUIDBENCH_BOUNDARY_API Characterisation {
public:
    Characterisation();
    ~Characterisation();

    /// Completes the fluid in place. The stand-in fills in what follows without any correlation:
    /// of critical pressure, temperature, volume and Z-factor, the one that is missing where the
    /// three others are known, by Pc Vc = Zc R Tc; and the critical volume for viscosity, which is
    /// the critical volume unless it was tuned. Gives an empty report.
    Common::ErrorReport CharacteriseFor(CompositionalFluid& fluid,
                                        const CharacterisationControl& control) const;
};

} // namespace Orv::FluidBench::Model
