#include "TextBuffer.h"

#include <algorithm>
#include <utility>

namespace Orv::Text {

void TextBuffer::Grow(std::size_t count) {
    room_.resize(std::max(size_ + count, 2 * room_.size()));
}

TextBuffer& TextBuffer::FillTo(std::size_t size, char character) {
    if (size > size_) {
        std::fill_n(Room(size - size_), size - size_, character);
        size_ = size;
    }
    return *this;
}

void TextBuffer::Insert(std::size_t position, std::size_t count, char character) {
    Room(count);
    const auto where = room_.begin() + static_cast<std::ptrdiff_t>(position);
    const auto end = room_.begin() + static_cast<std::ptrdiff_t>(size_);
    std::move_backward(where, end, end + static_cast<std::ptrdiff_t>(count));
    std::fill_n(where, count, character);
    size_ += count;
}

void TextBuffer::WriteTo(std::ostream& out) {
    out.write(room_.data(), static_cast<std::streamsize>(std::exchange(size_, 0)));
}

} // namespace Orv::Text
