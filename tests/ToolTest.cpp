// The command-line program as a user runs it: exit status, output and messages.
#include "TestSupport.h"

#include <sys/wait.h>

#include <cstdlib>
#include <sstream>

using namespace FluidBenchTest;

namespace {

struct Outcome {
    int status = -1;
    std::string output;
    std::string messages;
};

class ToolTest : public testing::Test {
protected:
    // Runs the program in the test's folder. "@" in the arguments stands for the sample files.
    Outcome Tool(std::string arguments) {
        for (std::size_t at = arguments.find('@'); at != std::string::npos;
             at = arguments.find('@')) {
            arguments.replace(at, 1, FLUIDBENCH_EXAMPLE_DATA "/");
        }
        const std::string command = "cd '" + folder.Path().string() +
                                    "' && '" FLUIDBENCH_TOOL "' " + arguments +
                                    " > output 2> messages < /dev/null";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadFile(folder / "output"),
                ReadFile(folder / "messages")};
    }

    TemporaryFolder folder;
};

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(ToolTest, EndsWithTheStatusOfWhatHappened) {
    folder.Write("bad.dat", "CNAMES\nC1 C2 /\nMW\n16 /\n");
    folder.Write("good.dat", "CNAMES\nC1 C2 /\n--Units: K\nTCRIT\n100 200 /\n");
    folder.Write("unknown.dat", "CNAMES\nC1 /\nSWFN\n1 2 3 /\n");
    folder.Write("short.csv", "Flash\n\n\n\nBubble\nT,P,\n1");
    folder.Write("no-end.csv", "Flash\n\n\n\nBubble,1\nT,P,\n");
    folder.Write("long.csv", "Flash\n\n\n\nBubble" + std::string(500, ' ') + "\nT,P,\n");
    std::string shortHeadings = "Bubble,";
    for (int i = 0; i < 60; ++i) {
        shortHeadings += "1,"; // and "Vapour,1," once it is written
    }
    folder.Write("terse.csv", "Flash\n\n\n\n" + shortHeadings + "\nT,P,\n");
    folder.Write("other.csv", "Flash\n\nUnits: X(fraction), P(Pa)\n\nBubble,PX2,1,\nX,P,\n");
    struct Case {
        const char* arguments;
        int status;
        const char* output;
        const char* message;
    };
    const Case cases[] = {
        {"--help", 0, "deck", ""},
        {"", 2, "", "A subcommand is required"},
        {"nonsense", 2, "", "--help"},
        {"deck show --help", 0, "--units", ""},
        {"deck show", 2, "", "FILE"},
        {"deck show good.dat --units lab", 2, "", "lab"},
        {"deck show good.dat", 0, "metric, from its text", ""},
        {"deck show good.dat --units field", 0, "Tc R\nC1                     0   100\n", ""},
        {"deck show good.dat --show-in field", 0, "Tc R\nC1                     0   180\n", ""},
        {"deck show unknown.dat --verbose", 0, "C1", "keyword 'SWFN' is passed over"},
        {"deck show bad.dat", 1, "",
         "bad.dat, line 4, keyword MW: expected as many numbers as components (2), found '/' "
         "behind 1 of them.\nerror: The deck could not be interpreted"},
        {"deck show missing.dat", 1, "", "File 'missing.dat' could not be found."},
        {"deck convert good.dat", 2, "", "OUT"},
        {"deck convert good.dat out.dat", 2, "", "--to"},
        {"deck convert good.dat out.dat --to field --temperature 160", 2, "", "160F"},
        {"deck convert good.dat none/out.dat --to field", 1, "", "none/out.dat"},
        {"deck convert bad.dat out2.dat --to field", 1, "", "keyword MW"},
        {"deck convert good.dat out.dat --to field", 0, "", "--temperature"},
        {"blackoil show @reservoir-black-oil.csv", 0, "oil density", ""},
        {"blackoil show missing.csv", 1, "", "missing.csv"},
        {"blackoil convert @reservoir-black-oil.csv out.txt --tables all", 2, "", "all"},
        {"blackoil convert @reservoir-black-oil.csv none/out.txt", 1, "", "none/out.txt"},
        {"dfa show @north-field_DFA.txt", 0, "Well", ""},
        {"dfa show missing.txt", 1, "", "missing.txt"},
        {"mfl show @six-component-oil.mfl", 0, "C1", ""},
        {"mfl show missing.mfl", 1, "", "missing.mfl"},
        {"envelope show @rich-gas-envelope.csv", 0, "Vapour fraction        0.95      88", ""},
        {"envelope show @rich-gas-envelope.csv --units field", 0, "72.9608             2969.53",
         ""},
        {"envelope show missing.csv", 1, "", "Could not open file"},
        {"envelope show bad.dat", 1, "", "no phase envelope file"},
        {"envelope show short.csv", 0, "", "Error in column 0"},
        {"envelope show long.csv", 1, "", "has a line of more than 499 characters"},
        {"envelope convert terse.csv out.txt --separator tab", 0, "",
         "'out.txt' has a line of more than 499 characters"},
        {"envelope show no-end.csv", 1, "", "A number in a heading line has no separator"},
        {"envelope show other.csv", 0, "", "PX or TX lines, which can't be read"},
        {"envelope show other.csv", 0, "", "states units other than T(K), P(Pa)"},
        {"envelope convert @rich-gas-envelope.csv out.txt", 2, "", "--separator"},
        {"envelope convert @rich-gas-envelope.csv none/out.txt --separator tab", 1, "", "none/out"},
        {"envelope plot @rich-gas-envelope.csv none/out.svg", 1, "", "none/out.svg"},
    };
    for (const Case& c : cases) {
        const Outcome run = Tool(c.arguments);
        EXPECT_EQ(run.status, c.status) << c.arguments << '\n' << run.messages;
        EXPECT_TRUE(Contains(run.output, c.output)) << c.arguments << '\n' << run.output;
        EXPECT_TRUE(Contains(run.messages, c.message)) << c.arguments << '\n' << run.messages;
        EXPECT_TRUE(run.status == 0 || !run.messages.empty()) << c.arguments;
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "out2.dat"));
}

TEST_F(ToolTest, ConvertsADeckThereAndBack) {
    ASSERT_EQ(Tool("deck convert @reservoir-oil-field.dat metric.dat --to metric --runspec "
                   "--temperature 344.26K")
                  .status,
              0);
    const std::string metric = ReadFile(folder / "metric.dat");
    EXPECT_TRUE(metric.starts_with("RUNSPEC\n--\nCOMPS\n--\n6\n"));
    EXPECT_TRUE(Contains(metric, "RTEMP\n--\n71.11\n"));
    // From here on the values that were missing are zeros.
    ASSERT_EQ(
        Tool("deck convert metric.dat zeros.dat --to metric --runspec --temperature 71.11C").status,
        0);
    ASSERT_EQ(Tool("deck convert metric.dat field.dat --to field --temperature '160 F'").status, 0);
    ASSERT_EQ(
        Tool("deck convert field.dat again.dat --to metric --runspec --temperature 71.11C").status,
        0);
    EXPECT_EQ(ReadFile(folder / "again.dat"), ReadFile(folder / "zeros.dat"));
    EXPECT_TRUE(Contains(ReadFile(folder / "field.dat"), "RTEMP\n--\n160\n"));
}

TEST_F(ToolTest, RewritesAPhaseEnvelopeWithTheOtherSeparator) {
    const std::string sample = "@separator-train-envelopes.txt";
    ASSERT_EQ(Tool("envelope convert " + sample + " comma.csv --separator comma").status, 0);
    ASSERT_EQ(Tool("envelope convert comma.csv again.txt --separator tab").status, 0);
    EXPECT_EQ(ReadFile(folder / "again.txt"),
              ReadFile(FLUIDBENCH_EXAMPLE_DATA "/separator-train-envelopes.txt"));
}

TEST_F(ToolTest, DrawsAPictureOfEachPlotWithinItsFrame) {
    const std::string block = "Flash\n\n\n\nBubble,,Dew,,Critical point,,\nT,P,T,P,T,P,\n";
    std::string rows = "200,1e5,1e999,1,300,2e7,\n,,1e300,-1e999,,,\n,,250,1e6,,,\n,,250,1e6,,,\n";
    for (int i = 0; i < 50'000; ++i) {
        rows += std::to_string(200 + i * 2e-3) + ',' + std::to_string(1e5 + i * 4e2) + ",,,,,\n";
    }
    folder.Write("a&b\x01\xFF<.csv", block + rows + "\n" + block);
    ASSERT_EQ(Tool("envelope plot a* picture.v1.svg").output, "picture.v1.svg\npicture.v1-2.svg\n");
    const std::string first = ReadFile(folder / "picture.v1.svg");
    EXPECT_TRUE(Contains(first, ">a&amp;b\uFFFD\uFFFD&lt;.csv, plot 1 of 2</text>"));
    EXPECT_TRUE(Contains(first, ">\u221260</text>")) << "a tick at -60 degrees C";
    EXPECT_TRUE(Contains(first, ">26.85 \u00B0C, 200 bar</text>")) << "the critical point";
    EXPECT_TRUE(Contains(first, "r=\"3.5\" fill=\"#c8461e\"")) << "a dew line of one place";
    EXPECT_LT(first.size(), 50'000U) << "only what can be seen is drawn";
    EXPECT_TRUE(Contains(ReadFile(folder / "picture.v1-2.svg"), ">No points</text>"));

    std::size_t places = 0;
    for (std::size_t at = first.find(" points=\""); at != std::string::npos;
         at = first.find(" points=\"", at + 1)) {
        const std::size_t begin = at + std::string(" points=\"").size();
        std::istringstream points(first.substr(begin, first.find('"', begin) - begin));
        char comma = ' ';
        for (double x = 0.0, y = 0.0; points >> x >> comma >> y; ++places) {
            EXPECT_TRUE(x >= 88 && x <= 712 && y >= 76 && y <= 526) << x << ' ' << y;
        }
        EXPECT_TRUE(points.eof()) << "no other text among the places";
    }
    EXPECT_GT(places, 500U);
}
