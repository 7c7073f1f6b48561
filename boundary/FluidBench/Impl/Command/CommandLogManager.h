// The toolbox's log of commands. Opaque to the I/O library, which never asks a command for it.
#pragma once

namespace Orv::FluidBench::Impl::Command {

class CommandLogManager;

} // namespace Orv::FluidBench::Impl::Command
