// A fluid of components in the simulator's store.
#pragma once

#include "Kes/SimFluid/IBinaryInteractionCoefficients.h"
#include "Kes/SimFluid/IComponent.h"
#include "Kes/SimFluid/IFluidModel.h"
#include "Visibility.h"

#include <set>
#include <string>

namespace Orv::Kes::SimFluid {

/// Component properties that depend on a second quantity. Opaque to the I/O library.
class IPropertyTable;

/// Reactions between components. Opaque to the I/O library.
class IReactionModel;

/// Components have indices from 0 in the order in which they were made. A reference to a component
/// is good until the next one is made or deleted.
class FLUIDBENCH_BOUNDARY_API ICompositionalModel : public IFluidModel {
public:
    /// 0 Peng-Robinson, 1 the same with the corrected acentric factor term, 2 Redlich-Kwong,
    /// 3 Soave-Redlich-Kwong, 4 Zudkevitch-Joffe.
    virtual void setEquationOfState(int code) = 0;
    virtual int getEquationOfState() const = 0;
    /// 0 Lohrenz-Bray-Clark, 1 Pedersen.
    virtual void setViscosityModel(int code) = 0;
    virtual int getViscosityModel() const = 0;

    /// Appends a component without properties.
    virtual IComponent& makeComponent(const std::string& name) = 0;
    /// The indices are below it.
    virtual int getNumComponents() const = 0;
    /// By name these throw `std::invalid_argument`, by index `std::runtime_error`, when there is no
    /// such component.
    virtual IComponent& getComponent(const std::string& name) = 0;
    virtual const IComponent& getComponent(const std::string& name) const = 0;
    virtual IComponent& getComponent(int index) = 0;
    virtual const IComponent& getComponent(int index) const = 0;
    /// Components that dissolve in water, by name, by index or by the component itself. They throw
    /// what derives from `std::exception` when there is no such component, or when an
    /// implementation has none of these.
    virtual IComponent& getAqueousSolubleComponent(const std::string& name) = 0;
    virtual const IComponent& getAqueousSolubleComponent(const std::string& name) const = 0;
    virtual IComponent& getAqueousSolubleComponent(int index) = 0;
    virtual const IComponent& getAqueousSolubleComponent(int index) const = 0;
    /// Whether there is such a component.
    virtual bool hasComponent(const std::string& name) const = 0;
    virtual bool hasAqueousSolubleComponent(const std::string& name) const = 0;
    /// -1 when there is no such component.
    virtual int getComponentIndex(const std::string& name) const = 0;
    /// Those behind it move up by one. Throws `std::runtime_error` when there is no such component.
    virtual void deleteComponent(int index) = 0;
    /// 0 where an implementation has none of these.
    virtual int getNumAqueousSolubleComponents() const = 0;
    /// As by name and by index above.
    virtual IComponent& getAqueousSolubleComponent(const IComponent& component) = 0;
    virtual const IComponent& getAqueousSolubleComponent(const IComponent& component) const = 0;

    /// Of the components as such; no coefficient is set at first.
    virtual IBinaryInteractionCoefficients& getBinaryInteractionCoefficients() = 0;
    virtual const IBinaryInteractionCoefficients& getBinaryInteractionCoefficients() const = 0;
    /// Sets 1, 2 and 3; throws `std::range_error` for another number.
    virtual IBinaryInteractionCoefficients& getAqueousBinaryInteractionCoefficients(int number) = 0;
    virtual const IBinaryInteractionCoefficients&
    getAqueousBinaryInteractionCoefficients(int number) const = 0;

    /// Tables by component pair. An implementation that has none throws what derives from
    /// `std::exception` where one is asked for.
    virtual bool hasDiffusionTable(int i, int j) const = 0;
    virtual IPropertyTable& makeDiffusionTable(int i, int j) = 0;
    virtual bool hasDiffusionTables() const = 0;
    virtual IPropertyTable& getDiffusionTable(int i, int j) = 0;
    virtual const IPropertyTable& getDiffusionTable(int i, int j) const = 0;

    /// Tables by name, on the same terms; without a name, the one table there is.
    virtual IPropertyTable& makeKValueTable() = 0;
    virtual IPropertyTable& getKValueTable(const std::string& name) = 0;
    virtual IPropertyTable& getKValueTable() = 0;
    virtual std::set<std::string> getKValueTableNames() const = 0;
    virtual IPropertyTable& makeSolidTable() = 0;
    virtual IPropertyTable& getSolidTable(const std::string& name) = 0;
    virtual IPropertyTable& getSolidTable() = 0;
    virtual std::set<std::string> getSolidTableNames() const = 0;

    /// Counts of surface stages, of one separator or of all, and of what leaves them.
    virtual int getNumSurfaceStages(const std::string& name) const = 0;
    virtual int getNumSurfaceStages() const = 0;
    virtual int getNumSurfaceStreams() const = 0;

    /// Does nothing where there is no such table.
    virtual void deleteDiffusionTable(int i, int j) = 0;

    /// Conditions, in the units of the deck. An implementation may drop what it is given and give
    /// 0.0.
    virtual void setReservoirTemperature(double value) = 0;
    virtual double getReservoirTemperature() const = 0;
    virtual void setSurfaceTemperature(double value) = 0;
    virtual double getSurfaceTemperature() const = 0;
    virtual void setSurfacePressure(double value) = 0;
    virtual double getSurfacePressure() const = 0;

    /// The solid phase, on the same terms.
    virtual void setSolidDensity(double value) = 0;
    virtual void setSolidCompressibility(double value) = 0;
    virtual void setSolidThermalExpansion(double value) = 0;
    virtual void setSolidReferencePressure(double value) = 0;
    virtual void setSolidReferenceTemperature(double value) = 0;
    virtual void setSolidHeatCapacity(double value) = 0;
    virtual double getSolidDensity() const = 0;
    virtual double getSolidCompressibility() const = 0;
    virtual double getSolidThermalExpansion() const = 0;
    virtual double getSolidReferencePressure() const = 0;
    virtual double getSolidReferenceTemperature() const = 0;
    virtual double getSolidHeatCapacity() const = 0;

    /// Limits of the phase behaviour calculation, on the same terms.
    virtual void setUsesSurfaceEquationOfState(bool value) = 0;
    virtual bool usesSurfaceEquationOfState() const = 0;
    virtual void setLowestTemperature(double value) = 0;
    virtual void setHighestTemperature(double value) = 0;
    virtual double getLowestTemperature() const = 0;
    virtual double getHighestTemperature() const = 0;

    /// Chemical reactions. An implementation that has none throws what derives from
    /// `std::exception` where they are asked for.
    virtual int getNumReactions() const = 0;
    virtual IReactionModel& makeReactionModel() = 0;
    virtual bool hasReactionModel() const = 0;
    virtual IReactionModel& getReactionModel() = 0;
    virtual const IReactionModel& getReactionModel() const = 0;

protected:
    ICompositionalModel() = default;
    ICompositionalModel(const ICompositionalModel&) = default;
    ICompositionalModel& operator=(const ICompositionalModel&) = default;
};

} // namespace Orv::Kes::SimFluid
