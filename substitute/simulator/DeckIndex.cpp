#include "DeckIndex.h"

#include "DeckLexer.h"
#include "DeckNumber.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace Orv::Kes::KesModel {

namespace {

using Kind = DeckToken::Kind;

struct Section {
    std::string_view name;
    bool mayHoldFluidData;
};
constexpr Section sections[] = {
    {"RUNSPEC", true},  {"GRID", false},    {"PROPS", true},     {"REGIONS", false},
    {"SOLUTION", true}, {"SUMMARY", false}, {"SCHEDULE", false},
};

constexpr bool IsLetter(char c) noexcept {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
constexpr bool IsDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

bool IsKeyword(const DeckToken& token) {
    return token.kind == Kind::Word && token.isAtHeadOfLine && IsLetter(token.text[0]) &&
           std::ranges::all_of(token.text, [](char c) { return IsLetter(c) || IsDigit(c); });
}

bool EndsLine(const DeckToken& token) noexcept {
    return token.kind == Kind::LineEnd || token.kind == Kind::FileEnd;
}

// "16.04", and "16.o4" as well: whoever wrote that meant a number.
bool BeginsLikeNumber(const DeckToken& token) noexcept {
    const std::size_t first = token.text.find_first_not_of("+-.");
    return token.kind == Kind::Word && first != std::string_view::npos &&
           IsDigit(token.text[first]);
}

// A number, a quoted text, or either with a repeat count.
bool IsData(const DeckToken& token) {
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
    std::uint64_t ReadFile(DeckLexer& deck);

private:
    // What the lines before say about a line that doesn't begin with a keyword for sure.
    enum class Context {
        WantedKeyword, // more data of it, or a keyword
        OtherKeyword,  // the same, of a keyword that isn't known
        FreeText       // more text
    };
    enum class Record { Closed, Open, None };

    void ReadLine(DeckLexer& deck, const DeckToken& first);
    void ReadKeyword(DeckLexer& deck, const std::string& keyword);
    void ReadTitle(DeckLexer& deck);
    void ReadSection(DeckLexer& deck, const Section& section);
    void ReadInclude(DeckLexer& deck);
    void ReadWanted(DeckLexer& deck, const std::string& keyword, KeywordData data);
    void ReadUnwanted(DeckLexer& deck, const std::string& keyword);
    void ReadFreeText(DeckLexer& deck);

    static Record ReadRestOfDataLine(DeckLexer& deck);
    void SkipRecord(DeckLexer& deck, Record record, KeywordData data = KeywordData::Numbers);
    void Include(const std::string& path, const DeckLine& line);
    void Remember(KeywordPlace place);
    void Hint(const DeckLine& line, const std::string& text);

    static DeckLine LineOf(const DeckLexer& deck) {
        return {deck.File().Name(), deck.File().Line()};
    }

    const DeckIndex::Wanted& wanted_;
    const DeckObserver& observer_;
    std::vector<KeywordPlace>& keywords_;
    std::vector<std::filesystem::path> openFiles_; // the deck, and the includes that led here
    std::size_t includes_ = 0;
    std::size_t hints_ = 0;
    const Section* section_ = nullptr; // none ahead of the first section
    Context context_ = Context::WantedKeyword;
};

std::uint64_t IndexBuilder::ReadFile(DeckLexer& deck) {
    openFiles_.emplace_back(deck.File().Name());
    for (;;) {
        const DeckToken first = deck.Next();
        if (first.kind == Kind::FileEnd) {
            break;
        }
        ReadLine(deck, first);
    }
    openFiles_.pop_back();
    return deck.File().Line();
}

void IndexBuilder::ReadLine(DeckLexer& deck, const DeckToken& first) {
    if (IsKeyword(first)) {
        ReadKeyword(deck, std::string(first.text));
    } else if (first.kind == Kind::Slash) {
        deck.SkipLine();
    } else if (first.kind == Kind::LineEnd) {
        return;
    } else if (!IsData(first)) {
        ReadFreeText(deck);
    } else if (context_ != Context::FreeText) {
        SkipRecord(deck, Record::Open);
    } else {
        // "3 wells aren't drilled yet" is more text, "3 1* /" isn't.
        SkipRecord(deck, ReadRestOfDataLine(deck));
    }
}

void IndexBuilder::ReadKeyword(DeckLexer& deck, const std::string& keyword) {
    const auto* const section = std::ranges::find(sections, keyword, &Section::name);
    const bool mayBeWanted = section_ == nullptr || section_->mayHoldFluidData;
    if (keyword == "TITLE") {
        ReadTitle(deck);
    } else if (keyword == "INCLUDE") {
        ReadInclude(deck);
    } else if (section != std::end(sections)) {
        ReadSection(deck, *section);
    } else if (const auto data = wanted_(keyword); data && mayBeWanted) {
        ReadWanted(deck, keyword, *data);
    } else {
        if (data) {
            Hint(LineOf(deck), keyword + " isn't read in section " + std::string(section_->name));
        }
        ReadUnwanted(deck, keyword);
    }
}

void IndexBuilder::ReadTitle(DeckLexer& deck) {
    if (deck.Next().kind == Kind::LineEnd) {
        deck.SkipCommentLines();
    }
    ReadFreeText(deck);
    context_ = Context::OtherKeyword;
}

// A row of dots or dashes behind a section's name is ornament.
void IndexBuilder::ReadSection(DeckLexer& deck, const Section& section) {
    const DeckToken next = deck.Next();
    const bool isOrnament = next.kind == Kind::Word && !IsLetter(next.text[0]) && !IsData(next);
    if (!EndsLine(next)) {
        ReadFreeText(deck);
    }
    if (EndsLine(next) || next.kind == Kind::Slash || isOrnament) {
        section_ = &section;
        context_ = Context::WantedKeyword;
    }
}

void IndexBuilder::ReadWanted(DeckLexer& deck, const std::string& keyword, KeywordData data) {
    KeywordPlace place{keyword, LineOf(deck), deck.File().Offset()};
    DeckToken next = deck.Next();
    bool isKeyword = EndsLine(next) || next.kind == Kind::Slash;
    if (!isKeyword) {
        switch (data) {
        case KeywordData::None:
            break;
        case KeywordData::Numbers:
            isKeyword = BeginsLikeNumber(next) || context_ == Context::WantedKeyword;
            break;
        case KeywordData::Word: {
            const bool isQuoted = next.kind == Kind::Quoted;
            next = deck.Next();
            isKeyword = isQuoted || EndsLine(next) || next.kind == Kind::Slash ||
                        context_ == Context::WantedKeyword;
            break;
        }
        case KeywordData::Names:
            isKeyword = true;
            break;
        }
    }
    if (!isKeyword) {
        Hint(place.line, keyword + " isn't taken for the keyword because of the text behind it");
        if (!EndsLine(next)) {
            ReadFreeText(deck);
        }
        return;
    }
    if (next.kind == Kind::Slash) {
        deck.SkipLine();
    } else if (data != KeywordData::None) {
        SkipRecord(deck, Record::Open, data);
    }
    context_ = Context::WantedKeyword;
    Remember(std::move(place));
}

void IndexBuilder::ReadUnwanted(DeckLexer& deck, const std::string& keyword) {
    const DeckLine line = LineOf(deck);
    const DeckToken next = deck.Next();
    Record record = Record::Closed;
    if (next.kind == Kind::Slash) {
        deck.SkipLine();
    } else if (!EndsLine(next)) {
        if (!IsData(next)) {
            ReadFreeText(deck);
            return;
        }
        record = ReadRestOfDataLine(deck);
        if (record == Record::None) {
            context_ = Context::FreeText;
            return;
        }
    }
    context_ = Context::OtherKeyword;
    if (observer_.passedOver) {
        observer_.passedOver(keyword, line);
    }
    SkipRecord(deck, record);
}

void IndexBuilder::ReadFreeText(DeckLexer& deck) {
    deck.SkipLine();
    context_ = Context::FreeText;
}

// Passes the rest of a line of data, up to the end of its record, its own end or the first word
// that isn't data. A slash and such a word take the rest of the line with them.
IndexBuilder::Record IndexBuilder::ReadRestOfDataLine(DeckLexer& deck) {
    for (;;) {
        const DeckToken token = deck.Next();
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
void IndexBuilder::SkipRecord(DeckLexer& deck, Record record, KeywordData data) {
    const DeckLine opened = LineOf(deck);
    bool isExpectedWord = data == KeywordData::Word;
    while (record == Record::Open) {
        deck.SkipPlainText();
        const DeckToken token = deck.Next();
        if (token.kind == Kind::Slash) {
            deck.SkipLine();
            record = Record::Closed;
        } else if (token.kind == Kind::FileEnd) {
            Hint(opened, "the record isn't closed by '/' before the end of the file");
            record = Record::None;
        } else if (IsKeyword(token) && wanted_(token.text) && !isExpectedWord) {
            Hint(LineOf(deck), std::string(token.text) +
                                   " is data of the record that is open since line " +
                                   std::to_string(opened.line));
        }
        isExpectedWord = isExpectedWord && token.kind == Kind::LineEnd;
    }
}

void IndexBuilder::ReadInclude(DeckLexer& deck) {
    const DeckLine line = LineOf(deck);
    DeckToken path = deck.Next();
    if (path.kind == Kind::Word && context_ != Context::WantedKeyword) {
        ReadFreeText(deck);
        return;
    }
    while (path.kind == Kind::LineEnd) {
        path = deck.Next();
    }
    if (path.kind != Kind::Quoted || path.text.empty()) {
        throw DeckError(line, "INCLUDE", "a path in quotes", Describe(path));
    }
    const std::filesystem::path folder = std::filesystem::path(deck.File().Name()).parent_path();
    const std::string included = (folder / std::string(path.text)).string();
    const DeckToken behind = deck.Next();
    if (!EndsLine(behind)) {
        if (behind.kind != Kind::Slash) {
            throw DeckError(line, "INCLUDE", "'/' behind the path", Describe(behind));
        }
        deck.SkipLine();
    }
    Include(included, line);
}

void IndexBuilder::Include(const std::string& path, const DeckLine& line) {
    const auto fail = [&](const std::string& expected, const std::string& found) {
        throw DeckError(line, "INCLUDE", expected, found);
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
    std::unique_ptr<DeckLexer> deck;
    try {
        deck = std::make_unique<DeckLexer>(path);
    } catch (const std::runtime_error& error) {
        fail("a file to include", error.what() + (", " + Quote(path)));
    }
    ReadFile(*deck);
}

void IndexBuilder::Remember(KeywordPlace place) {
    const auto earlier = std::ranges::find(keywords_, place.keyword, &KeywordPlace::keyword);
    if (earlier != keywords_.end()) {
        Hint(place.line, place.keyword + " stands a second time, and this time counts");
        keywords_.erase(earlier);
    }
    keywords_.push_back(std::move(place));
}

void IndexBuilder::Hint(const DeckLine& line, const std::string& text) {
    constexpr std::size_t mostHints = 50;
    if (observer_.hint && hints_ < mostHints) {
        ++hints_;
        observer_.hint(Describe(line) + ": " + text + ".");
    }
}

} // namespace

DeckIndex::DeckIndex(const std::string& fileName, const Wanted& wanted,
                     const DeckObserver& observer)
    : end_{fileName, 1} {
    std::unique_ptr<DeckLexer> deck;
    try {
        deck = std::make_unique<DeckLexer>(fileName);
    } catch (const std::runtime_error& error) {
        throw DeckError(end_, "none", "a deck", error.what());
    }
    end_.line = IndexBuilder(wanted, observer, keywords_).ReadFile(*deck);
}

} // namespace Orv::Kes::KesModel
