// The simulator's log, handed on to Python's logging.
#pragma once

#include "Kes/KesModel/Log.h"

#include <pybind11/pybind11.h>

#include <string>

namespace FluidBenchPython {

/// Hands each message to `handler(level, text)`, with a level of Python's logging. Any thread may
/// write, with the global lock or without. What the handler throws goes where Python puts
/// exceptions that nobody can catch.
class PythonLogger : public Orv::Kes::KesModel::BaseLogger {
public:
    explicit PythonLogger(pybind11::function handler) : handler_(std::move(handler)) {}
    void write(Orv::Kes::KesModel::Log::Severity severity, const std::string& text) override;

private:
    pybind11::function handler_;
};

/// Puts a logger in force for the whole process until `StopLogging`, which Python calls when it
/// ends. Not while another thread reads a deck.
void StartLogging(pybind11::function handler);
void StopLogging();

} // namespace FluidBenchPython
