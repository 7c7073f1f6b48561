// Binary interaction coefficients between the components of a fluid.
#pragma once

#include "Visibility.h"

namespace Orv::Kes::SimFluid {

/// Dimensionless coefficients by the indices of two components, in either order.
class FLUIDBENCH_BOUNDARY_API IBinaryInteractionCoefficients {
public:
    virtual ~IBinaryInteractionCoefficients() = default;
    /// 0.0 where none is set.
    virtual double get(int i, int j) const = 0;
    /// A value of 0.0 unsets the coefficient.
    virtual void set(int i, int j, double value) = 0;

protected:
    IBinaryInteractionCoefficients() = default;
    IBinaryInteractionCoefficients(const IBinaryInteractionCoefficients&) = default;
    IBinaryInteractionCoefficients& operator=(const IBinaryInteractionCoefficients&) = default;
};

} // namespace Orv::Kes::SimFluid
