#include "platform/ui/theme/IconPainter.h"

#include <QColor>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <memory>

namespace vasker {

namespace {

QByteArray drawing(QStringView name) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        file.setFileName(QStringLiteral(":/icons/mappin.svg"));
        if (!file.open(QIODevice::ReadOnly)) {
            qFatal("The icons are missing from the program.");
        }
    }
    return file.readAll();
}

QByteArray withScaledStrokes(const QByteArray& svg, double strokeScale) {
    static const QRegularExpression width(QStringLiteral("stroke-width=\"([0-9.]+)\""));
    const QString text = QString::fromUtf8(svg);
    QString scaled;
    qsizetype end = 0;
    for (auto each = width.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        scaled += QStringView(text).mid(end, match.capturedStart(1) - end);
        scaled += QString::number(match.capturedView(1).toDouble() * strokeScale);
        end = match.capturedEnd(1);
    }
    scaled += QStringView(text).mid(end);
    return scaled.toUtf8();
}

// Few icons, colours and cuts exist; parsing each once keeps lists and the map's atlas cheap. A
// thread has its own, because rendering changes a renderer.
QSvgRenderer& renderer(QStringView name, const QColor& color, double strokeScale) {
    thread_local QHash<QString, std::shared_ptr<QSvgRenderer>> cache;
    const QString key = QStringLiteral("%1 %2 %3").arg(name, color.name()).arg(strokeScale);
    std::shared_ptr<QSvgRenderer>& cached = cache[key];
    if (!cached) {
        QByteArray svg = drawing(name);
        // A drawing with colours of its own is drawn as it is.
        if (svg.contains("currentColor")) {
            svg =
                withScaledStrokes(svg, strokeScale).replace("currentColor", color.name().toUtf8());
        }
        cached = std::make_shared<QSvgRenderer>(svg);
    }
    return *cached;
}

} // namespace

double strokeScaleFor(double pixels) noexcept {
    if (pixels < 16) {
        return 1.08;
    }
    if (pixels < 32) {
        return 1;
    }
    return pixels < 64 ? 0.78 : 0.56;
}

void paintIcon(QPainter& painter,
               QStringView name,
               const QRectF& target,
               const QColor& color,
               double strokeScale) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(painter.opacity() * static_cast<double>(color.alphaF()));
    renderer(name, color, strokeScale).render(&painter, target);
    painter.restore();
}

} // namespace vasker
