#include "DeckIndex.h"

#include "Characters.h"
#include "KeywordLexer.h"
#include "NumberText.h"
#include "Quote.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace Orv::Kes::KesModel {

using Text::Capitals;
using Text::IsDigit;
using Text::IsLetter;
using Text::IsSmallLetter;
using Text::KeywordError;
using Text::KeywordLexer;
using Text::ParseCount;
using Text::ParseNumber;
using Text::Quote;
using Text::Token;

namespace {

using Kind = Token::Kind;

struct Section {
    std::string_view name;
    bool mayHoldFluidData;
};
constexpr Section sections[] = {
    {"RUNSPEC", true},  {"GRID", false},    {"PROPS", true},     {"REGIONS", false},
    {"SOLUTION", true}, {"SUMMARY", false}, {"SCHEDULE", false},
};

bool LooksLikeKeyword(const Token& token) {
    return token.kind == Kind::Word && IsLetter(token.text[0]) &&
           std::ranges::all_of(token.text, [](char c) { return IsLetter(c) || IsDigit(c); });
}
bool IsKeyword(const Token& token) {
    return token.isAtHeadOfLine && LooksLikeKeyword(token);
}

bool EndsLine(const Token& token) noexcept {
    return token.kind == Kind::LineEnd || token.kind == Kind::FileEnd;
}

bool BeginsLikeNumber(const Token& token) noexcept {
    const std::size_t first = token.text.find_first_not_of("+-.");
    return token.kind == Kind::Word && first != std::string_view::npos &&
           IsDigit(token.text[first]);
}

// "16.04", and also "l6.04", "*16" and "nan": whoever wrote that meant a number.
bool IsMeantAsNumber(const Token& token) {
    if (token.kind != Kind::Word || BeginsLikeNumber(token)) {
        return token.kind == Kind::Word;
    }
    const bool hasDigit = std::ranges::any_of(token.text, IsDigit);
    const std::string word = Capitals(
        token.text.substr(std::min(token.text.find_first_not_of("+-"), token.text.size())));
    return (hasDigit && token.text.find_first_of(".*") != std::string_view::npos) ||
           word == "NAN" || word == "INF" || word == "INFINITY";
}

// A number, a quoted text, or either with a repeat count.
bool IsData(const Token& token) {
    if (token.kind != Kind::Word) {
        return token.kind == Kind::Quoted;
    }
    if (!BeginsLikeNumber(token)) {
        return false;
    }
    double number = 0.0;
    const std::size_t asterisk = token.text.find('*');
    return asterisk == std::string_view::npos
               ? ParseNumber(token.text, number)
               : ParseCount(token.text.substr(0, asterisk)).has_value();
}

// Reads the deck and what it includes, line by line.
class IndexBuilder {
public:
    IndexBuilder(const DeckIndex::Wanted& wanted, const DeckObserver& observer,
                 std::vector<KeywordPlace>& keywords)
        : wanted_(wanted), observer_(observer), keywords_(keywords) {}

    /// Gives the line on which the file ends.
    std::uint64_t ReadFile(KeywordLexer& deck);

private:
    // What the lines before say about a line that doesn't begin with a keyword for sure.
    enum class Context {
        WantedKeyword, // more data of it, or a keyword
        OtherKeyword,  // the same, of a keyword that isn't known
        FreeText       // more text
    };
    enum class Record { Closed, Open, None };

    void ReadLine(KeywordLexer& deck, const Token& first);
    bool IsIndentedKeyword(const Token& first, const KeywordLexer& deck);
    void ReadKeyword(KeywordLexer& deck, const std::string& keyword);
    void ReadTitle(KeywordLexer& deck);
    void ReadEnd(KeywordLexer& deck);
    void ReadSkip(KeywordLexer& deck);
    void ReadSection(KeywordLexer& deck, const Section& section);
    void ReadInclude(KeywordLexer& deck);
    void ReadWanted(KeywordLexer& deck, const std::string& keyword, KeywordData data);
    bool IsMeantAsKeyword(KeywordLexer& deck, KeywordData data, Token& next) const;
    void ReadUnwanted(KeywordLexer& deck, const std::string& keyword);
    void ReadFreeText(KeywordLexer& deck);

    static Record ReadRestOfDataLine(KeywordLexer& deck);
    void SkipRecord(KeywordLexer& deck, Record record, std::uint64_t opened,
                    KeywordData data = KeywordData::Numbers);
    void Include(const std::string& path, const FilePlace& line);
    void Remember(const KeywordLexer& deck, KeywordPlace place);
    void HintAtCapitals(const KeywordLexer& deck, const std::string& keyword);
    void Hint(const KeywordLexer& deck, std::uint64_t line, const std::string& text);

    const DeckIndex::Wanted& wanted_;
    const DeckObserver& observer_;
    std::vector<KeywordPlace>& keywords_;
    std::vector<std::filesystem::path> openFiles_; // the deck, and the includes that led here
    std::size_t includes_ = 0;
    std::size_t hints_ = 0;
    const Section* section_ = nullptr; // none ahead of the first section
    Context context_ = Context::WantedKeyword;
    bool hasEnded_ = false; // by the keyword
};

std::uint64_t IndexBuilder::ReadFile(KeywordLexer& deck) {
    openFiles_.emplace_back(deck.File().Name());
    while (!hasEnded_) {
        const Token first = deck.Next();
        if (first.kind == Kind::FileEnd) {
            break;
        }
        ReadLine(deck, first);
    }
    openFiles_.pop_back();
    return deck.File().Line();
}

void IndexBuilder::ReadLine(KeywordLexer& deck, const Token& first) {
    if (IsKeyword(first) || IsIndentedKeyword(first, deck)) {
        ReadKeyword(deck, std::string(first.text));
    } else if (first.kind == Kind::Slash) {
        deck.SkipLine();
    } else if (first.kind == Kind::LineEnd) {
        return;
    } else if (!IsData(first)) {
        ReadFreeText(deck);
    } else {
        const std::uint64_t opened = deck.File().Line();
        // "3 wells aren't drilled yet" is more text, "3 1* /" isn't.
        SkipRecord(deck, context_ == Context::FreeText ? ReadRestOfDataLine(deck) : Record::Open,
                   opened);
    }
}

// Between records an indented word may well be meant as a keyword. Where it may as well be the data
// of a keyword that isn't known, a hint has to do.
bool IndexBuilder::IsIndentedKeyword(const Token& first, const KeywordLexer& deck) {
    if (first.isAtHeadOfLine || !LooksLikeKeyword(first) ||
        !(wanted_(first.text) || first.text == "INCLUDE" ||
          std::ranges::find(sections, first.text, &Section::name) != std::end(sections))) {
        return false;
    }
    if (context_ != Context::WantedKeyword) {
        Hint(deck, deck.File().Line(),
             std::string(first.text) + " isn't taken for the keyword because it doesn't begin at "
                                       "the head of its line");
    }
    return context_ == Context::WantedKeyword;
}

void IndexBuilder::ReadKeyword(KeywordLexer& deck, const std::string& keyword) {
    const auto* const section = std::ranges::find(sections, keyword, &Section::name);
    const bool mayBeWanted = section_ == nullptr || section_->mayHoldFluidData;
    if (keyword == "TITLE") {
        ReadTitle(deck);
    } else if (keyword == "INCLUDE") {
        ReadInclude(deck);
    } else if (keyword == "SKIP") {
        ReadSkip(deck);
    } else if (keyword == "END") {
        ReadEnd(deck);
    } else if (section != std::end(sections)) {
        ReadSection(deck, *section);
    } else if (const auto data = wanted_(keyword); data && mayBeWanted) {
        ReadWanted(deck, keyword, *data);
    } else {
        if (data) {
            Hint(deck, deck.File().Line(),
                 keyword + " isn't read in section " + std::string(section_->name));
        } else if (std::ranges::any_of(keyword, IsSmallLetter)) {
            HintAtCapitals(deck, keyword);
        }
        ReadUnwanted(deck, keyword);
    }
}

void IndexBuilder::ReadTitle(KeywordLexer& deck) {
    if (deck.Next().kind == Kind::LineEnd) {
        deck.SkipCommentLines();
    }
    ReadFreeText(deck);
    context_ = Context::OtherKeyword;
}

// What stands behind END isn't read. "END of the deck" is free text.
void IndexBuilder::ReadEnd(KeywordLexer& deck) {
    const Token next = deck.Next();
    hasEnded_ = EndsLine(next) || next.kind == Kind::Slash;
    if (!hasEnded_) {
        ReadFreeText(deck);
    }
}

// Everything up to ENDSKIP is put out of force.
void IndexBuilder::ReadSkip(KeywordLexer& deck) {
    const std::uint64_t opened = deck.File().Line();
    if (!EndsLine(deck.Next())) {
        ReadFreeText(deck);
        return;
    }
    for (;;) {
        const Token first = deck.Next();
        if (first.kind == Kind::FileEnd) {
            Hint(deck, opened, "SKIP isn't closed by ENDSKIP before the end of the file");
            return;
        }
        if (first.kind != Kind::LineEnd) {
            const bool isEnd = IsKeyword(first) && first.text == "ENDSKIP";
            deck.SkipLine();
            if (isEnd) {
                return;
            }
        }
    }
}

// A row of dots or dashes behind a section's name is ornament.
void IndexBuilder::ReadSection(KeywordLexer& deck, const Section& section) {
    const Token next = deck.Next();
    const bool isOrnament = next.kind == Kind::Word && !IsLetter(next.text[0]) && !IsData(next);
    if (!EndsLine(next)) {
        ReadFreeText(deck);
    }
    if (EndsLine(next) || next.kind == Kind::Slash || isOrnament) {
        section_ = &section;
        context_ = Context::WantedKeyword;
    }
}

void IndexBuilder::ReadWanted(KeywordLexer& deck, const std::string& keyword, KeywordData data) {
    KeywordPlace place{keyword, {deck.File().Name(), deck.File().Line()}, deck.File().Offset()};
    Token next = deck.Next();
    if (!IsMeantAsKeyword(deck, data, next)) {
        Hint(deck, place.line.line,
             keyword + " isn't taken for the keyword because of the text behind it");
        if (!EndsLine(next)) {
            ReadFreeText(deck);
        }
        return;
    }
    if (next.kind == Kind::Slash || (data == KeywordData::None && !EndsLine(next))) {
        deck.SkipLine();
    } else if (data != KeywordData::None) {
        SkipRecord(deck, Record::Open, place.line.line, data);
    }
    context_ = Context::WantedKeyword;
    Remember(deck, std::move(place));
}

// Whether the text behind a wanted keyword suits it, or its place leaves no doubt. `next` is the
// token behind the keyword, and afterwards the last one that was looked at.
bool IndexBuilder::IsMeantAsKeyword(KeywordLexer& deck, KeywordData data, Token& next) const {
    const auto endsRecord = [&next] { return EndsLine(next) || next.kind == Kind::Slash; };
    if (endsRecord()) {
        return true;
    }
    bool suits = false;
    switch (data) {
    case KeywordData::None:
        break;
    case KeywordData::Numbers:
        suits = IsMeantAsNumber(next);
        break;
    case KeywordData::Word: {
        const bool isQuoted = next.kind == Kind::Quoted;
        next = deck.Next();
        suits = isQuoted || endsRecord();
        break;
    }
    case KeywordData::Names:
        suits = true;
        break;
    }
    return suits || context_ == Context::WantedKeyword;
}

void IndexBuilder::ReadUnwanted(KeywordLexer& deck, const std::string& keyword) {
    const std::uint64_t line = deck.File().Line();
    const Context before = context_;
    const Token next = deck.Next();
    Record record = Record::Closed;
    context_ = Context::OtherKeyword;
    if (next.kind == Kind::Slash) {
        deck.SkipLine();
    } else if (!EndsLine(next) && !IsData(next)) {
        ReadFreeText(deck);
    } else if (!EndsLine(next)) {
        record = ReadRestOfDataLine(deck);
        context_ = record == Record::None ? Context::FreeText : Context::OtherKeyword;
    }
    if (observer_.passedOver && (context_ != Context::FreeText || before != Context::FreeText)) {
        observer_.passedOver(keyword, deck.File().Name(), line);
    }
    if (context_ == Context::OtherKeyword) {
        SkipRecord(deck, record, line);
    }
}

void IndexBuilder::ReadFreeText(KeywordLexer& deck) {
    deck.SkipLine();
    context_ = Context::FreeText;
}

// Passes the rest of a line of data, up to the end of its record, its own end or the first word
// that isn't data. A slash and such a word take the rest of the line with them.
IndexBuilder::Record IndexBuilder::ReadRestOfDataLine(KeywordLexer& deck) {
    for (;;) {
        const Token token = deck.Next();
        if (EndsLine(token)) {
            return Record::Open;
        }
        if (!IsData(token)) {
            deck.SkipLine();
            return token.kind == Kind::Slash ? Record::Closed : Record::None;
        }
    }
}

// Words in an open record are data, whatever they look like. When it was left open by mistake, the
// keywords that stand in it are missing afterwards, which is hard to find out without a hint. The
// one word that a record should have may well be a keyword too, as METRIC is under FILEUNIT.
void IndexBuilder::SkipRecord(KeywordLexer& deck, Record record, std::uint64_t opened,
                              KeywordData data) {
    bool isExpectedWord = data == KeywordData::Word;
    while (record == Record::Open) {
        deck.SkipPlainText();
        const Token token = deck.Next();
        if (token.kind == Kind::Slash) {
            deck.SkipLine();
            record = Record::Closed;
        } else if (token.kind == Kind::FileEnd) {
            Hint(deck, opened, "the record isn't closed by '/' before the end of the file");
            record = Record::None;
        } else if (IsKeyword(token) && wanted_(token.text) && !isExpectedWord) {
            Hint(deck, deck.File().Line(),
                 std::string(token.text) + " is data of the record that is open since line " +
                     std::to_string(opened));
        }
        isExpectedWord = isExpectedWord && token.kind == Kind::LineEnd;
    }
}

void IndexBuilder::ReadInclude(KeywordLexer& deck) {
    const FilePlace line{deck.File().Name(), deck.File().Line()};
    Token path = deck.Next();
    if (path.kind == Kind::Word && context_ != Context::WantedKeyword) {
        Hint(deck, line.line,
             "INCLUDE isn't taken for the keyword because no path in quotes is behind it");
        ReadFreeText(deck);
        return;
    }
    while (path.kind == Kind::LineEnd) {
        path = deck.Next();
    }
    if (path.kind != Kind::Quoted || path.text.empty()) {
        throw KeywordError(line, "INCLUDE", "a path in quotes", Describe(path));
    }
    const std::filesystem::path folder = std::filesystem::path(deck.File().Name()).parent_path();
    const std::string included = (folder / std::string(path.text)).string();
    const Token behind = deck.Next();
    if (!EndsLine(behind)) {
        if (behind.kind != Kind::Slash) {
            throw KeywordError(line, "INCLUDE", "'/' behind the path", Describe(behind));
        }
        deck.SkipLine();
    }
    Include(included, line);
}

void IndexBuilder::Include(const std::string& path, const FilePlace& line) {
    const auto fail = [&](const std::string& expected, const std::string& found) {
        throw KeywordError(line, "INCLUDE", expected, found);
    };
    const auto isSameFile = [&](const std::filesystem::path& open) {
        std::error_code error;
        return std::filesystem::equivalent(open, path, error);
    };
    if (std::ranges::any_of(openFiles_, isSameFile)) {
        fail("a file that isn't being read already", Quote(path));
    }
    if (openFiles_.size() > DeckIndex::deepestInclude) {
        fail("at most " + std::to_string(DeckIndex::deepestInclude) + " includes in each other",
             "one more, " + Quote(path));
    }
    if (++includes_ > DeckIndex::mostIncludes) {
        fail("at most " + std::to_string(DeckIndex::mostIncludes) + " includes in a deck",
             "one more, " + Quote(path));
    }
    std::unique_ptr<KeywordLexer> deck;
    try {
        deck = std::make_unique<KeywordLexer>(path);
    } catch (const std::runtime_error& error) {
        fail("a file to include", error.what() + (", " + Quote(path)));
    }
    ReadFile(*deck);
}

void IndexBuilder::Remember(const KeywordLexer& deck, KeywordPlace place) {
    const auto earlier = std::ranges::find(keywords_, place.keyword, &KeywordPlace::keyword);
    if (earlier != keywords_.end()) {
        Hint(deck, place.line.line, place.keyword + " stands a second time, and this time counts");
        keywords_.erase(earlier);
    }
    keywords_.push_back(std::move(place));
}

void IndexBuilder::HintAtCapitals(const KeywordLexer& deck, const std::string& keyword) {
    const std::string capitals = Capitals(keyword);
    if (wanted_(capitals) || capitals == "INCLUDE") {
        Hint(deck, deck.File().Line(),
             keyword + " isn't taken for the keyword " + capitals +
                 " because it isn't in capitals");
    }
}

void IndexBuilder::Hint(const KeywordLexer& deck, std::uint64_t line, const std::string& text) {
    if (observer_.hint && hints_ < DeckIndex::mostHints) {
        ++hints_;
        observer_.hint(Describe(FilePlace{deck.File().Name(), line}) + ": " + text + ".");
    }
}

} // namespace

DeckIndex::DeckIndex(const std::string& fileName, const Wanted& wanted,
                     const DeckObserver& observer)
    : end_{fileName, 1} {
    std::unique_ptr<KeywordLexer> deck;
    try {
        deck = std::make_unique<KeywordLexer>(fileName);
    } catch (const std::runtime_error& error) {
        throw KeywordError(end_, "none", "a deck", error.what());
    }
    end_.line = IndexBuilder(wanted, observer, keywords_).ReadFile(*deck);
}

} // namespace Orv::Kes::KesModel
