// The toolbox's fluid: a face of the command object that holds everything.
#include "FluidBench/Model/CompositionalFluid.h"

#include "CompositionalFluidCommand.h"
#include "FluidBench/Common/Exceptions.h"
#include "Room.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::Impl::Command {

using Common::PropertyOutOfRangeException;

namespace {

std::optional<std::size_t> Look(const std::unordered_map<std::string, std::size_t>& index,
                                const std::string& name) {
    const auto found = index.find(name);
    return found == index.end() ? std::nullopt : std::optional(found->second);
}

std::size_t Require(std::optional<std::size_t> index, const std::string& name) {
    if (!index) {
        throw std::invalid_argument("The fluid has no component called '" + name + "'");
    }
    return *index;
}

// Names of components begin alike more often than they end alike.
bool IsSame(const std::string& first, const std::string& second) noexcept {
    return first.size() == second.size() &&
           (first.empty() || (first.back() == second.back() && first == second));
}

std::size_t PlaceInTriangle(std::size_t first, std::size_t second) noexcept {
    const auto [column, row] = std::minmax(first, second);
    return row * (row - 1) / 2 + column;
}

} // namespace

std::optional<std::size_t> CompositionalFluidCommand::Find(const std::string& componentName) const {
    return Look(indexOfName_, componentName);
}

std::size_t CompositionalFluidCommand::Get(const std::string& componentName) const {
    return Require(Find(componentName), componentName);
}

std::optional<std::size_t>
CompositionalFluidCommand::FindGlobal(const std::string& globalName) const {
    return Look(indexOfGlobalName_, globalName);
}

std::size_t CompositionalFluidCommand::GetGlobal(const std::string& globalName) const {
    return Require(FindGlobal(globalName), globalName);
}

void CompositionalFluidCommand::SetComponent(const Model::FluidComponent& component,
                                             double fraction) {
    const std::string& componentName = component.GetName();
    if (!std::isfinite(fraction) || fraction < 0.0) {
        throw PropertyOutOfRangeException("The fraction of component '" + componentName +
                                          "' must be a finite number that isn't negative");
    }
    if (const auto index = Find(componentName)) {
        components_[*index].component = component;
        components_[*index].fraction = fraction;
        return;
    }
    if (FindGlobal(componentName)) {
        throw std::invalid_argument("Another component already bears the global name '" +
                                    componentName + "'");
    }
    const std::size_t index = components_.size();
    Entry entry{component, fraction, componentName};
    MakeRoomForOneMore(components_);
    const auto place = indexOfName_.emplace(componentName, index).first;
    try {
        indexOfGlobalName_.emplace(componentName, index);
    } catch (...) {
        indexOfName_.erase(place);
        throw;
    }
    components_.push_back(std::move(entry));
}

void CompositionalFluidCommand::SetGlobalName(std::size_t index, const std::string& globalName) {
    std::string& current = components_[index].globalName;
    if (globalName == current) {
        return;
    }
    std::string next = globalName;
    indexOfGlobalName_.emplace(next, index);
    indexOfGlobalName_.erase(current);
    current = std::move(next);
}

std::optional<double> CompositionalFluidCommand::Coefficient(const std::string& first,
                                                             const std::string& second) const {
    const std::size_t row = FindNear(first_, first);
    const std::size_t column = FindNear(second_, second);
    if (std::max(row, column) == components_.size() || row == column) {
        return std::nullopt;
    }
    const std::size_t place = PlaceInTriangle(row, column);
    const bool isSet = place < coefficients_.size() && !std::isnan(coefficients_[place]);
    return isSet ? std::optional(coefficients_[place]) : std::nullopt;
}

// Half a million coefficients are set or asked for one after another, the names of each being those
// of the last one or the next in order. Then comparing is faster than looking up.
std::size_t CompositionalFluidCommand::FindNear(Hint& hint,
                                                const std::string& componentName) const {
    const std::size_t last = hint.Place();
    for (std::size_t place = last; place < components_.size() && place <= last + 1; ++place) {
        if (IsSame(components_[place].component.GetName(), componentName)) {
            hint.MoveTo(place);
            return place;
        }
    }
    const std::size_t place = Find(componentName).value_or(components_.size());
    hint.MoveTo(place);
    return place;
}

std::size_t CompositionalFluidCommand::GetNear(Hint& hint, const std::string& componentName) const {
    const std::size_t place = FindNear(hint, componentName);
    return place < components_.size() ? place : Get(componentName);
}

void CompositionalFluidCommand::SetCoefficient(const std::string& first, const std::string& second,
                                               double value) {
    const std::size_t row = GetNear(first_, first);
    const std::size_t column = GetNear(second_, second);
    if (row == column) {
        throw std::invalid_argument("Component '" + first +
                                    "' has no interaction coefficient with itself");
    }
    if (!std::isfinite(value)) {
        throw PropertyOutOfRangeException("The interaction coefficient of '" + first + "' and '" +
                                          second + "' must be a finite number");
    }
    const std::size_t place = PlaceInTriangle(row, column);
    if (place >= coefficients_.size()) {
        const std::size_t n = components_.size();
        coefficients_.resize(n * (n - 1) / 2, std::numeric_limits<double>::quiet_NaN());
    }
    coefficients_[place] = value;
}

} // namespace Orv::FluidBench::Impl::Command

namespace Orv::FluidBench::Model {

using Common::pvtEnumBICType;
using Common::pvtEnumEoS;
using Common::pvtEnumInterfacialTensionMethod;
using Common::pvtEnumPropertySource;
using Common::pvtEnumUnitFraction;
using Common::pvtEnumViscosityMethod;
using Impl::Command::CompositionalFluidCommand;

CompositionalFluid::CompositionalFluid(const std::string& name)
    : command_(std::make_unique<CompositionalFluidCommand>()) {
    command_->name = name;
}
CompositionalFluid::CompositionalFluid(const CompositionalFluid& other)
    : command_(std::make_unique<CompositionalFluidCommand>(*other.command_)) {}
CompositionalFluid::CompositionalFluid(CompositionalFluid&&) noexcept = default;
CompositionalFluid& CompositionalFluid::operator=(const CompositionalFluid& other) {
    if (this != &other) {
        command_ = std::make_unique<CompositionalFluidCommand>(*other.command_);
    }
    return *this;
}
CompositionalFluid& CompositionalFluid::operator=(CompositionalFluid&&) noexcept = default;
CompositionalFluid::~CompositionalFluid() = default;

void CompositionalFluid::SetEoS(pvtEnumEoS eos) {
    command_->eos = eos;
}
pvtEnumEoS CompositionalFluid::GetEoS() const {
    return command_->eos;
}

void CompositionalFluid::SetViscosityCorrelation(pvtEnumViscosityMethod method) {
    command_->viscosity = method;
}
pvtEnumViscosityMethod CompositionalFluid::GetViscosityCorrelation() const {
    return command_->viscosity;
}

void CompositionalFluid::SetInterfacialTensionMethod(pvtEnumInterfacialTensionMethod method) {
    command_->interfacialTension = method;
}
pvtEnumInterfacialTensionMethod CompositionalFluid::GetInterfacialTensionMethod() const {
    return command_->interfacialTension;
}

void CompositionalFluid::SetComponentFractionType(pvtEnumUnitFraction type) {
    command_->fractionType = type;
}
pvtEnumUnitFraction CompositionalFluid::GetComponentFractionType() const {
    return command_->fractionType;
}

void CompositionalFluid::SetComponent(const FluidComponent& component, double fraction) {
    command_->SetComponent(component, fraction);
}

void CompositionalFluid::SetBIC(const std::string& first, const std::string& second, double value) {
    command_->SetCoefficient(first, second, value);
}

double CompositionalFluid::GetBIC(const std::string& first, const std::string& second,
                                  pvtEnumBICType) const {
    return command_->Coefficient(first, second).value_or(0.0);
}

pvtEnumPropertySource CompositionalFluid::GetBICSource(const std::string& first,
                                                       const std::string& second,
                                                       pvtEnumBICType) const {
    return command_->Coefficient(first, second) ? pvtEnumPropertySource::User
                                                : pvtEnumPropertySource::NoValue;
}

const std::vector<FluidComponent> CompositionalFluid::GetOrderedComponents() const {
    std::vector<FluidComponent> components;
    components.reserve(command_->Components().size());
    for (const auto& entry : command_->Components()) {
        components.push_back(entry.component);
    }
    return components;
}

std::vector<std::string> CompositionalFluid::ListComponents() const {
    std::vector<std::string> names;
    names.reserve(command_->Components().size());
    for (const auto& entry : command_->Components()) {
        names.push_back(entry.component.GetName());
    }
    return names;
}

int CompositionalFluid::NumberOfComponents() const {
    return static_cast<int>(command_->Components().size());
}

double CompositionalFluid::GetComponentFraction(const std::string& name) const {
    return command_->Components()[command_->Get(name)].fraction;
}

std::vector<std::string> CompositionalFluid::ListComponentsGlobalNames() const {
    std::vector<std::string> names;
    names.reserve(command_->Components().size());
    for (const auto& entry : command_->Components()) {
        names.push_back(entry.globalName);
    }
    return names;
}

bool CompositionalFluid::HasComponentWithGlobalName(const std::string& globalName) const {
    return command_->FindGlobal(globalName).has_value();
}

double CompositionalFluid::GetComponentFractionByGlobalName(const std::string& globalName) const {
    return command_->Components()[command_->GetGlobal(globalName)].fraction;
}

bool CompositionalFluid::GetUseTemperatureDependentVolumeShift() const {
    return command_->temperatureDependentVolumeShift;
}
void CompositionalFluid::SetUseTemperatureDependentVolumeShift(bool use) {
    command_->temperatureDependentVolumeShift = use;
}

const std::string& CompositionalFluid::GetName() const {
    return command_->name;
}

void CompositionalFluid::SetGlobalName(const std::string& name, const std::string& globalName) {
    const std::size_t index = command_->Get(name);
    const auto bearer = command_->FindGlobal(globalName);
    if (bearer && *bearer != index) {
        throw std::invalid_argument("Another component already bears the global name '" +
                                    globalName + "'");
    }
    command_->SetGlobalName(index, globalName);
}

CompositionalFluidCommand& CompositionalFluid::GetFluidCommand() {
    return *command_;
}

} // namespace Orv::FluidBench::Model
