// The state of a reservoir region before production.
#pragma once

#include "Kes/SimFluid/IDepthTable.h"
#include "Visibility.h"

#include <cstdint>
#include <string>

namespace Orv::Kes::SimFluid {

/// Depths and pressures of a region, and tables of properties against depth, all in the units of
/// the deck. Numbers are 0.0 until they are set.
class FLUIDBENCH_BOUNDARY_API IInitialCondition {
public:
    /// What a depth table holds.
    enum Property : std::int32_t {
        TOTAL_COMPOSITION = 5 ///< one column a component, in the order of the components
    };

    virtual ~IInitialCondition() = default;
    /// As given when the condition was made.
    virtual std::string getName() const = 0;

    /// Depths and pressures are what was set last.
    virtual double getDatumDepth() const = 0;
    virtual void setDatumDepth(double depth) = 0;
    virtual double getDatumPressure() const = 0;
    virtual void setDatumPressure(double pressure) = 0;
    virtual double getGasOilContactDepth() const = 0;
    virtual void setGasOilContactDepth(double depth) = 0;
    virtual double getGasOilContactCapillaryPressure() const = 0;
    virtual void setGasOilContactCapillaryPressure(double pressure) = 0;
    virtual double getWaterContactDepth() const = 0;
    virtual void setWaterContactDepth(double depth) = 0;
    virtual double getWaterContactCapillaryPressure() const = 0;
    virtual void setWaterContactCapillaryPressure(double pressure) = 0;

    /// Whether there is a table of it.
    virtual bool hasDepthTable(Property property) const = 0;
    /// Makes an empty table when there is none.
    virtual IDepthTable& getDepthTable(Property property) = 0;
    /// Throws `std::out_of_range` when there is none.
    virtual const IDepthTable& getDepthTable(Property property) const = 0;
    /// Does nothing where there is none.
    virtual void deleteDepthTable(Property property) = 0;

protected:
    IInitialCondition() = default;
    IInitialCondition(const IInitialCondition&) = default;
    IInitialCondition& operator=(const IInitialCondition&) = default;
};

} // namespace Orv::Kes::SimFluid
