// The inside of a fluid as the toolbox's commands see it. Opaque to the I/O library, which only
// carries references to it.
#pragma once

namespace Orv::FluidBench::Impl::Command {

class CompositionalFluidCommand;

} // namespace Orv::FluidBench::Impl::Command
