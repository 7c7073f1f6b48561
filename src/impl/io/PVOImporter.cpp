// The steps of an import, and the search for a deck's unit system. How the fluid is built from the
// interpreter's store stands in PVOFluidBuilding.cpp.
#include "PVOImporter.h"

#include "DeckUnitSystems.h"
#include "IOException.h"
#include "Kes/KesModel/Deck.h"
#include "Kes/KesModel/KesFluidModel.h"
#include "Kes/KesModel/KeywordTracker.h"
#include "Kes/KesModel/Log.h"
#include "Messages.h"
#include "PVOCompositionalModelAdaptor.h"
#include "PVOFluidModelsAdaptor.h"
#include "PVOKeywordModelValidator.h"
#include "TextFile.h"

#include <set>
#include <string_view>

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
using Kes::SimFluid::ICompositionalModel;
using Kes::SimFluid::IFluidModel;
using Model::CompositionalFluid;

namespace {

constexpr bool deckFlag = true; // of no meaning to a fluid's keywords

Log::Severity SeverityOf(pvtEnumPVOErrorSeverityLevel level) noexcept {
    switch (level) {
    case pvtEnumPVOErrorSeverityLevel::Fatal:
        return Log::FATAL;
    case pvtEnumPVOErrorSeverityLevel::Error:
        return Log::ERROR;
    case pvtEnumPVOErrorSeverityLevel::Warning:
        return Log::WARNING;
    case pvtEnumPVOErrorSeverityLevel::Information:
        return Log::INFORMATION;
    case pvtEnumPVOErrorSeverityLevel::Debug:
        return Log::DEBUG;
    }
    return Log::ERROR;
}

// The first model by name; null where the store has none, or none under its first name.
const IFluidModel* FirstModel(const PVOFluidModelsAdaptor& models) {
    const std::set<std::string> names = models.getCompositionalModelNames();
    return names.empty() ? nullptr : models.getCompositionalModel(*names.begin());
}

bool Contains(std::string_view line, std::string_view word) noexcept {
    return line.find(word) != std::string_view::npos;
}

} // namespace

PVOImporter::PVOImporter() = default;
PVOImporter::~PVOImporter() = default;

ErrorReport PVOImporter::Import(CompositionalFluid& fluid, bool characterise,
                                bool detectUnitSystem) {
    fluid = CompositionalFluid("");
    ErrorReport report;
    RequireFile();
    SetLoggerSeverity();

    PVOFluidModelsAdaptor models;
    KesFluidModel interpreter(models);
    const Deck deck(fileName, Deck::AS_IN_FILE, deckFlag);
    KeywordTracker tracker(deck, SimulatorType::COMPOSITIONAL_FLUID_DECKS);
    const PVOKeywordModelValidator validator;
    if (detectUnitSystem) {
        unitSystem = DetectUnitSystem();
    }
    models.setUnitSystem(UnitTypeOf(unitSystem));
    try {
        interpreter.createFromKeywords(deck, nullptr, &tracker,
                                       validator.getFluidsKeywordValidator());
    } catch (const std::exception&) { // the interpreter has told its logger
        report.Add(Failure(MessageId::deckNotInterpreted));
        return report;
    }

    const IFluidModel* const first = FirstModel(models);
    if (first == nullptr) {
        Log::getCurrentLogger()->write(Log::ERROR, fileName + ": the deck gave no fluid model.");
        report.Add(Failure(MessageId::deckNotInterpreted));
        return report;
    }
    try {
        const auto& model = dynamic_cast<const PVOCompositionalModelAdaptor&>(*first);
        BuildFluid(model, characterise, fluid, report);
    } catch (const std::bad_cast&) {
        report.Add(Failure(MessageId::deckNotInterpreted));
    }
    return report;
}

void PVOImporter::RequireFile() const {
    if (!OpenForReading(fileName).is_open()) {
        throw IOFileNotFound(fileName);
    }
}

void PVOImporter::SetLoggerSeverity() const {
    auto* const logger = dynamic_cast<DefaultLogger*>(Log::getCurrentLogger());
    if (logger != nullptr) {
        logger->setMaxSeverity(SeverityOf(severityLevel));
    }
}

// Two things tell the system, and the first of them in the file decides:
//
//     FILEUNIT          with METRIC or FIELD on the line behind it
//
//     --Units: K        on the line ahead of TCRIT: K or R
//     TCRIT
//
// The words count wherever they stand in a line, also in a comment. Without either, it is field.
pvtEnumPVOUnitSystemType PVOImporter::DetectUnitSystem() const {
    LineReader lines(fileName);
    std::string previous;
    std::string_view line;
    while (lines.Next(line)) {
        pvtEnumPVOUnitSystemType found{};
        if (Contains(line, "TCRIT") && UnitSystemFromComment(found, previous)) {
            return found;
        }
        if (Contains(line, "FILEUNIT") && lines.Next(line)) {
            if (Contains(line, "METRIC")) {
                return pvtEnumPVOUnitSystemType::Metric;
            }
            if (Contains(line, "FIELD")) {
                return pvtEnumPVOUnitSystemType::Field;
            }
        }
        previous = line;
    }
    return pvtEnumPVOUnitSystemType::Field;
}

bool PVOImporter::UnitSystemFromComment(pvtEnumPVOUnitSystemType& result,
                                        const std::string& line) const {
    if (Contains(line, "Units: R")) {
        result = pvtEnumPVOUnitSystemType::Field;
        return true;
    }
    if (Contains(line, "Units: K")) {
        result = pvtEnumPVOUnitSystemType::Metric;
        return true;
    }
    return false;
}

} // namespace Orv::FluidBench::Impl::IO
