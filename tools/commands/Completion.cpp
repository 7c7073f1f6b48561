// What shells complete command lines with: the words of the tables, and file names for the rest.
#include "Commands.h"
#include "Documents.h"

#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

namespace {

using Word = std::pair<std::string_view, std::string_view>; // and what it means

// The words that may come first, behind the program's name.
std::vector<Word> FirstWords() {
    std::vector<Word> words;
    for (const Family& family : Families()) {
        words.emplace_back(family.name, family.title);
    }
    for (const Command& command : GeneralCommands()) {
        words.emplace_back(command.verb, command.summary);
    }
    words.emplace_back("help", "more on a format or command");
    words.emplace_back("--version", "the program's version");
    return words;
}

std::vector<Word> VerbsOf(const Family& family) {
    std::vector<Word> verbs;
    for (const Command& command : family.commands) {
        verbs.emplace_back(command.verb, command.summary);
    }
    return verbs;
}

template <typename Visit>
void ForEachCommand(Visit visit) {
    for (const Family& family : Families()) {
        for (const Command& command : family.commands) {
            visit(command);
        }
    }
    for (const Command& command : GeneralCommands()) {
        visit(command);
    }
}

// The words that may stand behind an option, parted by blanks; none where it takes no choice.
std::string ChoicesOf(const Option& option) {
    std::string words(option.value);
    if (words.find('|') == std::string::npos) {
        return {};
    }
    for (char& c : words) {
        c = c == '|' ? ' ' : c;
    }
    return words;
}

// Text between single quotes, which no shell looks into.
std::string Quoted(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? "'\\''" : std::string(1, c);
    }
    return quoted + '\'';
}

template <typename Words, typename Text>
std::string Joined(const Words& words, Text text) {
    std::string joined;
    for (const auto& word : words) {
        joined += (joined.empty() ? "" : " ") + std::string(text(word));
    }
    return joined;
}

constexpr std::string_view bashBeginning =
    "# Completes command lines of fluidbench-io in bash. Made from the program's own tables.\n"
    "_fluidbench_io() {\n"
    "    local current=${COMP_WORDS[COMP_CWORD]} words='' files='' word\n"
    "    local -a typed=()\n"
    "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
    "        [[ $word == '=' ]] || typed+=(\"$word\") # of an option and its value in one\n"
    "    done\n"
    "    [[ $current != '=' ]] || current=''\n"
    "    case \"${typed[*]}\" in\n";

constexpr std::string_view bashEnding =
    "    esac\n"
    "    if [[ -n $files && $current != -* ]]; then\n"
    "        compopt -o filenames 2>/dev/null\n"
    "        mapfile -t COMPREPLY < <(compgen -f -- \"$current\")\n"
    "    else\n"
    "        mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
    "    fi\n"
    "}\n"
    "complete -F _fluidbench_io fluidbench-io\n";

// The words that were typed ahead, as a pattern, and what may follow: the cases of the options with
// a choice come before that of the command.
void PrintBashCases(std::ostream& out, const Command& command) {
    const std::string name = Quoted(NameOf(command));
    for (const Option& option : command.options) {
        if (const std::string choices = ChoicesOf(option); !choices.empty()) {
            out << "    " << name << "*' " << option.name << "') words=" << Quoted(choices)
                << " ;;\n";
        }
    }
    const std::string options = Joined(command.options, [](const Option& o) { return o.name; });
    out << "    " << name << "*) words=" << Quoted(options) << " files=yes ;;\n";
}

// A word and what it means, as zsh describes it: a colon parts the two.
std::string Described(const Word& word) {
    return Quoted(std::string(word.first) + ':' + std::string(word.second));
}

// A text within an argument of _arguments, where colons and brackets part.
std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        escaped += (c == ':' || c == '[' || c == ']' || c == '\\' ? "\\" : "") + std::string(1, c);
    }
    return escaped;
}

std::string ZshArgument(const Option& option) {
    std::string argument(option.name);
    argument += (option.value.empty() ? "[" : "=[") + Escaped(option.help) + ']';
    if (!option.value.empty()) {
        const std::string choices = ChoicesOf(option);
        argument +=
            choices.empty() ? ":" + Escaped(option.value) + ":_files" : ":choice:(" + choices + ')';
    }
    return Quoted(argument);
}

constexpr std::string_view zshBeginning =
    "#compdef fluidbench-io\n"
    "# Completes command lines of fluidbench-io in zsh. Made from the program's own tables.\n"
    "local -a found\n"
    "if (( CURRENT > 2 )) && [[ $words[2] == help ]]; then\n"
    "    shift words\n"
    "    (( CURRENT-- ))\n"
    "fi\n";

// The words of a place that has a fixed number of words ahead, and meanings.
void PrintZshWords(std::ostream& out, const std::vector<Word>& words, const char* what) {
    out << "    found=(" << Joined(words, Described) << ")\n    _describe " << what << " found\n";
}

// Those of an option, or file names.
void PrintZshCase(std::ostream& out, const Command& command) {
    out << Quoted(NameOf(command)) << (command.format.empty() ? "*" : "") << ")\n    shift "
        << (command.format.empty() ? "1" : "2")
        << " words\n    (( CURRENT -= " << (command.format.empty() ? "1" : "2")
        << " ))\n    _arguments -S " << Joined(command.options, ZshArgument)
        << " '*:file:_files' ;;\n";
}

} // namespace

void PrintBashCompletion(std::ostream& out) {
    const auto name = [](const Word& word) { return word.first; };
    const std::string first = Quoted(Joined(FirstWords(), name));
    out << bashBeginning << "    '' | help) words=" << first << " ;;\n";
    for (const Family& family : Families()) {
        out << "    " << family.name << " | 'help " << family.name
            << "') words=" << Quoted(Joined(VerbsOf(family), name)) << " ;;\n";
    }
    ForEachCommand([&](const Command& command) { PrintBashCases(out, command); });
    out << bashEnding;
}

void PrintZshCompletion(std::ostream& out) {
    out << zshBeginning << "if (( CURRENT == 2 )); then\n";
    PrintZshWords(out, FirstWords(), "'format or command'");
    out << "    return\nfi\n";
    for (const Family& family : Families()) {
        out << "if (( CURRENT == 3 )) && [[ $words[2] == " << family.name << " ]]; then\n";
        PrintZshWords(out, VerbsOf(family), "verb");
        out << "    return\nfi\n";
    }
    out << "case \"$words[2] $words[3]\" in\n";
    ForEachCommand([&](const Command& command) { PrintZshCase(out, command); });
    out << "esac\n";
}

} // namespace FluidBenchTool
