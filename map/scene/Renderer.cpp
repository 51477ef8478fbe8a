#include "map/scene/Renderer.h"

#include <QByteArray>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>
#include <array>

namespace vasker {

bool hasShaders(const QQuickWindow& window) {
    return window.rendererInterface()->graphicsApi() != QSGRendererInterface::Software;
}

bool rendersInSoftware(const QQuickWindow& window) {
    if (!hasShaders(window)) {
        return true;
    }
    QOpenGLContext* const context = QOpenGLContext::currentContext();
    return context != nullptr && rendersInSoftware(*context);
}

bool rendersInSoftware(QOpenGLContext& context) {
    const QByteArray renderer(
        reinterpret_cast<const char*>(context.functions()->glGetString(GL_RENDERER)));
    constexpr std::array software{"llvmpipe", "softpipe", "swrast", "SWR", "Software Rasterizer"};
    return std::ranges::any_of(software, [&](const char* name) { return renderer.contains(name); });
}

} // namespace vasker
