#pragma once
// "export": writes the records that a search shows as CSV or GeoJSON.

#include "tools/openmap-release/commands/Command.h"

namespace vasker {

[[nodiscard]] Command exportCommand();

} // namespace vasker
