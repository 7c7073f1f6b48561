// Completes a fluid by what follows from its own numbers, without any correlation.
#include "FluidBench/Model/Characterisation.h"

#include <utility>

namespace Orv::FluidBench::Model {

using Common::pvtEnumPropertySource;

namespace {

constexpr double gasConstant = 8.31446261815324; // J/(mol K), exact by the SI of 2019

bool IsMissing(pvtEnumPropertySource source, double value) {
    return source == pvtEnumPropertySource::NoValue || value == 0.0;
}

// Pc Vc = Zc R Tc gives the one that is missing.
void CompleteCriticalPoint(FluidComponent& component) {
    const double p = component.GetPcrit();
    const double t = component.GetTcrit();
    const double v = component.GetVcrit();
    const double z = component.GetZcrit();
    const bool noP = IsMissing(component.GetPcritSource(), p);
    const bool noT = IsMissing(component.GetTcritSource(), t);
    const bool noV = IsMissing(component.GetVcritSource(), v);
    const bool noZ = IsMissing(component.GetZcritSource(), z);
    if (int{noP} + int{noT} + int{noV} + int{noZ} != 1) {
        return;
    }
    if (noP) {
        component.SetPcrit(z * gasConstant * t / v);
    } else if (noT) {
        component.SetTcrit(p * v / (z * gasConstant));
    } else if (noV) {
        component.SetVcrit(z * gasConstant * t / p);
    } else {
        component.SetZcrit(p * v / (gasConstant * t));
    }
}

} // namespace

CharacterisationControl::CharacterisationControl() = default;
CharacterisationControl::~CharacterisationControl() = default;
Characterisation::Characterisation() = default;
Characterisation::~Characterisation() = default;

Common::ErrorReport Characterisation::CharacteriseFor(CompositionalFluid& fluid,
                                                      const CharacterisationControl&) const {
    CompositionalFluid completed = fluid;
    for (FluidComponent component : fluid.GetOrderedComponents()) {
        CompleteCriticalPoint(component);
        if (IsMissing(component.GetVcritViscositySource(), component.GetVcritViscosity()) &&
            !IsMissing(component.GetVcritSource(), component.GetVcrit())) {
            component.SetVcritViscosity(component.GetVcrit());
        }
        completed.SetComponent(component, fluid.GetComponentFraction(component.GetName()));
    }
    fluid = std::move(completed);
    return {};
}

} // namespace Orv::FluidBench::Model
