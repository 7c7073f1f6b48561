// The exceptions by which the toolbox refuses a value or an operation. All are copyable, and
// `what()` is a whole sentence, valid as long as the exception object.
#pragma once

#include "Visibility.h"

#include <exception>
#include <string>
#include <utility>

namespace Orv::FluidBench::Common {

/// Base of the toolbox's exceptions.
class FLUIDBENCH_BOUNDARY_API Exception : public std::exception {
public:
    /// The text is a whole sentence.
    explicit Exception(std::string text) : text_(std::move(text)) {}
    /// Valid as long as the exception object.
    const char* what() const noexcept override { return text_.c_str(); }

private:
    std::string text_;
};

/// A fluid component without a name.
class FLUIDBENCH_BOUNDARY_API EmptyComponentNameException : public Exception {
public:
    using Exception::Exception;
};

/// A value that the quantity can't have: not a number, infinite, or negative where it can't be.
class FLUIDBENCH_BOUNDARY_API PropertyOutOfRangeException : public Exception {
public:
    using Exception::Exception;
};

/// A value that is sound by itself and contradicts another property of the same component.
class FLUIDBENCH_BOUNDARY_API RelatedPropertyOutOfRangeException : public Exception {
public:
    using Exception::Exception;
};

/// An operation that an implementation doesn't offer.
class FLUIDBENCH_BOUNDARY_API MethodNotImplementedException : public Exception {
public:
    using Exception::Exception;
};

} // namespace Orv::FluidBench::Common
