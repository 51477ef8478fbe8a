#pragma once
// "kinds": prints the categories of a release.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command kindsCommand();

} // namespace vasker
