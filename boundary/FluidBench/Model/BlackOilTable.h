// The black-oil description of a fluid: its tables, surface densities and saturation point.
#pragma once

#include "FluidBench/Model/BlackOilDataRecords.h"
#include "Visibility.h"

namespace Orv::FluidBench::Model {

/// A value that owns its tables. A new one has empty tables and 0.0 for every number. Numbers are
/// kept as given. One thread at a time may change a table set.
class FLUIDBENCH_BOUNDARY_API BlackOilTable {
public:
    BlackOilTable();
    BlackOilTable(const BlackOilTable&);
    BlackOilTable(BlackOilTable&&) noexcept;
    BlackOilTable& operator=(const BlackOilTable&);
    BlackOilTable& operator=(BlackOilTable&&) noexcept;
    ~BlackOilTable();

    /// Oil with dissolved gas: a record per gas-oil ratio, its saturated entry first. Valid, like
    /// the other tables, until it is set anew or the table set goes away.
    const BlackOilDataRecords& GetLiveOilData() const noexcept;
    /// Oil of a constant gas-oil ratio: entries by pressure.
    const BlackOilDataRecords& GetDeadOilData() const noexcept;
    /// Gas with vaporised oil: a record per pressure, its saturated entry first.
    const BlackOilDataRecords& GetWetGasData() const noexcept;
    /// Gas without vaporised oil: entries by pressure.
    const BlackOilDataRecords& GetDryGasData() const noexcept;

    /// Each setter of a table copies what it is given, or takes it over when it may: from
    /// `std::move(records)`, which then has no records, or from the result of an operation. Taking
    /// over is the stand-in's own.
    void SetLiveOilData(const BlackOilDataRecords& records);
    void SetLiveOilData(BlackOilDataRecords&& records) noexcept;
    void SetWetGasData(const BlackOilDataRecords& records);
    void SetWetGasData(BlackOilDataRecords&& records) noexcept;

    /// Surface densities in kg/m3.
    double GetOilDensity() const noexcept;
    double GetGasDensity() const noexcept;
    void SetOilDensity(double density) noexcept;
    void SetGasDensity(double density) noexcept;
    void SetWaterDensity(double density) noexcept;

    /// Gas-oil ratio at the saturation point, m3/m3.
    double GetSaturationPointRs() const noexcept;
    /// Pressure at the saturation point, Pa.
    double GetSaturationPointPressure() const noexcept;

    // The stand-in's own operations.

    /// As `SetLiveOilData`.
    void SetDeadOilData(const BlackOilDataRecords& records);
    void SetDeadOilData(BlackOilDataRecords&& records) noexcept;
    void SetDryGasData(const BlackOilDataRecords& records);
    void SetDryGasData(BlackOilDataRecords&& records) noexcept;
    /// Gas-oil ratio in m3/m3 and pressure in Pa.
    void SetSaturationPoint(double rs, double pressure) noexcept;
    /// Surface density in kg/m3.
    double GetWaterDensity() const noexcept;

private:
    BlackOilDataRecords liveOil_;
    BlackOilDataRecords deadOil_;
    BlackOilDataRecords wetGas_;
    BlackOilDataRecords dryGas_;
    double oilDensity_ = 0.0;
    double gasDensity_ = 0.0;
    double waterDensity_ = 0.0;
    double saturationRs_ = 0.0;
    double saturationPressure_ = 0.0;
};

} // namespace Orv::FluidBench::Model
