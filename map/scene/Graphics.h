#pragma once
// Finds out before the first window what it can be drawn with.

namespace vasker {

/// Has Qt Quick draw by the graphics card: by OpenGL, or by Vulkan where the environment asks for
/// that and it is there. Without a card that works a painter draws, faster and in less memory than
/// OpenGL on the processor; that is left to screens whose scale is not a whole number, and to an
/// environment that asks for OpenGL (QSG_RHI_BACKEND). Call it once, between the application object
/// and the first window.
void chooseGraphics();

/// Has frames begin a millisecond after something changed, so that all that one event changes is in
/// one frame, instead of after the five that Qt waits on X11. Call it before the application
/// object.
void shortenFrameDelay();

} // namespace vasker
