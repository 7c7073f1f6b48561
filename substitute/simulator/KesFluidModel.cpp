#include "Kes/KesModel/KesFluidModel.h"

#include "DeckIndex.h"
#include "FluidInterpreter.h"
#include "Kes/KesModel/Deck.h"
#include "Kes/KesModel/IKeywordValidator.h"
#include "Kes/KesModel/KeywordTracker.h"
#include "Kes/KesModel/Log.h"
#include "Quote.h"

#include <exception>
#include <string>

namespace Orv::Kes::KesModel {

using Text::Quote;

namespace {

void Tell(Log::Severity severity, const std::string& text) {
    Log::getCurrentLogger()->write(severity, text);
}

// Every keyword once, as far as the tracker remembers them.
void TellPassedOver(KeywordTracker& tracker, std::string_view keyword, const std::string& file,
                    std::uint64_t line) {
    const std::string name(keyword);
    if (tracker.addPassedOver(name)) {
        Tell(Log::Debug,
             Describe(FilePlace{file, line}) + ": keyword " + Quote(name) + " is passed over.");
    }
}

} // namespace

KesFluidModel::KesFluidModel(SimFluid::IFluidModels& models) : models_(models) {}
KesFluidModel::~KesFluidModel() = default;

void KesFluidModel::createFromKeywords(const Deck& deck, const KesGridModel*,
                                       KeywordTracker* tracker,
                                       const IFluidsKeywordValidator* validator) {
    const auto wanted = [&](std::string_view name) -> std::optional<KeywordData> {
        const auto known = FindKnownKeyword(name);
        const bool counts = known && (!known->isFluidKeyword || validator == nullptr ||
                                      validator->isValidKeyword(std::string(name)));
        return counts ? std::optional(known->data) : std::nullopt;
    };
    DeckObserver observer;
    observer.hint = [](const std::string& text) { Tell(Log::Warning, text); };
    if (tracker != nullptr) {
        observer.passedOver = [&](std::string_view keyword, const std::string& file,
                                  std::uint64_t line) {
            TellPassedOver(*tracker, keyword, file, line);
        };
    }
    try {
        InterpretFluid(DeckIndex(deck.getFileName(), wanted, observer), models_);
    } catch (const std::exception& error) {
        Tell(Log::Error, error.what());
        throw;
    }
}

} // namespace Orv::Kes::KesModel
