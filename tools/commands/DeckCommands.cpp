// fluidbench-io deck: looks into keyword decks of fluids, converts and compares them.
#include "FluidView.h"
#include "Fluids.h"
#include "FormatFinder.h"
#include "NumberText.h"
#include "Progress.h"
#include "Shown.h"
#include "io/DeckNames.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace FluidBenchTool {

using Orv::FluidBench::Common::pvtEnumPVOErrorSeverityLevel;
using Orv::FluidBench::Common::pvtEnumPVOUnitSystemType;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::Diagnostic;
using Orv::FluidBench::IO::PVOFileReader;
using Orv::FluidBench::IO::PVOFileWriter;
using UnitSystem = pvtEnumPVOUnitSystemType;

namespace Deck {
namespace {

constexpr Option temperature{"--temperature", "DEGREES",
                             "Reservoir temperature to write, with its unit: 160F, 71.1C or "
                             "344.3K. That of the deck, unless given"};
constexpr Option runspec{"--runspec", "", "Put a RUNSPEC section at the head of the deck"};
constexpr Option verbose{"--verbose", "", "Tell which keywords of the deck are passed over"};
constexpr Option showUnits{"--show-units", "metric|field",
                           "Units of what is shown; those of the deck, unless given"};

// A temperature with its unit, in K: "160F", "71.1 C" or "344.3K". Nothing for anything else.
std::optional<double> ParseTemperature(std::string_view text) {
    struct Scale {
        char unit;
        double kelvinPerDegree;
        double kelvinAtZero;
    };
    constexpr Scale scales[] = {
        {'K', 1.0, 0.0}, {'C', 1.0, 273.15}, {'F', 1.0 / 1.8, 459.67 / 1.8}};
    double number = 0.0;
    for (const Scale& scale : scales) {
        if (!text.ends_with(scale.unit)) {
            continue;
        }
        text.remove_suffix(1);
        text = text.substr(0, text.find_last_not_of(' ') + 1);
        if (Orv::Text::ParseNumber(text, number)) {
            const double kelvin = number * scale.kelvinPerDegree + scale.kelvinAtZero;
            return std::isfinite(kelvin) && kelvin >= 0.0 ? std::optional(kelvin) : std::nullopt;
        }
        break;
    }
    return std::nullopt;
}

std::optional<double> TemperatureAsked(const Call& call) {
    const auto text = call.Asked().Value(temperature);
    if (!text) {
        return std::nullopt;
    }
    const auto kelvin = ParseTemperature(*text);
    if (!kelvin) {
        throw WrongUsage("--temperature takes degrees with their unit, such as 160F, 71.1C or "
                         "344.3K, not '" +
                             *text + "'.",
                         "deck convert");
    }
    return kelvin;
}

FluidFile ReadDeckOperand(std::size_t operand, Call& call) {
    Input input(call.Operand(operand), call.Told());
    return ReadDeck(input, call);
}

void PrintDeck(Call& call, const FluidFile& deck, bool field) {
    std::ostream& out = call.Out();
    out << "deck                   " << Shown(call.Operand(0)) << '\n'
        << "units of the deck      " << (deck.isField ? "field" : "metric")
        << (FromUnits(call) ? ", as told" : ", from its text") << '\n';
    if (const auto kelvin = deck.reservoirTemperature) {
        out << "reservoir temperature  "
            << NumberText(field ? Units::Temperature_K_To_F(*kelvin)
                                : Units::Temperature_K_To_C(*kelvin))
            << (field ? " F\n" : " C\n");
    }
    PrintFluid(out, deck.fluid, field, ExtentOf(call));
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    const FluidFile deck = ReadDeckOperand(0, call);
    const bool field =
        UnitsOf(call.Asked().Value(showUnits, deck.isField ? "field" : "metric")) == Units::FIELD;
    switch (form) {
    case ShowForm::Text:
        PrintDeck(call, deck, field);
        break;
    case ShowForm::Csv:
        PrintFluidCsv(call.Out(), deck.fluid, field);
        break;
    case ShowForm::Json:
        JsonWriter json(call.Out());
        json.BeginObject();
        json.Add("format", "deck");
        json.Add("unitsOfDeck", deck.isField ? "field" : "metric");
        if (deck.reservoirTemperature) {
            json.Add("reservoirTemperature", *deck.reservoirTemperature);
        } else {
            json.AddNull("reservoirTemperature");
        }
        WriteFluid(json, deck.fluid);
        json.EndObject();
        break;
    }
}

void Convert(Call& call) {
    constexpr double standardTemperature = 288.706; // K, 60 degrees F
    const auto asked = TemperatureAsked(call);
    Input input(call.Operand(0), call.Told());
    const FluidFile file = ReadFluid(input, call);
    if (!asked && !file.reservoirTemperature) {
        call.Told().Tell(ToolKinds::noTemperature, input.Name(),
                         "Expected a reservoir temperature, found none: 60 degrees F are written. "
                         "--temperature gives another.");
    }
    for (Diagnostic& change : Orv::FluidBench::IO::NamesThatADeckChanges(file.fluid)) {
        change.file = input.Name();
        call.Told().Tell(change);
    }
    const double kelvin = asked.value_or(file.reservoirTemperature.value_or(standardTemperature));
    call.Write(call.Operand(1), [&](std::ostream& out) {
        PVOFileWriter().ExportToPVO(file.fluid, out, kelvin, !IsField(call, Options::toUnits),
                                    call.Asked().Has(runspec));
    });
}

void Diff(Call& call) {
    Comparison comparison(call.Asked().Number(Options::tolerance).value_or(defaultTolerance));
    const FluidFile first = ReadDeckOperand(0, call);
    const FluidFile second = ReadDeckOperand(1, call);
    const bool field = IsField(call, Options::showUnits);
    if (first.reservoirTemperature && second.reservoirTemperature) {
        const ShownUnit unit = field ? ShownUnit{"F", Units::Temperature_K_To_F}
                                     : ShownUnit{"C", Units::Temperature_K_To_C};
        comparison.Compare("reservoir", "temperature", unit, *first.reservoirTemperature,
                           *second.reservoirTemperature);
    } else if (first.reservoirTemperature || second.reservoirTemperature) {
        comparison.AddMissing("reservoir temperature", first.reservoirTemperature.has_value());
    }
    CompareFluids(comparison, first.fluid, second.fluid, field);
    TellComparison(call, "deck", comparison);
}

constexpr Option showOptions[] = {Options::fromUnits, showUnits,    Options::all,   verbose,
                                  Options::json,      Options::csv, Options::strict};
constexpr Option convertOptions[] = {Options::toUnits, Options::fromUnits, temperature, runspec,
                                     verbose,          Options::strict};
constexpr Option diffOptions[] = {Options::tolerance, Options::fromUnits, Options::showUnits,
                                  Options::json, Options::strict};
constexpr Command commands[] = {
    {"deck", "show",
     "Show the fluid of a deck: its models, components and interaction coefficients", "IN",
     showOptions, Show},
    {"deck", "convert", "Write the fluid of a deck or an MFL file as a deck", "IN OUT",
     convertOptions, Convert},
    {"deck", "diff", "Tell what differs between the fluids of two decks", "A B", diffOptions, Diff},
};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    ReadDeck(input, call);
}

} // namespace Deck

FluidFile ReadDeck(Input& input, Call& call) {
    Messages& messages = call.Told();
    const Progress progress(messages, "Reading " + input.Name());
    const std::uint64_t errors = messages.Errors();
    const auto units = FromUnits(call);
    PVOFileReader reader;
    reader.SetPVOName(input.FileName());
    reader.SetPVOUnitSystem(units == Units::FIELD ? UnitSystem::Field : UnitSystem::Metric);
    // The simulator's logger prints on its own; what it has to say comes to the sink too.
    reader.SetPVOErrorMessageSeverityLevel(pvtEnumPVOErrorSeverityLevel::Fatal);
    if (call.Asked().Has(Deck::verbose)) {
        messages.TellNotes();
    }
    reader.SetDiagnosticSink(messages.Sink());
    FluidFile file;
    messages.TellReport(reader.Read(file.fluid, !units), input.Name(), errors);
    file.isField = reader.GetPVOUnitSystemToUse() == UnitSystem::Field;
    file.reservoirTemperature = reader.GetReservoirTemperature();
    return file;
}

FluidFile ReadFluid(Input& input, Call& call) {
    const bool isMfl = FindFormat(input.Text()).name == "mfl";
    return isMfl ? ReadMfl(input, call) : ReadDeck(input, call);
}

} // namespace FluidBenchTool
