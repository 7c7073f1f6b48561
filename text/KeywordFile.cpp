#include "KeywordFile.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <locale>
#include <stdexcept>
#include <system_error>

namespace Orv::Text {

namespace {

constexpr std::size_t blockSize = std::size_t{128} * 1024;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// A keyword file is read more than once and from the middle, which only a regular file allows. It
// also keeps away from what never ends.
std::ifstream Open(const std::string& name) {
    std::error_code error;
    const auto status = std::filesystem::status(name, error);
    if (!std::filesystem::exists(status)) {
        throw std::runtime_error("no file of that name");
    }
    if (!std::filesystem::is_regular_file(status)) {
        throw std::runtime_error(std::filesystem::is_directory(status) ? "a folder"
                                                                       : "no regular file");
    }
    std::ifstream file;
    file.imbue(std::locale::classic());
    file.open(name, std::ios_base::in | std::ios_base::binary);
    if (!file.is_open()) {
        throw std::runtime_error("a file that can't be opened");
    }
    return file;
}

} // namespace

KeywordFile::KeywordFile(const std::string& name) : name_(name), file_(Open(name)) {
    if (Ahead().starts_with(byteOrderMark)) {
        Pass(byteOrderMark.size());
    }
}

void KeywordFile::MoveTo(std::uint64_t offset, std::uint64_t line) {
    file_.clear();
    file_.seekg(static_cast<std::streamoff>(offset));
    begin_ = end_ = 0;
    offset_ = offset;
    line_ = line;
}

// Keeps what is ahead, in front of the buffer, and reads behind it.
void KeywordFile::ReadBlock() {
    const std::size_t kept = end_ - begin_;
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, kept);
        begin_ = 0;
        end_ = kept;
    }
    if (!file_.good()) {
        return;
    }
    if (buffer_.size() < kept + blockSize / 2) {
        buffer_.resize(std::max(blockSize, 2 * buffer_.size()));
    }
    file_.read(buffer_.data() + kept, static_cast<std::streamsize>(buffer_.size() - kept));
    end_ = kept + static_cast<std::size_t>(file_.gcount());
}

} // namespace Orv::Text
