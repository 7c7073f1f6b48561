#include "FormatFinder.h"

#include "Characters.h"
#include "LineReader.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

namespace FluidBenchTool {

namespace {

// What a line begins with, up to a blank or the line's end, and what that says of the text. Where a
// text has several, the one further up counts: a thermal file has the components of a deck, though
// not its models, and a deck may have K-values, heats and depth tables.
struct Sign {
    std::string_view word;
    std::string_view format;
};

// clang-format off
constexpr Sign signs[] = {
    {"MFL", "mfl"},
    {"EOS", "deck"}, {"OMEGAA", "deck"}, {"OMEGAB", "deck"}, {"BIC", "deck"}, {"VCRIT", "deck"},
    {"PARACHOR", "deck"},
    {"SPECHA", "thermal"}, {"SPECHG", "thermal"}, {"HEATVAPS", "thermal"}, {"KVCR", "thermal"},
    {"KVWI", "thermal"}, {"THERMEX1", "thermal"},
    {"KVTABLE", "kvalues"},
    {"TCRIT", "deck"}, {"MW", "deck"},
    {"PVTO", "blackoil"}, {"PVDO", "blackoil"}, {"PVTG", "blackoil"}, {"PVDG", "blackoil"},
    {"ZMFVD", "depth"}, {"PBVD", "depth"}, {"PDVD", "depth"}, {"RSVD", "depth"}, {"RVVD", "depth"},
    {"YMFVP", "compositions"}, {"XMFVP", "compositions"},
    {"DENSITY", "blackoil"}, {"RSCONSTT", "blackoil"},
    {"CNAMES", "deck"}, {"NCOMPS", "deck"},
    {"RUNSPEC", "deck"}, {"PROPS", "deck"}, {"INCLUDE", "deck"}, {"FILEUNIT", "deck"},
};

// The first cells of lines with commas; in small letters.
constexpr Sign cells[] = {
    {"pvto", "blackoil"}, {"pvtg", "blackoil"}, {"oden", "blackoil"}, {"gden", "blackoil"},
    {"components", "kvalues"}, {"record", "kvalues"},
    {"standard", "thermal"}, {"molecular weights", "thermal"},
    {"separator", "depth"}, {"contact", "depth"}, {"gas", "depth"}, {"oil", "depth"},
    {"keyword", "depth"},
};
// clang-format on

std::string SmallLetters(std::string_view text) {
    std::string small(text);
    for (char& c : small) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return small;
}

std::string_view FormatOfCells(std::string_view line) {
    const std::size_t comma = line.find(',');
    if (comma != std::string_view::npos) {
        const std::string cell = SmallLetters(line.substr(0, comma));
        const auto sign = std::ranges::find(cells, std::string_view(cell), &Sign::word);
        if (sign != std::end(cells)) {
            return sign->format;
        }
    }
    return {};
}

std::size_t RankOf(std::string_view line) {
    if (line.empty() || !Orv::Text::IsLetter(line.front())) {
        return std::size(signs);
    }
    const std::string_view word = line.substr(0, line.find_first_of(" \t"));
    const auto sign = std::ranges::find(signs, word, &Sign::word);
    return static_cast<std::size_t>(sign - std::begin(signs));
}

} // namespace

FoundFormat FindFormat(std::istream& text) {
    constexpr std::size_t longestLine = 4096;
    constexpr auto holds = [](std::string_view line, std::string_view word) {
        return line.find(word) != std::string_view::npos;
    };
    Orv::Text::LineReader lines(text, longestLine, Orv::Text::LineReader::LongLine::Cut);
    std::size_t rank = std::size(signs);
    bool hasFlash = false;
    bool isTitle = false; // the line below the keyword, which may be anything
    for (std::string_view line; rank > 0 && lines.Next(line);) {
        if (std::exchange(isTitle, line == "TITLE") || line.starts_with("--")) {
            continue;
        }
        rank = std::min(rank, RankOf(line));
        if (rank < std::size(signs)) {
            continue; // whatever stands below keywords
        }
        if (holds(line, "BEGIN HEADER")) {
            return {"dfa"};
        }
        hasFlash = hasFlash || holds(line, "Flash");
        if (hasFlash && holds(line, "Bubble")) {
            return {"envelope"};
        }
        if (const std::string_view format = FormatOfCells(line); !format.empty()) {
            return {format};
        }
    }
    return rank < std::size(signs) ? FoundFormat{signs[rank].format, true} : FoundFormat{};
}

} // namespace FluidBenchTool
