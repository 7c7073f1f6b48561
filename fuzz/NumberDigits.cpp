// Number text against the standard library, for a great many numbers: each is written in every
// notation and precision that a format uses, and in a random one, and has to come out as
// std::to_chars writes it. The text in the random one is read, too, and has to give what
// std::from_chars reads.
//
//     NumberDigits --runs=1000000000 --seed=7
//
// ends with 0 after that many numbers, or with 1 at the first one that differs.
#include "NumberDigits.h"
#include "NumberText.h"

#include <bit>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <string_view>

namespace {

using namespace Orv::Text;
using Clock = std::chrono::steady_clock;

constexpr auto fixed = std::chars_format::fixed;
constexpr auto general = std::chars_format::general;
constexpr auto scientific = std::chars_format::scientific;

// What the formats use, and the precision that a stream has when nobody set it.
constexpr NumberFormat formats[] = {{fixed, 4},      {fixed, 6},       {fixed, 8},
                                    {fixed, 15},     {fixed, 16},      {general, 6},
                                    {general, 10},   {general, 16},    {scientific, 6},
                                    {scientific, 8}, {scientific, 15}, {scientific, 16}};

// Numbers of all kinds, the same ones for the same seed.
class Numbers {
public:
    explicit Numbers(std::uint64_t seed) : random_(seed) {}

    double Next() {
        const double number = Magnitude();
        return random_() % 2 == 0 ? number : -number;
    }
    NumberFormat AnyFormat() {
        constexpr std::chars_format notations[] = {fixed, general, scientific};
        return {notations[random_() % 3], Between(0, 20)};
    }

private:
    double Magnitude() {
        constexpr double leastSubnormal = std::numeric_limits<double>::denorm_min();
        switch (kind_++ % 8) {
        case 0: // any bits
            return std::bit_cast<double>(random_());
        case 1: // a decimal of any length, the point anywhere
            return Decimal(Between(1, 19)) / std::pow(10.0, Between(0, 22));
        case 2: // few binary digits behind the point: a tie for one decimal less
            return std::ldexp(Whole(Between(1, 53)), -Between(1, 21));
        case 3: // a five behind all digits that count: a tie in general notation
            return (Decimal(Between(1, 14)) * 10.0 + 5.0) * std::pow(10.0, Between(0, 5));
        case 4:
            return Neighbour(std::ldexp(1.0, Between(-1074, 1023)));
        case 5:
            return Neighbour(std::pow(10.0, Between(-40, 30)));
        case 6: // tiny, or huge
            return random_() % 2 == 0 ? Whole(Between(1, 52)) * leastSubnormal
                                      : std::ldexp(Whole(53), Between(0, 970));
        default: // any size that a file may have
            return Whole(53) * 0x1p-53 * std::pow(10.0, Between(-12, 12));
        }
    }

    int Between(int least, int most) {
        return least + static_cast<int>(random_() % static_cast<std::uint64_t>(most - least + 1));
    }
    double Whole(int bits) { return static_cast<double>(random_() >> (64 - bits)); }
    double Decimal(int digits) { return std::floor(Whole(63) * 0x1p-63 * std::pow(10.0, digits)); }
    double Neighbour(double number) {
        return std::bit_cast<double>(std::bit_cast<std::uint64_t>(number) +
                                     static_cast<std::uint64_t>(Between(-3, 3)));
    }

    std::mt19937_64 random_;
    std::uint64_t kind_ = 0;
};

struct Counts {
    std::uint64_t texts = 0;
    std::uint64_t byArithmetic = 0; // of them
};

bool Fail(double value, NumberFormat format, std::string_view what, std::string_view ours,
          std::string_view theirs) {
    std::printf("%a (%.17g), notation %d, precision %d: %.*s '%.*s' in place of '%.*s'\n", value,
                value, static_cast<int>(format.notation), format.precision,
                static_cast<int>(what.size()), what.data(), static_cast<int>(ours.size()),
                ours.data(), static_cast<int>(theirs.size()), theirs.data());
    return false;
}

bool IsReadTheSame(double value, NumberFormat format, std::string_view text) {
    double theirs = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), theirs);
    double ours = 0.0;
    const bool isThere = ParseNumber(text, ours);
    const bool isNumber = error == std::errc() && std::isfinite(theirs);
    if (isThere != isNumber ||
        (isThere && std::bit_cast<std::uint64_t>(ours) != std::bit_cast<std::uint64_t>(theirs))) {
        return Fail(value, format, "reading gives", std::to_string(ours), text);
    }
    return true;
}

std::string_view ByStandardLibrary(char (&room)[512], double value, NumberFormat format) {
    const auto end =
        std::to_chars(room, room + sizeof room, value, format.notation, format.precision).ptr;
    return {room, static_cast<std::size_t>(end - room)};
}

bool IsWrittenTheSame(double value, NumberFormat format, Counts& counts) {
    char room[roomForDigits];
    const char* const end = WriteDigits(room, value, format.notation, format.precision);
    ++counts.texts;
    if (end == nullptr) {
        return true; // left to the standard library
    }
    ++counts.byArithmetic;
    char theirs[512];
    const std::string_view expected = ByStandardLibrary(theirs, value, format);
    const std::string_view text(room, static_cast<std::size_t>(end - room));
    return text == expected || Fail(value, format, "writing gives", text, expected);
}

bool IsTheSame(double value, NumberFormat another, Counts& counts) {
    for (const NumberFormat format : formats) {
        if (!IsWrittenTheSame(value, format, counts)) {
            return false;
        }
    }
    char text[512];
    return IsWrittenTheSame(value, another, counts) &&
           IsReadTheSame(value, another, ByStandardLibrary(text, value, another));
}

struct Options {
    std::uint64_t seed = 1;
    std::uint64_t runs = 1'000'000;
    std::uint64_t seconds = 0;
};

bool ReadOptions(int argumentCount, char** arguments, Options& options) {
    const std::pair<std::string_view, std::uint64_t*> names[] = {
        {"--seed=", &options.seed}, {"--runs=", &options.runs}, {"--seconds=", &options.seconds}};
    for (int i = 1; i < argumentCount; ++i) {
        const std::string_view argument = arguments[i];
        bool isKnown = false;
        for (const auto& [name, value] : names) {
            if (argument.starts_with(name)) {
                const auto count = ParseCount(argument.substr(name.size()));
                *value = count.value_or(0);
                isKnown = count.has_value();
            }
        }
        if (!isKnown) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argumentCount, char** arguments) {
    Options options;
    if (!ReadOptions(argumentCount, arguments, options)) {
        std::fputs("usage: NumberDigits [--seed=N] [--runs=N] [--seconds=N]\n", stderr);
        return 2;
    }
    constexpr std::uint64_t betweenLooksAtTheClock = 10'000;
    constexpr std::uint64_t betweenWords = 50'000'000;
    const auto end = Clock::now() + std::chrono::seconds(options.seconds);
    Numbers numbers(options.seed);
    Counts counts;
    std::uint64_t run = 0;
    for (; run < options.runs; ++run) {
        if (options.seconds > 0 && run % betweenLooksAtTheClock == 0 && Clock::now() > end) {
            break;
        }
        if (run > 0 && run % betweenWords == 0) {
            std::printf("%llu numbers\n", static_cast<unsigned long long>(run));
            std::fflush(stdout);
        }
        const double value = numbers.Next();
        if (!IsTheSame(value, numbers.AnyFormat(), counts)) {
            return 1;
        }
    }
    std::printf("%llu numbers in %llu texts, %llu of them by integer arithmetic: none differs\n",
                static_cast<unsigned long long>(run), static_cast<unsigned long long>(counts.texts),
                static_cast<unsigned long long>(counts.byArithmetic));
    return 0;
}
