#include "DeckPlaces.h"

#include "Kes/KesModel/KeywordTracker.h"

#include <utility>

namespace Orv::FluidBench::Impl::IO {

using Kes::KesModel::KeywordTracker;

DeckPlaces::DeckPlaces(const KeywordTracker& tracker, Diagnostics& diagnostics,
                       std::string fileName)
    : tracker_(tracker), diagnostics_(diagnostics), fileName_(std::move(fileName)) {}

void DeckPlaces::GoToFractions() {
    GoTo("ZI");
    for (const KeywordTracker::Read& read : tracker_.getRead()) {
        if (read.keyword == "ZI" || read.keyword == "ZMFVD") {
            keyword_ = read.keyword;
        }
    }
}

void DeckPlaces::Tell(const DiagnosticKind& kind, std::string sentence) const {
    const KeywordTracker::Place* const place = tracker_.findRead(std::string(keyword_));
    if (!keyword_.empty()) {
        sentence.insert(0, "Keyword " + std::string(keyword_) + ": ");
    }
    if (!sentence.ends_with('.')) { // the toolbox's have none
        sentence += '.';
    }
    diagnostics_.Tell(kind, place != nullptr ? place->file : fileName_,
                      place != nullptr ? place->line : 0, sentence);
}

} // namespace Orv::FluidBench::Impl::IO
