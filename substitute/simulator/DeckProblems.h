// What the reading of a deck can have to say: the code of each message and how much it matters.
// What each means and what to do about it stands in docs/diagnostics.md.
#pragma once

#include "Kes/KesModel/Log.h"

namespace Orv::Kes::KesModel {

struct DeckProblem {
    const char* code;
    Log::Severity severity;
};

// clang-format off
namespace Problems {

// Why a deck isn't read.
inline constexpr DeckProblem refused         {"deck.refused", Log::Error};
inline constexpr DeckProblem readFailed      {"file.read-failed", Log::Error};
inline constexpr DeckProblem utf16           {"file.utf-16", Log::Error};
inline constexpr DeckProblem carriageReturns {"file.carriage-returns", Log::Error};

// What may have been meant for a keyword and isn't taken.
inline constexpr DeckProblem didYouMean      {"deck.did-you-mean", Log::Warning};
inline constexpr DeckProblem smallLetters    {"deck.small-letters", Log::Warning};
inline constexpr DeckProblem textBehind      {"deck.text-behind", Log::Warning};
inline constexpr DeckProblem inOpenRecord    {"deck.in-open-record", Log::Warning};
inline constexpr DeckProblem otherSection    {"deck.other-section", Log::Warning};
inline constexpr DeckProblem sectionIgnored  {"deck.section-ignored", Log::Warning};

// Data that are taken in part, or not as they stand.
inline constexpr DeckProblem recordNotClosed {"deck.record-not-closed", Log::Warning};
inline constexpr DeckProblem skipNotClosed   {"deck.skip-not-closed", Log::Warning};
inline constexpr DeckProblem secondTime      {"deck.second-time", Log::Warning};
inline constexpr DeckProblem furtherRecords  {"deck.further-records", Log::Warning};
inline constexpr DeckProblem includeMissing  {"deck.include-missing", Log::Warning};
inline constexpr DeckProblem joinedNames     {"deck.joined-names", Log::Warning};

// What a fluid should have.
inline constexpr DeckProblem propertyMissing {"deck.property-missing", Log::Warning};
inline constexpr DeckProblem valuesMissing   {"deck.values-missing", Log::Warning};
inline constexpr DeckProblem fractionSum     {"deck.fraction-sum", Log::Warning};
inline constexpr DeckProblem percentages     {"deck.percentages", Log::Warning};
inline constexpr DeckProblem noComposition   {"deck.no-composition", Log::Warning};

inline constexpr DeckProblem passedOver      {"deck.passed-over", Log::Debug};

} // namespace Problems
// clang-format on

} // namespace Orv::Kes::KesModel
