// A tracer: a part of a component whose way through the reservoir is followed.
#pragma once

#include "Kes/SimFluid/IDepthTable.h"
#include "Visibility.h"

#include <string>

namespace Orv::Kes::SimFluid {

/// Depth tables have a type and, within it, an index from 0.
class FLUIDBENCH_BOUNDARY_API ITracerModel {
public:
    virtual ~ITracerModel() = default;
    /// As given when the tracer was made.
    virtual std::string getName() const = 0;
    /// The component that it is a part of; empty at first.
    virtual std::string getComponentName() const = 0;
    virtual void setComponentName(const std::string& name) = 0;

    /// Appends an empty table to those of the type.
    virtual IDepthTable& makeDepthTable(int type) = 0;
    /// The getters throw `std::out_of_range` when there is no such table.
    virtual IDepthTable& getDepthTable(int type, int index) = 0;
    virtual const IDepthTable& getDepthTable(int type, int index) const = 0;
    /// Those behind it move up by one. Throws as the getters do.
    virtual void deleteDepthTable(int type, int index) = 0;
    /// How many there are, of all types or of one.
    virtual int getNumOfDepthTables() const = 0;
    virtual int getNumOfDepthTablesOfType(int type) const = 0;
    virtual bool hasDepthTablesOfType(int type) const = 0;

protected:
    ITracerModel() = default;
    ITracerModel(const ITracerModel&) = default;
    ITracerModel& operator=(const ITracerModel&) = default;
};

} // namespace Orv::Kes::SimFluid
