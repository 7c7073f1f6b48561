// What a thermal simulator asks to know of a fluid, component by component.
#pragma once

#include "Visibility.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Orv::FluidBench::Model {

/// A value that owns its vectors. With n for `ComponentCount`, every vector has one value for each
/// of n components, all in one order; whoever fills the table sees to that, and the writer refuses
/// one where they differ. One thread at a time may change a table.
class FLUIDBENCH_BOUNDARY_API ThermalExportTable {
public:
    double StandardTemperature = 0.0;          ///< K
    double StandardPressure = 0.0;             ///< Pa
    std::uint64_t ComponentCount = 0;          ///< n
    std::vector<std::string> ComponentNames;   ///< as they go into the file
    std::vector<double> MolecularWeights;      ///< g/mol
    std::vector<double> CriticalTemperatures;  ///< K
    std::vector<double> CriticalPressures;     ///< Pa
    std::vector<double> ReferenceTemperatures; ///< K
    std::vector<double> ReferencePressures;    ///< Pa
    std::vector<double> ReferenceDensities;    ///< kg/m3
    std::vector<double> AcentricFactors;       ///< dimensionless
    /// Molar heat capacity in J/(mol K) as A + B T + C T^2 + D T^3, with T in K.
    std::vector<double> SpecificHeatA;
    std::vector<double> SpecificHeatB;
    std::vector<double> SpecificHeatC;
    std::vector<double> SpecificHeatD;

    /// Heats of vaporisation, kJ/kg. Valid, like the other vectors, until set anew.
    const std::vector<double>& GetHeatVaps() const noexcept;
    /// Compressibilities, 1/Pa.
    const std::vector<double>& GetCRefs() const noexcept;
    /// Thermal expansion coefficients, 1/K.
    const std::vector<double>& GetThermEx1s() const noexcept;
    /// Z-factors.
    const std::vector<double>& GetZFactors() const noexcept;
    /// Overall fractions.
    const std::vector<double>& GetZis() const noexcept;

    /// Whether the K-values have been fitted: K = (A + B/p + C p) exp(-D / (T - E)) for each
    /// component, with p in Pa and T in K.
    bool HasCrookstonData() const noexcept;
    std::vector<double> GetCrookstonA() const; ///< dimensionless
    std::vector<double> GetCrookstonB() const; ///< Pa
    std::vector<double> GetCrookstonC() const; ///< 1/Pa
    std::vector<double> GetCrookstonD() const; ///< K
    std::vector<double> GetCrookstonE() const; ///< K

    // The stand-in's own operations.

    /// A table of no components: everything is zero or empty.
    ThermalExportTable();
    ThermalExportTable(const ThermalExportTable&);
    ThermalExportTable(ThermalExportTable&&) noexcept;
    ThermalExportTable& operator=(const ThermalExportTable&);
    ThermalExportTable& operator=(ThermalExportTable&&) noexcept;
    ~ThermalExportTable();

    /// Each takes the units of its getter.
    void SetHeatVaps(std::vector<double> values);
    void SetCRefs(std::vector<double> values);
    void SetThermEx1s(std::vector<double> values);
    void SetZFactors(std::vector<double> values);
    void SetZis(std::vector<double> values);
    /// From here on the table has a fit.
    void SetCrookston(std::vector<double> a, std::vector<double> b, std::vector<double> c,
                      std::vector<double> d, std::vector<double> e);

private:
    std::vector<double> heatVaps_;
    std::vector<double> cRefs_;
    std::vector<double> thermEx1s_;
    std::vector<double> zFactors_;
    std::vector<double> zis_;
    bool hasCrookstonData_ = false;
    std::vector<double> crookstonA_;
    std::vector<double> crookstonB_;
    std::vector<double> crookstonC_;
    std::vector<double> crookstonD_;
    std::vector<double> crookstonE_;
};

} // namespace Orv::FluidBench::Model
