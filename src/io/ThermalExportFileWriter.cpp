#include "io/ThermalExportFileWriter.h"

#include "Decimals.h"
#include "DeckText.h"
#include "Messages.h"
#include "OutputFile.h"
#include "StreamFormat.h"
#include "ThermalUnits.h"
#include "io/ThermalTableFormatter.h"

#include <ios>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::Units;
using Impl::IO::CsvUnsupported;
using Impl::IO::WriteFile;
using Model::ThermalExportTable;
using Text::StreamFormat;

namespace {

constexpr int decimalsBehindMolecularWeights = 16;

// Throws where a vector of the table hasn't one value for each component.
void RequireOneValuePerComponent(const ThermalExportTable& table) {
    const std::uint64_t n = table.ComponentCount;
    const bool hasFit = table.HasCrookstonData();
    const std::pair<const char*, std::uint64_t> vectors[] = {
        {"ComponentNames", table.ComponentNames.size()},
        {"MolecularWeights", table.MolecularWeights.size()},
        {"CriticalTemperatures", table.CriticalTemperatures.size()},
        {"CriticalPressures", table.CriticalPressures.size()},
        {"ReferenceTemperatures", table.ReferenceTemperatures.size()},
        {"ReferencePressures", table.ReferencePressures.size()},
        {"ReferenceDensities", table.ReferenceDensities.size()},
        {"AcentricFactors", table.AcentricFactors.size()},
        {"SpecificHeatA", table.SpecificHeatA.size()},
        {"SpecificHeatB", table.SpecificHeatB.size()},
        {"SpecificHeatC", table.SpecificHeatC.size()},
        {"SpecificHeatD", table.SpecificHeatD.size()},
        {"HeatVaps", table.GetHeatVaps().size()},
        {"CRefs", table.GetCRefs().size()},
        {"ThermEx1s", table.GetThermEx1s().size()},
        {"ZFactors", table.GetZFactors().size()},
        {"Zis", table.GetZis().size()},
        {"CrookstonA", hasFit ? table.GetCrookstonA().size() : n},
        {"CrookstonB", hasFit ? table.GetCrookstonB().size() : n},
        {"CrookstonC", hasFit ? table.GetCrookstonC().size() : n},
        {"CrookstonD", hasFit ? table.GetCrookstonD().size() : n},
        {"CrookstonE", hasFit ? table.GetCrookstonE().size() : n},
    };
    for (const auto& [name, size] : vectors) {
        if (size != n) {
            throw std::invalid_argument(
                "The thermal table has " + std::to_string(n) + " components, but the length of " +
                name + " is " + std::to_string(size) + "; it needs one value for each component");
        }
    }
}

} // namespace

// The heat capacity per mass of each component at the standard temperature.
struct ThermalExportFileWriter::SpecificHeat {
    std::vector<double> value;
    std::vector<double> slope;
};

ThermalExportFileWriter::ThermalExportFileWriter(bool useHighPrecision, FILE_TYPE type)
    : highPrecision(useHighPrecision), fileType(type) {}

double ThermalExportFileWriter::ConvertInverseTemperatureToField(double value) {
    return InverseTemperatureToField(value);
}
double ThermalExportFileWriter::ConvertSpechACoeffToField(double value) {
    return SpechACoeffToField(value);
}
double ThermalExportFileWriter::ConvertSpechBCoeffToField(double value) {
    return SpechBCoeffToField(value);
}
double ThermalExportFileWriter::ConvertSpechCCoeffToField(double value) {
    return SpechCCoeffToField(value);
}
double ThermalExportFileWriter::ConvertSpechDCoeffToField(double value) {
    return SpechDCoeffToField(value);
}

ThermalExportFileWriter::SpecificHeat
ThermalExportFileWriter::SpecificHeatOf(const ThermalExportTable& table, bool isField) {
    SpecificHeat heat;
    for (std::uint64_t i = 0; i < table.ComponentCount; ++i) {
        const HeatCapacity capacity =
            HeatCapacityOf({table.SpecificHeatA[i], table.SpecificHeatB[i], table.SpecificHeatC[i],
                            table.SpecificHeatD[i]},
                           table.MolecularWeights[i], table.StandardTemperature, isField);
        heat.value.push_back(capacity.value);
        heat.slope.push_back(capacity.slope);
    }
    return heat;
}

ErrorReport ThermalExportFileWriter::ExportToFile(const ThermalExportTable& table,
                                                  const std::string& fileName,
                                                  Units::UNIT_TYPE unitType) const {
    if (fileType == PVO) {
        RequireOneValuePerComponent(table);
    }
    return WriteFile(fileName,
                     [&](std::ostream& out) { return ExportToFile(table, out, unitType); });
}

ErrorReport ThermalExportFileWriter::ExportToFile(const ThermalExportTable& table,
                                                  std::ostream& out,
                                                  Units::UNIT_TYPE unitType) const {
    if (fileType != PVO) {
        ErrorReport report;
        report.Add(CsvUnsupported());
        return report;
    }
    RequireOneValuePerComponent(table);
    const StreamFormat format(out);
    out << std::fixed;
    out.precision(highPrecision ? decimalsOfHighPrecision : decimalsOfTables);
    const std::unique_ptr<IThermalTableFormatter> formatter =
        std::make_unique<ThermalTableFormatter>(unitType);
    WriteSections(out, *formatter, table, unitType);
    formatter->EndDataRecord(out);
    out << std::endl << FileUnitHeader(unitType == Units::METRIC);
    return {};
}

void ThermalExportFileWriter::WriteSections(std::ostream& out,
                                            const IThermalTableFormatter& formatter,
                                            const ThermalExportTable& table,
                                            Units::UNIT_TYPE unitType) {
    using Converter = double (*)(double);
    const bool isField = unitType == Units::FIELD;
    const SpecificHeat heat = SpecificHeatOf(table, isField);
    const Converter compressibilityToMetric =
        unitType == Units::METRIC ? PerPascalToPerBar : nullptr;
    const auto write = [&](const char* keyword, const char* title, const char* fieldUnits,
                           const char* metricUnits, const std::vector<double>& values,
                           Converter toField = nullptr, Converter toMetric = nullptr) {
        formatter.GenerateKeyword(out, isField ? fieldUnits : metricUnits, keyword, title, values,
                                  toField, toMetric);
    };

    formatter.Echo(out);
    formatter.StandardConditions(out, table.StandardPressure, table.StandardTemperature);
    formatter.NComps(out, table.ComponentCount);
    formatter.CNames(out, table.ComponentNames);
    // clang-format off
    //     keyword     title                                              units: field     metric          values                       to field                 to metric
    write("MW",       "Molecular Weights (Reservoir EoS)",               "",              "",             table.MolecularWeights);
    out.precision(decimalsBehindMolecularWeights);
    write("TCRIT",    "Critical Temperatures (Reservoir EoS)",           "R",             "K",            table.CriticalTemperatures,  Units::Temperature_K_To_R);
    write("PCRIT",    "Critical Pressures (Reservoir EoS)",              "psia",          "bar",          table.CriticalPressures,     Units::Pressure_Pa_To_psi, Units::Pressure_Pa_To_bar);
    write("TREFT",    "Thermal Reference Temperatures",                  "R",             "K",            table.ReferenceTemperatures, Units::Temperature_K_To_R);
    write("PREFT",    "Thermal Reference Pressures",                     "psia",          "bar",          table.ReferencePressures,    Units::Pressure_Pa_To_psi, Units::Pressure_Pa_To_bar);
    write("DREFT",    "Thermal Reference Densities",                     "lb /ft^3",      "kg /m^3",      table.ReferenceDensities,    Units::Density_kgm3_To_lbft3);
    write("ACF",      "Acentric Factors (Reservoir EoS)",                "",              "",             table.AcentricFactors);
    write("SPECHA",   "Oil Component Specific Heat 1st Coeff",           "Btu/ lb/ R",    "kJ/ kg/ K",    heat.value);
    write("SPECHB",   "Oil Component Specific Heat 2nd Coeff",           "Btu/ lb/ R/ R", "kJ/ kg/ K/ K", heat.slope);
    write("SPECHG",   "Gas Component Specific Heat 1st Coeff",           "Btu/ lb/ R",    "kJ/ kg/ K",    heat.value);
    write("SPECHH",   "Gas Component Specific Heat 2nd Coeff",           "Btu/ lb/ R/ R", "kJ/ kg/ K/ K", heat.slope);
    write("HEATVAPS", "Heat of Vapourisation at Standard Temp",          "Btu/ lb",       "kJ/ kg",       table.GetHeatVaps(),         HeatOfVaporisationToField);
    write("CREF",     "Oil Component Compressibilities",                 "/psi",          "/bar",         table.GetCRefs(),            Units::Compressibility_perPa_To_perpsi, compressibilityToMetric);
    write("THERMEX1", "Thermal Expansion Coefficient 1 (Reservoir EoS)", "1/F",           "1/C",          table.GetThermEx1s(),        ConvertInverseTemperatureToField);
    write("ZFACTOR",  "Z-Factors (Reservoir EoS)",                       "",              "",             table.GetZFactors());
    if (table.HasCrookstonData()) {
        formatter.GenerateCrookston(out, table.GetCrookstonA(), table.GetCrookstonB(), table.GetCrookstonC(), table.GetCrookstonD(), table.GetCrookstonE());
    } else {
        formatter.KVWi(out);
    }
    write("ZI",       "Overall Composition",                             "",              "",             table.GetZis());
    // clang-format on
}

} // namespace Orv::FluidBench::IO
