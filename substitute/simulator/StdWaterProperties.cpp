#include "Kes/SimFluid/StdWaterProperties.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Orv::Kes::SimFluid {

namespace {

class BrineComponent : public IBrineComponent {
public:
    explicit BrineComponent(std::string name) : name_(std::move(name)) {}
    std::string getName() const override { return name_; }

private:
    std::string name_;
};

class BrinePropertyTable : public IBrinePropertyTable {};

IBrineComponent& Require(IBrineComponent* component, const std::string& name) {
    if (component == nullptr) {
        throw std::invalid_argument("The brine has no component called '" + name + "'");
    }
    return *component;
}

} // namespace

StdWaterProperties::StdWaterProperties() = default;
StdWaterProperties::~StdWaterProperties() = default;

double StdWaterProperties::getSurfaceDensity() const {
    return surfaceDensity_;
}
void StdWaterProperties::setSurfaceDensity(double value) {
    surfaceDensity_ = value;
}
void StdWaterProperties::setPressure(double value) {
    pressure_ = value;
}
double StdWaterProperties::getPressure() const {
    return pressure_;
}
void StdWaterProperties::setFormationVolumeFactor(double value) {
    formationVolumeFactor_ = value;
}
double StdWaterProperties::getFormationVolumeFactor() const {
    return formationVolumeFactor_;
}
void StdWaterProperties::setCompressibility(double value) {
    compressibility_ = value;
}
double StdWaterProperties::getCompressibility() const {
    return compressibility_;
}
void StdWaterProperties::setViscosity(double value) {
    viscosity_ = value;
}
double StdWaterProperties::getViscosity() const {
    return viscosity_;
}
void StdWaterProperties::setViscosibility(double value) {
    viscosibility_ = value;
}
double StdWaterProperties::getViscosibility() const {
    return viscosibility_;
}
void StdWaterProperties::setKValueCoefficientA(double value) {
    kValueCoefficientA_ = value;
}
double StdWaterProperties::getKValueCoefficientA() const {
    return kValueCoefficientA_;
}
void StdWaterProperties::setKValueCoefficientB(double value) {
    kValueCoefficientB_ = value;
}
double StdWaterProperties::getKValueCoefficientB() const {
    return kValueCoefficientB_;
}
void StdWaterProperties::setKValueCoefficientC(double value) {
    kValueCoefficientC_ = value;
}
double StdWaterProperties::getKValueCoefficientC() const {
    return kValueCoefficientC_;
}
void StdWaterProperties::setKValueCoefficientD(double value) {
    kValueCoefficientD_ = value;
}
double StdWaterProperties::getKValueCoefficientD() const {
    return kValueCoefficientD_;
}
void StdWaterProperties::setKValueCoefficientE(double value) {
    kValueCoefficientE_ = value;
}
double StdWaterProperties::getKValueCoefficientE() const {
    return kValueCoefficientE_;
}
void StdWaterProperties::setReferenceTemperature(double value) {
    referenceTemperature_ = value;
}
double StdWaterProperties::getReferenceTemperature() const {
    return referenceTemperature_;
}
void StdWaterProperties::setThermalExpansionCoefficient1(double value) {
    thermalExpansionCoefficient1_ = value;
}
double StdWaterProperties::getThermalExpansionCoefficient1() const {
    return thermalExpansionCoefficient1_;
}
void StdWaterProperties::setThermalExpansionCoefficient2(double value) {
    thermalExpansionCoefficient2_ = value;
}
double StdWaterProperties::getThermalExpansionCoefficient2() const {
    return thermalExpansionCoefficient2_;
}

IBrineComponent* StdWaterProperties::FindBrineComponent(const std::string& name) const {
    const auto found = std::ranges::find_if(
        brineComponents_, [&](const auto& component) { return component->getName() == name; });
    return found == brineComponents_.end() ? nullptr : found->get();
}

IBrineComponent& StdWaterProperties::makeBrineComponent(const std::string& name) {
    return *brineComponents_.emplace_back(std::make_unique<BrineComponent>(name));
}
int StdWaterProperties::getNumBrineComponents() const {
    return static_cast<int>(brineComponents_.size());
}
IBrineComponent& StdWaterProperties::getBrineComponent(const std::string& name) {
    return Require(FindBrineComponent(name), name);
}
const IBrineComponent& StdWaterProperties::getBrineComponent(const std::string& name) const {
    return Require(FindBrineComponent(name), name);
}
IBrineComponent& StdWaterProperties::getBrineComponent(int index) {
    return *brineComponents_.at(static_cast<std::size_t>(index));
}
const IBrineComponent& StdWaterProperties::getBrineComponent(int index) const {
    return *brineComponents_.at(static_cast<std::size_t>(index));
}
bool StdWaterProperties::hasBrineComponent(const std::string& name) const {
    return FindBrineComponent(name) != nullptr;
}

IBrinePropertyTable& StdWaterProperties::makeBrinePropertyTable() {
    brinePropertyTable_ = std::make_unique<BrinePropertyTable>();
    return *brinePropertyTable_;
}
IBrinePropertyTable* StdWaterProperties::getBrinePropertyTable() {
    return brinePropertyTable_.get();
}
const IBrinePropertyTable* StdWaterProperties::getBrinePropertyTable() const {
    return brinePropertyTable_.get();
}
void StdWaterProperties::deleteBrinePropertyTable() {
    brinePropertyTable_.reset();
}

} // namespace Orv::Kes::SimFluid
