// The toolbox's XML form of commands. Opaque to the I/O library, which never asks a command for it.
#pragma once

namespace Orv::FluidBench::Impl::Command {

class CommandXMLHelper;

} // namespace Orv::FluidBench::Impl::Command
