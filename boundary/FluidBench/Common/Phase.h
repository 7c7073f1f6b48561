// One phase of a stage of an experiment.
#pragma once

#include <vector>

namespace Orv::FluidBench::Common {

/// A value: whether the phase exists, and what it consists of.
class Phase {
public:
    bool Present() const noexcept { return isPresent_; }

    /// The stand-in's own operation.
    void SetPresent(bool isPresent) noexcept { isPresent_ = isPresent; }

    /// One fraction per component, in the fluid's order; of no meaning while the phase isn't
    /// present.
    std::vector<double> Composition;

private:
    bool isPresent_ = false;
};

} // namespace Orv::FluidBench::Common
