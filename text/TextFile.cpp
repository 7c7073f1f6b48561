#include "TextFile.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <locale>
#include <system_error>

namespace Orv::Text {

std::ofstream OpenForWriting(const std::string& fileName, std::span<char> buffer) {
    std::ofstream file;
    file.imbue(std::locale::classic());
    if (!buffer.empty()) { // an open file doesn't take another buffer
        file.rdbuf()->pubsetbuf(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    }
    file.open(fileName, std::ios_base::out | std::ios_base::trunc);
    return file;
}

bool IsRegularFile(const std::string& fileName) {
    std::error_code error;
    return std::filesystem::is_regular_file(fileName, error);
}

std::ifstream OpenForReading(const std::string& fileName) {
    std::ifstream file;
    file.imbue(std::locale::classic());
    // Some systems open a folder like a file and fail only when it is read.
    std::error_code error;
    if (!std::filesystem::is_directory(fileName, error)) {
        file.open(fileName);
    }
    return file;
}

LineReader::LineReader(const std::string& fileName, std::size_t longestLine, BehindCut behindCut)
    : file_(OpenForReading(fileName)),
      longestLine_(longestLine),
      behindCut_(behindCut),
      isDone_(!file_.is_open()) {}

bool LineReader::Next(std::string_view& line) {
    if (isInsideCutLine_) {
        SkipRestOfLine();
    }
    std::size_t searched = 0; // characters known to hold no newline
    while (!isDone_) {
        const char* const data = buffer_.data() + begin_;
        const std::size_t available = end_ - begin_;
        const void* const newline = available > searched
                                        ? std::memchr(data + searched, '\n', available - searched)
                                        : nullptr;
        if (newline != nullptr) {
            const auto length = static_cast<std::size_t>(static_cast<const char*>(newline) - data);
            line = Take(length, 1);
            return true;
        }
        // One character more than the longest line may still be the carriage return of its end.
        if (fileEnded_ || available > longestLine_ + 1) {
            line = Take(available, 0);
            isInsideCutLine_ = !fileEnded_ && behindCut_ == BehindCut::NextLine;
            isDone_ = !isInsideCutLine_;
            return true;
        }
        searched = available;
        ReadBlock();
    }
    return false;
}

void LineReader::SkipRestOfLine() {
    isInsideCutLine_ = false;
    for (;;) {
        const std::size_t available = end_ - begin_;
        const char* const data = buffer_.data() + begin_;
        const void* const newline = std::memchr(data, '\n', available);
        if (newline != nullptr) {
            begin_ += static_cast<std::size_t>(static_cast<const char*>(newline) - data) + 1;
            return;
        }
        begin_ = end_;
        if (fileEnded_) {
            isDone_ = true;
            return;
        }
        ReadBlock();
    }
}

// Keeps what wasn't given yet, in front, and reads behind it.
void LineReader::ReadBlock() {
    const std::size_t kept = end_ - begin_;
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, kept);
        begin_ = 0;
        end_ = kept;
    }
    if (buffer_.size() - kept < blockSize) {
        buffer_.resize(std::max(2 * buffer_.size(), 2 * blockSize));
    }
    file_.read(buffer_.data() + kept, static_cast<std::streamsize>(buffer_.size() - kept));
    end_ = kept + static_cast<std::size_t>(file_.gcount());
    fileEnded_ = !file_.good();
}

std::string_view LineReader::Take(std::size_t length, std::size_t lineEnd) {
    std::string_view line(buffer_.data() + begin_, length);
    begin_ += length + lineEnd;
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    if (line.size() > longestLine_) {
        line = line.substr(0, longestLine_);
        isDone_ = behindCut_ == BehindCut::Nothing;
    }
    return line;
}

} // namespace Orv::Text
