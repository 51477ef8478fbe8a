#pragma once
// Where controls are, in pixels of the screen, as assistive tools on X11 count them. Qt's bridge
// tells its own logical pixels, which are larger where the screen is scaled.

#include <QAccessible>
#include <QVariantList>

#include <optional>

class QDBusMessage;

namespace vasker {

/// The answer to a question about the place or the size of `control`; none to any other question,
/// and none where the bridge's own is right: on an unscaled screen, and on another system than X11.
[[nodiscard]] std::optional<QVariantList> answerOfExtents(const QDBusMessage& question,
                                                          const QAccessibleInterface& control);

/// `question`, asked about a point, with the point in the bridge's pixels; any other as it is.
[[nodiscard]] QDBusMessage withLogicalPoint(const QDBusMessage& question,
                                            const QAccessibleInterface& control);

} // namespace vasker
