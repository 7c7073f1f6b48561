// The water of a fluid model, and what is dissolved in it.
#pragma once

#include "Visibility.h"

#include <string>

namespace Orv::Kes::SimFluid {

/// A component of a brine. The I/O library asks for its name alone.
class FLUIDBENCH_BOUNDARY_API IBrineComponent {
public:
    virtual ~IBrineComponent() = default;
    /// As given when the component was made.
    virtual std::string getName() const = 0;

protected:
    IBrineComponent() = default;
    IBrineComponent(const IBrineComponent&) = default;
    IBrineComponent& operator=(const IBrineComponent&) = default;
};

/// Properties of a brine against its composition. Opaque to the I/O library.
class FLUIDBENCH_BOUNDARY_API IBrinePropertyTable {
public:
    virtual ~IBrinePropertyTable() = default;

protected:
    IBrinePropertyTable() = default;
    IBrinePropertyTable(const IBrinePropertyTable&) = default;
    IBrinePropertyTable& operator=(const IBrinePropertyTable&) = default;
};

/// Values in the units of the deck, 0.0 until they are set.
class FLUIDBENCH_BOUNDARY_API IWaterProperties {
public:
    virtual ~IWaterProperties() = default;
    /// At surface conditions, and the properties at a reference pressure.
    virtual double getSurfaceDensity() const = 0;
    virtual void setSurfaceDensity(double value) = 0;
    virtual void setPressure(double value) = 0;
    virtual double getPressure() const = 0;
    virtual void setFormationVolumeFactor(double value) = 0;
    virtual double getFormationVolumeFactor() const = 0;
    virtual void setCompressibility(double value) = 0;
    virtual double getCompressibility() const = 0;
    virtual void setViscosity(double value) = 0;
    virtual double getViscosity() const = 0;
    virtual void setViscosibility(double value) = 0;
    virtual double getViscosibility() const = 0;

    /// Coefficients of the K-value of water.
    virtual void setKValueCoefficientA(double value) = 0;
    virtual double getKValueCoefficientA() const = 0;
    virtual void setKValueCoefficientB(double value) = 0;
    virtual double getKValueCoefficientB() const = 0;
    virtual void setKValueCoefficientC(double value) = 0;
    virtual double getKValueCoefficientC() const = 0;
    virtual void setKValueCoefficientD(double value) = 0;
    virtual double getKValueCoefficientD() const = 0;
    virtual void setKValueCoefficientE(double value) = 0;
    virtual double getKValueCoefficientE() const = 0;

    /// The temperature that the thermal expansion counts from, and its coefficients.
    virtual void setReferenceTemperature(double value) = 0;
    virtual double getReferenceTemperature() const = 0;
    virtual void setThermalExpansionCoefficient1(double value) = 0;
    virtual double getThermalExpansionCoefficient1() const = 0;
    virtual void setThermalExpansionCoefficient2(double value) = 0;
    virtual double getThermalExpansionCoefficient2() const = 0;

    /// Appends a component, and how many there are.
    virtual IBrineComponent& makeBrineComponent(const std::string& name) = 0;
    virtual int getNumBrineComponents() const = 0;
    /// By name these throw `std::invalid_argument`, by index `std::out_of_range`, when there is no
    /// such component.
    virtual IBrineComponent& getBrineComponent(const std::string& name) = 0;
    virtual const IBrineComponent& getBrineComponent(const std::string& name) const = 0;
    virtual IBrineComponent& getBrineComponent(int index) = 0;
    virtual const IBrineComponent& getBrineComponent(int index) const = 0;
    /// Whether there is such a component.
    virtual bool hasBrineComponent(const std::string& name) const = 0;

    /// Replaces the table where there is one.
    virtual IBrinePropertyTable& makeBrinePropertyTable() = 0;
    /// Null when there is none.
    virtual IBrinePropertyTable* getBrinePropertyTable() = 0;
    virtual const IBrinePropertyTable* getBrinePropertyTable() const = 0;
    /// Does nothing where there is none.
    virtual void deleteBrinePropertyTable() = 0;

protected:
    IWaterProperties() = default;
    IWaterProperties(const IWaterProperties&) = default;
    IWaterProperties& operator=(const IWaterProperties&) = default;
};

} // namespace Orv::Kes::SimFluid
