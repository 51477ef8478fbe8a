#pragma once
// What draws the frames of a window. Render thread, while the scene graph is synchronised.

class QOpenGLContext;
class QQuickWindow;

namespace vasker {

/// Whether the scene graph runs shaders, be it on a graphics card or on the processor.
[[nodiscard]] bool hasShaders(const QQuickWindow& window);

/// Whether frames are drawn by the processor and not by a graphics card.
[[nodiscard]] bool rendersInSoftware(const QQuickWindow& window);

/// Whether the processor does the work of this context, which is current. Any thread.
[[nodiscard]] bool rendersInSoftware(QOpenGLContext& context);

} // namespace vasker
