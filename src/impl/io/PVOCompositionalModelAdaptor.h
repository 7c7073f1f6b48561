// A compositional fluid while a deck is interpreted.
#pragma once

#include "Kes/SimFluid/ICompositionalModel.h"
#include "PVOBinaryInteractionCoefficientsAdaptor.h"
#include "PVOComponentAdaptor.h"
#include "PVOFluidModelAdaptor.h"

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// Keeps what a fluid is built from: the codes of its models, its components, its interaction
/// coefficients and its composition. What else a simulator's model may have is answered with a
/// constant, dropped, or refused with `std::runtime_error`.
///
/// Owns everything in it. A reference to a component is good until the next `makeComponent` or
/// `deleteComponent`. Names are compared whole; two components may bear the same one, and the first
/// is found then. Coefficients go by index and don't move when a component is deleted.
class PVOCompositionalModelAdaptor
    : public PVOFluidModelAdaptor<Kes::SimFluid::ICompositionalModel> {
public:
    PVOCompositionalModelAdaptor(const std::string& modelName, Common::Units::UNIT_TYPE units);
    ~PVOCompositionalModelAdaptor() override;

    Kes::SimFluid::IWaterProperties& makeWaterProperties() override;

    // Models, as codes of the interpreter. Any code is stored.
    void setEquationOfState(int code) override;
    int getEquationOfState() const override;
    void setViscosityModel(int code) override;
    int getViscosityModel() const override;

    // Components.
    Kes::SimFluid::IComponent& makeComponent(const std::string& componentName) override;
    int getNumComponents() const override;
    Kes::SimFluid::IComponent& getComponent(const std::string& componentName) override;
    const Kes::SimFluid::IComponent& getComponent(const std::string& componentName) const override;
    Kes::SimFluid::IComponent& getComponent(int index) override;
    const Kes::SimFluid::IComponent& getComponent(int index) const override;
    Kes::SimFluid::IComponent&
    getAqueousSolubleComponent(const std::string& componentName) override;
    const Kes::SimFluid::IComponent&
    getAqueousSolubleComponent(const std::string& componentName) const override;
    Kes::SimFluid::IComponent& getAqueousSolubleComponent(int index) override;
    const Kes::SimFluid::IComponent& getAqueousSolubleComponent(int index) const override;
    bool hasComponent(const std::string& componentName) const override;
    bool hasAqueousSolubleComponent(const std::string& componentName) const override;
    int getComponentIndex(const std::string& componentName) const override;
    void deleteComponent(int index) override;
    int getNumAqueousSolubleComponents() const override;
    Kes::SimFluid::IComponent&
    getAqueousSolubleComponent(const Kes::SimFluid::IComponent& component) override;
    const Kes::SimFluid::IComponent&
    getAqueousSolubleComponent(const Kes::SimFluid::IComponent& component) const override;

    // Interaction coefficients.
    Kes::SimFluid::IBinaryInteractionCoefficients& getBinaryInteractionCoefficients() override;
    const Kes::SimFluid::IBinaryInteractionCoefficients&
    getBinaryInteractionCoefficients() const override;
    Kes::SimFluid::IBinaryInteractionCoefficients&
    getAqueousBinaryInteractionCoefficients(int number) override;
    const Kes::SimFluid::IBinaryInteractionCoefficients&
    getAqueousBinaryInteractionCoefficients(int number) const override;

    // Tables by component pair and by name: there are none, and none can be made.
    bool hasDiffusionTable(int i, int j) const override;
    Kes::SimFluid::IPropertyTable& makeDiffusionTable(int i, int j) override;
    bool hasDiffusionTables() const override;
    Kes::SimFluid::IPropertyTable& getDiffusionTable(int i, int j) override;
    const Kes::SimFluid::IPropertyTable& getDiffusionTable(int i, int j) const override;
    Kes::SimFluid::IPropertyTable& makeKValueTable() override;
    Kes::SimFluid::IPropertyTable& getKValueTable(const std::string& tableName) override;
    Kes::SimFluid::IPropertyTable& getKValueTable() override;
    std::set<std::string> getKValueTableNames() const override;
    Kes::SimFluid::IPropertyTable& makeSolidTable() override;
    Kes::SimFluid::IPropertyTable& getSolidTable(const std::string& tableName) override;
    Kes::SimFluid::IPropertyTable& getSolidTable() override;
    std::set<std::string> getSolidTableNames() const override;

    // Surface stages: none.
    int getNumSurfaceStages(const std::string& stageName) const override;
    int getNumSurfaceStages() const override;
    int getNumSurfaceStreams() const override;

    // What a simulator may tell of a fluid and nobody asks for: dropped.
    void deleteDiffusionTable(int i, int j) override;
    void setReservoirTemperature(double value) override;
    double getReservoirTemperature() const override;
    void setSurfaceTemperature(double value) override;
    double getSurfaceTemperature() const override;
    void setSurfacePressure(double value) override;
    double getSurfacePressure() const override;
    void setSolidDensity(double value) override;
    void setSolidCompressibility(double value) override;
    void setSolidThermalExpansion(double value) override;
    void setSolidReferencePressure(double value) override;
    void setSolidReferenceTemperature(double value) override;
    void setSolidHeatCapacity(double value) override;
    double getSolidDensity() const override;
    double getSolidCompressibility() const override;
    double getSolidThermalExpansion() const override;
    double getSolidReferencePressure() const override;
    double getSolidReferenceTemperature() const override;
    double getSolidHeatCapacity() const override;
    void setUsesSurfaceEquationOfState(bool value) override;
    bool usesSurfaceEquationOfState() const override;
    void setLowestTemperature(double value) override;
    void setHighestTemperature(double value) override;
    double getLowestTemperature() const override;
    double getHighestTemperature() const override;

    // Reactions: there are none, and none can be made.
    int getNumReactions() const override;
    Kes::SimFluid::IReactionModel& makeReactionModel() override;
    bool hasReactionModel() const override;
    Kes::SimFluid::IReactionModel& getReactionModel() override;
    const Kes::SimFluid::IReactionModel& getReactionModel() const override;

    // The model's own: the interpreter's interface has no interfacial tension.
    virtual void setInterfacialTensionModel(int code);
    virtual int getInterfacialTensionModel() const;

private:
    std::size_t Checked(int index) const;
    std::size_t Find(const std::string& componentName) const;

    std::int32_t equationOfState = 0;
    std::int32_t viscosityModel = 0;
    std::int32_t interfacialTensionModel = 0;
    std::vector<PVOComponentAdaptor> components;
    PVOBinaryInteractionCoefficientsAdaptor binaryInteractionCoefficients;
    std::array<PVOBinaryInteractionCoefficientsAdaptor, 3> aqueousBinaryInteractionCoefficients;
};

} // namespace Orv::FluidBench::Impl::IO
