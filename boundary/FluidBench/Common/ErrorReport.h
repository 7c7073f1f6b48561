// What most public operations of the I/O library give back.
#pragma once

#include "FluidBench/Common/Message.h"
#include "Visibility.h"

#include <vector>

namespace Orv::FluidBench::Common {

/// An ordered list of messages and a flag that tells whether they amount to a failure. An empty
/// report means that the operation went through. A value that owns its messages.
class FLUIDBENCH_BOUNDARY_API ErrorReport {
public:
    ErrorReport();
    ErrorReport(ErrorReport&&) noexcept;
    ErrorReport& operator=(ErrorReport&&) noexcept;
    ErrorReport(const ErrorReport&);
    ErrorReport& operator=(const ErrorReport&);
    ~ErrorReport();

    /// Appends a copy of `message`. An error code of 3 raises the failure flag for good.
    void Add(const Message& message);

    /// True once a message of error code 3 was added.
    bool HasErrors() const noexcept;

    // The stand-in's own operation.

    /// The messages in the order of `Add`; valid until the next `Add` or assignment. A report that
    /// goes at once gives them away, so `for (auto& message : reader.Read(fluid).GetMessages())`
    /// holds what it walks over.
    const std::vector<Message>& GetMessages() const& noexcept;
    std::vector<Message> GetMessages() && noexcept;

private:
    std::vector<Message> messages_;
    bool hasErrors_ = false;
};

} // namespace Orv::FluidBench::Common
