// The simulator's log, caught by a test.
#pragma once

#include "Kes/KesModel/Log.h"

#include <string>
#include <vector>

namespace FluidBenchTest {

/// While it lives, the simulator's messages come here, and nothing is printed.
class CapturedLog : public Orv::Kes::KesModel::BaseLogger {
public:
    using Severity = Orv::Kes::KesModel::Log::Severity;

    CapturedLog() : previous_(Orv::Kes::KesModel::Log::setCurrentLogger(this)) {}
    ~CapturedLog() override { Orv::Kes::KesModel::Log::setCurrentLogger(previous_); }

    void write(Severity severity, const std::string& text) override {
        messages_.push_back({severity, text});
    }

    /// The messages of that severity, each followed by a newline.
    std::string Of(Severity severity) const {
        std::string text;
        for (const Message& message : messages_) {
            text += message.severity == severity ? message.text + '\n' : "";
        }
        return text;
    }

private:
    struct Message {
        Severity severity;
        std::string text;
    };

    Orv::Kes::KesModel::BaseLogger* previous_;
    std::vector<Message> messages_;
};

} // namespace FluidBenchTest
