// What the commands of the formats share: how they are called, the options that mean the same
// everywhere, and the list of the formats.
#pragma once

#include "CommandLine.h"
#include "Comparison.h"
#include "FluidBench/Common/Units.h"
#include "Input.h"
#include "Messages.h"
#include "Output.h"
#include "Table.h"

#include <optional>
#include <ostream>
#include <span>
#include <string>

namespace FluidBenchTool {

/// One call of the program: what was asked for, where results go, and what is told. A command
/// throws `CommandFailed` when it can't do what it was asked for, after it told why.
class Call {
public:
    Call(const Arguments& arguments, StandardOutput& standardOutput, Messages& messages)
        : arguments_(arguments), standardOutput_(standardOutput), messages_(messages) {}

    const Arguments& Asked() const noexcept { return arguments_; }
    const std::string& Operand(std::size_t index) const { return arguments_.Operands().at(index); }
    Messages& Told() noexcept { return messages_; }
    std::ostream& Out() { return standardOutput_.Stream(); }
    /// Writes the file as `WriteOutput` does, unless there were errors before.
    void Write(const std::string& name, const std::function<void(std::ostream&)>& write);
    /// What the command ends with unless it fails; 0 until it is set.
    int status = 0;

private:
    const Arguments& arguments_;
    StandardOutput& standardOutput_;
    Messages& messages_;
};

/// The options that mean the same in every command that has them.
namespace Options {
// clang-format off
inline constexpr Option fromUnits{"--from-units", "auto|metric|field",
    "Units of the file that is read. auto, unless given: what the file says"};
inline constexpr Option toUnits{"--to-units", "metric|field", "Units to write; metric, unless given"};
inline constexpr Option showUnits{"--show-units", "metric|field",
    "Units of what is shown; metric, unless given"};
inline constexpr Option strict{"--strict", "",
    "Count warnings as errors: nothing is written, and the exit status is 1"};
inline constexpr Option json{"--json", "", "Show everything as JSON, in model units, for programs"};
inline constexpr Option csv{"--csv", "", "Show the tables with commas, for spreadsheets"};
inline constexpr Option all{"--all", "", "Show all rows of long tables"};
inline constexpr Option toKeywordsOrCsv{"--to", "keywords|csv",
    "Form to write. Where it isn't given, csv for a name that ends in .csv, and else keywords. The "
    "numbers of csv are metric always"};
inline constexpr Option region{"--region", "NUMBER",
    "The region to take from a file of several. Unless given, all of them go into keywords, and the "
    "first one into csv"};
inline constexpr Option tolerance{"--tolerance", "NUMBER",
    "Numbers that differ by no more than this, relative to the larger one, count as the same; "
    "1e-6, unless given"};
inline constexpr Option highPrecision{"--high-precision", "", "Write more decimals"};
// clang-format on
} // namespace Options

/// The exit statuses of the program.
namespace Status {
inline constexpr int good = 0;
inline constexpr int failure = 1;
inline constexpr int wrongUsage = 2;
inline constexpr int different = 1;   ///< of diff
inline constexpr int cantCompare = 2; ///< of diff
} // namespace Status

/// A choice of units by its word.
Orv::FluidBench::Common::Units::UNIT_TYPE UnitsOf(const std::string& word);
/// The units that `Options::fromUnits` names; nothing for auto.
std::optional<Orv::FluidBench::Common::Units::UNIT_TYPE> FromUnits(const Call& call);

/// The form with commas is metric always: fails where other units were asked for.
void RequireMetric(const Input& input, Call& call);

/// Whether the text has keywords; otherwise it has commas.
bool HasKeywords(Input& input);

/// Has a keyword reader of the library read the text, and tells what it has to say.
template <typename Reader, typename Result>
void ReadKeywords(Input& input, Call& call, Result& result) {
    Messages& messages = call.Told();
    const std::uint64_t errors = messages.Errors();
    Reader reader;
    reader.SetDiagnosticSink(messages.Sink());
    messages.TellReport(reader.Read(input.Text(), result, FromUnits(call), input.Name()),
                        input.Name(), errors);
}

/// Whether `Options::toUnits` or a like option asks for field units.
bool IsField(const Call& call, const Option& option);

/// Whether `Options::toKeywordsOrCsv` asks for csv for a file of that name.
bool IsToCsv(const Call& call, const std::string& name);

/// What every `show` can be asked for.
enum class ShowForm { Text, Json, Csv };
/// Throws `WrongUsage` where both are asked for.
ShowForm ShowFormOf(const Call& call);

/// How much of a long table is shown.
Extent ExtentOf(const Call& call);

inline constexpr double defaultTolerance = 1e-6;
/// Prints what differs between the two operands, and sets the status.
void TellComparison(Call& call, std::string_view format, const Comparison& comparison);

/// Throws `WrongUsage` unless the name is one of an SVG picture.
void RequirePictureName(const std::string& name);
/// The file to read is the file to write, which would be lost: told and refused.
void RefuseSameFile(Call& call, const std::string& input, const std::string& output);

/// A family of formats.
struct Family {
    std::string_view name;
    std::string_view title;
    std::span<const Command> commands;
    /// Reads the file and has its diagnostics told.
    void (*check)(Input& input, Call& call);
};
/// In the order in which help lists them.
std::span<const Family> Families();
/// The commands of no family.
std::span<const Command> GeneralCommands();

// Of each family, its commands and its check.
namespace BlackOil {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace BlackOil
namespace Compositions {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace Compositions
namespace Deck {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace Deck
namespace Depth {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace Depth
namespace Dfa {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace Dfa
namespace Envelope {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace Envelope
namespace KValues {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace KValues
namespace Mfl {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace Mfl
namespace Thermal {
std::span<const Command> Commands();
void Check(Input& input, Call& call);
} // namespace Thermal

} // namespace FluidBenchTool
