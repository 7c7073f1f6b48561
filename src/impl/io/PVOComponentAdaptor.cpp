#include "PVOComponentAdaptor.h"

#include <stdexcept>

namespace Orv::FluidBench::Impl::IO {

namespace {

// `quantity` says of what kind the value is.
template <typename Value>
Value Get(const std::map<std::int32_t, Value>& values, std::int32_t key,
          const std::string& component, const std::string& quantity) {
    const auto found = values.find(key);
    if (found == values.end()) {
        throw std::range_error("Component '" + component + "' does not have " + quantity + " ");
    }
    return found->second;
}

} // namespace

PVOComponentAdaptor::PVOComponentAdaptor(const std::string& componentName) : name(componentName) {}
PVOComponentAdaptor::~PVOComponentAdaptor() = default;

const std::string& PVOComponentAdaptor::getName() const {
    return name;
}
int PVOComponentAdaptor::getKind() const {
    return 0;
}

bool PVOComponentAdaptor::hasProperty(int key) const {
    return properties.contains(key);
}
double PVOComponentAdaptor::getProperty(int key) const {
    return Get(properties, key, name, "property");
}
void PVOComponentAdaptor::setProperty(int key, double value) {
    properties[key] = value;
}
void PVOComponentAdaptor::deleteProperty(int key) {
    properties.erase(key);
}

int PVOComponentAdaptor::getAttribute1() const {
    return attribute1;
}
void PVOComponentAdaptor::setAttribute1(int value) {
    attribute1 = value;
}
int PVOComponentAdaptor::getAttribute2() const {
    return attribute2;
}
void PVOComponentAdaptor::setAttribute2(int value) {
    attribute2 = value;
}
int PVOComponentAdaptor::getAttribute3() const {
    return attribute3;
}
void PVOComponentAdaptor::setAttribute3(int value) {
    attribute3 = value;
}
int PVOComponentAdaptor::getAttribute4() const {
    return attribute4;
}
void PVOComponentAdaptor::setAttribute4(int value) {
    attribute4 = value;
}

int PVOComponentAdaptor::getDensity(int key) const {
    return Get(densities, key, name, "density");
}
void PVOComponentAdaptor::setDensity(int key, int value) {
    densities[key] = value;
}
int PVOComponentAdaptor::getViscosity(int key) const {
    return Get(viscosities, key, name, "viscosity");
}
void PVOComponentAdaptor::setViscosity(int key, int value) {
    viscosities[key] = value;
}

} // namespace Orv::FluidBench::Impl::IO
