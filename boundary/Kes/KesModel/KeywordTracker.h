// What becomes of a deck's keywords.
#pragma once

#include "Kes/Core/Keywords/SimulatorType.h"
#include "Visibility.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace Orv::Kes::KesModel {

class Deck;

/// Keeps account of the keywords that the interpreter passed over, and of those that it read.
class FLUIDBENCH_BOUNDARY_API KeywordTracker {
public:
    /// No keyword has been passed over yet.
    KeywordTracker(const Deck& deck, Core::Keywords::SimulatorType::Enum simulator);
    ~KeywordTracker();
    KeywordTracker(const KeywordTracker&) = delete;
    KeywordTracker& operator=(const KeywordTracker&) = delete;

    // The stand-in's own operations.

    /// A damaged file can hold any number of words; more names than this aren't remembered.
    static constexpr std::size_t mostNames = 256;

    /// Remembers the name of a keyword that was passed over. False when it was known already or too
    /// many are.
    bool addPassedOver(const std::string& name);

    /// Where a keyword stands.
    struct Place {
        std::string file;       ///< as it was named
        std::uint64_t line = 0; ///< counted from 1
    };

    /// A keyword whose data are read.
    struct Read {
        std::string keyword; ///< in capitals
        Place place;         ///< of the keyword
    };
    /// Remembers it.
    void addRead(Read read);
    /// All of them in the order in which they are read.
    const std::vector<Read>& getRead() const { return read_; }
    /// Null for a keyword that wasn't read. Valid until the next one is.
    const Place* findRead(const std::string& keyword) const;

    /// A keyword that names the unit system of the deck, or of its fluid's numbers.
    struct StatedUnits {
        std::string keyword;   ///< METRIC, FIELD or FILEUNIT
        bool isMetric = false; ///< or else field
        Place place;           ///< of the keyword
    };
    /// Remembers it.
    void addStatedUnits(StatedUnits units);
    /// All of them in the order of the deck. Valid until the next one is added.
    const std::vector<StatedUnits>& getStatedUnits() const { return statedUnits_; }

private:
    std::set<std::string> passedOver_;
    std::vector<Read> read_;
    std::vector<StatedUnits> statedUnits_;
};

} // namespace Orv::Kes::KesModel
