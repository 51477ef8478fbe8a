#pragma once
// How much of the processor a thread gets beside others.

namespace vasker {

/// Lets other threads of the program go first from here on. The calling thread only.
void lowerThreadPriority();

} // namespace vasker
