// Exports of downhole fluid analysis: any pair of files is refused as a whole, or gives whole
// wells, with the stations that a plain reader finds; what isn't taken as it stands is told.
#include "Keywords.h"
#include "io/DFAReader.h"

#include <algorithm>

namespace {

using namespace FluidBenchFuzz;
using Orv::FluidBench::IO::DFAReader;
using Orv::FluidBench::IO::WellData;

// Parts the two files of an input.
constexpr std::string_view parting = "\n===FT===\n";

void RequireWhole(const WellData& well) {
    const std::size_t stations = well.depths.size();
    Require(stations > 0, "A well has a station");
    Require(well.pressures.size() == stations && well.temperatures.size() == stations &&
                well.densities.size() == stations && well.gasOilRatios.size() == stations &&
                well.stationValues.size() == stations && well.compositions.size() == stations,
            "Each station has every value");
    Require(std::ranges::is_sorted(well.depths), "Stations stand in ascending depth");
    Require(std::ranges::all_of(well.compositions, [](const auto& c) { return c.size() == 5; }),
            "A composition has five fractions");
}

// A row of an export, and whether all of it is numbers.
struct PlainRow {
    std::string well;
    std::vector<double> numbers;
    bool isExact = true;
};

// The rows below the last header. A line with digits that is no row, or not wholly one, is told.
class PlainReader {
public:
    PlainReader(std::string_view text, std::size_t columns, const std::string& file,
                const Told& told)
        : columns_(columns), file_(file), told_(told) {
        for (const std::string& line : LinesOf(text)) {
            ++number_;
            const bool begins = line.find("BEGIN HEADER") != std::string::npos;
            const bool ends = line.find("END HEADER") != std::string::npos;
            if (begins || ends) {
                isOpen_ = !ends;
                hasBegun_ = hasBegun_ || begins;
                rows = ends ? std::vector<PlainRow>() : rows;
            } else if (!isOpen_ && HasDigit(line)) {
                Take(line);
            }
        }
    }

    bool HasHeader() const { return hasBegun_ && !isOpen_; }

    std::vector<PlainRow> rows;

private:
    void Take(const std::string& line) {
        const std::vector<std::string> texts = CellsOf(line, '"');
        PlainRow row;
        bool isGood = texts.size() == 5;
        if (isGood) {
            row.well = texts[1];
            const auto isBlank = [](const std::string& text, std::size_t place) {
                return text.empty() || LookAt(text.substr(place, 1)).isBlank;
            };
            const bool isLast = texts[4].find_first_not_of(' ') == std::string::npos;
            row.isExact = !texts[2].empty() && isBlank(texts[2], 0) && isBlank(texts[4], 0) &&
                          (isLast || isBlank(texts[2], texts[2].size() - 1));
            std::string numbers = texts[2] + (texts[4].empty() ? "" : texts[4].substr(1));
            numbers.resize(numbers.find_last_not_of(" \t\r\v\f") + 1);
            for (const std::string& cell :
                 CellsOf(numbers.substr(std::min<std::size_t>(1, numbers.size())), ' ')) {
                const PlainCell number = LookAt(cell);
                row.isExact = row.isExact && number.isNumber;
                row.numbers.push_back(number.number);
            }
            isGood = row.isExact && row.numbers.size() >= columns_;
        }
        Require(isGood || told_.Tells(number_, file_),
                "What isn't taken as it stands is told: line " + std::to_string(number_) + ", '" +
                    line + "'");
        if (texts.size() == 5) {
            rows.push_back(row);
        }
    }

    std::size_t columns_;
    const std::string& file_;
    const Told& told_;
    std::uint64_t number_ = 0;
    bool hasBegun_ = false;
    bool isOpen_ = true;
};

constexpr std::size_t mainColumns = 20;
constexpr std::size_t pressureColumns = 3;

// Compares the stations with the rows, where all of these are numbers alone.
void RequireSame(const std::vector<WellData>& wells, std::vector<PlainRow> rows,
                 const std::vector<PlainRow>& pressures) {
    const auto isExact = [](const PlainRow& row) { return row.isExact; };
    if (!std::ranges::all_of(rows, isExact) || !std::ranges::all_of(pressures, isExact)) {
        return;
    }
    std::erase_if(rows, [](const PlainRow& row) { return row.numbers.size() < mainColumns; });
    auto next = rows.begin();
    for (const WellData& well : wells) {
        const auto end = std::find_if(next, rows.end(),
                                      [&](const PlainRow& row) { return row.well != well.name; });
        Require(static_cast<std::size_t>(end - next) == well.depths.size(),
                "Each row makes a station");
        std::stable_sort(next, end, [](const PlainRow& first, const PlainRow& second) {
            return first.numbers[0] < second.numbers[0];
        });
        for (std::size_t i = 0; next != end; ++i, ++next) {
            const std::vector<double>& row = next->numbers;
            const bool isTwice = (i > 0 && well.depths[i - 1] == row[0]) ||
                                 (i + 1 < well.depths.size() && well.depths[i + 1] == row[0]);
            double pressure = 0.0;
            for (const PlainRow& each : pressures) {
                if (each.numbers.size() >= pressureColumns && each.well == well.name &&
                    AreClose(each.numbers[0], row[0], 1e-9)) {
                    pressure = each.numbers[2];
                }
            }
            bool isSame = well.gasOilRatios[i] == row[2] && well.densities[i] == row[8] &&
                          well.temperatures[i] == row[17] && well.stationValues[i] == row[19] &&
                          well.pressures[i] == pressure;
            for (std::size_t j = 0; j < 5; ++j) {
                isSame = isSame && AreClose(well.compositions[i][j], row[3 + j] / 100.0, 1e-12);
            }
            Require(well.depths[i] == row[0] && (isSame || isTwice),
                    "A plain reader reads the same");
        }
    }
    Require(next == rows.end(), "Each row makes a station");
}

std::string Shown(const std::vector<WellData>& wells) {
    std::ostringstream out;
    out.precision(17);
    for (const WellData& well : wells) {
        out << well.name << ':';
        for (std::size_t i = 0; i < well.depths.size(); ++i) {
            out << ' ' << well.depths[i] << ' ' << well.pressures[i] << ' ' << well.temperatures[i]
                << ' ' << well.densities[i] << ' ' << well.gasOilRatios[i] << ' '
                << well.stationValues[i];
        }
    }
    return out.str();
}

bool Throws(const DFAReader& reader, int station) {
    try {
        reader.GetRawFluid(station);
    } catch (const std::out_of_range&) {
        return true;
    }
    return false;
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    std::vector<std::string> pairs;
    for (const std::string file : {"examples/data/north-field_", "tests/data/tool/w_"}) {
        pairs.push_back(ProjectFile(file + "DFA.txt"));
        pairs.back() += parting;
        pairs.back() += ProjectFile(file + "FT.txt");
    }
    return pairs;
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    const std::size_t end = std::min(input.find(parting), input.size());
    const std::string_view texts[] = {input.substr(0, end),
                                      end < input.size() ? input.substr(end + parting.size()) : ""};
    const std::string main = FileWith("input_DFA.txt", texts[0]);
    const std::string pressures = FileWith("input_FT.txt", texts[1]);

    Told told;
    DFAReader reader;
    reader.SetDiagnosticSink(told.Sink());
    const bool isRead = reader.Import(main);
    const std::vector<WellData> wells = reader.GetExtractedData();

    PiecesBuffer mainPieces(texts[0], 1 + input.size() % 5000);
    PiecesBuffer pressurePieces(texts[1], 1 + input.size() % 700);
    std::istream mainStream(&mainPieces);
    std::istream pressureStream(&pressurePieces);
    Told toldOfStreams;
    DFAReader fromStreams;
    fromStreams.SetDiagnosticSink(toldOfStreams.Sink());
    Require(fromStreams.Import(mainStream, pressureStream, main, pressures) == isRead &&
                toldOfStreams.Text() == told.Text() &&
                Shown(fromStreams.GetExtractedData()) == Shown(wells),
            "Streams and files give the same");

    if (!isRead) {
        Require(wells.empty() && told.HasErrors(), "A refused pair gives no wells, and says why");
        return;
    }
    const PlainReader plain(texts[0], mainColumns, main, told);
    const PlainReader plainPressures(texts[1], pressureColumns, pressures, told);
    Require(plain.HasHeader() && plainPressures.HasHeader(), "What is read has headers");
    RequireSame(wells, plain.rows, plainPressures.rows);
    reader.SetDiagnosticSink({});
    for (std::size_t i = 0; i < wells.size(); ++i) {
        RequireWhole(wells[i]);
        const int stations = static_cast<int>(wells[i].depths.size());
        reader.SetIndexOfWell(static_cast<int>(i));
        Require(reader.GetRawFluid(stations - 1).NumberOfComponents() == 5,
                "A raw fluid has five components");
        Require(Throws(reader, stations) && Throws(reader, -1), "Indices are checked");
        Require(reader.GetDFAExperiment().Stages.size() == wells[i].depths.size(),
                "The experiment has a stage for each station");
    }
    Require(reader.Import(main) && reader.GetExtractedData().size() == 2 * wells.size(),
            "A second import adds the same wells");
}
