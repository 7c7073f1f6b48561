#include "io/ThermalTableFormatter.h"

#include "FileNumber.h"
#include "NumberText.h"
#include "ThermalUnits.h"

#include <iomanip>
#include <string_view>

namespace Orv::FluidBench::IO {

using Common::Units;
using Text::WriteNumber;

namespace {

// What stands ahead of a value: a field whose last column is a tab.
constexpr std::string_view aheadOfCount = "       \t";
constexpr std::string_view aheadOfValue = "           \t";
constexpr int fitWidth = 24;

// One row of the K-value fit for each coefficient.
struct FitUnits {
    const char* names;
    double (*rows[5])(double);
};

// clang-format off
constexpr FitUnits fieldFit{
    "A (row 1) - 'dimensionless',  B (row 2) - 'psi',  C (row 3) - '1/psi',  D (row 4) - 'R',  E (row 5) - 'R'",
    {AsItIs, Units::Pressure_Pa_To_psi, Units::Compressibility_perPa_To_perpsi, Units::Temperature_K_To_R, Units::Temperature_K_To_R}};
constexpr FitUnits metricFit{
    "A (row 1) - 'dimensionless',  B (row 2) - 'bar',  C (row 3) - '1/bar',  D (row 4) - 'K',  E (row 5) - 'K'",
    {AsItIs, Units::Pressure_Pa_To_bar, PerPascalToPerBar,                      AsItIs,                    AsItIs}};
// clang-format on

void WriteUnits(std::ostream& out, std::string_view units) {
    out << "-- Units: " << units << std::endl;
}

void WriteHeading(std::ostream& out, std::string_view keyword, std::string_view title,
                  std::string_view comment = "-- ") {
    out << keyword << std::endl << comment << std::endl;
    out << "-- " << title << std::endl << comment << std::endl;
}

void EndSection(std::ostream& out) {
    out << '/' << std::endl << std::endl;
}

} // namespace

IThermalTableFormatter::~IThermalTableFormatter() = default;

ThermalTableFormatter::ThermalTableFormatter(Units::UNIT_TYPE unitType) : unitChoice(unitType) {}
ThermalTableFormatter::~ThermalTableFormatter() = default;

void ThermalTableFormatter::Echo(std::ostream& out) const {
    out << "ECHO" << std::endl;
}

void ThermalTableFormatter::StandardConditions(std::ostream& out, double pressure,
                                               double temperature) const {
    WriteHeading(out, "STCOND", "Standard Conditions", "--");
    out << aheadOfValue;
    WriteNumber(out, IsField() ? Units::Temperature_K_To_F(temperature)
                               : Units::Temperature_K_To_C(temperature));
    out << '\t';
    WriteNumber(out, IsField() ? Units::Pressure_Pa_To_psi(pressure)
                               : Units::Pressure_Pa_To_bar(pressure));
    out << '\t' << std::endl;
    EndSection(out);
}

void ThermalTableFormatter::NComps(std::ostream& out, std::uint64_t count) const {
    WriteHeading(out, "NCOMPS", "Number of Components", "--");
    out << aheadOfCount;
    WriteNumber(out, count);
    out << std::endl;
    EndSection(out);
}

void ThermalTableFormatter::CNames(std::ostream& out, const std::vector<std::string>& names) const {
    WriteHeading(out, "CNAMES", "Component Names");
    for (const std::string& name : names) {
        out << aheadOfValue << '\'' << name << '\'' << std::endl;
    }
    EndSection(out);
}

void ThermalTableFormatter::GenerateKeyword(std::ostream& out, const std::string& units,
                                            const std::string& keyword, const std::string& title,
                                            const std::vector<double>& values,
                                            double (*fieldConverter)(double),
                                            double (*metricConverter)(double)) const {
    if (!units.empty()) {
        WriteUnits(out, units);
    }
    WriteHeading(out, keyword, title);
    const auto convert = IsField() ? fieldConverter : metricConverter;
    for (const double value : values) {
        out << aheadOfValue;
        WriteNumber(out, convert != nullptr ? convert(value) : value);
        out << std::endl;
    }
    EndSection(out);
}

void ThermalTableFormatter::KVWi(std::ostream& out) const {
    WriteHeading(out, "KVWI", "Oil Component K-value Fitting Function");
}

void ThermalTableFormatter::GenerateCrookston(std::ostream& out, const std::vector<double>& a,
                                              const std::vector<double>& b,
                                              const std::vector<double>& c,
                                              const std::vector<double>& d,
                                              const std::vector<double>& e) const {
    const FitUnits& units = IsField() ? fieldFit : metricFit;
    WriteUnits(out, units.names);
    WriteHeading(out, "KVCR", "Oil Component K-value Fitting Function");

    const auto adjustment = out.flags() & std::ios_base::adjustfield;
    out << std::scientific << std::right;
    auto convert = std::begin(units.rows);
    for (const auto* const row : {&a, &b, &c, &d, &e}) {
        for (const double value : *row) {
            out << std::setw(fitWidth);
            WriteNumber(out, (*convert)(value));
            out << ' ';
        }
        ++convert;
        out << std::endl;
    }
    out.setf(adjustment, std::ios_base::adjustfield);
    out.unsetf(std::ios_base::floatfield);
    EndSection(out);
}

void ThermalTableFormatter::EndDataRecord(std::ostream& /*out*/) const {}

} // namespace Orv::FluidBench::IO
