// A plot: two axes and the lines between them.
#pragma once

#include "FluidBench/Common/Line.h"
#include "Visibility.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace Orv::FluidBench::Common {

/// A value that owns its lines. Lines of the same type and phase are told apart by their index,
/// which counts them in the order in which they were added. One thread at a time may change a plot.
class FLUIDBENCH_BOUNDARY_API CommonPlottingObject {
public:
    /// What an axis measures, in model units.
    enum class AxisType : std::int32_t {
        Temperature = 0, ///< K
        Pressure = 1,    ///< Pa
        Viscosity = 2,   ///< Pa.s
        Density = 3,     ///< kg/m3
        Fraction = 4,
        Enthalpy = 5,   ///< J/mol
        MolarVolume = 6 ///< m3/mol
    };

    /// A plot without lines.
    CommonPlottingObject(AxisType xAxis, AxisType yAxis);
    CommonPlottingObject(const CommonPlottingObject&);
    CommonPlottingObject(CommonPlottingObject&&) noexcept;
    CommonPlottingObject& operator=(const CommonPlottingObject&);
    CommonPlottingObject& operator=(CommonPlottingObject&&) noexcept;
    ~CommonPlottingObject();

    /// Appends the line: a copy of it, or the line itself where it may be moved from. Moving is the
    /// stand-in's own.
    void AddLine(const Line& line);
    void AddLine(Line&& line);

    /// Whether there are lines of that type and phase, and how many.
    bool HasLine(Line::Type type, Line::Phase phase) const noexcept;
    int NumberOfLines(Line::Type type, Line::Phase phase) const noexcept;
    /// Valid until a line is added. Throws `std::out_of_range` where there is no such line.
    const Line& GetLine(Line::Type type, Line::Phase phase, int index) const;

    /// As given when the plot was made.
    AxisType GetXAxisType() const noexcept;
    AxisType GetYAxisType() const noexcept;

    // The stand-in's own operation.

    /// All lines in the order in which they were added; valid until a line is added. A plot that
    /// goes at once gives its lines away.
    const std::vector<Line>& GetLines() const& noexcept;
    std::vector<Line> GetLines() && noexcept;

private:
    AxisType xAxis_;
    AxisType yAxis_;
    std::vector<Line> lines_;
    // Where the lines of a type and phase are.
    std::map<std::pair<Line::Type, Line::Phase>, std::vector<std::size_t>> places_;
};

} // namespace Orv::FluidBench::Common
