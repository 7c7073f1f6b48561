// What a fluid component holds, shared by the component and the library of pure components.
#pragma once

#include "FluidBench/Model/FluidComponent.h"

#include <string>

namespace Orv::FluidBench::Model {

struct FluidComponent::Data {
    struct Property {
        double value = 0.0;
        Common::pvtEnumPropertySource source = Common::pvtEnumPropertySource::NoValue;
    };

    std::string name;
    Property molecularWeight;
    Property criticalPressure;
    Property criticalTemperature;
    Property criticalVolume;
    Property criticalVolumeForViscosity;
    Property criticalZFactor;
    Property acentricFactor;
    Property parachor;
    Property volumeShift;
    Property omegaA;
    Property omegaB;
    Property heatOfVaporisation;
    Property thermalExpansion;
    Property referenceDensity;
    Common::pvtEnumStandardConditions referenceConditions =
        Common::pvtEnumStandardConditions::Fahrenheit60;
    Common::pvtEnumHCForm form = Common::pvtEnumHCForm::Hydrocarbon;

    /// Stores a value that somebody gave.
    void Set(Property Data::*property, double value);

    /// The pair rule of omega A and omega B; zeros stand for values that aren't known.
    void CheckOmegas(double a, double b) const;
};

} // namespace Orv::FluidBench::Model
