// The simulator's own tracer.
#pragma once

#include "Kes/SimFluid/ITracerModel.h"
#include "Kes/SimFluid/StdDepthTable.h"
#include "Visibility.h"

#include <list>
#include <map>
#include <string>

namespace Orv::Kes::SimFluid {

/// Owns its depth tables. A reference to one is good until that table is deleted.
class FLUIDBENCH_BOUNDARY_API StdTracerModel : public ITracerModel {
public:
    /// A tracer without tables.
    explicit StdTracerModel(const std::string& name);
    ~StdTracerModel() override;

    std::string getName() const override;
    std::string getComponentName() const override;
    void setComponentName(const std::string& name) override;

    IDepthTable& makeDepthTable(int type) override;
    IDepthTable& getDepthTable(int type, int index) override;
    const IDepthTable& getDepthTable(int type, int index) const override;
    void deleteDepthTable(int type, int index) override;
    int getNumOfDepthTables() const override;
    int getNumOfDepthTablesOfType(int type) const override;
    bool hasDepthTablesOfType(int type) const override;

private:
    std::string name_;
    std::string componentName_;
    std::map<int, std::list<StdDepthTable>> depthTables_; // by type; none of the lists is empty
};

} // namespace Orv::Kes::SimFluid
