#include "PhaseEnvelopeParser.h"

#include "NumberText.h"
#include "PhaseEnvelopeFormat.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::Impl::IO {

using Common::CommonPlottingObject;
using Common::Line;
using Common::PTline;
using Text::ParseLeadingDecimal;
using AxisType = CommonPlottingObject::AxisType;
using Identifier = PTline::PTlineIdentifier;

namespace {

constexpr std::string_view hydrateTypeI = "Hydrate type I";
constexpr std::string_view hydrateTypeII = "Hydrate type II";

constexpr bool IsDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

bool Holds(std::string_view line, std::string_view word) {
    return line.find(word) != std::string_view::npos;
}

// The one heading that another begins with: there it doesn't count.
bool HoldsHydrateTypeI(std::string_view line) {
    std::size_t position = line.find(hydrateTypeI);
    while (position != std::string_view::npos && line.substr(position).starts_with(hydrateTypeII)) {
        position = line.find(hydrateTypeI, position + 1);
    }
    return position != std::string_view::npos;
}

bool HoldsHeading(std::string_view line, std::string_view heading) {
    return heading == hydrateTypeI ? HoldsHydrateTypeI(line) : Holds(line, heading);
}

const LineKind& KindOf(Identifier identifier) {
    return *std::ranges::find(lineKinds, identifier, &LineKind::identifier);
}

Line ToLine(const PTline& line) {
    const LineKind& kind = KindOf(line.GetLineType());
    if (kind.pairs == Pairs::One) {
        return {"", line.GetTemperatures(), line.GetPressures(), lineType, kind.phase};
    }
    return {"",         line.GetTemperatures(),       line.GetPressures(), lineType,
            kind.phase, line.GetQualityLineFraction()};
}

} // namespace

EnvelopeLines::EnvelopeLines(std::istream& text) : reader_(text, longestLine) {
    std::string_view line;
    while (headSize_ < head_.size() && reader_.Next(line)) {
        head_[headSize_++] = line;
    }
    Advance();
}

std::optional<char> EnvelopeLines::Separator() const {
    constexpr std::size_t shortestLetterLine = 4; // "T,P,"
    const std::string& letters = head_.back();
    if (letters.size() < shortestLetterLine || (letters[1] != ',' && letters[1] != '\t')) {
        return std::nullopt;
    }
    return letters[1];
}

void EnvelopeLines::Advance() {
    std::string_view line;
    if (headTaken_ < headSize_) {
        line_ = head_[headTaken_++];
    } else if (reader_.Next(line)) {
        line_ = line;
    } else {
        line_.reset();
    }
}

PhaseEnvelopeParser::PhaseEnvelopeParser(EnvelopeLines& lines, char separator,
                                         std::vector<CommonPlottingObject>& plots,
                                         std::string& lastError)
    : lines_(lines), separator_(separator), plots_(plots), lastError_(lastError) {}

bool PhaseEnvelopeParser::Run() {
    State state = State::SeekingFlash;
    while (state != State::Ended && state != State::Failed) {
        const Transition& transition = Next(state);
        (this->*transition.action)();
        if (transition.cursor == Cursor::Advances) {
            lines_.Advance();
        }
        state = transition.next;
    }
    return state == State::Ended && !plots_.empty();
}

// Of the transitions of a state, the first one counts whose sight the line under the cursor offers.
// So a line with both words is a heading line, and one with a digit a row whatever else it holds.
const PhaseEnvelopeParser::Transition& PhaseEnvelopeParser::Next(State state) const {
    using enum State;
    using enum Sight;
    using enum Cursor;
    using P = PhaseEnvelopeParser;
    // clang-format off
    static constexpr Transition transitions[] = {
        {SeekingFlash,    NoLine,   &P::TellNoMoreEnvelopes, Stays,    Ended},
        {SeekingFlash,    Bubble,   &P::TellFlashMissing,    Stays,    Ended},
        {SeekingFlash,    Flash,    &P::BeginEnvelope,       Advances, SeekingHeadings},
        {SeekingFlash,    Anything, &P::PassOver,            Advances, SeekingFlash},

        {SeekingHeadings, NoLine,   &P::TellHeadingsMissing, Stays,    Failed},
        {SeekingHeadings, Bubble,   &P::ReadHeadings,        Advances, SeekingData},
        {SeekingHeadings, Flash,    &P::TellHeadingsMissing, Stays,    Failed},
        {SeekingHeadings, Anything, &P::PassOver,            Advances, SeekingHeadings},

        {SeekingData,     NoLine,   &P::FinishEnvelope,      Stays,    Ended},
        {SeekingData,     Digit,    &P::PassOver,            Stays,    ReadingRows},
        {SeekingData,     Flash,    &P::FinishEnvelope,      Stays,    SeekingFlash},
        {SeekingData,     Anything, &P::PassOver,            Advances, SeekingData},

        {ReadingRows,     NoLine,   &P::FinishEnvelope,      Stays,    Ended},
        {ReadingRows,     Digit,    &P::ReadRow,             Advances, ReadingRows},
        {ReadingRows,     Anything, &P::FinishEnvelope,      Stays,    SeekingFlash},
    };
    // clang-format on
    return *std::ranges::find_if(transitions, [this, state](const Transition& transition) {
        return transition.state == state && Shows(transition.sight);
    });
}

bool PhaseEnvelopeParser::Shows(Sight sight) const {
    const auto line = lines_.Line();
    switch (sight) {
    case Sight::NoLine:
        return !line;
    case Sight::Bubble:
        return line && Holds(*line, "Bubble");
    case Sight::Flash:
        return line && Holds(*line, "Flash");
    case Sight::Digit:
        return line && std::ranges::any_of(*line, IsDigit);
    case Sight::Anything:
        break;
    }
    return true;
}

void PhaseEnvelopeParser::TellFlashMissing() {
    lastError_ = "Flash used not where expected";
}

void PhaseEnvelopeParser::TellNoMoreEnvelopes() {
    lastError_ = "No more envelopes found";
}

void PhaseEnvelopeParser::TellHeadingsMissing() {
    lastError_ = "Column headings not found";
}

void PhaseEnvelopeParser::BeginEnvelope() {
    ptLines_.clear();
    for (const LineKind& kind : lineKinds) {
        if (kind.pairs == Pairs::One) {
            ptLines_.emplace_back(*kind.identifier, 0.0);
        }
    }
}

// The order of the words doesn't matter: the columns stand in the fixed order of the kinds.
void PhaseEnvelopeParser::ReadHeadings() {
    const std::string_view headings = *lines_.Line();
    for (const LineKind& kind : lineKinds) {
        if (kind.pairs == Pairs::OneIfThere && HoldsHeading(headings, kind.heading)) {
            ptLines_.emplace_back(*kind.identifier, 0.0);
        }
    }
    ReadFractions(headings);
    columns_.assign(2 * ptLines_.size(), {});
}

// Each number among the headings makes a quality line, whatever word it stands behind.
void PhaseEnvelopeParser::ReadFractions(std::string_view headings) {
    constexpr std::string_view numberBegins = "0123456789.";
    std::size_t begin = headings.find_first_of(numberBegins);
    while (begin != std::string_view::npos) {
        const std::size_t end = headings.find(separator_, begin);
        const double fraction = ParseLeadingDecimal(headings.substr(begin, end - begin));
        ptLines_.emplace_back(Identifier::Quality, fraction);
        if (end == std::string_view::npos) {
            // Callers know this text; standard libraries each have one of their own.
            throw std::out_of_range("invalid string position");
        }
        begin = headings.find_first_of(numberBegins, end);
    }
}

// A row fills the columns down to its last separator. A cell without a number adds nothing, so
// what stands below it moves up.
void PhaseEnvelopeParser::ReadRow() {
    std::string_view rest = *lines_.Line();
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        const std::size_t end = rest.find(separator_);
        if (end == std::string_view::npos) {
            lastError_ = "Error in column " + std::to_string(column);
            return;
        }
        const std::string_view cell = rest.substr(0, end);
        const std::size_t number = cell.find_first_of("-.0123456789");
        if (number != std::string_view::npos) {
            columns_[column].push_back(ParseLeadingDecimal(cell.substr(number)));
        }
        rest.remove_prefix(end + 1);
    }
}

void PhaseEnvelopeParser::FinishEnvelope() {
    CommonPlottingObject plot(AxisType::Temperature, AxisType::Pressure);
    auto column = columns_.begin();
    for (PTline line : ptLines_) { // a copy, whose points go with it
        const std::vector<double> temperatures = std::move(*column++);
        const std::vector<double> pressures = std::move(*column++);
        line.SetLine(pressures, temperatures);
        plot.AddLine(ToLine(line));
    }
    plots_.push_back(std::move(plot));
}

} // namespace Orv::FluidBench::Impl::IO
