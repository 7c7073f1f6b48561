// Imports a keyword deck into a fluid.
#pragma once

#include "BaseFileImporter.h"
#include "FluidBench/Common/Enumerations.h"
#include "FluidBench/Model/FluidComponent.h"
#include "Kes/SimFluid/IComponent.h"

#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

class PVOCompositionalModelAdaptor;

/// Has the simulator's interpreter read the deck into a store of this library, and builds the fluid
/// from the store.
///
/// Sets the severity of the simulator's current logger, which is process-wide, and doesn't put it
/// back. One thread at a time.
class PVOImporter : public BaseFileImporter {
public:
    PVOImporter();
    ~PVOImporter() override;

    Common::pvtEnumPVOUnitSystemType GetUnitSystem() const noexcept { return unitSystem; }
    void SetUnitSystem(Common::pvtEnumPVOUnitSystemType units) noexcept { unitSystem = units; }
    void SetSeverityLevel(Common::pvtEnumPVOErrorSeverityLevel level) noexcept {
        severityLevel = level;
    }

    /// Replaces the fluid, which is blank when the import can't go on. Throws `IOFileNotFound` for
    /// a file that can't be opened, and lets pass what the toolbox throws for an empty component
    /// name or a value out of range; every other failure is in the report. Why a deck can't be
    /// interpreted is told to the simulator's logger. With `detectUnitSystem`, the unit system
    /// found is kept for later imports.
    Common::ErrorReport Import(Model::CompositionalFluid& fluid, bool characterise,
                               bool detectUnitSystem) override;

private:
    friend class ImporterProbe; // of the tests

    // The unit system, from the text of the deck. The logger is told where the text says nothing.
    Common::pvtEnumPVOUnitSystemType DetectUnitSystem() const;
    bool UnitSystemFromComment(Common::pvtEnumPVOUnitSystemType& result,
                               const std::string& line) const;

    void RequireFile() const;
    void SetLoggerSeverity() const;

    // The fluid, from the model. Each step adds to the report what it can't do.
    bool RefuseForeignProperties(const PVOCompositionalModelAdaptor& model,
                                 Common::ErrorReport& report) const;
    void BuildFluid(const PVOCompositionalModelAdaptor& model, bool characterise,
                    Model::CompositionalFluid& fluid, Common::ErrorReport& report) const;
    void SetComponents(const PVOCompositionalModelAdaptor& model,
                       const std::vector<double>& fractions, Model::CompositionalFluid& fluid,
                       Common::ErrorReport& report) const;
    void FillComponent(const Kes::SimFluid::IComponent& source,
                       Model::FluidComponent& target) const;
    void FillReferenceDensity(const Kes::SimFluid::IComponent& source,
                              Model::FluidComponent& target) const;

    Common::pvtEnumPVOUnitSystemType unitSystem = Common::pvtEnumPVOUnitSystemType::Metric;
    Common::pvtEnumPVOErrorSeverityLevel severityLevel =
        Common::pvtEnumPVOErrorSeverityLevel::Error;
};

} // namespace Orv::FluidBench::Impl::IO
