// fluidbench-io deck: looks into keyword decks and converts them to the other unit system.
#include "Choices.h"
#include "Commands.h"
#include "FluidTable.h"
#include "Reports.h"
#include "io/PVOFileReader.h"
#include "io/PVOFileWriter.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace FluidBenchTool {

using Orv::FluidBench::Common::pvtEnumPVOErrorSeverityLevel;
using Orv::FluidBench::Common::pvtEnumPVOUnitSystemType;
using Orv::FluidBench::IO::PVOFileReader;
using Orv::FluidBench::IO::PVOFileWriter;
using Orv::FluidBench::Model::CompositionalFluid;
using UnitSystem = pvtEnumPVOUnitSystemType;

namespace {

// How a deck is read.
struct Reading {
    std::string fileName;
    std::optional<UnitSystem> units; // found from the deck's text where not given
    bool isVerbose = false;
};

const std::map<std::string, std::optional<UnitSystem>> readUnits{
    {"auto", std::nullopt}, {"metric", UnitSystem::Metric}, {"field", UnitSystem::Field}};
const std::map<std::string, std::optional<UnitSystem>> shownUnits{{"metric", UnitSystem::Metric},
                                                                  {"field", UnitSystem::Field}};
const std::map<std::string, UnitSystem> writtenUnits{{"metric", UnitSystem::Metric},
                                                     {"field", UnitSystem::Field}};

struct ReadDeck {
    CompositionalFluid fluid;
    UnitSystem units;
};

ReadDeck Read(const Reading& reading) {
    PVOFileReader reader;
    reader.SetPVOName(reading.fileName);
    reader.SetPVOUnitSystem(reading.units.value_or(UnitSystem::Metric));
    reader.SetPVOErrorMessageSeverityLevel(reading.isVerbose
                                               ? pvtEnumPVOErrorSeverityLevel::Debug
                                               : pvtEnumPVOErrorSeverityLevel::Warning);
    CompositionalFluid fluid("");
    TellReport(reader.Read(fluid, !reading.units));
    return {fluid, reader.GetPVOUnitSystemToUse()};
}

void Show(const Reading& reading, std::optional<UnitSystem> shown) {
    const ReadDeck deck = Read(reading);
    std::cout << "deck                   " << reading.fileName << '\n'
              << "units of the deck      " << (deck.units == UnitSystem::Field ? "field" : "metric")
              << (reading.units ? ", as told" : ", from its text") << '\n';
    PrintFluid(std::cout, deck.fluid,
               shown.value_or(deck.units) == UnitSystem::Field ? FluidUnits::Field
                                                               : FluidUnits::Metric);
}

// A temperature with its unit, in K: "160F", "71.1 C" or "344.3K". Nothing for anything else.
std::optional<double> ParseTemperature(std::string_view text) {
    struct Scale {
        std::string_view unit;
        double kelvinPerDegree;
        double kelvinAtZero;
    };
    constexpr Scale scales[] = {
        {"K", 1.0, 0.0}, {"C", 1.0, 273.15}, {"F", 1.0 / 1.8, 459.67 / 1.8}};
    double number = 0.0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc()) {
        return std::nullopt;
    }
    std::string_view unit(behind, static_cast<std::size_t>(end - behind));
    unit.remove_prefix(std::min(unit.find_first_not_of(' '), unit.size()));
    for (const Scale& scale : scales) {
        const double kelvin = number * scale.kelvinPerDegree + scale.kelvinAtZero;
        if (scale.unit == unit && std::isfinite(kelvin) && kelvin >= 0.0) {
            return kelvin;
        }
    }
    return std::nullopt;
}

struct Conversion {
    Reading input;
    std::string output;
    UnitSystem units = UnitSystem::Metric;
    std::string temperature;
    bool writesRunspec = false;
};

void Convert(const Conversion& conversion) {
    constexpr double standardTemperature = 288.706; // K, 60 degrees F
    const ReadDeck deck = Read(conversion.input);
    const double temperature =
        ParseTemperature(conversion.temperature).value_or(standardTemperature);
    TellReport(PVOFileWriter().ExportToPVO(deck.fluid, conversion.output, temperature,
                                           conversion.units == UnitSystem::Metric,
                                           conversion.writesRunspec));
    RequireWholeFile(conversion.output, "/\n--\n");
    if (conversion.temperature.empty()) {
        std::cerr << "note: A fluid doesn't keep its reservoir temperature. The deck is written "
                     "with 60 degrees F; --temperature gives another.\n";
    }
}

void AddReading(CLI::App& command, Reading& reading, const std::string& argument) {
    command.add_option(argument, reading.fileName, "The deck to read")->required();
    AddChoice(command, "--units", reading.units, readUnits,
              "Units of the deck that is read. auto, unless given: found from its FILEUNIT record "
              "or from the comment ahead of TCRIT");
    command.add_flag("--verbose", reading.isVerbose,
                     "Tell which keywords of the deck are passed over");
}

void AddShow(CLI::App& deck) {
    CLI::App* const show = deck.add_subcommand(
        "show", "Show the fluid of a deck: its models, components and interaction coefficients");
    const auto reading = std::make_shared<Reading>();
    const auto shown = std::make_shared<std::optional<UnitSystem>>();
    AddReading(*show, *reading, "FILE");
    AddChoice(*show, "--show-in", *shown, shownUnits,
              "Units of what is shown; those of the deck, unless given");
    show->callback([reading, shown] { Show(*reading, *shown); });
}

void AddConvert(CLI::App& deck) {
    CLI::App* const convert =
        deck.add_subcommand("convert", "Write the fluid of a deck in metric or field units");
    const auto conversion = std::make_shared<Conversion>();
    AddReading(*convert, conversion->input, "IN");
    convert
        ->add_option("OUT", conversion->output, "The deck to write; one that is there is replaced")
        ->required();
    AddChoice(*convert, "--to", conversion->units, writtenUnits, "Units of the deck to write")
        ->required();
    convert
        ->add_option("--temperature", conversion->temperature,
                     "Reservoir temperature to write, with its unit: 160F, 71.1C or 344.3K")
        ->check([](const std::string& text) {
            return ParseTemperature(text) ? std::string()
                                          : "'" + text +
                                                "' isn't a temperature with its unit, such as "
                                                "160F, 71.1C or 344.3K";
        });
    convert->add_flag("--runspec", conversion->writesRunspec,
                      "Put a RUNSPEC section at the head of the deck");
    convert->callback([conversion] { Convert(*conversion); });
}

} // namespace

void AddDeckCommands(CLI::App& program) {
    CLI::App* const deck = program.add_subcommand("deck", "Keyword decks of compositional fluids");
    deck->require_subcommand(1);
    AddShow(*deck);
    AddConvert(*deck);
}

} // namespace FluidBenchTool
