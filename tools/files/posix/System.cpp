// What Descriptor.h declares, on POSIX systems.
#include "Descriptor.h"
#include "TextFile.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace FluidBenchTool {

const char* const temporaryFolderVariable = "TMPDIR";

namespace {

constexpr mode_t rightsOfNewFiles = 0666; // less what the user's mask takes

template <typename Operation>
auto AgainWhenInterrupted(Operation operation) noexcept {
    auto result = operation();
    while (result < 0 && errno == EINTR) {
        result = operation();
    }
    return result;
}

int Open(const std::string& path, int how, mode_t rights = 0) noexcept {
    return AgainWhenInterrupted([&] { return ::open(path.c_str(), how | O_CLOEXEC, rights); });
}

int ErrorOf(int result) noexcept {
    return result == 0 ? 0 : errno;
}

} // namespace

int Descriptor::Close() noexcept {
    const int number = std::exchange(number_, -1);
    return number < 0 ? 0 : ErrorOf(::close(number)); // closed in any case: never to be repeated
}

std::vector<std::string> WordsOf(int argumentCount, char** arguments) {
    return {arguments + std::min(argumentCount, 1), arguments + argumentCount};
}

void PrepareStreams() noexcept {
    for (const int number : {Streams::input, Streams::output, Streams::error}) {
        if (::fcntl(number, F_GETFD) == -1 && errno == EBADF) {
            // The lowest free number is this one.
            ::open("/dev/null", number == Streams::input ? O_WRONLY : O_RDONLY);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

bool IsTerminal(int descriptor) noexcept {
    return ::isatty(descriptor) == 1;
}

Descriptor OpenExisting(const std::string& path) {
    return Descriptor(Open(path, O_WRONLY));
}

Descriptor MakeBeside(const std::string& path, std::string& name) {
    constexpr int tries = 100;
    const auto place = Orv::Text::PathOf(path);
    const std::string begin = '.' + place.filename().string().substr(0, 200) + ".part-" +
                              std::to_string(::getpid()) + '-';
    Descriptor file;
    for (int i = 0; i < tries && !file.IsOpen(); ++i) {
        name = (place.parent_path() / (begin + std::to_string(i))).string();
        file = Descriptor(Open(name, O_WRONLY | O_CREAT | O_EXCL, rightsOfNewFiles));
        if (!file.IsOpen() && errno != EEXIST) {
            break;
        }
    }
    return file;
}

Descriptor MakeTemporary(const std::string& folder, std::string& name) {
    name = folder + "/.fluidbench-io-XXXXXX";
    return Descriptor(::mkstemp(name.data()));
}

std::string Unname(const Descriptor& file, const std::string& name) {
    Remove(name);
    return "/dev/fd/" + std::to_string(file.Number());
}

void Remove(const std::string& path) noexcept {
    ::unlink(path.c_str());
}

void CopyRights(const std::string& path, const Descriptor& to) noexcept {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return;
    }
    // Only the superuser gives files away; whoever else fails here owns the new file. The rights go
    // last, since a change of owner takes some of them.
    if (::fchown(to.Number(), status.st_uid, status.st_gid) != 0) {
        status.st_mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    }
    ::fchmod(to.Number(), status.st_mode & 07777U);
}

bool MayBeWritten(const std::string& path) noexcept {
    return ::access(path.c_str(), W_OK) == 0;
}

int MakeDurable(const Descriptor& file) noexcept {
    const int result = AgainWhenInterrupted([&] { return ::fsync(file.Number()); });
    return result != 0 && errno != EINVAL && errno != ENOTSUP ? errno : 0;
}

int Replace(const std::string& from, const std::string& to) noexcept {
    const int error = ErrorOf(std::rename(from.c_str(), to.c_str()));
    if (error == 0) {
        // The new name is on the disk when its folder is. What fails here changes nothing any more.
        const std::size_t slash = to.rfind('/');
        const Descriptor folder(Open(slash == std::string::npos ? "." : to.substr(0, slash + 1),
                                     O_RDONLY | O_DIRECTORY));
        if (folder.IsOpen()) {
            MakeDurable(folder);
        }
    }
    return error;
}

std::ptrdiff_t ReadSome(int descriptor, char* to, std::size_t most) noexcept {
    return AgainWhenInterrupted([&] { return ::read(descriptor, to, most); });
}

std::ptrdiff_t WriteSome(int descriptor, const char* from, std::size_t most) noexcept {
    return AgainWhenInterrupted([&] { return ::write(descriptor, from, most); });
}

} // namespace FluidBenchTool
