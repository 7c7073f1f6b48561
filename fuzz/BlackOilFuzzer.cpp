// Black-oil CSV: any text gives the table that a plain reader finds, what isn't taken as it stands
// is told, and a table that is written reads back as it was.
#include "BlackOilColumns.h"
#include "io/BlackOilExportFileWriter.h"

#include <array>
#include <cctype>

namespace {

using namespace FluidBenchFuzz;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;
using Writer = Orv::FluidBench::IO::BlackOilExportFileWriter;

Writer MakeReader(Told* told) {
    Writer reader(true);
    reader.SetReadsSaturationPoint(true);
    if (told != nullptr) {
        reader.SetDiagnosticSink(told->Sink());
    }
    return reader;
}

// The same columns as those of the keywords, read the plain way: `std::strtod` of each cell.
class PlainReader {
public:
    PlainReader(std::string_view text, const std::string& file, const Told& told)
        : file_(file), told_(told) {
        for (const std::string& line : LinesOf(text)) {
            ++number_;
            if (!isInTable_) {
                TakeTopLevel(line);
            } else if (line.empty()) {
                EndRecord();
            } else if (isOil_ && line.find("Units") != std::string::npos) {
                EndRecord();
                isInTable_ = false;
            } else {
                TakeRow(line);
            }
        }
        EndRecord();
    }

    BlackOilTable table;

private:
    // Nothing may be lost in silence.
    void RequireTold(const std::string& line) const {
        Require(told_.Tells(number_, file_), "What isn't taken as it stands is told: line " +
                                                 std::to_string(number_) + ", '" + line + "'");
    }

    void TakeTopLevel(const std::string& line) {
        const std::vector<std::string> cells = CellsOf(line, ',');
        std::string key = cells[0];
        std::ranges::transform(key, key.begin(), [](unsigned char c) { return std::tolower(c); });
        if (cells.size() == 1 || key.empty()) {
            key = "";
        }
        if (key == "pvto" || key == "pvtg") {
            isInTable_ = true;
            isOil_ = key == "pvto";
            Set(BlackOilDataRecords());
        } else if (key == "oden" || key == "wden" || key == "gden" || key == "rsconst" ||
                   key == "psat") {
            const std::string rest = WithoutPadding(line.substr(key.size() + 1));
            const PlainCell cell = LookAt(rest);
            if (!cell.isNumber) {
                RequireTold(line);
            }
            SetNumber(key, cell.number);
        } else if (HasDigit(line) && line.find("FILEUNIT") == std::string::npos) {
            RequireTold(line);
        }
    }

    void SetNumber(const std::string& key, double number) {
        if (key == "oden") {
            table.SetOilDensity(number);
        } else if (key == "wden") {
            table.SetWaterDensity(number);
        } else if (key == "gden") {
            table.SetGasDensity(number);
        } else if (key == "psat") {
            table.SetSaturationPoint(table.GetSaturationPointRs(), number);
        } else {
            table.SetSaturationPoint(number, table.GetSaturationPointPressure());
        }
    }

    void TakeRow(const std::string& line) {
        const std::vector<std::string> cells = CellsOf(line, ',');
        if (cells.size() < 5) {
            if (HasDigit(line) && line.find("FILEUNIT") == std::string::npos) {
                RequireTold(line);
            }
            return;
        }
        std::array<double, 4> row{};
        bool isGood =
            LookAt(cells[0]).isBlank || cells[0].find_first_not_of(" \t\"'") == std::string::npos;
        for (std::size_t i = 0; i < row.size(); ++i) {
            std::string text = cells[i + 1];
            for (std::size_t j = 5; i == 3 && j < cells.size(); ++j) {
                text += ',' + cells[j];
            }
            const PlainCell cell = LookAt(i == 3 ? WithoutPadding(text) : text);
            isGood = isGood && cell.isNumber;
            row[i] = cell.number;
        }
        if (!isGood) {
            RequireTold(line);
        }
        entries_.push_back(
            {(isOil_ ? row[1] : row[0]) * 1e5, isOil_ ? row[0] : row[1], row[2], row[3] / 1e3});
    }

    static std::string WithoutPadding(const std::string& text) {
        return text.substr(0, text.find_last_not_of(", \t") + 1);
    }

    void EndRecord() {
        if (!entries_.empty()) {
            BlackOilDataRecords records = isOil_ ? table.GetLiveOilData() : table.GetWetGasData();
            records.AddRecord(entries_);
            Set(records);
            entries_.clear();
        }
    }
    void Set(const BlackOilDataRecords& records) {
        if (isOil_) {
            table.SetLiveOilData(records);
        } else {
            table.SetWetGasData(records);
        }
    }

    const std::string& file_;
    const Told& told_;
    std::uint64_t number_ = 0;
    bool isInTable_ = false;
    bool isOil_ = true;
    std::vector<BlackOilDataRecords::Entry> entries_;
};

Columns ColumnsOf(const BlackOilTable& table, bool isField = false) {
    return BlackOilColumns({table}, FileUnits(isField));
}

// A file with keywords has the same numbers, but for the water's.
void RequireKeywords(BlackOilTable table, Units::UNIT_TYPE units) {
    std::ostringstream out;
    Writer(true).ExportToFile(table, out, units, Writer::LIVE_OIL_WET_GAS, Writer::PVO);
    table.SetWaterDensity(1000.0);
    table.SetSaturationPoint(0.0, 0.0); // for dead oil alone
    const auto plain = ReadPlainly(out.str(), blackOilKeywords);
    Require(plain.has_value(), "A plain reader reads the keywords");
    RequireColumns(plain->columns, ColumnsOf(table, units == Units::FIELD), 1e-12, 1e-15,
                   "The keywords have the table's numbers");
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    std::vector<std::string> samples = ProjectFiles("tests/data/black-oil", ".csv");
    for (const char* const file : {"examples/data/reservoir-black-oil.csv",
                                   "tests/data/tool/oil.csv", "tests/data/tool/oil2.csv"}) {
        samples.push_back(ProjectFile(file));
    }
    samples.emplace_back("OdEn , 1\ngden,2\npvtg,\n,1,2,3,4\n\n\n,5,6,7,8,9\n");
    return samples;
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    const std::string path = FileWith("input.csv", input);
    Told told;
    const BlackOilTable table = MakeReader(&told).GetTableFromCSVFile(path);
    const Columns columns = ColumnsOf(table);

    PiecesBuffer pieces(input, 1 + input.size() % 5000);
    std::istream stream(&pieces);
    Told toldOfStream;
    const BlackOilTable fromStream = MakeReader(&toldOfStream).GetTableFromCSVFile(stream, path);
    Require(told.Text() == toldOfStream.Text(), "A stream and a file tell the same");
    RequireColumns(columns, ColumnsOf(fromStream), 0.0, 0.0, "A stream and a file give the same");
    RequireColumns(columns, ColumnsOf(MakeReader(nullptr).GetTableFromCSVFile(path)), 0.0, 0.0,
                   "A reader gives the same when nobody listens");
    if (!told.HasAny({"file.utf-16", "file.carriage-returns"})) {
        const PlainReader plain(input, path, told);
        RequireColumns(ColumnsOf(plain.table), columns, 1e-15, 0.0,
                       "A plain reader reads the same");
    }
    if (!IsUsual(columns)) {
        return;
    }
    RequireKeywords(table, Units::METRIC);
    RequireKeywords(table, Units::FIELD);
    std::ostringstream written;
    Writer(true).ExportToFile(table, written, Units::METRIC, Writer::LIVE_OIL_WET_GAS, Writer::CSV);
    std::istringstream in(written.str());
    Told toldOfWritten;
    const BlackOilTable again = MakeReader(&toldOfWritten).GetTableFromCSVFile(in, "written");
    BlackOilTable whole = table;
    whole.SetWaterDensity(1000.0);
    RequireColumns(ColumnsOf(whole), ColumnsOf(again), 1e-12, 1e-14, "What is written comes back");
    RequireColumns(ColumnsOf(PlainReader(written.str(), "written", toldOfWritten).table),
                   ColumnsOf(again), 1e-15, 0.0, "A plain reader reads what is written");
}
