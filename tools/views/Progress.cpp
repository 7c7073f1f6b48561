#include "Progress.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <system_error>
#include <thread>

namespace FluidBenchTool {

struct Progress::Clock {
    std::mutex mutex;
    std::condition_variable_any isOver;
    std::jthread thread; // last, so that it is stopped and joined first
};

namespace {

using namespace std::chrono_literals;

constexpr auto untilShown = 2s;
constexpr auto betweenLines = 1s;

} // namespace

Progress::Progress(Messages& messages, const std::string& work) {
    if (!messages.IsOnTerminal()) {
        return;
    }
    clock_ = std::make_unique<Clock>();
    try {
        clock_->thread =
            std::jthread([&messages, work, clock = clock_.get()](const std::stop_token& stop) {
                auto passed = untilShown;
                std::unique_lock lock(clock->mutex);
                clock->isOver.wait_for(lock, stop, untilShown, [] { return false; });
                while (!stop.stop_requested()) {
                    messages.ShowLine(work + " ... " + std::to_string(passed.count()) + " s");
                    passed += betweenLines;
                    clock->isOver.wait_for(lock, stop, betweenLines, [] { return false; });
                }
                messages.HideLine();
            });
    } catch (const std::system_error&) {
        clock_.reset(); // no thread to be had: the work goes on without
    }
}

Progress::~Progress() = default;

} // namespace FluidBenchTool
