// Options whose value is one of a few words.
#pragma once

#include <CLI/CLI.hpp>

#include <map>
#include <string>

namespace FluidBenchTool {

/// Adds an option that takes one of the words of `choices`, which has to outlive the parsing, and
/// puts what the word stands for into `value`. Gives the option.
template <typename Value>
CLI::Option* AddChoice(CLI::App& command, const std::string& name, Value& value,
                       const std::map<std::string, Value>& choices,
                       const std::string& description) {
    return command
        .add_option_function<std::string>(
            name, [&value, &choices](const std::string& word) { value = choices.at(word); },
            description)
        ->check(CLI::IsMember(choices));
}

} // namespace FluidBenchTool
