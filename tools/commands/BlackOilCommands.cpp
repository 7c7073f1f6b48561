// fluidbench-io blackoil: shows black-oil tables, converts and compares them.
#include "BlackOilView.h"
#include "Commands.h"
#include "Comparison.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/BlackOilTable.h"
#include "PlotCommands.h"
#include "Progress.h"
#include "TableFiles.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/BlackOilKeywordReader.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::IO::BlackOilExportFileWriter;
using Orv::FluidBench::IO::BlackOilKeywordReader;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;

namespace BlackOil {
namespace {

using Writer = BlackOilExportFileWriter;

constexpr Option tables{
    "--tables", "auto|live-wet|live-dry|dead-wet|dead-dry",
    "Tables to write: live oil as PVTO or dead oil as PVDO, wet gas as PVTG or dry gas as PVDG. "
    "auto, unless given: those of the file. All rows go into these tables"};

constexpr std::pair<std::string_view, Writer::EXPORT_TYPE> tableChoices[] = {
    {"live-wet", Writer::LIVE_OIL_WET_GAS},
    {"live-dry", Writer::LIVE_OIL_DRY_GAS},
    {"dead-wet", Writer::DEAD_OIL_WET_GAS},
    {"dead-dry", Writer::DEAD_OIL_DRY_GAS}};

} // namespace
} // namespace BlackOil

BlackOilFile ReadBlackOil(Input& input, Call& call) {
    Messages& messages = call.Told();
    const Progress progress(messages, "Reading " + input.Name());
    BlackOilFile file;
    if (HasKeywords(input)) {
        ReadKeywords<BlackOilKeywordReader>(input, call, file.regions);
        return file;
    }
    RequireMetric(input, call);
    const std::uint64_t errors = messages.Errors();
    BlackOilExportFileWriter reader;
    reader.SetDiagnosticSink(messages.Sink());
    reader.SetReadsSaturationPoint(true);
    file.regions.push_back(reader.GetTableFromCSVFile(input.Text(), input.Name()));
    if (messages.Errors() > errors) {
        throw CommandFailed();
    }
    return file;
}

namespace BlackOil {
namespace {

BlackOilFile ReadTables(std::size_t operand, Call& call) {
    Input input(call.Operand(operand), call.Told());
    return ReadBlackOil(input, call);
}

// The regions to write. The form with commas holds one.
std::vector<BlackOilTable> TakeRegions(BlackOilFile& file, bool toCsv, Call& call) {
    const auto asked = call.Asked().Count(Options::region);
    const std::size_t count = file.regions.size();
    if (!asked && !toCsv) {
        return std::move(file.regions);
    }
    if (!asked && count > 1) {
        call.Told().Tell(ToolKinds::firstRegion, call.Operand(0),
                         "Expected one region, found " + std::to_string(count) +
                             "; the first one is taken. --region takes another.");
    }
    const std::uint64_t region = asked.value_or(1);
    if (region > count) {
        call.Told().Fail(ToolKinds::noSuchRegion, call.Operand(0),
                         "Expected a region " + std::to_string(region) + ", found " +
                             std::to_string(count) + " in all.");
    }
    std::vector<BlackOilTable> regions;
    regions.push_back(std::move(file.regions[region - 1]));
    return regions;
}

template <typename Visit>
void ForEachRow(const BlackOilDataRecords& records, Visit visit) {
    for (std::uint64_t record = 0; record < records.GetTableSize(); ++record) {
        const std::uint64_t entries = records.GetRecordContentSize(record);
        for (std::uint64_t entry = 0; entry < entries; ++entry) {
            visit(record, entry);
        }
    }
}

// The rows, each in a record of its own: a dry gas row shows its pressure only as a record's first.
BlackOilDataRecords RecordPerRow(const BlackOilDataRecords& records) {
    BlackOilDataRecords rows;
    ForEachRow(records, [&](std::uint64_t record, std::uint64_t entry) {
        rows.AddEntry(rows.GetTableSize(), records.GetPressure(record, entry),
                      records.GetProperty(record, entry),
                      records.GetFormationVolumeFactor(record, entry),
                      records.GetViscosity(record, entry));
    });
    return rows;
}

// A table by pressure alone has one row for each pressure.
void WarnUnlessPressureRises(Call& call, const BlackOilDataRecords& records, const char* kind) {
    std::optional<double> previous;
    bool rises = true;
    ForEachRow(records, [&](std::uint64_t record, std::uint64_t entry) {
        const double pressure = records.GetPressure(record, entry);
        rises = rises && (!previous || pressure > *previous);
        previous = pressure;
    });
    if (!rises) {
        call.Told().Tell(ToolKinds::pressureOrder, call.Operand(0),
                         std::string("Expected one row for each pressure, by rising pressure, as a "
                                     "table of ") +
                             kind + " has them, found others; all rows are written as they are.");
    }
}

// How keywords have the rows of a phase: each record has one value, which only its first row shows.
struct RecordForm {
    double (BlackOilDataRecords::*ofRecord)(std::uint64_t, std::uint64_t) const;
    double (BlackOilDataRecords::*ofRow)(std::uint64_t, std::uint64_t) const;
    bool doRowsRise;
    const char* expected;
};
constexpr RecordForm liveOilForm{
    &BlackOilDataRecords::GetProperty, &BlackOilDataRecords::GetPressure, true,
    "a record for each gas-oil ratio, by rising ratio and pressure, and its rows by "
    "rising pressure, as a table of live oil"};
constexpr RecordForm wetGasForm{&BlackOilDataRecords::GetPressure,
                                &BlackOilDataRecords::GetProperty, false,
                                "a record for each pressure, by rising pressure, and its rows by "
                                "falling oil-gas ratio, as a table of wet gas"};

// By the rules that the reader of keywords has.
bool IsInForm(const BlackOilDataRecords& records, const RecordForm& form) {
    struct Row {
        double ofRecord;
        double ofRow;
    };
    std::optional<Row> previous; // the first one of the record ahead
    for (std::uint64_t i = 0; i < records.GetTableSize(); ++i) {
        const auto row = [&](std::uint64_t j) {
            return Row{(records.*form.ofRecord)(i, j), (records.*form.ofRow)(i, j)};
        };
        const std::uint64_t rows = records.GetRecordContentSize(i);
        if (rows == 0) {
            continue;
        }
        const Row first = row(0);
        if (previous && (first.ofRecord <= previous->ofRecord ||
                         (form.doRowsRise && first.ofRow <= previous->ofRow))) {
            return false;
        }
        previous = first;
        for (std::uint64_t j = 1; j < rows; ++j) {
            const double step = row(j).ofRow - row(j - 1).ofRow;
            if (row(j).ofRecord != first.ofRecord || (form.doRowsRise ? step <= 0.0 : step > 0.0)) {
                return false;
            }
        }
    }
    return true;
}

void WarnUnlessInForm(Call& call, const BlackOilDataRecords& records, const RecordForm& form) {
    if (!IsInForm(records, form)) {
        call.Told().Tell(ToolKinds::recordOrder, call.Operand(0),
                         std::string("Expected ") + form.expected +
                             " has them, found others; of a record the first row alone shows its "
                             "value. An empty line ends a record.");
    }
}

bool IsEmpty(const BlackOilDataRecords& records) {
    return records.GetTableSize() == 0;
}

bool IsDead(Writer::EXPORT_TYPE choice) {
    return choice == Writer::DEAD_OIL_WET_GAS || choice == Writer::DEAD_OIL_DRY_GAS;
}

bool IsDry(Writer::EXPORT_TYPE choice) {
    return choice == Writer::LIVE_OIL_DRY_GAS || choice == Writer::DEAD_OIL_DRY_GAS;
}

// Whether the rows are those of a dry gas, for which the form with commas has no heading: a gas
// without oil, with rows at several pressures together, of which a wet gas has a record each.
bool IsDryGasInRows(const BlackOilDataRecords& records) {
    bool isDry = false;
    for (std::uint64_t i = 0; i < records.GetTableSize(); ++i) {
        for (std::uint64_t j = 0; j < records.GetRecordContentSize(i); ++j) {
            if (records.GetProperty(i, j) != 0.0) {
                return false;
            }
            isDry = isDry || records.GetPressure(i, j) != records.GetPressure(i, 0);
        }
    }
    return isDry;
}

// The tables that the regions have. A live oil of one ratio can hold what a dead oil is, and a wet
// gas what a dry one is, but not the other way round.
Writer::EXPORT_TYPE TablesOf(const std::vector<BlackOilTable>& regions) {
    const auto has = [&](const BlackOilDataRecords& (BlackOilTable::*records)() const noexcept) {
        return std::ranges::any_of(
            regions, [&](const BlackOilTable& region) { return !IsEmpty((region.*records)()); });
    };
    const bool isDead = !has(&BlackOilTable::GetLiveOilData) && has(&BlackOilTable::GetDeadOilData);
    const bool isDry = std::ranges::all_of(regions,
                                           [](const BlackOilTable& region) {
                                               return IsEmpty(region.GetWetGasData()) ||
                                                      IsDryGasInRows(region.GetWetGasData());
                                           }) &&
                       (has(&BlackOilTable::GetWetGasData) || has(&BlackOilTable::GetDryGasData));
    return isDead ? (isDry ? Writer::DEAD_OIL_DRY_GAS : Writer::DEAD_OIL_WET_GAS)
                  : (isDry ? Writer::LIVE_OIL_DRY_GAS : Writer::LIVE_OIL_WET_GAS);
}

void TellLeftOut(Call& call, const char* written, const char* leftOut) {
    call.Told().Tell(ToolKinds::tableLeftOut, call.Operand(0),
                     std::string("Expected one of ") + written + " and " + leftOut +
                         ", found both; " + leftOut +
                         " is left out. --tables chooses what is written.");
}

void TellWhatIsLeftOut(const BlackOilTable& table, Writer::EXPORT_TYPE choice, Call& call) {
    if (!IsEmpty(table.GetLiveOilData()) && !IsEmpty(table.GetDeadOilData())) {
        const char* const names[] = {"live oil", "dead oil"};
        TellLeftOut(call, names[IsDead(choice) ? 1 : 0], names[IsDead(choice) ? 0 : 1]);
    }
    if (!IsEmpty(table.GetWetGasData()) && !IsEmpty(table.GetDryGasData())) {
        const char* const names[] = {"wet gas", "dry gas"};
        TellLeftOut(call, names[IsDry(choice) ? 1 : 0], names[IsDry(choice) ? 0 : 1]);
    }
}

// Keywords tell the saturation point of dead oil alone. That of a live oil of one record is the
// record's.
void CompleteSaturationPoint(BlackOilTable& table) {
    const BlackOilDataRecords& oil = table.GetLiveOilData();
    if (table.GetSaturationPointPressure() == 0.0 && oil.GetTableSize() == 1 &&
        oil.GetRecordContentSize(0) > 0) {
        table.SetSaturationPoint(oil.GetProperty(0, 0), oil.GetPressure(0, 0));
    }
}

// Puts the rows where the choice has them written from: those of the other table of the phase,
// where its own has none.
void MoveRows(BlackOilTable& table, Writer::EXPORT_TYPE choice, Call& call) {
    const bool isDead = IsDead(choice);
    const bool isDry = IsDry(choice);
    TellWhatIsLeftOut(table, choice, call);
    if (isDead && IsEmpty(table.GetDeadOilData())) {
        CompleteSaturationPoint(table);
        table.SetDeadOilData(table.GetLiveOilData());
        WarnUnlessPressureRises(call, table.GetDeadOilData(), "dead oil");
    } else if (!isDead && IsEmpty(table.GetLiveOilData())) {
        table.SetLiveOilData(table.GetDeadOilData());
    }
    if (isDry && IsEmpty(table.GetDryGasData())) {
        table.SetDryGasData(RecordPerRow(table.GetWetGasData()));
        WarnUnlessPressureRises(call, table.GetDryGasData(), "dry gas");
    } else if (!isDry && IsEmpty(table.GetWetGasData())) {
        table.SetWetGasData(table.GetDryGasData());
    }
}

Writer::EXPORT_TYPE ChooseTables(const std::vector<BlackOilTable>& regions, const Call& call) {
    const std::string word = call.Asked().Value(tables, "auto");
    const auto choice = std::ranges::find(tableChoices, word,
                                          &std::pair<std::string_view, Writer::EXPORT_TYPE>::first);
    return choice == std::end(tableChoices) ? TablesOf(regions) : choice->second;
}

// Of the regions one is told of: they have the same water as a rule.
void WarnOfWaterDensity(const std::vector<BlackOilTable>& regions, Call& call) {
    constexpr double writtenDensity = 1000.0;
    const auto other = std::ranges::find_if(regions, [](const BlackOilTable& region) {
        // A density of field units is 1000 but for the digits that a file has.
        const std::string shown = NumberText(region.GetWaterDensity());
        return region.GetWaterDensity() != 0.0 && shown != NumberText(writtenDensity);
    });
    if (other != regions.end()) {
        call.Told().Tell(ToolKinds::waterDensity, call.Operand(0),
                         "Expected a water density of 1000 kg/m3, which is what files are written "
                         "with, found " +
                             NumberText(other->GetWaterDensity()) + ".");
    }
}

void WarnOfSaturationPoint(const BlackOilTable& table, Writer::EXPORT_TYPE choice, Call& call) {
    if (IsDead(choice) && table.GetSaturationPointPressure() == 0.0) {
        call.Told().Tell(ToolKinds::noSaturationPoint, call.Operand(0),
                         "Expected a saturation point, which belongs to a dead oil, found none; "
                         "zeros are written.");
    }
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    const BlackOilFile file = ReadTables(0, call);
    const bool field = IsField(call, Options::showUnits);
    switch (form) {
    case ShowForm::Text:
        PrintBlackOil(call.Out(), file.regions, field, ExtentOf(call));
        break;
    case ShowForm::Csv:
        PrintBlackOilCsv(call.Out(), file.regions, field);
        break;
    case ShowForm::Json:
        JsonWriter json(call.Out());
        json.BeginObject();
        json.Add("format", "blackoil");
        WriteBlackOil(json, file.regions);
        json.EndObject();
        break;
    }
}

void Convert(Call& call) {
    const std::string& out = call.Operand(1);
    const bool toCsv = IsToCsv(call, out);
    const auto units = UnitsOf(call.Asked().Value(Options::toUnits, "metric"));
    BlackOilFile file = ReadTables(0, call);
    std::vector<BlackOilTable> regions = TakeRegions(file, toCsv, call);
    const auto choice = ChooseTables(regions, call);
    WarnOfWaterDensity(regions, call);
    for (BlackOilTable& region : regions) {
        MoveRows(region, choice, call);
        WarnOfSaturationPoint(region, choice, call);
        if (!toCsv && !IsDead(choice)) {
            WarnUnlessInForm(call, region.GetLiveOilData(), liveOilForm);
        }
        if (!toCsv && !IsDry(choice)) {
            WarnUnlessInForm(call, region.GetWetGasData(), wetGasForm);
        }
    }
    call.Write(out, [&](std::ostream& stream) {
        const Writer writer(call.Asked().Has(Options::highPrecision));
        if (toCsv) {
            writer.ExportToFile(regions.front(), stream, units, choice, Writer::CSV);
        } else {
            writer.ExportRegions(regions, stream, units, choice);
        }
    });
}

// The records of two tables of a kind. Oil has a record for each ratio and its rows by pressure;
// gas, and tables without records of several rows, have it the other way round.
struct Compared {
    const char* name;
    const BlackOilDataRecords& (BlackOilTable::*records)() const noexcept;
    bool isOil;
    bool isByPressureAlone;
};

constexpr Compared compared[] = {
    {"oil", &BlackOilTable::GetLiveOilData, true, false},
    {"dead oil", &BlackOilTable::GetDeadOilData, true, true},
    {"gas", &BlackOilTable::GetWetGasData, false, false},
    {"dry gas", &BlackOilTable::GetDryGasData, false, true},
};

class TableComparison {
public:
    TableComparison(Comparison& comparison, const Compared& kind, std::string name, bool field,
                    const BlackOilDataRecords& first, const BlackOilDataRecords& second)
        : comparison_(comparison),
          kind_(kind),
          name_(std::move(name)),
          units_(kind.isOil ? OilUnits(field) : GasUnits(field)),
          first_(first),
          second_(second) {}

    void Compare();

private:
    struct Row {
        const BlackOilDataRecords* records;
        std::uint64_t record;
        std::uint64_t entry;

        double Pressure() const { return records->GetPressure(record, entry); }
        double Ratio() const { return records->GetProperty(record, entry); }
        double VolumeFactor() const { return records->GetFormationVolumeFactor(record, entry); }
        double Viscosity() const { return records->GetViscosity(record, entry); }
    };
    using Rows = std::vector<Row>;

    double OuterKey(const Row& row) const { return kind_.isOil ? row.Ratio() : row.Pressure(); }
    double InnerKey(const Row& row) const { return kind_.isOil ? row.Pressure() : row.Ratio(); }
    std::string Where(const Row& row, bool isRecord) const;
    static Rows FirstRows(const BlackOilDataRecords& records);
    static Rows AllRows(const BlackOilDataRecords& records);
    static Rows RowsOf(const Row& first);
    template <typename Key, typename Both>
    void MatchRows(const Rows& first, const Rows& second, Key key, bool areRecords, Both both);
    void CompareRows(const Row& first, const Row& second);

    Comparison& comparison_;
    const Compared& kind_;
    std::string name_;
    const BlackOilUnits& units_;
    const BlackOilDataRecords& first_;
    const BlackOilDataRecords& second_;
};

std::string TableComparison::Where(const Row& row, bool isRecord) const {
    const auto text = [](const ShownUnit& unit, double value) {
        return ", " + NumberText(unit.convert(value)) + ' ' + unit.name;
    };
    const std::string ratio = text(units_.ratio, row.Ratio());
    const std::string pressure = text(units_.pressure, row.Pressure());
    if (kind_.isByPressureAlone) {
        return name_ + pressure;
    }
    const std::string outer = kind_.isOil ? ratio : pressure;
    return name_ + outer + (isRecord ? std::string() : kind_.isOil ? pressure : ratio);
}

TableComparison::Rows TableComparison::FirstRows(const BlackOilDataRecords& records) {
    Rows rows;
    for (std::uint64_t record = 0; record < records.GetTableSize(); ++record) {
        rows.push_back({&records, record, 0});
    }
    return rows;
}

TableComparison::Rows TableComparison::AllRows(const BlackOilDataRecords& records) {
    Rows rows;
    ForEachRow(records, [&](std::uint64_t record, std::uint64_t entry) {
        rows.push_back({&records, record, entry});
    });
    return rows;
}

TableComparison::Rows TableComparison::RowsOf(const Row& first) {
    Rows rows;
    for (std::uint64_t i = 0; i < first.records->GetRecordContentSize(first.record); ++i) {
        rows.push_back({first.records, first.record, i});
    }
    return rows;
}

template <typename Key, typename Both>
void TableComparison::MatchRows(const Rows& first, const Rows& second, Key key, bool areRecords,
                                Both both) {
    const auto keysOf = [&](const Rows& rows) {
        std::vector<double> keys;
        std::ranges::transform(rows, std::back_inserter(keys), key);
        return keys;
    };
    for (const auto& [i, j] : MatchNumbers(keysOf(first), keysOf(second), comparison_)) {
        if (i != Match::none && j != Match::none) {
            both(first[i], second[j]);
        } else {
            const bool isInFirst = j == Match::none;
            comparison_.AddMissing(Where(isInFirst ? first[i] : second[j], areRecords), isInFirst);
        }
    }
}

void TableComparison::CompareRows(const Row& first, const Row& second) {
    const auto compare = [&](const char* what, const ShownUnit& unit, double a, double b) {
        if (!comparison_.AreSame(a, b)) {
            comparison_.Compare(Where(first, false), what, unit, a, b);
        }
    };
    if (kind_.isByPressureAlone) {
        compare("ratio", units_.ratio, first.Ratio(), second.Ratio());
    }
    compare("FVF", units_.volumeFactor, first.VolumeFactor(), second.VolumeFactor());
    compare("viscosity", units_.viscosity, first.Viscosity(), second.Viscosity());
}

void TableComparison::Compare() {
    const auto rows = [this](const Row& a, const Row& b) { CompareRows(a, b); };
    if (kind_.isByPressureAlone) {
        MatchRows(
            AllRows(first_), AllRows(second_), [](const Row& row) { return row.Pressure(); }, false,
            rows);
        return;
    }
    MatchRows(
        FirstRows(first_), FirstRows(second_), [this](const Row& row) { return OuterKey(row); },
        true,
        [&](const Row& a, const Row& b) {
            MatchRows(
                RowsOf(a), RowsOf(b), [this](const Row& row) { return InnerKey(row); }, false,
                rows);
        });
}

void CompareRegions(Comparison& comparison, const BlackOilTable& first, const BlackOilTable& second,
                    const std::string& region, bool field) {
    const ShownUnit density =
        field ? ShownUnit{"lb/ft3", Units::Density_kgm3_To_lbft3} : ShownUnit{"kg/m3"};
    const BlackOilUnits& units = OilUnits(field);
    const auto compare = [&](const char* where, const char* what, const ShownUnit& unit,
                             double (BlackOilTable::*value)() const noexcept) {
        comparison.Compare(region + where, what, unit, (first.*value)(), (second.*value)());
    };
    compare("oil", "density", density, &BlackOilTable::GetOilDensity);
    compare("water", "density", density, &BlackOilTable::GetWaterDensity);
    compare("gas", "density", density, &BlackOilTable::GetGasDensity);
    compare("saturation point", "GOR", units.ratio, &BlackOilTable::GetSaturationPointRs);
    compare("saturation point", "pressure", units.pressure,
            &BlackOilTable::GetSaturationPointPressure);
    for (const Compared& kind : compared) {
        TableComparison(comparison, kind, region + kind.name, field, (first.*kind.records)(),
                        (second.*kind.records)())
            .Compare();
    }
}

void Diff(Call& call) {
    Comparison comparison(call.Asked().Number(Options::tolerance).value_or(defaultTolerance));
    const BlackOilFile first = ReadTables(0, call);
    const BlackOilFile second = ReadTables(1, call);
    const std::size_t count = std::max(first.regions.size(), second.regions.size());
    for (std::size_t i = 0; i < count; ++i) {
        const std::string region = count > 1 ? "region " + std::to_string(i + 1) : std::string();
        if (i >= first.regions.size() || i >= second.regions.size()) {
            comparison.AddMissing(region, i < first.regions.size());
        } else {
            CompareRegions(comparison, first.regions[i], second.regions[i],
                           count > 1 ? region + ", " : region, IsField(call, Options::showUnits));
        }
    }
    TellComparison(call, "blackoil", comparison);
}

constexpr Option showOptions[] = {Options::fromUnits, Options::showUnits, Options::all,
                                  Options::json,      Options::csv,       Options::strict};
constexpr Option convertOptions[] = {
    Options::toKeywordsOrCsv, Options::toUnits, Options::fromUnits, Options::region, tables,
    Options::highPrecision,   Options::strict};
constexpr Option diffOptions[] = {Options::tolerance, Options::fromUnits, Options::showUnits,
                                  Options::json, Options::strict};
constexpr Command commands[] = {
    {"blackoil", "show", "Show the densities and tables of a file", "IN", showOptions, Show},
    {"blackoil", "convert", "Write the tables as keywords for a simulator, or with commas",
     "IN OUT", convertOptions, Convert},
    {"blackoil", "diff", "Tell what differs between two files", "A B", diffOptions, Diff},
    blackOilPlot,
};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    ReadBlackOil(input, call);
}

} // namespace BlackOil

} // namespace FluidBenchTool
