// The text of a stream, block by block: what every reader stands on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace Orv::Text {

/// What a text looks like, from its first block.
enum class TextKind {
    Plain,
    Utf16,           ///< two bytes a character, with or without a mark that says so
    Utf32,           ///< four bytes a character
    CarriageReturns, ///< lines that end in carriage returns alone
};

/// What a person does about a text that isn't plain: "expected ..., found ...: save ...", as the
/// middle of a sentence. Empty for plain text.
std::string WhatIsOdd(TextKind kind);

/// A position in a text that moves forward, with the text behind it. What is ahead lies in one
/// piece of memory, as much of it as was asked for; what was passed is forgotten, so that the
/// object's size depends on the longest piece that somebody asked for, not on the text's.
///
/// A byte order mark at the head of the text is passed over. The stream belongs to the caller and
/// outlives the object, which reads ahead of what it gives. Its exception mask stays as it is and
/// plays no part: what the mask would have thrown, `HasFailed` says. One thread at a time.
class TextInput {
public:
    explicit TextInput(std::istream& stream) : stream_(&stream) {}

    /// What is ahead of the position; empty at the end of the text only, or where reading failed.
    /// Valid until the next call of an operation that isn't const.
    std::string_view Ahead() {
        if (begin_ == end_) {
            ReadBlock();
        }
        return {buffer_.data() + begin_, end_ - begin_};
    }

    /// The same with another block behind it; not longer than before when the text has ended.
    std::string_view MoreAhead() {
        ReadBlock();
        return {buffer_.data() + begin_, end_ - begin_};
    }

    /// Passes that many of the characters ahead.
    void Pass(std::size_t count) noexcept { begin_ += count; }

    /// Bytes ahead of the position, a byte order mark among them.
    std::uint64_t Offset() const noexcept { return offsetOfBuffer_ + begin_; }

    /// Goes to where `Offset` gave this value. Only for streams that can seek.
    void MoveTo(std::uint64_t offset);

    /// Whether a read failed: what looks like the end of the text isn't.
    /// A stream that had failed before anything was read counts as well.
    bool HasFailed() const noexcept { return hadFailed_ || stream_->bad(); }

    /// What the first block looks like; reads it if it wasn't read.
    TextKind Kind();

private:
    void ReadBlock();
    std::size_t ReadInto(char* place, std::size_t size);

    std::istream* stream_;
    std::vector<char> buffer_;
    std::uint64_t offsetOfBuffer_ = 0;
    std::size_t begin_ = 0; // of what is ahead
    std::size_t end_ = 0;
    bool hasBegun_ = false;
    bool hadFailed_ = false; // the stream, when it came
    TextKind kind_ = TextKind::Plain;
};

} // namespace Orv::Text
