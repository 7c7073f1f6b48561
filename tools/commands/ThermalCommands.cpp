// fluidbench-io thermal: shows the thermal data of fluids and converts them.
#include "Commands.h"
#include "DataRows.h"
#include "FluidBench/Model/ThermalExportTable.h"
#include "Json.h"
#include "Progress.h"
#include "ShownUnit.h"
#include "io/ThermalExportFileWriter.h"
#include "io/ThermalKeywordReader.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::ThermalExportFileWriter;
using Orv::FluidBench::IO::ThermalKeywordReader;
using Orv::FluidBench::Model::ThermalExportTable;

namespace Thermal {
namespace {

using Values = std::vector<double>;

// A property of the components: the name of its row and its key in JSON. It is either a member of
// the table or has a getter and a setter.
struct Property {
    const char* name;
    const char* key;
    const char* unit;
    Values ThermalExportTable::*member;
    const Values& (ThermalExportTable::*get)() const noexcept;
    void (ThermalExportTable::*set)(Values);
};

// clang-format off
constexpr Property properties[] = {
    {"molecular weights", "molecularWeights", "g/mol",
     &ThermalExportTable::MolecularWeights, nullptr, nullptr},
    {"critical temperatures", "criticalTemperatures", "K",
     &ThermalExportTable::CriticalTemperatures, nullptr, nullptr},
    {"critical pressures", "criticalPressures", "Pa",
     &ThermalExportTable::CriticalPressures, nullptr, nullptr},
    {"reference temperatures", "referenceTemperatures", "K",
     &ThermalExportTable::ReferenceTemperatures, nullptr, nullptr},
    {"reference pressures", "referencePressures", "Pa",
     &ThermalExportTable::ReferencePressures, nullptr, nullptr},
    {"reference densities", "referenceDensities", "kg/m3",
     &ThermalExportTable::ReferenceDensities, nullptr, nullptr},
    {"acentric factors", "acentricFactors", "",
     &ThermalExportTable::AcentricFactors, nullptr, nullptr},
    {"heat capacities A", "specificHeatA", "J/(mol K)",
     &ThermalExportTable::SpecificHeatA, nullptr, nullptr},
    {"heat capacities B", "specificHeatB", "J/(mol K2)",
     &ThermalExportTable::SpecificHeatB, nullptr, nullptr},
    {"heat capacities C", "specificHeatC", "J/(mol K3)",
     &ThermalExportTable::SpecificHeatC, nullptr, nullptr},
    {"heat capacities D", "specificHeatD", "J/(mol K4)",
     &ThermalExportTable::SpecificHeatD, nullptr, nullptr},
    {"heats of vaporisation", "heatVaps", "kJ/kg",
     nullptr, &ThermalExportTable::GetHeatVaps, &ThermalExportTable::SetHeatVaps},
    {"compressibilities", "cRefs", "1/Pa",
     nullptr, &ThermalExportTable::GetCRefs, &ThermalExportTable::SetCRefs},
    {"thermal expansions", "thermEx1s", "1/K",
     nullptr, &ThermalExportTable::GetThermEx1s, &ThermalExportTable::SetThermEx1s},
    {"Z-factors", "zFactors", "",
     nullptr, &ThermalExportTable::GetZFactors, &ThermalExportTable::SetZFactors},
    {"fractions", "zis", "",
     nullptr, &ThermalExportTable::GetZis, &ThermalExportTable::SetZis},
};

// The coefficients of the K-value fit, which a table has all of or none.
struct FitRow {
    const char* name;
    const char* key;
    const char* unit;
    Values (ThermalExportTable::*get)() const;
};
constexpr FitRow fitRows[] = {
    {"fit A", "crookstonA", "",     &ThermalExportTable::GetCrookstonA},
    {"fit B", "crookstonB", "Pa",   &ThermalExportTable::GetCrookstonB},
    {"fit C", "crookstonC", "1/Pa", &ThermalExportTable::GetCrookstonC},
    {"fit D", "crookstonD", "K",    &ThermalExportTable::GetCrookstonD},
    {"fit E", "crookstonE", "K",    &ThermalExportTable::GetCrookstonE},
};
// clang-format on

const Values& Of(const ThermalExportTable& table, const Property& property) {
    return property.member != nullptr ? table.*property.member : (table.*property.get)();
}

// One row of the table for a person or a spreadsheet.
struct Row {
    const char* name;
    const char* key;
    const char* unit;
    Values values;
};

std::vector<Row> RowsOf(const ThermalExportTable& table) {
    std::vector<Row> rows;
    for (const Property& property : properties) {
        rows.push_back({property.name, property.key, property.unit, Of(table, property)});
    }
    if (table.HasCrookstonData()) {
        for (const FitRow& fit : fitRows) {
            rows.push_back({fit.name, fit.key, fit.unit, (table.*fit.get)()});
        }
    }
    return rows;
}

// Rows "standard", "names" and those of the properties, in model units.
class RowReader {
public:
    RowReader(Input& input, Call& call) : rows_(input, call.Told()) {}

    ThermalExportTable Read();

private:
    void Take();
    Values ComponentValues() const;

    DataRows rows_;
    ThermalExportTable table_;
    bool hasStandard_ = false;
    std::array<bool, std::size(properties)> has_{};
    std::array<Values, std::size(fitRows)> fit_;
};

Values RowReader::ComponentValues() const {
    rows_.RequireCells(table_.ComponentCount);
    return rows_.Numbers();
}

void RowReader::Take() {
    const std::string& name = rows_.Name();
    if (name == "standard") {
        rows_.RequireCells(2);
        const Values values = rows_.Numbers();
        table_.StandardTemperature = values[0];
        table_.StandardPressure = values[1];
        hasStandard_ = true;
        return;
    }
    if (name == "names") {
        table_.ComponentNames = rows_.Names();
        table_.ComponentCount = table_.ComponentNames.size();
        return;
    }
    const auto property = std::ranges::find_if(
        properties, [&](const Property& candidate) { return name == candidate.name; });
    if (property != std::end(properties)) {
        has_[static_cast<std::size_t>(property - std::begin(properties))] = true;
        if (property->member != nullptr) {
            table_.*property->member = ComponentValues();
        } else {
            (table_.*property->set)(ComponentValues());
        }
        return;
    }
    const auto fit = std::ranges::find_if(
        fitRows, [&](const FitRow& candidate) { return name == candidate.name; });
    if (fit == std::end(fitRows)) {
        rows_.Fail("'standard', 'names' or a property of the components at the head of a row",
                   "'" + name + "'");
    }
    fit_[static_cast<std::size_t>(fit - std::begin(fitRows))] = ComponentValues();
}

ThermalExportTable RowReader::Read() {
    while (rows_.Next()) {
        Take();
    }
    if (!hasStandard_) {
        rows_.FailMissing("standard");
    }
    if (table_.ComponentNames.empty()) {
        rows_.FailMissing("names");
    }
    for (std::size_t i = 0; i < has_.size(); ++i) {
        if (!has_[i]) {
            rows_.FailMissing(properties[i].name);
        }
    }
    const auto isThere = [](const Values& values) { return !values.empty(); };
    if (std::ranges::any_of(fit_, isThere)) {
        const auto missing = std::ranges::find_if_not(fit_, isThere);
        if (missing != fit_.end()) {
            rows_.FailMissing(fitRows[missing - fit_.begin()].name);
        }
        table_.SetCrookston(fit_[0], fit_[1], fit_[2], fit_[3], fit_[4]);
    }
    return table_;
}

ThermalExportTable ReadTable(Input& input, Call& call) {
    const Progress progress(call.Told(), "Reading " + input.Name());
    if (HasKeywords(input)) {
        ThermalExportTable table;
        ReadKeywords<ThermalKeywordReader>(input, call, table);
        return table;
    }
    RequireMetric(input, call);
    return RowReader(input, call).Read();
}

ThermalExportTable ReadTable(Call& call) {
    Input input(call.Operand(0), call.Told());
    return ReadTable(input, call);
}

// A row for each property: a table of many properties and few components stays narrow.
Table TableOfRows(const ThermalExportTable& table, std::string (*text)(double)) {
    Cells headings{"property", "unit"};
    headings.insert(headings.end(), table.ComponentNames.begin(), table.ComponentNames.end());
    std::vector<Cells> rows;
    for (const Row& row : RowsOf(table)) {
        Cells cells{row.name, row.unit};
        std::ranges::transform(row.values, std::back_inserter(cells), text);
        rows.push_back(std::move(cells));
    }
    return TableOf(std::move(headings), std::move(rows));
}

void Write(std::ostream& out, const ThermalExportTable& table) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", "thermal");
    json.Add("standardTemperature", table.StandardTemperature);
    json.Add("standardPressure", table.StandardPressure);
    json.Add("componentNames", table.ComponentNames);
    for (const Row& row : RowsOf(table)) {
        json.Add(row.key, row.values);
    }
    json.EndObject();
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    const ThermalExportTable table = ReadTable(call);
    switch (form) {
    case ShowForm::Text:
        call.Out() << "standard conditions  " << NumberText(table.StandardTemperature) << " K, "
                   << NumberText(table.StandardPressure) << " Pa\n\n";
        PrintTable(call.Out(), TableOfRows(table, [](double v) { return NumberText(v); }));
        break;
    case ShowForm::Csv:
        PrintCsv(call.Out(), TableOfRows(table, ExactText));
        break;
    case ShowForm::Json:
        Write(call.Out(), table);
        break;
    }
}

// The form that `RowReader` reads.
void WriteRows(std::ostream& out, const ThermalExportTable& table) {
    const auto add = [&](const char* name, const Values& values) {
        Cells cells{name};
        std::ranges::transform(values, std::back_inserter(cells), ExactText);
        PrintCsvRow(out, cells);
    };
    add("standard", {table.StandardTemperature, table.StandardPressure});
    Cells names{"names"};
    names.insert(names.end(), table.ComponentNames.begin(), table.ComponentNames.end());
    PrintCsvRow(out, names);
    for (const Row& row : RowsOf(table)) {
        add(row.name, row.values);
    }
}

void Convert(Call& call) {
    const bool toRows = IsToCsv(call, call.Operand(1));
    const ThermalExportTable table = ReadTable(call);
    call.Write(call.Operand(1), [&](std::ostream& out) {
        if (toRows) {
            WriteRows(out, table);
        } else {
            ThermalExportFileWriter(call.Asked().Has(Options::highPrecision))
                .ExportToFile(table, out, UnitsOf(call.Asked().Value(Options::toUnits, "metric")));
        }
    });
}

constexpr Option showOptions[] = {Options::fromUnits, Options::json, Options::csv, Options::strict};
constexpr Option convertOptions[] = {Options::toKeywordsOrCsv, Options::toUnits, Options::fromUnits,
                                     Options::highPrecision, Options::strict};
constexpr Command commands[] = {
    {"thermal", "show", "Show the thermal data of a file's components, in model units", "IN",
     showOptions, Show},
    {"thermal", "convert", "Write the thermal data as keywords for a simulator, or with commas",
     "IN OUT", convertOptions, Convert},
};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    ReadTable(input, call);
}

} // namespace Thermal

} // namespace FluidBenchTool
