// The abstract base of file importers.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Model/CompositionalFluid.h"

#include <string>

namespace Orv::FluidBench::Impl::IO {

/// Knows which file to import. Destroyed through its virtual destructor.
class BaseFileImporter {
public:
    BaseFileImporter();
    virtual ~BaseFileImporter();

    const std::string& GetFileName() const;
    void SetFileName(const std::string& name);

    /// Reads the file into `fluid`. With `characterise`, completes the fluid's properties at the
    /// end; with `detectUnitSystem`, finds the unit system from the file's text.
    virtual Common::ErrorReport Import(Model::CompositionalFluid& fluid, bool characterise,
                                       bool detectUnitSystem) = 0;

protected:
    BaseFileImporter(const BaseFileImporter&) = default;
    BaseFileImporter& operator=(const BaseFileImporter&) = default;

    std::string fileName;
};

} // namespace Orv::FluidBench::Impl::IO
