// fluidbench-io check: reads files of any format and tells all that their readers have to say.
#include "Commands.h"
#include "FormatFinder.h"
#include "Progress.h"
#include "Shown.h"
#include "TextInput.h"

#include <algorithm>

namespace FluidBenchTool {

using Orv::Text::TextKind;

namespace {

constexpr Option format{"--format",
                        "deck|blackoil|compositions|kvalues|thermal|depth|envelope|dfa|mfl",
                        "The format of the files. Found from their content, unless given"};

std::string CountText(std::uint64_t count, const char* what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

// Fails where the text is of a kind that no reader takes apart.
void RequirePlainText(Input& input, Messages& messages) {
    const TextKind kind = Orv::Text::TextInput(input.Text()).Kind();
    if (kind != TextKind::Plain) {
        std::string sentence = Orv::Text::WhatIsOdd(kind) + '.';
        sentence[0] = 'E';
        messages.Fail(kind == TextKind::CarriageReturns ? ToolKinds::carriageReturns
                                                        : ToolKinds::utf16,
                      input.Name(), sentence, 1);
    }
}

const Family& FamilyOf(Input& input, Call& call) {
    const auto asked = call.Asked().Value(format);
    const std::string name = asked ? *asked : std::string(FindFormat(input.Text()).name);
    const auto family = std::ranges::find(Families(), name, &Family::name);
    if (family == Families().end()) {
        RequirePlainText(input, call.Told());
        call.Told().Fail(ToolKinds::unknownFormat, input.Name(),
                         "Expected a format that can be known by its keywords or headings, found "
                         "none; --format says which it is.");
    }
    return *family;
}

void CheckFile(const std::string& name, Call& call) {
    Messages& messages = call.Told();
    const std::uint64_t errors = messages.Errors();
    const std::uint64_t warnings = messages.Warnings();
    try {
        Input input(name, messages);
        const Progress progress(messages, "Reading " + input.Name());
        const Family& family = FamilyOf(input, call);
        family.check(input, call);
        call.Out() << Shown(input.Name()) << ": " << family.name << ", ";
    } catch (const CommandFailed&) {
        call.Out() << Shown(name) << ": ";
    }
    const std::uint64_t newErrors = messages.Errors() - errors;
    const std::uint64_t newWarnings = messages.Warnings() - warnings;
    call.Out() << (newErrors + newWarnings == 0
                       ? "good"
                       : CountText(newErrors, "error") + ", " + CountText(newWarnings, "warning"))
               << '\n';
}

void Check(Call& call) {
    call.Told().TellNotes();
    for (const std::string& name : call.Asked().Operands()) {
        CheckFile(name, call);
    }
    call.Told().RequireNoFailure();
}

constexpr Option options[] = {format, Options::fromUnits, Options::strict};
constexpr Command commands[] = {
    {"", "check",
     "Read files of any format and tell what is wrong with them, line by line. The exit status is "
     "1 where one has errors",
     "FILE...", options, Check}};

} // namespace

std::span<const Command> GeneralCommands() {
    return commands;
}

} // namespace FluidBenchTool
