#include "IOException.h"

namespace Orv::FluidBench::Impl::IO {

IOException::IOException(const std::string& text) : text_(text) {}
IOException::~IOException() = default;
const char* IOException::what() const noexcept {
    return text_.c_str();
}

IOFileNotFound::IOFileNotFound(const std::string& fileName)
    : IOException("File '" + fileName + "' could not be found.") {}

IOInvalidIndex::IOInvalidIndex(const std::string& itemName, int index)
    : IOException("No " + itemName + " with index (" + std::to_string(index) +
                  ") is available. Check available " + itemName + "s.") {}

IOUnsupportedEoS::IOUnsupportedEoS() : IOException("Unsupported EoS encountered") {}

IOUnsupportedViscosityModel::IOUnsupportedViscosityModel()
    : IOException("Unsupported viscosity model encountered") {}

} // namespace Orv::FluidBench::Impl::IO
