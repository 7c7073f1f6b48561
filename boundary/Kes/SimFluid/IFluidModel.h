// What every kind of fluid has in the simulator's store.
#pragma once

#include "Kes/SimFluid/IInitialCondition.h"
#include "Kes/SimFluid/ITemperatureTable.h"
#include "Kes/SimFluid/IWaterProperties.h"
#include "Visibility.h"

#include <set>
#include <string>

namespace Orv::Kes::SimFluid {

/// The objects that the operations give belong to the model. Where a `get` finds nothing, it makes
/// the object.
class FLUIDBENCH_BOUNDARY_API IFluidModel {
public:
    virtual ~IFluidModel() = default;
    /// As given when the model was made.
    virtual std::string getName() const = 0;

    /// The water of the model. Deleting it does nothing where there is none.
    virtual IWaterProperties& makeWaterProperties() = 0;
    virtual IWaterProperties& getWaterProperties() = 0;
    virtual const IWaterProperties& getWaterProperties() const = 0;
    virtual void deleteWaterProperties() = 0;

    /// Initial conditions by name. Deleting one does nothing where there is no such condition.
    virtual IInitialCondition& makeInitialCondition(const std::string& name) = 0;
    virtual IInitialCondition& getInitialCondition(const std::string& name) = 0;
    virtual const IInitialCondition& getInitialCondition(const std::string& name) const = 0;
    virtual void deleteInitialCondition(const std::string& name) = 0;
    virtual std::set<std::string> getInitialConditionNames() const = 0;

    /// Whether the simulator follows temperatures.
    virtual bool isThermal() const = 0;

    /// Component properties against temperature. Deleting them does nothing where there are none.
    virtual ITemperatureTable& getTemperatureTable() = 0;
    virtual const ITemperatureTable& getTemperatureTable() const = 0;
    virtual void deleteTemperatureTable() = 0;

protected:
    IFluidModel() = default;
    IFluidModel(const IFluidModel&) = default;
    IFluidModel& operator=(const IFluidModel&) = default;
};

} // namespace Orv::Kes::SimFluid
