#pragma once
// What this process weighs, and the files it is measured on.

#include <QString>

#include <string>

namespace vasker {

/// Proportional set size of this process, in megabytes of 1,000,000 bytes. Throws
/// std::runtime_error where the kernel does not tell.
[[nodiscard]] double proportionalMemory();

/// Throws std::runtime_error where that fails.
void writeFile(const QString& path, const std::string& text);

} // namespace vasker
