#include "PVOCompositionalModelAdaptor.h"

#include <algorithm>
#include <stdexcept>

namespace Orv::FluidBench::Impl::IO {

using Kes::SimFluid::IBinaryInteractionCoefficients;
using Kes::SimFluid::IComponent;
using Kes::SimFluid::IPropertyTable;
using Kes::SimFluid::IReactionModel;
using Kes::SimFluid::IWaterProperties;

namespace {

[[noreturn]] void RefuseAqueousComponents() {
    throw std::runtime_error("ERROR: aqueous soluble components not yet supported");
}

[[noreturn]] void RefuseAsNotImplemented() {
    throw std::runtime_error("The method or operation is not implemented.");
}

// Place of an aqueous coefficient set in a list of them.
template <typename Sets>
auto& AqueousSet(Sets& sets, int number) {
    if (number < 1 || number > static_cast<int>(sets.size())) {
        throw std::range_error(
            "Invalid aqueous IBinaryInteractionCoefficients coefficient number (" +
            std::to_string(number) + ") : must be 1, 2 or 3.");
    }
    return sets[static_cast<std::size_t>(number - 1)];
}

} // namespace

PVOCompositionalModelAdaptor::PVOCompositionalModelAdaptor(const std::string& modelName,
                                                           Common::Units::UNIT_TYPE units)
    : PVOFluidModelAdaptor(modelName, units) {}
PVOCompositionalModelAdaptor::~PVOCompositionalModelAdaptor() = default;

IWaterProperties& PVOCompositionalModelAdaptor::makeWaterProperties() {
    return getWaterProperties();
}

// Models.

void PVOCompositionalModelAdaptor::setEquationOfState(int code) {
    equationOfState = code;
}
int PVOCompositionalModelAdaptor::getEquationOfState() const {
    return equationOfState;
}
void PVOCompositionalModelAdaptor::setViscosityModel(int code) {
    viscosityModel = code;
}
int PVOCompositionalModelAdaptor::getViscosityModel() const {
    return viscosityModel;
}
void PVOCompositionalModelAdaptor::setInterfacialTensionModel(int code) {
    interfacialTensionModel = code;
}
int PVOCompositionalModelAdaptor::getInterfacialTensionModel() const {
    return interfacialTensionModel;
}

// Components.

std::size_t PVOCompositionalModelAdaptor::Checked(int index) const {
    if (index < 0 || index >= getNumComponents()) {
        throw std::runtime_error("ERROR: attempting to access component with invalid index");
    }
    return static_cast<std::size_t>(index);
}

std::size_t PVOCompositionalModelAdaptor::Find(const std::string& componentName) const {
    const int index = getComponentIndex(componentName);
    if (index < 0) {
        throw std::invalid_argument("Compositional Fluid Model " + getName() +
                                    " does not contain a component called '" + componentName +
                                    "'.");
    }
    return static_cast<std::size_t>(index);
}

IComponent& PVOCompositionalModelAdaptor::makeComponent(const std::string& componentName) {
    return components.emplace_back(componentName);
}
int PVOCompositionalModelAdaptor::getNumComponents() const {
    return static_cast<int>(components.size());
}
IComponent& PVOCompositionalModelAdaptor::getComponent(const std::string& componentName) {
    return components[Find(componentName)];
}
const IComponent&
PVOCompositionalModelAdaptor::getComponent(const std::string& componentName) const {
    return components[Find(componentName)];
}
IComponent& PVOCompositionalModelAdaptor::getComponent(int index) {
    return components[Checked(index)];
}
const IComponent& PVOCompositionalModelAdaptor::getComponent(int index) const {
    return components[Checked(index)];
}
bool PVOCompositionalModelAdaptor::hasComponent(const std::string& componentName) const {
    return getComponentIndex(componentName) >= 0;
}
int PVOCompositionalModelAdaptor::getComponentIndex(const std::string& componentName) const {
    const auto found = std::ranges::find(components, componentName, &PVOComponentAdaptor::getName);
    return found == components.end() ? -1 : static_cast<int>(found - components.begin());
}
void PVOCompositionalModelAdaptor::deleteComponent(int index) {
    components.erase(components.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
}

// Aqueous components.

IComponent& PVOCompositionalModelAdaptor::getAqueousSolubleComponent(const std::string&) {
    RefuseAqueousComponents();
}
const IComponent&
PVOCompositionalModelAdaptor::getAqueousSolubleComponent(const std::string&) const {
    RefuseAqueousComponents();
}
IComponent& PVOCompositionalModelAdaptor::getAqueousSolubleComponent(int) {
    RefuseAqueousComponents();
}
const IComponent& PVOCompositionalModelAdaptor::getAqueousSolubleComponent(int) const {
    RefuseAqueousComponents();
}
IComponent& PVOCompositionalModelAdaptor::getAqueousSolubleComponent(const IComponent&) {
    RefuseAqueousComponents();
}
const IComponent&
PVOCompositionalModelAdaptor::getAqueousSolubleComponent(const IComponent&) const {
    RefuseAqueousComponents();
}
bool PVOCompositionalModelAdaptor::hasAqueousSolubleComponent(const std::string&) const {
    return false;
}
int PVOCompositionalModelAdaptor::getNumAqueousSolubleComponents() const {
    return 0;
}

// Interaction coefficients.

IBinaryInteractionCoefficients& PVOCompositionalModelAdaptor::getBinaryInteractionCoefficients() {
    return binaryInteractionCoefficients;
}
const IBinaryInteractionCoefficients&
PVOCompositionalModelAdaptor::getBinaryInteractionCoefficients() const {
    return binaryInteractionCoefficients;
}
IBinaryInteractionCoefficients&
PVOCompositionalModelAdaptor::getAqueousBinaryInteractionCoefficients(int number) {
    return AqueousSet(aqueousBinaryInteractionCoefficients, number);
}
const IBinaryInteractionCoefficients&
PVOCompositionalModelAdaptor::getAqueousBinaryInteractionCoefficients(int number) const {
    return AqueousSet(aqueousBinaryInteractionCoefficients, number);
}

// Tables.

bool PVOCompositionalModelAdaptor::hasDiffusionTable(int, int) const {
    return false;
}
IPropertyTable& PVOCompositionalModelAdaptor::makeDiffusionTable(int i, int j) {
    return getDiffusionTable(i, j);
}
bool PVOCompositionalModelAdaptor::hasDiffusionTables() const {
    return false;
}
IPropertyTable& PVOCompositionalModelAdaptor::getDiffusionTable(int, int) {
    RefuseAsNotImplemented();
}
const IPropertyTable& PVOCompositionalModelAdaptor::getDiffusionTable(int, int) const {
    RefuseAsNotImplemented();
}
IPropertyTable& PVOCompositionalModelAdaptor::makeKValueTable() {
    return getKValueTable("");
}
IPropertyTable& PVOCompositionalModelAdaptor::getKValueTable(const std::string&) {
    RefuseAsNotImplemented();
}
IPropertyTable& PVOCompositionalModelAdaptor::getKValueTable() {
    return getKValueTable("");
}
std::set<std::string> PVOCompositionalModelAdaptor::getKValueTableNames() const {
    return {};
}
IPropertyTable& PVOCompositionalModelAdaptor::makeSolidTable() {
    return getSolidTable("");
}
IPropertyTable& PVOCompositionalModelAdaptor::getSolidTable(const std::string&) {
    RefuseAsNotImplemented();
}
IPropertyTable& PVOCompositionalModelAdaptor::getSolidTable() {
    return getSolidTable("");
}
std::set<std::string> PVOCompositionalModelAdaptor::getSolidTableNames() const {
    return {};
}

// Surface stages.

int PVOCompositionalModelAdaptor::getNumSurfaceStages(const std::string&) const {
    return getNumSurfaceStages();
}
int PVOCompositionalModelAdaptor::getNumSurfaceStages() const {
    return 0;
}
int PVOCompositionalModelAdaptor::getNumSurfaceStreams() const {
    return 0;
}

// What is dropped.

void PVOCompositionalModelAdaptor::deleteDiffusionTable(int, int) {}
void PVOCompositionalModelAdaptor::setReservoirTemperature(double) {}
double PVOCompositionalModelAdaptor::getReservoirTemperature() const {
    return 0.0;
}
void PVOCompositionalModelAdaptor::setSurfaceTemperature(double) {}
double PVOCompositionalModelAdaptor::getSurfaceTemperature() const {
    return 0.0;
}
void PVOCompositionalModelAdaptor::setSurfacePressure(double) {}
double PVOCompositionalModelAdaptor::getSurfacePressure() const {
    return 0.0;
}
void PVOCompositionalModelAdaptor::setSolidDensity(double) {}
void PVOCompositionalModelAdaptor::setSolidCompressibility(double) {}
void PVOCompositionalModelAdaptor::setSolidThermalExpansion(double) {}
void PVOCompositionalModelAdaptor::setSolidReferencePressure(double) {}
void PVOCompositionalModelAdaptor::setSolidReferenceTemperature(double) {}
void PVOCompositionalModelAdaptor::setSolidHeatCapacity(double) {}
double PVOCompositionalModelAdaptor::getSolidDensity() const {
    return 0.0;
}
double PVOCompositionalModelAdaptor::getSolidCompressibility() const {
    return 0.0;
}
double PVOCompositionalModelAdaptor::getSolidThermalExpansion() const {
    return 0.0;
}
double PVOCompositionalModelAdaptor::getSolidReferencePressure() const {
    return 0.0;
}
double PVOCompositionalModelAdaptor::getSolidReferenceTemperature() const {
    return 0.0;
}
double PVOCompositionalModelAdaptor::getSolidHeatCapacity() const {
    return 0.0;
}
void PVOCompositionalModelAdaptor::setUsesSurfaceEquationOfState(bool) {}
bool PVOCompositionalModelAdaptor::usesSurfaceEquationOfState() const {
    return false;
}
void PVOCompositionalModelAdaptor::setLowestTemperature(double) {}
void PVOCompositionalModelAdaptor::setHighestTemperature(double) {}
double PVOCompositionalModelAdaptor::getLowestTemperature() const {
    return 0.0;
}
double PVOCompositionalModelAdaptor::getHighestTemperature() const {
    return 0.0;
}

// Reactions.

int PVOCompositionalModelAdaptor::getNumReactions() const {
    return 0;
}
IReactionModel& PVOCompositionalModelAdaptor::makeReactionModel() {
    RefuseAsNotImplemented();
}
bool PVOCompositionalModelAdaptor::hasReactionModel() const {
    return false;
}
IReactionModel& PVOCompositionalModelAdaptor::getReactionModel() {
    RefuseAsNotImplemented();
}
const IReactionModel& PVOCompositionalModelAdaptor::getReactionModel() const {
    RefuseAsNotImplemented();
}

} // namespace Orv::FluidBench::Impl::IO
