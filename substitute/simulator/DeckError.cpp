#include "DeckError.h"

#include <algorithm>

namespace Orv::Kes::KesModel {

namespace {

constexpr std::size_t longestQuote = 60;

} // namespace

std::string Describe(const DeckLine& place) {
    return place.file + ", line " + std::to_string(place.line);
}

std::string Quote(std::string_view text) {
    std::string quoted = "'" + std::string(text.substr(0, longestQuote));
    std::ranges::replace_if(
        quoted, [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
    return quoted + (text.size() > longestQuote ? "...'" : "'");
}

DeckError::DeckError(const DeckLine& place, std::string_view keyword, const std::string& expected,
                     const std::string& found)
    : std::runtime_error(Describe(place) + ", keyword " + std::string(keyword) + ": expected " +
                         expected + ", found " + found + ".") {}

} // namespace Orv::Kes::KesModel
