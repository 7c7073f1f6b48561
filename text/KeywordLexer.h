// The words of a keyword file: what stands between blanks, outside of comments.
#pragma once

#include "KeywordFile.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace Orv::Text {

struct Token {
    enum class Kind {
        Word,      ///< what has no blanks, slashes and quotes around it: 16.04, 2*, 3*0.5, PR
        Quoted,    ///< text in single or double quotes, given without them
        OpenQuote, ///< a quote that isn't closed on its line, given as the beginning of the text
                   ///< behind it, which comes next
        TooLong,   ///< the first part of a word beyond `KeywordLexer::longestItem`; the rest comes
                   ///< next
        Slash,     ///< outside of quotes: the end of a record
        LineEnd,
        FileEnd
    };
    Kind kind = Kind::FileEnd;
    std::string_view text;       ///< of the first four kinds
    bool isAtHeadOfLine = false; ///< begins at column one
};

/// The token as "found" in a message.
std::string Describe(const Token& token);

/// The word in capitals, as keywords are.
std::string Capitals(std::string_view word);

/// Takes the text of one keyword file apart.
///
///     BIC -- comment        Word at the head of a line, LineEnd
///     3*0.05 'a/b'/ rest    Word, Quoted, Slash, and so on with the rest
///
/// Blanks, tabs and the carriage return of a line end separate and are nothing else. A comment runs
/// from "--" to the line's end. A quote opens in front of an item and closes where a blank, a
/// slash, a comment or the line's end follows: any other quote belongs to the text, because those
/// who write component names don't escape them. Behind a blank it can't belong to the text, so that
/// a quote that somebody forgot to close doesn't join two names. Quoted text ends on its line.
///
/// The lexer holds a block of the file, never the file. One thread at a time.
class KeywordLexer {
public:
    static constexpr std::size_t longestItem = 16'384;
    /// A longer comment isn't told.
    static constexpr std::size_t longestComment = std::size_t{1} << 20;

    /// Takes the text of a comment, behind its dashes.
    using TakeComment = std::function<void(std::string_view comment)>;

    /// Begins with the first line of the file. Throws as `KeywordFile`'s constructor does.
    explicit KeywordLexer(const std::string& fileName) : file_(fileName) {}
    /// Begins with the first line of the stream, which outlives the object.
    KeywordLexer(std::istream& stream, const std::string& name) : file_(stream, name) {}

    const KeywordFile& File() const noexcept { return file_; }

    /// Goes on behind a token: where `File()` had this offset and line.
    void MoveTo(std::uint64_t offset, std::uint64_t line);

    /// From here on tells the comments that `Next` passes over, while `File()` stands on their
    /// line.
    void SetCommentWatch(TakeComment take) { takeComment_ = std::move(take); }

    /// The next token. Its text is valid until the next call of an operation that isn't const.
    Token Next();

    /// What `TakeNumbers` took.
    struct TakenNumbers {
        std::size_t count = 0;
        std::size_t longest = 0;     ///< length of the longest one's text
        std::uint64_t firstLine = 0; ///< of the first number
        std::uint64_t lastLine = 0;  ///< of the last one
    };

    /// Takes the next items for as long as they are numbers and nothing else, with blanks and line
    /// ends ahead of them, and fills `numbers` at the most: the quick way through a table. Stops
    /// ahead of what may be anything else, and where `Next` has to give a number because it may go
    /// on in the next block.
    TakenNumbers TakeNumbers(std::span<double> numbers);

    /// The next token where a path is expected: without quotes it goes up to a blank, with the
    /// slashes in it but for one at its end.
    Token NextPath();

    /// Passes the rest of the line, with its end.
    void SkipLine();

    /// At the head of a line: passes the lines that are comments.
    void SkipCommentLines();

    /// Passes what can't matter in a record that nobody wants, at the speed of a search: lines, or
    /// the rest of one, up to the slash. Stops at the head of a line that begins with a letter. May
    /// stop earlier than it must.
    void SkipPlainText();

private:
    void ReadComment();
    Token ReadWord(bool isAtHeadOfLine);
    Token ReadQuoted(bool isAtHeadOfLine);
    Token ReadPath(bool isAtHeadOfLine);
    template <typename IsSlash, typename ReadBare>
    Token NextToken(IsSlash isSlash, ReadBare readBare);
    std::size_t FindClosingQuote();
    std::string_view AtLeastAhead(std::size_t count);
    void Pass(std::size_t count) noexcept;
    void PassNewline() noexcept;

    KeywordFile file_;
    TakeComment takeComment_;
    bool isAtHeadOfLine_ = true;
    // What was found out before: ahead of this offset there is no plain text, and no single or
    // double quote closes.
    std::uint64_t plainTextBegins_ = 0;
    std::uint64_t openQuotesEnd_[2] = {0, 0};
};

} // namespace Orv::Text
