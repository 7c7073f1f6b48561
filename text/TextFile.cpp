#include "TextFile.h"

#include <cerrno>
#include <ios>
#include <locale>
#include <system_error>

namespace Orv::Text {

std::filesystem::path PathOf(const std::string& fileName) {
    return {std::u8string(fileName.begin(), fileName.end())};
}

std::string NameOf(const std::filesystem::path& path) {
    const std::u8string name = path.generic_u8string();
    return {name.begin(), name.end()};
}

std::ofstream OpenForWriting(const std::string& fileName, std::span<char> buffer) {
    std::ofstream file;
    file.imbue(std::locale::classic());
    if (!buffer.empty()) { // an open file doesn't take another buffer
        file.rdbuf()->pubsetbuf(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    }
    file.open(PathOf(fileName), std::ios_base::out | std::ios_base::trunc);
    return file;
}

bool IsRegularFile(const std::string& fileName) {
    std::error_code error;
    return std::filesystem::is_regular_file(PathOf(fileName), error);
}

std::ifstream OpenForReading(const std::string& fileName) {
    std::ifstream file;
    file.imbue(std::locale::classic());
    // Some systems open a folder like a file and fail only when it is read; a device may never end,
    // and a pipe may never begin.
    if (IsRegularFile(fileName)) {
        file.open(PathOf(fileName), std::ios_base::in | std::ios_base::binary);
    }
    return file;
}

std::string WhyNotReadable(const std::string& fileName) {
    const int reason = errno; // of the attempt to open it
    std::error_code error;
    const auto status = std::filesystem::status(PathOf(fileName), error);
    if (std::filesystem::is_directory(status)) {
        return "a folder";
    }
    if (!std::filesystem::exists(status)) {
        return status.type() == std::filesystem::file_type::not_found
                   ? "no file of that name"
                   : "a name that can't be looked up (" + error.message() + ")";
    }
    if (!std::filesystem::is_regular_file(status)) {
        return status.type() == std::filesystem::file_type::fifo
                   ? "a pipe, which isn't a regular file"
                   : "a device, which isn't a regular file";
    }
    return "a file that can't be opened" +
           (reason != 0 ? " (" + std::generic_category().message(reason) + ")" : std::string());
}

} // namespace Orv::Text
