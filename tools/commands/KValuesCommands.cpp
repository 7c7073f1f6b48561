// fluidbench-io kvalues: shows K-value tables, converts and compares them.
#include "Commands.h"
#include "Comparison.h"
#include "DataRows.h"
#include "FluidBench/Model/KValuesTable.h"
#include "FormatFinder.h"
#include "Json.h"
#include "PlotCommands.h"
#include "Progress.h"
#include "ShownUnit.h"
#include "TableFiles.h"
#include "io/KValuesExportFileWriter.h"

#include <optional>
#include <string>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::KValuesExportFileWriter;
using Orv::FluidBench::Model::KValuesTable;

namespace {

// clang-format off
constexpr ShownUnit bar   {"bar",  Units::Pressure_Pa_To_bar};
constexpr ShownUnit psia  {"psia", Units::Pressure_Pa_To_psi};
constexpr ShownUnit kelvin{"K"};
constexpr ShownUnit fahrenheit{"F", Units::Temperature_K_To_F};
// clang-format on

// Rows "temperature", "components" and "record", in K and bar.
KValuesTable ReadRows(Input& input, Call& call) {
    DataRows rows(input, call.Told());
    double temperature = -1.0; // a negative one is none
    std::optional<KValuesTable> table;
    while (rows.Next()) {
        if (rows.Name() == "temperature") {
            rows.RequireCells(1);
            temperature = rows.Numbers().front();
        } else if (rows.Name() == "components") {
            table.emplace(rows.Texts());
        } else if (rows.Name() == "record" && table) {
            rows.RequireCells(table->GetRecordSize());
            std::vector<double> record = rows.Numbers();
            record.front() = Units::Pressure_bar_To_Pa(record.front());
            table->AddRecord(std::move(record));
        } else {
            rows.Fail("a row 'temperature', 'components' or, behind these, 'record'",
                      "'" + rows.Name() + "'");
        }
    }
    if (!table) {
        rows.FailMissing("components");
    }
    table->Temperature = temperature;
    return *table;
}

} // namespace

KValuesTable ReadKValues(Input& input, Call& call) {
    Messages& messages = call.Told();
    const Progress progress(messages, "Reading " + input.Name());
    if (FindFormat(input.Text()).hasKeywords) {
        messages.Fail(ToolKinds::keywordForm, input.Name(),
                      "Expected the form with commas, found keywords, which this command can't "
                      "read.");
    }
    return ReadRows(input, call);
}

namespace {

KValuesTable ReadTable(std::size_t operand, Call& call) {
    Input input(call.Operand(operand), call.Told());
    return ReadKValues(input, call);
}

Table TableOfRecords(const KValuesTable& table, const ShownUnit& pressure,
                     std::string (*text)(double)) {
    Cells headings{std::string("pressure ") + pressure.name};
    for (const std::string& name : table.GetComponents()) {
        headings.push_back(name);
    }
    return {std::move(headings), table.GetTableSize(), [&table, pressure, text](std::uint64_t row) {
                Cells cells;
                for (const double value : table.GetRecord(row)) {
                    cells.push_back(text(cells.empty() ? pressure.convert(value) : value));
                }
                return cells;
            }};
}

void Write(std::ostream& out, const KValuesTable& table) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", "kvalues");
    if (table.Temperature >= 0.0) {
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

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    const KValuesTable table = ReadTable(0, call);
    const bool field = IsField(call, Options::showUnits);
    const ShownUnit& pressure = field ? psia : bar;
    const ShownUnit& temperature = field ? fahrenheit : kelvin;
    switch (form) {
    case ShowForm::Text:
        if (table.Temperature >= 0.0) {
            call.Out() << "temperature  " << NumberText(temperature.convert(table.Temperature))
                       << ' ' << temperature.name << "\n\n";
        }
        PrintTable(call.Out(),
                   TableOfRecords(table, pressure, [](double v) { return NumberText(v); }),
                   ExtentOf(call));
        break;
    case ShowForm::Csv:
        PrintCsv(call.Out(), TableOfRecords(table, pressure, ExactText));
        break;
    case ShowForm::Json:
        Write(call.Out(), table);
        break;
    }
}

// The form that `ReadRows` reads.
void WriteRows(std::ostream& out, const KValuesTable& table) {
    const auto add = [&](const char* name, Cells cells) {
        cells.insert(cells.begin(), name);
        PrintCsvRow(out, cells);
    };
    if (table.Temperature >= 0.0) {
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
    const KValuesTable table = ReadTable(0, call);
    call.Write(call.Operand(1), [&](std::ostream& out) {
        if (toRows) {
            WriteRows(out, table);
        } else {
            KValuesExportFileWriter(call.Asked().Has(Options::highPrecision))
                .ExportToFile(table, out, UnitsOf(call.Asked().Value(Options::toUnits, "metric")));
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

void CompareTables(Comparison& comparison, const KValuesTable& first, const KValuesTable& second,
                   bool field) {
    const ShownUnit& pressure = field ? psia : bar;
    const auto where = [&](double value) {
        return NumberText(pressure.convert(value)) + ' ' + pressure.name;
    };
    const bool firstHas = first.Temperature >= 0.0;
    const bool secondHas = second.Temperature >= 0.0;
    if (firstHas && secondHas) {
        comparison.Compare("table", "temperature", field ? fahrenheit : kelvin, first.Temperature,
                           second.Temperature);
    } else if (firstHas || secondHas) {
        comparison.AddMissing("temperature", firstHas);
    }
    const std::vector<std::string> firstNames = first.GetComponents();
    const std::vector<std::string> secondNames = second.GetComponents();
    const std::vector<Match> columns = MatchNames(firstNames, secondNames);
    for (const auto& [i, j] : columns) {
        if (i == Match::none || j == Match::none) {
            comparison.AddMissing(i == Match::none ? secondNames[j] : firstNames[i],
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

void Diff(Call& call) {
    Comparison comparison(call.Asked().Number(Options::tolerance).value_or(defaultTolerance));
    const KValuesTable first = ReadTable(0, call);
    const KValuesTable second = ReadTable(1, call);
    CompareTables(comparison, first, second, IsField(call, Options::showUnits));
    TellComparison(call, "kvalues", comparison);
}

constexpr Option showOptions[] = {Options::showUnits, Options::all, Options::json, Options::csv,
                                  Options::strict};
constexpr Option convertOptions[] = {Options::toKeywordsOrCsv, Options::toUnits,
                                     Options::highPrecision, Options::strict};
constexpr Option diffOptions[] = {Options::tolerance, Options::showUnits, Options::json,
                                  Options::strict};
constexpr Command commands[] = {
    {"kvalues", "show", "Show the K-values of a file against pressure", "IN", showOptions, Show},
    {"kvalues", "convert", "Write the K-values as keywords for a simulator, or with commas",
     "IN OUT", convertOptions, Convert},
    {"kvalues", "diff", "Tell what differs between two files", "A B", diffOptions, Diff},
    kValuesPlot,
};

} // namespace

std::span<const Command> KValuesCommands() {
    return commands;
}

void CheckKValues(Input& input, Call& call) {
    ReadKValues(input, call);
}

} // namespace FluidBenchTool
