// Phase envelope files: what any text reads as, what plots are written as, and the way there and
// back.
#include "Diagnosed.h"
#include "IOException.h"
#include "PhaseEnvelopeFile.h"
#include "TestSupport.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <utility>

using namespace Orv::FluidBench::Common;
using FluidBenchTest::Diagnosed;
using FluidBenchTest::TemporaryFolder;
using Orv::FluidBench::IO::PhaseEnvelopeReaderWriter;
using AxisType = CommonPlottingObject::AxisType;
using Plots = std::vector<CommonPlottingObject>;

namespace {

constexpr auto type = Line::Type::PhaseCurve;

// The name of each `Line::Phase`; those from 8 to 12 have none.
const std::vector<std::string> phaseNames = {
    "bubble", "dew", "critical", "aqueous", "I", "II",  "ice", "q",
    "",       "",    "",         "",        "",  "PX2", "PX3", "TX2",
};

// "bubble 300,2e+06 310,3e+06; dew; critical; q0.5 300,1 | bubble ...", by phase.
std::string Text(const Plots& plots) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    for (std::size_t i = 0; i < plots.size(); ++i) {
        const char* separator = i == 0 ? "" : " | ";
        for (std::size_t phase = 0; phase < phaseNames.size(); ++phase) {
            const auto kind = static_cast<Line::Phase>(phase);
            for (int k = 0; k < plots[i].NumberOfLines(type, kind); ++k) {
                const Line& line = plots[i].GetLine(type, kind, k);
                text << std::exchange(separator, "; ") << phaseNames[phase] << line.GetName();
                if (line.GetPhaseFraction() != 0.0) {
                    text << line.GetPhaseFraction();
                }
                for (const Point& point : line.GetPoints()) {
                    text << ' ' << point.x << ',' << point.y;
                }
            }
        }
    }
    return text.str();
}

struct Outcome {
    bool result = false;
    std::string message;
    std::string plots;

    bool operator==(const Outcome&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
        return out << outcome.result << " '" << outcome.message << "' " << outcome.plots;
    }
};

class EnvelopeTest : public testing::Test {
protected:
    template <typename Operation>
    Outcome OutcomeOf(Operation operation) {
        Outcome outcome;
        Plots plots(1, CommonPlottingObject(AxisType::Density, AxisType::Density));
        std::vector<std::string> messages(2, "from before");
        try {
            outcome.result = operation(plots, messages);
            EXPECT_EQ(messages.size(), 1U);
            outcome.message = messages.back();
        } catch (const std::out_of_range& error) {
            EXPECT_TRUE(messages.empty());
            outcome.message = std::string("thrown: ") + error.what();
        }
        for (const CommonPlottingObject& plot : plots) {
            EXPECT_EQ(static_cast<int>(plot.GetXAxisType()), 0);
            EXPECT_EQ(static_cast<int>(plot.GetYAxisType()), 1);
        }
        outcome.plots = Text(plots);
        return outcome;
    }
    Outcome Read(const std::string& fileName) {
        file.SetFileName(fileName);
        return OutcomeOf([&](Plots& plots, auto& messages) { return file.Read(plots, messages); });
    }
    Outcome Read(std::istream& in) {
        return OutcomeOf(
            [&](Plots& plots, auto& messages) { return file.Read(in, plots, messages, "name"); });
    }

    std::string Written(const Plots& plots, bool useComma) {
        PhaseEnvelopeReaderWriter writer(useComma);
        writer.SetFileName(folder / "written");
        EXPECT_TRUE(writer.Write(plots));
        return FluidBenchTest::ReadFile(folder / "written");
    }

    TemporaryFolder folder;
    PhaseEnvelopeReaderWriter file;
};

Line LineOf(int phase, std::vector<Point> points, double fraction = 0.0, Line::Type of = type) {
    std::vector<double> x;
    std::vector<double> y;
    for (const Point& point : points) {
        x.push_back(point.x);
        y.push_back(point.y);
    }
    return {"name", x, y, of, static_cast<Line::Phase>(phase), fraction};
}

std::string Block(const std::string& cells) {
    return "Flash: \nSource: \nUnits: \n\n" + cells + "\nT,P,\n";
}
const std::string headings = "Bubble,,Dew,,Critical point,,";
const std::string block = Block(headings);
const std::string row = "1,2,3,4,5,6,";
const std::string noLines = "bubble; dew; critical";
const std::string oneRow = "bubble 1,2; dew 3,4; critical 5,6";
const std::string end = "No more envelopes found";

struct Case {
    const char* meaning;
    std::string text;
    bool result;
    std::string message;
    std::string plots;
    std::string told; // lines and codes
};

std::string Times(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

std::vector<Case> Cases() {
    const std::string misplaced = "Flash used not where expected";
    const std::string noHeadings = "Column headings not found";
    const std::string thrown = "thrown: invalid string position";
    const std::string longest = row + std::string(499 - row.size(), 'x');
    return {
        {"no line end behind the last row", block + row, true, "", oneRow, ""},
        {"a line end behind it", block + row + "\n", true, end, oneRow, ""},
        {"no rows", block, true, "", noLines, "5:no-rows"},
        {"two blocks, anything between", block + row + "\n-,-,Dew\n\n" + block + row, true, "",
         oneRow + " | " + oneRow, ""},
        {"no line between blocks, and the first has no rows", block + block + row + "\n", true, end,
         noLines + " | " + oneRow, "5:no-rows"},
        {"a later block is freer", block + row + "\n\nmy Flash 7\nx 9\nDew Bubble\n\nT P\n" + row,
         true, "", oneRow + " | " + oneRow, "11:heading-order"},
        {"rows whatever word they hold", block + row + "Flash Bubble\n" + row + "\n", true, end,
         "bubble 1,2 1,2; dew 3,4 3,4; critical 5,6 5,6", "7:extra-cells"},
        {"rows behind a line without digits", block + row + "\nand so on\n" + row, true, end,
         oneRow, "9:row-outside-block"},
        {"words in small letters", "flash\n\n\n\nbubble\nT,P,\n", false, end, "", "0:no-envelope"},

        {"empty", "", false, "", "", "1:no-separator"},
        {"five lines", "Flash\n\n\n\nBubble", false, "", "", "5:no-separator"},
        {"short letter line", "Flash\n\n\n\nBubble\nT,P\n", false, "", "", "6:no-separator"},
        {"short letter line with a carriage return", "Flash\n\n\n\nBubble\nT,P\r\n", false, "", "",
         "6:no-separator"},
        {"no separator in the letter line", "Flash\n\n\n\nBubble\nTP,T,P,\n", false, "", "",
         "6:no-separator"},
        {"an early letter line", "Flash\n\n\nBubble\nT,P,\n\n", false, "", "", "6:no-separator"},
        {"a letter line of rows", "Flash\nBubble\n\n\n\n1,2,3,4,5,6,\n", true, end, oneRow,
         "2:heading-order"},
        {"carriage returns alone", "Flash: \r\r\r\rBubble\rT,P,\r1,2,3,4,5,6,\r", false, "", "",
         "1:carriage-returns 1:no-separator"},
        {"two bytes a character", std::string("F\0l\0a\0s\0h\0\n\0", 12), false, "", "",
         "1:utf-16 2:no-separator"},
        {"a byte order mark", "\xEF\xBB\xBF" + block + row, true, "", oneRow, ""},

        {"headings ahead of any flash", "Bubble\n" + block, false, "", "", "6:no-separator"},
        {"both words", "\nFlash Bubble\n\n\n\nT,P,\n" + block, false, misplaced, "", "2:no-flash"},
        {"headings without their flash", block + row + "\n\nBubble\n", true, misplaced, oneRow,
         "9:no-flash"},
        {"no headings ahead of a flash", block + row + "\nFlash\nFlash\n", false, noHeadings,
         oneRow, "9:no-headings"},
        {"no headings ahead of the end", "Flash\n\n\n\n\nT,P,\n", false, noHeadings, "",
         "7:no-headings"},

        {"words in any order", Block("Ice Aqueous xBubblex") + "1,,2,,3,,4,5,6,7,", true, "",
         "bubble; dew; critical; aqueous 4,5; ice 6,7",
         "5:heading-order 7:uneven-columns 7:uneven-columns 7:uneven-columns"},
        {"hydrate II alone", Block("Bubble Hydrate type II"), true, "", noLines + "; II",
         "5:heading-order 5:no-rows"},
        {"both hydrates", Block("Hydrate type II,Bubble,Hydrate type I,"), true, "",
         noLines + "; I; II", "5:heading-order 5:no-rows"},
        {"quality lines", Block("Bubble,,Vapour,0.5,Vapour,-9e-1x,.,"), true, "",
         noLines + "; q0.5; q0.9; q", "5:text-beside-number 5:digits-in-heading 5:no-rows"},
        {"digits of other headings", Block("Bubble,PX2,1,"), true, "", noLines + "; q2; q1",
         "5:digits-in-heading 5:digits-in-heading 5:no-rows"},
        {"odd fractions, a pair without one, and units",
         "Flash\n\nUnits: T(C), P(bar)\n\n" + headings + "Vapour,1.5,Vapour,-0.5,Vapour,,\nT,P,\n" +
             row + "7,8,9,0, , ,",
         true, "", oneRow + "; q1.5 7,8; q0.5 9,0",
         "3:other-units 5:fraction-range 5:fraction-range 5:not-a-number 5:heading-order"},
        {"a spreadsheet's padding",
         "Flash: ,,,\n\n\"units : T(K)\",P(Pa) ,,,\n\n" + headings + ",,,\nT,P,T,P,T,P,,,,\n" +
             row + ",,,\n,,,,,,,,,\n",
         true, end, oneRow, ""},
        {"units in other spellings",
         "Flash\nUNITS: T(F), P(psi)\nUnit: T(C)\n\"Units = T(R)\"\n" + headings + "\nT,P,\n" +
             row + "\n\nFlash\n'units',T(C),P(bar),,\nUnited in K\n" + headings + "\n" + row,
         true, "", oneRow + " | " + oneRow,
         "2:other-units 3:other-units 4:other-units 10:other-units"},
        {"a number at the end of the headings", block + row + "\n" + Block("Bubble,0.5"), false,
         thrown, "", "12:open-heading"},

        {"blanks and text around numbers", block + "T=1 K,p -2.5e+03Pa, ,\t,3.,.4e1,x,7,8", true,
         "", "bubble 1,-2500; dew; critical 3,4",
         "7:text-beside-number 7:text-beside-number 7:extra-cells"},
        {"cells without digits", block + "-,.,0,-x,-1,1\n-.,1e,--2,1.2.3,5,6,", true,
         "Error in column 5", "bubble 0,0 0,1; dew 0,0 0,1.2; critical -1,6",
         "7:not-a-number 7:not-a-number 7:not-a-number 7:short-row 8:not-a-number "
         "8:text-beside-number 8:not-a-number 8:text-beside-number 7:uneven-columns"},
        {"no number of another kind", block + "0x1,+1,inf1,nan,1d5,1,5e", true, "",
         "bubble 0,1; dew; critical 1,1",
         "7:not-finite 7:text-beside-number 7:not-a-number 7:text-beside-number 7:extra-cells "
         "7:uneven-columns"},
        {"a number too large", block + "1,2,3,4,5,1e999,", true, "",
         "bubble 1,2; dew 3,4; critical 5,inf", "7:not-finite"},
        {"shorter columns", block + "1,2,3,4,,\n5,6, , ,7,8,\n", true, end,
         "bubble 1,2 5,6; dew 3,4; critical 7,8", "7:short-row"},
        {"halves of two points", block + "1,2,3,,5,6,\n1,2,,4,5,6,\n", true, end,
         "bubble 1,2 1,2; dew 3,4; critical 5,6 5,6", "7:uneven-columns"},
        {"short rows", block + "1,2,3\n4,5,6,7,8,9,\n1", true, "Error in column 0",
         "bubble 1,2 4,5; dew 6,7; critical 8,9", "7:short-row 9:short-row"},

        {"a line of 499 characters", block + longest + "\n" + row, true, "",
         "bubble 1,2 1,2; dew 3,4 3,4; critical 5,6 5,6", "7:extra-cells"},
        {"499 and a carriage return", block + longest + "\r\n" + row, true, "",
         "bubble 1,2 1,2; dew 3,4 3,4; critical 5,6 5,6", "7:extra-cells"},
        {"a line of 500", block + longest + "x\n" + row, true, "", oneRow,
         "7:line-too-long 7:extra-cells"},
        {"a cell cut in two", block + "1,2,3,4,5," + std::string(488, '0') + "6,\n" + row, true,
         "Error in column 5", "bubble 1,2; dew 3,4; critical",
         "7:line-too-long 7:short-row 7:uneven-columns"},
        {"a million separators", block + std::string(1'000'000, ',') + "\n" + row, true, "",
         noLines, "7:line-too-long 5:no-rows"},
        {"a thousand quality lines", block + row + "\n" + Block("Bubble," + Times("1,", 1000)),
         true, "", oneRow + " | " + noLines + Times("; q1", (499 - 7) / 2),
         "12:line-too-long" + Times(" 12:digits-in-heading", 20) +
             " 12:no-rows 0:digits-in-heading"},
    };
}

} // namespace

TEST_F(EnvelopeTest, ReadsWhatThereIsAndTellsTheRest) {
    const FluidBenchTest::ForeignGlobalLocale foreign;
    Diagnosed diagnosed;
    for (const Case& each : Cases()) {
        file = PhaseEnvelopeReaderWriter();
        const Outcome ofFile = Read(folder.Write("file", each.text));
        EXPECT_EQ(ofFile, (Outcome{each.result, each.message, each.plots})) << each.meaning;
        file = PhaseEnvelopeReaderWriter();
        file.SetDiagnosticSink(diagnosed.Sink());
        std::istringstream stream(each.text);
        stream.imbue(FluidBenchTest::ForeignLocale());
        EXPECT_EQ(Read(stream), ofFile) << each.meaning;
        EXPECT_EQ(diagnosed.Take(), each.told) << each.meaning;
    }
}

TEST_F(EnvelopeTest, TellsOfAFileThatFails) {
    Diagnosed diagnosed;
    file.SetDiagnosticSink(diagnosed.Sink());
    EXPECT_EQ(Read(folder / "missing"), (Outcome{false, "Could not open file", ""}));
    EXPECT_EQ(diagnosed.All().front().file, folder / "missing");
    EXPECT_EQ(diagnosed.Take(), "0:cant-open");

    std::istringstream failed(block);
    failed.setstate(std::ios_base::failbit);
    EXPECT_EQ(Read(failed).plots, "");
    EXPECT_EQ(diagnosed.Take(), "0:read-failed");

    // What was read ahead of the failure stands.
    const std::string text = block + row + "\n\n" + Times("\n", 200'000);
    FluidBenchTest::FailingInput failing(text, text.size());
    std::istream stream(&failing);
    EXPECT_EQ(Read(stream), (Outcome{true, end, oneRow}));
    ASSERT_EQ(diagnosed.All().size(), 1U);
    EXPECT_EQ(diagnosed.All().front().code, "file.read-failed");
    EXPECT_EQ(diagnosed.All().front().file, "name");
    EXPECT_EQ(diagnosed.All().front().line, 200'008U);
}

TEST_F(EnvelopeTest, KeepsTheLastFailureUntilTheNext) {
    const std::string cantOpen = "Could not open file";
    EXPECT_EQ(Read("").message, cantOpen);
    EXPECT_EQ(file.GetFileName(), "");
    const std::string good = folder.Write("good", block);
    const Outcome outcome = Read(good);
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.message, cantOpen);
    EXPECT_EQ(file.GetFileName(), good);
    EXPECT_EQ(Read(folder.Write("ended", block + "1\n\n")).message, end);
    EXPECT_EQ(Read(folder.Write("empty", "")).message, end);
    const Outcome ofFolder = Read(folder.Path().string());
    EXPECT_EQ(ofFolder.message, cantOpen);
    EXPECT_EQ(ofFolder.plots, "");

    file = PhaseEnvelopeReaderWriter();
    file.SetFileName(folder / "missing/file");
    EXPECT_FALSE(file.Write({}));
    EXPECT_EQ(Read(good).message, cantOpen);
}

TEST_F(EnvelopeTest, WritesEveryKindOfLine) {
    CommonPlottingObject plot(AxisType::Pressure, AxisType::Temperature);
    plot.AddLine(LineOf(16, {{9, 9}}));
    plot.AddLine(LineOf(13, {}));
    plot.AddLine(LineOf(13, {}));
    plot.AddLine(LineOf(7, {{1, 0}}, 0.12345678));
    plot.AddLine(LineOf(7, {}, 1e-7));
    for (const int phase : {5, 4, 6, 3, 1}) {
        plot.AddLine(LineOf(phase, {{phase + 0.5, 1234567}, {-1e-5, 100000}}));
    }
    plot.AddLine(LineOf(1, {{7, 7}, {7, 7}, {7, 7}}));                  // the second dew line
    plot.AddLine(LineOf(8, {{7, 7}, {7, 7}, {7, 7}}));                  // an unknown phase
    plot.AddLine(LineOf(0, {{7, 7}}, 0.0, static_cast<Line::Type>(0))); // and type
    std::string phases;
    for (const Line& line : CommonPlottingObject(plot).GetLines()) { // the plot goes at once
        phases += std::to_string(static_cast<int>(line.GetPhase())) + ' ';
    }
    EXPECT_EQ(phases, "16 13 13 7 7 5 4 6 3 1 1 8 0 ");
    const Plots plots = {plot, CommonPlottingObject(AxisType(7), AxisType(-1))};
    const FluidBenchTest::ForeignGlobalLocale foreign;
    const std::string expected =
        "Flash: \nSource: \nUnits: P(Pa), T(K)\n\n"
        "Bubble,,Dew,,Critical point,,Aqueous,,Ice,,Hydrate type I,,Hydrate type II,,"
        "Vapour,0.123457,Vapour,1e-07,PX2,1,PX2,2,TX3,3,\n"
        "P,T,P,T,P,T,P,T,P,T,P,T,P,T,P,T,P,T,P,T,P,T,P,T,\n"
        " , ,1.5,1.23457e+06, , ,3.5,1.23457e+06,6.5,1.23457e+06,4.5,1.23457e+06,"
        "5.5,1.23457e+06,1,0, , , , , , ,9,9,\n"
        " , ,-1e-05,100000, , ,-1e-05,100000,-1e-05,100000,-1e-05,100000,-1e-05,100000,"
        " , , , , , , , , , ,\n\n"
        "Flash: \nSource: \nUnits: , \n\nBubble,,Dew,,Critical point,,\n,,,,,,\n\n";
    EXPECT_EQ(Written(plots, true), expected);
    EXPECT_EQ(Written({}, true), "");

    const std::pair<int, const char*> numbered[] = {
        {13, "PX2"}, {14, "PX3"}, {15, "TX2"}, {16, "TX3"}};
    for (const auto& [phase, name] : numbered) {
        CommonPlottingObject alone(AxisType::Temperature, AxisType::Pressure);
        alone.AddLine(LineOf(phase, {{1, 2}}));
        EXPECT_NE(Written({alone}, true).find(headings + name + ",1,\n"), std::string::npos)
            << name;
    }

    const PhaseEnvelopeReaderWriter writer(true);
    std::ostringstream out;
    out.imbue(FluidBenchTest::ForeignLocale());
    out << std::fixed << std::setprecision(2) << std::setw(9);
    EXPECT_TRUE(writer.Write(out, plots));
    EXPECT_EQ(out.str(), expected);
    EXPECT_EQ(out.width(), 9);
    out.setstate(std::ios_base::badbit);
    EXPECT_FALSE(writer.Write(out, plots));
    EXPECT_THROW(out.exceptions(std::ios_base::badbit), std::ios_base::failure);
    EXPECT_THROW(writer.Write(out, plots), std::ios_base::failure);
}

TEST_F(EnvelopeTest, NamesEveryAxisWithItsUnit) {
    const std::pair<std::string, std::string> axes[] = {{"T(K)", "T"},
                                                        {"P(Pa)", "P"},
                                                        {"Viscosity(Pa.s)", "Viscosity"},
                                                        {"Density(Kg/m3)", "Density"},
                                                        {"X(fraction)", "X"},
                                                        {"H(J/mol)", "H"},
                                                        {"V(m3/mol)", "V"},
                                                        {"", ""}};
    for (int axis = 0; axis < 8; ++axis) {
        const auto& [unit, letter] = axes[axis];
        const CommonPlottingObject plot{AxisType(axis), AxisType(8)};
        EXPECT_EQ(Written({plot}, true), "Flash: \nSource: \nUnits: " + unit + ", \n\n" + headings +
                                             "\n" + letter + ",," + letter + ",," + letter +
                                             ",,\n\n");
    }
}

TEST_F(EnvelopeTest, GivesBackWhatItWrote) {
    for (const char* const sample : {"rich-gas-envelope.csv", "separator-train-envelopes.txt"}) {
        const std::string path = std::string(FLUIDBENCH_EXAMPLE_DATA) + "/" + sample;
        const bool useComma = std::string_view(sample).ends_with(".csv");
        Plots plots;
        std::vector<std::string> messages;
        file.SetFileName(path);
        Diagnosed diagnosed;
        file.SetDiagnosticSink(diagnosed.Sink());
        ASSERT_TRUE(file.Read(plots, messages));
        file.SetDiagnosticSink({});
        EXPECT_EQ(messages.back(), end);
        EXPECT_EQ(diagnosed.Take(), "");
        EXPECT_EQ(Written(plots, useComma), FluidBenchTest::ReadFile(path));
        Written(plots, !useComma);
        EXPECT_EQ(Read(folder / "written").plots, Text(plots)) << "with the other separator";
    }

    // Longer than the blocks in which files are read and written.
    std::vector<Point> points;
    std::string expected = "bubble";
    for (int i = 0; i < 9000; ++i) {
        points.push_back({i + 0.5, i + 1000.0});
        expected += ' ' + std::to_string(i) + ".5," + std::to_string(i + 1000);
    }
    CommonPlottingObject large(AxisType::Temperature, AxisType::Pressure);
    large.AddLine(LineOf(0, points));
    EXPECT_GT(Written({large}, true).size(), 2U * 65'536);
    EXPECT_TRUE(Read(folder / "written").plots == expected + "; dew; critical");

    // What comes back in another form: a numbered line makes two quality lines, which the rows
    // have no cells for.
    CommonPlottingObject plot(AxisType::Fraction, AxisType::Density);
    plot.AddLine(LineOf(7, {{1, 2}}, 0.5));
    plot.AddLine(LineOf(15, {{3, 4}}));
    Written({plot}, false);
    const Outcome outcome = Read(folder / "written");
    EXPECT_EQ(outcome.plots, noLines + "; q0.5 1,2; q2 3,4; q1");
    EXPECT_EQ(outcome.message, end);
}

TEST_F(EnvelopeTest, ChecksIndicesOfPlots) {
    Orv::FluidBench::Impl::IO::PhaseEnvelopeFile internal(',');
    internal.SetFileName(folder.Write("file", block));
    ASSERT_TRUE(internal.ReadEnvelopes());
    EXPECT_EQ(internal.NumberOfPlots(), 1);
    for (const int index : {-1, 1}) {
        try {
            internal.GetPlot(index);
            ADD_FAILURE() << index;
        } catch (const Orv::FluidBench::Impl::IO::IOInvalidIndex& error) {
            EXPECT_EQ(std::string(error.what()),
                      "No Common Plotting Object with index (" + std::to_string(index) +
                          ") is available. Check available Common Plotting Objects.");
        }
    }
}
