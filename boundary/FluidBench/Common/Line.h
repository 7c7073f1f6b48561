// A line of a plot.
#pragma once

#include "FluidBench/Common/Point.h"
#include "Visibility.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Orv::FluidBench::Common {

/// A value that owns its points. It doesn't change once it is made.
class FLUIDBENCH_BOUNDARY_API Line {
public:
    /// What a line is to its plot. The I/O library knows the curves of a phase diagram only.
    enum class Type : std::int32_t { PhaseCurve = 1 };

    /// What a line stands for. A critical point is a line too, of one point.
    enum class Phase : std::int32_t {
        Bubble = 0,
        Dew = 1,
        CriticalPoint = 2,
        Aqueous = 3,
        HydrateTypeI = 4,
        HydrateTypeII = 5,
        Ice = 6,
        VapourFraction = 7, ///< all along which the vapour has the line's phase fraction
        PX2 = 13,
        PX3 = 14,
        TX2 = 15,
        TX3 = 16
    };

    /// A line of the points that the columns make: entry k of each belongs to point k. What one
    /// column has more than the other is dropped. The phase fraction is 0.0 unless given.
    Line(std::string name, std::vector<double> x, std::vector<double> y, Type type, Phase phase);
    Line(std::string name, std::vector<double> x, std::vector<double> y, Type type, Phase phase,
         double phaseFraction);
    Line(const Line&);
    Line(Line&&) noexcept;
    Line& operator=(const Line&);
    Line& operator=(Line&&) noexcept;
    ~Line();

    /// In the units of the plot's axes.
    std::vector<Point> GetPoints() const;
    /// 0 to 1, and 0.0 for any line but those of `VapourFraction`.
    double GetPhaseFraction() const noexcept;

    // The stand-in's own operations.

    /// What is given by reference is valid until the line is assigned to or goes.
    const std::string& GetName() const noexcept;
    /// What `GetPoints` copies.
    const std::vector<Point>& ViewPoints() const noexcept;
    /// As given when the line was made.
    Type GetType() const noexcept;
    Phase GetPhase() const noexcept;

private:
    std::string name_;
    std::vector<Point> points_;
    Type type_;
    Phase phase_;
    double phaseFraction_;
};

} // namespace Orv::FluidBench::Common
