// The simulator's log.
#pragma once

#include "Visibility.h"

#include <atomic>
#include <cstdint>
#include <string>

namespace Orv::Kes::KesModel {

class BaseLogger;

/// The way to the logger in force, and how much a message matters.
struct FLUIDBENCH_BOUNDARY_API Log {
    /// How much a message matters, the most first.
    enum Severity : std::int32_t { Fatal = 0, Error = 1, Warning = 2, Information = 3, Debug = 4 };

    /// The logger in force, process-wide. Never null: a `DefaultLogger` until somebody sets
    /// another.
    static BaseLogger* getCurrentLogger();

    // The stand-in's own operation.

    /// Puts another logger in force, which has to outlive its service; null stands for the default
    /// one. Gives the logger that was in force. Not while another thread reads a deck.
    static BaseLogger* setCurrentLogger(BaseLogger* logger);
};

/// Takes messages. `DefaultLogger` prints them; a program that wants them elsewhere derives its
/// own.
class FLUIDBENCH_BOUNDARY_API BaseLogger {
public:
    BaseLogger();
    virtual ~BaseLogger();
    BaseLogger(const BaseLogger&) = delete;
    BaseLogger& operator=(const BaseLogger&) = delete;

    /// Takes one message: a sentence without a line end.
    virtual void write(Log::Severity severity, const std::string& text) = 0;
};

/// Prints messages to the error stream, one a line, as far as they matter enough. Any number of
/// threads may use it.
class FLUIDBENCH_BOUNDARY_API DefaultLogger : public BaseLogger {
public:
    DefaultLogger();
    ~DefaultLogger() override;

    /// Messages of a greater number than this aren't printed. `Error` at first.
    void setMaxSeverity(Log::Severity severity);
    void write(Log::Severity severity, const std::string& text) override;

    // The stand-in's own operation.

    /// What was set last.
    Log::Severity getMaxSeverity() const;

private:
    std::atomic<Log::Severity> maxSeverity_ = Log::Error;
};

} // namespace Orv::Kes::KesModel
