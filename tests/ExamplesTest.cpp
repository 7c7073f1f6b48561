// The example programs: each does what it says, and the pages show them as they are.
#include "TestSupport.h"

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>

using namespace FluidBenchTest;

namespace {

const std::string project = FLUIDBENCH_PROJECT_FOLDER;

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos;
         at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

// The blocks of a page that begin with such a fence.
std::vector<std::string> Blocks(const std::string& page, const std::string& kind) {
    const std::string text = ReadFile(page);
    const std::string fence = "\n```" + kind + "\n";
    std::vector<std::string> blocks;
    for (std::size_t at = text.find(fence); at != std::string::npos; at = text.find(fence, at)) {
        at += fence.size();
        blocks.push_back(text.substr(at, text.find("\n```", at) + 1 - at));
    }
    return blocks;
}

// The bytes that a page shows, in pieces where a line "..." stands for what is left out.
std::vector<std::string> Pieces(const std::string& block) {
    const std::string text = Replaced(Replaced(block, "·", " "), "→", "\t");
    const std::string gap = "...\n";
    std::vector<std::string> pieces;
    std::size_t begin = 0;
    for (std::size_t at = text.find(gap); at != std::string::npos; at = text.find(gap, begin)) {
        pieces.push_back(text.substr(begin, at - begin));
        begin = at + gap.size();
    }
    pieces.push_back(text.substr(begin));
    return pieces;
}

// Programs built elsewhere take the place of the project's where the variable names their folder.
std::string Folder() {
    const char* const elsewhere = std::getenv("FLUIDBENCH_EXAMPLES");
    return elsewhere != nullptr ? elsewhere : FLUIDBENCH_EXAMPLE_PROGRAMS;
}

} // namespace

TEST(Examples, DoWhatTheySay) {
    struct Case {
        std::string program;
        std::string arguments; // "@" stands for the sample files; the output comes from "out..."
        const char* page;      // whose output blocks are what the program writes
        const char* part;      // of the output
        const char* said = ""; // on the error stream, behind the name of the file
    };
    const Case cases[] = {
        {"ExportDeck", "@six-component-fluid.csv .", "", "six-component-fluid-field.pvo\n"},
        {"ConvertDeck", "@reservoir-oil-field.dat out", "deck.md", "\nTCRIT\n--\n190.5555556\n"},
        {"ConvertBlackOil", "@reservoir-black-oil.csv out", "black-oil.md", "\nPVTG\n\t60.0000"},
        {"ExportKValues", "out", "k-values.md", "\nKVTABLE\n"},
        {"ExportThermal", "out", "thermal.md", "\nSPECHH\n"},
        {"ExportDepthTables", "out1 out2 out3", "depth-tables.md", "\nRVVD\n"},
        {"ShowMfl", "@six-component-oil.mfl", "mfl.md", "C15 0.15 206 g/mol\n"},
        {"ReadEnvelope", "@rich-gas-envelope.csv", "phase-envelope.md",
         "critical point 0: 1 points"},
        {"ReadDfa", "@north-field_DFA.txt", "dfa.md", "NORTH 1\n  2990.7 m, 3.16573e+07 Pa, ",
         ":17: Expected a row of the FT file with the same well and depth, found none; the "
         "pressure "
         "is 0.\n"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.program);
        const TemporaryFolder folder;
        const auto run = [&](const std::string& arguments) {
            const std::string command = "cd '" + folder.Path().string() + "' && '" + Folder() +
                                        "/" + each.program + "' " + arguments +
                                        " > outcome 2> messages";
            const int status = std::system(command.c_str());
            return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        };
        EXPECT_EQ(run(""), 2);
        EXPECT_EQ(run(Replaced(Replaced(each.arguments, "@", "missing/"), "out", "missing/out")),
                  1);
        EXPECT_NE(ReadFile(folder / "messages"), "");
        ASSERT_EQ(run(Replaced(each.arguments, "@", FLUIDBENCH_EXAMPLE_DATA "/")), 0);
        const std::string messages = ReadFile(folder / "messages");
        EXPECT_TRUE(messages.ends_with(each.said)) << messages;
        EXPECT_EQ(messages.empty(), *each.said == '\0') << messages;
        std::string output;
        for (const auto& file : std::filesystem::directory_iterator(folder.Path())) {
            output += file.path().filename().string().starts_with("out")
                          ? ReadFile(file.path().string())
                          : std::string();
        }
        EXPECT_NE(output.find(each.part), std::string::npos) << output;
        if (*each.page != '\0') {
            for (const std::string& block : Blocks(project + "/docs/formats/" + each.page, "out")) {
                for (const std::string& piece : Pieces(block)) {
                    EXPECT_NE(output.find(piece), std::string::npos) << piece;
                }
            }
        }
    }
}

TEST(Examples, StandOnThePagesAsTheyAre) {
    std::vector<std::string> sources;
    for (const auto& file : std::filesystem::directory_iterator(project + "/examples")) {
        if (file.path().extension() == ".cpp") {
            sources.push_back(ReadFile(file.path().string()));
        }
    }
    std::vector<std::string> pages{project + "/README.md"};
    for (const auto& page : std::filesystem::directory_iterator(project + "/docs/formats")) {
        if (page.path().extension() == ".md") {
            pages.push_back(page.path().string());
        }
    }
    for (const std::string& page : pages) {
        const auto programs = Blocks(page, "cpp");
        EXPECT_FALSE(programs.empty()) << page;
        for (const std::string& program : programs) {
            EXPECT_EQ(std::ranges::count(sources, program), 1) << page << '\n' << program;
        }
    }
}
