// Reads K-value files, as their writer draws them and as people type them. What the rows mean
// stands in comments ahead of them:
//
//     -- Temperature (K): 350.0            or (F); once for each table
//     -- Components:           C1 ...      cells of 24 characters and a blank, or words
//     -- Units: bar            ...
//     KVTABLE
//     100.0                    2.5 ...     a pressure and the K-values
//     /                                    another table may follow
//     FILEUNIT ...
#include "io/KValuesKeywordReader.h"

#include "FileNumber.h"
#include "KValuesColumns.h"
#include "KeywordWalker.h"
#include "NumberText.h"
#include "Quote.h"

#include <string_view>
#include <unordered_set>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::Units;
using Impl::IO::KeywordWalker;
using Impl::IO::WantedKeyword;
using Model::KValuesTable;
using Text::Quote;
namespace KeywordKinds = Impl::IO::KeywordKinds;

namespace {

constexpr bool isNoContent = false;
constexpr WantedKeyword kValuesKeywords[] = {{"KVTABLE"}, {"CNAMES", isNoContent}};

constexpr std::string_view blanks = " \t";

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// A name that is longer than a cell reaches to the next blank.
std::vector<std::string> NamesInCells(std::string_view cells) {
    std::vector<std::string> names;
    while (!cells.empty()) {
        const std::size_t width = cells.size() > kValuesCellWidth
                                      ? cells.find(' ', kValuesCellWidth)
                                      : std::string_view::npos;
        const std::string_view cell = cells.substr(0, width);
        names.emplace_back(cell.substr(0, cell.find_last_not_of(' ') + 1));
        cells.remove_prefix(width == std::string_view::npos ? cells.size() : width + 1);
    }
    return names;
}

std::vector<std::string> NamesInWords(std::string_view words) {
    std::vector<std::string> names;
    for (words = Trimmed(words); !words.empty(); words = Trimmed(words)) {
        const std::size_t length = std::min(words.find_first_of(blanks), words.size());
        names.emplace_back(words.substr(0, length));
        words.remove_prefix(length);
    }
    return names;
}

// A table with its pressures in the units of the file.
struct TableOfFile {
    std::optional<double> temperature; // K
    std::vector<std::string> names;
    std::vector<std::vector<double>> rows;
    std::uint64_t line = 0;
};

class KValuesFile {
public:
    explicit KValuesFile(KeywordWalker& walker) : walker_(walker) {
        walker_.SetCommentWatch([this](std::string_view comment) { ReadComment(comment); });
    }

    std::vector<KValuesTable> Read(std::optional<Units::UNIT_TYPE> units);

private:
    void ReadComment(std::string_view comment);
    void ReadTemperature(std::string_view comment, bool isField);
    void SetNames(std::vector<std::string> names, std::uint64_t line);
    void ReadTable();

    KeywordWalker& walker_;
    std::optional<double> temperature_; // ahead of the next table
    std::optional<std::vector<std::string>> names_;
    bool hasNewNames_ = false; // a heading that no table has had yet
    std::vector<TableOfFile> tables_;
};

void KValuesFile::ReadComment(std::string_view comment) {
    // The heading as it is written has its first cell filled up with blanks.
    constexpr std::string_view components = "Components:";
    constexpr std::string_view firstCell = " Components:           ";
    const std::string_view text = Trimmed(comment);
    if (text.starts_with("Temperature (K):")) {
        ReadTemperature(text, false);
    } else if (text.starts_with("Temperature (F):")) {
        ReadTemperature(text, true);
    } else if (text.starts_with(components)) {
        if (std::exchange(hasNewNames_, true)) {
            walker_.Fail(KeywordKinds::nameTwice, walker_.PositionLine(),
                         "one line of components ahead of a table", "a second one");
        }
        const bool hasCells = comment.starts_with(firstCell) && comment.ends_with(' ');
        SetNames(hasCells ? NamesInCells(comment.substr(firstCell.size()))
                          : NamesInWords(text.substr(components.size())),
                 walker_.PositionLine());
    }
}

void KValuesFile::ReadTemperature(std::string_view comment, bool isField) {
    const std::string_view text = Trimmed(comment.substr(comment.find(':') + 1));
    double number = 0.0;
    if (!Text::ParseNumber(text, number)) {
        walker_.Fail(KeywordKinds::notANumber, walker_.PositionLine(), "a temperature",
                     Quote(text));
    }
    walker_.NoteUnits(isField ? Units::FIELD : Units::METRIC, comment);
    temperature_ =
        isField ? FileNumber(Units::Temperature_K_To_F, Units::Temperature_F_To_K).ToModel(number)
                : number;
}

void KValuesFile::SetNames(std::vector<std::string> names, std::uint64_t line) {
    std::unordered_set<std::string_view> known;
    for (const std::string& name : names) {
        if (!known.insert(name).second) {
            walker_.Fail(KeywordKinds::nameTwice, line, "a name for each component alone",
                         Quote(name) + " twice");
        }
    }
    names_ = std::move(names);
}

void KValuesFile::ReadTable() {
    if (!names_) {
        walker_.Fail(KeywordKinds::noNames, walker_.PositionLine(),
                     "the components ahead of the table, in a comment '-- Components:' or under "
                     "CNAMES",
                     "neither");
    }
    const std::size_t width = names_->size() + 1;
    const std::string meaning =
        "a pressure and " + std::to_string(names_->size()) + " K-values, one for each component";
    TableOfFile table{std::exchange(temperature_, std::nullopt), *names_, {}, 0};
    hasNewNames_ = false;
    for (std::vector<double> row(width); walker_.ReadRow(row, meaning);) {
        table.rows.push_back(row);
    }
    table.line = walker_.Line();
    if (table.rows.empty()) {
        walker_.Tell(KeywordKinds::noRows, table.line,
                     "Expected rows of numbers ahead of the table's end, found none.");
    }
    tables_.push_back(std::move(table));
}

std::vector<KValuesTable> KValuesFile::Read(std::optional<Units::UNIT_TYPE> units) {
    while (walker_.NextKeyword()) {
        if (walker_.Keyword() == "CNAMES") {
            SetNames(walker_.ReadNames(), walker_.Line());
        } else {
            do {
                ReadTable();
            } while (walker_.HasRecord());
        }
    }
    const bool isField = walker_.IsField(units);
    // An empty table at the end is a slash too many.
    while (tables_.size() > 1 && tables_.back().rows.empty()) {
        tables_.pop_back();
    }
    const FileNumber pressure(isField ? Units::Pressure_Pa_To_psi : Units::Pressure_Pa_To_bar,
                              walker_.HasLongNumbers());
    std::vector<KValuesTable> tables;
    for (TableOfFile& table : tables_) {
        KValuesTable& whole = tables.emplace_back(std::move(table.names));
        whole.Temperature = table.temperature.value_or(whole.Temperature);
        for (std::vector<double>& row : table.rows) {
            row.front() = pressure.ToModel(row.front());
            whole.AddRecord(std::move(row));
        }
    }
    return tables;
}

} // namespace

KValuesKeywordReader::KValuesKeywordReader() = default;
KValuesKeywordReader::~KValuesKeywordReader() = default;

void KValuesKeywordReader::SetDiagnosticSink(DiagnosticSink sink) {
    diagnosticSink = std::move(sink);
}

ErrorReport KValuesKeywordReader::Read(const std::string& fileName,
                                       std::vector<KValuesTable>& tables,
                                       std::optional<Units::UNIT_TYPE> units) const {
    return ReadKeywords({fileName}, diagnosticSink, kValuesKeywords, tables,
                        [&](KeywordWalker& walker) { return KValuesFile(walker).Read(units); });
}

ErrorReport KValuesKeywordReader::Read(std::istream& in, std::vector<KValuesTable>& tables,
                                       std::optional<Units::UNIT_TYPE> units,
                                       const std::string& name) const {
    return ReadKeywords({name, &in}, diagnosticSink, kValuesKeywords, tables,
                        [&](KeywordWalker& walker) { return KValuesFile(walker).Read(units); });
}

} // namespace Orv::FluidBench::IO
