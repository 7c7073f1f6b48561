// Number text against the C++ streams and the C library, whose results it promises.
#include "NumberText.h"
#include "TestSupport.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <sstream>

using namespace Orv::Text;

namespace {

using Ios = std::ios_base;

struct Format {
    Ios::fmtflags flags;
    int precision;
    int width;
    char fill;
};

std::string Inserted(double value, const Format& format, bool byLibrary) {
    std::ostringstream stream;
    stream.imbue(byLibrary ? FluidBenchTest::ForeignLocale() : std::locale::classic());
    stream.flags(format.flags);
    stream.precision(format.precision);
    stream.width(format.width);
    stream.fill(format.fill);
    if (byLibrary) {
        WriteNumber(stream, value);
    } else {
        stream << value;
    }
    stream << '|'; // shows whether the width is gone
    return stream.str();
}

} // namespace

TEST(NumberText, WritesWhatAnInsertionInTheClassicLocaleWrites) {
    const double infinity = std::numeric_limits<double>::infinity();
    std::vector<double> values = {
        0.0,  -0.0, 1.0,      0.1,      100000.0,  1e6,  1e-5, 12.5,
        1e21, 1e22, 1.8e-300, infinity, -infinity, 0.05, 2.5,  std::numeric_limits<double>::max()};
    std::mt19937_64 random(7);
    for (int i = 0; i < 200; ++i) {
        values.push_back(std::ldexp(static_cast<double>(random()) / 1e19 - 0.9,
                                    static_cast<int>(random() % 120) - 60));
    }
    const Ios::fmtflags notations[] = {
        {}, Ios::fixed, Ios::scientific, Ios::fixed | Ios::scientific};
    const Ios::fmtflags adjustments[] = {{}, Ios::left, Ios::right, Ios::internal};
    const Ios::fmtflags dressings[] = {
        {}, Ios::showpos, Ios::showpoint, Ios::uppercase | Ios::showpos | Ios::showpoint};
    const int precisions[] = {-1, 0, 1, 4, 6, 8, 10, 15, 16, 200};
    for (const auto notation : notations) {
        for (const auto adjustment : adjustments) {
            for (const auto dressing : dressings) {
                for (const int precision : precisions) {
                    for (const double value : values) {
                        // Standard libraries disagree about capitals in a fixed infinity.
                        if (!std::isfinite(value) && (dressing & Ios::uppercase) != 0) {
                            continue;
                        }
                        const Format format{Ios::dec | notation | adjustment | dressing, precision,
                                            precision % 2 == 0 ? 24 : 0, '*'};
                        ASSERT_EQ(Inserted(value, format, true), Inserted(value, format, false))
                            << value << " flags " << format.flags << " precision " << precision;
                    }
                }
            }
        }
    }
}

TEST(NumberText, ReadsLeadingNumbersAsTheCLibraryDoes) {
    const char* const texts[] = {"",
                                 " ",
                                 "x",
                                 "1",
                                 " \t\n12.5abc",
                                 "-3e2",
                                 "+4",
                                 "+-4",
                                 "--4",
                                 ".5",
                                 "5.",
                                 ".",
                                 "-",
                                 "1e",
                                 "1e+",
                                 "1e5e",
                                 "1e999",
                                 "-1e999",
                                 "1e-999",
                                 "0e999",
                                 "000001",
                                 "0x1F",
                                 "0x.8p1",
                                 "0x",
                                 "-0xAp2",
                                 "0xfp-99999",
                                 "0xfp99999",
                                 "0x1p+-1",
                                 "-0x.",
                                 "inf",
                                 "-INFinityx",
                                 "4.9e-324",
                                 "1.7976931348623157e308",
                                 "1e99999999999999999999",
                                 "0.000000000000000000001e330",
                                 "1,5",
                                 "1 2"};
    for (const char* const text : texts) {
        // What std::atof gives everywhere but on Windows, where it knows decimals alone, and where
        // the sign of what is no number stays.
        char* end = nullptr;
        const double number = std::strtod(text, &end);
        const double expected = end == text ? 0.0 : number;
        EXPECT_EQ(ParseAsAtof(text), expected) << text;
        EXPECT_EQ(std::signbit(ParseAsAtof(text)), std::signbit(expected)) << text;
        const std::string_view view(text);
        const bool isDecimal = view.find_first_of("xXiI") == std::string_view::npos;
        if (isDecimal) {
            EXPECT_EQ(ParseLeadingDecimal(text), expected) << text;
        }
    }
    EXPECT_TRUE(std::isnan(ParseAsAtof("nan")));
    EXPECT_EQ(ParseLeadingDecimal("inf"), 0.0);
    EXPECT_EQ(ParseLeadingDecimal("0x1F"), 0.0);
}

TEST(NumberText, ExtractsWhatAStreamExtracts) {
    const char* const texts[] = {"",     " ",     "1.5",   "\t2x",   "1e",     "1e+",
                                 "1e5e", "1e5e3", "-",     ".",      "-.5",    "5.",
                                 "+7",   "+-7",   "1e999", "-1e999", "1e-999", "inf",
                                 "nan",  "0x10",  "1.2.3", "1,234",  "e5",     "1E5"};
    for (const char* const text : texts) {
        std::istringstream stream(text);
        double expected = 0.0;
        const bool isNumber = static_cast<bool>(stream >> expected);
        const auto extracted = ExtractDecimal(text);
        ASSERT_EQ(extracted.has_value(), isNumber) << text;
        if (isNumber) {
            EXPECT_EQ(*extracted, expected) << text;
        }
    }
}

// Ties go to the even digit, a carry may lengthen the number, and from 2^64 on, or with many digits
// behind a tiny number, another way of writing takes over.
TEST(NumberText, WritesTheNearestDecimal) {
    constexpr auto fixed = std::chars_format::fixed;
    constexpr auto general = std::chars_format::general;
    constexpr auto scientific = std::chars_format::scientific;
    const struct {
        double value;
        NumberFormat format;
        const char* text;
    } cases[] = {
        {0.125, {fixed, 2}, "0.12"},
        {0.375, {fixed, 2}, "0.38"},
        {-9.9999999951, {fixed, 8}, "-10.00000000"},
        {0x1p-1074, {fixed, 16}, "0.0000000000000000"},
        {0x1.fffffffffffffp63, {fixed, 1}, "18446744073709549568.0"},
        {0x1p64, {fixed, 1}, "18446744073709551616.0"},
        {2.5, {fixed, 0}, "2"},
        {1234565, {general, 6}, "1.23456e+06"},
        {1234575, {general, 6}, "1.23458e+06"},
        {999999.5, {general, 6}, "1e+06"},
        {0.000099999949, {general, 6}, "9.99999e-05"},
        {0.0000999999996, {general, 6}, "0.0001"},
        {120.0, {general, 6}, "120"},
        {0.1, {general, 17}, "0.10000000000000001"},
        {1e-300, {general, 17}, "1e-300"},
        {9.9999996, {scientific, 6}, "1.000000e+01"},
        {0x1p-24, {scientific, 16}, "5.9604644775390625e-08"},
    };
    for (const auto& [value, format, expected] : cases) {
        std::string text;
        AppendNumber(text, value, format);
        EXPECT_EQ(text, expected);
    }
}

TEST(NumberText, ReadsTheNearestDouble) {
    const char* const texts[] = {"0",
                                 "-0.0",
                                 "9007199254740993",
                                 "9007199254740992e22",
                                 "9007199254740993e-1",
                                 "1e23",
                                 "1e-23",
                                 "8.5e-22",
                                 "1234567890123456789",
                                 "12345678901234567890",
                                 ".5",
                                 "5.",
                                 "1.7976931348623157e308",
                                 "123456.78901234567890"};
    for (const std::string text : texts) {
        double number = 1.0;
        ASSERT_TRUE(ParseNumber(text, number)) << text;
        const double expected = std::strtod(text.c_str(), nullptr);
        EXPECT_EQ(number, expected) << text;
        EXPECT_EQ(std::signbit(number), std::signbit(expected)) << text;
    }
    const std::string huge = '1' + std::string(400, '0');
    for (const std::string& text : std::initializer_list<std::string>{
             "", "-", ".", "1e", "1e+", "--1", "+-1", "1 ", "1e400", "nan", "1x", huge}) {
        double number = 1.0;
        EXPECT_FALSE(ParseNumber(text, number)) << text;
    }
}
