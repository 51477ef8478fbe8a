#pragma once

namespace vasker {

/// Lets other threads of the program go first from here on. The calling thread only.
void lowerThreadPriority();

} // namespace vasker
