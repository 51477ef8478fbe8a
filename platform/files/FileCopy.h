#pragma once
// Copies a file, whole or not at all.

#include <QString>

namespace vasker {

/// Puts the bytes of the file at `source` into a file at `target`, which the user can write to.
/// Other programs see at `target` what was there before or all of it. Where both are one file
/// nothing is done. Returns what went wrong, in the system's words, or nothing; then `target` is as
/// it was before.
[[nodiscard]] QString copyWhole(const QString& source, const QString& target);

} // namespace vasker
