#include "CommandLine.h"

#include "NumberText.h"

#include <algorithm>
#include <iterator>

namespace FluidBenchTool {

namespace {

std::string InQuotes(std::string_view text) {
    return "'" + std::string(text) + "'";
}

bool TakesMore(std::string_view operand) {
    return operand.ends_with("...");
}

} // namespace

std::string NameOf(const Command& command) {
    const std::string verb(command.verb);
    return command.format.empty() ? verb : std::string(command.format) + ' ' + verb;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

Arguments::Arguments(const Command& command, std::span<const std::string> words)
    : command_(&command) {
    bool isOperand = false; // everything behind "--" is
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string& word = words[at];
        if (!isOperand && word == "--") {
            isOperand = true;
        } else if (!isOperand && word.size() > 1 && word.front() == '-') {
            TakeOption(words, at);
        } else if (word.empty()) {
            Fail("A file name is empty.");
        } else {
            operands_.push_back(word);
        }
    }
    const auto wanted = Split(command.operands, ' ');
    if (operands_.size() < wanted.size()) {
        Fail(std::string(wanted[operands_.size()]) + " is missing.");
    }
    if (operands_.size() > wanted.size() && !TakesMore(wanted.front())) {
        Fail("There is no place for " + InQuotes(operands_[wanted.size()]) + ".");
    }
    const bool hasOutput = wanted.back().starts_with("OUT");
    if (std::count(operands_.begin(), operands_.end() - (hasOutput ? 1 : 0), "-") > 1) {
        Fail("The standard input can be read only once.");
    }
}

void Arguments::TakeOption(std::span<const std::string> words, std::size_t& at) {
    const std::string_view word = words[at];
    const std::size_t equals = std::min(word.find('='), word.size());
    const std::string_view name = word.substr(0, equals);
    const auto option = std::ranges::find(command_->options, name, &Option::name);
    if (option == command_->options.end()) {
        Fail("There is no option " + InQuotes(name) + ".");
    }
    if (Has(*option)) {
        Fail(std::string(name) + " is given twice.");
    }
    std::string value;
    if (option->value.empty()) {
        if (equals < word.size()) {
            Fail(std::string(name) + " takes no value.");
        }
    } else if (equals < word.size()) {
        value = word.substr(equals + 1);
    } else if (++at < words.size()) {
        value = words[at];
    } else {
        Fail(std::string(name) + " needs a value: " + std::string(option->value) + ".");
    }
    const auto choices = Split(option->value, '|');
    if (choices.size() > 1 && std::ranges::find(choices, value) == choices.end()) {
        Fail(std::string(name) + " takes " + std::string(option->value) + ", not " +
             InQuotes(value) + ".");
    }
    values_.emplace_back(option->name, std::move(value));
}

const std::string* Arguments::Find(const Option& option) const {
    const auto found =
        std::ranges::find(values_, option.name, &std::pair<std::string_view, std::string>::first);
    return found == values_.end() ? nullptr : &found->second;
}

std::optional<std::string> Arguments::Value(const Option& option) const {
    const std::string* const value = Find(option);
    return value == nullptr ? std::nullopt : std::optional(*value);
}

std::optional<double> Arguments::Number(const Option& option) const {
    const std::string* const value = Find(option);
    if (value == nullptr) {
        return std::nullopt;
    }
    double number = 0.0;
    if (!Orv::Text::ParseNumber(*value, number) || number < 0.0) {
        Fail(std::string(option.name) + " takes a number of zero or more, not " + InQuotes(*value) +
             ".");
    }
    return number;
}

std::optional<std::uint64_t> Arguments::Count(const Option& option) const {
    const std::string* const value = Find(option);
    if (value == nullptr) {
        return std::nullopt;
    }
    const auto count = Orv::Text::ParseCount(*value);
    if (count.value_or(0) == 0) {
        Fail(std::string(option.name) + " takes a whole number from 1 on, not " + InQuotes(*value) +
             ".");
    }
    return count;
}

void Arguments::Fail(const std::string& reason) const {
    throw WrongUsage(reason, NameOf(*command_));
}

} // namespace FluidBenchTool
