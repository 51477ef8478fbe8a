#pragma once
// "list": prints the ids of the records that a search shows.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command listCommand();

} // namespace vasker
