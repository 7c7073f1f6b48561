// The command-line program as a user runs it: exit status, output and messages.
#include "TestSupport.h"

#include <sys/wait.h>

#include <cstdlib>

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
