#include "Kes/KesModel/Log.h"

#include <atomic>
#include <iostream>
#include <utility>

namespace Orv::Kes::KesModel {

namespace {

const char* NameOf(Log::Severity severity) {
    switch (severity) {
    case Log::Fatal:
        return "fatal";
    case Log::Error:
        return "error";
    case Log::Warning:
        return "warning";
    case Log::Information:
        return "note";
    case Log::Debug:
        return "debug";
    }
    return "message";
}

DefaultLogger& TheDefaultLogger() {
    static DefaultLogger logger;
    return logger;
}

// Null stands for the default logger, so that it is made when somebody asks for it.
std::atomic<BaseLogger*> currentLogger = nullptr;

thread_local ThreadListener* listenerOfThread = nullptr;

} // namespace

BaseLogger* Log::getCurrentLogger() {
    BaseLogger* const logger = currentLogger.load();
    return logger != nullptr ? logger : &TheDefaultLogger();
}

BaseLogger* Log::setCurrentLogger(BaseLogger* logger) {
    BaseLogger* const previous = currentLogger.exchange(logger);
    return previous != nullptr ? previous : &TheDefaultLogger();
}

ThreadListener::ThreadListener(Function function)
    : function_(std::move(function)), outer_(std::exchange(listenerOfThread, this)) {}
ThreadListener::~ThreadListener() {
    listenerOfThread = outer_;
}

void ThreadListener::tell(const LogMessage& message) {
    if (listenerOfThread != nullptr) {
        listenerOfThread->function_(message);
    }
}

BaseLogger::BaseLogger() = default;
BaseLogger::~BaseLogger() = default;

DefaultLogger::DefaultLogger() = default;
DefaultLogger::~DefaultLogger() = default;

void DefaultLogger::setMaxSeverity(Log::Severity severity) {
    maxSeverity_ = severity;
}
Log::Severity DefaultLogger::getMaxSeverity() const {
    return maxSeverity_;
}

void DefaultLogger::write(Log::Severity severity, const std::string& text) {
    if (severity <= maxSeverity_) {
        // In one piece, so that the lines of two threads don't mix.
        std::cerr << std::string(NameOf(severity)) + ": " + text + '\n';
    }
}

} // namespace Orv::Kes::KesModel
