#include "PhaseEnvelopeParser.h"

#include "Characters.h"
#include "NumberText.h"
#include "PhaseEnvelopeFormat.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::Impl::IO {

using Common::CommonPlottingObject;
using Common::Line;
using Common::PTline;
using Text::Holds;
using Text::IsDigit;
using Text::ParseLeadingDecimal;
using Text::TakeLeadingDecimal;
using AxisType = CommonPlottingObject::AxisType;
using Identifier = PTline::PTlineIdentifier;

namespace {

constexpr std::string_view hydrateTypeI = "Hydrate type I";
constexpr std::string_view hydrateTypeII = "Hydrate type II";

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

// The columns go with the line; the rest of it stays.
// NOLINTBEGIN(bugprone-use-after-move)
Line ToLine(PTline&& line) {
    const LineKind& kind = KindOf(line);
    std::vector<double> temperatures = std::move(line).GetTemperatures();
    std::vector<double> pressures = std::move(line).GetPressures();
    if (kind.pairs == Pairs::One) {
        return {"", std::move(temperatures), std::move(pressures), lineType, kind.phase};
    }
    return {"",         std::move(temperatures),      std::move(pressures), lineType,
            kind.phase, line.GetQualityLineFraction()};
}
// NOLINTEND(bugprone-use-after-move)

} // namespace

PhaseEnvelopeParser::PhaseEnvelopeParser(EnvelopeLines& lines, char separator,
                                         std::vector<CommonPlottingObject>& plots,
                                         std::string& lastError, Diagnostics& diagnostics)
    : lines_(lines),
      separator_(separator),
      plots_(plots),
      lastError_(lastError),
      isWatched_(diagnostics.AreWanted()),
      watch_(diagnostics, lines, separator) {}

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
        {SeekingFlash,    Anything, &P::PassOutsideBlock,    Advances, SeekingFlash},

        {SeekingHeadings, NoLine,   &P::TellHeadingsMissing, Stays,    Failed},
        {SeekingHeadings, Bubble,   &P::ReadHeadings,        Advances, SeekingData},
        {SeekingHeadings, Flash,    &P::TellHeadingsMissing, Stays,    Failed},
        {SeekingHeadings, Anything, &P::PassAheadOfHeadings, Advances, SeekingHeadings},

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

void PhaseEnvelopeParser::PassOutsideBlock() {
    if (isWatched_) {
        watch_.OutsideBlock();
    }
}

void PhaseEnvelopeParser::PassAheadOfHeadings() {
    if (isWatched_) {
        watch_.AheadOfHeadings();
    }
}

void PhaseEnvelopeParser::TellFlashMissing() {
    lastError_ = "Flash used not where expected";
    watch_.FlashMissing();
}

void PhaseEnvelopeParser::TellNoMoreEnvelopes() {
    lastError_ = "No more envelopes found";
    if (plots_.empty()) {
        watch_.NoEnvelope();
    }
}

void PhaseEnvelopeParser::TellHeadingsMissing() {
    lastError_ = "Column headings not found";
    watch_.HeadingsMissing();
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
    if (isWatched_) {
        watch_.Headings(ptLines_);
    }
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
            watch_.OpenHeading();
            // Callers know this text; standard libraries each have one of their own.
            throw std::out_of_range("invalid string position");
        }
        begin = headings.find_first_of(numberBegins, end);
    }
}

// A row fills the columns down to its last separator. A cell without a number adds nothing, so
// what stands below it moves up.
void PhaseEnvelopeParser::ReadRow() {
    if (isWatched_) {
        watch_.Row();
    }
    const std::string_view line = *lines_.Line();
    const char* position = line.data();
    const char* const end = position + line.size();
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        while (position != end && *position != separator_ && !BeginsNumber(*position)) {
            ++position;
        }
        const bool hasNumber = position != end && *position != separator_;
        double number = 0.0;
        if (hasNumber) {
            std::string_view rest(position, static_cast<std::size_t>(end - position));
            number = TakeLeadingDecimal(rest); // no number goes on behind a separator
            position = std::find(rest.data(), end, separator_);
        }
        if (position == end) {
            lastError_ = "Error in column " + std::to_string(column);
            return;
        }
        if (hasNumber) {
            columns_[column].push_back(number);
        }
        ++position;
    }
}

void PhaseEnvelopeParser::FinishEnvelope() {
    if (isWatched_) {
        watch_.EndBlock();
    }
    CommonPlottingObject plot(AxisType::Temperature, AxisType::Pressure);
    auto column = columns_.begin();
    for (PTline& line : ptLines_) {
        std::vector<double> temperatures = std::move(*column++);
        std::vector<double> pressures = std::move(*column++);
        line.SetLine(std::move(pressures), std::move(temperatures));
        plot.AddLine(ToLine(std::move(line)));
    }
    plots_.push_back(std::move(plot));
}

} // namespace Orv::FluidBench::Impl::IO
