// The steps of an import, and the search for a deck's unit system. How the fluid is built from the
// interpreter's store stands in PVOFluidBuilding.cpp.
#include "PVOImporter.h"

#include "DeckUnitSystems.h"
#include "IOException.h"
#include "Kes/KesModel/Deck.h"
#include "Kes/KesModel/KesFluidModel.h"
#include "Kes/KesModel/KeywordTracker.h"
#include "Kes/KesModel/Log.h"
#include "LineReader.h"
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
using Kes::SimFluid::IFluidModel;
using Model::CompositionalFluid;
using Text::blockSize;
using Text::IsRegularFile;
using Text::LineReader;
using Text::OpenForReading;

namespace {

constexpr bool deckFlag = true; // of no meaning to a fluid's keywords

// Of a longer line the scan for the unit system sees the beginning alone.
constexpr std::size_t longestScannedLine = blockSize;

void Tell(Log::Severity severity, const std::string& text) {
    Log::getCurrentLogger()->write(severity, text);
}

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

    const PVOCompositionalModelAdaptor* const model = FirstModel(models);
    if (model == nullptr) {
        Tell(Log::Error, fileName + ": expected a compositional fluid in the deck, found none.");
        report.Add(Failure(MessageId::deckNotInterpreted));
        return report;
    }
    BuildFluid(*model, characterise, fluid, report);
    return report;
}

// A deck is read more than once, which a pipe doesn't allow.
void PVOImporter::RequireFile() const {
    if (!IsRegularFile(fileName) || !OpenForReading(fileName).is_open()) {
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
    std::ifstream file = OpenForReading(fileName);
    LineReader lines(file, longestScannedLine, LineReader::BehindCut::NextLine);
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
    Tell(Log::Warning, fileName + ": neither a FILEUNIT record nor a unit comment ahead of TCRIT "
                                  "tells the units, so they are taken as field units.");
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
