#pragma once
// Whole files in and out. Failures carry the operating system's own message.

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vasker {

/// "PATH: No such file or directory"
class FileError final : public std::runtime_error {
  public:
    FileError(const std::string& path, int errorNumber);
};

/// The path that stands for standard input or output.
inline constexpr std::string_view standardStream = "-";

/// The bytes of a file, or its first `limit` bytes where it is longer; of standard input where
/// `path` is standardStream. Throws FileError.
[[nodiscard]] std::string readFile(const std::string& path, std::size_t limit);

struct FileContent {
    std::string path;
    std::string_view bytes;
};

/// Replaces all of `files` or none: everything is written beside its place and flushed to disk
/// before the first file is moved there, and what was moved is moved back where a later one fails.
/// A path that leads through a symbolic link replaces the file it leads to. A device or pipe is
/// written to directly. Throws FileError.
void writeFiles(std::span<const FileContent> files);

} // namespace vasker
