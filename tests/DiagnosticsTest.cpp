// The page of the diagnostics and the codes in the sources, held to each other.
#include "TestSupport.h"

#include <map>
#include <regex>
#include <set>

using namespace FluidBenchTest;

namespace {

using CodesAndSeverities = std::map<std::string, std::string>;

CodesAndSeverities Find(const std::string& text, const char* pattern) {
    CodesAndSeverities found;
    const std::regex expression(pattern);
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end;
         ++match) {
        std::string severity = (*match)[2];
        severity[0] = static_cast<char>(severity[0] | 0x20); // small
        severity = severity == "debug" ? "note" : severity;
        EXPECT_TRUE(found.emplace((*match)[1], severity).second) << (*match)[1] << " twice";
    }
    return found;
}

const std::set<std::string> untold = {"deck.no-fluid", "tool.failure", "tool.no-memory",
                                      "tool.reported", "tool.reported-warning"};

TEST(Diagnostics, EveryCodeIsOnThePageAndEveryCodeOfThePageExists) {
    const std::string folder = FLUIDBENCH_PROJECT_FOLDER;
    const auto onPage = Find(ReadFile(folder + "/docs/diagnostics.md"),
                             R"(\| `([a-z]+\.[a-z0-9-]+)` \| (note|warning|error) \|)");
    CodesAndSeverities inSources;
    for (const char* const table :
         {"/src/common/DiagnosticKinds.h", "/substitute/simulator/DeckProblems.h",
          "/tools/views/ToolKinds.h"}) {
        inSources.merge(
            Find(ReadFile(folder + table),
                 R"lit(\{"([a-z]+\.[a-z0-9-]+)",\s*(?:\w+::)*(Note|Warning|Error|Debug))lit"));
    }
    EXPECT_GT(onPage.size(), 10U);
    EXPECT_EQ(onPage, inSources);
    // Each is told by some test, but those that only other closed libraries, or an empty memory,
    // lead to.
    const std::string sentences = '\n' + ReadData("sentences.txt");
    for (const auto& [code, severity] : inSources) {
        const bool isTold = sentences.find('\n' + code + ": ") != std::string::npos;
        EXPECT_NE(isTold, untold.contains(code)) << code;
    }
}

} // namespace
