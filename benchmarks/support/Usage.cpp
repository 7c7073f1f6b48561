#include "Usage.h"

#include <exception>
#include <stdexcept>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace FluidBenchBenchmark {

namespace {

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
}

} // namespace

Usage UsageOf(const std::function<void()>& operation) {
    const pid_t child = fork();
    if (child == 0) {
        try {
            operation();
        } catch (const std::exception&) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        throw std::runtime_error("An operation in a process of its own failed");
    }
    return {std::int64_t{usage.ru_maxrss} * 1024,
            Seconds(usage.ru_utime) + Seconds(usage.ru_stime)};
}

} // namespace FluidBenchBenchmark
