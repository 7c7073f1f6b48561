// The inside of a fluid. The toolbox's commands work on it directly; everybody else goes through
// CompositionalFluid, which owns one.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "FluidBench/Impl/Command/CompositionalFluidCommand.h"
#include "FluidBench/Model/FluidComponent.h"

#include <atomic>
#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Orv::FluidBench::Impl::Command {

/// A value. Components are found by name, and coefficients by the places of their components in a
/// lower triangle, so neither look-up walks a list.
class CompositionalFluidCommand {
public:
    std::string name;
    Common::pvtEnumEoS eos = Common::pvtEnumEoS::PengRobinson;
    Common::pvtEnumViscosityMethod viscosity = Common::pvtEnumViscosityMethod::LohrenzBrayClark;
    Common::pvtEnumInterfacialTensionMethod interfacialTension =
        Common::pvtEnumInterfacialTensionMethod::Parachor;
    Common::pvtEnumUnitFraction fractionType = Common::pvtEnumUnitFraction::Mole;
    bool temperatureDependentVolumeShift = false;

    struct Entry {
        Model::FluidComponent component;
        double fraction;
        std::string globalName;
    };

    /// In the order in which the components were first set.
    const std::vector<Entry>& Components() const noexcept { return components_; }

    std::optional<std::size_t> Find(const std::string& componentName) const;
    std::optional<std::size_t> FindGlobal(const std::string& globalName) const;
    /// The same, for a name that must be there; throw `std::invalid_argument`.
    std::size_t Get(const std::string& componentName) const;
    std::size_t GetGlobal(const std::string& globalName) const;

    /// Adds a component, or replaces the one of that name in its place. Throws
    /// `PropertyOutOfRangeException` for a fraction that is negative or not finite, and
    /// `std::invalid_argument` for a new component whose name is another one's global name.
    void SetComponent(const Model::FluidComponent& component, double fraction);
    void SetGlobalName(std::size_t index, const std::string& globalName);

    /// Nothing where no coefficient is set, for a name that isn't there, or where both names are
    /// the same.
    std::optional<double> Coefficient(const std::string& first, const std::string& second) const;
    /// Throws `std::invalid_argument` for a name that isn't there or where both names are the same,
    /// and `PropertyOutOfRangeException` for a value that isn't finite.
    void SetCoefficient(const std::string& first, const std::string& second, double value);

private:
    // Where a look-up begins. Threads that read one fluid share it: wherever it points, a name is
    // found, and no copy depends on it.
    class Hint {
    public:
        Hint() = default;
        Hint(const Hint&) noexcept {}
        Hint& operator=(const Hint&) noexcept { return *this; }

        std::size_t Place() const noexcept { return place_.load(std::memory_order_relaxed); }
        void MoveTo(std::size_t place) noexcept { place_.store(place, std::memory_order_relaxed); }

    private:
        std::atomic<std::size_t> place_ = 0;
    };

    // The place of the component; behind the last one where there is none.
    std::size_t FindNear(Hint& hint, const std::string& componentName) const;
    std::size_t GetNear(Hint& hint, const std::string& componentName) const;

    std::vector<Entry> components_;
    std::unordered_map<std::string, std::size_t> indexOfName_;
    std::unordered_map<std::string, std::size_t> indexOfGlobalName_;
    // Row i holds the i coefficients of component i with those before it. Coefficients are finite;
    // a not-a-number stands where none is set.
    std::vector<double> coefficients_;
    // Where the components of the coefficient that was set or asked for last are.
    mutable Hint first_;
    mutable Hint second_;
};

} // namespace Orv::FluidBench::Impl::Command
