#pragma once
// What Qt's own dialog for files lacks: the theme's font, names of its fields for assistive tools,
// the focus in the name of the file, and Enter there. It relies on the names of the parts; a part
// that is not found stays as Qt has it, and so does a dialog of the desktop.

#include <QFont>
#include <QQuickWindow>

namespace vasker {

/// Completes the FileDialog that is open in `window`.
void completeFileDialog(const QQuickWindow& window, const QFont& font);

} // namespace vasker
