#include "Descriptor.h"

#include "TextFile.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace FluidBenchTool {

Descriptor::~Descriptor() {
    Close();
}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    if (this != &other) {
        Close();
        number_ = std::exchange(other.number_, -1);
    }
    return *this;
}

std::string ReasonOf(int error) {
    return std::generic_category().message(error);
}

DescriptorBuffer::DescriptorBuffer(int descriptor)
    : descriptor_(descriptor), buffer_(Orv::Text::blockSize) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
}

int DescriptorBuffer::Finish() noexcept {
    const char* from = pbase();
    while (error_ == 0 && from != pptr()) {
        const auto count = static_cast<std::size_t>(pptr() - from);
        const std::ptrdiff_t written = WriteSome(descriptor_, from, count);
        if (written < 0) {
            error_ = errno;
        } else {
            from += written;
        }
    }
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    return error_;
}

DescriptorBuffer::int_type DescriptorBuffer::overflow(int_type character) {
    if (Finish() != 0) {
        return traits_type::eof();
    }
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(character);
        pbump(1);
    }
    return traits_type::not_eof(character);
}

int DescriptorBuffer::sync() {
    return error_ == 0 ? 0 : -1;
}

} // namespace FluidBenchTool
