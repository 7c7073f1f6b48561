// Imports a keyword deck into a fluid.
#pragma once

#include "BaseFileImporter.h"
#include "Diagnostics.h"
#include "FluidBench/Common/Enumerations.h"
#include "FluidBench/Model/FluidComponent.h"
#include "Kes/SimFluid/IComponent.h"
#include "io/Diagnostics.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Orv::Kes::KesModel {
class KeywordTracker;
}

namespace Orv::FluidBench::Impl::IO {

class DeckPlaces;
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

    /// Takes what later imports have to say beside their reports.
    void SetDiagnosticSink(FluidBench::IO::DiagnosticSink sink) {
        diagnosticSink = std::move(sink);
    }

    /// The reservoir temperature in K of the deck that was imported last; empty where it has none
    /// or wasn't imported.
    std::optional<double> GetReservoirTemperature() const noexcept { return reservoirTemperature; }

    /// Replaces the fluid, which is blank when the import can't go on. Throws `IOFileNotFound` for
    /// a file that can't be opened, and lets pass what the toolbox throws for an empty component
    /// name or a value out of range; every other failure is in the report. Why is told to the
    /// diagnostic sink. With `detectUnitSystem`, the unit system found is kept for later imports.
    Common::ErrorReport Import(Model::CompositionalFluid& fluid, bool characterise,
                               bool detectUnitSystem) override;

private:
    friend class ImporterProbe; // of the tests

    Common::ErrorReport ImportDeck(Model::CompositionalFluid& fluid, bool characterise,
                                   bool detectUnitSystem, Diagnostics& diagnostics);
    bool RequireFile(Diagnostics& diagnostics) const;
    void SetLoggerSeverity() const;

    // The unit system, from the text of the deck; nothing where the text doesn't tell.
    std::optional<Common::pvtEnumPVOUnitSystemType> DetectUnitSystem() const;
    void TellUnits(const Kes::KesModel::KeywordTracker& tracker, bool areDetected, bool areAssumed,
                   Diagnostics& diagnostics) const;
    std::optional<double> ReservoirTemperatureOf(const PVOCompositionalModelAdaptor& model,
                                                 const DeckPlaces& places) const;

    // The fluid, from the model. Each step adds to the report what it can't do.
    bool RefuseForeignProperties(const PVOCompositionalModelAdaptor& model,
                                 Common::ErrorReport& report, DeckPlaces& places) const;
    void BuildFluid(const PVOCompositionalModelAdaptor& model, bool characterise,
                    Model::CompositionalFluid& fluid, Common::ErrorReport& report,
                    DeckPlaces& places) const;
    void SetComponents(const PVOCompositionalModelAdaptor& model,
                       const std::vector<double>& fractions, Model::CompositionalFluid& fluid,
                       Common::ErrorReport& report, DeckPlaces& places) const;
    void FillComponent(const Kes::SimFluid::IComponent& source, Model::FluidComponent& target,
                       DeckPlaces& places) const;
    void FillReferenceDensity(const Kes::SimFluid::IComponent& source,
                              Model::FluidComponent& target) const;

    Common::pvtEnumPVOUnitSystemType unitSystem = Common::pvtEnumPVOUnitSystemType::Metric;
    Common::pvtEnumPVOErrorSeverityLevel severityLevel =
        Common::pvtEnumPVOErrorSeverityLevel::Error;
    FluidBench::IO::DiagnosticSink diagnosticSink;
    std::optional<double> reservoirTemperature; // K
};

} // namespace Orv::FluidBench::Impl::IO
