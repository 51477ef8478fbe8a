#pragma once
// "diff": tells what changed from one release to the next.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command diffCommand();

} // namespace vasker
