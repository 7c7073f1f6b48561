// Runs the command-line program as a user does. FLUIDBENCH_TOOL in the environment names another
// one than that of this build: with "wine fluidbench-io.exe" it is the program for Windows.
#pragma once

#include "TestSupport.h"

#include <sys/wait.h>

#include <cstdlib>
#include <regex>
#include <string>

namespace FluidBenchTest {

/// How a line of the shell ended, and what it printed.
struct Outcome {
    int status = -1;
    std::string output;
    std::string messages;
};

inline std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos;
         at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

inline bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

/// The words that start the program.
inline std::string ToolCommand() {
    const char* const other = std::getenv("FLUIDBENCH_TOOL");
    return other != nullptr ? other : "'" FLUIDBENCH_TOOL "'";
}

/// Whether it is that for Windows, which ends lines with CR LF.
inline bool IsForWindows() {
    return ToolCommand().ends_with(".exe");
}

/// A test that runs lines of the shell in a folder of its own.
class ToolRun : public testing::Test {
protected:
    // Runs a line of the shell in the test's folder. "TOOL" in it stands for the program and "@"
    // for the folder of the sample files, also in what comes out.
    Outcome Shell(std::string line) {
        const std::string samples = FLUIDBENCH_EXAMPLE_DATA "/";
        line = Replaced(Replaced(line, "TOOL", ToolCommand()), "@", samples);
        const std::string command = "cd '" + folder.Path().string() + "' && { " + line +
                                    "; } > .output 2> .messages < /dev/null";
        const int status = std::system(command.c_str());
        const std::string messages = Replaced(Written(".messages"), samples, "@");
        static const std::regex message(
            R"((?:error|warning|note): (.*) \[([a-z]+\.[a-z0-9-]+)\]\n)");
        for (std::sregex_iterator i(messages.begin(), messages.end(), message), end; i != end;
             ++i) {
            ExpectSentence((*i)[2], (*i)[1]);
        }
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
                Replaced(Written(".output"), samples, "@"), messages};
    }

    Outcome Tool(const std::string& arguments) { return Shell("TOOL " + arguments); }

    // A file of the folder that the program wrote, with newlines for its line ends.
    std::string Written(const std::string& name) {
        const std::string text = ReadFile(folder / name);
        return IsForWindows() ? Replaced(text, "\r\n", "\n") : text;
    }

    // What isn't hidden, and so not this class's own.
    std::string FilesOf(const std::string& subfolder = ".") {
        return Shell("ls -A " + subfolder + " | grep -vx '\\.output\\|\\.messages'").output;
    }

    TemporaryFolder folder;
};

} // namespace FluidBenchTest
