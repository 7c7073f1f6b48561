// Threads that write and read at once, each with objects of its own, don't meet in the library.
#include "PublicOperations.h"
#include "TestSupport.h"

#include <sstream>
#include <thread>

using namespace FluidBenchTest;

namespace {

// What all operations write and read.
std::string AllOperations() {
    std::ostringstream all;
    for (const WriteOperation& each : WriteOperations()) {
        all << each.name << each.toStream(all).HasErrors() << '\n';
    }
    for (const ReadOperation& each : ReadOperations()) {
        const Reading reading = each.make();
        all << each.name << reading.read() << '\n' << reading.text() << '\n';
    }
    return all.str();
}

} // namespace

TEST(Threads, WithTheirOwnObjectsDoNotMeet) {
    const std::string expected = AllOperations();
    std::vector<std::string> found(8);
    std::vector<std::thread> threads;
    for (std::string& all : found) {
        threads.emplace_back([&] { all = AllOperations(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const std::string& all : found) {
        EXPECT_EQ(all, expected);
    }
}
