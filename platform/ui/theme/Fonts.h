#pragma once
// The typeface of all texts, and how it is drawn.

namespace vasker {

/// Makes Inter, or the nearest to it that is installed, the application's font, in which control
/// characters show nothing; its size is that of the desktop's font. Needs a QGuiApplication; called
/// before the first window.
void installInterfaceFont();

} // namespace vasker
