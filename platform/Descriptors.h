#pragma once
// How many more files, sockets and the like the process may open.

namespace vasker {

/// Whether `count` more can be opened now, which is tried.
[[nodiscard]] bool canOpenDescriptors(int count);

} // namespace vasker
