#include "BaseFileImporter.h"

namespace Orv::FluidBench::Impl::IO {

BaseFileImporter::BaseFileImporter() = default;
BaseFileImporter::~BaseFileImporter() = default;

const std::string& BaseFileImporter::GetFileName() const {
    return fileName;
}
void BaseFileImporter::SetFileName(const std::string& name) {
    fileName = name;
}

} // namespace Orv::FluidBench::Impl::IO
