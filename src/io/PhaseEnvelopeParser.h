// Reads phase envelope files line by line.
#pragma once

#include "FluidBench/Common/CommonPlottingObject.h"
#include "FluidBench/Common/PTline.h"
#include "LineReader.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// The lines of a file under a cursor that only moves ahead. Holds the lines down to the first
/// letter line, which tells the separator of the whole file, and of the others one at a time.
class EnvelopeLines {
public:
    /// Puts the cursor on the first line of the text, whose stream outlives the object. A line of
    /// more than 499 characters is cut there and is the last.
    explicit EnvelopeLines(std::istream& text);
    EnvelopeLines(const EnvelopeLines&) = delete; // the cursor points into the object
    EnvelopeLines& operator=(const EnvelopeLines&) = delete;

    /// The second character of the first letter line, if that is a comma or a tab.
    std::optional<char> Separator() const;

    /// The line under the cursor, valid until the cursor moves; none behind the last line.
    std::optional<std::string_view> Line() const { return line_; }
    void Advance();

private:
    static constexpr std::size_t longestLine = 499;
    static constexpr std::size_t linesToLetters = 6; // the letter line is the last of these

    Text::LineReader reader_;
    std::array<std::string, linesToLetters> head_;
    std::size_t headSize_ = 0;
    std::size_t headTaken_ = 0;
    std::optional<std::string_view> line_;
};

/// Walks the lines of one file, from state to state, and makes a plot of each block.
///
/// What a line means depends on the state alone; the units, letters and names that a block states
/// aren't looked at. Holds the columns of one block.
class PhaseEnvelopeParser {
public:
    /// `plots` is empty; it and `lastError` belong to the caller and outlive the parser.
    PhaseEnvelopeParser(EnvelopeLines& lines, char separator,
                        std::vector<Common::CommonPlottingObject>& plots, std::string& lastError);

    /// Appends the plots of the file, and sets the error whenever something is wrong. True when
    /// there is a plot and no block lacks its headings.
    bool Run();

private:
    enum class State { SeekingFlash, SeekingHeadings, SeekingData, ReadingRows, Ended, Failed };
    enum class Sight { NoLine, Bubble, Flash, Digit, Anything };
    enum class Cursor { Stays, Advances };
    struct Transition {
        State state;
        Sight sight;
        void (PhaseEnvelopeParser::*action)();
        Cursor cursor;
        State next;
    };

    const Transition& Next(State state) const;
    bool Shows(Sight sight) const;

    void PassOver() {}
    void TellFlashMissing();
    void TellNoMoreEnvelopes();
    void TellHeadingsMissing();
    void BeginEnvelope();
    void ReadHeadings();
    void ReadFractions(std::string_view headings);
    void ReadRow();
    void FinishEnvelope();

    EnvelopeLines& lines_;
    char separator_;
    std::vector<Common::CommonPlottingObject>& plots_;
    std::string& lastError_;

    std::vector<Common::PTline> ptLines_;      // of the envelope being read, still without points
    std::vector<std::vector<double>> columns_; // two for each of these lines: temperature, pressure
};

} // namespace Orv::FluidBench::Impl::IO
