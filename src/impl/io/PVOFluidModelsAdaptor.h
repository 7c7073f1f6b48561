// The store that the deck interpreter writes into.
#pragma once

#include "FluidBench/Common/Units.h"
#include "Kes/SimFluid/IFluidModels.h"

#include <map>
#include <memory>
#include <set>
#include <string>

namespace Orv::FluidBench::Impl::IO {

/// Collects compositional models, each a `PVOCompositionalModelAdaptor`, and one tracer model, and
/// owns them: what it gives is valid until it is deleted here or the store goes. Black-oil,
/// separator and tracking models are refused: those operations throw
/// `MethodNotImplementedException` with the name of the operation.
class PVOFluidModelsAdaptor : public Kes::SimFluid::IFluidModels {
public:
    PVOFluidModelsAdaptor();
    ~PVOFluidModelsAdaptor() override;

    /// Units of the deck, for the models that are made from here on.
    void setUnitSystem(Common::Units::UNIT_TYPE units);

    Kes::SimFluid::IBlackOilModel* makeBlackOilModel(const std::string& name) override;

    /// Where the name is taken, "_2", "_3" and so on make it another.
    Kes::SimFluid::ICompositionalModel* makeCompositionalModel(const std::string& name) override;
    /// Null where there is no model of that name, and the name is taken from here on.
    Kes::SimFluid::ICompositionalModel* getCompositionalModel(const std::string& name) override;
    const Kes::SimFluid::ICompositionalModel*
    getCompositionalModel(const std::string& name) const override;
    void deleteCompositionalModel(const std::string& name) override;
    /// The names of all models, and those that somebody asked for in vain.
    std::set<std::string> getCompositionalModelNames() const override;

    Kes::SimFluid::ISeparatorModel* makeSeparatorModel(const std::string& name) override;
    Kes::SimFluid::ISeparatorModel* makeSeparatorModel(const std::string& name,
                                                       int stages) override;
    Kes::SimFluid::ISeparatorModel* getSeparatorModel(const std::string& name) override;
    const Kes::SimFluid::ISeparatorModel* getSeparatorModel(const std::string& name) const override;
    void deleteSeparatorModel(const std::string& name) override;
    /// One name that stands for none, as for tracers.
    std::set<std::string> getSeparatorModelNames() const override;
    bool hasSeparatorModel(const std::string& name, int stages) const override;
    bool hasSeparatorModel(const std::string& name) const override;

    /// The first tracer made holds for every name until it is deleted under its own.
    Kes::SimFluid::ITracerModel* makeTracerModel(const std::string& name) override;
    Kes::SimFluid::ITracerModel* getTracerModel(const std::string& name) override;
    const Kes::SimFluid::ITracerModel* getTracerModel(const std::string& name) const override;
    void deleteTracerModel(const std::string& name) override;
    std::set<std::string> getTracerModelNames() const override;

    Kes::SimFluid::ITrackingModel* makeTrackingModel(const std::string& name) override;
    Kes::SimFluid::ITrackingModel* getTrackingModel(const std::string& name) override;
    const Kes::SimFluid::ITrackingModel* getTrackingModel(const std::string& name) const override;
    void deleteTrackingModel(const std::string& name) override;

private:
    std::string UniqueName(const std::string& requested) const;
    Kes::SimFluid::ITracerModel* TheTracerModel(const std::string& name) const;

    // Asking for what isn't there makes an entry, also in a constant store.
    mutable std::map<std::string, std::unique_ptr<Kes::SimFluid::ICompositionalModel>> models;
    mutable std::unique_ptr<Kes::SimFluid::ITracerModel> tracerModel;
    Common::Units::UNIT_TYPE unitSystem = Common::Units::METRIC;
};

} // namespace Orv::FluidBench::Impl::IO
