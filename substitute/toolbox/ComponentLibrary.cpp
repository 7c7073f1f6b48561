// Critical properties of pure components, from standard tables.
#include "FluidBench/Model/ComponentLibrary.h"

#include "FluidComponentData.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

namespace Orv::FluidBench::Model {

using Common::pvtEnumHCForm;
using Common::pvtEnumPropertySource;

namespace {

struct PureComponent {
    std::string_view name;
    double molecularWeight;     // g/mol
    double criticalTemperature; // K
    double criticalPressure;    // Pa
    double criticalVolume;      // m3 per gram-mole
    double criticalZFactor;
    double acentricFactor;
    double parachor;
    pvtEnumHCForm form;
};

constexpr auto hydrocarbon = pvtEnumHCForm::Hydrocarbon;
constexpr auto nonHydrocarbon = pvtEnumHCForm::NonHydrocarbon;

// clang-format off
constexpr std::array pureComponents = {
    //             name   M       Tc      Pc        Vc         Zc     omega   parachor
    PureComponent{"H2",   2.016,  33.19,  1.313e6,  0.0641e-3, 0.305, -0.216,  34.0, nonHydrocarbon},
    PureComponent{"N2",  28.014, 126.20,  3.398e6,  0.0901e-3, 0.292,  0.037,  41.0, nonHydrocarbon},
    PureComponent{"CO",  28.010, 132.85,  3.494e6,  0.0931e-3, 0.294,  0.045,  46.0, nonHydrocarbon},
    PureComponent{"CO2", 44.010, 304.12,  7.374e6,  0.0940e-3, 0.274,  0.225,  78.0, nonHydrocarbon},
    PureComponent{"H2S", 34.081, 373.40,  8.963e6,  0.0980e-3, 0.283,  0.090,  80.0, nonHydrocarbon},
    PureComponent{"H2O", 18.015, 647.14, 22.064e6,  0.0559e-3, 0.229,  0.344,  52.0, nonHydrocarbon},
    PureComponent{"C1",  16.043, 190.56,  4.599e6,  0.0986e-3, 0.286,  0.011,  77.0, hydrocarbon},
    PureComponent{"C2",  30.070, 305.32,  4.872e6,  0.1455e-3, 0.279,  0.099, 108.0, hydrocarbon},
    PureComponent{"C3",  44.096, 369.83,  4.248e6,  0.2000e-3, 0.276,  0.152, 150.0, hydrocarbon},
    PureComponent{"iC4", 58.122, 407.85,  3.640e6,  0.2590e-3, 0.278,  0.186, 181.0, hydrocarbon},
    PureComponent{"nC4", 58.122, 425.12,  3.796e6,  0.2550e-3, 0.274,  0.200, 190.0, hydrocarbon},
    PureComponent{"iC5", 72.149, 460.39,  3.381e6,  0.3060e-3, 0.270,  0.229, 225.0, hydrocarbon},
    PureComponent{"nC5", 72.149, 469.70,  3.370e6,  0.3130e-3, 0.270,  0.252, 232.0, hydrocarbon},
    PureComponent{"C6",  86.175, 507.60,  3.025e6,  0.3710e-3, 0.266,  0.301, 271.0, hydrocarbon},
};
// clang-format on

} // namespace

ComponentLibrary::ComponentLibrary(int library) {
    if (library != 0) {
        throw std::invalid_argument("There is no component library " + std::to_string(library) +
                                    "; the only one is 0");
    }
}

ComponentLibrary::~ComponentLibrary() = default;

FluidComponent ComponentLibrary::GetComponent(const std::string& name) const {
    const auto* const found = std::ranges::find(pureComponents, name, &PureComponent::name);
    if (found == pureComponents.end()) {
        throw std::invalid_argument("The component library holds no component called '" + name +
                                    "'");
    }
    FluidComponent component(name);
    FluidComponent::Data& data = *component.data_;
    constexpr auto library = pvtEnumPropertySource::Library;
    data.molecularWeight = {found->molecularWeight, library};
    data.criticalTemperature = {found->criticalTemperature, library};
    data.criticalPressure = {found->criticalPressure, library};
    data.criticalVolume = {found->criticalVolume, library};
    data.criticalZFactor = {found->criticalZFactor, library};
    data.acentricFactor = {found->acentricFactor, library};
    data.parachor = {found->parachor, library};
    data.form = found->form;
    return component;
}

} // namespace Orv::FluidBench::Model
