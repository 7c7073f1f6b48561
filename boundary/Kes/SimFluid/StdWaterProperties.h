// The simulator's own properties of water.
#pragma once

#include "Kes/SimFluid/IWaterProperties.h"
#include "Visibility.h"

#include <memory>
#include <string>
#include <vector>

namespace Orv::Kes::SimFluid {

/// Owns its brine components and its brine table. A reference to a brine component is good as long
/// as this object.
class FLUIDBENCH_BOUNDARY_API StdWaterProperties : public IWaterProperties {
public:
    StdWaterProperties();
    ~StdWaterProperties() override;

    double getSurfaceDensity() const override;
    void setSurfaceDensity(double value) override;
    void setPressure(double value) override;
    double getPressure() const override;
    void setFormationVolumeFactor(double value) override;
    double getFormationVolumeFactor() const override;
    void setCompressibility(double value) override;
    double getCompressibility() const override;
    void setViscosity(double value) override;
    double getViscosity() const override;
    void setViscosibility(double value) override;
    double getViscosibility() const override;

    void setKValueCoefficientA(double value) override;
    double getKValueCoefficientA() const override;
    void setKValueCoefficientB(double value) override;
    double getKValueCoefficientB() const override;
    void setKValueCoefficientC(double value) override;
    double getKValueCoefficientC() const override;
    void setKValueCoefficientD(double value) override;
    double getKValueCoefficientD() const override;
    void setKValueCoefficientE(double value) override;
    double getKValueCoefficientE() const override;

    void setReferenceTemperature(double value) override;
    double getReferenceTemperature() const override;
    void setThermalExpansionCoefficient1(double value) override;
    double getThermalExpansionCoefficient1() const override;
    void setThermalExpansionCoefficient2(double value) override;
    double getThermalExpansionCoefficient2() const override;

    IBrineComponent& makeBrineComponent(const std::string& name) override;
    int getNumBrineComponents() const override;
    IBrineComponent& getBrineComponent(const std::string& name) override;
    const IBrineComponent& getBrineComponent(const std::string& name) const override;
    IBrineComponent& getBrineComponent(int index) override;
    const IBrineComponent& getBrineComponent(int index) const override;
    bool hasBrineComponent(const std::string& name) const override;

    IBrinePropertyTable& makeBrinePropertyTable() override;
    IBrinePropertyTable* getBrinePropertyTable() override;
    const IBrinePropertyTable* getBrinePropertyTable() const override;
    void deleteBrinePropertyTable() override;

private:
    IBrineComponent* FindBrineComponent(const std::string& name) const;

    double surfaceDensity_ = 0.0;
    double pressure_ = 0.0;
    double formationVolumeFactor_ = 0.0;
    double compressibility_ = 0.0;
    double viscosity_ = 0.0;
    double viscosibility_ = 0.0;
    double kValueCoefficientA_ = 0.0;
    double kValueCoefficientB_ = 0.0;
    double kValueCoefficientC_ = 0.0;
    double kValueCoefficientD_ = 0.0;
    double kValueCoefficientE_ = 0.0;
    double referenceTemperature_ = 0.0;
    double thermalExpansionCoefficient1_ = 0.0;
    double thermalExpansionCoefficient2_ = 0.0;
    std::vector<std::unique_ptr<IBrineComponent>> brineComponents_;
    std::unique_ptr<IBrinePropertyTable> brinePropertyTable_;
};

} // namespace Orv::Kes::SimFluid
