// One component: a table of properties with sources, and the range checks of their setters.
#include "FluidBench/Model/FluidComponent.h"

#include "FluidBench/Common/Exceptions.h"
#include "FluidComponentData.h"

#include <cmath>

namespace Orv::FluidBench::Model {

using Common::EmptyComponentNameException;
using Common::PropertyOutOfRangeException;
using Common::pvtEnumHCForm;
using Common::pvtEnumPropertySource;
using Common::pvtEnumStandardConditions;
using Common::RelatedPropertyOutOfRangeException;

namespace {

constexpr double referenceTemperature = 288.706; // K, 60 degrees F

enum class Range { AnyFinite, NotNegative };

void Check(const std::string& component, const char* quantity, double value, Range range) {
    if (!std::isfinite(value)) {
        throw PropertyOutOfRangeException("The " + std::string(quantity) + " of component '" +
                                          component + "' must be a finite number");
    }
    if (range == Range::NotNegative && value < 0.0) {
        throw PropertyOutOfRangeException("The " + std::string(quantity) + " of component '" +
                                          component + "' can't be negative");
    }
}

} // namespace

void FluidComponent::Data::Set(Property FluidComponent::Data::*property, double value) {
    this->*property = {value, pvtEnumPropertySource::User};
}

void FluidComponent::Data::CheckOmegas(double a, double b) const {
    if (a > 0.0 && b > 0.0 && b >= a) {
        throw RelatedPropertyOutOfRangeException(
            "Omega B of component '" + name +
            "' must be below its omega A, or the substance could not condense");
    }
}

FluidComponent::FluidComponent(const std::string& name) {
    if (name.find_first_not_of(' ') == std::string::npos) {
        throw EmptyComponentNameException("A fluid component must have a name");
    }
    data_ = std::make_unique<Data>();
    data_->name = name;
}

FluidComponent::FluidComponent(const FluidComponent& other)
    : data_(std::make_unique<Data>(*other.data_)) {}
FluidComponent::FluidComponent(FluidComponent&&) noexcept = default;
FluidComponent& FluidComponent::operator=(const FluidComponent& other) {
    if (this != &other) {
        data_ = std::make_unique<Data>(*other.data_);
    }
    return *this;
}
FluidComponent& FluidComponent::operator=(FluidComponent&&) noexcept = default;
FluidComponent::~FluidComponent() = default;

const std::string& FluidComponent::GetName() const {
    return data_->name;
}

void FluidComponent::SetMolecularWeight(double value) {
    Check(data_->name, "molecular weight", value, Range::NotNegative);
    data_->Set(&Data::molecularWeight, value);
}
double FluidComponent::GetMolecularWeight() const {
    return data_->molecularWeight.value;
}
pvtEnumPropertySource FluidComponent::GetMolecularWeightSource() const {
    return data_->molecularWeight.source;
}

void FluidComponent::SetPcrit(double value) {
    Check(data_->name, "critical pressure", value, Range::NotNegative);
    data_->Set(&Data::criticalPressure, value);
}
double FluidComponent::GetPcrit() const {
    return data_->criticalPressure.value;
}
pvtEnumPropertySource FluidComponent::GetPcritSource() const {
    return data_->criticalPressure.source;
}

void FluidComponent::SetTcrit(double value) {
    Check(data_->name, "critical temperature", value, Range::NotNegative);
    data_->Set(&Data::criticalTemperature, value);
}
double FluidComponent::GetTcrit() const {
    return data_->criticalTemperature.value;
}
pvtEnumPropertySource FluidComponent::GetTcritSource() const {
    return data_->criticalTemperature.source;
}

void FluidComponent::SetVcrit(double value) {
    Check(data_->name, "critical volume", value, Range::NotNegative);
    data_->Set(&Data::criticalVolume, value);
}
double FluidComponent::GetVcrit() const {
    return data_->criticalVolume.value;
}
pvtEnumPropertySource FluidComponent::GetVcritSource() const {
    return data_->criticalVolume.source;
}

void FluidComponent::SetVcritViscosity(double value) {
    Check(data_->name, "critical volume for viscosity", value, Range::NotNegative);
    data_->Set(&Data::criticalVolumeForViscosity, value);
}
double FluidComponent::GetVcritViscosity() const {
    return data_->criticalVolumeForViscosity.value;
}
pvtEnumPropertySource FluidComponent::GetVcritViscositySource() const {
    return data_->criticalVolumeForViscosity.source;
}

void FluidComponent::SetZcrit(double value) {
    Check(data_->name, "critical Z-factor", value, Range::NotNegative);
    data_->Set(&Data::criticalZFactor, value);
}
double FluidComponent::GetZcrit() const {
    return data_->criticalZFactor.value;
}
pvtEnumPropertySource FluidComponent::GetZcritSource() const {
    return data_->criticalZFactor.source;
}

void FluidComponent::SetAcf(double value) {
    Check(data_->name, "acentric factor", value, Range::AnyFinite);
    data_->Set(&Data::acentricFactor, value);
}
double FluidComponent::GetAcf() const {
    return data_->acentricFactor.value;
}
pvtEnumPropertySource FluidComponent::GetAcfSource() const {
    return data_->acentricFactor.source;
}

void FluidComponent::SetParachor(double value) {
    Check(data_->name, "parachor", value, Range::NotNegative);
    data_->Set(&Data::parachor, value);
}
double FluidComponent::GetParachor() const {
    return data_->parachor.value;
}
pvtEnumPropertySource FluidComponent::GetParachorSource() const {
    return data_->parachor.source;
}

void FluidComponent::SetEoSVolumeShift(double value) {
    Check(data_->name, "volume shift", value, Range::AnyFinite);
    data_->Set(&Data::volumeShift, value);
}
double FluidComponent::GetEoSVolumeShift() const {
    return data_->volumeShift.value;
}
pvtEnumPropertySource FluidComponent::GetEoSVolumeShiftSource() const {
    return data_->volumeShift.source;
}
double FluidComponent::GetEoSTDependantVolumeShift(double temperature,
                                                   bool useTemperatureDependence) const {
    if (!useTemperatureDependence ||
        data_->thermalExpansion.source == pvtEnumPropertySource::NoValue) {
        return data_->volumeShift.value;
    }
    return data_->volumeShift.value +
           data_->thermalExpansion.value * (temperature - referenceTemperature);
}

void FluidComponent::SetOmegaA(double value) {
    Check(data_->name, "omega A", value, Range::NotNegative);
    data_->CheckOmegas(value, data_->omegaB.value);
    data_->Set(&Data::omegaA, value);
}
double FluidComponent::GetOmegaA() const {
    return data_->omegaA.value;
}
pvtEnumPropertySource FluidComponent::GetOmegaASource() const {
    return data_->omegaA.source;
}

void FluidComponent::SetOmegaB(double value) {
    Check(data_->name, "omega B", value, Range::NotNegative);
    data_->CheckOmegas(data_->omegaA.value, value);
    data_->Set(&Data::omegaB, value);
}
double FluidComponent::GetOmegaB() const {
    return data_->omegaB.value;
}
pvtEnumPropertySource FluidComponent::GetOmegaBSource() const {
    return data_->omegaB.source;
}

void FluidComponent::SetHeatVapourisation(double value) {
    Check(data_->name, "heat of vaporisation", value, Range::NotNegative);
    data_->Set(&Data::heatOfVaporisation, value);
}
double FluidComponent::GetHeatVapourisation() const {
    return data_->heatOfVaporisation.value;
}
pvtEnumPropertySource FluidComponent::GetHeatVapourisationSource() const {
    return data_->heatOfVaporisation.source;
}

void FluidComponent::SetThermExpCoeff(double value) {
    Check(data_->name, "thermal expansion coefficient", value, Range::AnyFinite);
    data_->Set(&Data::thermalExpansion, value);
}
double FluidComponent::GetThermExpCoeff() const {
    return data_->thermalExpansion.value;
}
pvtEnumPropertySource FluidComponent::GetThermExpCoeffSource() const {
    return data_->thermalExpansion.source;
}

void FluidComponent::SetReferenceDensity(double density, pvtEnumStandardConditions conditions) {
    Check(data_->name, "reference density", density, Range::NotNegative);
    data_->Set(&Data::referenceDensity, density);
    data_->referenceConditions = conditions;
}
double FluidComponent::GetReferenceDensity() const {
    return data_->referenceDensity.value;
}
pvtEnumPropertySource FluidComponent::GetReferenceDensitySource() const {
    return data_->referenceDensity.source;
}
pvtEnumStandardConditions FluidComponent::GetReferenceDensityConditions() const {
    return data_->referenceConditions;
}

void FluidComponent::SetHydrocarbonForm(pvtEnumHCForm form) {
    data_->form = form;
}
pvtEnumHCForm FluidComponent::GetHydrocarbonForm() const {
    return data_->form;
}

} // namespace Orv::FluidBench::Model
