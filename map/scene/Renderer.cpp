#include "map/scene/Renderer.h"

#include <QByteArray>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace vasker {

bool rendersInSoftware() {
    QOpenGLContext* context = QOpenGLContext::currentContext();
    if (context == nullptr) {
        return false;
    }
    const QByteArray renderer(
        reinterpret_cast<const char*>(context->functions()->glGetString(GL_RENDERER)));
    for (const char* name : {"llvmpipe", "softpipe", "swrast", "SWR", "Software Rasterizer"}) {
        if (renderer.contains(name)) {
            return true;
        }
    }
    return false;
}

} // namespace vasker
