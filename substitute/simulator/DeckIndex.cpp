#include "DeckIndex.h"

#include "Characters.h"
#include "KeywordLexer.h"
#include "KeywordSuggestion.h"
#include "NumberText.h"
#include "OddCharacters.h"
#include "Quote.h"
#include "TextFile.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace Orv::Kes::KesModel {

using Text::IsDigit;
using Text::IsLetter;
using Text::IsSmallLetter;
using Text::KeywordError;
using Text::KeywordFileError;
using Text::KeywordLexer;
using Text::KeywordRecord;
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

const Section* FindSection(std::string_view name) {
    const auto* const section = std::ranges::find(sections, name, &Section::name);
    return section == std::end(sections) ? nullptr : section;
}

// A word that can be a keyword: capitals and digits.
bool IsInCapitals(const Token& token) {
    return token.kind == Kind::Word && IsLetter(token.text[0]) &&
           std::ranges::all_of(
               token.text, [](char c) { return IsDigit(c) || (IsLetter(c) && !IsSmallLetter(c)); });
}

bool EndsLine(const Token& token) noexcept {
    return token.kind == Kind::LineEnd || token.kind == Kind::FileEnd;
}

// A number, a quoted text, or either with a repeat count.
bool IsData(const Token& token) {
    if (token.kind != Kind::Word) {
        return token.kind == Kind::Quoted;
    }
    const std::size_t first = token.text.find_first_not_of("+-.");
    if (first == std::string_view::npos || !IsDigit(token.text[first])) {
        return false;
    }
    double number = 0.0;
    const std::size_t asterisk = token.text.find('*');
    return asterisk == std::string_view::npos
               ? ParseNumber(token.text, number)
               : ParseCount(token.text.substr(0, asterisk)).has_value();
}

// The end of a line's head, behind which nothing speaks against a keyword.
bool SuitsKeyword(const Token& next) {
    return EndsLine(next) || next.kind == Kind::Slash || IsData(next);
}

// "1." or "2)" ahead of a keyword in a list.
bool IsEnumerator(std::string_view text) {
    const std::size_t digits = text.find_first_not_of("0123456789");
    return digits > 0 && digits + 1 == text.size() && (text[digits] == '.' || text[digits] == ')');
}

// What stands behind a word on its line.
enum class Rest { Nothing, Data, Text };

Rest RestOf(const Token& next) {
    return EndsLine(next) || next.kind == Kind::Slash ? Rest::Nothing
           : IsData(next)                             ? Rest::Data
                                                      : Rest::Text;
}

// The text of a word that may be meant for a keyword. A longer one is no typing error.
std::string MayBeKeyword(const Token& token) {
    constexpr std::size_t longest = 40;
    const bool isText = token.kind == Kind::Word || token.kind == Kind::Quoted;
    return isText && token.text.size() <= longest ? std::string(token.text) : std::string();
}

// A word and what decorates it, for a message.
std::string DescribeWord(const std::string& ornament, const std::string& word) {
    std::string odd = Text::NameOddCharacter(word);
    if (odd.empty() && HasForeignCharacters(word)) {
        odd = "with a letter of another alphabet";
    }
    const std::string where = ornament == "'"    ? " in quotes"
                              : ornament.empty() ? ""
                                                 : " behind " + Quote(ornament);
    return Quote(word) + where + (odd.empty() ? "" : " (" + odd + ')');
}

// Reads the deck and what it includes, line by line.
class IndexBuilder {
public:
    IndexBuilder(const DeckVocabulary& vocabulary, DeckLog& log,
                 std::vector<KeywordPlace>& keywords, std::vector<KeywordPlace>& elsewhere);

    /// Reads the deck and gives the line on which it ends.
    std::uint64_t Read(KeywordLexer& deck);

private:
    // What stood last, which tells whose a line of data is.
    enum class Behind {
        Ended,   // a keyword with its data: more records at the most
        Waiting, // a keyword that isn't known, which may wait for its data
        Text     // neither
    };
    enum class Record { Closed, Open, None };
    struct Structural {
        std::string_view name;
        void (IndexBuilder::*read)(KeywordLexer&);
    };
    static const Structural structurals[];
    static const Structural* FindStructural(std::string_view name);

    std::uint64_t ReadFile(KeywordLexer& deck);
    void ReadLine(KeywordLexer& deck, const Token& first);
    bool MayHoldFluidData() const { return section_ == nullptr || section_->mayHoldFluidData; }
    bool IsKnown(const Token& token) const;

    void ReadKnown(KeywordLexer& deck, const std::string& keyword);
    void NoteElsewhere(const KeywordLexer& deck, const std::string& keyword,
                       const WantedKeyword& wanted);
    void ReadTitle(KeywordLexer& deck);
    void ReadEnd(KeywordLexer& deck);
    void ReadSkip(KeywordLexer& deck);
    void ReadInclude(KeywordLexer& deck);
    void ReadSection(KeywordLexer& deck, const Section& section);
    void ReadWanted(KeywordLexer& deck, const std::string& keyword, const WantedKeyword& wanted);
    void ReadUnknown(KeywordLexer& deck, const std::string& keyword);
    void ReadData(KeywordLexer& deck, const Token& first);
    void ReadText(KeywordLexer& deck, const Token& first);
    void ReadWordOfText(KeywordLexer& deck, const FilePlace& place, const std::string& ornament,
                        const std::string& word, Token next);

    static void RequireData(const KeywordPlace& place, const WantedKeyword& wanted,
                            const Token& first);
    static std::size_t ReadWordOf(const KeywordPlace& place, const WantedKeyword& wanted);
    static Record ReadRestOfDataLine(KeywordLexer& deck, Token token);
    bool SkipRecord(KeywordLexer& deck, std::uint64_t opened, bool isFirm);
    void PassRestOfLine(KeywordLexer& deck, const std::string& ahead);
    void PassRestOfLine(KeywordLexer& deck, Token next, const std::string& ahead);
    std::unique_ptr<KeywordLexer> Open(const std::string& path, bool isQuoted,
                                       const FilePlace& line);
    void RequireSoundInclude(const std::string& path, const FilePlace& line);

    void Remember(KeywordPlace place, const WantedKeyword& wanted);
    bool IsFurtherWord(const std::string& word, const Token& next) const;
    bool IsOneOfTheNames(const std::string& word) const;
    void PassFurtherRecord(KeywordLexer& deck, const FilePlace& place, Token next,
                           const std::string& word);
    void CountFurtherRecord(const FilePlace& place);
    void TellFurtherRecords();
    void TellUnread();
    void Suspect(const std::string& ornament, const std::string& word, const FilePlace& place,
                 Rest rest);
    void TellUnreadable(const FilePlace& line, const std::string& expectation);

    static FilePlace PlaceOf(const KeywordLexer& deck) {
        return {deck.File().Name(), deck.File().Line()};
    }

    // A wanted keyword in a section that can hold none.
    struct Unread {
        KeywordPlace place;
        std::string_view section;
    };
    // What follows the record of a wanted keyword and isn't read.
    struct Further {
        KeywordPlace place; // without a keyword where no wanted one stood last
        WantedKeyword wanted{};
        std::uint64_t count = 0;
        FilePlace first;
    };

    const DeckVocabulary& vocabulary_;
    DeckLog& log_;
    std::vector<KeywordPlace>& keywords_;
    std::vector<KeywordPlace>& elsewhere_;
    std::vector<std::string_view> suggestions_;
    std::vector<std::filesystem::path> openFiles_; // the deck, and the includes that led here
    std::size_t includes_ = 0;
    const Section* section_ = nullptr; // none ahead of the first section
    Behind behind_ = Behind::Ended;
    bool isBehindTitle_ = false; // with nothing but text since
    bool hasEnded_ = false;      // by the keyword
    Further further_;
    std::vector<Unread> unread_;
};

const IndexBuilder::Structural IndexBuilder::structurals[] = {
    {"TITLE", &IndexBuilder::ReadTitle},
    {"INCLUDE", &IndexBuilder::ReadInclude},
    {"SKIP", &IndexBuilder::ReadSkip},
    {"END", &IndexBuilder::ReadEnd},
};

const IndexBuilder::Structural* IndexBuilder::FindStructural(std::string_view name) {
    const auto* const found = std::ranges::find(structurals, name, &Structural::name);
    return found == std::end(structurals) ? nullptr : found;
}

IndexBuilder::IndexBuilder(const DeckVocabulary& vocabulary, DeckLog& log,
                           std::vector<KeywordPlace>& keywords,
                           std::vector<KeywordPlace>& elsewhere)
    : vocabulary_(vocabulary),
      log_(log),
      keywords_(keywords),
      elsewhere_(elsewhere),
      suggestions_(vocabulary.names) {
    suggestions_.emplace_back("INCLUDE");
    for (const Section& section : sections) {
        suggestions_.push_back(section.name);
    }
}

std::uint64_t IndexBuilder::Read(KeywordLexer& deck) {
    const std::uint64_t end = ReadFile(deck);
    TellFurtherRecords();
    TellUnread();
    return end;
}

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
    if (first.kind == Kind::LineEnd) {
        return;
    }
    if (first.kind == Kind::Slash) {
        PassRestOfLine(deck, "the slash");
    } else if (IsKnown(first)) {
        ReadKnown(deck, std::string(first.text));
    } else if (first.isAtHeadOfLine && IsInCapitals(first)) {
        ReadUnknown(deck, std::string(first.text));
    } else if (IsData(first)) {
        ReadData(deck, first);
    } else {
        ReadText(deck, first);
    }
}

bool IndexBuilder::IsKnown(const Token& token) const {
    return IsInCapitals(token) &&
           (vocabulary_.find(token.text) || FindStructural(token.text) != nullptr ||
            FindSection(token.text) != nullptr);
}

void IndexBuilder::ReadKnown(KeywordLexer& deck, const std::string& keyword) {
    if (const Structural* const structural = FindStructural(keyword)) {
        // Records of a keyword may go on in an include, or behind what is skipped.
        (this->*structural->read)(deck);
    } else if (const Section* const section = FindSection(keyword)) {
        ReadSection(deck, *section);
    } else if (MayHoldFluidData()) {
        ReadWanted(deck, keyword, *vocabulary_.find(keyword));
    } else {
        NoteElsewhere(deck, keyword, *vocabulary_.find(keyword));
        ReadUnknown(deck, keyword);
    }
}

void IndexBuilder::NoteElsewhere(const KeywordLexer& deck, const std::string& keyword,
                                 const WantedKeyword& wanted) {
    const KeywordPlace place{keyword, PlaceOf(deck), deck.File().Offset(), {}};
    const bool isNew =
        std::ranges::none_of(unread_, [&](const Unread& u) { return u.place.keyword == keyword; });
    if (wanted.isOfWholeDeck) {
        elsewhere_.push_back(place);
    } else if (isNew && wanted.data != KeywordData::None) {
        unread_.push_back({place, section_->name});
    }
}

void IndexBuilder::ReadTitle(KeywordLexer& deck) {
    TellFurtherRecords();
    behind_ = Behind::Text;
    isBehindTitle_ = true;
    if (deck.Next().kind != Kind::LineEnd) {
        deck.SkipLine();
        return;
    }
    deck.SkipCommentLines();
    const FilePlace place = PlaceOf(deck);
    const Token title = deck.Next();
    if (EndsLine(title)) {
        return;
    }
    const bool isKeyword =
        MayHoldFluidData() && IsInCapitals(title) && vocabulary_.find(title.text);
    const std::string keyword = isKeyword ? std::string(title.text) : std::string();
    if (!isKeyword || !EndsLine(deck.Next())) {
        deck.SkipLine();
        return;
    }
    const Token below = deck.Next();
    if (below.kind == Kind::FileEnd) {
        return;
    }
    if (IsData(below)) {
        log_.Tell(Problems::textBehind, place,
                  keyword + " isn't taken for the keyword because it is the line of text behind "
                            "TITLE: put a line of text ahead of it.");
    }
    ReadLine(deck, below);
}

// What stands behind END isn't read. "END of the deck" is text.
void IndexBuilder::ReadEnd(KeywordLexer& deck) {
    TellFurtherRecords();
    const Token next = deck.Next();
    hasEnded_ = EndsLine(next) || next.kind == Kind::Slash;
    if (!hasEnded_) {
        deck.SkipLine();
        behind_ = Behind::Text;
    }
}

// Everything up to ENDSKIP is put out of force.
void IndexBuilder::ReadSkip(KeywordLexer& deck) {
    const FilePlace opened = PlaceOf(deck);
    const Token next = deck.Next();
    if (!EndsLine(next)) {
        deck.SkipLine();
        if (next.kind != Kind::Slash) {
            behind_ = Behind::Text;
            return;
        }
    }
    for (;;) {
        const Token first = deck.Next();
        if (first.kind == Kind::FileEnd) {
            log_.Tell(Problems::skipNotClosed, opened,
                      "SKIP isn't closed by ENDSKIP before the end of the file.");
            return;
        }
        if (first.kind != Kind::LineEnd) {
            const bool isEnd = IsInCapitals(first) && first.text == "ENDSKIP";
            deck.SkipLine();
            if (isEnd) {
                return;
            }
        }
    }
}

// A row of dots or dashes behind a section's name is ornament.
void IndexBuilder::ReadSection(KeywordLexer& deck, const Section& section) {
    const FilePlace place = PlaceOf(deck);
    const Token next = deck.Next();
    const bool isOrnament = next.kind == Kind::Word && !IsLetter(next.text[0]) && !IsData(next);
    const bool counts = EndsLine(next) || next.kind == Kind::Slash || isOrnament;
    // As a line of a title it takes nothing away.
    if (!counts && !(isBehindTitle_ && MayHoldFluidData())) {
        log_.Tell(Problems::sectionIgnored, place,
                  std::string(section.name) + " doesn't begin that section because of " +
                      Describe(next) + " behind it: put '--' ahead of the text.");
    }
    if (!EndsLine(next)) {
        deck.SkipLine();
    }
    behind_ = counts ? Behind::Ended : Behind::Text;
    if (counts) {
        TellFurtherRecords();
        isBehindTitle_ = false;
        section_ = &section;
    }
}

void IndexBuilder::ReadWanted(KeywordLexer& deck, const std::string& keyword,
                              const WantedKeyword& wanted) {
    TellFurtherRecords();
    KeywordPlace place{keyword, PlaceOf(deck), deck.File().Offset(), {}};
    Token next = deck.Next();
    const bool isText =
        wanted.data == KeywordData::None ? RestOf(next) != Rest::Nothing : !SuitsKeyword(next);
    if (isBehindTitle_ && isText) {
        place.remark = "only one line behind TITLE is text: begin a second one with '--'";
    }
    isBehindTitle_ = false;
    while (next.kind == Kind::LineEnd && wanted.data != KeywordData::None) {
        next = deck.Next();
    }
    RequireData(place, wanted, next);
    behind_ = Behind::Ended;
    further_ = {place, wanted, 0, {}};
    if (next.kind == Kind::Slash || wanted.data == KeywordData::None) {
        PassRestOfLine(deck, next, keyword);
    } else {
        constexpr bool isFirm = true;
        SkipRecord(deck, place.line.line, isFirm);
    }
    Remember(std::move(place), wanted);
}

// Text in place of the data would take in what follows, up to the next slash.
void IndexBuilder::RequireData(const KeywordPlace& place, const WantedKeyword& wanted,
                               const Token& first) {
    if (wanted.data == KeywordData::Numbers && !SuitsKeyword(first)) {
        KeywordRecord(place).ReadNumbers({1, 1, "numbers"}, [](std::size_t, const double*) {});
    } else if (wanted.data == KeywordData::Word) {
        ReadWordOf(place, wanted);
    }
}

std::size_t IndexBuilder::ReadWordOf(const KeywordPlace& place, const WantedKeyword& wanted) {
    return KeywordRecord(place).ReadWord(
        wanted.words, wanted.advise != nullptr ? KeywordRecord::Advise(wanted.advise) : nullptr);
}

void IndexBuilder::ReadUnknown(KeywordLexer& deck, const std::string& keyword) {
    const FilePlace place = PlaceOf(deck);
    const bool wasText = behind_ == Behind::Text;
    const Token next = deck.Next();
    if (IsFurtherWord(keyword, next)) {
        PassFurtherRecord(deck, place, next, keyword);
        return;
    }
    TellFurtherRecords();
    if (!vocabulary_.find(keyword)) {
        Suspect("", keyword, place, RestOf(next));
    }
    behind_ = EndsLine(next) ? Behind::Waiting : Behind::Ended;
    Record record = Record::Closed;
    if (next.kind == Kind::Slash) {
        PassRestOfLine(deck, next, keyword);
    } else if (IsData(next)) {
        record = ReadRestOfDataLine(deck, deck.Next());
    } else if (!EndsLine(next)) {
        deck.SkipLine();
        record = Record::None;
    }
    if (record != Record::None || !wasText) {
        log_.TellPassedOver(keyword, place);
    }
    if (record == Record::None) {
        behind_ = Behind::Text;
        return;
    }
    const bool isFirm = !std::exchange(isBehindTitle_, false);
    if (record == Record::Open) {
        SkipRecord(deck, place.line, isFirm);
    }
}

void IndexBuilder::ReadData(KeywordLexer& deck, const Token& first) {
    const FilePlace place = PlaceOf(deck);
    Token next;
    if (first.kind == Kind::Quoted) {
        // Among other quoted texts it is one of a list.
        const std::string word = MayBeKeyword(first);
        next = deck.Next();
        if (next.kind != Kind::Quoted) {
            Suspect("'", word, place, Rest::Nothing);
        }
    } else {
        const std::string enumerator(IsEnumerator(first.text) ? first.text : std::string_view());
        next = deck.Next();
        if (!enumerator.empty() && IsInCapitals(next)) {
            const std::string word = MayBeKeyword(next);
            ReadWordOfText(deck, place, enumerator, word, deck.Next());
            return;
        }
    }
    const Record record = ReadRestOfDataLine(deck, next);
    if (record == Record::None) {
        behind_ = Behind::Text;
        return;
    }
    const bool isFirm = behind_ == Behind::Waiting;
    behind_ = Behind::Ended;
    if (record == Record::Closed || SkipRecord(deck, place.line, isFirm)) {
        CountFurtherRecord(place);
    }
}

void IndexBuilder::ReadText(KeywordLexer& deck, const Token& first) {
    const FilePlace place = PlaceOf(deck);
    const std::string word = MayBeKeyword(first);
    const Token next = deck.Next();
    if (IsFurtherWord(Text::Capitals(word), next)) {
        PassFurtherRecord(deck, place, next, word);
    } else if ((BareKeyword(word).empty() || IsEnumerator(word)) && IsInCapitals(next)) { // "- MW"
        const std::string behind = MayBeKeyword(next);
        ReadWordOfText(deck, place, word, behind, deck.Next());
    } else {
        ReadWordOfText(deck, place, "", word, next);
    }
}

// The rest of a line of text that begins with the word, or with an ornament and the word.
void IndexBuilder::ReadWordOfText(KeywordLexer& deck, const FilePlace& place,
                                  const std::string& ornament, const std::string& word,
                                  Token next) {
    Rest rest = RestOf(next);
    if (rest == Rest::Data) {
        rest = ReadRestOfDataLine(deck, next) == Record::None ? Rest::Text : Rest::Data;
    } else if (!EndsLine(next)) {
        deck.SkipLine();
    }
    if (ornament.empty() || rest != Rest::Text) {
        Suspect(ornament, word, place, rest);
    }
    behind_ = Behind::Text;
}

// Passes the rest of a line of data, up to the end of its record, its own end or the first word
// that isn't data. A slash and such a word take the rest of the line with them.
IndexBuilder::Record IndexBuilder::ReadRestOfDataLine(KeywordLexer& deck, Token token) {
    for (;; token = deck.Next()) {
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
// keywords that stand in it are missing afterwards, which is hard to find out without a warning.
// A record that isn't firm was none when a keyword follows ahead of its slash.
bool IndexBuilder::SkipRecord(KeywordLexer& deck, std::uint64_t opened, bool isFirm) {
    for (;;) {
        deck.SkipPlainText();
        const Token token = deck.Next();
        if (token.kind == Kind::Slash) {
            PassRestOfLine(deck, "the slash");
            return true;
        }
        if (token.kind == Kind::FileEnd) {
            // The slash may stand behind the INCLUDE.
            if (openFiles_.size() == 1 || !isFirm) {
                log_.Tell(Problems::recordNotClosed, {deck.File().Name(), opened},
                          "the record isn't closed by '/' before the end of the file.");
            }
            return isFirm;
        }
        if (token.isAtHeadOfLine && IsKnown(token)) {
            const std::string keyword(token.text);
            if (!isFirm) {
                log_.Tell(Problems::recordNotClosed, {deck.File().Name(), opened},
                          "the record isn't closed by '/' ahead of " + keyword + " on line " +
                              std::to_string(deck.File().Line()) + '.');
                ReadKnown(deck, keyword);
                return false;
            }
            log_.Tell(Problems::inOpenRecord, PlaceOf(deck),
                      keyword + " is data of the record that is open since line " +
                          std::to_string(opened) + ", which isn't closed by '/' ahead of it.");
        }
    }
}

void IndexBuilder::PassRestOfLine(KeywordLexer& deck, const std::string& ahead) {
    PassRestOfLine(deck, {Kind::Slash, {}, false}, ahead);
}

// What stands behind a slash, or behind a keyword without data, doesn't count.
void IndexBuilder::PassRestOfLine(KeywordLexer& deck, Token next, const std::string& ahead) {
    const FilePlace place = PlaceOf(deck);
    while (next.kind == Kind::Slash) {
        next = deck.Next();
    }
    if (EndsLine(next)) {
        return;
    }
    if (IsData(next) && next.kind == Kind::Word) {
        if (ReadRestOfDataLine(deck, next) == Record::Closed) {
            CountFurtherRecord(place);
        }
        return;
    }
    const std::string word = MayBeKeyword(next);
    const std::string bare = BareKeyword(word);
    const std::optional<WantedKeyword> wanted = vocabulary_.find(bare);
    // Words in small letters are text, unless they can only belong to the record ahead.
    const bool isMeant =
        std::ranges::none_of(word, IsSmallLetter) ||
        (wanted && wanted->data == KeywordData::None && further_.wanted.data == KeywordData::Word);
    next = deck.Next();
    if (IsFurtherWord(Text::Capitals(word), next)) {
        CountFurtherRecord(place);
    } else if (MayHoldFluidData() && isMeant && wanted) {
        log_.Tell(Problems::textBehind, place,
                  bare + " isn't taken for the keyword because it stands behind " + ahead +
                      ": put it on a line of its own.");
    }
    if (!EndsLine(next)) {
        deck.SkipLine();
    }
}

void IndexBuilder::ReadInclude(KeywordLexer& deck) {
    const FilePlace line = PlaceOf(deck);
    isBehindTitle_ = false;
    Token path = deck.NextPath();
    while (path.kind == Kind::LineEnd) {
        path = deck.NextPath();
    }
    const bool isQuoted = path.kind == Kind::Quoted;
    if ((!isQuoted && path.kind != Kind::Word) || path.text.empty()) {
        throw KeywordError(line, "INCLUDE", "a path in quotes", Describe(path));
    }
    const std::filesystem::path folder = Text::PathOf(deck.File().Name()).parent_path();
    const std::unique_ptr<KeywordLexer> included =
        Open(Text::NameOf(folder / Text::PathOf(std::string(path.text))), isQuoted, line);
    const Token behind = deck.Next();
    if (!EndsLine(behind)) {
        if (behind.kind != Kind::Slash) {
            throw KeywordError(line, "INCLUDE", "'/' behind the path", Describe(behind));
        }
        PassRestOfLine(deck, behind, "the slash");
    }
    if (included == nullptr) {
        return;
    }
    const std::size_t depth = openFiles_.size();
    try {
        ReadFile(*included);
    } catch (const KeywordError&) {
        throw;
    } catch (const KeywordFileError& error) {
        if (MayHoldFluidData()) {
            throw;
        }
        openFiles_.resize(depth);
        TellUnreadable(line, Quote(included->File().Name()) + ": " + error.Sentence());
    }
}

// Null for a file that can't be read where no wanted keyword could stand in it.
std::unique_ptr<KeywordLexer> IndexBuilder::Open(const std::string& path, bool isQuoted,
                                                 const FilePlace& line) {
    // A path of another system has other slashes.
    std::string other = path;
    std::ranges::replace(other, '\\', '/');
    std::string reason;
    for (const std::string& name : {path, other}) {
        RequireSoundInclude(name, line);
        try {
            auto included = std::make_unique<KeywordLexer>(name);
            if (++includes_ > DeckIndex::mostIncludes) {
                throw KeywordError(line, "INCLUDE",
                                   "at most " + std::to_string(DeckIndex::mostIncludes) +
                                       " includes in a deck",
                                   "one more, " + Quote(path));
            }
            return included;
        } catch (const KeywordError&) {
            throw;
        } catch (const KeywordFileError& error) {
            if (MayHoldFluidData()) {
                throw;
            }
            TellUnreadable(line, Quote(path) + ": " + error.Sentence());
            return nullptr;
        } catch (const std::runtime_error& error) {
            reason = reason.empty() ? error.what() + (", " + Quote(path)) : reason;
        }
    }
    const std::string expected =
        isQuoted ? "a file to include" : "a path in quotes, or one that can be opened";
    if (MayHoldFluidData()) {
        throw KeywordError(line, "INCLUDE", expected, reason);
    }
    TellUnreadable(line, "expected " + expected + ", found " + reason + '.');
    return nullptr;
}

void IndexBuilder::TellUnreadable(const FilePlace& line, const std::string& expectation) {
    log_.Tell(Problems::includeMissing, line,
              "keyword INCLUDE: " + expectation + " No fluid data can stand in section " +
                  std::string(section_->name) + '.');
}

void IndexBuilder::RequireSoundInclude(const std::string& path, const FilePlace& line) {
    const auto isSameFile = [&](const std::filesystem::path& open) {
        std::error_code error;
        return std::filesystem::equivalent(open, Text::PathOf(path), error);
    };
    if (std::ranges::any_of(openFiles_, isSameFile)) {
        throw KeywordError(line, "INCLUDE", "a file that isn't being read already", Quote(path));
    }
    if (openFiles_.size() > DeckIndex::deepestInclude) {
        throw KeywordError(line, "INCLUDE",
                           "at most " + std::to_string(DeckIndex::deepestInclude) +
                               " includes in each other",
                           "one more, " + Quote(path));
    }
}

// Of a keyword that stands more than once the last one counts; the ones ahead have to be as sound.
void IndexBuilder::Remember(KeywordPlace place, const WantedKeyword& wanted) {
    const auto earlier = std::ranges::find(keywords_, place.keyword, &KeywordPlace::keyword);
    if (earlier != keywords_.end()) {
        bool isSame = wanted.data == KeywordData::None;
        if (wanted.data == KeywordData::Numbers) {
            constexpr std::size_t mostNumbers = std::size_t{1} << 22;
            KeywordRecord(*earlier).ReadNumbers({0, mostNumbers, "numbers"},
                                                [](std::size_t, const double*) {});
        } else if (wanted.data == KeywordData::Word) {
            isSame = ReadWordOf(*earlier, wanted) == ReadWordOf(place, wanted);
        }
        if (!isSame) {
            log_.Tell(Problems::secondTime, place.line,
                      place.keyword + " stands a second time, and this time counts.");
        }
        keywords_.erase(earlier);
    }
    keywords_.push_back(std::move(place));
}

// Further records of words can't be told from keywords by their looks.
bool IndexBuilder::IsFurtherWord(const std::string& word, const Token& next) const {
    const WantedKeyword& wanted = further_.wanted;
    if (further_.place.keyword.empty() || behind_ != Behind::Ended) {
        return false;
    }
    const bool isWord = wanted.data == KeywordData::Word &&
                        (next.kind == Kind::Slash || EndsLine(next)) &&
                        (std::ranges::find(wanted.words, word) != std::ranges::end(wanted.words) ||
                         (wanted.advise != nullptr && !wanted.advise(word).empty()));
    // The names of components have digits, and words of another keyword hardly ever.
    const bool isRowOfNames = wanted.data == KeywordData::Names && next.kind == Kind::Word &&
                              !IsData(next) && std::ranges::any_of(word, IsDigit);
    const bool isNameAlone =
        wanted.data == KeywordData::Names && EndsLine(next) && IsOneOfTheNames(word);
    return isWord || isRowOfNames || isNameAlone;
}

bool IndexBuilder::IsOneOfTheNames(const std::string& word) const {
    constexpr std::size_t mostNames = std::size_t{1} << 20;
    const auto names = KeywordRecord(further_.place).ReadNames({0, mostNames, "names"});
    return std::ranges::any_of(
        names, [&](const std::string& name) { return Text::Capitals(name) == word; });
}

// Names may take any number of lines; a word has one.
void IndexBuilder::PassFurtherRecord(KeywordLexer& deck, const FilePlace& place, Token next,
                                     const std::string& word) {
    if (further_.wanted.data != KeywordData::Names) {
        CountFurtherRecord(place);
        PassRestOfLine(deck, next, word);
        return;
    }
    constexpr bool isFirm = false;
    if (SkipRecord(deck, place.line, isFirm)) {
        CountFurtherRecord(place);
    }
}

void IndexBuilder::CountFurtherRecord(const FilePlace& place) {
    if (!further_.place.keyword.empty() && ++further_.count == 1) {
        further_.first = place;
    }
}

void IndexBuilder::TellFurtherRecords() {
    if (further_.count > 0) {
        const bool takesNone = further_.wanted.data == KeywordData::None;
        const std::string count = std::to_string(further_.count);
        log_.Tell(Problems::furtherRecords, further_.first,
                  "keyword " + further_.place.keyword + ": expected " +
                      (takesNone ? "no data" : "one record") + ", found " + count +
                      (takesNone ? "" : " more") + (further_.count == 1 ? " record" : " records") +
                      " behind it; " +
                      (takesNone ? "they are dropped." : "the first counts, the rest is dropped."));
    }
    further_ = {};
}

void IndexBuilder::TellUnread() {
    for (const Unread& unread : unread_) {
        if (std::ranges::find(keywords_, unread.place.keyword, &KeywordPlace::keyword) ==
            keywords_.end()) {
            log_.Tell(Problems::otherSection, unread.place.line,
                      unread.place.keyword + " isn't read in section " +
                          std::string(unread.section) + ", and stands in no other one.");
        }
    }
}

// Tells of a word at the head of a line, or behind an ornament there, that may be meant for a
// keyword. A quote for an ornament is one around it. The data behind it aren't those of the keyword
// ahead, then.
void IndexBuilder::Suspect(const std::string& ornament, const std::string& word,
                           const FilePlace& place, Rest rest) {
    const std::string bare = BareKeyword(word);
    const bool isInSmallLetters = std::ranges::any_of(word, IsSmallLetter);
    if (bare.empty() || (isInSmallLetters && rest == Rest::Text)) {
        return; // words in small letters are text, unless a keyword's data follow
    }
    const bool isWanted = vocabulary_.find(bare).has_value();
    const bool isOrnamented = !ornament.empty();
    const std::string_view meant =
        isWanted || FindSection(bare) != nullptr || FindStructural(bare) != nullptr
            ? std::string_view(bare)
        : isOrnamented ? std::string_view()
                       : ClosestKeyword(bare, suggestions_);
    const Section* const section = FindSection(meant);
    const bool takesNoData =
        section != nullptr || (FindStructural(meant) != nullptr && meant != "INCLUDE");
    const bool isTitle = section != nullptr && isBehindTitle_ && MayHoldFluidData();
    if (meant.empty() || (takesNoData && rest == Rest::Data) || isTitle) {
        return;
    }
    const bool isBare = !isOrnamented && word.size() == bare.size();
    if (isBare && isInSmallLetters && meant == bare && (!isWanted || MayHoldFluidData())) {
        TellFurtherRecords();
        log_.Tell(section != nullptr ? Problems::sectionIgnored : Problems::smallLetters, place,
                  Quote(word) + " isn't taken for the keyword " + bare +
                      " because it isn't in capitals.");
        return;
    }
    // Where no fluid data can stand, a section that may hold some matters all the same.
    const bool matters = MayHoldFluidData() || (section != nullptr && section->mayHoldFluidData &&
                                                !isOrnamented && rest == Rest::Nothing);
    const bool isStructural = FindStructural(meant) != nullptr && meant != "INCLUDE";
    if (matters && !isStructural) {
        TellFurtherRecords();
        log_.Tell(Problems::didYouMean, place,
                  "expected a keyword, found " + DescribeWord(ornament, word) + ": did you mean " +
                      std::string(meant) + "? It isn't read.");
    }
}

} // namespace

DeckIndex::DeckIndex(const std::string& fileName, const DeckVocabulary& vocabulary, DeckLog& log)
    : end_{fileName, 1} {
    std::unique_ptr<KeywordLexer> deck;
    try {
        deck = std::make_unique<KeywordLexer>(fileName);
    } catch (const KeywordFileError&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw KeywordError(end_, "none", "a deck", error.what());
    }
    end_.line = IndexBuilder(vocabulary, log, keywords_, elsewhere_).Read(*deck);
}

const KeywordPlace* DeckIndex::Find(std::string_view keyword) const noexcept {
    const auto found = std::ranges::find(keywords_, keyword, &KeywordPlace::keyword);
    return found == keywords_.end() ? nullptr : &*found;
}

} // namespace Orv::Kes::KesModel
