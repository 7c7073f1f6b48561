// A set of binary interaction coefficients while a deck is interpreted.
#pragma once

#include "IndexMap.h"
#include "Kes/SimFluid/IBinaryInteractionCoefficients.h"

namespace Orv::FluidBench::Impl::IO {

/// Sparse and symmetric: one entry for a pair of components in either order, none for a zero, and
/// none for a component with itself. Any index is as good as another. A value.
///
/// A deck may give half a million coefficients, and they are set and asked for one by one, so they
/// aren't kept in a node each.
class PVOBinaryInteractionCoefficientsAdaptor
    : public Kes::SimFluid::IBinaryInteractionCoefficients {
public:
    PVOBinaryInteractionCoefficientsAdaptor();
    PVOBinaryInteractionCoefficientsAdaptor(const PVOBinaryInteractionCoefficientsAdaptor&) =
        default;
    PVOBinaryInteractionCoefficientsAdaptor&
    operator=(const PVOBinaryInteractionCoefficientsAdaptor&) = default;
    ~PVOBinaryInteractionCoefficientsAdaptor() override;

    double get(int i, int j) const override;
    void set(int i, int j, double value) override;

private:
    IndexMap<IndexMap<double>> coefficients; // by the lower and then the higher index
};

} // namespace Orv::FluidBench::Impl::IO
