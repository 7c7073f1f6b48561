// The simulator's own table of component properties against temperature.
#pragma once

#include "Kes/SimFluid/ITemperatureTable.h"
#include "Visibility.h"

#include <cstddef>
#include <vector>

namespace Orv::Kes::SimFluid {

/// A value that owns its numbers. A change of either count keeps the numbers that still have a
/// place.
class FLUIDBENCH_BOUNDARY_API StdTemperatureTable : public ITemperatureTable {
public:
    StdTemperatureTable();
    StdTemperatureTable(const StdTemperatureTable&);
    StdTemperatureTable& operator=(const StdTemperatureTable&);
    ~StdTemperatureTable() override;

    int getNumTemperatures() const override;
    void setNumTemperatures(int count) override;
    int getNumComponents() const override;
    void setNumComponents(int count) override;
    double getTemperature(int row) const override;
    void setTemperature(int row, double value) override;
    double getProperty(int row, int component) const override;
    void setProperty(int row, int component, double value) override;

private:
    std::size_t components_ = 0;
    std::vector<double> temperatures_;
    std::vector<std::vector<double>> properties_; // one vector for each temperature
};

} // namespace Orv::Kes::SimFluid
