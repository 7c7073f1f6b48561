#include "KeywordRecord.h"

#include "KeywordItem.h"
#include "NumberText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

namespace Orv::Text {

namespace {

using Kind = Token::Kind;

KeywordLexer Open(const KeywordPlace& place) {
    try {
        return KeywordLexer(place.line.file);
    } catch (const KeywordFileError&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw KeywordError(place.line, place.keyword, "the file that was there before",
                           error.what());
    }
}

} // namespace

KeywordRecord::KeywordRecord(const KeywordPlace& place)
    : keyword_(place.keyword), remark_(place.remark), lexer_(Open(place)), line_(place.line.line) {
    lexer_.MoveTo(place.offset, place.line.line);
}

std::size_t KeywordRecord::ReadNumbers(const ItemCount& count, const TakeNumber& take) {
    std::size_t index = 0;
    for (;;) {
        index = TakePlainNumbers(index, count.most, take);
        const Token item = NextItem(count.meaning);
        if (item.kind == Kind::Slash) {
            break;
        }
        const auto repeated = item.kind == Kind::Word ? ParseRepeated(item.text) : std::nullopt;
        if (!repeated) {
            Fail(index < count.least ? "a number" : "a number or '/'", Describe(item));
        }
        if (repeated->count > count.most - index) {
            Fail(count.meaning, Describe(item) + " behind " + std::to_string(index) + " of them");
        }
        for (std::uint64_t i = 0; i < repeated->count; ++i) {
            take(index++, repeated->isDefault ? nullptr : &repeated->number);
        }
    }
    if (index < count.least) {
        Fail(count.meaning, "'/' behind " + std::to_string(index) + " of them");
    }
    return index;
}

// The quick way through the numbers that come next. Gives the index of what is behind them.
std::size_t KeywordRecord::TakePlainNumbers(std::size_t index, std::size_t most,
                                            const TakeNumber& take) {
    std::array<double, 64> numbers;
    for (;;) {
        const std::size_t room = std::min(numbers.size(), most - index);
        const std::size_t count = lexer_.TakeNumbers(std::span(numbers).first(room)).count;
        for (std::size_t i = 0; i < count; ++i) {
            take(index++, &numbers[i]);
        }
        if (count < numbers.size()) {
            return index;
        }
    }
}

std::uint64_t KeywordRecord::ReadCount() {
    const std::string expected = "one whole number";
    std::optional<std::uint64_t> number;
    for (Token item = NextItem(expected); item.kind != Kind::Slash; item = NextItem(expected)) {
        if (number) {
            Fail(expected, Describe(item) + " behind it");
        }
        number = item.kind == Kind::Word ? ParseCount(item.text) : std::nullopt;
        if (!number) {
            Fail(expected, Describe(item));
        }
    }
    if (!number) {
        Fail(expected, "'/'");
    }
    return *number;
}

std::vector<std::string> KeywordRecord::ReadNames(const ItemCount& count) {
    std::vector<std::string> names;
    for (Token item = NextItem(count.meaning); item.kind != Kind::Slash;
         item = NextItem(count.meaning)) {
        if (item.text.empty() || !IsName(item)) {
            Fail("a name", Describe(item));
        }
        if (names.size() == count.most) {
            Fail(count.meaning,
                 Describe(item) + " behind " + std::to_string(count.most) + " of them");
        }
        names.emplace_back(item.text);
    }
    if (names.size() < count.least) {
        Fail(count.meaning,
             names.empty() ? "'/'" : "'/' behind " + std::to_string(names.size()) + " of them");
    }
    return names;
}

std::size_t KeywordRecord::ReadWord(std::span<const std::string_view> words, const Advise& advise) {
    std::string expected = "one of the words";
    for (const std::string_view word : words) {
        (expected += ' ') += word;
    }
    std::optional<std::size_t> index;
    std::uint64_t lineOfWord = 0;
    for (Token item = NextItem(expected); item.kind != Kind::Slash; item = NextItem(expected)) {
        if (index && line_ != lineOfWord) {
            Fail("'/' behind " + expected, Describe(item));
        }
        if (index) {
            Fail(expected, Describe(item) + " behind it");
        }
        lineOfWord = line_;
        const bool isText = item.kind == Kind::Word || item.kind == Kind::Quoted;
        const std::string found = isText ? Capitals(item.text) : std::string();
        const auto word = std::ranges::find(words, found);
        if (word == words.end()) {
            Fail(expected, Describe(item) + (advise ? advise(found) : std::string()));
        }
        index = static_cast<std::size_t>(word - words.begin());
    }
    if (!index) {
        Fail(expected, "'/'");
    }
    return *index;
}

void KeywordRecord::Fail(const std::string& expected, const std::string& found) const {
    throw KeywordError({lexer_.File().Name(), line_}, keyword_, expected,
                       remark_.empty() ? found : found + " (" + remark_ + ')');
}

// The next item of a record that should hold `meaning`, or its slash.
Token KeywordRecord::NextItem(const std::string& meaning) {
    for (;;) {
        line_ = lexer_.File().Line();
        const Token token = lexer_.Next();
        if (token.kind == Kind::FileEnd) {
            Fail("'/' behind " + meaning, Describe(token));
        }
        if (token.kind != Kind::LineEnd) {
            return token;
        }
    }
}

} // namespace Orv::Text
