#include "TextInput.h"

#include "TextFile.h"

#include <algorithm>
#include <cstring>

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
    stream_->seekg(static_cast<std::streamoff>(offset));
    begin_ = end_ = 0;
    offsetOfBuffer_ = offset;
    hasBegun_ = true;
}

TextKind TextInput::Kind() {
    Ahead();
    return kind_;
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
        return;
    }
    if (buffer_.size() < kept + blockSize) {
        buffer_.resize(std::max(2 * blockSize, 2 * buffer_.size()));
    }
    stream_->read(buffer_.data() + kept, static_cast<std::streamsize>(buffer_.size() - kept));
    end_ = kept + static_cast<std::size_t>(stream_->gcount());
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
