// Component properties against temperature.
#pragma once

#include "Visibility.h"

namespace Orv::Kes::SimFluid {

/// Rows of temperatures and columns of components, all 0.0 until they are set. Operations with a
/// row or column that the table lacks throw `std::out_of_range`.
class FLUIDBENCH_BOUNDARY_API ITemperatureTable {
public:
    virtual ~ITemperatureTable() = default;
    /// Numbers that still have a place are kept.
    virtual int getNumTemperatures() const = 0;
    virtual void setNumTemperatures(int count) = 0;
    virtual int getNumComponents() const = 0;
    virtual void setNumComponents(int count) = 0;
    /// Temperatures and properties are in the units of the deck.
    virtual double getTemperature(int row) const = 0;
    virtual void setTemperature(int row, double value) = 0;
    virtual double getProperty(int row, int component) const = 0;
    virtual void setProperty(int row, int component, double value) = 0;

protected:
    ITemperatureTable() = default;
    ITemperatureTable(const ITemperatureTable&) = default;
    ITemperatureTable& operator=(const ITemperatureTable&) = default;
};

} // namespace Orv::Kes::SimFluid
