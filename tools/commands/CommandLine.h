// What the program can be asked: its commands with their operands and options as tables, and the
// way from a command line to one of them. Help, and whatever else tells of options, is made from
// the same tables.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace FluidBenchTool {

class Call;

/// An option of a command. `value` is what stands behind the name: nothing for a flag, words parted
/// by "|" where it is one of them, and otherwise what it is, in capitals.
struct Option {
    std::string_view name;
    std::string_view value;
    std::string_view help;
};

/// A command: "FORMAT VERB", or a verb alone. Its tables are constant and outlive everything.
struct Command {
    std::string_view format; ///< empty for a command of every format
    std::string_view verb;
    std::string_view summary;
    /// Parted by blanks. The first one takes one or more where it ends in three dots, as "FILE...".
    std::string_view operands;
    std::span<const Option> options;
    void (*run)(Call&);
};

/// A format by its name on the command line.
struct Format {
    std::string_view name;
    std::string_view title;
    std::span<const Command> commands;
};

/// A command line that can't be understood. `what()` says what is wrong; `command` is as much of
/// the command's name as was understood.
class WrongUsage : public std::runtime_error {
public:
    explicit WrongUsage(const std::string& reason, std::string command = {})
        : std::runtime_error(reason), command_(std::move(command)) {}
    const std::string& CommandName() const noexcept { return command_; }

private:
    std::string command_;
};

/// A command line that was understood: every operand is there, every option belongs to the command,
/// and a choice is one of its words. A value.
class Arguments {
public:
    /// Throws `WrongUsage`. The words are those behind the command's name.
    Arguments(const Command& command, std::span<const std::string> words);

    const std::vector<std::string>& Operands() const noexcept { return operands_; }
    bool Has(const Option& option) const { return Find(option) != nullptr; }
    /// What stands behind the option; nothing where the option isn't given.
    std::optional<std::string> Value(const Option& option) const;
    /// The same as a word of a choice, `otherwise` where the option isn't given.
    std::string Value(const Option& option, const char* otherwise) const {
        return Value(option).value_or(otherwise);
    }
    /// The same as a number of zero or more. Throws `WrongUsage` for another value.
    std::optional<double> Number(const Option& option) const;
    /// The same as a whole number of one or more. Throws `WrongUsage` for another value.
    std::optional<std::uint64_t> Count(const Option& option) const;

private:
    const std::string* Find(const Option& option) const;
    [[noreturn]] void Fail(const std::string& reason) const;
    void TakeOption(std::span<const std::string> words, std::size_t& at);

    const Command* command_;
    std::vector<std::string> operands_;
    std::vector<std::pair<std::string_view, std::string>> values_; // by the option's name
};

/// "blackoil show", or the verb alone.
std::string NameOf(const Command& command);

/// Parts a text at each `separator`.
std::vector<std::string_view> Split(std::string_view text, char separator);

} // namespace FluidBenchTool
