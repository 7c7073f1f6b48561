// The toolbox's message table and the report that collects messages.
#include "FluidBench/Common/Message.h"
#include "FluidBench/Common/ErrorReport.h"

#include <array>
#include <string_view>
#include <utility>

namespace Orv::FluidBench::Common {

namespace {

struct Sentence {
    std::int32_t id;
    std::string_view text; // "{}" stands for the next parameter
};

constexpr std::array sentences = {
    Sentence{1001, "{}."},
    Sentence{3242, "The deck could not be read."},
    Sentence{3243, "The deck could not be interpreted as a compositional fluid."},
    Sentence{3244, "The deck's equation of state is not supported."},
    Sentence{3245, "The deck's viscosity model is not supported."},
    Sentence{3359, "A property of a component was refused: {}."},
    Sentence{3369, "The file '{}' can't be opened for writing."},
    Sentence{3503, "The deck's interfacial tension model is not supported."},
};

std::string_view SentenceOf(std::int32_t id) {
    for (const Sentence& sentence : sentences) {
        if (sentence.id == id) {
            return sentence.text;
        }
    }
    return {};
}

void EndWithOneFullStop(std::string& text) {
    while (text.size() > 1 && text.ends_with("..")) {
        text.pop_back();
    }
}

} // namespace

Message::Message(pvtEnumErrorType type, pvtEnumErrorCode code, std::int32_t id)
    : Message(type, code, id, std::vector<std::string>()) {}

Message::Message(pvtEnumErrorType type, pvtEnumErrorCode code, std::int32_t id,
                 std::vector<std::string> values)
    : errorType(type), errorCode(code), messageId(id), parameters(std::move(values)) {
    formMessage();
}

Message::~Message() = default;
Message::Message(const Message&) = default;
Message::Message(Message&&) noexcept = default;
Message& Message::operator=(const Message& other) {
    return *this = Message(other);
}
Message& Message::operator=(Message&&) noexcept = default;

void Message::formMessage() {
    const std::string_view sentence = SentenceOf(messageId);
    if (sentence.empty()) {
        text = "Message " + std::to_string(messageId) + ".";
        return;
    }
    text.clear();
    std::size_t parameter = 0;
    std::size_t position = 0;
    while (position < sentence.size()) {
        if (sentence.substr(position, 2) == "{}") {
            text += parameter < parameters.size() ? parameters[parameter] : std::string();
            ++parameter;
            position += 2;
        } else {
            text += sentence[position++];
        }
    }
    EndWithOneFullStop(text);
}

ErrorReport::ErrorReport() = default;
ErrorReport::ErrorReport(ErrorReport&&) noexcept = default;
ErrorReport& ErrorReport::operator=(ErrorReport&&) noexcept = default;
ErrorReport::ErrorReport(const ErrorReport&) = default;
ErrorReport& ErrorReport::operator=(const ErrorReport& other) {
    return *this = ErrorReport(other);
}
ErrorReport::~ErrorReport() = default;

void ErrorReport::Add(const Message& message) {
    messages_.push_back(message);
    hasErrors_ = hasErrors_ || message.GetErrorCode() == pvtEnumErrorCode::Error;
}

bool ErrorReport::HasErrors() const noexcept {
    return hasErrors_;
}

const std::vector<Message>& ErrorReport::GetMessages() const& noexcept {
    return messages_;
}

std::vector<Message> ErrorReport::GetMessages() && noexcept {
    return std::move(messages_);
}

} // namespace Orv::FluidBench::Common
