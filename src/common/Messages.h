// The messages that the library raises: their numbers, and the ones that more than one operation
// uses ready-made.
#pragma once

#include "FluidBench/Common/Message.h"

#include <cstdint>
#include <string>

namespace Orv::FluidBench::Impl::IO {

/// Numbers in the toolbox's message table.
namespace MessageId {
inline constexpr std::int32_t freeText = 1001;
inline constexpr std::int32_t deckNotRead = 3242;
inline constexpr std::int32_t deckNotInterpreted = 3243;
inline constexpr std::int32_t unsupportedEoS = 3244;
inline constexpr std::int32_t unsupportedViscosityModel = 3245;
inline constexpr std::int32_t propertyRefused = 3359;
inline constexpr std::int32_t fileNotWritable = 3369;
inline constexpr std::int32_t unsupportedInterfacialTensionModel = 3503;
} // namespace MessageId

/// A failure that the message number alone tells.
Common::Message Failure(std::int32_t id);

/// A message whose sentence is `text` itself.
Common::Message FreeText(Common::pvtEnumErrorCode code, const std::string& text);

/// The toolbox refused a property of a component, for `reason`. A warning: the component goes
/// without it.
Common::Message PropertyRefused(const char* reason);

/// The output file can't be opened.
Common::Message CantOpenForWriting(const std::string& fileName);

/// The CSV form of a file isn't available.
Common::Message CsvUnsupported();

} // namespace Orv::FluidBench::Impl::IO
