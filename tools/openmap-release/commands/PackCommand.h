#pragma once
// "pack": makes a release from the published tables.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command packCommand();

} // namespace vasker
