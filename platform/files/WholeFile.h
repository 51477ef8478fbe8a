#pragma once
// Writes a file, whole or not at all.

#include <QString>

#include <functional>

class QIODevice;

namespace vasker {

/// Has `write` fill a new file and puts it at `path`, where the user can write to it. Other
/// programs see at `path` what was there before or all of the new file. `write` returns what went
/// wrong, or nothing. Returns what went wrong, in the system's words where those tell, or nothing;
/// then `path` is as it was before.
[[nodiscard]] QString writeWhole(const QString& path,
                                 const std::function<QString(QIODevice& file)>& write);

} // namespace vasker
