// What becomes of a deck's keywords.
#pragma once

#include "Kes/Core/Keywords/SimulatorType.h"
#include "Visibility.h"

#include <cstddef>
#include <set>
#include <string>

namespace Orv::Kes::KesModel {

class Deck;

/// Keeps account of the keywords that the interpreter passed over.
class FLUIDBENCH_BOUNDARY_API KeywordTracker {
public:
    /// No keyword has been passed over yet.
    KeywordTracker(const Deck& deck, Core::Keywords::SimulatorType::Enum simulator);
    ~KeywordTracker();
    KeywordTracker(const KeywordTracker&) = delete;
    KeywordTracker& operator=(const KeywordTracker&) = delete;

    // The stand-in's own operation.

    /// A damaged file can hold any number of words; more names than this aren't remembered.
    static constexpr std::size_t mostNames = 256;

    /// Remembers the name of a keyword that was passed over. False when it was known already or too
    /// many are.
    bool addPassedOver(const std::string& name);

private:
    std::set<std::string> passedOver_;
};

} // namespace Orv::Kes::KesModel
