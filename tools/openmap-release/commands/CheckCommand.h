#pragma once
// "check": tells whether the viewer would open a release file.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command checkCommand();

} // namespace vasker
