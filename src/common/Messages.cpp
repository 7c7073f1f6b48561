#include "Messages.h"

#include "FluidBench/Common/Message.h"

#include <sstream>

namespace Orv::FluidBench::Common {

template <typename Value>
Message::Message(pvtEnumErrorType type, pvtEnumErrorCode code, std::int32_t id, Value value)
    : errorType(type), errorCode(code), messageId(id) {
    parameters.push_back((std::ostringstream() << value).str());
    formMessage();
}

template Message::Message(pvtEnumErrorType, pvtEnumErrorCode, std::int32_t, const char*);
template Message::Message(pvtEnumErrorType, pvtEnumErrorCode, std::int32_t, std::string);

} // namespace Orv::FluidBench::Common

namespace Orv::FluidBench::Impl::IO {

using Common::Message;
using Common::pvtEnumErrorCode;
using Common::pvtEnumErrorType;

Message Failure(std::int32_t id) {
    return {pvtEnumErrorType::General, pvtEnumErrorCode::Error, id};
}

Message FreeText(pvtEnumErrorCode code, const std::string& text) {
    return {pvtEnumErrorType::General, code, MessageId::freeText, text};
}

Message PropertyRefused(const char* reason) {
    return {pvtEnumErrorType::General, pvtEnumErrorCode::Warning, MessageId::propertyRefused,
            reason};
}

Message CantOpenForWriting(const std::string& fileName) {
    return {pvtEnumErrorType::General, pvtEnumErrorCode::Error, MessageId::fileNotWritable,
            fileName};
}

Message CsvUnsupported() {
    return FreeText(pvtEnumErrorCode::Error, "Export to CSV is currently unsupported");
}

} // namespace Orv::FluidBench::Impl::IO
