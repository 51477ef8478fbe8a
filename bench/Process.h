#pragma once
// What this process weighs.

namespace vasker {

/// Proportional set size of this process, in megabytes of 1,000,000 bytes. Throws
/// std::runtime_error where the kernel does not tell.
[[nodiscard]] double proportionalMemory();

} // namespace vasker
