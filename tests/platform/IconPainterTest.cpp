#include "platform/ui/theme/IconPainter.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vasker {
namespace {

QImage painted(const QString& name, const QColor& color, double strokeScale, int pixels = 40) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintIcon(painter, name, QRectF(0, 0, pixels, pixels), color, strokeScale);
    return image;
}

double coverage(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += qAlpha(image.pixel(x, y)) / 255.0;
        }
    }
    return sum;
}

constexpr const char* names[] = {"map",
                                 "globe.americas",
                                 "info.circle",
                                 "square.and.arrow.up",
                                 "mappin",
                                 "flame",
                                 "drop.triangle",
                                 "flask",
                                 "arrow.triangle.branch",
                                 "snowflake",
                                 "building.2",
                                 "arrow.down.to.line",
                                 "gearshape.2",
                                 "shippingbox",
                                 "cylinder",
                                 "line.diagonal"};

TEST(IconPainter, EveryIconIsDrawnAndNoTwoAreAlike) {
    std::set<std::string> pictures;
    for (const char* name : names) {
        const QImage image = painted(QString::fromLatin1(name), Qt::black, 1);
        EXPECT_GT(coverage(image), 40) << name;
        pictures.emplace(reinterpret_cast<const char*>(image.constBits()),
                         static_cast<std::size_t>(image.sizeInBytes()));
    }
    EXPECT_EQ(pictures.size(), std::size(names));
}

TEST(IconPainter, AnUnknownNameIsDrawnAsAMapPin) {
    const QImage unknown = painted(QStringLiteral("no.such.icon"), Qt::black, 1);
    EXPECT_EQ(unknown, painted(QStringLiteral("mappin"), Qt::black, 1));
    EXPECT_GT(coverage(unknown), 40);
}

TEST(IconPainter, AnIconHasNoColorButTheOneAskedFor) {
    const QImage image = painted(QStringLiteral("flask"), QColor(0x11, 0x84, 0x99), 1)
                             .convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) == 255) {
                ASSERT_EQ(pixel, 0xFF118499) << x << ", " << y;
            }
        }
    }
}

TEST(IconPainter, AGreaterStrokeScaleDrawsABolderIcon) {
    const QString name = QStringLiteral("map");
    EXPECT_GT(coverage(painted(name, Qt::black, 1.5)),
              1.3 * coverage(painted(name, Qt::black, 0.78)));
}

TEST(IconPainter, SmallIconsAreCutFirmerThanLargeOnes) {
    EXPECT_EQ(strokeScaleFor(14), 1.08);
    EXPECT_EQ(strokeScaleFor(20), 1);
    EXPECT_EQ(strokeScaleFor(44), 0.78);
    EXPECT_EQ(strokeScaleFor(64), 0.56);
}

} // namespace
} // namespace vasker
