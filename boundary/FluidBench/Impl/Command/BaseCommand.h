// The base of the toolbox's commands.
#pragma once

#include "FluidBench/Impl/Command/CommandLogManager.h"
#include "FluidBench/Impl/Command/CommandXMLHelper.h"
#include "Visibility.h"

#include <cstdint>
#include <string>

namespace Orv::FluidBench::Impl::Command {

/// A piece of work with a number and a name. The I/O library uses commands by their own operations
/// and none of these. Destroyed through its virtual destructor.
class FLUIDBENCH_BOUNDARY_API BaseCommand {
public:
    virtual ~BaseCommand();

    /// The number that the owner of the command gave it; 0 until then.
    virtual std::int32_t GetId() const;
    virtual void SetId(std::int32_t id);

    /// What a log calls the command.
    virtual std::string GetCommandName() const;

    /// The stand-in keeps no log of commands and no XML of them: both give null.
    virtual CommandLogManager* GetCommandLogManager() const;
    virtual CommandXMLHelper* GetCommandXMLHelper() const;

protected:
    BaseCommand();
    BaseCommand(const BaseCommand&);
    BaseCommand& operator=(const BaseCommand&);

private:
    std::int32_t id_ = 0;
};

} // namespace Orv::FluidBench::Impl::Command
