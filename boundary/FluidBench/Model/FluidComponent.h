// One component of a compositional fluid: its name and its properties, each with a source.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "Visibility.h"

#include <memory>
#include <string>

namespace Orv::FluidBench::Model {

/// A value. Every property starts without a value (source `NoValue`); a setter gives it one (source
/// `User`). Pressures are in Pa, temperatures in K, volumes in m3 per gram-mole.
///
/// A value getter of a property without a value gives 0.0. A setter that refuses its argument
/// leaves the component as it was. Each throws `PropertyOutOfRangeException` for a value that isn't
/// finite, and, unless it says otherwise, for one below zero. Zero is legal everywhere: files use
/// it for a value that isn't known. A component that was moved from may only be assigned to or
/// destroyed.
class FLUIDBENCH_BOUNDARY_API FluidComponent {
public:
    /// A component without properties. Throws `EmptyComponentNameException` when `name` is empty or
    /// has nothing but blanks.
    explicit FluidComponent(const std::string& name);
    FluidComponent(const FluidComponent&);
    FluidComponent(FluidComponent&&) noexcept;
    FluidComponent& operator=(const FluidComponent&);
    FluidComponent& operator=(FluidComponent&&) noexcept;
    ~FluidComponent();

    /// Molecular weight in g/mol.
    void SetMolecularWeight(double value);
    double GetMolecularWeight() const;
    Common::pvtEnumPropertySource GetMolecularWeightSource() const;

    /// Critical pressure in Pa.
    void SetPcrit(double value);
    double GetPcrit() const;
    Common::pvtEnumPropertySource GetPcritSource() const;

    /// Critical temperature in K.
    void SetTcrit(double value);
    double GetTcrit() const;
    Common::pvtEnumPropertySource GetTcritSource() const;

    /// Critical volume in m3 per gram-mole.
    void SetVcrit(double value);
    double GetVcrit() const;
    Common::pvtEnumPropertySource GetVcritSource() const;

    /// Critical volume for the viscosity correlation, m3 per gram-mole.
    void SetVcritViscosity(double value);
    double GetVcritViscosity() const;
    Common::pvtEnumPropertySource GetVcritViscositySource() const;

    /// Critical compressibility factor, dimensionless.
    void SetZcrit(double value);
    double GetZcrit() const;
    Common::pvtEnumPropertySource GetZcritSource() const;

    /// Acentric factor, dimensionless. May be negative: hydrogen's and helium's are.
    void SetAcf(double value);
    double GetAcf() const;
    Common::pvtEnumPropertySource GetAcfSource() const;

    /// Parachor, in the usual unit of (dyn/cm)^(1/4) cm3/mol.
    void SetParachor(double value);
    double GetParachor() const;
    Common::pvtEnumPropertySource GetParachorSource() const;

    /// Volume translation of the equation of state, relative to the co-volume. May be negative.
    void SetEoSVolumeShift(double value);
    double GetEoSVolumeShift() const;
    Common::pvtEnumPropertySource GetEoSVolumeShiftSource() const;

    /// The volume shift at `temperature` in K. With `useTemperatureDependence` and a thermal
    /// expansion coefficient set, the stand-in moves the shift linearly away from its value at
    /// 288.706 K (60 degrees F) by that coefficient; otherwise it is the shift that was set.
    double GetEoSTDependantVolumeShift(double temperature, bool useTemperatureDependence) const;

    /// The attraction and co-volume constants of the equation of state. Where both are above zero,
    /// omega B must be below omega A: at the critical temperature the second virial coefficient is
    /// (omega B - omega A) R Tc / Pc, and a substance whose molecules repel on balance there would
    /// not condense. All published sets satisfy this several times over. Throws
    /// `RelatedPropertyOutOfRangeException` from whichever of the two is set last.
    void SetOmegaA(double value);
    void SetOmegaB(double value);
    double GetOmegaA() const;
    Common::pvtEnumPropertySource GetOmegaASource() const;
    double GetOmegaB() const;
    Common::pvtEnumPropertySource GetOmegaBSource() const;

    /// Heat of vaporisation, in the unit of the file it came from.
    void SetHeatVapourisation(double value);
    double GetHeatVapourisation() const;
    Common::pvtEnumPropertySource GetHeatVapourisationSource() const;

    /// Thermal expansion coefficient, in the unit of the file it came from. May be negative: some
    /// liquids shrink when heated.
    void SetThermExpCoeff(double value);
    double GetThermExpCoeff() const;
    Common::pvtEnumPropertySource GetThermExpCoeffSource() const;

    /// Liquid density in kg/m3 and the standard conditions it belongs to.
    void SetReferenceDensity(double density, Common::pvtEnumStandardConditions conditions);
    double GetReferenceDensity() const;
    Common::pvtEnumPropertySource GetReferenceDensitySource() const;
    Common::pvtEnumStandardConditions GetReferenceDensityConditions() const;

    /// Whether the component is a hydrocarbon, which a new one is.
    void SetHydrocarbonForm(Common::pvtEnumHCForm form);
    Common::pvtEnumHCForm GetHydrocarbonForm() const;

    // The stand-in's own operation.

    /// Valid until the component is assigned to, moved from or goes.
    const std::string& GetName() const;

private:
    friend class ComponentLibrary;
    struct Data;
    std::unique_ptr<Data> data_;
};

} // namespace Orv::FluidBench::Model
