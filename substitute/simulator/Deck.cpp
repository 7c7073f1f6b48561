// The deck as a file, and the account of its keywords.
#include "Kes/KesModel/Deck.h"

#include "Kes/Core/DeckManager/KeywordIterator.h"
#include "Kes/KesModel/KeywordTracker.h"

#include <algorithm>
#include <utility>

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

void KeywordTracker::addRead(Read read) {
    read_.push_back(std::move(read));
}
const KeywordTracker::Place* KeywordTracker::findRead(const std::string& keyword) const {
    const auto found = std::ranges::find(read_, keyword, &Read::keyword);
    return found == read_.end() ? nullptr : &found->place;
}

void KeywordTracker::addStatedUnits(StatedUnits units) {
    statedUnits_.push_back(std::move(units));
}

} // namespace Orv::Kes::KesModel
