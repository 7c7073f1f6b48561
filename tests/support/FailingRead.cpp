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
    std::string endOfPath;
    std::size_t behind = 0;
};

Failure FromEnvironment() {
    const char* const text = std::getenv("FAILING_READ");
    if (text == nullptr) {
        return {};
    }
    char* colon = nullptr;
    const std::size_t behind = std::strtoull(text, &colon, 10);
    return {*colon == ':' ? colon + 1 : "", behind};
}

// Programs read before the constructors of this library's globals have run.
Failure& TheFailure() {
    static Failure failure = FromEnvironment();
    return failure;
}

bool IsOf(int file, const std::string& endOfPath) {
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), path.data(), path.size());
    return length > 0 &&
           std::string_view(path.data(), static_cast<std::size_t>(length)).ends_with(endOfPath);
}

} // namespace

void FailReads(const std::string& endOfPath, std::size_t behind) {
    TheFailure() = {endOfPath, behind};
}

} // namespace FluidBenchTest

extern "C" __attribute__((visibility("default"))) ssize_t read(int file, void* buffer,
                                                               std::size_t count) {
    using Read = ssize_t (*)(int, void*, std::size_t);
    static const auto next = reinterpret_cast<Read>(dlsym(RTLD_NEXT, "read"));
    const auto& [endOfPath, behind] = FluidBenchTest::TheFailure();
    if (!endOfPath.empty() && FluidBenchTest::IsOf(file, endOfPath)) {
        const off_t position = lseek(file, 0, SEEK_CUR);
        if (position >= static_cast<off_t>(behind)) {
            errno = EIO;
            return -1;
        }
        count = std::min(count, behind - static_cast<std::size_t>(position));
    }
    return next(file, buffer, count);
}
