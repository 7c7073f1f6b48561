// fluidbench-io: looks into the files of the library, checks, converts, compares and draws them.
//
// Results go to the standard output and messages to the error stream. Ends with 0 on success, 1
// where something failed, and 2 on wrong usage; `diff` has meanings of its own.
#include "Commands.h"
#include "Descriptor.h"
#include "Documents.h"
#include "Help.h"
#include "Shown.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace FluidBenchTool {

namespace {

constexpr const char* version = "fluidbench-io " FLUIDBENCH_VERSION "\n";

using Words = std::vector<std::string>;

bool IsHelpOption(const std::string& word) {
    return word == "--help" || word == "-h";
}

const Family* FindFamily(const std::string& name) {
    const auto found = std::ranges::find(Families(), name, &Family::name);
    return found == Families().end() ? nullptr : &*found;
}

const Command* FindVerb(std::span<const Command> commands, const std::string& verb) {
    const auto found = std::ranges::find(commands, verb, &Command::verb);
    return found == commands.end() ? nullptr : &*found;
}

// The command that the words begin with, and how many of them are its name.
struct Found {
    const Command* command = nullptr;
    const Family* family = nullptr; // of which no verb is given
    std::size_t length = 0;
};

Found FindCommand(const Words& words) {
    if (words.empty()) {
        throw WrongUsage("A format or a command is missing.");
    }
    if (const Command* const general = FindVerb(GeneralCommands(), words.front())) {
        return {general, nullptr, 1};
    }
    const Family* const family = FindFamily(words.front());
    if (family == nullptr) {
        throw WrongUsage("There is no format or command '" + words.front() + "'.");
    }
    if (words.size() == 1 || IsHelpOption(words[1])) {
        return {nullptr, family, 1};
    }
    const Command* const command = FindVerb(family->commands, words[1]);
    if (command == nullptr) {
        throw WrongUsage("There is no command '" + words[0] + ' ' + words[1] + "'.", words[0]);
    }
    return {command, nullptr, 2};
}

// What is installed beside the program, by the option of help that asks for it.
constexpr std::pair<std::string_view, void (*)(std::ostream&)> documents[] = {
    {"--man", PrintManual}, {"--bash", PrintBashCompletion}, {"--zsh", PrintZshCompletion}};

bool PrintDocument(std::ostream& out, const Words& words) {
    for (const auto& [option, print] : documents) {
        if (words.size() == 1 && words.front() == option) {
            print(out);
            return true;
        }
    }
    return false;
}

void Help(std::ostream& out, const Words& words) {
    if (words.empty()) {
        PrintHelp(out);
        return;
    }
    if (PrintDocument(out, words)) {
        return;
    }
    const Found found = FindCommand(words);
    if (words.size() > found.length) {
        throw WrongUsage("There is no help on '" + words[found.length] + "'.");
    }
    if (found.command == nullptr) {
        PrintHelp(out, found.family->name);
    } else {
        PrintHelp(out, *found.command);
    }
}

// How a command ended, and how it ends where its results can't be written.
struct Ending {
    int status = Status::good;
    int failed = Status::failure;
};

Ending RunCommand(const Command& command, const Words& words, StandardOutput& standardOutput) {
    const Arguments arguments(command, words);
    Messages messages(std::cerr, IsTerminal(Streams::error), arguments.Has(Options::strict));
    Call call(arguments, standardOutput, messages);
    const int failed = command.verb == "diff" ? Status::cantCompare : Status::failure;
    try {
        command.run(call);
        return {messages.IsFailure() ? failed : call.status, failed};
    } catch (const CommandFailed&) {
        return {failed, failed};
    } catch (const WrongUsage&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        messages.Tell(ToolKinds::failure, {}, error.what());
        return {failed, failed};
    }
}

Ending Run(const Words& words, StandardOutput& standardOutput) {
    std::ostream& out = standardOutput.Stream();
    if (!words.empty() && (IsHelpOption(words.front()) || words.front() == "help")) {
        Help(out, Words(words.begin() + 1, words.end()));
        return {};
    }
    if (!words.empty() && words.front() == "--version") {
        out << version;
        return {};
    }
    const Found found = FindCommand(words);
    const Words rest(words.begin() + static_cast<std::ptrdiff_t>(found.length), words.end());
    const auto optionsEnd = std::ranges::find(rest, "--");
    if (std::any_of(rest.begin(), optionsEnd, IsHelpOption)) {
        Help(out, Words(words.begin(), words.end() - std::ssize(rest)));
        return {};
    }
    if (found.command == nullptr) {
        throw WrongUsage("A verb is missing.", words.front());
    }
    return RunCommand(*found.command, rest, standardOutput);
}

int RunAndFinish(const Words& words) {
    StandardOutput standardOutput;
    Ending ending;
    try {
        ending = Run(words, standardOutput);
    } catch (const WrongUsage& error) {
        std::cerr << "fluidbench-io: error: " << Shown(error.what()) << "\nRun 'fluidbench-io help"
                  << (error.CommandName().empty() ? "" : " ") << Shown(error.CommandName())
                  << "' to see what it takes.\n";
        ending.status = Status::wrongUsage;
    }
    if (const std::string reason = standardOutput.Finish(); !reason.empty()) {
        std::cerr << "fluidbench-io: error: The standard output can't be written (" << reason
                  << "). [" << ToolKinds::cantWrite.code << "]\n";
    }
    return standardOutput.HasFailed() ? std::max(ending.status, ending.failed) : ending.status;
}

} // namespace

} // namespace FluidBenchTool

int main(int argumentCount, char** arguments) {
    FluidBenchTool::PrepareStreams();
    try {
        return FluidBenchTool::RunAndFinish(FluidBenchTool::WordsOf(argumentCount, arguments));
    } catch (const std::bad_alloc&) {
        std::cerr << "fluidbench-io: error: There isn't enough memory. [tool.no-memory]\n";
    } catch (const std::exception& error) {
        std::cerr << "fluidbench-io: error: " << error.what() << " [tool.failure]\n";
    }
    return FluidBenchTool::Status::failure;
}
