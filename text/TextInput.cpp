#include "TextInput.h"

#include "TextFile.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <fstream>

namespace Orv::Text {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// Text for Latin letters has a zero in every other byte of UTF-16; no other text has zeros at all.
bool LooksLikeUtf16(std::string_view text) {
    constexpr std::size_t enough = 64;
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        return true;
    }
    const std::string_view head = text.substr(0, enough);
    const auto zeros = static_cast<std::size_t>(std::ranges::count(head, '\0'));
    return head.size() >= 4 && 3 * zeros > head.size() && 3 * zeros < 2 * head.size();
}

// Three zeros to a character of four bytes, which also begin a mark of that kind.
bool LooksLikeUtf32(std::string_view text) {
    using namespace std::string_view_literals;
    constexpr std::size_t enough = 64;
    if (text.starts_with("\xFF\xFE\0\0"sv) || text.starts_with("\0\0\xFE\xFF"sv)) {
        return true;
    }
    const std::string_view head = text.substr(0, std::min(enough, text.size() / 4 * 4));
    for (std::size_t i = 0; i < head.size(); i += 4) {
        const std::string_view character = head.substr(i, 4);
        if (std::ranges::count(character, '\0') != 3 ||
            (character.front() == '\0') == (character.back() == '\0')) {
            return false;
        }
    }
    return !head.empty();
}

TextKind KindOf(std::string_view text) {
    if (LooksLikeUtf32(text)) {
        return TextKind::Utf32;
    }
    if (LooksLikeUtf16(text)) {
        return TextKind::Utf16;
    }
    const bool hasOddLineEnds =
        text.find('\n') == std::string_view::npos &&
        text.substr(0, text.size() - 1).find('\r') != std::string_view::npos;
    return !text.empty() && hasOddLineEnds ? TextKind::CarriageReturns : TextKind::Plain;
}

// Calls an operation on a stream. What it throws because of the stream's exception mask is in the
// stream's state as well.
template <typename Operation>
void Quietly(Operation operation) {
    try {
        operation();
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace

std::string WhatIsOdd(TextKind kind) {
    constexpr const char* encoding = "expected text in UTF-8 or ASCII, found what looks like ";
    switch (kind) {
    case TextKind::Plain:
        break;
    case TextKind::Utf16:
        return std::string(encoding) + "UTF-16: save the file as UTF-8";
    case TextKind::Utf32:
        return std::string(encoding) + "UTF-32: save the file as UTF-8";
    case TextKind::CarriageReturns:
        return "expected lines that end in newlines, found carriage returns alone: save the file "
               "with other line ends";
    }
    return {};
}

void TextInput::MoveTo(std::uint64_t offset) {
    stream_->clear();
    Quietly([&] { stream_->seekg(static_cast<std::streamoff>(offset)); });
    begin_ = end_ = 0;
    offsetOfBuffer_ = offset;
    hasBegun_ = true;
}

TextKind TextInput::Kind() {
    Ahead();
    return kind_;
}

// A file gives a whole block at once. Of any other buffer that throws nobody knows what it gave
// before, so it is asked for no more than it has at a time.
std::size_t TextInput::ReadInto(char* place, std::size_t size) {
    const bool isFile = dynamic_cast<const std::filebuf*>(stream_->rdbuf()) != nullptr;
    std::size_t count = 0;
    while (count < size && stream_->good()) {
        auto wanted = static_cast<std::streamsize>(size - count);
        Quietly([&] {
            if (!isFile && stream_->peek() != std::char_traits<char>::eof()) {
                const std::streamsize there = stream_->rdbuf()->in_avail();
                wanted = there > 0 ? std::min(there, wanted) : wanted;
            }
        });
        if (stream_->good()) {
            Quietly([&] { stream_->read(place + count, wanted); });
            count += static_cast<std::size_t>(stream_->gcount());
        }
    }
    return count;
}

// Keeps what is ahead, in front of the buffer, and reads behind it.
void TextInput::ReadBlock() {
    const std::size_t kept = end_ - begin_;
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, kept);
        offsetOfBuffer_ += begin_;
        begin_ = 0;
        end_ = kept;
    }
    if (!stream_->good()) {
        hadFailed_ = hadFailed_ || (!hasBegun_ && stream_->fail());
        return;
    }
    if (buffer_.size() < kept + blockSize) {
        buffer_.resize(std::max(2 * blockSize, 2 * buffer_.size()));
    }
    end_ = kept + ReadInto(buffer_.data() + kept, buffer_.size() - kept);
    if (!hasBegun_) {
        hasBegun_ = true;
        const std::string_view head(buffer_.data(), end_);
        kind_ = KindOf(head);
        if (head.starts_with(byteOrderMark)) {
            begin_ = byteOrderMark.size();
        }
    }
}

} // namespace Orv::Text
