// Reading the exports of a downhole fluid analysis job, and matching stations by depth.
#include "DepthMatch.h"
#include "Diagnosed.h"
#include "FluidBench/Utilities/Equations.h"
#include "TestSupport.h"
#include "io/DFAReader.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <sstream>
#include <stdexcept>

using namespace Orv::FluidBench::IO;
using FluidBenchTest::Diagnosed;
using FluidBenchTest::FailingInput;
using FluidBenchTest::TemporaryFolder;
using Orv::FluidBench::Utilities::Equations;

namespace {

const std::string header = "BEGIN HEADER\nEND HEADER\n";

// Twenty columns, one of them behind the station's name: GOR 900, 50.5 % C1 and so on.
std::string MainRow(const std::string& well, const std::string& depth) {
    return "1 \"" + well + "\" " + depth +
           " 1 900 50.5 8 12 29 0.5 \"S\" 0.7 9 10 11 12 13 14 15 16 40 18 19\n";
}
std::string PressureRow(const std::string& well, const std::string& depth,
                        const std::string& pressure) {
    return "1 \"" + well + "\" " + depth + " 1 \"S\" " + pressure + "\n";
}

// "A: 1 2; B: 3"
std::string DepthsOf(const DFAReader& reader) {
    std::string text;
    for (const WellData& well : reader.GetExtractedData()) {
        text += (text.empty() ? "" : "; ") + well.name + ":";
        for (const double depth : well.depths) {
            text += " " + std::to_string(std::lround(depth));
        }
    }
    return text;
}

class DfaTest : public testing::Test {
protected:
    // Imports files without anybody who listens, and the same texts as streams with somebody, who
    // is told of the FT file's lines by "FT3:short-row".
    bool Import(const std::string& main, const std::string& pressure) {
        DFAReader twin = reader;
        Diagnosed diagnosed;
        twin.SetDiagnosticSink(diagnosed.Sink());
        std::istringstream mainStream(main);
        std::istringstream pressureStream(pressure);
        const bool isGood = twin.Import(mainStream, pressureStream, "", "FT");
        told.clear();
        for (const Diagnostic& each : diagnosed.All()) {
            told += (told.empty() ? "" : " ") + each.file + std::to_string(each.line) + ':' +
                    each.code.substr(each.code.find('.') + 1);
        }
        folder.Write("W_FT.txt", pressure);
        EXPECT_EQ(reader.Import(folder.Write("W_DFA.txt", main)), isGood);
        EXPECT_EQ(Depths(), DepthsOf(twin));
        return isGood;
    }
    const std::vector<WellData>& Wells() { return reader.GetExtractedData(); }
    std::string Depths() { return DepthsOf(reader); }

    std::string told;
    TemporaryFolder folder;
    DFAReader reader;
};

} // namespace

TEST_F(DfaTest, ImportsWellsInFileOrderAndStationsByDepth) {
    const std::string rows = MainRow("A", "10") + MainRow("A", "5") + MainRow("B", "7") +
                             MainRow("A", "-3") + MainRow("A", "1");
    reader.SetIndexOfWell(1);
    ASSERT_TRUE(Import("x\n" + header + rows, header));
    EXPECT_EQ(Depths(), "A: 5 10; B: 7; A: -3 1");
    EXPECT_EQ(reader.GetRawFluid(0).NumberOfComponents(), 5);
    EXPECT_THROW(reader.GetRawFluid(1), std::out_of_range) << "the chosen well has one station";

    ASSERT_TRUE(Import(header + MainRow("A", "8"), header));
    EXPECT_EQ(Depths(), "A: 5 10; B: 7; A: -3 1; A: 8");
    const DFAReader copy = reader;
    EXPECT_FALSE(reader.Import(folder / "missing_DFA.txt"));
    EXPECT_EQ(Wells().size(), copy.GetExtractedData().size());
}

TEST_F(DfaTest, KeepsFileOrderAtEqualDepthAndTakesTheLastPressure) {
    std::string equal = MainRow("A", "5");
    equal.replace(equal.find("900"), 3, "901");
    const std::string near = "5.000000004"; // within 1e-9 of 5; what is 1e-8 off isn't
    ASSERT_TRUE(Import(header + MainRow("A", "7") + MainRow("A", "5") + equal,
                       header + PressureRow("A", "5", "100") + PressureRow("A", near, "200") +
                           PressureRow("A", "5.00000005", "300") + PressureRow("B", "5", "400") +
                           PressureRow("A", "7", "-5")));
    EXPECT_EQ(Wells()[0].gasOilRatios, (std::vector<double>{900, 901, 900}));
    EXPECT_EQ(Wells()[0].pressures, (std::vector<double>{200, 200, -5}));
    ASSERT_TRUE(Import(header + MainRow("A", "5"), header + "1 \"A\" 5 1 \"S\"\n"));
    EXPECT_EQ(Wells()[1].pressures, (std::vector<double>{0})) << "a row without a pressure";
}

TEST_F(DfaTest, ReadsTheColumnsOfARowAcrossItsQuotes) {
    const std::string tail = " 1 900 50.5 8 12 29 0.5 0.7 9 10 11 12 13 14 15 16 40 18 19";
    struct Case {
        const char* meaning;
        std::string line;
        std::string depths;
        std::string told;
    };
    const Case cases[] = {
        {"numbers on both sides", "\"A\" 6 \"S\" " + tail.substr(1), "A: 6", "3:no-pressure"},
        {"numbers behind the second text alone", "\"A\"\"S\" 6" + tail, "A: 6", "3:no-pressure"},
        {"a number that goes on behind the text", "\"A\" 6\"S\" 1" + tail, "A: 61",
         "3:no-blank 3:no-pressure"},
        {"any one character is cut off", "\"A\"96" + tail + "\"S\"x", "A: 6",
         "3:no-blank 3:no-blank 3:no-pressure"},
        {"letters behind a number", "\"A\" 6ft" + tail + "\"S\"", "A: 6",
         "3:text-behind-number 3:no-pressure"},
        {"more columns than needed", "\"A\" 6" + tail + " 20 21 \"S\" x", "A: 6",
         "3:row-cut 3:no-pressure"},
        {"two blanks ahead", "\"A\"  6" + tail + "\"S\"", "", "3:row-cut 3:short-row 0:no-station"},
        {"two blanks between", "\"A\" 6 " + tail + "\"S\"", "",
         "3:row-cut 3:short-row 0:no-station"},
        {"nineteen columns", "\"A\" 6" + tail.substr(0, tail.size() - 3) + "\"S\"", "",
         "3:short-row 0:no-station"},
        {"a letter among the numbers", "\"A\" 6 1 900 x" + tail + "\"S\"", "",
         "3:row-cut 3:short-row 0:no-station"},
        {"a number too large", "\"A\" 1e999" + tail + "\"S\"", "",
         "3:row-cut 3:short-row 0:no-station"},
        {"three quotes", "\"A\" 6" + tail + "\"S", "", "3:not-a-row 0:no-station"},
        {"five quotes", "\"A\" 6" + tail + "\"S\"\"", "", "3:not-a-row 0:no-station"},
        {"a blank and a tab ahead of a number", "\"A\" 6 \t1" + tail.substr(2) + " \"S\"", "A: 6",
         "3:no-pressure"},
        {"a blank behind the last", "\"A\" 6" + tail + " \"S\" \r", "A: 6", "3:no-pressure"},
        {"a tab instead of a blank", "\"A\" 6\t1" + tail.substr(2) + "\"S\"", "",
         "3:text-behind-number 3:short-row 0:no-station"},
        {"a short row of another well", "\"B\" 1\"S\"\n" + MainRow("A", "6"), "A: 6",
         "3:short-row 4:no-pressure"},
    };
    for (const Case& each : cases) {
        reader = DFAReader();
        EXPECT_TRUE(Import(header + each.line, header)) << each.meaning;
        EXPECT_EQ(Depths(), each.depths) << each.meaning;
        EXPECT_EQ(told, each.told) << each.meaning;
    }
    // A short row doesn't part the well's run either.
    reader = DFAReader();
    EXPECT_TRUE(Import(header + MainRow("A", "2") + "\"B\" 1\"S\"\n" + MainRow("A", "1"), header));
    EXPECT_EQ(Depths(), "A: 1 2");
}

TEST_F(DfaTest, FindsTheHeader) {
    const std::string row = MainRow("A", "1");
    struct Case {
        std::string content;
        bool isGood;
        std::string told; // of a main file
    };
    const Case cases[] = {
        {header, true, "0:no-station"},
        {"BEGIN HEADER\n" + row + "END HEADER\n" + row, true, "4:no-pressure"},
        {"say BEGIN HEADER here\nand END HEADER there", true, "0:no-station"},
        {"BEGIN HEADER and END HEADER\n" + row, true, "2:no-pressure"},
        {header + header + row, true, "5:no-pressure"},
        {header + row + "\"\n" + header + row, true, "4:not-a-row 6:second-header 7:no-pressure"},
        {"END HEADER\n" + header + row, true, "4:no-pressure"},
        {"a HEADER\n" + header + "HEADER\n" + row, true, "4:other-text 5:no-pressure"},
        {"", false, "0:no-header 0:no-header"},
        {row, false, "0:no-header 0:no-header"},
        {"BEGIN HEADER\n" + row, false, "0:no-header"},
        {"END HEADER\n" + row, false, "0:no-header"},
        {"END HEADER\nBEGIN HEADER\n" + row, false, "0:no-header"},
        {header + "BEGIN HEADER\n" + row, false, "0:no-header"},
        {std::string("\0\xff\n\"\"\"\"\n", 8), false, "0:no-header 0:no-header"},
    };
    for (const auto& [content, isGood, toldOfMain] : cases) {
        reader = DFAReader();
        EXPECT_EQ(Import(content, header), isGood) << content;
        EXPECT_EQ(Depths(), isGood && content.ends_with(row) ? "A: 1" : "") << content;
        EXPECT_EQ(told, toldOfMain) << content;
        reader = DFAReader();
        EXPECT_EQ(Import(header + row, content), isGood) << content;
        EXPECT_EQ(Depths(), isGood ? "A: 1" : "") << content;
        EXPECT_EQ(told.find("FT0:no-header") == std::string::npos, isGood) << content;
    }
}

TEST_F(DfaTest, TellsOfWellsAndValues) {
    ASSERT_TRUE(Import(header + "page 2\n\n" + MainRow("A", "1") + MainRow("B", "2") +
                           MainRow("A", "-999") + MainRow("A", "3"),
                       header + PressureRow("A", "1", "-9999") + PressureRow("B", "2", "50") +
                           PressureRow("A", "-999", "7") + "1 \"A\" 5 1 \"S\"\n"));
    EXPECT_EQ(told, "3:other-text 7:absent-value FT3:absent-value FT5:absent-value FT6:short-row "
                    "7:well-returns 8:no-pressure");
    EXPECT_EQ(Depths(), "A: 1; B: 2; A: -999 3");

    reader = DFAReader();
    std::string negative = "1 \"A\"";
    std::string expected;
    for (int column = 0; column < 20; ++column) {
        negative += (column == 8 ? " \"S\" -" : " -") + std::to_string(column + 1);
        expected += column % 2 == 0 ? "3:negative-value " : "";
    }
    ASSERT_TRUE(Import(header + negative + '\n', header + PressureRow("A", "-1", "-3")));
    EXPECT_EQ(told, expected + "FT3:negative-value FT3:negative-value") << "ten of them are read";

    reader = DFAReader();
    const std::string row = MainRow("A", "5");
    std::string other = row;
    other.replace(other.find("900"), 3, "901");
    ASSERT_TRUE(Import(header + row + other + row,
                       header + PressureRow("A", "5", "1") + PressureRow("A", "6", "2") +
                           PressureRow("B", "5", "3") + PressureRow("A", "5", "4")));
    EXPECT_EQ(told, "5:row-twice FT3:row-twice FT4:pressure-unused FT5:pressure-unused");
    EXPECT_EQ(Depths(), "A: 5 5 5");
}

TEST_F(DfaTest, RefusesFilesThatFail) {
    ASSERT_TRUE(Import(header + MainRow("A", "1"), header));
    const std::string main = header + MainRow("B", "1");
    const std::string pressures = header + PressureRow("B", "1", "50");
    Diagnosed diagnosed;
    reader.SetDiagnosticSink(diagnosed.Sink());
    for (const bool mainFails : {true, false}) {
        FailingInput failing(mainFails ? main : pressures, header.size());
        std::istringstream good(mainFails ? pressures : main);
        std::istream bad(&failing);
        EXPECT_FALSE(mainFails ? reader.Import(bad, good, "failing", "good")
                               : reader.Import(good, bad, "good", "failing"));
        EXPECT_EQ(diagnosed.All().at(0).file, "failing");
        EXPECT_EQ(diagnosed.Take(), "2:read-failed");
        EXPECT_EQ(Depths(), "A: 1");
    }
    std::istringstream longLine(main + std::string(2'000'000, ' '));
    std::istringstream good(pressures);
    EXPECT_FALSE(reader.Import(longLine, good));
    EXPECT_EQ(diagnosed.Take(), "4:line-too-long");
    EXPECT_FALSE(reader.Import(folder / "missing_DFA.txt"));
    EXPECT_EQ(diagnosed.All().at(1).file, folder / "missing_FT.txt");
    EXPECT_EQ(diagnosed.Take(), "0:cant-open 0:cant-open");

    reader.SetDiagnosticSink([](const Diagnostic& each) { throw std::runtime_error(each.code); });
    std::istringstream mainStream(main);
    std::istringstream pressureStream(header);
    EXPECT_THROW(reader.Import(mainStream, pressureStream), std::runtime_error);
    EXPECT_EQ(Depths(), "A: 1");
}

TEST_F(DfaTest, FindsThePressureFileByTheMainFilesName) {
    folder.Write("anFT.txt", header + PressureRow("A", "1", "50"));
    ASSERT_TRUE(reader.Import(folder.Write("an1234567", header + MainRow("A", "1"))));
    EXPECT_EQ(Wells()[0].pressures, (std::vector<double>{50}));
    EXPECT_FALSE(reader.Import(folder.Write("other_DFA.txt", header + MainRow("A", "1"))));
    std::filesystem::create_directory(folder / "other_FT.txt");
    EXPECT_FALSE(reader.Import(folder / "other_DFA.txt")) << "a folder for the pressures";
    EXPECT_FALSE(reader.Import(folder.Path().string())) << "a folder for the main file";

    const auto previous = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    folder.Write("FT.txt", header);
    folder.Write("short", header + MainRow("B", "1"));
    EXPECT_TRUE(reader.Import("short"));
    EXPECT_FALSE(reader.Import(""));
    std::filesystem::current_path(previous);
    EXPECT_EQ(Depths(), "A: 1; B: 1");
}

TEST_F(DfaTest, ReadsTheSampleWithAnyLineEndsInAnyLocale) {
    const FluidBenchTest::ForeignGlobalLocale foreign;
    const std::string main = std::string(FLUIDBENCH_EXAMPLE_DATA) + "/north-field_DFA.txt";
    ASSERT_TRUE(reader.Import(main));
    std::string carriageReturns[2];
    for (int i = 0; i < 2; ++i) {
        const std::string kind = i == 0 ? "DFA.txt" : "FT.txt";
        for (const char c : FluidBenchTest::ReadFile(main.substr(0, main.size() - 7) + kind)) {
            carriageReturns[i] += c == '\n' ? std::string("\r\n") : std::string(1, c);
        }
    }
    ASSERT_TRUE(Import(carriageReturns[0], carriageReturns[1]));
    ASSERT_EQ(Wells().size(), 4U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(Wells()[i].pressures, Wells()[i + 2].pressures);
        EXPECT_EQ(Wells()[i].stationValues, Wells()[i + 2].stationValues);
        EXPECT_EQ(Wells()[i].compositions, Wells()[i + 2].compositions);
    }
    EXPECT_EQ(Wells()[1].pressures, (std::vector<double>{4612.3, 4625.4, 4638.4, 0, 4669.9}));
}

TEST_F(DfaTest, BuildsRawFluidsAndAnExperiment) {
    std::string rows = MainRow("A", "200") + MainRow("A", "-100");
    for (const std::string number : {" 8", " 40"}) { // none of them counts
        for (std::size_t at = 0; (at = rows.find(number + ' ', at)) != std::string::npos; ++at) {
            rows.insert(at + 1, "-");
        }
    }
    ASSERT_TRUE(Import(header + rows, header + PressureRow("A", "200", "3000")));
    EXPECT_EQ(told, "3:negative-value 3:negative-value 4:negative-value 4:negative-value "
                    "4:negative-value 4:no-pressure");
    const auto fluid = reader.GetRawFluid(1);
    EXPECT_EQ(fluid.GetName(), "DFA raw fluid");
    EXPECT_EQ(static_cast<int>(fluid.GetComponentFractionType()), 1);
    const std::vector<std::string> names = {"C1", "C2", "C3toC5", "C6+", "CO2"};
    EXPECT_EQ(fluid.ListComponents(), names);
    const double fractions[] = {0.505, 0.0, 0.12, 0.29, 0.005};
    const auto components = fluid.GetOrderedComponents();
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(fluid.GetComponentFraction(names[i]), fractions[i]) << names[i];
        const bool isLumped = i == 2 || i == 3;
        EXPECT_EQ(components[i].GetTcrit() == 0.0, isLumped) << names[i];
    }

    const auto experiment = reader.GetDFAExperiment();
    EXPECT_EQ(static_cast<int>(experiment.GetType()), 7);
    ASSERT_EQ(experiment.Stages.size(), 2U);
    const double expected[2][6] = {{0.0, 160.296846, 700.0, 0.0, 255.372222, 19.0},
                                   {2.0684272e7, 160.296846, 700.0, 60.96, 255.372222, 19.0}};
    for (std::size_t k = 0; k < 2; ++k) {
        const auto& results = *experiment.Stages[k].Results;
        const Orv::FluidBench::Common::Result got[] = {results.Pressure,    results.GasOilRatio,
                                                       results.Density,     results.Depth,
                                                       results.Temperature, results.StationValue};
        for (std::size_t i = 0; i < std::size(got); ++i) {
            EXPECT_TRUE(got[i].IsSet) << k << i;
            EXPECT_NEAR(got[i].Value, expected[k][i], 1e-7 * expected[k][i]) << k << i;
        }
        EXPECT_FALSE(results.SaturationPressure.IsSet);
        EXPECT_EQ(experiment.Stages[k].Fluid.ListComponents(), names);
    }
}

TEST_F(DfaTest, RefusesIndicesThatArentThere) {
    const auto text = [](const auto& operation) -> std::string {
        try {
            operation();
        } catch (const std::out_of_range& error) {
            return error.what();
        }
        return "nothing thrown";
    };
    const std::string expected = "invalid vector<T> subscript";
    EXPECT_EQ(text([&] { reader.GetDFAExperiment(); }), expected) << "ahead of any import";
    ASSERT_TRUE(Import(header + MainRow("A", "1"), header));
    EXPECT_EQ(text([&] { reader.GetRawFluid(1); }), expected);
    EXPECT_EQ(text([&] { reader.GetRawFluid(-1); }), expected);
    for (const int well : {-1, 1}) {
        reader.SetIndexOfWell(well);
        EXPECT_EQ(text([&] { reader.GetRawFluid(0); }), expected);
        EXPECT_EQ(text([&] { reader.GetDFAExperiment(); }), expected);
    }
}

TEST_F(DfaTest, ReadsNothingBeyondAFileCutOffAnywhere) {
    const std::string main = header + MainRow("A", "1");
    for (std::size_t length = 0; length <= main.size(); ++length) {
        reader = DFAReader();
        const bool isGood = Import(main.substr(0, length), header);
        EXPECT_EQ(isGood, length + 1 >= header.size()) << length;
        EXPECT_LE(Wells().size(), 1U);
    }
}

// Equality within a tolerance isn't transitive, so depths are made that lie at its very edge.
TEST(DepthMatch, FindsWhatThePairwiseWalkFinds) {
    constexpr double tolerance = 1e-9;
    std::mt19937 random(5);
    const double bases[] = {0.0, 1.0, -1.0, 9850.25, -9850.25, 4e-320, 1.7e308};
    const auto depthsOf = [&](std::size_t n) {
        std::vector<WellDepth> depths;
        for (std::size_t i = 0; i < n; ++i) {
            const double base = bases[random() % std::size(bases)];
            double depth = base + base * tolerance * (static_cast<int>(random() % 13) - 6) / 4.0;
            for (auto steps = random() % 3; steps > 0; --steps) {
                depth = std::nextafter(depth, 0.0);
            }
            depths.push_back({random() % 2 == 0 ? "A" : "B", depth});
        }
        return depths;
    };
    for (int round = 0; round < 300; ++round) {
        const auto stations = depthsOf(random() % 60);
        const auto readings = depthsOf(random() % 60);
        std::vector<std::size_t> expected;
        for (const auto& [well, depth] : stations) {
            expected.push_back(noMatch);
            for (std::size_t j = 0; j < readings.size(); ++j) {
                if (readings[j].well == well &&
                    Equations::RelativeDoublesEqual(depth, readings[j].depth, tolerance)) {
                    expected.back() = j;
                }
            }
        }
        ASSERT_EQ(LastMatches(stations, readings, tolerance), expected) << round;
    }
}

TEST(DepthMatch, IsNotQuadraticAtOneDepth) {
    const std::vector<WellDepth> all(300'000, {"A", 9850.0}); // 9e10 pairs
    const auto matches = LastMatches(all, all, 1e-9);
    EXPECT_EQ(std::ranges::count(matches, all.size() - 1), std::ssize(all));
}
