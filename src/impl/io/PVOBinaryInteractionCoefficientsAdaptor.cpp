#include "PVOBinaryInteractionCoefficientsAdaptor.h"

#include <algorithm>

namespace Orv::FluidBench::Impl::IO {

PVOBinaryInteractionCoefficientsAdaptor::PVOBinaryInteractionCoefficientsAdaptor() = default;
PVOBinaryInteractionCoefficientsAdaptor::~PVOBinaryInteractionCoefficientsAdaptor() = default;

double PVOBinaryInteractionCoefficientsAdaptor::get(int i, int j) const {
    const auto* const row = coefficients.Find(std::min(i, j));
    const double* const value = row == nullptr ? nullptr : row->Find(std::max(i, j));
    return value == nullptr ? 0.0 : *value;
}

void PVOBinaryInteractionCoefficientsAdaptor::set(int i, int j, double value) {
    auto& row = coefficients[std::min(i, j)];
    if (i == j || value == 0.0) {
        row.Erase(std::max(i, j));
    } else {
        row[std::max(i, j)] = value;
    }
}

} // namespace Orv::FluidBench::Impl::IO
