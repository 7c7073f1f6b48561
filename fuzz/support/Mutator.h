// Makes bad inputs out of good ones.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace FluidBenchFuzz {

/// Changes samples at the level of bytes, words and lines. Input i of a seed depends on the samples
/// and these two numbers alone, on every system.
class Mutator {
public:
    /// The readers read blocks of 128 KiB at first, so some inputs are a little longer.
    static constexpr std::size_t longestInput = std::size_t{132} * 1024;

    Mutator(std::vector<std::string> samples, std::uint64_t seed);

    /// The input of that number. The first ones are the samples themselves.
    std::string Make(std::uint64_t number);

    /// Changes a text in the same ways, by a number as well.
    std::string Change(std::string text, std::uint64_t number);

private:
    void Seed(std::uint64_t number);
    std::string ChangeSeveralTimes(std::string text);
    std::uint64_t Below(std::uint64_t bound);
    const std::string& AnySample();
    const std::string& AnyWord();

    void ChangeOnce(std::string& text);
    void ChangeBytes(std::string& text);
    void ChangeWord(std::string& text);
    void ChangeLines(std::string& text);
    void Lengthen(std::string& text);

    std::vector<std::string> samples_;
    std::vector<std::string> words_;
    std::uint64_t seed_;
    std::mt19937_64 random_;
};

} // namespace FluidBenchFuzz
