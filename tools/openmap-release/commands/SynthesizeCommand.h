#pragma once
// "synthesize": writes an invented release of a given size.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command synthesizeCommand();

} // namespace vasker
