// The steps of an import. How the fluid is built from the interpreter's store stands in
// PVOFluidBuilding.cpp.
#include "PVOImporter.h"

#include "DeckPlaces.h"
#include "DeckUnitSystems.h"
#include "FluidBench/Common/Exceptions.h"
#include "FluidBench/Common/Units.h"
#include "IOException.h"
#include "Kes/KesModel/Deck.h"
#include "Kes/KesModel/KesFluidModel.h"
#include "Kes/KesModel/KeywordTracker.h"
#include "Kes/KesModel/Log.h"
#include "Messages.h"
#include "NumberText.h"
#include "PVOCompositionalModelAdaptor.h"
#include "PVOFluidModelsAdaptor.h"
#include "PVOKeywordModelValidator.h"
#include "TextFile.h"
#include "UnitScan.h"

#include <cerrno>
#include <cmath>
#include <exception>
#include <filesystem>
#include <set>
#include <system_error>

namespace Orv::FluidBench::Impl::IO {

using Common::ErrorReport;
using Common::pvtEnumPVOErrorSeverityLevel;
using Common::pvtEnumPVOUnitSystemType;
using Kes::Core::Keywords::SimulatorType;
using Kes::KesModel::Deck;
using Kes::KesModel::DefaultLogger;
using Kes::KesModel::KesFluidModel;
using Kes::KesModel::KeywordTracker;
using Kes::KesModel::Log;
using Kes::KesModel::LogMessage;
using Kes::KesModel::ThreadListener;
using Kes::SimFluid::IFluidModel;
using Model::CompositionalFluid;
using Text::IsRegularFile;
using Text::OpenForReading;

namespace {

constexpr bool deckFlag = true; // of no meaning to a fluid's keywords

Log::Severity SeverityOf(pvtEnumPVOErrorSeverityLevel level) noexcept {
    switch (level) {
    case pvtEnumPVOErrorSeverityLevel::Fatal:
        return Log::Fatal;
    case pvtEnumPVOErrorSeverityLevel::Error:
        return Log::Error;
    case pvtEnumPVOErrorSeverityLevel::Warning:
        return Log::Warning;
    case pvtEnumPVOErrorSeverityLevel::Information:
        return Log::Information;
    case pvtEnumPVOErrorSeverityLevel::Debug:
        return Log::Debug;
    }
    return Log::Error;
}

// The first model by name; null where the store has none, none under its first name, or one of
// another making.
const PVOCompositionalModelAdaptor* FirstModel(const PVOFluidModelsAdaptor& models) {
    const std::set<std::string> names = models.getCompositionalModelNames();
    const IFluidModel* const model =
        names.empty() ? nullptr : models.getCompositionalModel(*names.begin());
    return dynamic_cast<const PVOCompositionalModelAdaptor*>(model);
}

FluidBench::IO::Severity SeverityOf(Log::Severity severity) noexcept {
    switch (severity) {
    case Log::Fatal:
    case Log::Error:
        return FluidBench::IO::Severity::Error;
    case Log::Warning:
        return FluidBench::IO::Severity::Warning;
    case Log::Information:
    case Log::Debug:
        break;
    }
    return FluidBench::IO::Severity::Note;
}

// Hands on what the simulator says on this thread. What the sink throws ends the read, and isn't to
// be taken for the simulator's own failure.
class SimulatorMessages {
public:
    explicit SimulatorMessages(Diagnostics& diagnostics) : diagnostics_(diagnostics) {
        if (diagnostics.AreWanted()) {
            listener_.emplace([this](const LogMessage& message) { Hear(message); });
        }
    }

    void RethrowOfSink() const {
        if (thrown_) {
            std::rethrow_exception(thrown_);
        }
    }

private:
    void Hear(const LogMessage& message) {
        if (thrown_) {
            return;
        }
        try {
            diagnostics_.Tell({SeverityOf(message.severity), message.file, message.line,
                               message.code, message.text});
        } catch (...) {
            thrown_ = std::current_exception();
            throw;
        }
    }

    Diagnostics& diagnostics_;
    std::exception_ptr thrown_;
    std::optional<ThreadListener> listener_;
};

const char* NameOf(bool isMetric) {
    return isMetric ? "metric" : "field";
}

} // namespace

PVOImporter::PVOImporter() = default;
PVOImporter::~PVOImporter() = default;

ErrorReport PVOImporter::Import(CompositionalFluid& fluid, bool characterise,
                                bool detectUnitSystem) {
    fluid = CompositionalFluid("");
    reservoirTemperature.reset();
    Diagnostics diagnostics(diagnosticSink, fileName);
    ErrorReport report = ImportDeck(fluid, characterise, detectUnitSystem, diagnostics);
    diagnostics.Finish();
    return report;
}

ErrorReport PVOImporter::ImportDeck(CompositionalFluid& fluid, bool characterise,
                                    bool detectUnitSystem, Diagnostics& diagnostics) {
    ErrorReport report;
    if (!RequireFile(diagnostics)) {
        report.Add(Failure(MessageId::deckNotInterpreted));
        return report;
    }
    SetLoggerSeverity();

    PVOFluidModelsAdaptor models;
    KesFluidModel interpreter(models);
    const Deck deck(fileName, Deck::AS_IN_FILE, deckFlag);
    KeywordTracker tracker(deck, SimulatorType::COMPOSITIONAL_FLUID_DECKS);
    const PVOKeywordModelValidator validator;
    bool areAssumed = false;
    if (detectUnitSystem) {
        const auto detected = DetectUnitSystem();
        areAssumed = !detected;
        unitSystem = detected.value_or(pvtEnumPVOUnitSystemType::Field);
    }
    models.setUnitSystem(UnitTypeOf(unitSystem));
    const SimulatorMessages messages(diagnostics);
    try {
        interpreter.createFromKeywords(deck, nullptr, &tracker,
                                       validator.getFluidsKeywordValidator());
    } catch (const std::exception&) { // the interpreter has told why
        messages.RethrowOfSink();
        report.Add(Failure(MessageId::deckNotInterpreted));
        return report;
    }
    TellUnits(tracker, detectUnitSystem, areAssumed, diagnostics);

    const PVOCompositionalModelAdaptor* const model = FirstModel(models);
    if (model == nullptr) {
        diagnostics.Tell(DeckKinds::noFluid, 0,
                         "Expected a compositional fluid in the deck, found none.");
        report.Add(Failure(MessageId::deckNotInterpreted));
        return report;
    }
    DeckPlaces places(tracker, diagnostics, fileName);
    try {
        BuildFluid(*model, characterise, fluid, report, places);
    } catch (const Common::Exception& error) {
        places.Tell(DeckKinds::valueRefused, error.what());
        diagnostics.Finish();
        throw;
    }
    if (!report.HasErrors()) {
        places.GoTo("RTEMP");
        reservoirTemperature = ReservoirTemperatureOf(*model, places);
    }
    return report;
}

// A deck is read more than once, which a pipe doesn't allow. False for a pipe or a device.
bool PVOImporter::RequireFile(Diagnostics& diagnostics) const {
    errno = 0;
    if (OpenForReading(fileName).is_open()) {
        return true;
    }
    const std::string found = Text::WhyNotReadable(fileName);
    diagnostics.Tell(Kinds::cantOpen, 0, "Expected a file to read, found " + found + '.');
    std::error_code error;
    if (!std::filesystem::is_other(Text::PathOf(fileName), error)) {
        throw IOFileNotFound(fileName);
    }
    return false;
}

void PVOImporter::SetLoggerSeverity() const {
    auto* const logger = dynamic_cast<DefaultLogger*>(Log::getCurrentLogger());
    if (logger != nullptr) {
        logger->setMaxSeverity(SeverityOf(severityLevel));
    }
}

std::optional<pvtEnumPVOUnitSystemType> PVOImporter::DetectUnitSystem() const {
    std::ifstream file = OpenForReading(fileName);
    const std::optional<bool> isMetric = UnitScan(file).FindMetric();
    if (!isMetric) {
        return std::nullopt;
    }
    return *isMetric ? pvtEnumPVOUnitSystemType::Metric : pvtEnumPVOUnitSystemType::Field;
}

// What the deck's keywords say of its units against those that the numbers are read in.
void PVOImporter::TellUnits(const KeywordTracker& tracker, bool areDetected, bool areAssumed,
                            Diagnostics& diagnostics) const {
    const bool isMetric = unitSystem != pvtEnumPVOUnitSystemType::Field;
    const std::string used = NameOf(isMetric);
    bool isStated = false;
    for (const KeywordTracker::StatedUnits& stated : tracker.getStatedUnits()) {
        if (stated.isMetric == isMetric) {
            isStated = true;
            continue;
        }
        const bool isRecord = stated.keyword == "FILEUNIT";
        const std::string wayOut =
            !areDetected ? "tell the other units, or have them detected"
            : isRecord   ? "tell the units, or write the word in capitals on the line behind "
                           "FILEUNIT, in the deck itself and ahead of any comment on units"
                         : "tell the units, or add a FILEUNIT record";
        diagnostics.Tell(DeckKinds::otherUnits, stated.place.file, stated.place.line,
                         "Expected numbers in " + used + " units, in which they are read, found " +
                             (isRecord ? "FILEUNIT " : "") +
                             (stated.isMetric ? "METRIC" : "FIELD") + ": " + wayOut + '.');
    }
    if (areAssumed && !isStated) {
        diagnostics.Tell(DeckKinds::unitsAssumed, 0,
                         "Expected a FILEUNIT record, or a comment on units ahead of TCRIT, found "
                         "neither: the numbers are taken as " +
                             used + " units.");
    }
}

// From degrees C in a metric deck, or F in a field one.
std::optional<double> PVOImporter::ReservoirTemperatureOf(const PVOCompositionalModelAdaptor& model,
                                                          const DeckPlaces& places) const {
    constexpr double kelvinAtZeroCelsius = 273.15;
    const auto& table = model.getTemperatureTable();
    if (table.getNumTemperatures() == 0) {
        return std::nullopt;
    }
    const double degrees = table.getTemperature(0);
    const bool isField = unitSystem == pvtEnumPVOUnitSystemType::Field;
    const double kelvin =
        isField ? Common::Units::Temperature_F_To_K(degrees) : degrees + kelvinAtZeroCelsius;
    if (!std::isfinite(kelvin) || kelvin < 0.0) {
        std::string found;
        Text::AppendNumber(found, degrees, {});
        places.Tell(DeckKinds::valueDropped, "expected a temperature above absolute zero, found " +
                                                 found + (isField ? " degrees F" : " degrees C") +
                                                 "; the fluid comes without it.");
        return std::nullopt;
    }
    return kelvin;
}

} // namespace Orv::FluidBench::Impl::IO
