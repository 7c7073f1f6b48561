// Values against depth.
#pragma once

#include "Visibility.h"

namespace Orv::Kes::SimFluid {

/// Rows of a depth and values. Rows and columns count from 0; the depth isn't a column. Depths and
/// values stand in the units of the deck. Operations with a row or column that the table lacks
/// throw `std::out_of_range`.
class FLUIDBENCH_BOUNDARY_API IDepthTable {
public:
    virtual ~IDepthTable() = default;
    /// In the units of the deck.
    virtual double getValue(int row, int column) const = 0;
    virtual double getDepth(int row) const = 0;
    /// How many there are.
    virtual int getNumRows() const = 0;
    virtual int getNumColumns() const = 0;

    /// Empties the table and sets the number of values in a row. Throws `std::out_of_range` for a
    /// negative number.
    virtual void clear(int columns) = 0;
    /// Appends a row of zeros at that depth.
    virtual void addRow(double depth) = 0;
    /// Replaces one value of a row.
    virtual void setValue(int row, int column, double value) = 0;

protected:
    IDepthTable() = default;
    IDepthTable(const IDepthTable&) = default;
    IDepthTable& operator=(const IDepthTable&) = default;
};

} // namespace Orv::Kes::SimFluid
