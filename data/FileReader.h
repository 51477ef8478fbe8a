#pragma once
// Reads a whole file into memory, up to a limit.

#include <cstddef>
#include <stop_token>
#include <string>

namespace vasker {

/// Returns the bytes of the regular file at `path`, or its first `limit` bytes if it is longer. The
/// result has capacity for a few bytes more, so that a parser that needs padding works in place.
///
/// Throws std::system_error, whose code().message() is the operating system's description:
/// - the error of opening or reading the file; an interrupted read is repeated;
/// - std::errc::is_a_directory for a directory and std::errc::not_supported for anything else that
///   is not a regular file, such as a FIFO or a device, which is never waited for;
/// - std::errc::device_or_resource_busy if the file changed while it was read to its end.
///
/// Throws Cancelled if `stop` asks to stop, which is checked at least once for each MiB.
[[nodiscard]] std::string
readWholeFile(const std::string& path, std::size_t limit, const std::stop_token& stop = {});

} // namespace vasker
