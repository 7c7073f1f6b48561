#include "LineReader.h"

#include <cstring>

namespace Orv::Text {

LineReader::LineReader(std::istream& stream, std::size_t longestLine, LongLine longLine)
    : input_(stream), longestLine_(longestLine), longLine_(longLine) {}

bool LineReader::Next(std::string_view& line) {
    if (endsInsideLine_ && !isDone_) {
        PassRestOfLine();
    }
    if (isDone_) {
        return false;
    }
    std::string_view ahead = input_.Ahead();
    std::size_t searched = 0; // characters known to hold no newline
    for (;;) {
        const void* const newline =
            ahead.size() > searched
                ? std::memchr(ahead.data() + searched, '\n', ahead.size() - searched)
                : nullptr;
        if (newline != nullptr) {
            const auto length =
                static_cast<std::size_t>(static_cast<const char*>(newline) - ahead.data());
            return Give(line, ahead.substr(0, length), 1);
        }
        // One character more than the longest line may still be the carriage return of its end.
        if (ahead.size() > longestLine_ + 1) {
            endsInsideLine_ = true;
            return Give(line, ahead, 0);
        }
        searched = ahead.size();
        ahead = input_.MoreAhead();
        if (ahead.size() == searched) {
            isDone_ = true;
            return !input_.HasFailed() && Give(line, ahead, 0);
        }
    }
}

bool LineReader::Give(std::string_view& line, std::string_view text, std::size_t lineEnd) {
    input_.Pass(text.size() + lineEnd);
    ++number_;
    if (text.ends_with('\r')) {
        text.remove_suffix(1);
    }
    isCut_ = text.size() > longestLine_;
    if (isCut_) {
        text = text.substr(0, longestLine_);
        isDone_ = isDone_ || longLine_ != LongLine::Cut;
    }
    line = text;
    return !isCut_ || longLine_ != LongLine::Ends;
}

void LineReader::PassRestOfLine() {
    endsInsideLine_ = false;
    for (std::string_view ahead = input_.Ahead(); !ahead.empty(); ahead = input_.Ahead()) {
        const std::size_t newline = ahead.find('\n');
        if (newline != std::string_view::npos) {
            input_.Pass(newline + 1);
            return;
        }
        input_.Pass(ahead.size());
    }
    isDone_ = true;
}

} // namespace Orv::Text
