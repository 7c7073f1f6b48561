// Reads compositions against pressure, as `BlackOilExportFileWriter` draws them and as people type
// them:
//
//     YMFVP        pressure fractions ... /      the vapour's
//     XMFVP        pressure fractions ... /      the liquid's, at the same pressures
//
// `FractionReader` tells the rows apart.
#include "io/CompositionTableReader.h"

#include "FileNumber.h"
#include "FractionRows.h"
#include "KeywordWalker.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::Units;
using Impl::IO::KeywordWalker;
using Impl::IO::WantedKeyword;
namespace KeywordKinds = Impl::IO::KeywordKinds;

namespace {

constexpr std::string_view vapour = "YMFVP";
constexpr std::string_view liquid = "XMFVP";
constexpr WantedKeyword compositionKeywords[] = {
    {vapour}, {liquid}, FractionReader::countKeyword, FractionReader::namesKeyword};

class CompositionFile {
public:
    explicit CompositionFile(KeywordWalker& walker)
        : walker_(walker), fractions_(walker, "a pressure") {}

    std::vector<CompositionTable> Read(std::optional<Units::UNIT_TYPE> units);

private:
    void ReadTables();
    void RequireSamePressures(const FractionRows& rows, const std::vector<FractionRows>& others,
                              std::size_t index) const;

    KeywordWalker& walker_;
    FractionReader fractions_;
    std::vector<FractionRows> vapours_;
    std::vector<FractionRows> liquids_;
};

void CompositionFile::ReadTables() {
    const bool isVapour = walker_.Keyword() == vapour;
    std::vector<FractionRows>& tables = isVapour ? vapours_ : liquids_;
    bool isFirst = true;
    do {
        FractionRows rows = fractions_.ReadTable();
        if (!std::exchange(isFirst, false) && rows.first.empty()) {
            walker_.Tell(KeywordKinds::noRows, walker_.Line(),
                         "Expected another table or a keyword, found '/' alone; it doesn't count.");
            continue;
        }
        RequireSamePressures(rows, isVapour ? liquids_ : vapours_, tables.size());
        tables.push_back(std::move(rows));
    } while (walker_.HasRecord());
}

void CompositionFile::RequireSamePressures(const FractionRows& rows,
                                           const std::vector<FractionRows>& others,
                                           std::size_t index) const {
    if (index >= others.size()) {
        return;
    }
    const std::vector<double>& other = others[index].first;
    const auto [here, there] = std::ranges::mismatch(rows.first, other);
    if (here != rows.first.end() || there != other.end()) {
        const auto row = static_cast<std::size_t>(here - rows.first.begin());
        walker_.Fail(KeywordKinds::pressuresDiffer,
                     row < rows.lines.size() ? rows.lines[row] : walker_.Line(),
                     "the pressures of the other phase, " + std::to_string(other.size()) +
                         " of them",
                     "other ones from row " + std::to_string(row + 1) + " on");
    }
}

std::vector<CompositionTable> CompositionFile::Read(std::optional<Units::UNIT_TYPE> units) {
    while (walker_.NextKeyword()) {
        if (!fractions_.ReadKeyword()) {
            ReadTables();
        }
    }
    const FileNumber pressure(walker_.IsField(units) ? Units::Pressure_Pa_To_psi
                                                     : Units::Pressure_Pa_To_bar,
                              walker_.HasLongNumbers());
    std::vector<CompositionTable> tables(std::max(vapours_.size(), liquids_.size()));
    for (std::size_t i = 0; i < tables.size(); ++i) {
        if (i >= vapours_.size() || i >= liquids_.size()) {
            walker_.Tell(KeywordKinds::missingKeyword, 0,
                         "Expected both YMFVP and XMFVP for each region, found one of them alone; "
                         "the other phase has no fractions.");
        }
        CompositionTable& table = tables[i];
        if (i < vapours_.size()) {
            table.Pressures = vapours_[i].first;
            table.VapourFractions = std::move(vapours_[i].fractions);
        }
        if (i < liquids_.size()) {
            table.Pressures = liquids_[i].first;
            table.LiquidFractions = std::move(liquids_[i].fractions);
        }
        for (double& each : table.Pressures) {
            each = pressure.ToModel(each);
        }
    }
    return tables;
}

} // namespace

CompositionTableReader::CompositionTableReader() = default;
CompositionTableReader::~CompositionTableReader() = default;

void CompositionTableReader::SetDiagnosticSink(DiagnosticSink sink) {
    diagnosticSink = std::move(sink);
}

ErrorReport CompositionTableReader::Read(const std::string& fileName,
                                         std::vector<CompositionTable>& tables,
                                         std::optional<Units::UNIT_TYPE> units) const {
    return ReadKeywords({fileName}, diagnosticSink, compositionKeywords, tables,
                        [&](KeywordWalker& walker) { return CompositionFile(walker).Read(units); });
}

ErrorReport CompositionTableReader::Read(std::istream& in, std::vector<CompositionTable>& tables,
                                         std::optional<Units::UNIT_TYPE> units,
                                         const std::string& name) const {
    return ReadKeywords({name, &in}, diagnosticSink, compositionKeywords, tables,
                        [&](KeywordWalker& walker) { return CompositionFile(walker).Read(units); });
}

} // namespace Orv::FluidBench::IO
