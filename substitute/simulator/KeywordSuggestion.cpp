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

std::string BareKeyword(std::string_view word) {
    std::string bare;
    const auto begins =
        std::ranges::find_if(word, [](char c) { return Text::IsLetter(c) || Text::IsDigit(c); });
    word.remove_prefix(static_cast<std::size_t>(begins - word.begin()));
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
