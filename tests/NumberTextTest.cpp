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
        EXPECT_EQ(ParseAsAtof(text), std::atof(text)) << text;
        EXPECT_EQ(std::signbit(ParseAsAtof(text)), std::signbit(std::atof(text))) << text;
        const std::string_view view(text);
        const bool isDecimal = view.find_first_of("xXiI") == std::string_view::npos;
        if (isDecimal) {
            EXPECT_EQ(ParseLeadingDecimal(text), std::atof(text)) << text;
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
