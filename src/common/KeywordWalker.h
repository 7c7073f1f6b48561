// The way through a keyword file and the files that it includes, from one keyword to the next.
#pragma once

#include "DiagnosticKinds.h"
#include "Diagnostics.h"
#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "KeywordError.h"
#include "KeywordItem.h"
#include "KeywordLexer.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// A keyword file that a reader refuses: the sentence of a `KeywordError`, and what a diagnostic
/// needs of it.
class RefusedText : public Text::KeywordError {
public:
    RefusedText(const DiagnosticKind& refusal, const Text::FilePlace& place,
                std::string_view keyword, const std::string& expected, const std::string& found);

    const DiagnosticKind& Kind() const noexcept { return *kind_; }
    /// "Expected ..., found ...", without the place.
    const std::string& Sentence() const noexcept { return sentence_; }

private:
    const DiagnosticKind* kind_;
    std::string sentence_;
};

/// A keyword that a reader wants.
struct WantedKeyword {
    std::string_view name; ///< in capitals
    bool isContent = true; ///< a text without any such keyword holds nothing for the reader
};

/// Gives the wanted keywords of a text, one after another, and the data behind each, which its
/// caller reads before it goes on. Holds a block of each open file and no more.
///
///     TITLE
///     What's in /a/b?          the line behind TITLE is free text
///     RPTPROPS                 whatever isn't wanted is passed over, line by line
///       'PVTO' 3*1 /
///     PVTO                     a wanted keyword: a word in capitals at column one, wherever it is
///     -- comment
///       50 100 1.2 0.5         the first row of a record
///          150 2*0.55          its next row: 150, 0.55, 0.55
///     /                        the end of the record; text behind it doesn't count
///     INCLUDE
///     'pvt/gas.inc' /          goes on in that file, and then here; also ahead of a record
///     SKIP
///     PVTG                     not read, up to the line ENDSKIP
///     ENDSKIP
///     FILEUNIT
///     METRIC /                 the units, wherever in the text they stand
///     END                      alone on its line: what is behind it isn't read
///
/// Directly behind the data of a wanted keyword another one may be indented; elsewhere an indented
/// word is taken for data of a keyword that isn't known, and the diagnostics tell of it. Whoever
/// reads a record has its slash in the same file. What can't be read so throws `RefusedText`, and a
/// read that fails `Text::ReadFailed`. One thread at a time.
class KeywordWalker {
public:
    static constexpr std::size_t deepestInclude = 16;
    static constexpr std::size_t mostIncludes = 10'000;

    /// Begins with the first line of the text. The wanted keywords and the diagnostics outlive the
    /// object.
    KeywordWalker(std::unique_ptr<Text::KeywordLexer> text, std::span<const WantedKeyword> wanted,
                  Diagnostics& diagnostics);

    /// Takes the comments between the records, without their dashes.
    void SetCommentWatch(Text::KeywordLexer::TakeComment take) { takeComment_ = std::move(take); }

    /// Goes to the next wanted keyword, past what was left of the data of the one before. False at
    /// the end of the text.
    bool NextKeyword();
    /// The keyword that was reached last.
    const std::string& Keyword() const noexcept { return keyword_; }

    /// Whether another record follows rather than a keyword, other text, or the end.
    bool HasRecord();

    /// What becomes of a value that is left to its default, as in "2*".
    enum class Defaults { AreRefused, AreZero };

    /// Reads one row of the record. False where the record ends instead, which passes its slash.
    /// A repeat count ends in its row, so that none takes more memory than the row does. `meaning`
    /// says what the row should be.
    bool ReadRow(std::span<double> row, std::string_view meaning,
                 Defaults defaults = Defaults::AreRefused);
    /// The same for a row that may be cut short by the record's end: gives the number of its
    /// numbers, and has passed the slash unless they are all there.
    std::size_t ReadRowPart(std::span<double> row, std::string_view meaning,
                            Defaults defaults = Defaults::AreRefused);
    /// Reads one item of the record, with its repeat count, which is for the caller to bound.
    /// Nothing where the record ends instead, which passes its slash.
    std::optional<Text::RepeatedNumber> ReadItem(std::string_view meaning);
    /// Reads a record of one whole number.
    std::uint64_t ReadCount(std::string_view meaning);
    /// Passes the slash of a record that has nothing more in it. `meaning` says what it should be.
    void EndRecord(std::string_view meaning);
    /// Reads a record of names, in quotes or without.
    std::vector<std::string> ReadNames();

    /// The line of the last row's first number, and of the item that was read last.
    std::uint64_t RowLine() const noexcept { return rowLine_; }
    std::uint64_t Line() const noexcept { return line_; }
    /// The line of the position: of a comment while it is told.
    std::uint64_t PositionLine() const noexcept { return Lexer().File().Line(); }

    /// Whether a number was written with so many digits that a double has hardly more.
    bool HasLongNumbers() const noexcept { return longestNumber_ > longestShortNumber; }

    /// Tells something about a line of the file that is being read.
    void Tell(const DiagnosticKind& kind, std::uint64_t line, const std::string& sentence);
    [[noreturn]] void Fail(const DiagnosticKind& kind, std::uint64_t line,
                           const std::string& expected, const std::string& found) const;

    /// Notes that the text has numbers of that system, by the line of the position.
    void NoteUnits(Common::Units::UNIT_TYPE units, std::string_view text);

    /// At the end of the text: whether it is in field units, by its own record or by its caller.
    /// Refuses a text without content, without units or with contradictory ones.
    bool IsField(std::optional<Common::Units::UNIT_TYPE> units) const;

private:
    // Fourteen digits and a point are safe from a product that is taken and undone.
    static constexpr std::size_t longestShortNumber = 15;

    struct UnitsOfPlace {
        bool isField;
        Text::FilePlace place;
        std::string text;
    };

    Text::KeywordLexer& Lexer() noexcept { return *files_.back(); }
    const Text::KeywordLexer& Lexer() const noexcept { return *files_.back(); }
    const std::string& FileName() const noexcept { return Lexer().File().Name(); }

    const WantedKeyword* FindWanted(std::string_view word) const;
    bool IsKnown(std::string_view word) const;
    void Open(std::unique_ptr<Text::KeywordLexer> text);
    bool CloseInclude();
    void TakeComment(std::string_view comment);

    Text::Token TakeToken();
    void Hold(const Text::Token& token);
    Text::Token NextItem(std::string_view meaning);
    bool ReadWord(const Text::Token& first);
    void PassOtherText(const Text::Token& first);
    void ReadTitle();
    void ReadEnd();
    void ReadSkip();
    void ReadUnits();
    void ReadInclude();
    void Include(const std::string& path, const Text::FilePlace& line);
    std::unique_ptr<Text::KeywordLexer> OpenIncluded(const std::string& path,
                                                     const Text::FilePlace& line) const;
    void PassSlash();
    Text::RepeatedNumber Repeated(const Text::Token& item, std::string_view meaning);
    std::size_t TakePlainNumbers(std::span<double> numbers, bool beginRow);
    void TakeRepeated(const Text::Token& item, std::span<double> row, std::size_t& index,
                      std::string_view meaning, Defaults defaults);
    [[noreturn]] void FailDefault(const Text::Token& item, std::string_view meaning) const;
    [[noreturn]] void FailItem(const Text::Token& item, std::string_view meaning) const;

    std::span<const WantedKeyword> wanted_;
    Diagnostics& diagnostics_;
    Text::KeywordLexer::TakeComment takeComment_;
    std::vector<std::unique_ptr<Text::KeywordLexer>> files_; // the text, and the includes down here
    std::size_t includes_ = 0;

    std::optional<Text::Token> held_; // the next one, already looked at
    std::string keyword_;
    std::uint64_t rowLine_ = 1;
    std::uint64_t line_ = 1;
    std::size_t longestNumber_ = 0;
    bool isInRecord_ = false;
    bool isBehindWanted_ = true; // nothing but wanted keywords, their data and comments came before
    bool isOutsideData_ = true;  // the same, but for slashes: what comes is data of no keyword
    bool hasEnded_ = false;      // by the keyword
    bool hasContent_ = false;

    std::optional<UnitsOfPlace> record_;       // FILEUNIT
    std::optional<UnitsOfPlace> comment_;      // ahead of the next keyword
    std::optional<UnitsOfPlace> ofNumbers_[2]; // the first that names metric, field units
};

/// A text to read: the file of that name, or a stream that is called so.
struct KeywordSource {
    const std::string& name;
    std::istream* stream = nullptr;
};

/// Calls `read` with a walker at the head of the text. Where the text can't be read, tells why and
/// gives a report with an error, message 1001.
Common::ErrorReport WalkKeywords(const KeywordSource& source,
                                 const FluidBench::IO::DiagnosticSink& sink,
                                 std::span<const WantedKeyword> wanted,
                                 const std::function<void(KeywordWalker&)>& read);

/// Sets `result` to what `read` makes of the text, or to a new one where the text can't be read.
/// An exception leaves it as it was.
template <typename Result, typename Read>
Common::ErrorReport ReadKeywords(const KeywordSource& source,
                                 const FluidBench::IO::DiagnosticSink& sink,
                                 std::span<const WantedKeyword> wanted, Result& result, Read read) {
    Result whole{};
    Common::ErrorReport report =
        WalkKeywords(source, sink, wanted, [&](KeywordWalker& walker) { whole = read(walker); });
    result = std::move(whole);
    return report;
}

} // namespace Orv::FluidBench::Impl::IO
