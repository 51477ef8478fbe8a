#pragma once
// Finds out before the first window what it can be drawn with.

namespace vasker {

/// Has Qt Quick draw by OpenGL, or by Vulkan where the environment asks for that and it is there;
/// where neither works, by a painter. Call it once, between the application object and the first
/// window.
void chooseGraphics();

} // namespace vasker
