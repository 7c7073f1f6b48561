// Reads the keyword form of black-oil tables, as `PVOFormatter` draws it and as people type it:
//
//     DENSITY      oil water gas /                            a record for each region
//     RSCONSTT     Rs pressure /                              the same
//     PVTO         Rs   pressure Bo viscosity                 a record: the saturated oil
//                       pressure Bo viscosity ... /           and the oil above its pressure
//                  ...
//                  /                                          the end of the region's table
//     PVTG         pressure   Rv Bg viscosity                 the same: the saturated gas
//                             Rv Bg viscosity ... / ... /     and the gas with less oil in it
//     PVDO         pressure Bo viscosity ... /                the region's table in one record
//     PVDG         pressure Bg viscosity ... /                the same
//
// The units of the numbers may stand at the end of the file, so the rows wait for them.
#include "io/BlackOilKeywordReader.h"

#include "BlackOilUnits.h"
#include "DeckText.h"
#include "KeywordWalker.h"
#include "NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <deque>
#include <iterator>
#include <string_view>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::Units;
using Impl::IO::KeywordWalker;
using Impl::IO::WantedKeyword;
using Model::BlackOilDataRecords;
using Model::BlackOilTable;
using Entry = BlackOilDataRecords::Entry;
namespace KeywordKinds = Impl::IO::KeywordKinds;

namespace {

constexpr WantedKeyword blackOilKeywords[] = {{"DENSITY"}, {"RSCONSTT"}, {"PVTO"},
                                              {"PVDO"},    {"PVTG"},     {"PVDG"}};

enum class RowOrder { Rising, Falling };

// How a table stands in the file, and where it goes.
struct KeywordLayout {
    std::string_view keyword;
    bool hasRecords; // a record has a number of its own ahead of its first row
    double Entry::*ofRecord;
    double Entry::*ofRow; // the first number of a row
    RowOrder order;       // of that number
    bool showsEachRow;    // every row is a record in the table
    std::string_view record;
    std::string_view row;
    const RowUnits& fieldUnits;
    void (BlackOilTable::*set)(BlackOilDataRecords&&) noexcept;
};

// clang-format off
constexpr KeywordLayout layouts[] = {
    {"PVTO", true,  &Entry::property, &Entry::pressure, RowOrder::Rising,  false,
     "a gas-oil ratio, a pressure, a volume factor and a viscosity", "a pressure, a volume factor and a viscosity", fieldOilRow, &BlackOilTable::SetLiveOilData},
    {"PVDO", false, nullptr,          &Entry::pressure, RowOrder::Rising,  false,
     "",                                                             "a pressure, a volume factor and a viscosity", fieldOilRow, &BlackOilTable::SetDeadOilData},
    {"PVTG", true,  &Entry::pressure, &Entry::property, RowOrder::Falling, false,
     "a pressure, an oil-gas ratio, a volume factor and a viscosity", "an oil-gas ratio, a volume factor and a viscosity", fieldGasRow, &BlackOilTable::SetWetGasData},
    {"PVDG", false, nullptr,          &Entry::pressure, RowOrder::Rising,  true,
     "",                                                             "a pressure, a volume factor and a viscosity", fieldGasRow, &BlackOilTable::SetDryGasData},
};
// clang-format on

using KeywordRow = std::array<double, 3>;

// The number, for a message.
std::string Shown(double number) {
    std::string text;
    Text::AppendNumber(text, number, deckNumber);
    return text;
}

// The table of one region, in the units of the file. Its entries lie in blocks, which are given
// back one by one when they are converted, so that the rows never take twice their memory.
struct KeywordTable {
    std::deque<std::vector<Entry>> blocks;
    std::vector<std::size_t> recordEnds; // none where every row is a record
    std::size_t size = 0;
    std::uint64_t line = 0;

    Entry& Append() {
        constexpr std::size_t entriesOfBlock = 2048;
        if (size++ % entriesOfBlock == 0) {
            blocks.emplace_back().reserve(entriesOfBlock);
        }
        return blocks.back().emplace_back();
    }
    const Entry& Last() const { return blocks.back().back(); }
};

struct Content {
    std::vector<std::array<double, 3>> densities; // oil, water, gas
    std::vector<std::array<double, 2>> saturationPoints;
    std::array<std::vector<KeywordTable>, std::size(layouts)> tables;
};

// What the numbers of a file mean.
class ToModelUnits {
public:
    ToModelUnits(bool isField, bool hasLongNumbers) : isField_(isField), isLong_(hasLongNumbers) {}

    /// Dead oil has the gas-oil ratio of its saturation point, and dry gas has no ratio.
    BlackOilDataRecords Records(KeywordTable table, const KeywordLayout& layout,
                                double gasOilRatio) const {
        const RowUnits& units = isField_ ? layout.fieldUnits : metricRow;
        const FileNumber pressure(units.pressure, isLong_);
        const FileNumber property(units.property, isLong_);
        const FileNumber volumeFactor(units.formationVolumeFactor, isLong_);
        const FileNumber viscosity(Units::Viscosity_Pas_To_cp, isLong_);
        BlackOilDataRecords records;
        std::size_t index = 0;
        std::uint64_t record = 0;
        for (; !table.blocks.empty(); table.blocks.pop_front()) {
            for (const Entry& entry : table.blocks.front()) {
                const double ratio = layout.hasRecords     ? property.ToModel(entry.property)
                                     : layout.showsEachRow ? 0.0
                                                           : gasOilRatio;
                records.AddEntry(record, pressure.ToModel(entry.pressure), ratio,
                                 volumeFactor.ToModel(entry.formationVolumeFactor),
                                 viscosity.ToModel(entry.viscosity));
                ++index;
                record += layout.showsEachRow || index == table.recordEnds[record] ? 1 : 0;
            }
        }
        return records;
    }

    void SetDensities(BlackOilTable& table, const std::array<double, 3>& densities) const {
        const FileNumber density(DensityUnit(isField_), isLong_);
        table.SetOilDensity(density.ToModel(densities[0]));
        table.SetWaterDensity(density.ToModel(densities[1]));
        table.SetGasDensity(density.ToModel(densities[2]));
    }

    void SetSaturationPoint(BlackOilTable& table, const std::array<double, 2>& point) const {
        const RowUnits& units = isField_ ? fieldOilRow : metricRow;
        table.SetSaturationPoint(FileNumber(units.property, isLong_).ToModel(point[0]),
                                 FileNumber(units.pressure, isLong_).ToModel(point[1]));
    }

private:
    bool isField_;
    bool isLong_;
};

class BlackOilFile {
public:
    explicit BlackOilFile(KeywordWalker& walker) : walker_(walker) {}

    std::vector<BlackOilTable> Read(std::optional<Units::UNIT_TYPE> units);

private:
    void ReadKeyword();
    template <std::size_t Size>
    void ReadRecords(std::vector<std::array<double, Size>>& records, std::string_view meaning);
    KeywordTable ReadTable(const KeywordLayout& layout);
    void ReadLiveRecords(const KeywordLayout& layout, KeywordTable& table);
    void ReadDeadRows(const KeywordLayout& layout, KeywordTable& table);
    void AddRow(const KeywordLayout& layout, KeywordTable& table, double ofRecord,
                const double* row);
    void RequireOrder(RowOrder order, double previous, double next, std::string_view what);

    void DropEmptyTables();
    BlackOilTable MakeRegion(std::size_t index, const ToModelUnits& conversion);
    void TellOfRegions(std::size_t regions, bool isField);

    KeywordWalker& walker_;
    Content content_;
};

void BlackOilFile::ReadKeyword() {
    const std::string keyword = walker_.Keyword();
    if (keyword == "DENSITY") {
        ReadRecords(content_.densities, "the densities of oil, water and gas");
        return;
    }
    if (keyword == "RSCONSTT") {
        ReadRecords(content_.saturationPoints, "a gas-oil ratio and a pressure");
        return;
    }
    const auto* const layout = std::ranges::find(layouts, keyword, &KeywordLayout::keyword);
    auto& tables = content_.tables[static_cast<std::size_t>(layout - std::begin(layouts))];
    do {
        tables.push_back(ReadTable(*layout));
    } while (walker_.HasRecord());
}

template <std::size_t Size>
void BlackOilFile::ReadRecords(std::vector<std::array<double, Size>>& records,
                               std::string_view meaning) {
    do {
        std::array<double, Size> record{};
        if (!walker_.ReadRow(record, meaning, KeywordWalker::Defaults::AreZero)) {
            walker_.Fail(KeywordKinds::rowLength, walker_.Line(), std::string(meaning), "'/'");
        }
        walker_.EndRecord(meaning);
        records.push_back(record);
    } while (walker_.HasRecord());
}

KeywordTable BlackOilFile::ReadTable(const KeywordLayout& layout) {
    KeywordTable table;
    if (layout.hasRecords) {
        ReadLiveRecords(layout, table);
    } else {
        ReadDeadRows(layout, table);
    }
    table.line = walker_.Line();
    return table;
}

void BlackOilFile::ReadLiveRecords(const KeywordLayout& layout, KeywordTable& table) {
    std::array<double, 4> first{};
    double previousRecord = 0.0;
    double previousPressure = 0.0;
    while (walker_.ReadRow(first, layout.record)) {
        if (table.size > 0) {
            RequireOrder(RowOrder::Rising, previousRecord, first[0], "that of the record ahead");
            if (layout.order == RowOrder::Rising) {
                RequireOrder(RowOrder::Rising, previousPressure, first[1],
                             "the saturated pressure of the record ahead");
            }
        }
        previousRecord = first[0];
        previousPressure = first[1];
        AddRow(layout, table, first[0], first.data() + 1);
        double previous = first[1];
        for (KeywordRow row{}; walker_.ReadRow(row, layout.row); previous = row[0]) {
            RequireOrder(layout.order, previous, row[0], "that of the row ahead");
            AddRow(layout, table, first[0], row.data());
        }
        table.recordEnds.push_back(table.size);
    }
}

// The writer leaves out the pressure of a dry gas row that isn't the first of its record. Then two
// numbers stand on its line, and the next ones on another.
void BlackOilFile::ReadDeadRows(const KeywordLayout& layout, KeywordTable& table) {
    const auto failPressure = [&] {
        walker_.Fail(KeywordKinds::noPressure, walker_.RowLine(), std::string(layout.row),
                     "two numbers on the line: the pressure is missing");
    };
    KeywordRow row{};
    while (const std::size_t count = walker_.ReadRowPart(row, layout.row)) {
        const bool isWhole = count == row.size();
        const bool isOneLine = walker_.RowLine() == walker_.Line();
        const bool isInOrder = table.size == 0 || row[0] > table.Last().pressure;
        if (layout.showsEachRow && (isWhole ? !isOneLine && !isInOrder : count == 2)) {
            failPressure();
        }
        if (!isWhole) {
            walker_.Fail(KeywordKinds::rowLength, walker_.Line(), std::string(layout.row),
                         "'/' behind " + std::to_string(count) + " of them");
        }
        if (!isInOrder) {
            RequireOrder(RowOrder::Rising, table.Last().pressure, row[0], "that of the row ahead");
        }
        AddRow(layout, table, 0.0, row.data());
    }
    if (!layout.showsEachRow && table.size > 0) {
        table.recordEnds.push_back(table.size);
    }
}

void BlackOilFile::AddRow(const KeywordLayout& layout, KeywordTable& table, double ofRecord,
                          const double* row) {
    Entry& entry = table.Append();
    if (layout.hasRecords) {
        entry.*layout.ofRecord = ofRecord;
    }
    entry.*layout.ofRow = row[0];
    entry.formationVolumeFactor = row[1];
    entry.viscosity = row[2];
}

// Ratios of a wet gas that hardly differ may be written alike.
void BlackOilFile::RequireOrder(RowOrder order, double previous, double next,
                                std::string_view what) {
    const bool isRising = order == RowOrder::Rising;
    if (isRising ? next > previous : next <= previous) {
        return;
    }
    walker_.Fail(KeywordKinds::rowOrder, walker_.RowLine(),
                 std::string("a number ") + (isRising ? "above " : "no larger than ") +
                     std::string(what) + ", " + Shown(previous),
                 Shown(next));
}

// An empty table at the end is a slash too many rather than a region.
void BlackOilFile::DropEmptyTables() {
    for (std::vector<KeywordTable>& tables : content_.tables) {
        for (const KeywordTable& table : tables) {
            if (table.size == 0) {
                walker_.Tell(KeywordKinds::noRows, table.line,
                             "Expected rows of numbers ahead of the table's end, found none.");
            }
        }
        while (tables.size() > 1 && tables.back().size == 0) {
            tables.pop_back();
        }
    }
}

void BlackOilFile::TellOfRegions(std::size_t regions, bool isField) {
    const auto tell = [&](std::string_view keyword, std::size_t count) {
        if (count > 0 && count < regions) {
            walker_.Tell(KeywordKinds::fewerRegions, 0,
                         "Expected " + std::string(keyword) + " for each of " +
                             std::to_string(regions) + " regions, found it for " +
                             std::to_string(count) + "; the others go without.");
        }
    };
    tell("DENSITY", content_.densities.size());
    tell("RSCONSTT", content_.saturationPoints.size());
    for (std::size_t i = 0; i < std::size(layouts); ++i) {
        tell(layouts[i].keyword, content_.tables[i].size());
    }
    if (content_.densities.empty()) {
        walker_.Tell(KeywordKinds::noDensities, 0,
                     "Expected DENSITY, found no such keyword; the densities count as 0.");
    }
    constexpr double writtenWaterDensity = 1000.0;
    constexpr double digitsOfFile = 1e-6;
    for (std::size_t i = 0; i < content_.densities.size(); ++i) {
        const double water =
            FileNumber(DensityUnit(isField), false).ToModel(content_.densities[i][1]);
        if (std::abs(water - writtenWaterDensity) > digitsOfFile) {
            walker_.Tell(KeywordKinds::waterDensity, 0,
                         "Expected a water density of 1000 kg/m3 in region " +
                             std::to_string(i + 1) + ", found " + Shown(water) +
                             ", which the table holds; a file that is written of it has 1000.");
        }
    }
}

BlackOilTable BlackOilFile::MakeRegion(std::size_t index, const ToModelUnits& conversion) {
    BlackOilTable region;
    if (index < content_.densities.size()) {
        conversion.SetDensities(region, content_.densities[index]);
    }
    double gasOilRatio = 0.0;
    if (index < content_.saturationPoints.size()) {
        conversion.SetSaturationPoint(region, content_.saturationPoints[index]);
        gasOilRatio = region.GetSaturationPointRs();
    }
    for (std::size_t kind = 0; kind < std::size(layouts); ++kind) {
        if (index < content_.tables[kind].size()) {
            (region.*layouts[kind].set)(conversion.Records(
                std::exchange(content_.tables[kind][index], {}), layouts[kind], gasOilRatio));
        }
    }
    return region;
}

std::vector<BlackOilTable> BlackOilFile::Read(std::optional<Units::UNIT_TYPE> units) {
    while (walker_.NextKeyword()) {
        ReadKeyword();
    }
    const bool isField = walker_.IsField(units);
    DropEmptyTables();
    std::size_t count = std::max(content_.densities.size(), content_.saturationPoints.size());
    for (const std::vector<KeywordTable>& tables : content_.tables) {
        count = std::max(count, tables.size());
    }
    TellOfRegions(count, isField);
    const ToModelUnits conversion(isField, walker_.HasLongNumbers());
    std::vector<BlackOilTable> regions;
    for (std::size_t i = 0; i < count; ++i) {
        regions.push_back(MakeRegion(i, conversion));
    }
    return regions;
}

} // namespace

BlackOilKeywordReader::BlackOilKeywordReader() = default;
BlackOilKeywordReader::~BlackOilKeywordReader() = default;

void BlackOilKeywordReader::SetDiagnosticSink(DiagnosticSink sink) {
    diagnosticSink = std::move(sink);
}

ErrorReport BlackOilKeywordReader::Read(const std::string& fileName,
                                        std::vector<BlackOilTable>& regions,
                                        std::optional<Units::UNIT_TYPE> units) const {
    return ReadKeywords({fileName}, diagnosticSink, blackOilKeywords, regions,
                        [&](KeywordWalker& walker) { return BlackOilFile(walker).Read(units); });
}

ErrorReport BlackOilKeywordReader::Read(std::istream& in, std::vector<BlackOilTable>& regions,
                                        std::optional<Units::UNIT_TYPE> units,
                                        const std::string& name) const {
    return ReadKeywords({name, &in}, diagnosticSink, blackOilKeywords, regions,
                        [&](KeywordWalker& walker) { return BlackOilFile(walker).Read(units); });
}

} // namespace Orv::FluidBench::IO
