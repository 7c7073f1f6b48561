// Where the keywords that somebody wants stand in a deck.
#pragma once

#include "DeckLog.h"
#include "KeywordRecord.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orv::Kes::KesModel {

/// What stands behind a keyword.
enum class KeywordData {
    None,    ///< nothing, not even a slash
    Numbers, ///< a record of numbers
    Word,    ///< a record of one word, with or without quotes
    Names    ///< a record of any number of names, with or without quotes
};

/// A keyword that somebody wants.
struct WantedKeyword {
    KeywordData data;
    std::span<const std::string_view> words{}; ///< of which its record has one, in capitals
    std::string (*advise)(std::string_view word) = nullptr; ///< on another word; may be null
    bool isOfWholeDeck = false; ///< says something in sections too that hold none
};

/// The keywords that somebody wants.
struct DeckVocabulary {
    /// Nothing for a word that isn't wanted.
    std::function<std::optional<WantedKeyword>(std::string_view keyword)> find;
    std::vector<std::string_view> names; ///< all that `find` finds
};

/// Reads through a deck once and remembers where the wanted keywords stand; everything else is
/// passed over, and nothing of it is kept. The index is as large as the number of wanted keywords.
///
/// While no record is open, a wanted keyword in capitals that begins a line is that keyword,
/// whatever stands ahead of it, blanks too; what follows has to suit it, or the deck is refused.
/// TITLE, INCLUDE, SKIP, END and the names of sections are found alike.
///
///     RUNSPEC                  a section; wanted keywords count in some sections only
///     TITLE
///     What's in /a/b?          the line behind TITLE is the one place for free text
///     ECHO                     a keyword without data: what follows on its line doesn't count
///     CNAMES                   a keyword, and its record up to the slash
///     'C1'
///     PCRIT /                  data, since the record is open
///     DIMENS 10 20             an unwanted keyword opens a record as well, where data begin with
///     MW 1 /                   a number, a quote or a repeat count: this MW is data
///     P1 OPEN ORAT 5 /         neither a wanted keyword nor a record: the line is passed over
///     2017 rich gas            the same: a line with other words among its numbers is text
///     INCLUDE
///     'pvt/oil.inc' /          goes on in that file, and then here
///     SKIP
///     MW                       not read, up to the line ENDSKIP
///     END                      alone on its line: what is behind it isn't read
///
/// Data that no keyword waits for open a record too, so that further records of a keyword are
/// passed over whole; but where a wanted keyword begins a line ahead of the slash, they were none.
///
/// The log is told wherever something may have been meant for a wanted keyword and isn't taken.
class DeckIndex {
public:
    static constexpr std::size_t deepestInclude = 16;
    static constexpr std::size_t mostIncludes = 10'000;

    /// Throws `KeywordError` for a deck or an included file that can't be opened, for a wanted
    /// keyword whose record doesn't begin as it should, and for an include that isn't understood,
    /// comes back to a file that is being read, or exceeds the bounds; `ReadFailed` and `OddText`
    /// for a file that can't be read. An included file that is missing, or can't be read, in a
    /// section without wanted keywords is a warning.
    DeckIndex(const std::string& fileName, const DeckVocabulary& vocabulary, DeckLog& log);

    /// The wanted keywords in the order in which they stand in the deck. Of a keyword that stands
    /// more than once it is the last one.
    const std::vector<KeywordPlace>& Keywords() const noexcept { return keywords_; }

    /// That keyword of them; null where the deck lacks it.
    const KeywordPlace* Find(std::string_view keyword) const noexcept;

    /// The keywords of the whole deck that stand in sections which hold no wanted ones. Whether
    /// their records are sound isn't known.
    const std::vector<KeywordPlace>& Elsewhere() const noexcept { return elsewhere_; }

    /// Where the deck ends.
    const FilePlace& End() const noexcept { return end_; }

private:
    std::vector<KeywordPlace> keywords_;
    std::vector<KeywordPlace> elsewhere_;
    FilePlace end_;
};

} // namespace Orv::Kes::KesModel
