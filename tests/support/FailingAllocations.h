// Memory that runs out on purpose. The source beside this header replaces operator new for the
// whole of a program and its shared libraries, so only programs that need it link it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <new>

namespace FluidBenchTest {

/// What comes behind an allocation that failed: memory again, or none for the rest of the attempt.
enum class Shortage { Once, FromThereOn };

/// One attempt, in which the allocation of a given number fails, counted from 1. Counts what the
/// thread that runs the operation allocates; the memory of other threads doesn't run out.
class FailingAllocations {
public:
    FailingAllocations(std::uint64_t number, Shortage shortage)
        : number_(number), shortage_(shortage) {}

    /// Runs the operation, with memory running out only meanwhile. False when it ended in
    /// `std::bad_alloc`; any other exception passes through.
    template <typename Operation>
    bool Run(Operation operation) {
        const InForce inForce(*this);
        try {
            operation();
        } catch (const std::bad_alloc&) {
            return false;
        }
        return true;
    }

    /// Whether an operation asked for the memory that wasn't there.
    bool HaveFailed() const noexcept { return count_ >= number_; }

    /// For operator new: whether this allocation has to fail.
    static bool NextFails() noexcept {
        if (current == nullptr) {
            return false;
        }
        const std::uint64_t count = ++current->count_;
        return count == current->number_ ||
               (count > current->number_ && current->shortage_ == Shortage::FromThereOn);
    }

private:
    struct InForce {
        explicit InForce(FailingAllocations& attempt) noexcept { current = &attempt; }
        ~InForce() { current = nullptr; }
        InForce(const InForce&) = delete;
        InForce& operator=(const InForce&) = delete;
    };

    static inline thread_local FailingAllocations* current = nullptr;

    std::uint64_t number_;
    Shortage shortage_;
    std::uint64_t count_ = 0;
};

/// Calls `attempt`, which takes a `FailingAllocations&` and has it run an operation, with one
/// allocation after another failing, until the operation needs no more than were tried; then the
/// same with all that follow failing as well. Gives the number of failures.
template <typename Attempt>
std::uint64_t ForEachAllocation(Attempt attempt) {
    std::uint64_t failures = 0;
    for (const Shortage shortage : {Shortage::Once, Shortage::FromThereOn}) {
        for (std::uint64_t number = 1;; ++number) {
            FailingAllocations memory(number, shortage);
            attempt(memory);
            if (!memory.HaveFailed()) {
                break;
            }
            ++failures;
        }
    }
    return failures;
}

} // namespace FluidBenchTest
