#include "io/DFAReader.h"

#include "DepthMatch.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Experiments/Stage.h"
#include "FluidBench/Model/ComponentLibrary.h"
#include "LineReader.h"
#include "NumberText.h"
#include "TextFile.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::pvtEnumUnitFraction;
using Common::Result;
using Common::Units;
using Experiments::ExperimentType;
using Experiments::ObservedExperiment;
using Experiments::Stage;
using Experiments::StageResults;
using Model::ComponentLibrary;
using Model::CompositionalFluid;
using Model::FluidComponent;
using Text::ExtractDecimal;
using Text::LineReader;
using Text::OpenForReading;

namespace {

constexpr std::size_t lengthOfFileKind = 7; // "DFA.txt", as a rule
constexpr const char* pressureFileKind = "FT.txt";

constexpr std::size_t quotesOfRow = 4;
constexpr std::size_t piecesOfRow = quotesOfRow + 1;
constexpr std::size_t wellPiece = 1;
constexpr std::size_t firstNumbersPiece = 2;
constexpr std::size_t stationPiece = 3;
constexpr std::size_t lastNumbersPiece = 4;

constexpr std::size_t depthColumn = 0; // of both files, in ft

namespace MainColumn {
constexpr std::size_t gasOilRatio = 2;
constexpr std::size_t firstFraction = 3;
constexpr std::size_t density = 8;
constexpr std::size_t temperature = 17;
constexpr std::size_t stationValue = 19;
constexpr std::size_t count = 20;
} // namespace MainColumn

namespace PressureColumn {
constexpr std::size_t pressure = 2;
constexpr std::size_t count = 3;
} // namespace PressureColumn

constexpr double depthTolerance = 1e-9; // relative

// The groups of components that are measured, in the order of their columns.
struct ComponentGroup {
    const char* name;
    bool isPure; // and so in the component library
};

constexpr ComponentGroup componentGroups[] = {
    {"C1", true}, {"C2", true}, {"C3toC5", false}, {"C6+", false}, {"CO2", true},
};

double Depth_ft_To_m(double value) {
    return value * 0.3048;
}

double AsItIs(double value) {
    return value;
}

// Where the results of a stage come from.
struct Measurement {
    Result StageResults::*result;
    std::vector<double> WellData::*values;
    double (*toModelUnit)(double);
};

constexpr Measurement measurements[] = {
    {&StageResults::Pressure, &WellData::pressures, Units::Pressure_psi_To_Pa},
    {&StageResults::GasOilRatio, &WellData::gasOilRatios, Units::GOR_scfstb_To_m3m3},
    {&StageResults::Density, &WellData::densities, Units::Density_gmcc_To_kgm3},
    {&StageResults::Depth, &WellData::depths, Depth_ft_To_m},
    {&StageResults::Temperature, &WellData::temperatures, Units::Temperature_F_To_K},
    {&StageResults::StationValue, &WellData::stationValues, AsItIs},
};

// Callers know this text; standard libraries each have one of their own.
template <typename T>
const T& At(const std::vector<T>& values, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= values.size()) {
        throw std::out_of_range("invalid vector<T> subscript");
    }
    return values[static_cast<std::size_t>(index)];
}

bool HasQuotesOfRow(std::string_view line) {
    std::size_t quotes = 0;
    for (std::size_t quote = line.find('"');
         quote != std::string_view::npos && quotes <= quotesOfRow;
         quote = line.find('"', quote + 1)) {
        ++quotes;
    }
    return quotes == quotesOfRow;
}

std::string_view WithoutFirst(std::string_view text) {
    return text.substr(std::min<std::size_t>(1, text.size()));
}

// The rows that are long enough, and their places.
struct UsableRows {
    std::vector<WellDepth> places;
    std::vector<const std::vector<double>*> rows;
};

UsableRows RowsWithColumns(const Data& data, std::size_t columns) {
    UsableRows usable;
    for (std::size_t i = 0; i < data.rows.size(); ++i) {
        if (data.rows[i].size() >= columns) {
            usable.places.push_back({data.wellNames[i], data.rows[i][depthColumn]});
            usable.rows.push_back(&data.rows[i]);
        }
    }
    return usable;
}

void AppendStation(WellData& well, const std::vector<double>& row, double pressure) {
    well.pressures.push_back(pressure);
    well.temperatures.push_back(row[MainColumn::temperature]);
    well.densities.push_back(row[MainColumn::density]);
    well.gasOilRatios.push_back(row[MainColumn::gasOilRatio]);
    well.depths.push_back(row[depthColumn]);
    well.stationValues.push_back(row[MainColumn::stationValue]);
    std::vector<double>& fractions = well.compositions.emplace_back(std::size(componentGroups));
    for (std::size_t i = 0; i < fractions.size(); ++i) {
        fractions[i] = row[MainColumn::firstFraction + i] / 100.0;
    }
}

template <typename T>
void PutInOrder(std::vector<T>& values, const std::vector<int>& order) {
    std::vector<T> ordered;
    ordered.reserve(values.size());
    for (const int index : order) {
        ordered.push_back(std::move(values[static_cast<std::size_t>(index)]));
    }
    values = std::move(ordered);
}

} // namespace

DFAReader::DFAReader() = default;
DFAReader::DFAReader(const DFAReader&) = default;
DFAReader::~DFAReader() = default;
DFAReader& DFAReader::operator=(const DFAReader&) = default;

bool DFAReader::Import(std::string fileName) {
    mainData = Data();
    pressureData = Data();
    if (!ImportData(fileName, mainData)) {
        return false;
    }
    fileName.resize(fileName.size() - std::min(fileName.size(), lengthOfFileKind));
    fileName += pressureFileKind;
    if (!ImportData(fileName, pressureData)) {
        return false;
    }
    return ExtractDataOfInterest();
}

const std::vector<WellData>& DFAReader::GetExtractedData() const {
    return wells;
}

void DFAReader::SetIndexOfWell(int index) {
    indexOfWell = index;
}

bool DFAReader::ImportData(std::string fileName, Data& data) {
    std::vector<std::string> lines;
    std::vector<std::string> dataLines;
    if (!CacheFileContent(std::move(fileName), lines) || !ExtractData(lines, dataLines)) {
        return false;
    }
    ConvertDataToDoubles(dataLines, data);
    return true;
}

bool DFAReader::CacheFileContent(std::string fileName, std::vector<std::string>& lines) const {
    std::ifstream file = OpenForReading(fileName);
    if (!file.is_open()) {
        return false;
    }
    LineReader reader(file);
    std::string_view line;
    while (reader.Next(line)) {
        // What can be neither a row nor a mark of the header isn't kept: a large file of something
        // else would take many times its own size.
        if (HasQuotesOfRow(line) || line.find("HEADER") != std::string_view::npos) {
            lines.emplace_back(line);
        }
    }
    return !reader.HasFailed();
}

bool DFAReader::ExtractData(std::vector<std::string>& lines,
                            std::vector<std::string>& dataLines) const {
    // Of several lines with the same mark, the last one counts.
    auto headerBegin = lines.end();
    auto headerEnd = lines.end();
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        if (line->find("BEGIN HEADER") != std::string::npos) {
            headerBegin = line;
        }
        if (line->find("END HEADER") != std::string::npos) {
            headerEnd = line;
        }
    }
    // A missing begin stands behind any end.
    if (headerEnd == lines.end() || headerBegin > headerEnd) {
        return false;
    }
    lines.erase(lines.begin(), headerEnd + 1);
    dataLines = std::move(lines);
    return true;
}

void DFAReader::ConvertDataToDoubles(std::vector<std::string>& dataLines, Data& data) {
    std::string numberText;
    std::vector<double> numbers;
    for (const std::string& line : dataLines) {
        std::vector<std::string> pieces = ExtractSubStrings(line, "\"");
        if (pieces.size() != piecesOfRow) {
            continue;
        }
        data.wellNames.push_back(std::move(pieces[wellPiece]));
        data.stationLabels.push_back(std::move(pieces[stationPiece]));

        // The blank behind each quoted text goes; the one that parts the two texts ends the first.
        numberText = WithoutFirst(pieces[firstNumbersPiece]);
        numberText += WithoutFirst(pieces[lastNumbersPiece]);
        // The row ends at two adjacent blanks: what may be a long line of them isn't cut up.
        numberText.resize(std::min(numberText.find("  "), numberText.size()));
        numbers.clear();
        for (const std::string& part : ExtractSubStrings(numberText, " ")) {
            const auto number = ExtractDecimal(part);
            if (!number) {
                break;
            }
            numbers.push_back(*number);
        }
        data.rows.push_back(numbers);
    }
}

std::vector<std::string> DFAReader::ExtractSubStrings(const std::string& text,
                                                      std::string delimiter) const {
    std::vector<std::string> pieces;
    pieces.reserve(1 + static_cast<std::size_t>(std::ranges::count(text, delimiter.front())));
    std::size_t begin = 0;
    for (std::size_t end = text.find(delimiter); end != std::string::npos;
         end = text.find(delimiter, begin)) {
        pieces.emplace_back(text, begin, end - begin);
        begin = end + delimiter.size();
    }
    pieces.emplace_back(text, begin);
    return pieces;
}

bool DFAReader::ExtractDataOfInterest() {
    const UsableRows stations = RowsWithColumns(mainData, MainColumn::count);
    const UsableRows readings = RowsWithColumns(pressureData, PressureColumn::count);
    const std::vector<std::size_t> matches =
        LastMatches(stations.places, readings.places, depthTolerance);

    const std::size_t numberOfEarlierWells = wells.size();
    for (std::size_t i = 0; i < stations.rows.size(); ++i) {
        const std::string_view name = stations.places[i].well;
        if (wells.size() == numberOfEarlierWells || wells.back().name != name) {
            wells.emplace_back().name = name;
        }
        const double pressure =
            matches[i] == noMatch ? 0.0 : (*readings.rows[matches[i]])[PressureColumn::pressure];
        AppendStation(wells.back(), *stations.rows[i], pressure);
    }
    SortStations(wells);
    return true;
}

std::vector<int> DFAReader::SortStations(std::vector<double> depths) const {
    std::vector<int> order(depths.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, std::ranges::less(), [&depths](int station) {
        return depths[static_cast<std::size_t>(station)];
    });
    return order;
}

std::vector<int> DFAReader::SortStations() const {
    return SortStations(At(wells, indexOfWell).depths);
}

void DFAReader::SortStations(std::vector<WellData>& records) {
    for (WellData& well : records) {
        const std::vector<int> order = SortStations(well.depths);
        PutInOrder(well.pressures, order);
        PutInOrder(well.temperatures, order);
        PutInOrder(well.densities, order);
        PutInOrder(well.gasOilRatios, order);
        PutInOrder(well.depths, order);
        PutInOrder(well.stationValues, order);
        PutInOrder(well.compositions, order);
    }
}

double DFAReader::FilterOutNegativeValues(double value) const {
    return 0.0 > value ? 0.0 : value;
}

CompositionalFluid DFAReader::GetRawFluid(int station) const {
    const std::vector<double>& fractions = At(At(wells, indexOfWell).compositions, station);
    const ComponentLibrary library(0);
    CompositionalFluid fluid("DFA raw fluid");
    fluid.SetComponentFractionType(pvtEnumUnitFraction::Mass);
    for (std::size_t i = 0; i < fractions.size(); ++i) {
        const auto& [name, isPure] = componentGroups[i];
        fluid.SetComponent(isPure ? library.GetComponent(name) : FluidComponent(name),
                           FilterOutNegativeValues(fractions[i]));
    }
    return fluid;
}

ObservedExperiment DFAReader::GetDFAExperiment() const {
    ObservedExperiment experiment(ExperimentType::DownholeFluidAnalysis);
    const WellData& well = At(wells, indexOfWell);
    experiment.Stages.reserve(well.pressures.size());
    for (const int station : SortStations()) {
        Stage& stage = experiment.Stages.emplace_back();
        stage.Fluid = GetRawFluid(station);
        for (const auto& [result, values, toModelUnit] : measurements) {
            const double value = FilterOutNegativeValues(At(well.*values, station));
            (*stage.Results).*result = {true, toModelUnit(value)};
        }
    }
    return experiment;
}

} // namespace Orv::FluidBench::IO
