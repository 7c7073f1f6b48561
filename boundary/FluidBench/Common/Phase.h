// One phase of a stage of an experiment.
#pragma once

#include <utility>
#include <vector>

namespace Orv::FluidBench::Common {

/// A value: whether the phase exists, and what it consists of.
class Phase {
public:
    /// Whether the stage has this phase; at first it has not.
    bool Present() const noexcept { return isPresent_; }

    /// One fraction per component, in the fluid's order; of no meaning while the phase isn't
    /// present.
    std::vector<double> Composition;

    // The stand-in's own operations.

    /// From here on the phase is present and consists of that.
    void Set(std::vector<double> composition) noexcept {
        Composition = std::move(composition);
        isPresent_ = true;
    }
    /// Leaves the composition as it is.
    void SetPresent(bool isPresent) noexcept { isPresent_ = isPresent; }

private:
    bool isPresent_ = false;
};

} // namespace Orv::FluidBench::Common
