#include "Help.h"

#include "Commands.h"

#include <algorithm>
#include <string>

namespace FluidBenchTool {

namespace {

constexpr std::size_t lineLength = 80;

// Prints a text behind a heading, from a column on, broken at blanks.
void PrintItem(std::ostream& out, const std::string& heading, std::string_view text,
               std::size_t column) {
    std::string line = heading.empty() ? heading : "  " + heading;
    if (!line.empty() && line.size() + 2 > column) {
        out << line << '\n';
        line.clear();
    }
    line.resize(column, ' ');
    bool isBegin = true;
    for (const std::string_view word : Split(text, ' ')) {
        if (!isBegin && line.size() + 1 + word.size() > lineLength) {
            out << line << '\n';
            line.assign(column, ' ');
            isBegin = true;
        }
        line += (isBegin ? "" : " ") + std::string(word);
        isBegin = false;
    }
    out << line << '\n';
}

void PrintCommands(std::ostream& out, std::span<const Command> commands) {
    constexpr std::size_t column = 26;
    for (const Command& command : commands) {
        PrintItem(out, NameOf(command) + ' ' + std::string(command.operands), command.summary,
                  column);
    }
}

std::string Heading(const Option& option) {
    return std::string(option.name) + (option.value.empty() ? "" : " ") + std::string(option.value);
}

} // namespace

void PrintHelp(std::ostream& out) {
    out << "Looks into the files of reservoir fluids, checks, converts and draws them.\n\n"
           "usage: fluidbench-io FORMAT VERB ...\n\n";
    for (const Family& family : Families()) {
        out << family.title << '\n';
        PrintCommands(out, family.commands);
    }
    out << "all formats\n";
    PrintCommands(out, GeneralCommands());
    out << "\n  help [FORMAT [VERB]]    this, or more on a format or command\n"
           "  help --man|--bash|--zsh the manual page, or what a shell completes lines with\n"
           "  --version               the program's version\n\n"
           "A file named - is the standard input or output. The exit status is 0, or 1 where\n"
           "something failed or a file has errors, or 2 on wrong usage; that of diff is 0 for\n"
           "the same, 1 for different, and 2 where it couldn't compare.\n";
}

void PrintHelp(std::ostream& out, std::string_view format) {
    const auto family = std::ranges::find(Families(), format, &Family::name);
    out << family->name << ": " << family->title << "\n\n";
    PrintCommands(out, family->commands);
    out << "\nRun 'fluidbench-io help " << format << " VERB' for the options.\n";
}

void PrintHelp(std::ostream& out, const Command& command) {
    constexpr std::size_t column = 34;
    out << "usage: fluidbench-io " << NameOf(command) << ' ' << command.operands
        << (command.options.empty() ? "" : " [OPTION ...]") << "\n\n";
    PrintItem(out, "", std::string(command.summary) + '.', 0);
    out << '\n';
    for (const Option& option : command.options) {
        PrintItem(out, Heading(option), option.help, column);
    }
}

} // namespace FluidBenchTool
