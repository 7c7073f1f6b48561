// Published constants of the toolbox's correlations.
#pragma once

#include "Visibility.h"

#include <vector>

namespace Orv::FluidBench::Utilities {

/// Static operations only.
class FLUIDBENCH_BOUNDARY_API ModelParameters {
public:
    /// The five coefficients of the polynomial in reduced density by which Lohrenz, Bray and Clark
    /// (Journal of Petroleum Technology, October 1964) give the viscosity of reservoir fluids,
    /// constant term first; dimensionless.
    static std::vector<double> GetLohrenzBrayClarkViscosityCoeffs();
};

} // namespace Orv::FluidBench::Utilities
