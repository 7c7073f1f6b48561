#include "FailingRead.h"

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <string_view>

namespace FluidBenchTest {

namespace {

struct Failure {
    std::string partOfPath;
    std::size_t behind = 0;
    int call = 0; // the one that fails, where it isn't a place
    int calls = 0;
};

Failure FromEnvironment() {
    const char* const text = std::getenv("FAILING_READ");
    if (text == nullptr) {
        return {};
    }
    char* colon = nullptr;
    const std::size_t behind = std::strtoull(text, &colon, 10);
    return {*colon == ':' ? colon + 1 : "", behind, 0, 0};
}

// Programs read before the constructors of this library's globals have run.
Failure& TheFailure() {
    static Failure failure = FromEnvironment();
    return failure;
}

bool IsOf(int file, const std::string& partOfPath) {
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), path.data(), path.size());
    return length > 0 &&
           std::string_view(path.data(), static_cast<std::size_t>(length)).find(partOfPath) !=
               std::string_view::npos;
}

} // namespace

void FailReads(const std::string& partOfPath, std::size_t behind) {
    TheFailure() = {partOfPath, behind, 0, 0};
}

int FailCall(const std::string& partOfPath, int call) {
    const int calls = TheFailure().calls;
    TheFailure() = {partOfPath, 0, call, 0};
    return calls;
}

namespace {

template <typename Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

off_t Seek(int file, off_t offset, int from) {
    static auto* const next = Next<off_t(int, off_t, int)>("lseek");
    return next(file, offset, from);
}

// Whether this call on a file that is to fail does.
bool FailsNow(Failure& failure) {
    return failure.call != 0 && ++failure.calls == failure.call;
}

} // namespace

} // namespace FluidBenchTest

using namespace FluidBenchTest;

extern "C" __attribute__((visibility("default"))) ssize_t read(int file, void* buffer,
                                                               std::size_t count) {
    static auto* const next = Next<ssize_t(int, void*, std::size_t)>("read");
    Failure& failure = TheFailure();
    if (!failure.partOfPath.empty() && IsOf(file, failure.partOfPath)) {
        const off_t position = Seek(file, 0, SEEK_CUR);
        const bool isPlace = failure.call == 0;
        if (FailsNow(failure) || (isPlace && position >= static_cast<off_t>(failure.behind))) {
            errno = EIO;
            return -1;
        }
        if (isPlace) {
            count = std::min(count, failure.behind - static_cast<std::size_t>(position));
        }
    }
    return next(file, buffer, count);
}

namespace {

off_t SeekUnlessFailing(int file, off_t offset, int from) {
    Failure& failure = TheFailure();
    if (failure.call != 0 && IsOf(file, failure.partOfPath) && FailsNow(failure)) {
        errno = EIO;
        return -1;
    }
    return Seek(file, offset, from);
}

} // namespace

extern "C" __attribute__((visibility("default"))) off_t lseek(int file, off_t offset, int from) {
    return SeekUnlessFailing(file, offset, from);
}
// The C++ library's name for the same.
extern "C" __attribute__((visibility("default"))) off_t lseek64(int file, off_t offset, int from) {
    return SeekUnlessFailing(file, offset, from);
}
