// The simulator's own table of values against depth.
#pragma once

#include "Kes/SimFluid/IDepthTable.h"
#include "Visibility.h"

#include <cstddef>
#include <vector>

namespace Orv::Kes::SimFluid {

/// A value that owns its numbers.
class FLUIDBENCH_BOUNDARY_API StdDepthTable : public IDepthTable {
public:
    StdDepthTable();
    StdDepthTable(const StdDepthTable&);
    StdDepthTable& operator=(const StdDepthTable&);
    ~StdDepthTable() override;

    double getValue(int row, int column) const override;
    double getDepth(int row) const override;
    int getNumRows() const override;
    int getNumColumns() const override;
    void clear(int columns) override;
    void addRow(double depth) override;
    void setValue(int row, int column, double value) override;

private:
    std::size_t Row(int row) const;
    std::size_t Place(int row, int column) const;

    int columns_ = 0;
    std::vector<double> depths_;
    std::vector<double> values_; // row after row
};

} // namespace Orv::Kes::SimFluid
