#include "io/ThermalExportFileWriter.h"

#include "DeckText.h"
#include "Messages.h"
#include "OutputFile.h"
#include "StreamFormat.h"
#include "io/ThermalTableFormatter.h"

#include <algorithm>
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

constexpr int decimalsOfHighPrecision = 15;
constexpr int decimals = 8;
constexpr int decimalsBehindMolecularWeights = 16;

constexpr double joulePerKilojoule = 1000.0;
constexpr double pascalPerBar = 100000.0;

// The temperature of the heat capacity in a field file, in R (close to 60 degrees Fahrenheit), and
// its powers.
constexpr double fieldTemperature = 519.6701137665567;
constexpr double fieldTemperatureSquared = 270057.027142146;
constexpr double fieldTemperatureCubed = 140340566.01841712;

// What scales a coefficient of the heat capacity for each power of K that becomes one of R.
constexpr double perRankine = 0.5555555555555556;
constexpr double perRankineSquared = 0.308641975308642;
constexpr double perRankineCubed = 0.1714677640603567;

std::vector<double> Scaled(std::vector<double> values, double factor) {
    std::ranges::transform(values, values.begin(), [=](double value) { return value * factor; });
    return values;
}

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
    return value * perRankine;
}
double ThermalExportFileWriter::ConvertSpechACoeffToField(double value) {
    return Units::SpecificHeatCapacity_JPerkgK_to_btuPerlbF(value) * joulePerKilojoule;
}
double ThermalExportFileWriter::ConvertSpechBCoeffToField(double value) {
    return Units::SpecificHeatCapacity_JPerkgK_to_btuPerlbF(value) * joulePerKilojoule /
           Units::Temperature_K_To_R(1.0);
}
double ThermalExportFileWriter::ConvertSpechCCoeffToField(double value) {
    return value * 0.073717869;
}
double ThermalExportFileWriter::ConvertSpechDCoeffToField(double value) {
    return value * 0.040954372;
}

// The order of the operations decides the last digits of the file.
ThermalExportFileWriter::SpecificHeat
ThermalExportFileWriter::SpecificHeatOf(const ThermalExportTable& table, bool isField) {
    const double standard = table.StandardTemperature;
    const double t = isField ? fieldTemperature : standard;
    const double t2 = isField ? fieldTemperatureSquared : standard * standard;
    const double t3 = isField ? fieldTemperatureCubed : standard * standard * standard;
    SpecificHeat heat;
    for (std::uint64_t i = 0; i < table.ComponentCount; ++i) {
        double a = table.SpecificHeatA[i];
        double b = table.SpecificHeatB[i];
        double c = table.SpecificHeatC[i];
        double d = table.SpecificHeatD[i];
        if (isField) {
            a = ConvertSpechACoeffToField(a);
            b = ConvertSpechBCoeffToField(b) * perRankine;
            c = ConvertSpechCCoeffToField(c) * perRankineSquared;
            d = ConvertSpechDCoeffToField(d) * perRankineCubed;
        }
        const double molecularWeight = table.MolecularWeights[i];
        heat.value.push_back((b * t + a + c * t2 + d * t3) / molecularWeight);
        heat.slope.push_back(((c + c) * t + b + d * 3.0 * t2) / molecularWeight);
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
    out.precision(highPrecision ? decimalsOfHighPrecision : decimals);
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
    const std::vector<double> heatVaps =
        Scaled(table.GetHeatVaps(), isField ? joulePerKilojoule : 1.0);
    const std::vector<double> compressibilities =
        Scaled(table.GetCRefs(), unitType == Units::METRIC ? pascalPerBar : 1.0);
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
    write("HEATVAPS", "Heat of Vapourisation at Standard Temp",          "Btu/ lb",       "kJ/ kg",       heatVaps,                    Units::SpecificLatentHeatOfVaporization_JPerkg_To_btuPerlb);
    write("CREF",     "Oil Component Compressibilities",                 "/psi",          "/bar",         compressibilities,           Units::Compressibility_perPa_To_perpsi);
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
