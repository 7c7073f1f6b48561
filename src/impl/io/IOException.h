// The library's exception family. Each holds its whole text; a copy holds its own.
#pragma once

#include <exception>
#include <string>

namespace Orv::FluidBench::Impl::IO {

/// Base of the family.
class IOException : public std::exception {
public:
    explicit IOException(const std::string& text);
    ~IOException() override;

    /// The text, valid as long as the exception object.
    const char* what() const noexcept override;

private:
    std::string text_;
};

/// A file that is to be read can't be opened.
class IOFileNotFound : public IOException {
public:
    explicit IOFileNotFound(const std::string& fileName);
};

/// An access by index beyond what there is.
class IOInvalidIndex : public IOException {
public:
    /// `itemName` is the singular of what was asked for.
    IOInvalidIndex(const std::string& itemName, int index);
};

/// A deck names an equation of state that a fluid can't have.
class IOUnsupportedEoS : public IOException {
public:
    IOUnsupportedEoS();
};

/// A deck names a viscosity or interfacial tension model that a fluid can't have.
class IOUnsupportedViscosityModel : public IOException {
public:
    IOUnsupportedViscosityModel();
};

} // namespace Orv::FluidBench::Impl::IO
