#include "PVOFluidModelsAdaptor.h"

#include "FluidBench/Common/Exceptions.h"
#include "Kes/SimFluid/StdTracerModel.h"
#include "PVOCompositionalModelAdaptor.h"

#include <utility>

namespace Orv::FluidBench::Impl::IO {

using Common::MethodNotImplementedException;
using Common::Units;
using Kes::SimFluid::IBlackOilModel;
using Kes::SimFluid::ICompositionalModel;
using Kes::SimFluid::ISeparatorModel;
using Kes::SimFluid::ITracerModel;
using Kes::SimFluid::ITrackingModel;
using Kes::SimFluid::StdTracerModel;

namespace {

[[noreturn]] void Refuse(const std::string& operation) {
    throw MethodNotImplementedException("Method PVOFluidModelsAdaptor::" + operation +
                                        " is not implemented.");
}

// Some callers take a model for granted where there is a name to ask with.
std::set<std::string> PlaceholderName() {
    return {"dummy"};
}

} // namespace

PVOFluidModelsAdaptor::PVOFluidModelsAdaptor() = default;
PVOFluidModelsAdaptor::~PVOFluidModelsAdaptor() = default;

void PVOFluidModelsAdaptor::setUnitSystem(Units::UNIT_TYPE units) {
    unitSystem = units;
}

// Compositional models.

std::string PVOFluidModelsAdaptor::UniqueName(const std::string& requested) const {
    std::string candidate = requested;
    for (int counter = 2; models.contains(candidate); ++counter) {
        candidate = requested + "_" + std::to_string(counter);
    }
    return candidate;
}

ICompositionalModel* PVOFluidModelsAdaptor::makeCompositionalModel(const std::string& name) {
    auto model = std::make_unique<PVOCompositionalModelAdaptor>(UniqueName(name), unitSystem);
    const std::string modelName = model->getName();
    return (models[modelName] = std::move(model)).get();
}
ICompositionalModel* PVOFluidModelsAdaptor::getCompositionalModel(const std::string& name) {
    return models[name].get();
}
const ICompositionalModel*
PVOFluidModelsAdaptor::getCompositionalModel(const std::string& name) const {
    return models[name].get();
}
void PVOFluidModelsAdaptor::deleteCompositionalModel(const std::string& name) {
    models.erase(name);
}
std::set<std::string> PVOFluidModelsAdaptor::getCompositionalModelNames() const {
    std::set<std::string> names;
    for (const auto& [name, model] : models) {
        names.insert(names.end(), name);
    }
    return names;
}

// The one tracer model.

ITracerModel* PVOFluidModelsAdaptor::TheTracerModel(const std::string& name) const {
    if (tracerModel == nullptr) {
        tracerModel = std::make_unique<StdTracerModel>(name);
    }
    return tracerModel.get();
}

ITracerModel* PVOFluidModelsAdaptor::makeTracerModel(const std::string& name) {
    return TheTracerModel(name);
}
ITracerModel* PVOFluidModelsAdaptor::getTracerModel(const std::string& name) {
    return TheTracerModel(name);
}
const ITracerModel* PVOFluidModelsAdaptor::getTracerModel(const std::string& name) const {
    return TheTracerModel(name);
}
void PVOFluidModelsAdaptor::deleteTracerModel(const std::string& name) {
    if (tracerModel != nullptr && tracerModel->getName() == name) {
        tracerModel.reset();
    }
}
std::set<std::string> PVOFluidModelsAdaptor::getTracerModelNames() const {
    return PlaceholderName();
}

// What a compositional deck doesn't need.

IBlackOilModel* PVOFluidModelsAdaptor::makeBlackOilModel(const std::string&) {
    Refuse("makeBlackOilModel");
}

ISeparatorModel* PVOFluidModelsAdaptor::makeSeparatorModel(const std::string&) {
    Refuse("makeSeparatorModel");
}
ISeparatorModel* PVOFluidModelsAdaptor::makeSeparatorModel(const std::string&, int) {
    Refuse("makeSeparatorModel");
}
ISeparatorModel* PVOFluidModelsAdaptor::getSeparatorModel(const std::string&) {
    Refuse("getSeparatorModel");
}
const ISeparatorModel* PVOFluidModelsAdaptor::getSeparatorModel(const std::string&) const {
    Refuse("getSeparatorModel");
}
void PVOFluidModelsAdaptor::deleteSeparatorModel(const std::string&) {
    Refuse("deleteSeparatorModel");
}
std::set<std::string> PVOFluidModelsAdaptor::getSeparatorModelNames() const {
    return PlaceholderName();
}
bool PVOFluidModelsAdaptor::hasSeparatorModel(const std::string&, int) const {
    Refuse("hasSeparatorModel");
}
bool PVOFluidModelsAdaptor::hasSeparatorModel(const std::string& name) const {
    return hasSeparatorModel(name, 0);
}

ITrackingModel* PVOFluidModelsAdaptor::makeTrackingModel(const std::string&) {
    Refuse("makeTrackingModel");
}
ITrackingModel* PVOFluidModelsAdaptor::getTrackingModel(const std::string&) {
    Refuse("getTrackingModel");
}
const ITrackingModel* PVOFluidModelsAdaptor::getTrackingModel(const std::string&) const {
    Refuse("getTrackingModel");
}
void PVOFluidModelsAdaptor::deleteTrackingModel(const std::string&) {
    Refuse("deleteTrackingModel");
}

} // namespace Orv::FluidBench::Impl::IO
