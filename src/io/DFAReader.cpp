#include "io/DFAReader.h"

#include "DepthMatch.h"
#include "DfaExport.h"
#include "Diagnostics.h"
#include "FileNumber.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Experiments/Stage.h"
#include "FluidBench/Model/ComponentLibrary.h"
#include "InputFile.h"
#include "Quote.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>
#include <stdexcept>
#include <unordered_set>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::pvtEnumUnitFraction;
using Common::Result;
using Common::Units;
using Experiments::ExperimentType;
using Experiments::ObservedExperiment;
using Experiments::Stage;
using Experiments::StageResults;
using Impl::IO::Diagnostics;
using Impl::IO::OpenOrTell;
using Model::ComponentLibrary;
using Model::CompositionalFluid;
using Model::FluidComponent;
namespace DfaKinds = Impl::IO::DfaKinds;
namespace MainColumn = Impl::IO::MainColumn;
namespace PressureColumn = Impl::IO::PressureColumn;

namespace {

constexpr std::size_t lengthOfFileKind = 7; // "DFA.txt", as a rule
constexpr const char* pressureFileKind = "FT.txt";

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

std::string PressureFileOf(std::string fileName) {
    fileName.resize(fileName.size() - std::min(fileName.size(), lengthOfFileKind));
    return fileName + pressureFileKind;
}

// The rows that are long enough, by their indices, and their places.
struct UsableRows {
    std::vector<WellDepth> places;
    std::vector<std::size_t> indices;
};

UsableRows UsableRowsOf(const Data& data, const Impl::IO::DfaFile& file) {
    UsableRows usable;
    usable.places.reserve(data.rows.size());
    usable.indices.reserve(data.rows.size());
    for (std::size_t i = 0; i < data.rows.size(); ++i) {
        if (data.rows[i].size() >= file.columns) {
            usable.places.push_back({data.wellNames[i], data.rows[i][Impl::IO::dfaDepthColumn]});
            usable.indices.push_back(i);
        }
    }
    return usable;
}

// Behind the rows that have the same well as the first one.
std::size_t EndOfRun(const std::vector<WellDepth>& places, std::size_t first) {
    std::size_t end = first;
    while (end < places.size() && places[end].well == places[first].well) {
        ++end;
    }
    return end;
}

void MakeRoom(WellData& well, std::size_t stations) {
    for (auto* const values : {&well.pressures, &well.temperatures, &well.densities,
                               &well.gasOilRatios, &well.depths, &well.stationValues}) {
        values->reserve(stations);
    }
    well.compositions.reserve(stations);
}

void AppendStation(WellData& well, const std::vector<double>& row, double pressure) {
    well.pressures.push_back(pressure);
    well.temperatures.push_back(row[MainColumn::temperature]);
    well.densities.push_back(row[MainColumn::density]);
    well.gasOilRatios.push_back(row[MainColumn::gasOilRatio]);
    well.depths.push_back(row[Impl::IO::dfaDepthColumn]);
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

// Wells grow as if they were added one by one, so that many imports take no longer each.
void Append(std::vector<WellData>& wells, std::vector<WellData>& more) {
    const std::size_t needed = wells.size() + more.size();
    if (needed > wells.capacity()) {
        wells.reserve(std::max(needed, 2 * wells.capacity()));
    }
    std::ranges::move(more, std::back_inserter(wells));
}

// Rows of the main file that are there already.
void TellOfCopies(const UsableRows& stations, const Data& data,
                  const std::vector<std::uint64_t>& lines, Diagnostics& diagnostics) {
    const auto rowOf = [&](std::size_t i) -> const auto& {
        return data.rows[stations.indices[i]];
    };
    const auto hash = [&](std::size_t i) {
        std::size_t value = std::hash<std::string_view>()(stations.places[i].well);
        for (const double number : rowOf(i)) {
            value = 31 * value + std::hash<double>()(number);
        }
        return value;
    };
    const auto isSame = [&](std::size_t a, std::size_t b) {
        return stations.places[a].well == stations.places[b].well && rowOf(a) == rowOf(b);
    };
    const std::size_t count = stations.indices.size();
    std::unordered_set<std::size_t, decltype(hash), decltype(isSame)> rows(count, hash, isSame);
    for (std::size_t i = 0; i < count; ++i) {
        const auto [first, isNew] = rows.insert(i);
        if (!isNew) {
            diagnostics.Tell(DfaKinds::rowTwice, lines[stations.indices[i]],
                             "Expected each row once, found the numbers of line " +
                                 std::to_string(lines[stations.indices[*first]]) +
                                 " again; they make a second station.");
        }
    }
}

// `matches` are those of the stations among the readings.
void TellOfReadings(const UsableRows& stations, const UsableRows& readings,
                    const std::vector<std::size_t>& matches,
                    const std::vector<std::uint64_t>& lines, Diagnostics& diagnostics) {
    std::vector<bool> isUsed(readings.places.size());
    for (const std::size_t match : matches) {
        if (match != noMatch) {
            isUsed[match] = true;
        }
    }
    const std::vector<std::size_t> stationOf =
        LastMatches(readings.places, stations.places, depthTolerance);
    for (std::size_t i = 0; i < isUsed.size(); ++i) {
        const std::uint64_t line = lines[readings.indices[i]];
        if (stationOf[i] == noMatch) {
            diagnostics.Tell(DfaKinds::pressureUnused, line,
                             "Expected a station of the well " +
                                 Text::Quote(readings.places[i].well) +
                                 " at this depth in the main file, found none; the pressure isn't "
                                 "used.");
        } else if (!isUsed[i]) {
            diagnostics.Tell(DfaKinds::rowTwice, line,
                             "Expected one pressure for each well and depth, found another one "
                             "further down; that one is taken.");
        }
    }
}

// `matches` as `LastMatches` gave them, and the lines of the main file's rows.
void TellOfStations(const UsableRows& stations, const std::vector<std::size_t>& matches,
                    const std::vector<std::uint64_t>& lines, Diagnostics& diagnostics) {
    std::unordered_set<std::string_view> wells;
    std::string_view well;
    for (std::size_t i = 0; i < matches.size(); ++i) {
        const std::uint64_t line = lines[stations.indices[i]];
        const std::string_view name = stations.places[i].well;
        const bool isNext = i == 0 || name != well;
        well = name;
        if (isNext && !wells.insert(name).second) {
            diagnostics.Tell(DfaKinds::wellReturns, line,
                             "Expected the rows of a well together, found more of the well " +
                                 Text::Quote(name) +
                                 " behind another: they make a second well of that name.");
        }
        if (matches[i] == noMatch) {
            diagnostics.Tell(DfaKinds::noPressure, line,
                             "Expected a row of the FT file with the same well and depth, found "
                             "none; the pressure is 0.");
        }
    }
    if (matches.empty()) {
        diagnostics.Tell(DfaKinds::noStation, 0,
                         "Expected rows behind the header of the main file, found none that is "
                         "complete.");
    }
}

} // namespace

DFAReader::DFAReader() = default;
DFAReader::DFAReader(const DFAReader&) = default;
DFAReader::~DFAReader() = default;

// Copies all before it changes anything.
DFAReader& DFAReader::operator=(const DFAReader& other) {
    DFAReader copy(other);
    std::swap(mainData, copy.mainData);
    std::swap(pressureData, copy.pressureData);
    std::swap(wells, copy.wells);
    std::swap(indexOfWell, copy.indexOfWell);
    std::swap(diagnosticSink, copy.diagnosticSink);
    return *this;
}

void DFAReader::SetDiagnosticSink(DiagnosticSink sink) {
    diagnosticSink = std::move(sink);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): callers of the interface pass a copy
bool DFAReader::Import(std::string fileName) {
    const std::string pressuresName = PressureFileOf(fileName);
    Diagnostics ofMain(diagnosticSink, fileName);
    Diagnostics ofPressures(diagnosticSink, pressuresName);
    std::ifstream main = OpenOrTell(fileName, ofMain);
    std::ifstream pressures = OpenOrTell(pressuresName, ofPressures);
    return main.is_open() && pressures.is_open() &&
           ImportData(main, ofMain, pressures, ofPressures);
}

bool DFAReader::Import(std::istream& main, std::istream& pressures, const std::string& mainName,
                       const std::string& pressuresName) {
    Diagnostics ofMain(diagnosticSink, mainName);
    Diagnostics ofPressures(diagnosticSink, pressuresName);
    return ImportData(main, ofMain, pressures, ofPressures);
}

const std::vector<WellData>& DFAReader::GetExtractedData() const {
    return wells;
}

void DFAReader::SetIndexOfWell(int index) {
    indexOfWell = index;
}

// Builds the wells aside: nothing that may fail comes behind the first change of those that are
// there.
bool DFAReader::ImportData(std::istream& main, Diagnostics& ofMain, std::istream& pressures,
                           Diagnostics& ofPressures) {
    mainData = Data();
    pressureData = Data();
    auto mainRows = ReadDfaExport(main, Impl::IO::mainFile, ofMain);
    if (mainRows) {
        mainData = std::move(mainRows->data);
    }
    auto pressureRows =
        mainRows ? ReadDfaExport(pressures, Impl::IO::pressureFile, ofPressures) : std::nullopt;
    if (pressureRows) {
        pressureData = std::move(pressureRows->data);
        std::vector<WellData> found =
            ExtractDataOfInterest(mainRows->lines, ofMain, pressureRows->lines, ofPressures);
        SortStations(found);
        Append(wells, found);
    }
    ofMain.Finish();
    ofPressures.Finish();
    return pressureRows.has_value();
}

std::vector<WellData>
DFAReader::ExtractDataOfInterest(const std::vector<std::uint64_t>& lines, Diagnostics& ofMain,
                                 const std::vector<std::uint64_t>& pressureLines,
                                 Diagnostics& ofPressures) const {
    const UsableRows stations = UsableRowsOf(mainData, Impl::IO::mainFile);
    const UsableRows readings = UsableRowsOf(pressureData, Impl::IO::pressureFile);
    const std::vector<std::size_t> matches =
        LastMatches(stations.places, readings.places, depthTolerance);

    std::vector<WellData> found;
    for (std::size_t i = 0; i < matches.size();) {
        const std::size_t end = EndOfRun(stations.places, i);
        WellData& well = found.emplace_back();
        well.name = stations.places[i].well;
        MakeRoom(well, end - i);
        for (; i < end; ++i) {
            const double pressure =
                matches[i] == noMatch
                    ? 0.0
                    : pressureData.rows[readings.indices[matches[i]]][PressureColumn::pressure];
            AppendStation(well, mainData.rows[stations.indices[i]], pressure);
        }
    }
    if (ofMain.AreWanted()) {
        TellOfStations(stations, matches, lines, ofMain);
        TellOfCopies(stations, mainData, lines, ofMain);
        TellOfReadings(stations, readings, matches, pressureLines, ofPressures);
    }
    return found;
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

void DFAReader::SortStations(std::vector<WellData>& records) const {
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
