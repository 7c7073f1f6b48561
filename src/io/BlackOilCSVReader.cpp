// Reads the CSV form of black-oil tables, as `CSVFormatter` draws it. A scanner of three states:
//
//     state        line                     next state
//     top level    key "pvto"               oil table
//                  key "pvtg"               gas table
//                  any other                top level; the keys of densities are taken
//     oil table    "Units" anywhere in it   top level; the line stands ahead of the gas heading
//                  any other                oil table
//     gas table    any                      gas table, to the end of the file
//
// A key is what stands ahead of a line's first comma, in capitals or not. In a table, an empty line
// ends a record, and a line of fewer than five cells is skipped.
#include "io/BlackOilExportFileWriter.h"

#include "CellDiagnostics.h"
#include "CellNumber.h"
#include "Characters.h"
#include "Diagnostics.h"
#include "FluidBench/Common/Units.h"
#include "InputFile.h"
#include "LineReader.h"
#include "NumberText.h"
#include "Quote.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::Units;
using Impl::IO::Diagnostics;
using Impl::IO::OpenOrTell;
using Model::BlackOilDataRecords;
using Model::BlackOilTable;
using Text::CellContent;
using Text::LineReader;
using Text::LookAtCell;
using Text::ParseAsAtof;
using Text::Quote;
using Text::TakeAsAtof;
using Text::WithoutPadding;
namespace BlackOilKinds = Impl::IO::BlackOilKinds;

namespace {

enum class TableKind { Oil, Gas };

// Where the cells of a row stand, behind the first one, which holds nothing.
struct CsvLayout {
    const char* heading;
    std::size_t pressure;
    std::size_t ratio;
    std::array<const char*, 4> columns;
};
constexpr std::size_t volumeFactorCell = 2;
constexpr std::size_t viscosityCell = 3;

// clang-format off
constexpr CsvLayout oilLayout{"pvto", 1, 0, {"gas-oil ratio", "pressure", "volume factor", "viscosity"}};
constexpr CsvLayout gasLayout{"pvtg", 0, 1, {"pressure", "oil-gas ratio", "volume factor", "viscosity"}};
// clang-format on

constexpr const CsvLayout& LayoutOf(TableKind kind) noexcept {
    return kind == TableKind::Oil ? oilLayout : gasLayout;
}

constexpr Impl::IO::CellKinds blackOilCells{BlackOilKinds::notANumber,
                                            BlackOilKinds::textBehindNumber,
                                            BlackOilKinds::notFinite, ParseAsAtof};
constexpr const char* countsAsZero = "it counts as 0";

// By hand, since tolower asks the program's locale.
constexpr char ToLower(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsKey(std::string_view text, std::string_view key) noexcept {
    return std::ranges::equal(text, key, {}, ToLower, ToLower);
}

// The text without blanks and quotes around it.
std::string_view Bare(std::string_view text) noexcept {
    constexpr std::string_view dressing = " \t\"'";
    const std::size_t first = text.find_first_not_of(dressing);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(dressing) - first + 1);
}

std::string_view FirstCell(std::string_view line) noexcept {
    return line.substr(0, line.find(','));
}

// A spreadsheet fills its lines up with commas.
// What people write ahead of a line's numbers.
enum class KeyKind { None, Table, OtherTable, Value, Units, FileUnit };

struct Key {
    const char* word;
    KeyKind kind;
};

constexpr Key keys[] = {
    {oilLayout.heading, KeyKind::Table},
    {gasLayout.heading, KeyKind::Table},
    {"pvdo", KeyKind::OtherTable}, // of the keyword form
    {"pvdg", KeyKind::OtherTable},
    {"oden", KeyKind::Value},
    {"wden", KeyKind::Value},
    {"gden", KeyKind::Value},
    {"rsconst", KeyKind::Value},
    {"psat", KeyKind::Value},
    {"units", KeyKind::Units},
    {"fileunit", KeyKind::FileUnit},
};

// The word that a line begins with, however it is dressed and whatever stands behind it.
struct LeadingWord {
    std::string_view word;
    std::string_view behind;
    KeyKind kind = KeyKind::None;
};

LeadingWord LeadingWordOf(std::string_view line) noexcept {
    constexpr std::string_view dressing = " \t\"'";
    line.remove_prefix(std::min(line.find_first_not_of(dressing), line.size()));
    const auto end = std::ranges::find_if_not(line, Text::IsLetter);
    const auto length = static_cast<std::size_t>(end - line.begin());
    LeadingWord leading{line.substr(0, length), line.substr(length)};
    for (const Key& key : keys) {
        if (length != 0 && IsKey(leading.word, key.word)) {
            leading.kind = key.kind;
        }
    }
    return leading;
}

// Whether the first thing on a line is a number, whatever parts it from the next.
bool BeginsWithNumber(std::string_view line) noexcept {
    constexpr std::string_view separators = " \t,;|\"'";
    line.remove_prefix(std::min(line.find_first_not_of(separators), line.size()));
    return LookAtCell(line.substr(0, line.find_first_of(separators))) == CellContent::Number;
}

// The record that `CSVFormatter` closes a file with.
bool IsClosing(std::string_view text) noexcept {
    return text == "FILEUNIT" || text == "METRIC" || text == "FIELD" || text == "/";
}

// The last cell takes the rest of the line, as far as it isn't padding.
using RowCells = std::array<std::string_view, 4>;

// The cells of a line that is a row.
RowCells SplitRow(std::string_view line) noexcept {
    RowCells cells;
    std::size_t comma = line.find(',');
    for (std::size_t i = 0; i + 1 < cells.size(); ++i) {
        const std::size_t begin = comma + 1;
        comma = line.find(',', begin);
        cells[i] = line.substr(begin, comma - begin);
    }
    cells.back() = WithoutPadding(line.substr(comma + 1));
    return cells;
}

struct CsvRow {
    double pressure; // Pa
    double ratio;
    double volumeFactor;
    double viscosity; // Pa.s
};

// The row in one pass: a number ends at the comma behind its cell, if not before. Nothing where a
// comma is missing.
std::optional<CsvRow> ReadRow(std::string_view line, const CsvLayout& layout) noexcept {
    std::array<double, 4> numbers{};
    std::string_view rest = line;
    for (double& number : numbers) {
        const std::size_t comma = rest.find(',');
        if (comma == std::string_view::npos) {
            return std::nullopt;
        }
        rest.remove_prefix(comma + 1);
        number = TakeAsAtof(rest);
    }
    return CsvRow{Units::Pressure_bar_To_Pa(numbers[layout.pressure]), numbers[layout.ratio],
                  numbers[volumeFactorCell], Units::Viscosity_cp_To_Pas(numbers[viscosityCell])};
}

// The densities of the file form; each has a key of its own.
struct DensityLine {
    const char* key; // in capitals
    const char* name;
    const Impl::IO::DiagnosticKind& missing;
    void (BlackOilTable::*set)(double);
};

constexpr DensityLine densities[] = {
    {"ODEN", "oil", BlackOilKinds::noDensities, &BlackOilTable::SetOilDensity},
    {"WDEN", "water", BlackOilKinds::noWaterDensity, &BlackOilTable::SetWaterDensity},
    {"GDEN", "gas", BlackOilKinds::noDensities, &BlackOilTable::SetGasDensity},
};

// Looks at what the reader takes or passes over, and tells of what may not be meant so. It is asked
// only when somebody listens.
class CsvWatch {
public:
    CsvWatch(Diagnostics& diagnostics, const LineReader& lines)
        : diagnostics_(diagnostics), lines_(lines) {}

    void AtTopLevel(std::string_view line);
    void BeginTable(TableKind kind);
    void EndTable();
    void BeginRecord() { previousPressure_.reset(); }
    void SkippedRow(std::string_view line);
    void TakenRow(std::string_view line, const CsvRow& row);
    void Density(const DensityLine& density, std::string_view value);
    void EndFile();

private:
    bool IsHeading(std::string_view line);
    void Units(std::string_view behind);
    void WithoutEffect(std::string_view line, const LeadingWord& leading);
    void Tell(const Impl::IO::DiagnosticKind& kind, const std::string& sentence) {
        diagnostics_.Tell(kind, lines_.Number(), sentence);
    }

    Diagnostics& diagnostics_;
    const LineReader& lines_;
    const CsvLayout* layout_ = &oilLayout;
    std::optional<double> previousPressure_; // in the record
    std::uint64_t heading_ = 0;              // its line
    std::uint64_t endOfTable_ = 0;           // the line that ended the oil table
    std::array<bool, 2> hadTable_{};
    bool hasRows_ = false;
    std::array<bool, std::size(densities)> hasDensity_{};
};

void CsvWatch::AtTopLevel(std::string_view line) {
    const std::string_view text = WithoutPadding(line);
    if (text.empty() || IsClosing(text)) {
        return;
    }
    const LeadingWord leading = LeadingWordOf(text);
    switch (leading.kind) {
    case KeyKind::FileUnit:
        break;
    case KeyKind::Units:
        Units(leading.behind);
        break;
    case KeyKind::OtherTable:
        Tell(BlackOilKinds::headingForm, "Expected the heading 'PVTO,' or 'PVTG,', found " +
                                             Quote(text) +
                                             "; the line doesn't count, nor do the rows below it.");
        break;
    case KeyKind::Table:
    case KeyKind::Value:
        if (line.substr(0, line.find(',')) != leading.word || line.size() == leading.word.size()) {
            WithoutEffect(text, leading);
        }
        break;
    case KeyKind::None:
        if (BeginsWithNumber(text)) {
            Tell(BlackOilKinds::rowOutsideTable,
                 "Expected rows below a heading 'PVTO,' or 'PVTG,', found " + Quote(text) +
                     " outside of any table; it doesn't count." +
                     (endOfTable_ == 0
                          ? std::string()
                          : " The oil table ended at line " + std::to_string(endOfTable_) +
                                ", which holds 'Units'."));
        } else {
            Tell(BlackOilKinds::otherText,
                 "Expected a key and its value or a heading, found " + Quote(text) + ".");
        }
    }
}

void CsvWatch::Units(std::string_view behind) {
    constexpr std::string_view dressing = " \t\"',:;=";
    behind.remove_prefix(std::min(behind.find_first_not_of(dressing), behind.size()));
    const std::string_view system = Bare(behind);
    if (!system.empty() && !IsKey(system, "metric")) {
        Tell(BlackOilKinds::otherUnits, "Expected 'METRIC', found " + Quote(system) +
                                            "; the numbers are taken as metric all the same.");
    }
}

// A key that the reader knows, but not so.
void CsvWatch::WithoutEffect(std::string_view line, const LeadingWord& leading) {
    const std::string_view behind = Bare(leading.behind);
    if (!behind.empty() && (behind.front() == ';' || behind.front() == '|' ||
                            (leading.behind.front() == '\t' && behind.front() != ','))) {
        Tell(BlackOilKinds::otherSeparator,
             "Expected cells parted by commas, found " + Quote(line) + "; the line doesn't count.");
    } else {
        Tell(BlackOilKinds::headingForm,
             "Expected the key " + Quote(leading.word) +
                 " at the head of the line, without blanks or quotes around it and with a comma "
                 "behind it, found " +
                 Quote(line) + "; the line doesn't count.");
    }
}

void CsvWatch::BeginTable(TableKind kind) {
    bool& hadTable = hadTable_[static_cast<std::size_t>(kind)];
    if (hadTable) {
        Tell(BlackOilKinds::secondTable,
             std::string("Expected one table of its kind, found a second one, "
                         "which replaces the first."));
    }
    hadTable = true;
    layout_ = &LayoutOf(kind);
    heading_ = lines_.Number();
    hasRows_ = false;
    BeginRecord();
}

void CsvWatch::EndTable() {
    endOfTable_ = lines_.Number();
    if (!hasRows_) {
        diagnostics_.Tell(BlackOilKinds::noRows, heading_,
                          "Expected rows of five cells below the heading, found none.");
    }
}

// Tells of a heading or a units line inside a table.
bool CsvWatch::IsHeading(std::string_view line) {
    const LeadingWord leading = LeadingWordOf(line);
    if (leading.kind == KeyKind::Table || leading.kind == KeyKind::OtherTable) {
        Tell(BlackOilKinds::headingInTable,
             "Expected a row of the table that begins on line " + std::to_string(heading_) +
                 ", found the heading " + Quote(leading.word) +
                 ": what is below counts as more of that table. A table ends at a line with "
                 "'Units', and the gas table at the end of the file.");
        return true;
    }
    if (leading.kind == KeyKind::Units) {
        Units(WithoutPadding(leading.behind));
        return true;
    }
    return false;
}

void CsvWatch::SkippedRow(std::string_view line) {
    const std::string_view text = WithoutPadding(line);
    const LeadingWord leading = LeadingWordOf(text);
    if ((IsHeading(text) && leading.kind == KeyKind::Units) || IsClosing(text)) {
        return;
    }
    if (Bare(text).empty()) {
        Tell(BlackOilKinds::paddedRow,
             "Expected a row or an empty line, found blanks or separators alone; "
             "the line ends no record.");
        return;
    }
    if (line.find(',') == std::string_view::npos &&
        line.find_first_of(";\t|") != std::string_view::npos) {
        Tell(BlackOilKinds::otherSeparator,
             "Expected cells parted by commas, found " + Quote(line) + "; the row was skipped.");
    } else {
        Tell(BlackOilKinds::rowSkipped, "Expected five cells, found " +
                                            std::to_string(1 + std::ranges::count(line, ',')) +
                                            " in " + Quote(line) + "; the row was skipped.");
    }
}

void CsvWatch::TakenRow(std::string_view line, const CsvRow& row) {
    const std::string_view first = FirstCell(line);
    const bool isPlain = Bare(first).empty(); // as nearly every row
    const bool isHeading = !isPlain && IsHeading(line);
    hasRows_ = true;
    if (line.substr(first.size()).find_first_not_of(", \t\"") == std::string_view::npos) {
        Tell(BlackOilKinds::paddedRow,
             "Expected a row of numbers, found separators alone in " + Quote(WithoutPadding(line)) +
                 "; it counts as a row of zeros. An empty line ends a record, so "
                 "delete what is on this one.");
        return;
    }
    if (!isPlain && !isHeading) {
        Tell(BlackOilKinds::firstCell,
             "Expected an empty first cell, found " + Quote(first) +
                 ", which isn't read; the numbers are those of the four cells "
                 "behind it.");
    }
    const RowCells cells = SplitRow(line);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        TellCell(diagnostics_, blackOilCells, lines_.Number(), layout_->columns[i], cells[i],
                 countsAsZero);
    }
    const double smallest = std::min({row.pressure, row.ratio, row.volumeFactor, row.viscosity});
    if (smallest < 0.0) {
        Tell(BlackOilKinds::negativeValue,
             "Expected values of zero or more, found a negative one in " + Quote(line) + ".");
    }
    // All rows of a gas record may have the same pressure.
    const bool isOil = layout_ == &oilLayout;
    if (previousPressure_ &&
        (row.pressure < *previousPressure_ || (isOil && row.pressure == *previousPressure_))) {
        Tell(BlackOilKinds::pressureOrder, std::string("Expected a pressure ") +
                                               (isOil ? "above" : "no less than") +
                                               " that of the row ahead in the same record, found " +
                                               Quote(cells[layout_->pressure]) + ".");
    }
    previousPressure_ = row.pressure;
}

void CsvWatch::Density(const DensityLine& density, std::string_view value) {
    hasDensity_[static_cast<std::size_t>(&density - densities)] = true;
    const std::string_view cell = WithoutPadding(value);
    TellCell(diagnostics_, blackOilCells, lines_.Number(), std::string(density.name) + " density",
             cell, countsAsZero);
    if (ParseAsAtof(cell) < 0.0) {
        Tell(BlackOilKinds::negativeValue,
             "Expected a density above zero, found " + Quote(cell) + ".");
    }
}

void CsvWatch::EndFile() {
    if (!hadTable_[0] && !hadTable_[1]) {
        diagnostics_.Tell(BlackOilKinds::noTable, 0,
                          "Expected a line that begins with 'PVTO,' or 'PVTG,', found none.");
        return;
    }
    for (std::size_t i = 0; i < std::size(densities); ++i) {
        if (!hasDensity_[i]) {
            const auto& [heading, name, kind, set] = densities[i];
            diagnostics_.Tell(kind, 0,
                              std::string("Expected a line that begins with '") + heading +
                                  ",' ahead of the tables, found none; the " + name +
                                  " density is that of a new table.");
        }
    }
}

class CsvReader {
public:
    CsvReader(std::istream& in, Diagnostics& diagnostics, bool readsSaturationPoint)
        : lines_(in),
          diagnostics_(diagnostics),
          watch_(diagnostics, lines_),
          readsSaturationPoint_(readsSaturationPoint) {}

    BlackOilTable Read();

private:
    void ReadLine(std::string_view line, BlackOilTable& table);
    void ReadSaturationPoint(std::string_view key, std::string_view value, BlackOilTable& table);
    BlackOilDataRecords ReadTable(TableKind kind);

    LineReader lines_;
    Diagnostics& diagnostics_;
    CsvWatch watch_;
    bool readsSaturationPoint_;
};

BlackOilTable CsvReader::Read() {
    const Text::TextKind kind = lines_.Kind();
    TellOddText(diagnostics_, kind);
    const bool isWatched = diagnostics_.AreWanted() && kind == Text::TextKind::Plain;
    BlackOilTable table;
    for (std::string_view line; lines_.Next(line);) {
        if (isWatched) {
            watch_.AtTopLevel(line);
        }
        ReadLine(line, table);
    }
    if (TellHowEnded(diagnostics_, lines_)) {
        watch_.EndFile();
    }
    return table;
}

void CsvReader::ReadLine(std::string_view line, BlackOilTable& table) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) {
        return;
    }
    const std::string_view key = line.substr(0, comma);
    const std::string_view value = line.substr(comma + 1);
    for (const DensityLine& density : densities) {
        if (IsKey(key, density.key)) {
            (table.*density.set)(ParseAsAtof(value));
            if (diagnostics_.AreWanted()) {
                watch_.Density(density, value);
            }
        }
    }
    if (readsSaturationPoint_) {
        ReadSaturationPoint(key, value, table);
    }
    if (IsKey(key, oilLayout.heading)) {
        table.SetLiveOilData(ReadTable(TableKind::Oil));
    } else if (IsKey(key, gasLayout.heading)) {
        table.SetWetGasData(ReadTable(TableKind::Gas));
    }
}

void CsvReader::ReadSaturationPoint(std::string_view key, std::string_view value,
                                    BlackOilTable& table) {
    const bool isRatio = IsKey(key, "rsconst");
    if (!isRatio && !IsKey(key, "psat")) {
        return;
    }
    const double number = ParseAsAtof(value); // the pressure is in Pa, unlike those of the rows
    table.SetSaturationPoint(isRatio ? number : table.GetSaturationPointRs(),
                             isRatio ? table.GetSaturationPointPressure() : number);
    TellCell(diagnostics_, blackOilCells, lines_.Number(),
             isRatio ? "ratio of the saturation point" : "pressure of the saturation point",
             WithoutPadding(value), countsAsZero);
}

BlackOilDataRecords CsvReader::ReadTable(TableKind kind) {
    const CsvLayout& layout = LayoutOf(kind);
    const bool isWatched = diagnostics_.AreWanted();
    watch_.BeginTable(kind);
    BlackOilDataRecords records;
    std::uint64_t record = 0;
    bool recordHasRows = false;
    for (std::string_view line; lines_.Next(line);) {
        if (line.empty()) {
            // More empty lines, or one ahead of the first row, end nothing: records have no gaps.
            record += recordHasRows ? 1 : 0;
            recordHasRows = false;
            watch_.BeginRecord();
        } else if (kind == TableKind::Oil && line.find("Units") != std::string_view::npos) {
            watch_.EndTable();
            if (isWatched) {
                watch_.AtTopLevel(line);
            }
            return records;
        } else if (const auto row = ReadRow(line, layout)) {
            records.AddEntry(record, row->pressure, row->ratio, row->volumeFactor, row->viscosity);
            recordHasRows = true;
            if (isWatched) {
                watch_.TakenRow(line, *row);
            }
        } else if (isWatched) {
            watch_.SkippedRow(line);
        }
    }
    watch_.EndTable();
    return records;
}

} // namespace

void BlackOilExportFileWriter::SetDiagnosticSink(DiagnosticSink sink) {
    diagnosticSink = std::move(sink);
}

void BlackOilExportFileWriter::SetReadsSaturationPoint(bool reads) {
    readsSaturationPoint = reads;
}

BlackOilTable BlackOilExportFileWriter::GetTableFromCSVFile(const std::string& fileName) const {
    Diagnostics diagnostics(diagnosticSink, fileName);
    std::ifstream file = OpenOrTell(fileName, diagnostics);
    BlackOilTable table;
    if (file.is_open()) {
        table = CsvReader(file, diagnostics, readsSaturationPoint).Read();
    }
    diagnostics.Finish();
    return table;
}

BlackOilTable BlackOilExportFileWriter::GetTableFromCSVFile(std::istream& in,
                                                            const std::string& name) const {
    Diagnostics diagnostics(diagnosticSink, name);
    BlackOilTable table = CsvReader(in, diagnostics, readsSaturationPoint).Read();
    diagnostics.Finish();
    return table;
}

} // namespace Orv::FluidBench::IO
