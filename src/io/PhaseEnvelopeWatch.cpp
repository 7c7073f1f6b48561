#include "PhaseEnvelopeWatch.h"

#include "CellDiagnostics.h"
#include "CellNumber.h"
#include "Characters.h"
#include "NumberText.h"
#include "PhaseEnvelopeFormat.h"
#include "Quote.h"

#include <algorithm>
#include <optional>

namespace Orv::FluidBench::Impl::IO {

using Common::PTline;
using Text::AppendNumber;
using Text::CellContent;
using Text::LookAtCell;
using Text::ParseLeadingDecimal;
using Text::Quote;
using Text::WithoutBlanks;
using Text::WithoutPadding;

namespace {

constexpr CellKinds envelopeCells{EnvelopeKinds::notANumber, EnvelopeKinds::textBesideNumber,
                                  EnvelopeKinds::notFinite, ParseLeadingDecimal};
constexpr std::string_view axisNames[] = {"temperature", "pressure"};

bool HasDigit(std::string_view text) {
    return std::ranges::any_of(text, Text::IsDigit);
}

// What makes a vapour fraction of a heading.
bool HoldsNumber(std::string_view heading) {
    return HasDigit(heading) || heading.find('.') != std::string_view::npos;
}

// A spreadsheet fills its lines up with separators.
// What a units line tells, without blanks, quotes and padding, and with commas for tabs. Nothing
// where the line is another one: people spell its key in several ways.
std::optional<std::string> UnitsOf(std::string_view line) {
    constexpr std::string_view key = "unit";
    std::string text(WithoutPadding(line));
    std::erase_if(text, [](char c) { return c == ' ' || c == '"' || c == '\''; });
    std::ranges::replace(text, '\t', ',');
    const bool hasKey = text.size() >= key.size() &&
                        std::ranges::equal(std::string_view(text).substr(0, key.size()), key, {},
                                           [](char c) { return static_cast<char>(c | 0x20); });
    std::size_t end = key.size();
    if (hasKey && end < text.size() && (text[end] == 's' || text[end] == 'S')) {
        ++end;
    }
    if (!hasKey ||
        (end < text.size() && std::string_view(":=,;").find(text[end]) == std::string_view::npos)) {
        return std::nullopt;
    }
    text.erase(0, text.find_first_not_of(":=,;", end));
    return text;
}

// Takes the text ahead of the next separator off a line. False where there is no separator.
bool TakeCell(std::string_view& line, std::string_view& cell, char separator) {
    const std::size_t end = line.find(separator);
    if (end == std::string_view::npos) {
        return false;
    }
    cell = line.substr(0, end);
    line.remove_prefix(end + 1);
    return true;
}

// "Dew", "Vapour 0.5"
std::string NameOf(const PTline& line) {
    const LineKind& kind = KindOf(line);
    std::string name(kind.heading);
    if (kind.pairs == Pairs::EachWithFraction) {
        name += ' ';
        AppendNumber(name, line.GetQualityLineFraction(), {});
    }
    return name;
}

} // namespace

void PhaseEnvelopeWatch::OutsideBlock() {
    const std::string_view line = *lines_.Line();
    if (HasDigit(line)) {
        Tell(EnvelopeKinds::rowOutsideBlock,
             "Expected a line with 'Flash' ahead of any further numbers, "
             "found " +
                 Quote(line) + "; it isn't read.");
    }
}

void PhaseEnvelopeWatch::AheadOfHeadings() {
    const auto units = UnitsOf(*lines_.Line());
    if (units && !units->empty() && *units != "T(K),P(Pa)") {
        Tell(EnvelopeKinds::otherUnits, "Expected the units 'T(K), P(Pa)', found " +
                                            Quote(WithoutPadding(*lines_.Line())) +
                                            "; the numbers are taken as K and Pa all the same.");
    }
}

void PhaseEnvelopeWatch::Headings(const std::vector<PTline>& lines) {
    headings_ = lines_.Number();
    hasRows_ = hasDigits_ = false;
    pairs_.clear();
    for (const PTline& line : lines) {
        pairs_.push_back({NameOf(line)});
    }
    std::vector<std::string_view> headings;
    std::string_view rest = *lines_.Line();
    std::string_view heading;
    while (TakeCell(rest, heading, separator_)) {
        std::string_view second;
        TakeCell(rest, second, separator_);
        headings.push_back(WithoutBlanks(heading));
        HeadingPair(headings.back(), second);
    }
    if (!WithoutBlanks(rest).empty()) {
        headings.push_back(WithoutBlanks(rest));
    }
    while (!headings.empty() && headings.back().empty()) { // a spreadsheet's padding
        headings.pop_back();
    }
    if (!hasDigits_) { // these explain the rest
        Order(headings, lines);
    }
}

void PhaseEnvelopeWatch::HeadingPair(std::string_view heading, std::string_view second) {
    if (heading == "Vapour") {
        Fraction(second);
    } else if (HoldsNumber(heading) || HoldsNumber(second)) {
        hasDigits_ = true;
        Tell(EnvelopeKinds::digitsInHeading,
             "Expected numbers behind the heading 'Vapour' alone, found " + Quote(heading) +
                 " and " + Quote(second) +
                 ": each number in them counts as a vapour fraction with a pair of columns.");
    }
}

void PhaseEnvelopeWatch::Fraction(std::string_view cell) {
    constexpr std::string_view column = "vapour fraction";
    const double fraction = ParseLeadingDecimal(cell);
    if (LookAtCell(cell) != CellContent::Number) {
        TellCell(diagnostics_, envelopeCells, lines_.Number(), column, cell,
                 "the line and its pair of columns don't count");
    } else if (!(fraction >= 0.0 && fraction <= 1.0)) {
        Tell(EnvelopeKinds::fractionRange, "Expected a vapour fraction from 0 to 1, found " +
                                               Quote(cell) + "; it is taken, but for a sign.");
    }
}

void PhaseEnvelopeWatch::Order(const std::vector<std::string_view>& headings,
                               const std::vector<PTline>& lines) {
    for (std::size_t i = 0; i < std::max(headings.size(), lines.size()); ++i) {
        const std::string expected =
            i < lines.size() ? Quote(KindOf(lines[i]).heading) : "no more headings";
        const std::string found = i < headings.size() ? Quote(headings[i]) : "none";
        if (found != expected) {
            Tell(EnvelopeKinds::headingOrder,
                 "Expected " + expected + " for pair " + std::to_string(i + 1) +
                     " of the columns, found " + found +
                     "; the columns are taken in the reader's own order.");
            return;
        }
    }
}

void PhaseEnvelopeWatch::OpenHeading() {
    Tell(EnvelopeKinds::openHeading,
         "Expected a separator behind each number of the headings, found none behind the last one "
         "in " +
             Quote(*lines_.Line()) + "; nothing is read.");
}

void PhaseEnvelopeWatch::Row() {
    hasRows_ = true;
    std::string_view rest = *lines_.Line();
    std::size_t cells = 0;
    for (Pair& pair : pairs_) {
        bool has[2] = {};
        for (std::size_t axis = 0; axis < 2; ++axis) {
            std::string_view cell;
            if (TakeCell(rest, cell, separator_)) {
                ++cells;
                has[axis] = Cell(cell, std::string(axisNames[axis]) + " of '" + pair.name + '\'');
                pair.numbers[axis] += has[axis] ? 1 : 0;
            }
        }
        if (has[0] != has[1] && pair.half == 0) {
            pair.half = lines_.Number();
        }
    }
    if (cells < 2 * pairs_.size()) {
        ShortRow(cells);
    } else if (rest.find_first_not_of(" ,\t") != std::string_view::npos) {
        Tell(EnvelopeKinds::extraCells, "Expected " + std::to_string(cells) + " cells, found " +
                                            Quote(rest) + " behind them; it isn't read.");
    }
}

// Whether the reader takes a number from the cell.
bool PhaseEnvelopeWatch::Cell(std::string_view cell, std::string_view column) {
    const auto begin =
        static_cast<std::size_t>(std::ranges::find_if(cell, BeginsNumber) - cell.begin());
    const bool hasNumber = begin < cell.size();
    const CellContent content = LookAtCell(cell);
    if (content == CellContent::Number || content == CellContent::Nothing) {
        return hasNumber;
    }
    const std::string_view ahead = WithoutBlanks(cell.substr(0, begin));
    if (!hasNumber) {
        Tell(EnvelopeKinds::notANumber,
             "Expected a number for the " + std::string(column) + ", found " + Quote(cell) +
                 "; it adds nothing to its column, where the numbers below "
                 "move up.");
    } else if (!ahead.empty() && ahead != "+") {
        Tell(EnvelopeKinds::textBesideNumber, "Expected a number for the " + std::string(column) +
                                                  ", found " + Quote(cell) +
                                                  "; the number behind the text was taken.");
    } else {
        TellCell(diagnostics_, envelopeCells, lines_.Number(), column, cell, "it counts as 0");
    }
    return hasNumber;
}

void PhaseEnvelopeWatch::ShortRow(std::size_t cells) {
    const std::string& first = pairs_[cells / 2].name;
    const std::string& last = pairs_.back().name;
    const bool isOne = cells / 2 + 1 == pairs_.size();
    Tell(EnvelopeKinds::shortRow,
         "Expected " + std::to_string(2 * pairs_.size()) + " cells, each with a " +
             (separator_ == ',' ? "comma" : "tab") + " behind it, found " + std::to_string(cells) +
             " in " + Quote(*lines_.Line()) + ": '" + first +
             (isOne ? "' loses a point." : "' and all lines down to '" + last + "' lose a point."));
}

void PhaseEnvelopeWatch::EndBlock() {
    for (const auto& [name, numbers, half] : pairs_) {
        if (half != 0) {
            diagnostics_.Tell(
                EnvelopeKinds::unevenColumns, half,
                "Expected a temperature and a pressure for each point of '" + name +
                    "', found one of them alone from this row on: " + std::to_string(numbers[0]) +
                    " temperatures and " + std::to_string(numbers[1]) +
                    " pressures in all, which make points in their order.");
        }
    }
    if (!hasRows_) {
        diagnostics_.Tell(EnvelopeKinds::noRows, headings_,
                          "Expected rows of numbers below the headings, found none; the lines of "
                          "the plot have no points.");
    }
}

void PhaseEnvelopeWatch::FlashMissing() {
    Tell(EnvelopeKinds::noFlash, "Expected a line with 'Flash' ahead of the headings, found " +
                                     Quote(*lines_.Line()) + "; nothing more is read.");
}

void PhaseEnvelopeWatch::HeadingsMissing() {
    const auto line = lines_.Line();
    Tell(EnvelopeKinds::noHeadings,
         "Expected a line with 'Bubble' behind the one with 'Flash', found " +
             (line ? Quote(*line) : std::string("the end")) + "; nothing more is read.");
}

void PhaseEnvelopeWatch::NoEnvelope() {
    diagnostics_.Tell(EnvelopeKinds::noEnvelope, 0,
                      "Expected a line with 'Flash', which begins an envelope, found none.");
}

} // namespace Orv::FluidBench::Impl::IO
