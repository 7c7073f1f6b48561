// Opening text files and reading their lines: one way for every format of the library.
#pragma once

#include <cstddef>
#include <fstream>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orv::Text {

/// How much large files are read and written at once.
inline constexpr std::size_t blockSize = std::size_t{64} * 1024;

/// Opens a text file for writing, which empties an existing one. The stream is in the classic
/// locale whatever the program's global locale is. It isn't open where the file can't be written.
///
/// A writer of large files gives a buffer of `blockSize`, which makes fewer and larger writes of
/// its text than a stream's own; the buffer has to outlive the stream.
std::ofstream OpenForWriting(const std::string& fileName, std::span<char> buffer = {});

/// Whether there is a regular file of that name: not a folder, and not a pipe or a device, which
/// may never end or never begin.
bool IsRegularFile(const std::string& fileName);

/// Opens a text file for reading. The stream isn't open where the file is missing, unreadable or a
/// folder.
std::ifstream OpenForReading(const std::string& fileName);

/// Gives the lines of a text file, one after another, in blocks rather than character by character.
///
/// A line ends at a newline; a carriage return ahead of the newline belongs to the line end. A file
/// with n newlines has n + 1 lines, of which the last one may be empty: that is how many times
/// `while (stream) std::getline(stream, line)` runs. A file that isn't open has no lines.
///
/// The reader owns its file and holds one block and one line of it. Movable; one thread at a time.
class LineReader {
public:
    static constexpr std::size_t anyLength = std::numeric_limits<std::size_t>::max() - 2;

    /// What follows a line that is cut because it is too long.
    enum class BehindCut { Nothing, NextLine };

    /// Opens the file. A line of more than `longestLine` characters is cut there, and is the last
    /// one unless told otherwise.
    explicit LineReader(const std::string& fileName, std::size_t longestLine = anyLength,
                        BehindCut behindCut = BehindCut::Nothing);

    bool IsOpen() const { return file_.is_open(); }

    /// Gives the next line without its line end, or false when there is none. The line stays valid
    /// until the next call.
    bool Next(std::string_view& line);

private:
    void ReadBlock();
    void SkipRestOfLine();
    std::string_view Take(std::size_t length, std::size_t lineEnd);

    std::ifstream file_;
    std::size_t longestLine_;
    BehindCut behindCut_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0; // of what is in the buffer and wasn't given yet
    std::size_t end_ = 0;
    bool isInsideCutLine_ = false;
    bool fileEnded_ = false;
    bool isDone_ = false;
};

} // namespace Orv::Text
