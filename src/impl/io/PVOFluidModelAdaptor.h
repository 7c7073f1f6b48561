// What every kind of fluid model has while a deck is interpreted.
#pragma once

#include "FluidBench/Common/Units.h"
#include "Kes/SimFluid/StdInitialCondition.h"
#include "Kes/SimFluid/StdTemperatureTable.h"
#include "Kes/SimFluid/StdWaterProperties.h"

#include <memory>
#include <set>
#include <string>

namespace Orv::FluidBench::Impl::IO {

/// The operations of a fluid model that don't depend on its kind, for a `ModelInterface` derived
/// from `IFluidModel`. Owns one object of each sort; a getter makes the one that isn't there yet,
/// also of a constant model. Not copyable: a copy would share those objects.
template <typename ModelInterface>
class PVOFluidModelAdaptor : public ModelInterface {
public:
    PVOFluidModelAdaptor(const std::string& modelName, Common::Units::UNIT_TYPE units)
        : unitSystem(units), name(modelName) {}
    PVOFluidModelAdaptor(const PVOFluidModelAdaptor&) = delete;
    PVOFluidModelAdaptor& operator=(const PVOFluidModelAdaptor&) = delete;
    ~PVOFluidModelAdaptor() override = default;

    std::string getName() const override { return name; }

    Kes::SimFluid::IWaterProperties& getWaterProperties() override {
        return HeldOrNew(waterProperties);
    }
    const Kes::SimFluid::IWaterProperties& getWaterProperties() const override {
        return HeldOrNew(waterProperties);
    }
    void deleteWaterProperties() override { waterProperties.reset(); }

    /// A model has one initial condition at the most: the first name holds for every other.
    Kes::SimFluid::IInitialCondition&
    makeInitialCondition(const std::string& conditionName) override {
        return HeldOrNew(initialCondition, conditionName);
    }
    Kes::SimFluid::IInitialCondition&
    getInitialCondition(const std::string& conditionName) override {
        return HeldOrNew(initialCondition, conditionName);
    }
    const Kes::SimFluid::IInitialCondition&
    getInitialCondition(const std::string& conditionName) const override {
        return HeldOrNew(initialCondition, conditionName);
    }
    void deleteInitialCondition(const std::string& conditionName) override {
        if (initialCondition != nullptr && initialCondition->getName() == conditionName) {
            initialCondition.reset();
        }
    }
    std::set<std::string> getInitialConditionNames() const override {
        return initialCondition == nullptr ? std::set<std::string>()
                                           : std::set{initialCondition->getName()};
    }

    bool isThermal() const override { return false; }

    Kes::SimFluid::ITemperatureTable& getTemperatureTable() override {
        return HeldOrNew(temperatureTable);
    }
    const Kes::SimFluid::ITemperatureTable& getTemperatureTable() const override {
        return HeldOrNew(temperatureTable);
    }
    void deleteTemperatureTable() override { temperatureTable.reset(); }

private:
    template <typename Object, typename... Arguments>
    static Object& HeldOrNew(std::shared_ptr<Object>& held, const Arguments&... arguments) {
        if (held == nullptr) {
            held = std::make_shared<Object>(arguments...);
        }
        return *held;
    }

    [[maybe_unused]] Common::Units::UNIT_TYPE unitSystem; // of the deck; told, and never asked for
    std::string name;
    mutable std::shared_ptr<Kes::SimFluid::StdWaterProperties> waterProperties;
    mutable std::shared_ptr<Kes::SimFluid::StdInitialCondition> initialCondition;
    mutable std::shared_ptr<Kes::SimFluid::StdTemperatureTable> temperatureTable;
};

} // namespace Orv::FluidBench::Impl::IO
