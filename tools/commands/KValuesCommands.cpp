// fluidbench-io kvalues: shows K-value tables, converts and compares them.
#include "Commands.h"
#include "Comparison.h"
#include "DataRows.h"
#include "FluidBench/Model/KValuesTable.h"
#include "Json.h"
#include "PlotCommands.h"
#include "Progress.h"
#include "ShownUnit.h"
#include "TableFiles.h"
#include "io/KValuesExportFileWriter.h"
#include "io/KValuesKeywordReader.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::KValuesExportFileWriter;
using Orv::FluidBench::IO::KValuesKeywordReader;
using Orv::FluidBench::Model::KValuesTable;

namespace KValues {
namespace {

constexpr double noTemperature = -1.0; // what a table without one has

// clang-format off
constexpr ShownUnit kelvin{"K"};
constexpr ShownUnit fahrenheit{"F", Units::Temperature_K_To_F};
// clang-format on

using Tables = std::vector<KValuesTable>;

// Rows "temperature", "components" and "record", in K and bar. A row of one of the first two kinds
// behind records begins another table, of the same components where it doesn't have its own.
Tables ReadRows(Input& input, Call& call) {
    DataRows rows(input, call.Told());
    Tables tables;
    std::optional<double> temperature; // of the table that comes
    while (rows.Next()) {
        if (rows.Name() == "temperature") {
            rows.RequireCells(1);
            temperature = rows.Numbers().front();
            if (!tables.empty() && tables.back().GetTableSize() == 0) {
                tables.back().Temperature = *std::exchange(temperature, {});
            }
        } else if (rows.Name() == "components") {
            tables.emplace_back(rows.Names());
            tables.back().Temperature = std::exchange(temperature, {}).value_or(noTemperature);
        } else if (rows.Name() == "record" && !tables.empty()) {
            if (temperature) {
                tables.emplace_back(tables.back().GetComponents());
                tables.back().Temperature = *std::exchange(temperature, {});
            }
            KValuesTable& table = tables.back();
            rows.RequireCells(table.GetRecordSize());
            std::vector<double> record = rows.Numbers();
            record.front() = Units::Pressure_bar_To_Pa(record.front());
            table.AddRecord(std::move(record));
        } else {
            rows.Fail("a row 'temperature', 'components' or, behind these, 'record'",
                      "'" + rows.Name() + "'");
        }
    }
    if (tables.empty()) {
        rows.FailMissing("components");
    }
    if (temperature) {
        rows.FailMissing("record"); // behind the last temperature
    }
    return tables;
}

} // namespace
} // namespace KValues

std::vector<KValuesTable> ReadKValues(Input& input, Call& call) {
    const Progress progress(call.Told(), "Reading " + input.Name());
    if (HasKeywords(input)) {
        KValues::Tables tables;
        ReadKeywords<KValuesKeywordReader>(input, call, tables);
        return tables;
    }
    RequireMetric(input, call);
    return KValues::ReadRows(input, call);
}

namespace KValues {
namespace {

Tables ReadTables(std::size_t operand, Call& call) {
    Input input(call.Operand(operand), call.Told());
    return ReadKValues(input, call);
}

bool HasTemperature(const KValuesTable& table) {
    return table.Temperature >= 0.0;
}

std::string WithUnit(const ShownUnit& unit, double value) {
    return NumberText(unit.convert(value)) + ' ' + unit.name;
}

Table TableOfRecords(const KValuesTable& table, const ShownUnit& pressure) {
    Cells headings{std::string("pressure ") + pressure.name};
    for (const std::string& name : table.GetComponents()) {
        headings.push_back(name);
    }
    return {std::move(headings), table.GetTableSize(), [&table, pressure](std::uint64_t row) {
                Cells cells;
                for (const double value : table.GetRecord(row)) {
                    cells.push_back(NumberText(cells.empty() ? pressure.convert(value) : value));
                }
                return cells;
            }};
}

void Print(std::ostream& out, const Tables& tables, bool field, Extent extent) {
    for (const KValuesTable& table : tables) {
        out << (&table == &tables.front() ? "" : "\n");
        if (HasTemperature(table)) {
            out << "temperature  " << WithUnit(field ? fahrenheit : kelvin, table.Temperature)
                << "\n\n";
        }
        PrintTable(out, TableOfRecords(table, field ? psia : bar), extent);
    }
}

// All tables below headings with the components of any.
void PrintSpreadsheet(std::ostream& out, const Tables& tables, bool field) {
    const ShownUnit& pressure = field ? psia : bar;
    const ShownUnit& temperature = field ? fahrenheit : kelvin;
    std::vector<std::string> names;
    std::vector<Table> parts;
    for (const KValuesTable& table : tables) {
        const std::vector<std::string> ofTable = table.GetComponents();
        std::vector<std::size_t> columns; // of the table's components among all names
        for (const auto& [i, j] : MatchNames(ofTable, names)) {
            if (i != Match::none) {
                columns.push_back(j == Match::none ? names.size() : j);
                if (j == Match::none) {
                    names.push_back(ofTable[i]);
                }
            }
        }
        parts.push_back({{},
                         table.GetTableSize(),
                         [&table, &names, &pressure, &temperature, columns](std::uint64_t row) {
                             Cells cells(2 + names.size());
                             const std::vector<double>& record = table.GetRecord(row);
                             if (HasTemperature(table)) {
                                 cells[0] = DataText(temperature.convert(table.Temperature));
                             }
                             cells[1] = DataText(pressure.convert(record.front()));
                             for (std::size_t i = 0; i < columns.size(); ++i) {
                                 cells[2 + columns[i]] = ExactText(record[i + 1]);
                             }
                             return cells;
                         }});
    }
    Cells headings{std::string("temperature ") + temperature.name,
                   std::string("pressure ") + pressure.name};
    headings.insert(headings.end(), names.begin(), names.end());
    PrintCsv(out, Joined(std::move(headings), std::move(parts)));
}

void Write(std::ostream& out, const Tables& tables) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", "kvalues");
    json.BeginArray("tables");
    for (const KValuesTable& table : tables) {
        json.BeginObject();
        if (HasTemperature(table)) {
            json.Add("temperature", table.Temperature);
        } else {
            json.AddNull("temperature");
        }
        json.Add("components", table.GetComponents());
        json.BeginArray("records");
        for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
            json.Add({}, table.GetRecord(i));
        }
        json.EndArray();
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    const Tables tables = ReadTables(0, call);
    const bool field = IsField(call, Options::showUnits);
    switch (form) {
    case ShowForm::Text:
        Print(call.Out(), tables, field, ExtentOf(call));
        break;
    case ShowForm::Csv:
        PrintSpreadsheet(call.Out(), tables, field);
        break;
    case ShowForm::Json:
        Write(call.Out(), tables);
        break;
    }
}

// The form that `ReadRows` reads.
void WriteRows(std::ostream& out, const KValuesTable& table) {
    const auto add = [&](const char* name, Cells cells) {
        cells.insert(cells.begin(), name);
        PrintCsvRow(out, cells);
    };
    if (HasTemperature(table)) {
        add("temperature", {ExactText(table.Temperature)});
    }
    add("components", table.GetComponents());
    for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
        Cells cells;
        for (const double value : table.GetRecord(i)) {
            cells.push_back(cells.empty() ? DataText(Units::Pressure_Pa_To_bar(value))
                                          : ExactText(value));
        }
        add("record", std::move(cells));
    }
}

void Convert(Call& call) {
    const bool toRows = IsToCsv(call, call.Operand(1));
    const Tables tables = ReadTables(0, call);
    call.Write(call.Operand(1), [&](std::ostream& out) {
        if (toRows) {
            for (const KValuesTable& table : tables) {
                WriteRows(out, table);
            }
        } else {
            KValuesExportFileWriter(call.Asked().Has(Options::highPrecision))
                .ExportTables(tables, out, UnitsOf(call.Asked().Value(Options::toUnits, "metric")));
        }
    });
}

std::vector<double> PressuresOf(const KValuesTable& table) {
    std::vector<double> pressures;
    for (std::uint64_t i = 0; i < table.GetTableSize(); ++i) {
        pressures.push_back(table.GetRecord(i).front());
    }
    return pressures;
}

// `prefix` tells of which tables among several.
void CompareTables(Comparison& comparison, const KValuesTable& first, const KValuesTable& second,
                   const std::string& prefix, bool field) {
    const auto where = [&](double pressure) {
        return prefix + WithUnit(field ? psia : bar, pressure);
    };
    const bool firstHas = HasTemperature(first);
    const bool secondHas = HasTemperature(second);
    if (firstHas && secondHas) {
        comparison.Compare(prefix + "table", "temperature", field ? fahrenheit : kelvin,
                           first.Temperature, second.Temperature);
    } else if (firstHas || secondHas) {
        comparison.AddMissing("temperature", firstHas);
    }
    const std::vector<std::string> firstNames = first.GetComponents();
    const std::vector<std::string> secondNames = second.GetComponents();
    const std::vector<Match> columns = MatchNames(firstNames, secondNames);
    for (const auto& [i, j] : columns) {
        if (i == Match::none || j == Match::none) {
            comparison.AddMissing(prefix + (i == Match::none ? secondNames[j] : firstNames[i]),
                                  j == Match::none);
        }
    }
    const std::vector<double> firstPressures = PressuresOf(first);
    const std::vector<double> secondPressures = PressuresOf(second);
    for (const auto& [i, j] : MatchNumbers(firstPressures, secondPressures, comparison)) {
        if (i == Match::none || j == Match::none) {
            comparison.AddMissing(where(i == Match::none ? secondPressures[j] : firstPressures[i]),
                                  j == Match::none);
            continue;
        }
        for (const auto& [a, b] : columns) {
            if (a != Match::none && b != Match::none) {
                const double firstValue = first.GetRecord(i)[a + 1];
                const double secondValue = second.GetRecord(j)[b + 1];
                if (!comparison.AreSame(firstValue, secondValue)) {
                    comparison.Compare(where(firstPressures[i]), "K of " + firstNames[a], {},
                                       firstValue, secondValue);
                }
            }
        }
    }
}

// Several tables belong together by their temperatures.
void MatchTables(Comparison& comparison, const Tables& first, const Tables& second, bool field) {
    const auto temperaturesOf = [](const Tables& tables) {
        std::vector<double> temperatures;
        std::ranges::transform(tables, std::back_inserter(temperatures),
                               &KValuesTable::Temperature);
        return temperatures;
    };
    for (const auto& [i, j] :
         MatchNumbers(temperaturesOf(first), temperaturesOf(second), comparison)) {
        const KValuesTable& table = i == Match::none ? second[j] : first[i];
        const std::string where = HasTemperature(table)
                                      ? WithUnit(field ? fahrenheit : kelvin, table.Temperature)
                                      : "without a temperature";
        if (i == Match::none || j == Match::none) {
            comparison.AddMissing(where, j == Match::none);
        } else {
            CompareTables(comparison, first[i], second[j], where + ", ", field);
        }
    }
}

void Diff(Call& call) {
    Comparison comparison(call.Asked().Number(Options::tolerance).value_or(defaultTolerance));
    const Tables first = ReadTables(0, call);
    const Tables second = ReadTables(1, call);
    const bool field = IsField(call, Options::showUnits);
    if (first.size() == 1 && second.size() == 1) {
        CompareTables(comparison, first.front(), second.front(), "", field);
    } else {
        MatchTables(comparison, first, second, field);
    }
    TellComparison(call, "kvalues", comparison);
}

constexpr Option showOptions[] = {Options::fromUnits, Options::showUnits, Options::all,
                                  Options::json,      Options::csv,       Options::strict};
constexpr Option convertOptions[] = {Options::toKeywordsOrCsv, Options::toUnits, Options::fromUnits,
                                     Options::highPrecision, Options::strict};
constexpr Option diffOptions[] = {Options::tolerance, Options::fromUnits, Options::showUnits,
                                  Options::json, Options::strict};
constexpr Command commands[] = {
    {"kvalues", "show", "Show the K-values of a file against pressure", "IN", showOptions, Show},
    {"kvalues", "convert", "Write the K-values as keywords for a simulator, or with commas",
     "IN OUT", convertOptions, Convert},
    {"kvalues", "diff", "Tell what differs between two files", "A B", diffOptions, Diff},
    kValuesPlot,
};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    ReadKValues(input, call);
}

} // namespace KValues

} // namespace FluidBenchTool
