#pragma once
// Returns what the allocator keeps of freed memory to the system.

#include <cstddef>

namespace vasker {

/// Makes freed images go back to the system at once. By itself the allocator learns from the
/// first large block freed to keep such blocks, and a map that paints and drops images all day
/// would hold on to twice what it shows. Call it before threads are made.
void returnFreedImages();

/// How many bytes were freed and are kept for what comes next.
[[nodiscard]] std::size_t freedBytesKept() noexcept;

/// Gives freed memory back to the system; takes some milliseconds.
void returnFreedMemory() noexcept;

} // namespace vasker
