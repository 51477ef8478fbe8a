#pragma once
// How many files, sockets and the like the process may still open.

namespace vasker {

/// Whether `count` more can be opened now, which is tried.
[[nodiscard]] bool canOpenDescriptors(int count);

} // namespace vasker
