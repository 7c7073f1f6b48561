// The simulator's log.
#pragma once

#include "Visibility.h"

#include <atomic>
#include <cstdint>
#include <functional>
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

// The stand-in's own way of telling one reader what concerns its deck.

/// A message of a deck's reading, in its parts.
struct LogMessage {
    Log::Severity severity = Log::Error; ///< how much it matters
    std::string file;                    ///< the deck or what it includes, as it was named
    std::uint64_t line = 0;              ///< counted from 1; 0 where no line applies
    const char* code = ""; ///< stable, "deck.refused" for one; valid as long as the program runs
    std::string text;      ///< a sentence without the place
};

/// While it lives, the messages of decks that are read on the thread that made it come to its
/// function too, whatever the current logger does with them. Readers on several threads so hear of
/// their own decks alone. Where one lives inside another, the inner one hears.
///
/// What the function throws reaches whoever tells the message.
class FLUIDBENCH_BOUNDARY_API ThreadListener {
public:
    /// Takes the messages, one after another.
    using Function = std::function<void(const LogMessage&)>;

    /// Listens from now on. The function must not be empty.
    explicit ThreadListener(Function function);
    ~ThreadListener();
    ThreadListener(const ThreadListener&) = delete;
    ThreadListener& operator=(const ThreadListener&) = delete;

    /// Gives the message to the listener of this thread, if there is one.
    static void tell(const LogMessage& message);

private:
    Function function_;
    ThreadListener* outer_;
};

} // namespace Orv::Kes::KesModel
