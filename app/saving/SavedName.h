#pragma once
// The file name that is proposed when something is saved.

#include <QString>
#include <QStringList>

namespace vasker {

/// `parts` joined by hyphens, and `suffix` after them as it stands: letters and digits of any
/// script, dots, hyphens and underscores; each run of anything else is one hyphen. Never begins
/// with a dot, and is never longer than the file systems allow. "records" where nothing is left.
[[nodiscard]] QString savedName(const QStringList& parts, const QString& suffix);

} // namespace vasker
