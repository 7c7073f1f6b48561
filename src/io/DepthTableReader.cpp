// Reads tables against depth, as `PVOFileWriter` draws them and as people type them:
//
//     PBVD         depth pressure ... /          the same for PDVD, RSVD and RVVD
//     ZMFVD        depth fractions ... /         as `FractionReader` tells the rows apart
#include "io/DepthTableReader.h"

#include "FileNumber.h"
#include "FractionRows.h"
#include "KeywordWalker.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::Units;
using Impl::IO::KeywordWalker;
using Impl::IO::WantedKeyword;
namespace KeywordKinds = Impl::IO::KeywordKinds;

namespace {

constexpr WantedKeyword depthKeywords[] = {{"ZMFVD"},
                                           {"PBVD"},
                                           {"PDVD"},
                                           {"RSVD"},
                                           {"RVVD"},
                                           FractionReader::countKeyword,
                                           FractionReader::namesKeyword};

double OilGasRatioToField(double ratio) {
    return 1.0 / Units::GOR_m3m3_To_Mscfstb(1.0 / ratio);
}

// The units of the values of each keyword.
struct ValueUnits {
    std::string_view keyword;
    FileNumber::Conversion toField;
    FileNumber::Conversion toMetric;
};
constexpr ValueUnits valueUnits[] = {
    {"ZMFVD", AsItIs, AsItIs},
    {"PBVD", Units::Pressure_Pa_To_psi, Units::Pressure_Pa_To_bar},
    {"PDVD", Units::Pressure_Pa_To_psi, Units::Pressure_Pa_To_bar},
    {"RSVD", Units::GOR_m3m3_To_Mscfstb, AsItIs},
    {"RVVD", OilGasRatioToField, AsItIs},
};

class DepthFile {
public:
    explicit DepthFile(KeywordWalker& walker) : walker_(walker), fractions_(walker, "a depth") {}

    std::vector<DepthTable> Read(std::optional<Units::UNIT_TYPE> units);

private:
    DepthTable ReadTable();
    void TellOrder(const FractionRows& rows);

    KeywordWalker& walker_;
    FractionReader fractions_;
};

DepthTable DepthFile::ReadTable() {
    FractionRows rows;
    if (walker_.Keyword() == "ZMFVD") {
        rows = fractions_.ReadTable();
    } else {
        for (std::array<double, 2> row{}; walker_.ReadRow(row, "a depth and a value");) {
            rows.first.push_back(row[0]);
            rows.fractions.push_back({row[1]});
            rows.lines.push_back(walker_.RowLine());
        }
    }
    TellOrder(rows);
    return {walker_.Keyword(), std::move(rows.first), std::move(rows.fractions)};
}

// The writer keeps the order of a run's stages, so any order is read.
void DepthFile::TellOrder(const FractionRows& rows) {
    for (std::size_t i = 1; i < rows.first.size(); ++i) {
        if (rows.first[i] < rows.first[i - 1]) {
            walker_.Tell(KeywordKinds::depthOrder, rows.lines[i],
                         "Expected a depth below that of the row ahead, found one above it; a "
                         "simulator wants them in order.");
        }
    }
}

std::vector<DepthTable> DepthFile::Read(std::optional<Units::UNIT_TYPE> units) {
    std::vector<DepthTable> tables;
    while (walker_.NextKeyword()) {
        if (fractions_.ReadKeyword()) {
            continue;
        }
        tables.push_back(ReadTable());
        while (walker_.HasRecord()) {
            DepthTable further = ReadTable();
            if (!further.Depths.empty()) {
                tables.push_back(std::move(further));
            } else {
                walker_.Tell(KeywordKinds::noRows, walker_.Line(),
                             "Expected another table or a keyword, found '/' alone; it doesn't "
                             "count.");
            }
        }
    }
    const bool isField = walker_.IsField(units);
    const bool isLong = walker_.HasLongNumbers();
    const FileNumber depth(isField ? Units::Depth_m_to_ft : AsItIs, isLong);
    for (DepthTable& table : tables) {
        const auto* const unit = std::ranges::find(valueUnits, table.Keyword, &ValueUnits::keyword);
        const FileNumber value(isField ? unit->toField : unit->toMetric, isLong);
        for (double& each : table.Depths) {
            each = depth.ToModel(each);
        }
        for (std::vector<double>& row : table.Values) {
            for (double& each : row) {
                each = value.ToModel(each);
            }
        }
    }
    return tables;
}

} // namespace

DepthTableReader::DepthTableReader() = default;
DepthTableReader::~DepthTableReader() = default;

void DepthTableReader::SetDiagnosticSink(DiagnosticSink sink) {
    diagnosticSink = std::move(sink);
}

ErrorReport DepthTableReader::Read(const std::string& fileName, std::vector<DepthTable>& tables,
                                   std::optional<Units::UNIT_TYPE> units) const {
    return ReadKeywords({fileName}, diagnosticSink, depthKeywords, tables,
                        [&](KeywordWalker& walker) { return DepthFile(walker).Read(units); });
}

ErrorReport DepthTableReader::Read(std::istream& in, std::vector<DepthTable>& tables,
                                   std::optional<Units::UNIT_TYPE> units,
                                   const std::string& name) const {
    return ReadKeywords({name, &in}, diagnosticSink, depthKeywords, tables,
                        [&](KeywordWalker& walker) { return DepthFile(walker).Read(units); });
}

} // namespace Orv::FluidBench::IO
