#include "DeckRecord.h"

#include "DeckNumber.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Orv::Kes::KesModel {

namespace {

using Kind = DeckToken::Kind;

// One item of a record of numbers: so many times the number, or the default.
struct RepeatedNumber {
    std::uint64_t count = 1;
    std::optional<double> number;
};

// "16.04", "3*0.5" or "2*". Nothing for anything else, and for a count of zero.
std::optional<RepeatedNumber> ParseRepeated(std::string_view text) {
    RepeatedNumber repeated;
    if (const std::size_t asterisk = text.find('*'); asterisk != std::string_view::npos) {
        repeated.count = ParseCount(text.substr(0, asterisk)).value_or(0);
        text.remove_prefix(asterisk + 1);
        if (repeated.count == 0) {
            return std::nullopt;
        }
        if (text.empty()) {
            return repeated;
        }
    }
    repeated.number = ParseNumber(text);
    return repeated.number ? std::optional(repeated) : std::nullopt;
}

bool IsName(const DeckToken& item) {
    const bool isBareName = item.kind == Kind::Word &&
                            item.text.find_first_of("*'\"") == std::string_view::npos &&
                            !ParseNumber(item.text);
    return !item.text.empty() && (item.kind == Kind::Quoted || isBareName);
}

std::string Capitals(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return text;
}

DeckLexer Open(const KeywordPlace& place) {
    try {
        return DeckLexer(place.line.file);
    } catch (const std::runtime_error& error) {
        throw DeckError(place.line, place.keyword, "the file that was there before", error.what());
    }
}

} // namespace

DeckRecord::DeckRecord(const KeywordPlace& place)
    : keyword_(place.keyword), lexer_(Open(place)), line_(place.line.line) {
    lexer_.MoveTo(place.offset, place.line.line);
}

std::size_t DeckRecord::ReadNumbers(const ItemCount& count, const TakeNumber& take) {
    std::size_t index = 0;
    while (const auto item = NextItem(count.meaning)) {
        const auto repeated = item->kind == Kind::Word ? ParseRepeated(item->text) : std::nullopt;
        if (!repeated) {
            Fail("a number", Describe(*item));
        }
        if (repeated->count > count.most - index) {
            Fail(count.meaning, Describe(*item) + " behind " + std::to_string(index) + " of them");
        }
        for (std::uint64_t i = 0; i < repeated->count; ++i) {
            take(index++, repeated->number);
        }
    }
    if (index < count.least) {
        Fail(count.meaning, "'/' behind " + std::to_string(index) + " of them");
    }
    return index;
}

std::uint64_t DeckRecord::ReadCount() {
    const std::string expected = "one whole number";
    std::optional<std::uint64_t> number;
    while (const auto item = NextItem(expected)) {
        if (number || item->kind != Kind::Word || !(number = ParseCount(item->text))) {
            Fail(expected, Describe(*item));
        }
    }
    if (!number) {
        Fail(expected, "'/'");
    }
    return *number;
}

std::vector<std::string> DeckRecord::ReadNames(const ItemCount& count) {
    std::vector<std::string> names;
    while (const auto item = NextItem(count.meaning)) {
        if (!IsName(*item)) {
            Fail("a name", Describe(*item));
        }
        if (names.size() == count.most) {
            Fail(count.meaning,
                 Describe(*item) + " behind " + std::to_string(count.most) + " of them");
        }
        names.emplace_back(item->text);
    }
    if (names.size() < count.least) {
        Fail(count.meaning, "'/' behind " + std::to_string(names.size()) + " of them");
    }
    return names;
}

std::size_t DeckRecord::ReadWord(const std::vector<std::string>& words) {
    std::string expected = "one of the words";
    for (const std::string& word : words) {
        expected += ' ' + word;
    }
    const std::vector<std::string> found = ReadNames({1, 1, expected});
    const auto word = std::ranges::find(words, Capitals(found.front()));
    if (word == words.end()) {
        Fail(expected, Quote(found.front()));
    }
    return static_cast<std::size_t>(word - words.begin());
}

void DeckRecord::Fail(const std::string& expected, const std::string& found) const {
    throw DeckError({lexer_.File().Name(), line_}, keyword_, expected, found);
}

// The next item of a record that should hold `meaning`; nothing at its slash.
std::optional<DeckToken> DeckRecord::NextItem(const std::string& meaning) {
    for (;;) {
        line_ = lexer_.File().Line();
        const DeckToken token = lexer_.Next();
        switch (token.kind) {
        case Kind::LineEnd:
            continue;
        case Kind::Slash:
            return std::nullopt;
        case Kind::FileEnd:
            Fail("'/' behind " + meaning, Describe(token));
        case Kind::Word:
        case Kind::Quoted:
        case Kind::OpenQuote:
        case Kind::TooLong:
            return token;
        }
    }
}

} // namespace Orv::Kes::KesModel
