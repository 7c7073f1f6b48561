#include "KeywordSuggestion.h"

#include "Characters.h"
#include "KeywordLexer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace Orv::Kes::KesModel {

namespace {

constexpr std::size_t longestKeyword = 8;
constexpr std::size_t mostErrors = 2;

// Keywords that matter to no fluid, as near to those that do as a typing error.
constexpr std::string_view otherKeywords[] = {
    "ACFW",   "CNAMESW", "LSCRITS", "PCRITW", "RSSPEC", "SPECHEAT", "TCRITW", "VCRITW",
    "ZCRITW", "AMFVD",   "COMPL",   "COMPW",  "CVCRIT", "EGRID",    "INSPEC", "LBCCOEFR",
    "MATRIX", "RGRID",   "RTEMPA",  "SPECHC", "SPECHD", "SPECHS",   "SPECHT", "STEMP",
    "TEMP",   "TNAMES",  "TTEMP",   "WNAMES", "WTEMP",  "XMFVD",    "YIELD",  "YMFVD"};

// Letters of the Cyrillic alphabet that look like Latin ones.
struct LookAlike {
    std::string_view cyrillic;
    char latin;
};
constexpr LookAlike lookAlikes[] = {
    {"\u0410", 'A'}, {"\u0412", 'B'}, {"\u0415", 'E'}, {"\u0406", 'I'}, {"\u041A", 'K'},
    {"\u041C", 'M'}, {"\u041D", 'H'}, {"\u041E", 'O'}, {"\u0420", 'P'}, {"\u0421", 'C'},
    {"\u0422", 'T'}, {"\u0425", 'X'}, {"\u0405", 'S'},
};

// The word with Latin letters for their look-alikes; empty with other letters of that alphabet.
std::string InLatinLetters(std::string_view word) {
    std::string latin;
    while (!word.empty()) {
        const auto* const letter = std::ranges::find_if(
            lookAlikes, [&](const LookAlike& l) { return word.starts_with(l.cyrillic); });
        if (letter != std::end(lookAlikes)) {
            latin += letter->latin;
            word.remove_prefix(letter->cyrillic.size());
        } else if (word[0] == '\xD0' || word[0] == '\xD1') {
            return {};
        } else {
            latin += word[0];
            word.remove_prefix(1);
        }
    }
    return latin;
}

std::size_t ErrorsAllowed(std::string_view keyword) noexcept {
    return keyword.size() >= 6 ? 2 : keyword.size() >= 4 ? 1 : 0;
}

// How many letters are changed, lost, added or swapped with a neighbour. Rows of the usual table:
// [i][j] is the number for the first i letters of the one and the first j of the other.
std::size_t ErrorsBetween(std::string_view a, std::string_view b) noexcept {
    constexpr std::size_t width = longestKeyword + mostErrors + 1;
    std::array<std::array<std::size_t, width>, width> errors{};
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                errors[i][j] = i + j;
                continue;
            }
            const std::size_t changed = a[i - 1] == b[j - 1] ? 0 : 1;
            std::size_t least = std::min(
                {errors[i - 1][j] + 1, errors[i][j - 1] + 1, errors[i - 1][j - 1] + changed});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                least = std::min(least, errors[i - 2][j - 2] + 1);
            }
            errors[i][j] = least;
        }
    }
    return errors[a.size()][b.size()];
}

} // namespace

bool HasForeignCharacters(std::string_view text) {
    return std::ranges::any_of(text,
                               [](char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; });
}

std::string BareKeyword(std::string_view text) {
    constexpr std::string_view noBreakSpace = "\u00A0";
    const bool isForeign = HasForeignCharacters(text);
    const std::string latin = isForeign ? InLatinLetters(text) : std::string();
    std::string_view word = isForeign ? latin : text;
    std::string bare;
    const auto begins =
        std::ranges::find_if(word, [](char c) { return Text::IsLetter(c) || Text::IsDigit(c); });
    word.remove_prefix(static_cast<std::size_t>(begins - word.begin()));
    // "1.MW" and "1)MW"
    const std::size_t digits = word.find_first_not_of("0123456789");
    if (digits != std::string_view::npos && digits > 0 &&
        (word[digits] == '.' || word[digits] == ')')) {
        word.remove_prefix(digits + 1);
    }
    word = word.substr(0, word.find(noBreakSpace));
    for (const char c : word.substr(0, word.find_first_of("([{<:;=,"))) {
        if (Text::IsLetter(c) || Text::IsDigit(c)) {
            bare += c;
        }
    }
    return Text::Capitals(bare);
}

std::string_view ClosestKeyword(std::string_view word, std::span<const std::string_view> keywords) {
    std::string_view closest;
    if (word.size() > longestKeyword + mostErrors ||
        std::ranges::find(otherKeywords, word) != std::end(otherKeywords)) {
        return closest;
    }
    std::size_t least = mostErrors + 1;
    for (const std::string_view keyword : keywords) {
        const std::size_t longer = std::max(word.size(), keyword.size());
        const std::size_t shorter = std::min(word.size(), keyword.size());
        if (longer - shorter > ErrorsAllowed(keyword) || keyword.size() > longestKeyword) {
            continue;
        }
        const std::size_t errors = ErrorsBetween(word, keyword);
        if (errors <= ErrorsAllowed(keyword) && errors < least) {
            least = errors;
            closest = keyword;
        }
    }
    return closest;
}

} // namespace Orv::Kes::KesModel
