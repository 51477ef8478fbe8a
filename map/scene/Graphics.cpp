#include "map/scene/Graphics.h"

#include "map/scene/Renderer.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QScreen>
#include <QVulkanFunctions>
#include <QVulkanInstance>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
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

/// Whether there is a device by which any of the drivers for Linux reaches a graphics card. To ask
/// is cheap: OpenGL on the processor, which is there in any case, takes long to load and much
/// memory.
bool hasGraphicsCard() {
    constexpr std::array ownDevices{
        "/dev/nvidiactl", "/dev/dxg", "/dev/mali0", "/dev/kgsl-3d0", "/dev/pvrsrvkm"};
    return !QDir(QStringLiteral("/dev/dri"))
                .entryList({QStringLiteral("renderD*")}, QDir::System)
                .isEmpty() ||
           std::ranges::any_of(ownDevices, [](const char* device) {
               return QFile::exists(QString::fromLatin1(device));
           });
}

enum class OpenGl { none, onProcessor, onCard };

OpenGl tryOpenGl() {
    QOpenGLContext context;
    if (!context.create()) {
        return OpenGl::none;
    }
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!surface.isValid() || !context.makeCurrent(&surface) || !runsShaders(context)) {
        return OpenGl::none;
    }
    return rendersInSoftware(context) ? OpenGl::onProcessor : OpenGl::onCard;
}

/// At other scales Qt Quick's painter leaves seams in rounded rectangles.
bool scalesAreWhole() {
    return std::ranges::all_of(QGuiApplication::screens(), [](const QScreen* screen) {
        return screen->devicePixelRatio() == std::round(screen->devicePixelRatio());
    });
}

bool openGlIsBest() {
    const bool isWanted = qgetenv("QSG_RHI_BACKEND") == "opengl" || !scalesAreWhole();
    if (!isWanted && !hasGraphicsCard()) {
        return false;
    }
    const OpenGl openGl = tryOpenGl();
    return openGl == OpenGl::onCard || (isWanted && openGl == OpenGl::onProcessor);
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
    QQuickWindow::setGraphicsApi(openGlIsBest() ? QSGRendererInterface::OpenGL
                                                : QSGRendererInterface::Software);
}

void shortenFrameDelay() {
    constexpr auto variable = "QT_QPA_UPDATE_IDLE_TIME";
    if (!qEnvironmentVariableIsSet(variable)) {
        qputenv(variable, "1");
    }
}

} // namespace vasker
