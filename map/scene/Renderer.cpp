#include "map/scene/Renderer.h"

#include <QByteArray>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <array>

namespace vasker {

bool rendersInSoftware() {
    QOpenGLContext* context = QOpenGLContext::currentContext();
    if (context == nullptr) {
        return false;
    }
    const QByteArray renderer(
        reinterpret_cast<const char*>(context->functions()->glGetString(GL_RENDERER)));
    constexpr std::array software{"llvmpipe", "softpipe", "swrast", "SWR", "Software Rasterizer"};
    return std::ranges::any_of(software, [&](const char* name) { return renderer.contains(name); });
}

} // namespace vasker
