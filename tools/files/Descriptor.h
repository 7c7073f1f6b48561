// Files as the operating system has them: what the standard library can't say or do. All that the
// program asks of the system by its own calls is in this module, one source a system: posix/ and
// windows/. Names of files are UTF-8.
#pragma once

#include <cstddef>
#include <streambuf>
#include <string>
#include <vector>

namespace FluidBenchTool {

/// Owns an open file of the system; closes it when it goes. Movable.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) noexcept : number_(number) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const noexcept { return number_ >= 0; }
    int Number() const noexcept { return number_; }
    /// Gives the error number of a close that failed, or 0.
    int Close() noexcept;

private:
    int number_ = -1;
};

/// The system's numbers of the standard streams.
namespace Streams {
inline constexpr int input = 0;
inline constexpr int output = 1;
inline constexpr int error = 2;
} // namespace Streams

/// The words of the command line behind the program's name, in UTF-8.
std::vector<std::string> WordsOf(int argumentCount, char** arguments);

/// To be called first: puts something that can neither be read nor written in the place of standard
/// streams that are closed, lest a file that is opened later gets their number; and has a write to
/// a pipe that nobody reads, or beyond a limit, fail rather than end the program, so that temporary
/// files go.
void PrepareStreams() noexcept;

bool IsTerminal(int descriptor) noexcept;

/// The variable of the environment that names the folder for temporary files.
extern const char* const temporaryFolderVariable;

/// Opens a file that is there for writing, as it is. Not open, with the reason in `errno`, where
/// that fails.
Descriptor OpenExisting(const std::string& path);
/// Makes a new file beside `path`, with a hidden name that leads back to it, which goes to `name`.
/// It has the rights that a new file gets. Not open, with the reason in `errno`, where that fails.
Descriptor MakeBeside(const std::string& path, std::string& name);
/// Makes a new file in a folder, for this user alone; its name goes to `name`. Its bytes are what
/// is written; those of the other files have the system's line ends for newlines.
Descriptor MakeTemporary(const std::string& folder, std::string& name);
/// Takes an open file its name, so that it goes with its last descriptor, whatever ends the
/// program. Gives the name by which it can be opened anew. A system that can't gives the old name.
std::string Unname(const Descriptor& file, const std::string& name);
void Remove(const std::string& path) noexcept;

/// Gives the file's rights and owner, as far as they may be given, to the open one.
void CopyRights(const std::string& path, const Descriptor& to) noexcept;
bool MayBeWritten(const std::string& path) noexcept;

/// Has the system put on the disk what was written. Gives an error number, or 0.
int MakeDurable(const Descriptor& file) noexcept;
/// Has one file take the place and name of another at once, or leaves both. Gives an error number,
/// or 0.
int Replace(const std::string& from, const std::string& to) noexcept;

/// Reads at most that many bytes. Gives how many there were, 0 at the end, and -1 with the reason
/// in `errno` where reading failed.
std::ptrdiff_t ReadSome(int descriptor, char* to, std::size_t most) noexcept;
/// Writes at most that many bytes. Gives how many were, and -1 with the reason in `errno`.
std::ptrdiff_t WriteSome(int descriptor, const char* from, std::size_t most) noexcept;

/// The system's words for an error number.
std::string ReasonOf(int error);

/// A stream's buffer in front of a descriptor, for writing. The first write that fails is
/// remembered with its error number; from then on nothing is written. A flush of the stream writes
/// nothing, as some formats flush at each line; `Finish` does. The descriptor is the caller's.
class DescriptorBuffer : public std::streambuf {
public:
    explicit DescriptorBuffer(int descriptor);

    /// Writes out what is in the buffer. Gives the error number of the first write that failed, or
    /// 0.
    int Finish() noexcept;

protected:
    int_type overflow(int_type character) override;
    int sync() override;

private:
    int descriptor_;
    int error_ = 0;
    std::vector<char> buffer_;
};

} // namespace FluidBenchTool
