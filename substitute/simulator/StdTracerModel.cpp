#include "Kes/SimFluid/StdTracerModel.h"

#include <iterator>
#include <numeric>
#include <stdexcept>
#include <string>

namespace Orv::Kes::SimFluid {

namespace {

// An iterator to the table of that index in a list of them, const or not.
template <typename Tables>
auto At(Tables& tables, int type, int index) {
    const auto ofType = tables.find(type);
    if (ofType == tables.end() || index < 0 || index >= std::ssize(ofType->second)) {
        throw std::out_of_range("The tracer has no depth table " + std::to_string(index) +
                                " of type " + std::to_string(type));
    }
    return std::next(ofType->second.begin(), index);
}

} // namespace

StdTracerModel::StdTracerModel(const std::string& name) : name_(name) {}
StdTracerModel::~StdTracerModel() = default;

std::string StdTracerModel::getName() const {
    return name_;
}
std::string StdTracerModel::getComponentName() const {
    return componentName_;
}
void StdTracerModel::setComponentName(const std::string& name) {
    componentName_ = name;
}

IDepthTable& StdTracerModel::makeDepthTable(int type) {
    std::list<StdDepthTable> made(1);
    std::list<StdDepthTable>& tables = depthTables_[type];
    tables.splice(tables.end(), made);
    return tables.back();
}
IDepthTable& StdTracerModel::getDepthTable(int type, int index) {
    return *At(depthTables_, type, index);
}
const IDepthTable& StdTracerModel::getDepthTable(int type, int index) const {
    return *At(depthTables_, type, index);
}
void StdTracerModel::deleteDepthTable(int type, int index) {
    const auto table = At(depthTables_, type, index);
    const auto ofType = depthTables_.find(type);
    ofType->second.erase(table);
    if (ofType->second.empty()) {
        depthTables_.erase(ofType);
    }
}

int StdTracerModel::getNumOfDepthTables() const {
    return std::accumulate(
        depthTables_.begin(), depthTables_.end(), 0,
        [](int sum, const auto& ofType) { return sum + static_cast<int>(ofType.second.size()); });
}
int StdTracerModel::getNumOfDepthTablesOfType(int type) const {
    const auto ofType = depthTables_.find(type);
    return ofType == depthTables_.end() ? 0 : static_cast<int>(ofType->second.size());
}
bool StdTracerModel::hasDepthTablesOfType(int type) const {
    return depthTables_.contains(type);
}

} // namespace Orv::Kes::SimFluid
