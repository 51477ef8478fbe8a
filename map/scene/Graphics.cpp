#include "map/scene/Graphics.h"

#include <QByteArray>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QVulkanFunctions>
#include <QVulkanInstance>

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <utility>

namespace vasker {

namespace {

/// While it lives, what the process says on standard error is lost: drivers and toolkit tell of
/// each trial that fails.
class Silence {
  public:
    Silence() : m_errors(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0)) {
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nowhere, STDERR_FILENO);
        ::close(nowhere);
    }
    ~Silence() {
        ::dup2(m_errors, STDERR_FILENO);
        ::close(m_errors);
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

  private:
    int m_errors;
};

/// The versions of the oldest shaders that Qt Quick has: GLSL 1.20, and 1.00 for embedded systems.
bool runsShaders(const QOpenGLContext& context) {
    return context.format().version() >= std::pair(2, context.isOpenGLES() ? 0 : 1);
}

bool openGlWorks() {
    QOpenGLContext context;
    if (!context.create()) {
        return false;
    }
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    return surface.isValid() && context.makeCurrent(&surface) && runsShaders(context);
}

bool vulkanWorks() {
    QVulkanInstance instance;
    std::uint32_t devices = 0;
    return instance.create() &&
           instance.functions()->vkEnumeratePhysicalDevices(
               instance.vkInstance(), &devices, nullptr) == VK_SUCCESS &&
           devices > 0;
}

} // namespace

void chooseGraphics() {
    if (qgetenv("QT_QUICK_BACKEND") == "software") {
        return;
    }
    const Silence silence;
    if (qgetenv("QSG_RHI_BACKEND") == "vulkan" && vulkanWorks()) {
        return;
    }
    QQuickWindow::setGraphicsApi(openGlWorks() ? QSGRendererInterface::OpenGL
                                               : QSGRendererInterface::Software);
}

} // namespace vasker
