// The toolbox's enumerations as far as the I/O library passes them. All are 32 bits wide and take
// any 32-bit value: a value without an enumerator is legal and means "not one of these".
#pragma once

#include <cstdint>

namespace Orv::FluidBench::Common {

/// Kind of a report message. The I/O library raises `General` only.
enum class pvtEnumErrorType : std::int32_t { General = 0 };

/// Class of a report message. `Error` makes a report count as failed.
enum class pvtEnumErrorCode : std::int32_t { Information = 0, Warning = 2, Error = 3 };

/// Equation of state of a fluid; the names with `VolumeShift` carry a volume translation.
enum class pvtEnumEoS : std::int32_t {
    PengRobinson = 0,
    PengRobinson78 = 1,
    PengRobinsonVolumeShift = 2,
    PengRobinson78VolumeShift = 3,
    RedlichKwong = 4,
    SoaveRedlichKwong = 5,
    SoaveRedlichKwongVolumeShift = 6,
    ZudkevitchJoffe = 7
};

/// Viscosity correlation of a fluid.
enum class pvtEnumViscosityMethod : std::int32_t { LohrenzBrayClark = 0, Pedersen = 1 };

/// Interfacial tension correlation of a fluid.
enum class pvtEnumInterfacialTensionMethod : std::int32_t { Parachor = 0 };

/// Whether a component is a hydrocarbon.
enum class pvtEnumHCForm : std::int32_t { Hydrocarbon = 0, NonHydrocarbon = 1 };

/// Where the value of a property came from. Zero means that the property has no value; every other
/// number means that a value is there.
enum class pvtEnumPropertySource : std::int32_t { NoValue = 0, User = 1, Library = 2 };

/// Set of binary interaction coefficients.
enum class pvtEnumBICType : std::int32_t { ReservoirEoS = 0 };

/// Basis of the component fractions of a fluid.
enum class pvtEnumUnitFraction : std::int32_t { Mole = 0, Mass = 1 };

/// Standard conditions that a reference density belongs to: 60 degrees F (288.706 K) or
/// 20 degrees C (293.15 K).
enum class pvtEnumStandardConditions : std::int32_t { Fahrenheit60 = 0, Celsius20 = 1 };

/// Unit system of a keyword deck. `Units::UNIT_TYPE` numbers the same two the other way round.
enum class pvtEnumPVOUnitSystemType : std::int32_t { Field = 0, Metric = 1 };

/// How much the simulator's logger tells during the import of a keyword deck, from nothing but
/// fatal failures (0) to every detail (4).
enum class pvtEnumPVOErrorSeverityLevel : std::int32_t {
    Fatal = 0,
    Error = 1,
    Warning = 2,
    Information = 3,
    Debug = 4
};

/// Kind of a pressure-temperature point that an experiment starts from.
enum class pvtEnumPTPointType : std::int32_t { Default = 0 };

} // namespace Orv::FluidBench::Common
