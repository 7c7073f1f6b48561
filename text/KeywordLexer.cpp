#include "KeywordLexer.h"

#include "Characters.h"
#include "KeywordError.h"
#include "NumberText.h"
#include "OddCharacters.h"
#include "Quote.h"

#include <algorithm>
#include <array>

namespace Orv::Text {

namespace {

using Kind = Token::Kind;

constexpr std::size_t longestShown = 80; // of the text behind an open quote
constexpr std::size_t veryLongLine = std::size_t{64} * 1024;

constexpr bool IsBlank(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}
constexpr bool IsQuote(char c) noexcept {
    return c == '\'' || c == '"';
}

// What may end a word: the last two need a look at the character behind them.
constexpr auto wordEnds = [] {
    std::array<bool, 256> table{};
    for (const char c : {' ', '\t', '\r', '\v', '\f', '\n', '/', '-', '*'}) {
        table[static_cast<unsigned char>(c)] = true;
    }
    return table;
}();
bool MayEndWord(char c) noexcept {
    return wordEnds[static_cast<unsigned char>(c)];
}

bool Contains(std::string_view text, char c) noexcept {
    return text.find(c) != std::string_view::npos;
}

// Whether what stands in front of a slash has that slash outside of quotes and comments for sure:
// every quote in it opens behind a blank and closes ahead of one.
bool IsOutsideQuotes(std::string_view text) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '-' && text.substr(i).starts_with("--")) {
            return false;
        }
        if (IsQuote(text[i])) {
            const std::size_t close = text.find(text[i], i + 1);
            if ((i > 0 && !IsBlank(text[i - 1])) || close == std::string_view::npos ||
                (close + 1 < text.size() && !IsBlank(text[close + 1]))) {
                return false;
            }
            i = close;
        }
    }
    return true;
}

// Whether a quoted text can end in front of `rest`.
bool Separates(std::string_view rest) noexcept {
    return rest.empty() || IsBlank(rest[0]) || rest[0] == '\n' || rest[0] == '/' ||
           rest.starts_with("--");
}

std::string WithOddCharacter(std::string_view text) {
    const std::string odd = NameOddCharacter(text);
    return odd.empty() ? odd : " with " + odd;
}

} // namespace

std::string Describe(const Token& token) {
    switch (token.kind) {
    case Kind::Word:
    case Kind::Quoted:
        return Quote(token.text) + WithOddCharacter(token.text);
    case Kind::OpenQuote:
        return "a quote that isn't closed on its line, ahead of " + Quote(token.text);
    case Kind::TooLong:
        return "an item of more than " + std::to_string(KeywordLexer::longestItem) + " characters";
    case Kind::Slash:
        return "'/'";
    case Kind::LineEnd:
        return "the end of the line";
    case Kind::FileEnd:
        return "the end of the file";
    }
    return "nothing";
}

std::string Capitals(std::string_view word) {
    std::string capitals(word);
    std::ranges::transform(capitals, capitals.begin(), [](char c) {
        return IsSmallLetter(c) ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return capitals;
}

void KeywordLexer::MoveTo(std::uint64_t offset, std::uint64_t line) {
    file_.MoveTo(offset, line);
    isAtHeadOfLine_ = false;
    plainTextBegins_ = 0;
    openQuotesEnd_[0] = openQuotesEnd_[1] = 0;
}

// What both kinds of text have in common.
template <typename IsSlash, typename ReadBare>
Token KeywordLexer::NextToken(IsSlash isSlash, ReadBare readBare) {
    for (;;) {
        const std::string_view ahead = AtLeastAhead(2);
        if (ahead.empty()) {
            return {Kind::FileEnd, {}, false};
        }
        std::size_t blanks = 0;
        while (blanks < ahead.size() && IsBlank(ahead[blanks])) {
            ++blanks;
        }
        const char first = ahead[0];
        if (blanks > 0) {
            Pass(blanks);
        } else if (first == '\n') {
            PassNewline();
            return {Kind::LineEnd, {}, false};
        } else if (first == '/' && isSlash(ahead)) {
            Pass(1);
            return {Kind::Slash, {}, false};
        } else if (ahead.starts_with("--")) {
            ReadComment();
            return {Kind::LineEnd, {}, false};
        } else {
            const bool isAtHeadOfLine = isAtHeadOfLine_;
            return IsQuote(first) ? ReadQuoted(isAtHeadOfLine) : readBare(isAtHeadOfLine);
        }
    }
}

Token KeywordLexer::Next() {
    return NextToken([](std::string_view) { return true; },
                     [this](bool isAtHeadOfLine) { return ReadWord(isAtHeadOfLine); });
}

Token KeywordLexer::NextPath() {
    return NextToken(
        [](std::string_view ahead) {
            return ahead.size() == 1 || IsBlank(ahead[1]) || ahead[1] == '\n';
        },
        [this](bool isAtHeadOfLine) { return ReadPath(isAtHeadOfLine); });
}

KeywordLexer::TakenNumbers KeywordLexer::TakeNumbers(std::span<double> numbers) {
    const std::string_view ahead = file_.Ahead();
    const char* const end = ahead.data() + ahead.size();
    const char* taken = ahead.data(); // the end of what is
    TakenNumbers result{0, 0, 0, file_.Line()};
    for (double& number : numbers) {
        const char* item = taken;
        std::uint64_t line = result.lastLine;
        for (; item != end && (IsBlank(*item) || *item == '\n'); ++item) {
            line += *item == '\n' ? 1 : 0;
        }
        const char* const behind = ReadNumberAhead(item, end, number);
        if (behind == nullptr || behind == end ||
            !(IsBlank(*behind) || *behind == '\n' || *behind == '/')) {
            break;
        }
        result.firstLine = result.count == 0 ? line : result.firstLine;
        result.lastLine = line;
        result.longest = std::max(result.longest, static_cast<std::size_t>(behind - item));
        ++result.count;
        taken = behind;
    }
    if (result.count > 0) {
        isAtHeadOfLine_ = false;
        file_.PassLines(static_cast<std::size_t>(taken - ahead.data()), result.lastLine);
    }
    return result;
}

void KeywordLexer::ReadComment() {
    if (!takeComment_) {
        SkipLine();
        return;
    }
    std::string_view ahead = file_.Ahead();
    std::size_t newline = ahead.find('\n');
    while (newline == std::string_view::npos && ahead.size() < longestComment) {
        const std::size_t searched = ahead.size();
        ahead = file_.MoreAhead();
        if (ahead.size() == searched) {
            break;
        }
        newline = ahead.find('\n', searched);
    }
    std::string_view comment = ahead.substr(0, newline);
    if (comment.size() <= longestComment) {
        comment.remove_prefix(2);
        takeComment_(comment.substr(0, comment.size() - (comment.ends_with('\r') ? 1 : 0)));
    }
    SkipLine();
}

// A word ends in front of a blank, a slash or a comment, and behind the asterisk of a repeat count
// whose value is quoted.
Token KeywordLexer::ReadWord(bool isAtHeadOfLine) {
    std::string_view ahead = file_.Ahead();
    std::size_t length = 0;
    while (length <= longestItem) {
        const std::size_t most = std::min(ahead.size(), longestItem + 1);
        while (length < most && !MayEndWord(ahead[length])) {
            ++length;
        }
        if (length + 1 >= ahead.size()) {
            const std::size_t before = ahead.size();
            ahead = AtLeastAhead(length + 2);
            if (ahead.size() > before) {
                continue;
            }
        }
        if (length == ahead.size()) {
            break;
        }
        const char c = ahead[length];
        const char next = length + 1 < ahead.size() ? ahead[length + 1] : '\n';
        if (c == '*' && IsQuote(next)) {
            ++length;
            break;
        }
        if (MayEndWord(c) && (c != '-' || next == '-') && c != '*') {
            break;
        }
        ++length;
    }
    const bool isTooLong = length > longestItem;
    Pass(length);
    return {isTooLong ? Kind::TooLong : Kind::Word, ahead.substr(0, length), isAtHeadOfLine};
}

Token KeywordLexer::ReadPath(bool isAtHeadOfLine) {
    const std::string_view ahead = AtLeastAhead(longestItem + 1);
    std::size_t length = 0;
    while (length < std::min(ahead.size(), longestItem + 1) && !IsBlank(ahead[length]) &&
           ahead[length] != '\n') {
        ++length;
    }
    const bool isTooLong = length > longestItem;
    if (length > 1 && ahead[length - 1] == '/') {
        --length;
    }
    Pass(length);
    return {isTooLong ? Kind::TooLong : Kind::Word, ahead.substr(0, length), isAtHeadOfLine};
}

Token KeywordLexer::ReadQuoted(bool isAtHeadOfLine) {
    const std::size_t close = FindClosingQuote();
    const std::string_view ahead = AtLeastAhead(1 + longestShown);
    if (close == 0) {
        Pass(1);
        const std::string_view behind = ahead.substr(1, longestShown);
        return {Kind::OpenQuote, behind.substr(0, behind.find_first_of("\r\n")), isAtHeadOfLine};
    }
    Pass(close + 1);
    return {Kind::Quoted, ahead.substr(1, close - 1), isAtHeadOfLine};
}

// Where the quote ahead is closed, or 0. Text of quotes alone is searched once and not from each of
// them anew: where one search ended in vain, those that begin ahead of that place do too.
std::size_t KeywordLexer::FindClosingQuote() {
    std::string_view ahead = file_.Ahead();
    const char quote = ahead[0];
    std::uint64_t& openQuotesEnd = openQuotesEnd_[quote == '"' ? 1 : 0];
    if (file_.Offset() < openQuotesEnd) {
        return 0;
    }
    std::size_t position = 1;
    for (; position <= longestItem; ++position) {
        if (position + 2 >= ahead.size()) {
            ahead = AtLeastAhead(position + 3);
        }
        if (position >= ahead.size() || ahead[position] == '\n') {
            break;
        }
        if (ahead[position] != quote) {
            continue;
        }
        if (Separates(ahead.substr(position + 1))) {
            return position;
        }
        if (IsBlank(ahead[position - 1])) {
            break;
        }
    }
    openQuotesEnd = file_.Offset() + position;
    return 0;
}

void KeywordLexer::SkipLine() {
    for (;;) {
        const std::string_view ahead = file_.Ahead();
        const std::size_t newline = ahead.find('\n');
        if (newline != std::string_view::npos) {
            Pass(newline);
            PassNewline();
            return;
        }
        if (ahead.empty()) {
            return;
        }
        Pass(ahead.size());
    }
}

void KeywordLexer::SkipCommentLines() {
    while (AtLeastAhead(2).starts_with("--")) {
        SkipLine();
    }
}

void KeywordLexer::SkipPlainText() {
    while (file_.Offset() >= plainTextBegins_) {
        std::string_view ahead = file_.Ahead();
        if (ahead.empty() || (isAtHeadOfLine_ && IsLetter(ahead[0]))) {
            return;
        }
        std::size_t newline = ahead.find('\n');
        if (newline == std::string_view::npos) {
            ahead = AtLeastAhead(veryLongLine);
            newline = ahead.find('\n');
        }
        const std::string_view line = ahead.substr(0, newline);
        const std::size_t slash = line.find('/');
        if (newline != std::string_view::npos && slash == std::string_view::npos) {
            Pass(newline);
            PassNewline();
            continue;
        }
        if (slash != std::string_view::npos && slash > 0 &&
            IsOutsideQuotes(line.substr(0, slash))) {
            Pass(slash);
            return;
        }
        // The middle of a very long line: without quotes and comments, the next blank is as good a
        // place to go on as any.
        const std::size_t blank = line.find_last_of(" \t");
        if (newline == std::string_view::npos && blank != std::string_view::npos && blank > 0 &&
            !Contains(line, '/') && !Contains(line, '\'') && !Contains(line, '"') &&
            line.find("--") == std::string_view::npos) {
            Pass(blank);
            continue;
        }
        plainTextBegins_ = file_.Offset() + line.size();
    }
}

// That many characters ahead, unless the file ends before.
std::string_view KeywordLexer::AtLeastAhead(std::size_t count) {
    std::string_view ahead = file_.Ahead();
    while (ahead.size() < count) {
        const std::size_t before = ahead.size();
        ahead = file_.MoreAhead();
        if (ahead.size() == before) {
            break;
        }
    }
    return ahead;
}

void KeywordLexer::Pass(std::size_t count) noexcept {
    file_.Pass(count);
    isAtHeadOfLine_ = isAtHeadOfLine_ && count == 0;
}

void KeywordLexer::PassNewline() noexcept {
    file_.PassNewline();
    isAtHeadOfLine_ = true;
}

} // namespace Orv::Text
