// What the reading of one deck has to say, and to whom.
#pragma once

#include "DeckProblems.h"
#include "KeywordRecord.h"

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace Orv::Kes::KesModel {

using Text::FilePlace;
using Text::KeywordPlace;

class KeywordTracker;

/// Tells the current logger and the listener of the thread, and keeps the tracker's account. For
/// the reading of one deck, on one thread.
class DeckLog {
public:
    /// A damaged deck can give any number of warnings; the logger gets this many. Who listens gets
    /// them all.
    static constexpr std::size_t mostWarnings = 50;

    /// The tracker may be null; it outlives the object.
    explicit DeckLog(KeywordTracker* tracker) : tracker_(tracker) {}

    /// Tells one sentence, which ends in a full stop.
    void Tell(const DeckProblem& problem, const FilePlace& place, const std::string& sentence);

    /// Tells why the deck isn't read.
    void TellFailure(const std::exception& error, const std::string& deck);

    /// Tells of a keyword that nobody wants: each once, as far as the tracker remembers them.
    void TellPassedOver(std::string_view keyword, const FilePlace& place);

    /// Remembers a keyword whose data are read.
    void KeepRead(const KeywordPlace& place);

    /// Remembers what a keyword says of the units.
    void KeepUnits(const KeywordPlace& place, bool isMetric);

private:
    KeywordTracker* tracker_;
    std::size_t warnings_ = 0;
};

} // namespace Orv::Kes::KesModel
