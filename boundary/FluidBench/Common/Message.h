// One entry of an error report.
#pragma once

#include "FluidBench/Common/Enumerations.h"
#include "Visibility.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Orv::FluidBench::Common {

/// A value: a number in the toolbox's message table, the parameters of its sentence, and the
/// finished sentence. Immutable but for assignment.
class FLUIDBENCH_BOUNDARY_API Message {
public:
    /// A message without a parameter.
    Message(pvtEnumErrorType type, pvtEnumErrorCode code, std::int32_t id);

    /// A message with one parameter, which is `value` as a text stream writes it. This constructor
    /// belongs to the I/O library, which instantiates it for `const char*` and `std::string` and
    /// doesn't export it.
    template <typename Value>
    FLUIDBENCH_BOUNDARY_LOCAL Message(pvtEnumErrorType type, pvtEnumErrorCode code, std::int32_t id,
                                      Value value);

    ~Message();
    Message(const Message&);
    Message(Message&&) noexcept;
    Message& operator=(const Message&);
    Message& operator=(Message&&) noexcept;

    // The stand-in's own operations.

    /// A message with any number of parameters.
    Message(pvtEnumErrorType type, pvtEnumErrorCode code, std::int32_t id,
            std::vector<std::string> parameters);

    /// One English sentence with the parameters in it. What is given by reference is valid until
    /// the message is assigned to or goes.
    const std::string& GetText() const noexcept { return text; }
    /// What the sentence is made of.
    std::int32_t GetMessageId() const noexcept { return messageId; }
    const std::vector<std::string>& GetParameters() const noexcept { return parameters; }
    /// Whether the message tells of a failure.
    pvtEnumErrorCode GetErrorCode() const noexcept { return errorCode; }
    /// What kind of thing the message is about.
    pvtEnumErrorType GetErrorType() const noexcept { return errorType; }

private:
    /// Builds `text` from `messageId` and `parameters`.
    void formMessage();

    pvtEnumErrorType errorType;
    pvtEnumErrorCode errorCode;
    std::string text;
    std::int32_t messageId;
    std::vector<std::string> parameters;
};

} // namespace Orv::FluidBench::Common
