// The toolbox's thermal table: a value without any computation behind it.
#include "FluidBench/Model/ThermalExportTable.h"

#include <utility>

namespace Orv::FluidBench::Model {

ThermalExportTable::ThermalExportTable() = default;
ThermalExportTable::ThermalExportTable(const ThermalExportTable&) = default;
ThermalExportTable::ThermalExportTable(ThermalExportTable&&) noexcept = default;
ThermalExportTable& ThermalExportTable::operator=(const ThermalExportTable& other) {
    return *this = ThermalExportTable(other);
}
ThermalExportTable& ThermalExportTable::operator=(ThermalExportTable&&) noexcept = default;
ThermalExportTable::~ThermalExportTable() = default;

const std::vector<double>& ThermalExportTable::GetHeatVaps() const noexcept {
    return heatVaps_;
}
const std::vector<double>& ThermalExportTable::GetCRefs() const noexcept {
    return cRefs_;
}
const std::vector<double>& ThermalExportTable::GetThermEx1s() const noexcept {
    return thermEx1s_;
}
const std::vector<double>& ThermalExportTable::GetZFactors() const noexcept {
    return zFactors_;
}
const std::vector<double>& ThermalExportTable::GetZis() const noexcept {
    return zis_;
}

bool ThermalExportTable::HasCrookstonData() const noexcept {
    return hasCrookstonData_;
}
std::vector<double> ThermalExportTable::GetCrookstonA() const {
    return crookstonA_;
}
std::vector<double> ThermalExportTable::GetCrookstonB() const {
    return crookstonB_;
}
std::vector<double> ThermalExportTable::GetCrookstonC() const {
    return crookstonC_;
}
std::vector<double> ThermalExportTable::GetCrookstonD() const {
    return crookstonD_;
}
std::vector<double> ThermalExportTable::GetCrookstonE() const {
    return crookstonE_;
}

void ThermalExportTable::SetHeatVaps(std::vector<double> values) {
    heatVaps_ = std::move(values);
}
void ThermalExportTable::SetCRefs(std::vector<double> values) {
    cRefs_ = std::move(values);
}
void ThermalExportTable::SetThermEx1s(std::vector<double> values) {
    thermEx1s_ = std::move(values);
}
void ThermalExportTable::SetZFactors(std::vector<double> values) {
    zFactors_ = std::move(values);
}
void ThermalExportTable::SetZis(std::vector<double> values) {
    zis_ = std::move(values);
}
void ThermalExportTable::SetCrookston(std::vector<double> a, std::vector<double> b,
                                      std::vector<double> c, std::vector<double> d,
                                      std::vector<double> e) {
    hasCrookstonData_ = true;
    crookstonA_ = std::move(a);
    crookstonB_ = std::move(b);
    crookstonC_ = std::move(c);
    crookstonD_ = std::move(d);
    crookstonE_ = std::move(e);
}

} // namespace Orv::FluidBench::Model
