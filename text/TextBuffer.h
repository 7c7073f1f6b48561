// Text on its way to a stream.
#pragma once

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string_view>
#include <vector>

namespace Orv::Text {

/// Characters put together one after another in memory that is used again: rows of a table cost no
/// allocation, and a number is written where it stays. Owns its memory.
class TextBuffer {
public:
    TextBuffer& operator+=(char character) {
        *Room(1) = character;
        ++size_;
        return *this;
    }
    TextBuffer& operator+=(std::string_view text) {
        text.copy(Room(text.size()), text.size());
        size_ += text.size();
        return *this;
    }
    /// As many of the character as are missing up to `size`; no change where nothing is missing.
    TextBuffer& FillTo(std::size_t size, char character);

    /// Room for so many characters behind the text, valid until the next change. What is written
    /// there becomes text by `EndAt` with the end of it.
    char* Room(std::size_t count) {
        if (room_.size() - size_ < count) {
            Grow(count);
        }
        return room_.data() + size_;
    }
    void EndAt(const char* end) noexcept { size_ = static_cast<std::size_t>(end - room_.data()); }

    std::size_t Size() const noexcept { return size_; }
    /// Valid until the next change.
    std::string_view View() const noexcept { return {room_.data(), size_}; }
    void Clear() noexcept { size_ = 0; }
    /// Drops what stands behind the first `size` characters.
    void CutTo(std::size_t size) noexcept { size_ = std::min(size, size_); }
    /// Puts `count` of the character ahead of what stands at `position`.
    void Insert(std::size_t position, std::size_t count, char character);

    /// Writes the text to the stream at once, whatever the stream's width, and is empty then.
    void WriteTo(std::ostream& out);

private:
    void Grow(std::size_t count);

    std::vector<char> room_;
    std::size_t size_ = 0;
};

} // namespace Orv::Text
