// The simulator's own initial condition.
#pragma once

#include "Kes/SimFluid/IInitialCondition.h"
#include "Kes/SimFluid/StdDepthTable.h"
#include "Visibility.h"

#include <map>
#include <string>

namespace Orv::Kes::SimFluid {

/// Owns its depth tables. A reference to one is good until it is deleted.
class FLUIDBENCH_BOUNDARY_API StdInitialCondition : public IInitialCondition {
public:
    /// Everything is 0.0, and there is no table.
    explicit StdInitialCondition(const std::string& name);
    ~StdInitialCondition() override;

    std::string getName() const override;
    double getDatumDepth() const override;
    void setDatumDepth(double depth) override;
    double getDatumPressure() const override;
    void setDatumPressure(double pressure) override;
    double getGasOilContactDepth() const override;
    void setGasOilContactDepth(double depth) override;
    double getGasOilContactCapillaryPressure() const override;
    void setGasOilContactCapillaryPressure(double pressure) override;
    double getWaterContactDepth() const override;
    void setWaterContactDepth(double depth) override;
    double getWaterContactCapillaryPressure() const override;
    void setWaterContactCapillaryPressure(double pressure) override;

    bool hasDepthTable(Property property) const override;
    IDepthTable& getDepthTable(Property property) override;
    const IDepthTable& getDepthTable(Property property) const override;
    void deleteDepthTable(Property property) override;

private:
    std::string name_;
    double datumDepth_ = 0.0;
    double datumPressure_ = 0.0;
    double gasOilContactDepth_ = 0.0;
    double gasOilContactCapillaryPressure_ = 0.0;
    double waterContactDepth_ = 0.0;
    double waterContactCapillaryPressure_ = 0.0;
    std::map<Property, StdDepthTable> depthTables_;
};

} // namespace Orv::Kes::SimFluid
