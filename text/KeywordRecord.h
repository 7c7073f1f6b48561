// The data of one keyword.
#pragma once

#include "KeywordError.h"
#include "KeywordLexer.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orv::Text {

/// A keyword and the position right behind it.
struct KeywordPlace {
    std::string keyword;
    FilePlace line;
    std::uint64_t offset = 0;
    std::string remark; ///< what may explain a record that isn't as expected; often empty
};

/// How many items a record may have, and what they are altogether, for a message.
struct ItemCount {
    std::size_t least;
    std::size_t most;
    std::string meaning;
};

/// Reads the record behind a keyword, from the file, when it is asked to. Holds one block of the
/// file. Every operation reads the record from where the last one left it; each throws
/// `KeywordError` when the record isn't what it expects.
class KeywordRecord {
public:
    /// Throws `KeywordError` when the file can't be opened any more.
    explicit KeywordRecord(const KeywordPlace& place);

    /// Takes a number with its index; null for a defaulted one.
    using TakeNumber = std::function<void(std::size_t index, const double* number)>;

    /// Reads the record as numbers and gives how many there were. A repeat count is compared with
    /// what is still allowed before anything is repeated.
    std::size_t ReadNumbers(const ItemCount& count, const TakeNumber& take);

    /// Reads the record as one whole number.
    std::uint64_t ReadCount();

    /// Reads the record as names, in quotes or without. A number, or what has an asterisk or a
    /// quote in it, is a name only in quotes.
    std::vector<std::string> ReadNames(const ItemCount& count);

    /// What to say of a word in capitals that isn't taken; often nothing.
    using Advise = std::function<std::string(std::string_view word)>;

    /// Reads the record as one of the words, in quotes or without and in either case, and gives its
    /// index. The words are in capitals.
    std::size_t ReadWord(std::span<const std::string_view> words, const Advise& advise = {});

    /// Throws a `KeywordError` for this keyword, at the line that was read last.
    [[noreturn]] void Fail(const std::string& expected, const std::string& found) const;

private:
    std::size_t TakePlainNumbers(std::size_t index, std::size_t most, const TakeNumber& take);
    Token NextItem(const std::string& meaning);

    std::string keyword_;
    std::string remark_;
    KeywordLexer lexer_;
    std::uint64_t line_;
};

} // namespace Orv::Text
