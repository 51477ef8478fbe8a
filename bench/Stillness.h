#pragma once
// A desktop that asks for less motion.

namespace vasker {

/// As the desktop would tell it. Before a window is opened.
void stopMotion();

} // namespace vasker
