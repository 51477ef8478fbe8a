#pragma once
// "stats": counts the records of a release.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command statsCommand();

} // namespace vasker
