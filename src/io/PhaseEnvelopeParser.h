// Reads phase envelope files line by line.
#pragma once

#include "FluidBench/Common/CommonPlottingObject.h"
#include "FluidBench/Common/PTline.h"
#include "PhaseEnvelopeLines.h"
#include "PhaseEnvelopeWatch.h"

#include <string>
#include <string_view>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// Walks the lines of one file, from state to state, and makes a plot of each block.
///
/// What a line means depends on the state alone; the units, letters and names that a block states
/// aren't looked at. Holds the columns of one block.
class PhaseEnvelopeParser {
public:
    /// `plots` is empty; all but the separator belong to the caller and outlive the parser.
    PhaseEnvelopeParser(EnvelopeLines& lines, char separator,
                        std::vector<Common::CommonPlottingObject>& plots, std::string& lastError,
                        Diagnostics& diagnostics);

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
    void PassOutsideBlock();
    void PassAheadOfHeadings();
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
    bool isWatched_;
    PhaseEnvelopeWatch watch_;

    std::vector<Common::PTline> ptLines_;      // of the envelope being read, still without points
    std::vector<std::vector<double>> columns_; // two for each of these lines: temperature, pressure
};

} // namespace Orv::FluidBench::Impl::IO
