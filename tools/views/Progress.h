// Tells whoever waits at a terminal that work goes on.
#pragma once

#include "Messages.h"

#include <memory>
#include <string>

namespace FluidBenchTool {

/// While it lives, and from its third second on, a terminal shows what is being done and for how
/// long. The line goes with the object, and makes room for messages. Nothing is shown elsewhere.
class Progress {
public:
    Progress(Messages& messages, const std::string& work);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

private:
    struct Clock;
    std::unique_ptr<Clock> clock_;
};

} // namespace FluidBenchTool
