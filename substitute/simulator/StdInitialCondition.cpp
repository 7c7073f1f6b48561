#include "Kes/SimFluid/StdInitialCondition.h"

namespace Orv::Kes::SimFluid {

StdInitialCondition::StdInitialCondition(const std::string& name) : name_(name) {}
StdInitialCondition::~StdInitialCondition() = default;

std::string StdInitialCondition::getName() const {
    return name_;
}

double StdInitialCondition::getDatumDepth() const {
    return datumDepth_;
}
void StdInitialCondition::setDatumDepth(double depth) {
    datumDepth_ = depth;
}
double StdInitialCondition::getDatumPressure() const {
    return datumPressure_;
}
void StdInitialCondition::setDatumPressure(double pressure) {
    datumPressure_ = pressure;
}
double StdInitialCondition::getGasOilContactDepth() const {
    return gasOilContactDepth_;
}
void StdInitialCondition::setGasOilContactDepth(double depth) {
    gasOilContactDepth_ = depth;
}
double StdInitialCondition::getGasOilContactCapillaryPressure() const {
    return gasOilContactCapillaryPressure_;
}
void StdInitialCondition::setGasOilContactCapillaryPressure(double pressure) {
    gasOilContactCapillaryPressure_ = pressure;
}
double StdInitialCondition::getWaterContactDepth() const {
    return waterContactDepth_;
}
void StdInitialCondition::setWaterContactDepth(double depth) {
    waterContactDepth_ = depth;
}
double StdInitialCondition::getWaterContactCapillaryPressure() const {
    return waterContactCapillaryPressure_;
}
void StdInitialCondition::setWaterContactCapillaryPressure(double pressure) {
    waterContactCapillaryPressure_ = pressure;
}

bool StdInitialCondition::hasDepthTable(Property property) const {
    return depthTables_.contains(property);
}
IDepthTable& StdInitialCondition::getDepthTable(Property property) {
    return depthTables_[property];
}
const IDepthTable& StdInitialCondition::getDepthTable(Property property) const {
    return depthTables_.at(property);
}
void StdInitialCondition::deleteDepthTable(Property property) {
    depthTables_.erase(property);
}

} // namespace Orv::Kes::SimFluid
