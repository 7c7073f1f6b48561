// A plot: two axes and the lines between them.
#pragma once

#include "FluidBench/Common/Line.h"
#include "Visibility.h"

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
        Temperature = 0, // K
        Pressure = 1,    // Pa
        Viscosity = 2,   // Pa.s
        Density = 3,     // kg/m3
        Fraction = 4,
        Enthalpy = 5,   // J/mol
        MolarVolume = 6 // m3/mol
    };

    /// A plot without lines.
    CommonPlottingObject(AxisType xAxis, AxisType yAxis);
    CommonPlottingObject(const CommonPlottingObject&);
    CommonPlottingObject(CommonPlottingObject&&) noexcept;
    CommonPlottingObject& operator=(const CommonPlottingObject&);
    CommonPlottingObject& operator=(CommonPlottingObject&&) noexcept;
    ~CommonPlottingObject();

    /// Appends a copy of the line.
    void AddLine(const Line& line);

    bool HasLine(Line::Type type, Line::Phase phase) const noexcept;
    int NumberOfLines(Line::Type type, Line::Phase phase) const noexcept;
    /// Valid until a line is added. Throws `std::out_of_range` where there is no such line.
    const Line& GetLine(Line::Type type, Line::Phase phase, int index) const;

    AxisType GetXAxisType() const noexcept;
    AxisType GetYAxisType() const noexcept;

private:
    AxisType xAxis_;
    AxisType yAxis_;
    std::map<std::pair<Line::Type, Line::Phase>, std::vector<Line>> lines_;
};

} // namespace Orv::FluidBench::Common
