// The deck as a file, and the account of its keywords.
#include "Kes/KesModel/Deck.h"

#include "Kes/Core/DeckManager/KeywordIterator.h"
#include "Kes/KesModel/KeywordTracker.h"

namespace Orv::Kes::Core::DeckManager {

KeywordIterator::KeywordIterator(const IKeyword& keyword) : keyword_(&keyword) {}

const IKeyword* KeywordIterator::operator*() const {
    return keyword_;
}

} // namespace Orv::Kes::Core::DeckManager

namespace Orv::Kes::KesModel {

Deck::Deck(const std::string& fileName, UnitSystem, bool) : fileName_(fileName) {}
Deck::~Deck() = default;

const std::string& Deck::getFileName() const {
    return fileName_;
}

KeywordTracker::KeywordTracker(const Deck&, Core::Keywords::SimulatorType::Enum) {}
KeywordTracker::~KeywordTracker() = default;

bool KeywordTracker::addPassedOver(const std::string& name) {
    return passedOver_.size() < mostNames && passedOver_.insert(name).second;
}

} // namespace Orv::Kes::KesModel
