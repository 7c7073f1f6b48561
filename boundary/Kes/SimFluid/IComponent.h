// One component of a fluid in the simulator's store.
#pragma once

#include "Visibility.h"

#include <cstdint>
#include <string>

namespace Orv::Kes::SimFluid {

/// A name, and numbers by keys. Values stand in the units of the deck.
class FLUIDBENCH_BOUNDARY_API IComponent {
public:
    /// The keys of `setProperty` that a deck's keywords fill, or that a reader asks for. Any other
    /// key is as good.
    enum Property : std::int32_t {
        MOLECULAR_WEIGHT = 0,     ///< g/mol
        CRITICAL_PRESSURE = 1,    ///< bar or psia
        CRITICAL_TEMPERATURE = 2, ///< K or R
        CRITICAL_VOLUME = 3,      ///< m3/kg-mole or ft3/lb-mole
        CRITICAL_Z_FACTOR = 4,
        ACENTRIC_FACTOR = 6,
        PARACHOR = 7,
        VOLUME_SHIFT = 8,
        OMEGA_A = 9,
        OMEGA_B = 10,
        CRITICAL_VOLUME_FOR_VISCOSITY = 11, ///< m3/kg-mole or ft3/lb-mole
        CRITICAL_Z_FACTOR_FOR_VISCOSITY = 12,
        SPECIFIC_HEAT_A = 13,
        SPECIFIC_HEAT_B = 14,
        SPECIFIC_HEAT_G = 15,
        SPECIFIC_HEAT_H = 16,
        REFERENCE_DENSITY = 17,     ///< kg/m3 or lb/ft3
        REFERENCE_TEMPERATURE = 20, ///< K or R
        HEAT_OF_VAPORISATION = 21,  ///< not converted by anybody
        THERMAL_EXPANSION = 26      ///< not converted by anybody
    };

    virtual ~IComponent() = default;
    /// Valid as long as the component.
    virtual const std::string& getName() const = 0;
    /// A number of the simulator's; 0 is any component of a fluid.
    virtual int getKind() const = 0;
    /// Whether it dissolves in water.
    virtual bool isSolubleInAqueousPhase() const { return false; }

    /// Whether a value is set.
    virtual bool hasProperty(int key) const = 0;
    /// Throws `std::range_error` when the component lacks the property.
    virtual double getProperty(int key) const = 0;
    virtual void setProperty(int key, double value) = 0;
    /// Does nothing where the component lacks the property.
    virtual void deleteProperty(int key) = 0;

    /// Numbers of the simulator's, of no meaning to the I/O library. They are what was set last.
    virtual int getAttribute1() const = 0;
    virtual void setAttribute1(int value) = 0;
    virtual int getAttribute2() const = 0;
    virtual void setAttribute2(int value) = 0;
    virtual int getAttribute3() const = 0;
    virtual void setAttribute3(int value) = 0;
    virtual int getAttribute4() const = 0;
    virtual void setAttribute4(int value) = 0;

    /// Numbers of the simulator's by keys, of no meaning to the I/O library. The getters throw
    /// `std::range_error` when nothing is set for the key.
    virtual int getDensity(int key) const = 0;
    virtual void setDensity(int key, int value) = 0;
    virtual int getViscosity(int key) const = 0;
    virtual void setViscosity(int key, int value) = 0;

protected:
    IComponent() = default;
    IComponent(const IComponent&) = default;
    IComponent& operator=(const IComponent&) = default;
};

} // namespace Orv::Kes::SimFluid
