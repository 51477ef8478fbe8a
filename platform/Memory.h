#pragma once
// Returns what the allocator keeps of freed memory to the system.

#include <cstddef>

namespace vasker {

/// Makes freed images go back to the system at once. By itself the allocator learns from the
/// first large block freed to keep such blocks, and a map that paints and drops images all day
/// would hold on to twice what it shows. Call it before threads are made.
void returnFreedImages();

/// Makes what other threads than the first have freed go back to the system at once, too. By itself
/// the allocator keeps small blocks apart in case they are needed again; joined later, by
/// returnFreedMemory(), they lie at the end of their thread's heap, and that it never shortens for
/// lack of anything freed there: tens of megabytes after a release was loaded. Call it before
/// threads are made.
void returnThreadsMemory();

/// How many bytes were freed and are kept for what comes next.
[[nodiscard]] std::size_t freedBytesKept() noexcept;

/// Gives freed memory back to the system; takes some milliseconds.
void returnFreedMemory() noexcept;

} // namespace vasker
