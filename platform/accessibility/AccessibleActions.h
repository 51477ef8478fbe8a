#pragma once
// The actions of a control, each once: Qt's bridge names "Press" twice, as an action of the control
// and as one of its role.

#include <QAccessible>
#include <QVariant>

class QDBusMessage;

namespace vasker {

/// The answer to a question of assistive tools about the actions of `control`; not valid where the
/// bridge's own is right: where no name stands twice, and to questions about anything else.
[[nodiscard]] QVariant answerOfActions(const QDBusMessage& question, QAccessibleInterface& control);

} // namespace vasker
