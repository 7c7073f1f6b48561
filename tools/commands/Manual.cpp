// The manual page. What a command's section tells are the options that it alone has; those of
// several commands stand together behind them.
#include "Commands.h"
#include "Documents.h"

#include <algorithm>
#include <string>
#include <vector>

namespace FluidBenchTool {

namespace {

// Text as it is, whatever the macros would make of it.
std::string Plain(std::string_view text) {
    std::string plain;
    for (const char c : text) {
        plain += c == '\\' ? "\\e" : c == '-' ? "\\-" : std::string(1, c);
    }
    const bool looksLikeMacro = plain.starts_with('.') || plain.starts_with('\'');
    return looksLikeMacro ? "\\&" + plain : plain;
}

std::string Bold(std::string_view text) {
    return "\\fB" + Plain(text) + "\\fR";
}

// Words in capitals stand for what a person fills in.
std::string WithPlaceholders(std::string_view text) {
    std::string line;
    for (const std::string_view word : Split(text, ' ')) {
        line += ' ' + ("\\fI" + Plain(word) + "\\fR");
    }
    return line;
}

std::string Heading(const Option& option) {
    const bool isChoice = option.value.find('|') != std::string_view::npos;
    return Bold(option.name) +
           (isChoice ? ' ' + Plain(option.value) : WithPlaceholders(option.value));
}

void PrintOption(std::ostream& out, const Option& option) {
    out << ".TP\n" << Heading(option) << '\n' << Plain(option.help) << ".\n";
}

std::vector<const Command*> AllCommands() {
    std::vector<const Command*> all;
    const auto add = [&](std::span<const Command> commands) {
        for (const Command& command : commands) {
            all.push_back(&command);
        }
    };
    for (const Family& family : Families()) {
        add(family.commands);
    }
    add(GeneralCommands());
    return all;
}

bool AreSame(const Option& a, const Option& b) {
    return a.name == b.name && a.value == b.value && a.help == b.help;
}

// The options that more than one command has, by their names.
std::vector<Option> SharedOptions() {
    std::vector<Option> all;
    for (const Command* const command : AllCommands()) {
        all.insert(all.end(), command->options.begin(), command->options.end());
    }
    std::vector<Option> shared;
    for (const Option& option : all) {
        const auto isSame = [&](const Option& other) { return AreSame(option, other); };
        if (std::ranges::count_if(all, isSame) > 1 && std::ranges::none_of(shared, isSame)) {
            shared.push_back(option);
        }
    }
    std::ranges::sort(shared, {}, &Option::name);
    return shared;
}

void PrintCommand(std::ostream& out, const Command& command, const std::vector<Option>& shared) {
    out << ".SS " << Plain(NameOf(command)) << WithPlaceholders(command.operands) << '\n'
        << Plain(command.summary) << ".\n";
    std::vector<const Option*> own;
    std::string others;
    for (const Option& option : command.options) {
        if (std::ranges::none_of(shared, [&](const Option& o) { return AreSame(o, option); })) {
            own.push_back(&option);
        } else {
            others += (others.empty() ? "" : ", ") + Bold(option.name);
        }
    }
    for (const Option* const option : own) {
        PrintOption(out, *option);
    }
    if (!others.empty()) {
        out << ".PP\n" << (own.empty() ? "Takes " : "Takes also ") << others << ".\n";
    }
}

constexpr std::string_view description =
    ".SH DESCRIPTION\n"
    "Each command reads files of one format;\n"
    ".B check\n"
    "reads files of any and finds the format from their content. A file named\n"
    ".B \\-\n"
    "is the standard input or output. An output file is made beside its place and takes it when "
    "it\n"
    "is whole and on the disk; until then an old one stands.\n"
    ".PP\n"
    "Results go to the standard output. Messages go to the error stream, as compilers write them:\n"
    ".PP\n"
    ".RS\n"
    "FILE:LINE: warning: sentence [code]\n"
    ".RE\n"
    ".PP\n"
    "The formats:\n";

constexpr std::string_view ending =
    ".SH EXIT STATUS\n"
    ".TP\n"
    ".B 0\n"
    "Success; of diff, that the files are the same.\n"
    ".TP\n"
    ".B 1\n"
    "Something failed, or a file has errors, or with\n"
    ".B \\-\\-strict\n"
    "warnings; of diff, that the files are different.\n"
    ".TP\n"
    ".B 2\n"
    "Wrong usage; of diff also that it couldn't compare.\n"
    ".SH EXAMPLES\n"
    "Tell what is wrong with all files of a folder:\n"
    ".PP\n"
    ".RS\n"
    "fluidbench\\-io check \\-\\-strict *.inc\n"
    ".RE\n"
    ".PP\n"
    "Write a deck in metric units, in place of the old one:\n"
    ".PP\n"
    ".RS\n"
    "fluidbench\\-io deck convert oil.dat oil.dat \\-\\-to\\-units metric\n"
    ".RE\n"
    ".PP\n"
    "Take one member of what a fluid holds:\n"
    ".PP\n"
    ".RS\n"
    "fluidbench\\-io deck show oil.dat \\-\\-json | jq .reservoirTemperature\n"
    ".RE\n";

} // namespace

void PrintManual(std::ostream& out) {
    out << ".\\\" Made from the program's own tables.\n"
           ".TH FLUIDBENCH\\-IO 1 \"\" \"fluidbench\\-io " FLUIDBENCH_VERSION
           "\" \"User Commands\"\n"
           ".SH NAME\n"
           "fluidbench\\-io \\- look into the files of reservoir fluids, check, convert and draw "
           "them\n"
           ".SH SYNOPSIS\n"
           "\\fBfluidbench\\-io\\fR \\fIFORMAT VERB\\fR ... [\\fIOPTION\\fR ...]\n"
           ".br\n"
           "\\fBfluidbench\\-io help\\fR [\\fIFORMAT\\fR [\\fIVERB\\fR]]\n"
           ".br\n"
           "\\fBfluidbench\\-io \\-\\-version\\fR\n"
        << description;
    for (const Family& family : Families()) {
        out << ".TP\n" << Bold(family.name) << '\n' << Plain(family.title) << '\n';
    }
    const std::vector<Option> shared = SharedOptions();
    out << ".SH COMMANDS\n";
    for (const Command* const command : AllCommands()) {
        PrintCommand(out, *command, shared);
    }
    out << ".SH OPTIONS\n"
           "These are of several commands. The value of an option stands behind it, or behind an "
           "equals sign.\n";
    for (const Option& option : shared) {
        PrintOption(out, option);
    }
    out << ending;
}

} // namespace FluidBenchTool
