// A fluid as a list of components with fractions, an equation of state and its coefficients.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "FluidBench/Model/FluidComponent.h"
#include "Visibility.h"

#include <memory>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {
class MFLFileReader;
}

namespace Orv::FluidBench::Impl::Command {
class CompositionalFluidCommand;
}

namespace Orv::FluidBench::Model {

/// A value that owns its components. Components stand in the order in which they were first set;
/// `GetOrderedComponents`, `ListComponents` and `ListComponentsGlobalNames` all give that order.
/// Looking up a component or a coefficient takes the same time whatever the number of components.
/// An operation that throws, for want of memory too, leaves the fluid as it was. One thread at a
/// time may change a fluid; any number may read one that nobody changes. A fluid that was moved
/// from may only be assigned to or destroyed.
class FLUIDBENCH_BOUNDARY_API CompositionalFluid {
public:
    /// An empty fluid. The name may be empty.
    explicit CompositionalFluid(const std::string& name);
    CompositionalFluid(const CompositionalFluid&);
    CompositionalFluid(CompositionalFluid&&) noexcept;
    CompositionalFluid& operator=(const CompositionalFluid&);
    CompositionalFluid& operator=(CompositionalFluid&&) noexcept;
    ~CompositionalFluid();

    /// Peng-Robinson at first.
    void SetEoS(Common::pvtEnumEoS eos);
    Common::pvtEnumEoS GetEoS() const;

    /// Lohrenz-Bray-Clark at first.
    void SetViscosityCorrelation(Common::pvtEnumViscosityMethod method);
    Common::pvtEnumViscosityMethod GetViscosityCorrelation() const;

    /// Parachors at first.
    void SetInterfacialTensionMethod(Common::pvtEnumInterfacialTensionMethod method);

    /// Basis of the fractions given to `SetComponent` afterwards; moles at first.
    void SetComponentFractionType(Common::pvtEnumUnitFraction type);

    /// Adds a copy of the component, or replaces the one of the same name in its place. Fractions
    /// are kept as given: not normalised and not converted. Throws `PropertyOutOfRangeException`
    /// for a fraction that is negative or not finite, and `std::invalid_argument` for a new
    /// component whose name is another one's global name.
    void SetComponent(const FluidComponent& component, double fraction);

    /// Sets the binary interaction coefficient of two different components, in either order. Throws
    /// `std::invalid_argument` when the fluid lacks one of them or both are the same, and
    /// `PropertyOutOfRangeException` when the value isn't finite.
    void SetBIC(const std::string& first, const std::string& second, double value);
    /// The coefficient; 0.0 where none is set.
    double GetBIC(const std::string& first, const std::string& second,
                  Common::pvtEnumBICType type) const;
    /// `NoValue` where no coefficient is set, and for a name that the fluid lacks.
    Common::pvtEnumPropertySource GetBICSource(const std::string& first, const std::string& second,
                                               Common::pvtEnumBICType type) const;

    /// Copies of the components, their names, and how many they are, all in the fluid's order.
    const std::vector<FluidComponent> GetOrderedComponents() const;
    std::vector<std::string> ListComponents() const;
    int NumberOfComponents() const;

    /// As given to `SetComponent`. Throws `std::invalid_argument` for a name that the fluid lacks.
    double GetComponentFraction(const std::string& name) const;

    /// A global name identifies a component across the fluids of one set of results. It is the
    /// component's name until it is set.
    std::vector<std::string> ListComponentsGlobalNames() const;
    /// Whether one of the fluid's components bears it.
    bool HasComponentWithGlobalName(const std::string& globalName) const;
    /// As `GetComponentFraction`, and it throws as that does.
    double GetComponentFractionByGlobalName(const std::string& globalName) const;

    /// Whether volume shifts follow the temperature, as `GetEoSTDependantVolumeShift` tells; at
    /// first they don't.
    bool GetUseTemperatureDependentVolumeShift() const;

    // The stand-in's own operations.

    /// Valid until the fluid is assigned to, moved from or goes.
    const std::string& GetName() const;
    /// What was set.
    Common::pvtEnumInterfacialTensionMethod GetInterfacialTensionMethod() const;
    Common::pvtEnumUnitFraction GetComponentFractionType() const;
    /// For `GetUseTemperatureDependentVolumeShift`.
    void SetUseTemperatureDependentVolumeShift(bool use);
    /// Throws `std::invalid_argument` when the fluid lacks the component or another one already
    /// bears the global name.
    void SetGlobalName(const std::string& name, const std::string& globalName);

private:
    friend class Orv::FluidBench::IO::MFLFileReader;

    /// The fluid's inside as the toolbox's commands see it. Valid until the fluid is moved from or
    /// destroyed.
    Impl::Command::CompositionalFluidCommand& GetFluidCommand();

    std::unique_ptr<Impl::Command::CompositionalFluidCommand> command_;
};

} // namespace Orv::FluidBench::Model
