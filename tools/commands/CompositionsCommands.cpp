// fluidbench-io compositions: shows compositions of both phases against pressure.
#include "Commands.h"
#include "FluidBench/Common/Units.h"
#include "Json.h"
#include "Progress.h"
#include "ShownUnit.h"
#include "io/CompositionTableReader.h"

#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::CompositionTable;
using Orv::FluidBench::IO::CompositionTableReader;

namespace Compositions {
namespace {

using Tables = std::vector<CompositionTable>;

struct Phase {
    const char* title;
    const char* key; // in JSON
    std::vector<std::vector<double>> CompositionTable::*fractions;
};
constexpr Phase phases[] = {
    {"vapour", "vapourFractions", &CompositionTable::VapourFractions},
    {"liquid", "liquidFractions", &CompositionTable::LiquidFractions},
};

Tables ReadTables(Input& input, Call& call) {
    const Progress progress(call.Told(), "Reading " + input.Name());
    Tables tables;
    ReadKeywords<CompositionTableReader>(input, call, tables);
    return tables;
}

// A file doesn't name the components: they have numbers, from 1.
Cells NumbersOfComponents(const std::vector<std::vector<double>>& rows) {
    Cells numbers;
    for (std::size_t i = 1; !rows.empty() && i <= rows.front().size(); ++i) {
        numbers.push_back(std::to_string(i));
    }
    return numbers;
}

Table TableOfPhase(const CompositionTable& table, const Phase& phase, const ShownUnit& pressure) {
    const auto& rows = table.*phase.fractions;
    Cells headings = NumbersOfComponents(rows);
    headings.insert(headings.begin(), std::string("pressure ") + pressure.name);
    return {std::move(headings), rows.size(), [&table, &rows, &pressure](std::uint64_t row) {
                Cells cells{NumberText(pressure.convert(table.Pressures[row]))};
                for (const double fraction : rows[row]) {
                    cells.push_back(NumberText(fraction));
                }
                return cells;
            }};
}

void Print(std::ostream& out, const Tables& tables, const ShownUnit& pressure, Extent extent) {
    bool isFirst = true;
    for (const CompositionTable& table : tables) {
        for (const Phase& phase : phases) {
            if (!(table.*phase.fractions).empty()) {
                out << (std::exchange(isFirst, false) ? "" : "\n") << phase.title << '\n';
                PrintTable(out, TableOfPhase(table, phase, pressure), extent, 2);
            }
        }
    }
}

void PrintSpreadsheet(std::ostream& out, const Tables& tables, const ShownUnit& pressure) {
    std::vector<Table> parts;
    Cells numbers; // of the widest table
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const CompositionTable& table = tables[i];
        for (const Phase& phase : phases) {
            const auto& rows = table.*phase.fractions;
            if (Cells ofPhase = NumbersOfComponents(rows); ofPhase.size() > numbers.size()) {
                numbers = std::move(ofPhase);
            }
            parts.push_back({{}, rows.size(), [&, i](std::uint64_t row) {
                                 Cells cells{std::to_string(i + 1), phase.title,
                                             DataText(pressure.convert(table.Pressures[row]))};
                                 for (const double fraction : rows[row]) {
                                     cells.push_back(DataText(fraction));
                                 }
                                 return cells;
                             }});
        }
    }
    Cells headings{"table", "phase", std::string("pressure ") + pressure.name};
    headings.insert(headings.end(), numbers.begin(), numbers.end());
    PrintCsv(out, Joined(std::move(headings), std::move(parts)));
}

void Write(std::ostream& out, const Tables& tables) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", "compositions");
    json.BeginArray("tables");
    for (const CompositionTable& table : tables) {
        json.BeginObject();
        json.Add("pressures", table.Pressures);
        for (const Phase& phase : phases) {
            json.AddRows(phase.key, table.*phase.fractions);
        }
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    Input input(call.Operand(0), call.Told());
    const Tables tables = ReadTables(input, call);
    const ShownUnit& pressure = IsField(call, Options::showUnits) ? psia : bar;
    switch (form) {
    case ShowForm::Text:
        Print(call.Out(), tables, pressure, ExtentOf(call));
        break;
    case ShowForm::Csv:
        PrintSpreadsheet(call.Out(), tables, pressure);
        break;
    case ShowForm::Json:
        Write(call.Out(), tables);
        break;
    }
}

constexpr Option showOptions[] = {Options::fromUnits, Options::showUnits, Options::all,
                                  Options::json,      Options::csv,       Options::strict};
constexpr Command commands[] = {{"compositions", "show",
                                 "Show the compositions of vapour and liquid against pressure",
                                 "IN", showOptions, Show}};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    ReadTables(input, call);
}

} // namespace Compositions

} // namespace FluidBenchTool
