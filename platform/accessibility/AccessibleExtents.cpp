#include "platform/accessibility/AccessibleExtents.h"

#include <QDBusMessage>
#include <QGuiApplication>
#include <QRectF>
#include <QScreen>
#include <QWindow>

namespace vasker {

namespace {

const QString componentInterface = QStringLiteral("org.a11y.atspi.Component");

// ATSPI_COORD_TYPE_SCREEN; the others count from the window.
constexpr unsigned int fromScreen = 0;

/// The window of `control` where its pixels differ from those of the screen, or null.
QWindow* scaledWindow(const QAccessibleInterface& control) {
    QWindow* const window = control.window();
    const bool isScaled = window != nullptr && window->screen() != nullptr &&
                          window->devicePixelRatio() != 1 &&
                          QGuiApplication::platformName() == QLatin1String("xcb");
    return isScaled ? window : nullptr;
}

/// Qt scales each screen about its own corner.
QPointF toPixels(QPointF place, const QWindow& window) {
    const QPointF corner = window.screen()->geometry().topLeft();
    return (place - corner) * window.devicePixelRatio() + corner;
}

QPointF toLogical(QPointF place, const QWindow& window) {
    const QPointF corner = window.screen()->geometry().topLeft();
    return (place - corner) / window.devicePixelRatio() + corner;
}

QRect extents(const QAccessibleInterface& control, const QWindow& window, unsigned int from) {
    const QRectF place = control.rect();
    QPointF corner = toPixels(place.topLeft(), window);
    if (from != fromScreen) {
        corner -= toPixels(window.mapToGlobal(QPointF()), window);
    }
    return QRectF(corner, place.size() * window.devicePixelRatio()).toRect();
}

} // namespace

std::optional<QVariantList> answerOfExtents(const QDBusMessage& question,
                                            const QAccessibleInterface& control) {
    const QWindow* const window = scaledWindow(control);
    if (window == nullptr || question.interface() != componentInterface) {
        return std::nullopt;
    }
    const QRect place = extents(control, *window, question.arguments().value(0).toUInt());
    const QString method = question.member();
    if (method == u"GetExtents") {
        return QVariantList{place};
    }
    if (method == u"GetPosition") {
        return QVariantList{place.x(), place.y()};
    }
    if (method == u"GetSize") {
        return QVariantList{place.width(), place.height()};
    }
    return std::nullopt;
}

QDBusMessage withLogicalPoint(const QDBusMessage& question, const QAccessibleInterface& control) {
    const QWindow* const window = scaledWindow(control);
    const QVariantList asked = question.arguments();
    const QString method = question.member();
    const bool isAboutAPoint = question.interface() == componentInterface && asked.size() == 3 &&
                               (method == u"Contains" || method == u"GetAccessibleAtPoint");
    if (window == nullptr || !isAboutAPoint) {
        return question;
    }
    QPointF point(asked[0].toInt(), asked[1].toInt());
    if (asked[2].toUInt() != fromScreen) {
        point += toPixels(window->mapToGlobal(QPointF()), *window);
    }
    const QPoint logical = toLogical(point, *window).toPoint();
    QDBusMessage moved = question;
    moved.setArguments({logical.x(), logical.y(), fromScreen});
    return moved;
}

} // namespace vasker
