// The formatting state of a caller's stream.
#pragma once

#include <ios>
#include <ostream>

namespace Orv::Text {

/// Gives a stream the formatting of a new one, and puts back what it had when the object goes:
/// flags, precision, width and fill. The locale of a stream plays no part in what is written here.
class StreamFormat {
public:
    explicit StreamFormat(std::ostream& stream)
        : stream_(stream),
          flags_(stream.flags(std::ios_base::dec | std::ios_base::skipws)),
          precision_(stream.precision(6)),
          width_(stream.width(0)),
          fill_(stream.fill(' ')) {}
    ~StreamFormat() {
        stream_.flags(flags_);
        stream_.precision(precision_);
        stream_.width(width_);
        stream_.fill(fill_);
    }
    StreamFormat(const StreamFormat&) = delete;
    StreamFormat& operator=(const StreamFormat&) = delete;

private:
    std::ostream& stream_;
    std::ios_base::fmtflags flags_;
    std::streamsize precision_;
    std::streamsize width_;
    char fill_;
};

} // namespace Orv::Text
