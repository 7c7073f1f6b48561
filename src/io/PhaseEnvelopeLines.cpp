#include "PhaseEnvelopeLines.h"

#include "Quote.h"

namespace Orv::FluidBench::Impl::IO {

EnvelopeLines::EnvelopeLines(std::istream& text, Diagnostics& diagnostics)
    : diagnostics_(diagnostics),
      reader_(text, longestLine, Text::LineReader::LongLine::CutAndEnds) {
    TellOddText(diagnostics_, reader_.Kind());
    std::string_view line;
    while (headSize_ < head_.size() && ReadLine(line)) {
        head_[headSize_++] = line;
    }
    Advance();
}

bool EnvelopeLines::ReadLine(std::string_view& line) {
    if (!reader_.Next(line)) {
        if (reader_.HasFailed()) {
            TellReadFailed(diagnostics_, reader_.Number());
        }
        return false;
    }
    if (reader_.IsCut()) {
        diagnostics_.Tell(EnvelopeKinds::lineTooLong, reader_.Number(),
                          "Expected a line of no more than " + std::to_string(longestLine) +
                              " characters, found a longer one: what is behind them isn't read, "
                              "and none of the lines below is.");
    }
    return true;
}

std::optional<char> EnvelopeLines::Separator() {
    constexpr std::size_t shortestLetterLine = 4; // "T,P,"
    const std::string& letters = head_.back();
    if (letters.size() < shortestLetterLine || (letters[1] != ',' && letters[1] != '\t')) {
        if (reader_.HasFailed()) { // which was told
            return std::nullopt;
        }
        diagnostics_.Tell(EnvelopeKinds::noSeparator, headSize_,
                          "Expected 'T,P,T,P,T,P,' or the like as the sixth line, whose second "
                          "character, a comma or a tab, tells the separator; found " +
                              (headSize_ < head_.size()
                                   ? "no more than " + std::to_string(headSize_) + " lines"
                                   : Text::Quote(letters)) +
                              ".");
        return std::nullopt;
    }
    return letters[1];
}

void EnvelopeLines::Advance() {
    std::string_view line;
    if (headTaken_ < headSize_) {
        line_ = head_[headTaken_++];
    } else if (headSize_ == head_.size() && ReadLine(line)) {
        line_ = line;
    } else {
        line_.reset();
    }
}

} // namespace Orv::FluidBench::Impl::IO
