#include "KeywordWalker.h"

#include "Characters.h"
#include "Messages.h"
#include "NumberText.h"
#include "Quote.h"
#include "TextFile.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace Orv::FluidBench::Impl::IO {

using Common::ErrorReport;
using Common::pvtEnumErrorCode;
using Common::Units;
using FluidBench::IO::DiagnosticSink;
using Text::Capitals;
using Text::FilePlace;
using Text::IsDigit;
using Text::IsLetter;
using Text::KeywordLexer;
using Text::Quote;
using Text::Token;

namespace {

using Kind = Token::Kind;

constexpr std::string_view ownKeywords[] = {"TITLE", "INCLUDE", "SKIP", "END", "FILEUNIT"};

bool EndsLine(const Token& token) noexcept {
    return token.kind == Kind::LineEnd || token.kind == Kind::FileEnd;
}

// Which units a comment names, by the words that the comments of the writers have.
std::optional<bool> NamesFieldUnits(std::string_view comment) {
    constexpr std::string_view metric[] = {"bar", "barsa", "K",  "m",  "m3",
                                           "sm3", "rm3",   "kg", "kJ", "Metric"};
    constexpr std::string_view field[] = {"psi", "psia", "R",  "ft",  "Mscf",
                                          "stb", "rb",   "lb", "Btu", "Field"};
    bool isMetric = false;
    bool isField = false;
    const auto isWord = [](char c) { return IsLetter(c) || IsDigit(c); };
    for (auto begin = comment.begin(); begin != comment.end();) {
        begin = std::find_if(begin, comment.end(), isWord);
        const auto end = std::find_if_not(begin, comment.end(), isWord);
        const std::string_view word(begin, end);
        isMetric = isMetric || std::ranges::find(metric, word) != std::end(metric);
        isField = isField || std::ranges::find(field, word) != std::end(field);
        begin = end;
    }
    return isMetric == isField ? std::nullopt : std::optional(isField);
}

std::string Expected(const std::string& expected, const std::string& found) {
    return "Expected " + expected + ", found " + found + ".";
}

} // namespace

RefusedText::RefusedText(const DiagnosticKind& refusal, const FilePlace& place,
                         std::string_view keyword, const std::string& expected,
                         const std::string& found)
    : KeywordError(place, keyword, expected, found),
      kind_(&refusal),
      sentence_(Expected(expected, found)) {}

KeywordWalker::KeywordWalker(std::unique_ptr<KeywordLexer> text,
                             std::span<const WantedKeyword> wanted, Diagnostics& diagnostics)
    : wanted_(wanted), diagnostics_(diagnostics) {
    Open(std::move(text));
}

bool KeywordWalker::NextKeyword() {
    isInRecord_ = false;
    while (!hasEnded_) {
        const Token first = TakeToken();
        if (first.kind == Kind::FileEnd) {
            if (!CloseInclude()) {
                return false;
            }
        } else if (first.kind == Kind::Word && IsKnown(first.text) &&
                   (first.isAtHeadOfLine || isBehindWanted_)) {
            if (ReadWord(first)) {
                return true;
            }
        } else if (first.kind != Kind::LineEnd) {
            PassOtherText(first);
        }
    }
    return false;
}

// True for a wanted keyword; false for one of the walker's own, which is done with then.
bool KeywordWalker::ReadWord(const Token& first) {
    const std::string word(first.text);
    line_ = PositionLine();
    if (word == "TITLE") {
        ReadTitle();
    } else if (word == "INCLUDE") {
        ReadInclude();
    } else if (word == "SKIP") {
        ReadSkip();
    } else if (word == "END") {
        ReadEnd();
    } else if (word == "FILEUNIT") {
        keyword_ = word;
        ReadUnits();
    } else {
        keyword_ = word;
        hasContent_ = hasContent_ || FindWanted(word)->isContent;
        if (comment_ && !ofNumbers_[comment_->isField ? 1 : 0]) {
            ofNumbers_[comment_->isField ? 1 : 0] = comment_;
        }
        comment_.reset();
        isBehindWanted_ = isOutsideData_ = true;
        return true;
    }
    comment_.reset();
    return false;
}

void KeywordWalker::PassOtherText(const Token& first) {
    // Behind a keyword that isn't known they are its data.
    if (isOutsideData_ && IsMeantAsNumber(first)) {
        Tell(KeywordKinds::strayNumbers, PositionLine(),
             Expected("a keyword ahead of any numbers",
                      Describe(first) + ", which belongs to none and isn't read"));
    }
    isOutsideData_ = isOutsideData_ && first.kind == Kind::Slash;
    isBehindWanted_ = false;
    comment_.reset();
    std::string meant;
    if (first.kind == Kind::Word && diagnostics_.AreWanted() && IsKnown(Capitals(first.text))) {
        meant = first.text;
    }
    const std::uint64_t line = PositionLine();
    if (first.kind == Kind::Slash || meant.empty()) {
        Lexer().SkipLine();
        return;
    }
    const Token next = TakeToken();
    if (EndsLine(next) || IsMeantAsNumber(next)) {
        Tell(KeywordKinds::notTaken, line,
             Expected("the keyword " + Capitals(meant) + " in capitals at the head of its line",
                      Quote(meant) + ", which isn't taken for it"));
    }
    if (!EndsLine(next)) {
        Lexer().SkipLine();
    }
}

void KeywordWalker::ReadTitle() {
    if (Lexer().Next().kind == Kind::LineEnd) {
        Lexer().SkipCommentLines();
    }
    Lexer().SkipLine();
}

// "END of the deck" is text.
void KeywordWalker::ReadEnd() {
    const Token next = Lexer().Next();
    hasEnded_ = EndsLine(next) || next.kind == Kind::Slash;
    if (!hasEnded_) {
        Lexer().SkipLine();
    }
}

void KeywordWalker::ReadSkip() {
    const std::uint64_t opened = PositionLine();
    if (!EndsLine(Lexer().Next())) {
        Lexer().SkipLine();
        return;
    }
    for (;;) {
        const Token first = Lexer().Next();
        if (first.kind == Kind::FileEnd) {
            Tell(KeywordKinds::skipNotClosed, opened,
                 Expected("ENDSKIP behind SKIP", "the end of the file; nothing of it was read"));
            return;
        }
        const bool isEnd =
            first.kind == Kind::Word && first.isAtHeadOfLine && first.text == "ENDSKIP";
        if (first.kind != Kind::LineEnd) {
            Lexer().SkipLine();
        }
        if (isEnd) {
            return;
        }
    }
}

void KeywordWalker::ReadUnits() {
    const std::string meaning = "METRIC or FIELD";
    const Token item = NextItem(meaning);
    const std::string word = Capitals(item.text);
    const bool isWord = item.kind == Kind::Word || item.kind == Kind::Quoted;
    if (!isWord || (word != "METRIC" && word != "FIELD")) {
        Fail(KeywordKinds::otherUnits, line_, meaning, Describe(item));
    }
    const UnitsOfPlace units{word == "FIELD", {FileName(), line_}, "FILEUNIT " + word};
    EndRecord(meaning);
    if (record_) {
        Fail(KeywordKinds::secondUnits, units.place.line, "one FILEUNIT record for all files",
             "a second one; the first is in " + Describe(record_->place));
    }
    record_ = units;
    isBehindWanted_ = isOutsideData_ = true;
}

void KeywordWalker::ReadInclude() {
    const FilePlace line{FileName(), PositionLine()};
    const auto fail = [&](const std::string& expected, const std::string& found) {
        throw RefusedText(KeywordKinds::include, line, "INCLUDE", expected, found);
    };
    Token item = Lexer().Next();
    while (item.kind == Kind::LineEnd) {
        item = Lexer().Next();
    }
    if ((item.kind != Kind::Quoted && item.kind != Kind::Word) || item.text.empty()) {
        fail("a path in quotes", Describe(item));
    }
    const std::string path(item.text);
    const Token behind = Lexer().Next();
    if (behind.kind == Kind::Slash) {
        Lexer().SkipLine();
    } else if (!EndsLine(behind)) {
        fail("'/' behind the path", Describe(behind));
    }
    Include(path, line);
}

void KeywordWalker::Include(const std::string& path, const FilePlace& line) {
    const auto fail = [&](const std::string& expected, const std::string& found) {
        throw RefusedText(KeywordKinds::include, line, "INCLUDE", expected, found);
    };
    std::unique_ptr<KeywordLexer> included = OpenIncluded(path, line);
    const auto isSameFile = [&](const std::unique_ptr<KeywordLexer>& open) {
        std::error_code error;
        return std::filesystem::equivalent(Text::PathOf(open->File().Name()),
                                           Text::PathOf(included->File().Name()), error);
    };
    if (std::ranges::any_of(files_, isSameFile)) {
        fail("a file that isn't being read already", Quote(path));
    }
    if (files_.size() > deepestInclude) {
        fail("at most " + std::to_string(deepestInclude) + " includes in each other",
             "one more, " + Quote(path));
    }
    if (++includes_ > mostIncludes) {
        fail("at most " + std::to_string(mostIncludes) + " includes in all",
             "one more, " + Quote(path));
    }
    Open(std::move(included));
}

// A path counts from the folder of the file that has it, and other systems write it with
// backslashes.
std::unique_ptr<KeywordLexer> KeywordWalker::OpenIncluded(const std::string& path,
                                                          const FilePlace& line) const {
    const std::filesystem::path folder = Text::PathOf(FileName()).parent_path();
    std::string withSlashes = path;
    std::ranges::replace(withSlashes, '\\', '/');
    std::string reason;
    for (const std::string& each : {path, withSlashes}) {
        try {
            return std::make_unique<KeywordLexer>(Text::NameOf(folder / Text::PathOf(each)));
        } catch (const Text::KeywordFileError&) {
            throw;
        } catch (const std::runtime_error& error) {
            reason = reason.empty() ? error.what() : reason;
        }
    }
    throw RefusedText(KeywordKinds::include, line, "INCLUDE", "a file to include",
                      reason + ", " + Quote(path));
}

bool KeywordWalker::HasRecord() {
    for (;;) {
        const Token token = TakeToken();
        if (token.kind == Kind::Word && token.text == "INCLUDE") {
            ReadInclude();
        } else if (token.kind == Kind::FileEnd) {
            if (!CloseInclude()) {
                return false;
            }
        } else if (token.kind != Kind::LineEnd) {
            Hold(token);
            return token.kind != Kind::Word || IsMeantAsNumber(token);
        }
    }
}

bool KeywordWalker::ReadRow(std::span<double> row, std::string_view meaning, Defaults defaults) {
    const std::size_t count = ReadRowPart(row, meaning, defaults);
    if (count > 0 && count < row.size()) {
        Fail(KeywordKinds::rowLength, line_, std::string(meaning),
             "'/' behind " + std::to_string(count) + " of them");
    }
    return count > 0;
}

std::size_t KeywordWalker::ReadRowPart(std::span<double> row, std::string_view meaning,
                                       Defaults defaults) {
    for (std::size_t index = 0; index < row.size();) {
        index += TakePlainNumbers(row.subspan(index), index == 0);
        if (index == row.size()) {
            break;
        }
        const Token item = NextItem(meaning);
        if (item.kind == Kind::Slash) {
            PassSlash();
            return index;
        }
        rowLine_ = index == 0 ? line_ : rowLine_;
        TakeRepeated(item, row, index, meaning, defaults);
    }
    return row.size();
}

// The quick way through the numbers of a row; gives how many it took. Whatever else comes is left.
std::size_t KeywordWalker::TakePlainNumbers(std::span<double> numbers, bool beginRow) {
    if (held_) {
        return 0;
    }
    const auto taken = Lexer().TakeNumbers(numbers);
    if (taken.count > 0) {
        isInRecord_ = true;
        line_ = taken.lastLine;
        rowLine_ = beginRow ? taken.firstLine : rowLine_;
        longestNumber_ = std::max(longestNumber_, taken.longest);
    }
    return taken.count;
}

void KeywordWalker::TakeRepeated(const Token& item, std::span<double> row, std::size_t& index,
                                 std::string_view meaning, Defaults defaults) {
    const Text::RepeatedNumber repeated = Repeated(item, meaning);
    if (repeated.count > row.size() - index) {
        Fail(KeywordKinds::repeatCount, line_, std::string(meaning),
             Describe(item) + " behind " + std::to_string(index) + " of them");
    }
    if (repeated.isDefault && defaults == Defaults::AreRefused) {
        FailDefault(item, meaning);
    }
    if (repeated.isDefault) {
        Tell(KeywordKinds::defaultIsZero, line_,
             Expected(std::string(meaning), Describe(item) + ", which counts as 0"));
    }
    std::fill_n(row.begin() + static_cast<std::ptrdiff_t>(index), repeated.count, repeated.number);
    index += repeated.count;
}

Text::RepeatedNumber KeywordWalker::Repeated(const Token& item, std::string_view meaning) {
    const auto repeated = item.kind == Kind::Word ? Text::ParseRepeated(item.text) : std::nullopt;
    if (!repeated) {
        FailItem(item, meaning);
    }
    longestNumber_ = std::max(longestNumber_, item.text.size());
    return *repeated;
}

std::optional<Text::RepeatedNumber> KeywordWalker::ReadItem(std::string_view meaning) {
    const Token item = NextItem(meaning);
    if (item.kind == Kind::Slash) {
        PassSlash();
        return std::nullopt;
    }
    const Text::RepeatedNumber repeated = Repeated(item, meaning);
    if (repeated.isDefault) {
        FailDefault(item, meaning);
    }
    return repeated;
}

std::uint64_t KeywordWalker::ReadCount(std::string_view meaning) {
    const Token item = NextItem(meaning);
    const auto count = item.kind == Kind::Word ? Text::ParseCount(item.text) : std::nullopt;
    if (!count) {
        FailItem(item, meaning);
    }
    EndRecord(meaning);
    return *count;
}

void KeywordWalker::EndRecord(std::string_view meaning) {
    const Token item = NextItem(meaning);
    if (item.kind != Kind::Slash) {
        Fail(item.kind == Kind::Word && IsKnown(item.text) ? KeywordKinds::recordNotClosed
                                                           : KeywordKinds::rowLength,
             line_, "'/' behind " + std::string(meaning), Describe(item));
    }
    PassSlash();
}

std::vector<std::string> KeywordWalker::ReadNames() {
    const std::string meaning = "the names of the components";
    std::vector<std::string> names;
    for (Token item = NextItem(meaning); item.kind != Kind::Slash; item = NextItem(meaning)) {
        if (item.kind == Kind::Word && item.isAtHeadOfLine && IsKnown(item.text)) {
            FailItem(item, meaning);
        }
        if (!IsName(item)) {
            Fail(KeywordKinds::notAName, line_, "a name", Describe(item));
        }
        names.emplace_back(item.text);
    }
    PassSlash();
    return names;
}

void KeywordWalker::FailDefault(const Token& item, std::string_view meaning) const {
    Fail(KeywordKinds::noDefault, line_, std::string(meaning),
         Describe(item) + ", and a table has no defaults");
}

void KeywordWalker::FailItem(const Token& item, std::string_view meaning) const {
    if (item.kind == Kind::Word && item.isAtHeadOfLine && IsKnown(item.text)) {
        Fail(KeywordKinds::recordNotClosed, line_, "'/' behind " + std::string(meaning),
             "the keyword " + std::string(item.text));
    }
    Fail(KeywordKinds::notANumber, line_, std::string(meaning), Describe(item));
}

// The line's rest is text, and what was meant as data there would be lost.
void KeywordWalker::PassSlash() {
    isInRecord_ = false;
    const Token next = Lexer().Next();
    if (EndsLine(next)) {
        return;
    }
    if (next.kind != Kind::Word || IsMeantAsNumber(next)) {
        Fail(KeywordKinds::textBehindSlash, PositionLine(),
             "nothing but text behind '/', since it ends its line", Describe(next));
    }
    if (IsKnown(next.text)) {
        Tell(KeywordKinds::notTaken, PositionLine(),
             Expected("the keyword " + std::string(next.text) + " at the head of a line",
                      "it behind '/', where it isn't taken for one"));
    }
    Lexer().SkipLine();
}

// The next item of a record that should hold `meaning`, or its slash.
Token KeywordWalker::NextItem(std::string_view meaning) {
    for (;;) {
        const Token item = TakeToken();
        if (item.kind == Kind::LineEnd) {
            continue;
        }
        line_ = PositionLine();
        if (item.kind == Kind::FileEnd) {
            if (!isInRecord_ && CloseInclude()) {
                continue;
            }
            Fail(KeywordKinds::recordNotClosed, line_, "'/' behind " + std::string(meaning),
                 Describe(item));
        }
        if (!isInRecord_ && item.kind == Kind::Word && item.isAtHeadOfLine &&
            item.text == "INCLUDE") {
            ReadInclude();
            continue;
        }
        isInRecord_ = item.kind != Kind::Slash;
        return item;
    }
}

Token KeywordWalker::TakeToken() {
    if (held_) {
        return *std::exchange(held_, std::nullopt);
    }
    return Lexer().Next();
}

void KeywordWalker::Hold(const Token& token) {
    held_ = token;
}

void KeywordWalker::Open(std::unique_ptr<KeywordLexer> text) {
    text->SetCommentWatch([this](std::string_view comment) { TakeComment(comment); });
    files_.push_back(std::move(text));
}

// At the end of a file: goes on behind its include. False for the text itself.
bool KeywordWalker::CloseInclude() {
    if (files_.size() == 1 || hasEnded_) {
        return false;
    }
    files_.pop_back();
    return true;
}

void KeywordWalker::TakeComment(std::string_view comment) {
    const std::size_t begin = comment.find_first_not_of(" \t");
    if (begin == std::string_view::npos) {
        return;
    }
    if (comment.substr(begin).starts_with("Units:")) {
        if (const auto isField = NamesFieldUnits(comment.substr(begin))) {
            comment_ = {*isField, {FileName(), PositionLine()}, std::string(comment.substr(begin))};
        }
    }
    if (takeComment_) {
        takeComment_(comment);
    }
}

const WantedKeyword* KeywordWalker::FindWanted(std::string_view word) const {
    const auto found = std::ranges::find(wanted_, word, &WantedKeyword::name);
    return found == wanted_.end() ? nullptr : &*found;
}

bool KeywordWalker::IsKnown(std::string_view word) const {
    return FindWanted(word) != nullptr ||
           std::ranges::find(ownKeywords, word) != std::end(ownKeywords);
}

void KeywordWalker::Tell(const DiagnosticKind& kind, std::uint64_t line,
                         const std::string& sentence) {
    diagnostics_.Tell(kind, FileName(), line, sentence);
}

void KeywordWalker::Fail(const DiagnosticKind& kind, std::uint64_t line,
                         const std::string& expected, const std::string& found) const {
    throw RefusedText(kind, {FileName(), line}, keyword_, expected, found);
}

void KeywordWalker::NoteUnits(Units::UNIT_TYPE units, std::string_view text) {
    const bool isField = units == Units::FIELD;
    auto& first = ofNumbers_[isField ? 1 : 0];
    if (!first) {
        first = {isField, {FileName(), PositionLine()}, std::string(text)};
    }
}

bool KeywordWalker::IsField(std::optional<Units::UNIT_TYPE> units) const {
    const FilePlace end{FileName(), PositionLine()};
    const auto nameOf = [](bool isField) { return isField ? "FIELD" : "METRIC"; };
    if (!hasContent_) {
        std::string names;
        for (const WantedKeyword& wanted : wanted_) {
            if (wanted.isContent) {
                names += (names.empty() ? "" : ", ") + std::string(wanted.name);
            }
        }
        throw RefusedText(KeywordKinds::noTable, end, "", "a keyword out of " + names,
                          "none of them at the head of a line");
    }
    if (!record_ && !units) {
        throw RefusedText(
            KeywordKinds::noUnits, end, "",
            "a record FILEUNIT with METRIC or FIELD, or the units told beside the file", "neither");
    }
    const bool isField = units ? *units == Units::FIELD : record_->isField;
    const std::string expected = std::string(nameOf(isField)) + " units, as " +
                                 (units ? "were told beside the file" : record_->text + " says");
    for (const auto& other : {record_, ofNumbers_[0], ofNumbers_[1]}) {
        if (other && other->isField != isField) {
            throw RefusedText(KeywordKinds::unitsContradicted, other->place, "", expected,
                              Quote(other->text));
        }
    }
    return isField;
}

ErrorReport WalkKeywords(const KeywordSource& source, const DiagnosticSink& sink,
                         std::span<const WantedKeyword> wanted,
                         const std::function<void(KeywordWalker&)>& read) {
    Diagnostics diagnostics(sink, source.name);
    ErrorReport report;
    const auto refuse = [&](const std::string& text) {
        report.Add(FreeText(pvtEnumErrorCode::Error, text));
    };
    const auto open = [&]() -> std::unique_ptr<KeywordLexer> {
        if (source.stream != nullptr) {
            return std::make_unique<KeywordLexer>(*source.stream, source.name);
        }
        try {
            return std::make_unique<KeywordLexer>(source.name);
        } catch (const Text::KeywordFileError&) {
            throw;
        } catch (const std::runtime_error& error) {
            const std::string sentence = Expected("a file to read", error.what());
            diagnostics.Tell(Kinds::cantOpen, 0, sentence);
            refuse(source.name + ": " + sentence);
            return nullptr;
        }
    };
    try {
        if (auto text = open()) {
            KeywordWalker walker(std::move(text), wanted, diagnostics);
            read(walker);
        }
    } catch (const RefusedText& refusal) {
        diagnostics.Tell(refusal.Kind(), refusal.Place().file, refusal.Place().line,
                         refusal.Sentence());
        refuse(refusal.what());
    } catch (const Text::OddText& odd) {
        TellOddText(diagnostics, odd.Kind());
        refuse(odd.what());
    } catch (const Text::ReadFailed& failure) {
        TellReadFailed(diagnostics, failure.Place().line);
        refuse(failure.what());
    }
    diagnostics.Finish();
    return report;
}

} // namespace Orv::FluidBench::Impl::IO
