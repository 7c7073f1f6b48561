#include "Logging.h"

#include "Values.h"

#include <memory>
#include <utility>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::Kes::KesModel::Log;

namespace {

// The levels of Python's logging.
int LevelOf(Log::Severity severity) {
    switch (severity) {
    case Log::Fatal:
        return 50;
    case Log::Error:
        return 40;
    case Log::Warning:
        return 30;
    case Log::Information:
        return 20;
    case Log::Debug:
        return 10;
    }
    return 20;
}

// One for the process, as the simulator's log is.
std::unique_ptr<PythonLogger>& TheLogger() {
    static std::unique_ptr<PythonLogger> logger;
    return logger;
}

} // namespace

void PythonLogger::write(Log::Severity severity, const std::string& text) {
    const py::gil_scoped_acquire acquire;
    try {
        handler_(LevelOf(severity), SentenceToPython(text));
    } catch (py::error_already_set& error) {
        error.discard_as_unraisable(handler_);
    }
}

void StartLogging(py::function handler) {
    auto logger = std::make_unique<PythonLogger>(std::move(handler));
    Log::setCurrentLogger(logger.get());
    TheLogger() = std::move(logger);
}

void StopLogging() {
    Log::setCurrentLogger(nullptr);
    TheLogger().reset();
}

} // namespace FluidBenchPython
