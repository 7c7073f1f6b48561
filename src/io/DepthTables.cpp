// The depth variation tables of a depth run.
//
//     -- Units: bar
//     PDVD
//     --
//     -- Pd vs Depth
//     --
//             2000<tab>312.5       a depth, 12 wide, and its value
//     /
//     ...                          a second table where the rows pass the gas-oil contact
//     FILEUNIT
//     METRIC
//     /
//
// The comments "-- " of the heading end in a blank. Numbers have six significant digits.
#include "io/PVOFileWriter.h"

#include "DeckText.h"
#include "FluidBench/Utilities/Equations.h"
#include "Messages.h"
#include "NumberText.h"
#include "OutputFile.h"
#include "StreamFormat.h"
#include "io/DepthTableReader.h"

#include <algorithm>
#include <compare>
#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::pvtEnumErrorCode;
using Common::pvtEnumPTPointType;
using Common::Units;
using Experiments::ExperimentResults;
using Experiments::MSTExperiment;
using Experiments::oilLikeFluidState;
using Experiments::Stage;
using Impl::IO::FreeText;
using Impl::IO::WriteFile;
using Model::CompositionalFluid;
using Text::AppendNumber;
using Text::NumberFormat;
using Text::StreamFormat;
using Utilities::Equations;

namespace {

struct DepthHeading {
    const char* keyword;
    const char* title;
    const char* fieldUnits;
    const char* metricUnits;
};

constexpr DepthHeading compositions{"ZMFVD", "Total Composition vs Depth", "ft", "m"};
constexpr DepthHeading bubblePoints{"PBVD", "Pb vs Depth", "psia", "bar"};
constexpr DepthHeading dewPoints{"PDVD", "Pd vs Depth", "psia", "bar"};
constexpr DepthHeading dissolvedGas{"RSVD", "Rs vs Depth", "Field", "Metric "};
constexpr DepthHeading vaporisedOil{"RVVD", "Rv vs Depth", "Field", "Metric "};

constexpr const DepthHeading* headings[] = {&compositions, &bubblePoints, &dewPoints, &dissolvedGas,
                                            &vaporisedOil};

constexpr NumberFormat sixDigits{std::chars_format::general, 6};
constexpr std::size_t depthWidth = 12;
constexpr double sameDepth = 0.001;

double DepthOf(const Stage& stage) noexcept {
    return stage.Results->Depth.GetValue();
}

// Puts `stage` among the others by depth, unless one of them is at its depth.
void InsertStageByDepth(std::vector<Stage>& stages, const Stage& stage) {
    const double depth = DepthOf(stage);
    for (const Stage& present : stages) {
        if (Equations::RelativeDoublesEqual(depth, DepthOf(present), sameDepth)) {
            return;
        }
    }
    stages.push_back(stage);
    // A depth that isn't a number has a place in this order, too.
    std::ranges::stable_sort(stages, [](const Stage& first, const Stage& second) {
        return std::is_lt(std::strong_order(DepthOf(first), DepthOf(second)));
    });
}

void BeginTable(std::ostream& out, const DepthHeading& table, Units::UNIT_TYPE units) {
    out << "-- Units: " << (units == Units::FIELD ? table.fieldUnits : table.metricUnits) << '\n'
        << table.keyword << "\n-- \n-- " << table.title << "\n-- \n";
}

void EndTable(std::ostream& out) {
    out << "/\n";
}

void AppendDepth(std::string& text, double depth, Units::UNIT_TYPE units) {
    AppendNumber(text, units == Units::FIELD ? Units::Depth_m_to_ft(depth) : depth, sixDigits,
                 depthWidth);
}

void WriteRow(std::ostream& out, double depth, double value, Units::UNIT_TYPE units) {
    std::string row;
    AppendDepth(row, depth, units);
    row += '\t';
    AppendNumber(row, value, sixDigits);
    row += '\n';
    out << row;
}

// The depth and the first fraction on a line, each further fraction on one of its own, and a line
// of blanks behind them.
void WriteComposition(std::ostream& out, double depth, const std::vector<double>& fractions,
                      Units::UNIT_TYPE units) {
    std::string block;
    AppendDepth(block, depth, units);
    for (const double fraction : fractions) {
        block += ' ';
        AppendNumber(block, fraction, sixDigits);
        block += '\n';
        block.append(depthWidth, ' ');
    }
    block += '\n';
    out << block;
}

std::vector<double> FractionsOf(const CompositionalFluid& fluid,
                                const std::vector<std::string>& names) {
    std::vector<double> fractions;
    fractions.reserve(names.size());
    for (const std::string& name : names) {
        fractions.push_back(fluid.HasComponentWithGlobalName(name)
                                ? fluid.GetComponentFractionByGlobalName(name)
                                : 0.0);
    }
    return fractions;
}

bool GivesRatio(const ExperimentResults& run) {
    return !run.Failed && !run.Stages.empty() && run.Stages.back().Results->GasOilRatio.IsSet;
}

// Vaporised oil is the inverse of the gas-oil ratio.
double RatioOfTable(double gasOilRatio, bool isRs, Units::UNIT_TYPE units) {
    const double ratio =
        units == Units::FIELD ? Units::GOR_m3m3_To_Mscfstb(gasOilRatio) : gasOilRatio;
    return isRs ? ratio : 1.0 / ratio;
}

// A value of a table against depth, in the units of the file.
double ValueOfTable(const DepthHeading& heading, double value, Units::UNIT_TYPE units) {
    if (&heading == &bubblePoints || &heading == &dewPoints) {
        return units == Units::FIELD ? Units::Pressure_Pa_To_psi(value)
                                     : Units::Pressure_Pa_To_bar(value);
    }
    return &heading == &dissolvedGas ? RatioOfTable(value, true, units)
                                     : RatioOfTable(1.0 / value, false, units);
}

ErrorReport EmptyResults() {
    ErrorReport report;
    report.Add(FreeText(pvtEnumErrorCode::Information, "Empty results"));
    return report;
}

} // namespace

bool PVOFileWriter::SwitchToLiquidRegion(bool hasContact, bool inLiquidRegion, double depth,
                                         double contactDepth) const {
    if (!hasContact || inLiquidRegion) {
        return false;
    }
    return depth > contactDepth || Equations::DoublesEqual(contactDepth, depth, sameDepth);
}

void PVOFileWriter::UpdateGOR(double& gasOilRatio, const Stage& stage) const {
    if (stage.Results->GasOilRatio.IsSet) {
        gasOilRatio += stage.Results->GasOilRatio.GetValue();
    }
}

std::vector<Stage> PVOFileWriter::UpdateStageResults(const std::vector<Stage>& stages,
                                                     const Stage& contactStage, bool hasContact,
                                                     double& contactDepth) const {
    std::vector<Stage> merged = stages;
    if (hasContact) {
        InsertStageByDepth(merged, contactStage);
        contactDepth = DepthOf(contactStage);
    }
    return merged;
}

ErrorReport PVOFileWriter::ExportZMFVD(const CompositionalFluid& fluid,
                                       const ExperimentResults& results,
                                       const std::string& fileName, Units::UNIT_TYPE units) const {
    return WriteFile(fileName,
                     [&](std::ostream& out) { return ExportZMFVD(fluid, results, out, units); });
}

ErrorReport PVOFileWriter::ExportZMFVD(const CompositionalFluid& fluid,
                                       const ExperimentResults& results, std::ostream& out,
                                       Units::UNIT_TYPE units) const {
    const StreamFormat format(out);
    std::vector<Stage> stages = results.Stages;
    if (results.ContactStage.Results->Depth.IsSet) {
        InsertStageByDepth(stages, results.ContactStage);
    }
    const std::vector<std::string> names = fluid.ListComponentsGlobalNames();

    BeginTable(out, compositions, units);
    for (const Stage& stage : stages) {
        WriteComposition(out, DepthOf(stage), FractionsOf(stage.Fluid, names), units);
    }
    EndTable(out);
    out << FileUnitHeader(units == Units::METRIC);
    return {};
}

ErrorReport PVOFileWriter::ExportPSATVD(const ExperimentResults& results,
                                        const std::string& fileName, Units::UNIT_TYPE units) const {
    return WriteFile(fileName,
                     [&](std::ostream& out) { return ExportPSATVD(results, out, units); });
}

ErrorReport PVOFileWriter::ExportPSATVD(const ExperimentResults& results, std::ostream& out,
                                        Units::UNIT_TYPE units) const {
    const StreamFormat format(out);
    if (results.Stages.empty()) {
        return EmptyResults();
    }
    const bool hasContact = results.ContactStage.Results->Depth.IsSet;
    double contactDepth = 0.0;
    const std::vector<Stage> stages =
        UpdateStageResults(results.Stages, results.ContactStage, hasContact, contactDepth);
    const auto convert =
        units == Units::FIELD ? Units::Pressure_Pa_To_psi : Units::Pressure_Pa_To_bar;

    BeginTable(out, stages.front().LiquidPhase.Present() ? bubblePoints : dewPoints, units);
    bool inLiquidRegion = false;
    for (const Stage& stage : stages) {
        if (!stage.Results->SaturationPressure.IsSet) {
            continue;
        }
        const double depth = DepthOf(stage);
        if (SwitchToLiquidRegion(hasContact, inLiquidRegion, depth, contactDepth)) {
            inLiquidRegion = true;
            EndTable(out);
            BeginTable(out, bubblePoints, units);
        }
        WriteRow(out, depth, convert(stage.Results->SaturationPressure.GetValue()), units);
    }
    EndTable(out);
    out << FileUnitHeader(units == Units::METRIC);
    return {};
}

ErrorReport PVOFileWriter::ExportRSVD(const ExperimentResults& results, MSTExperiment experiment,
                                      const std::vector<Stage>& separatorStages,
                                      const std::string& fileName, Units::UNIT_TYPE units) const {
    return WriteFile(fileName, [&](std::ostream& out) {
        return ExportRSVD(results, std::move(experiment), separatorStages, out, units);
    });
}

ErrorReport PVOFileWriter::ExportRSVD(const ExperimentResults& results, MSTExperiment experiment,
                                      const std::vector<Stage>& separatorStages, std::ostream& out,
                                      Units::UNIT_TYPE units) const {
    const StreamFormat format(out);
    if (results.Stages.empty()) {
        return EmptyResults();
    }
    const bool hasContact = results.ContactStage.Results->Depth.IsSet;
    double contactDepth = 0.0;
    const std::vector<Stage> stages =
        UpdateStageResults(results.Stages, results.ContactStage, hasContact, contactDepth);

    bool isRs = results.Stages.front().FluidState == oilLikeFluidState;
    BeginTable(out, isRs ? dissolvedGas : vaporisedOil, units);
    bool inLiquidRegion = false;
    for (const Stage& stage : stages) {
        if (!stage.Results->GasOilRatio.IsSet) {
            continue;
        }
        const double depth = DepthOf(stage);
        if (SwitchToLiquidRegion(hasContact, inLiquidRegion, depth, contactDepth)) {
            inLiquidRegion = true;
            isRs = true;
            EndTable(out);
            BeginTable(out, dissolvedGas, units);
        }
        const ExperimentResults run = experiment.RunExperiment(stage.Fluid, separatorStages,
                                                               pvtEnumPTPointType::Default, true);
        double ratio = 0.0;
        if (GivesRatio(run)) {
            double total = 0.0;
            for (const Stage& separatorStage : run.Stages) {
                UpdateGOR(total, separatorStage);
            }
            ratio = RatioOfTable(total, isRs, units);
        }
        WriteRow(out, depth, ratio, units);
    }
    EndTable(out);
    out << FileUnitHeader(units == Units::METRIC);
    return {};
}

ErrorReport PVOFileWriter::ExportDepthTables(const std::vector<DepthTable>& tables,
                                             std::ostream& out, Units::UNIT_TYPE units) const {
    const StreamFormat format(out);
    for (const DepthTable& table : tables) {
        const auto* const heading =
            std::ranges::find_if(headings, [&table](const DepthHeading* candidate) {
                return table.Keyword == candidate->keyword;
            });
        if (heading == std::end(headings)) {
            throw std::invalid_argument("'" + table.Keyword + "' is no table against depth");
        }
        BeginTable(out, **heading, units);
        for (std::size_t i = 0; i < table.Depths.size(); ++i) {
            const std::vector<double>& values = table.Values.at(i);
            if (*heading == &compositions) {
                WriteComposition(out, table.Depths[i], values, units);
            } else {
                WriteRow(out, table.Depths[i], ValueOfTable(**heading, values.at(0), units), units);
            }
        }
        EndTable(out);
    }
    out << FileUnitHeader(units == Units::METRIC);
    return {};
}

} // namespace Orv::FluidBench::IO
