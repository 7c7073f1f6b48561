// Where the keywords that somebody wants stand in a deck.
#pragma once

#include "KeywordRecord.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orv::Kes::KesModel {

using Text::FilePlace;
using Text::KeywordPlace;

/// What stands behind a keyword.
enum class KeywordData {
    None,    ///< nothing, not even a slash
    Numbers, ///< a record of numbers
    Word,    ///< a record of one word, with or without quotes
    Names    ///< a record of any number of names, with or without quotes
};

/// What an index tells while it is made. Any of the functions may be empty.
struct DeckObserver {
    /// A keyword that nobody wants.
    std::function<void(std::string_view keyword, const std::string& file, std::uint64_t line)>
        passedOver;
    /// Something that may explain what looks wrong afterwards, as a sentence.
    std::function<void(const std::string&)> hint;
};

/// Reads through a deck once and remembers where the wanted keywords stand; everything else is
/// passed over, and nothing of it is kept. The index is as large as the number of wanted keywords.
///
/// A deck, as the index sees it:
///
///     RUNSPEC                  a section; wanted keywords count in some sections only
///     TITLE
///     What's in /a/b?          the line behind TITLE is free text
///     ECHO                     a keyword without data
///     CNAMES                   a keyword, and its record up to the slash
///     'C1'
///     PCRIT /                  data, since the record is open
///     DIMENS 10 20             an unwanted keyword, whose record is open as well, since its data
///     MW 1 /                   begin with a number, a quote or a repeat count: this MW is data
///     P1 OPEN ORAT 5 /         neither wanted nor a record: the line is passed over
///     INCLUDE
///     'pvt/oil.inc' /          goes on in that file, and then here
///     SKIP
///     MW                       not read, up to the line ENDSKIP
///     END                      alone on its line: what is behind it isn't read
///
/// A keyword is a word of letters and digits that begins with a letter at column one; a wanted one
/// is in capitals. An indented word is data, unless it directly follows a wanted keyword's record
/// and is wanted as well, a section or INCLUDE. Where free text or a list of words begins with a
/// wanted keyword, what stands behind it on the line decides: "MW of the oil" isn't the keyword MW,
/// but "MW 16.04 30.07 /" is. A line that directly follows a wanted keyword's record gets no such
/// leniency, so that a typing error in it is found.
/// The observer gets a hint wherever a wanted keyword may have been meant and isn't taken, up to
/// `mostHints` of them.
class DeckIndex {
public:
    /// How a wanted keyword's data looks; nothing for a keyword that isn't wanted.
    using Wanted = std::function<std::optional<KeywordData>(std::string_view keyword)>;

    static constexpr std::size_t deepestInclude = 16;
    static constexpr std::size_t mostIncludes = 10'000;
    static constexpr std::size_t mostHints = 50;

    /// Throws `KeywordError` for a deck or an included file that can't be opened, and for an
    /// include that isn't understood, comes back to a file that is being read, or exceeds the
    /// bounds.
    DeckIndex(const std::string& fileName, const Wanted& wanted, const DeckObserver& observer);

    /// The wanted keywords in the order in which they stand in the deck. Of a keyword that stands
    /// more than once it is the last one.
    const std::vector<KeywordPlace>& Keywords() const noexcept { return keywords_; }

    /// Where the deck ends.
    const FilePlace& End() const noexcept { return end_; }

private:
    std::vector<KeywordPlace> keywords_;
    FilePlace end_;
};

} // namespace Orv::Kes::KesModel
