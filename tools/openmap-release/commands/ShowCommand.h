#pragma once
// "show": prints one record.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command showCommand();

} // namespace vasker
