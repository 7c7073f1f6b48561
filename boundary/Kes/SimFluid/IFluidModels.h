// The store that the deck interpreter writes into.
#pragma once

#include "Kes/SimFluid/ICompositionalModel.h"
#include "Kes/SimFluid/ITracerModel.h"
#include "Visibility.h"

#include <set>
#include <string>

namespace Orv::Kes::SimFluid {

// Kinds of models that this library knows by name alone.
class IBlackOilModel;
class ISeparatorModel;
class ITrackingModel;

/// Fluid models by name. What the operations give belongs to the store; null stands for no model.
/// An operation that an implementation doesn't offer throws `MethodNotImplementedException`.
class FLUIDBENCH_BOUNDARY_API IFluidModels {
public:
    virtual ~IFluidModels() = default;

    /// Opaque to the I/O library.
    virtual IBlackOilModel* makeBlackOilModel(const std::string& name) = 0;

    /// The model's name is made unique where it is taken.
    virtual ICompositionalModel* makeCompositionalModel(const std::string& name) = 0;
    /// Null, or nothing to delete, where no model has the name.
    virtual ICompositionalModel* getCompositionalModel(const std::string& name) = 0;
    virtual const ICompositionalModel* getCompositionalModel(const std::string& name) const = 0;
    virtual void deleteCompositionalModel(const std::string& name) = 0;
    virtual std::set<std::string> getCompositionalModelNames() const = 0;

    /// Separators, with or without a number of stages. Opaque to the I/O library.
    virtual ISeparatorModel* makeSeparatorModel(const std::string& name) = 0;
    virtual ISeparatorModel* makeSeparatorModel(const std::string& name, int stages) = 0;
    virtual ISeparatorModel* getSeparatorModel(const std::string& name) = 0;
    virtual const ISeparatorModel* getSeparatorModel(const std::string& name) const = 0;
    virtual void deleteSeparatorModel(const std::string& name) = 0;
    virtual std::set<std::string> getSeparatorModelNames() const = 0;
    virtual bool hasSeparatorModel(const std::string& name, int stages) const = 0;
    virtual bool hasSeparatorModel(const std::string& name) const = 0;

    /// Tracers. A getter may make the model that it is asked for.
    virtual ITracerModel* makeTracerModel(const std::string& name) = 0;
    virtual ITracerModel* getTracerModel(const std::string& name) = 0;
    virtual const ITracerModel* getTracerModel(const std::string& name) const = 0;
    virtual void deleteTracerModel(const std::string& name) = 0;
    virtual std::set<std::string> getTracerModelNames() const = 0;

    /// Opaque to the I/O library.
    virtual ITrackingModel* makeTrackingModel(const std::string& name) = 0;
    virtual ITrackingModel* getTrackingModel(const std::string& name) = 0;
    virtual const ITrackingModel* getTrackingModel(const std::string& name) const = 0;
    virtual void deleteTrackingModel(const std::string& name) = 0;

protected:
    IFluidModels() = default;
    IFluidModels(const IFluidModels&) = default;
    IFluidModels& operator=(const IFluidModels&) = default;
};

} // namespace Orv::Kes::SimFluid
