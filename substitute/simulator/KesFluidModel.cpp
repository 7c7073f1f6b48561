#include "Kes/KesModel/KesFluidModel.h"

#include "DeckIndex.h"
#include "DeckLog.h"
#include "FluidInterpreter.h"
#include "Kes/KesModel/Deck.h"

#include <exception>

namespace Orv::Kes::KesModel {

KesFluidModel::KesFluidModel(SimFluid::IFluidModels& models) : models_(models) {}
KesFluidModel::~KesFluidModel() = default;

void KesFluidModel::createFromKeywords(const Deck& deck, const KesGridModel*,
                                       KeywordTracker* tracker,
                                       const IFluidsKeywordValidator* validator) {
    const DeckVocabulary vocabulary = VocabularyOf(validator);
    DeckLog log(tracker);
    try {
        InterpretFluid(DeckIndex(deck.getFileName(), vocabulary, log), models_, log);
    } catch (const std::exception& error) {
        log.TellFailure(error, deck.getFileName());
        throw;
    }
}

} // namespace Orv::Kes::KesModel
