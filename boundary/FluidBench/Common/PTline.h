// A line of a phase envelope, as pressures and temperatures.
#pragma once

#include "Visibility.h"

#include <cstdint>
#include <vector>

namespace Orv::FluidBench::Common {

/// A value that owns its two columns, which are equally long.
class FLUIDBENCH_BOUNDARY_API PTline {
public:
    /// What a line stands for. `Line::Phase` numbers the same lines in another way.
    enum class PTlineIdentifier : std::int32_t {
        Bubble = 0,
        Dew = 1,
        Critical = 2,
        Aqueous = 3,
        Ice = 4,
        HydrateTypeI = 5,
        HydrateTypeII = 6,
        Quality = 7 ///< all along which the vapour has the line's fraction
    };

    /// A line without points. The fraction is that of a quality line and 0.0 for any other.
    PTline(PTlineIdentifier identifier, double fraction);
    PTline(const PTline&);
    PTline(PTline&&) noexcept;
    PTline& operator=(const PTline&);
    PTline& operator=(PTline&&) noexcept;
    ~PTline();

    /// Replaces the points by those that the columns make, in Pa and K: entry k of each belongs to
    /// point k. What one column has more than the other is dropped. Columns that may be moved from
    /// are taken over, which is the stand-in's own.
    void SetLine(const std::vector<double>& pressures, const std::vector<double>& temperatures);
    void SetLine(std::vector<double>&& pressures, std::vector<double>&& temperatures) noexcept;

    /// As given when the line was made; a fraction is 0 to 1.
    PTlineIdentifier GetLineType() const noexcept;
    double GetQualityLineFraction() const noexcept;
    std::vector<double> GetPressures() const&;    ///< Pa
    std::vector<double> GetTemperatures() const&; ///< K

    /// A line that goes at once gives its columns away, which is the stand-in's own.
    std::vector<double> GetPressures() && noexcept;
    std::vector<double> GetTemperatures() && noexcept;

private:
    PTlineIdentifier identifier_;
    double fraction_;
    std::vector<double> pressures_;
    std::vector<double> temperatures_;
};

} // namespace Orv::FluidBench::Common
