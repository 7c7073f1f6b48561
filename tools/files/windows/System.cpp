// What Descriptor.h declares, on Windows. Descriptors are those of the C library, which writes a
// newline as CR LF to all of them but those that are opened for bytes.
#include "Descriptor.h"
#include "TextFile.h"

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include <shellapi.h> // needs windows.h ahead of it

namespace FluidBenchTool {

const char* const temporaryFolderVariable = "TMP";

namespace {

Descriptor Open(const std::string& path, int how) {
    int number = -1;
    const auto name = Orv::Text::PathOf(path);
    if (const int error = ::_wsopen_s(&number, name.c_str(), how | _O_WRONLY | _O_NOINHERIT,
                                      _SH_DENYNO, _S_IREAD | _S_IWRITE);
        error != 0) {
        errno = error;
    }
    return Descriptor(number);
}

// Makes a file that isn't there yet, with a name that begins so.
Descriptor MakeNew(const std::filesystem::path& begin, int how, std::string& name) {
    constexpr int tries = 100;
    const std::string start = Orv::Text::NameOf(begin) + std::to_string(::_getpid()) + '-';
    Descriptor file;
    for (int i = 0; i < tries && !file.IsOpen(); ++i) {
        name = start + std::to_string(i);
        file = Open(name, how | _O_CREAT | _O_EXCL);
        if (!file.IsOpen() && errno != EEXIST) {
            break;
        }
    }
    return file;
}

HANDLE HandleOf(int descriptor) noexcept {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the C library gives it as a number
    return reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor));
}

// The C library's number for the error that the system met last.
int LastError() noexcept {
    switch (const DWORD error = ::GetLastError(); error) {
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return EACCES;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return ENOENT;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ENOSPC;
    default:
        return EIO;
    }
}

} // namespace

std::vector<std::string> WordsOf(int /*argumentCount*/, char** /*arguments*/) {
    // Those of main() have lost what the machine's code page lacks.
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> words(
        ::CommandLineToArgvW(::GetCommandLineW(), &count), &::LocalFree);
    std::vector<std::string> result;
    for (int i = 1; words != nullptr && i < count; ++i) {
        const std::u8string word = std::filesystem::path(words.get()[i]).u8string();
        result.emplace_back(word.begin(), word.end());
    }
    return result;
}

int Descriptor::Close() noexcept {
    const int number = std::exchange(number_, -1);
    return number < 0 || ::_close(number) == 0 ? 0 : errno;
}

void PrepareStreams() noexcept {
    // The C library keeps the numbers of closed streams itself.
    ::_setmode(Streams::input, _O_BINARY);
    if (IsTerminal(Streams::output) || IsTerminal(Streams::error)) {
        static const UINT before = ::GetConsoleOutputCP();
        ::SetConsoleOutputCP(CP_UTF8);
        std::atexit([] { ::SetConsoleOutputCP(before); });
    }
    // The line of progress is cleared by a sequence that older consoles obey only when asked to.
    DWORD mode = 0;
    const HANDLE error = HandleOf(Streams::error);
    if (::GetConsoleMode(error, &mode) != 0) {
        ::SetConsoleMode(error, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
}

bool IsTerminal(int descriptor) noexcept {
    DWORD mode = 0; // which only consoles have; other devices pass for terminals elsewhere
    return ::GetConsoleMode(HandleOf(descriptor), &mode) != 0;
}

Descriptor OpenExisting(const std::string& path) {
    return Open(path, _O_TEXT);
}

Descriptor MakeBeside(const std::string& path, std::string& name) {
    const auto place = Orv::Text::PathOf(path);
    const auto begin = L'.' + place.filename().wstring().substr(0, 200) + L".part-";
    return MakeNew(place.parent_path() / begin, _O_TEXT, name);
}

Descriptor MakeTemporary(const std::string& folder, std::string& name) {
    return MakeNew(Orv::Text::PathOf(folder) / L".fluidbench-io-", _O_BINARY, name);
}

std::string Unname(const Descriptor& /*file*/, const std::string& name) {
    return name; // an open file keeps its name here
}

void Remove(const std::string& path) noexcept {
    std::error_code ignored;
    std::filesystem::remove(Orv::Text::PathOf(path), ignored);
}

void CopyRights(const std::string& /*path*/, const Descriptor& /*to*/) noexcept {
    // Files have the rights of their folder.
}

bool MayBeWritten(const std::string& path) noexcept {
    constexpr int writing = 2;
    return ::_waccess(Orv::Text::PathOf(path).c_str(), writing) == 0;
}

int MakeDurable(const Descriptor& file) noexcept {
    return ::FlushFileBuffers(HandleOf(file.Number())) != 0 ? 0 : LastError();
}

int Replace(const std::string& from, const std::string& to) noexcept {
    const BOOL isDone =
        ::MoveFileExW(Orv::Text::PathOf(from).c_str(), Orv::Text::PathOf(to).c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    return isDone != 0 ? 0 : LastError();
}

std::ptrdiff_t ReadSome(int descriptor, char* to, std::size_t most) noexcept {
    return ::_read(descriptor, to, static_cast<unsigned>(most));
}

std::ptrdiff_t WriteSome(int descriptor, const char* from, std::size_t most) noexcept {
    const int written = ::_write(descriptor, from, static_cast<unsigned>(most));
    if (written < 0 && errno == EINVAL) { // what the C library has no number for
        switch (_doserrno) {
        case ERROR_NO_DATA:
        case ERROR_PIPE_NOT_CONNECTED: // nobody reads on
            errno = EPIPE;
            break;
        case ERROR_SUCCESS: // a part was written, and the disk is full
            errno = ENOSPC;
            break;
        default:
            break;
        }
    }
    return written;
}

} // namespace FluidBenchTool
