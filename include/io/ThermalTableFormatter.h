// The text of a thermal file, piece by piece, for any stream.
#pragma once

#include "FluidBench/Common/Units.h"
#include "io/Export.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {

/// Writes the pieces of a thermal file. The caller owns the stream and sets its notation and
/// precision. Each piece ends in a line end, and each line end flushes the stream.
class FLUIDBENCH_IO_API IThermalTableFormatter {
public:
    IThermalTableFormatter() = default;
    IThermalTableFormatter(const IThermalTableFormatter&) = default;
    IThermalTableFormatter& operator=(const IThermalTableFormatter&) = default;
    virtual ~IThermalTableFormatter();

    /// The line that has a simulator repeat its input.
    virtual void Echo(std::ostream& out) const = 0;
    /// The standard pressure in Pa and temperature in K.
    virtual void StandardConditions(std::ostream& out, double pressure,
                                    double temperature) const = 0;
    /// The number of components.
    virtual void NComps(std::ostream& out, std::uint64_t count) const = 0;
    /// The names of the components.
    virtual void CNames(std::ostream& out, const std::vector<std::string>& names) const = 0;
    /// A section with one value per component, led by a converter to the units of the file.
    virtual void GenerateKeyword(std::ostream& out, const std::string& units,
                                 const std::string& keyword, const std::string& title,
                                 const std::vector<double>& values,
                                 double (*fieldConverter)(double),
                                 double (*metricConverter)(double)) const = 0;
    /// The heading of K-values without a fit.
    virtual void KVWi(std::ostream& out) const = 0;
    /// The coefficients of the K-value fit: `a` without a unit, `b` in Pa, `c` in 1/Pa, `d` and `e`
    /// in K.
    virtual void GenerateCrookston(std::ostream& out, const std::vector<double>& a,
                                   const std::vector<double>& b, const std::vector<double>& c,
                                   const std::vector<double>& d,
                                   const std::vector<double>& e) const = 0;
    /// What ends the file, where its sections don't carry their own ends.
    virtual void EndDataRecord(std::ostream& out) const = 0;
};

/// The keyword form. FIELD gives field units and every other choice metric ones. No locale of the
/// stream plays a part. Holds the unit choice alone; one thread at a time may use a stream.
///
/// A section is comment lines and its keyword, one line per value, "/" and an empty line:
///
///     -- Units: K
///     TCRIT
///     --
///     -- Critical Temperatures (Reservoir EoS)
///     --
///                <tab>190.5              a tab in the last of 12 columns, then the value
///     /
class FLUIDBENCH_IO_API ThermalTableFormatter : public IThermalTableFormatter {
public:
    /// Takes any value of the choice.
    explicit ThermalTableFormatter(Common::Units::UNIT_TYPE unitType);
    ThermalTableFormatter(const ThermalTableFormatter&) = default;
    ThermalTableFormatter& operator=(const ThermalTableFormatter&) = default;
    ~ThermalTableFormatter() override;

    /// The line that has a simulator repeat its input.
    void Echo(std::ostream& out) const override;

    /// Pa and K, written as psi and degrees Fahrenheit or as bar and degrees Celsius.
    void StandardConditions(std::ostream& out, double pressure, double temperature) const override;

    /// A section with one number.
    void NComps(std::ostream& out, std::uint64_t count) const override;

    /// Names in apostrophes, just as they are.
    void CNames(std::ostream& out, const std::vector<std::string>& names) const override;

    /// A section with one value per component. There is no line of units where `units` is empty.
    /// The converters lead from model units to those of the file; only the one of the unit choice
    /// is called, and a null pointer leaves the values as they are.
    void GenerateKeyword(std::ostream& out, const std::string& units, const std::string& keyword,
                         const std::string& title, const std::vector<double>& values,
                         double (*fieldConverter)(double),
                         double (*metricConverter)(double)) const override;

    /// The heading of K-values without a fit. No data and no end of a record follow it.
    void KVWi(std::ostream& out) const override;

    /// The coefficients of the K-value fit, a row for each letter: `a` without a unit, `b` in Pa,
    /// `c` in 1/Pa, `d` and `e` in K. Written in scientific notation; afterwards the stream has its
    /// default notation, whatever it had before.
    void GenerateCrookston(std::ostream& out, const std::vector<double>& a,
                           const std::vector<double>& b, const std::vector<double>& c,
                           const std::vector<double>& d,
                           const std::vector<double>& e) const override;

    /// Nothing: each section carries its own end.
    void EndDataRecord(std::ostream& out) const override;

private:
    bool IsField() const noexcept { return unitChoice == Common::Units::FIELD; }

    Common::Units::UNIT_TYPE unitChoice;
};

} // namespace Orv::FluidBench::IO
