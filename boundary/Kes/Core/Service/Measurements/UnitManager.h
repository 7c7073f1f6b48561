// The one directory of measurements, unit systems and units.
#pragma once

#include "Kes/Core/Service/Measurements/Measurement.h"
#include "Kes/Core/Service/Units/Unit.h"
#include "Kes/Core/Service/Units/UnitSystem.h"
#include "Visibility.h"

#include <memory>
#include <string>

namespace Orv::Kes::Core::Service::Measurements {

/// Owns what it gives, for as long as the program runs. Any thread may ask.
///
///                       KESTREL_METRIC  KESTREL_FIELD  KESTREL_LAB  KESTREL_PVT-M  Canonical
///     Pressure          bar             psia           atm          atm            Pa
///     Density           kg/m3           lb/ft3         g/cc         kg/m3          kg/m3
///     AbsoluteTemp...   K               R              K            K              K
///     MolarVolume       m3/kg-mole      ft3/lb-mole    cc/g-mole    m3/kg-mole     m3/kg-mole
class FLUIDBENCH_BOUNDARY_API UnitManager {
public:
    /// The one directory; made when it is asked for first.
    static const UnitManager& GetUnitManager();

    /// Each throws `std::invalid_argument` for a name, or a pair, that isn't in the table.
    Measurement& GetMeasurement(const std::string& name) const;
    Units::UnitSystem& GetUnitSystem(const std::string& name) const;
    Units::Unit& GetUnit(Units::UnitSystem& system, Measurement& measurement) const;

    UnitManager(const UnitManager&) = delete;
    UnitManager& operator=(const UnitManager&) = delete;
    ~UnitManager();

private:
    UnitManager();

    struct Directory;
    std::unique_ptr<Directory> directory_;
};

} // namespace Orv::Kes::Core::Service::Measurements
