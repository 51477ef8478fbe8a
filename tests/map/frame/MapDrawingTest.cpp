#include "map/frame/MapDrawing.h"

#include "map/frame/MapSnapshot.h"
#include "platform/ui/theme/ThemeColors.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

namespace vasker {
namespace {

constexpr int width = 400;
constexpr int height = 300;
const Camera camera(canadaOverview, {width, height});

using Drawing = std::shared_ptr<const MapDrawing>;

Drawing taken(const RecordSet& records, const QString& selection = {}) {
    MapScene scene;
    scene.records = records;
    scene.selection = selection;
    scene.camera = camera;
    QObject owner;
    Drawing taken;
    MapSnapshot::take(scene, &owner, [&taken](Drawing drawing) { taken = std::move(drawing); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return taken != nullptr; }));
    return taken;
}

QImage drawn(const MapDrawing& drawing, int scale = 1) {
    QImage image(width * scale, height * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    drawing.paintRecords(painter);
    return image;
}

int pixelsOf(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

ScreenPoint placeOf(double latitude, double longitude) {
    return camera.worldToScreen(coordinateToMapPoint({latitude, longitude}));
}

const QColor yellow = colorValue(PaletteColor::yellow, ColorScheme::light);
const QColor green = colorValue(PaletteColor::green, ColorScheme::light);

TEST(MapDrawing, ARouteIsALineThroughItsPlaces) {
    const QImage image = drawn(*taken(recordSetOf({pipelineAlong({{{-115, 54}, {-109, 54}}})})));
    const ScreenPoint middle = placeOf(54, -112);
    EXPECT_EQ(image.pixelColor(static_cast<int>(middle.x), static_cast<int>(middle.y)), yellow);
    EXPECT_GT(pixelsOf(image, yellow), 50);
}

TEST(MapDrawing, ARouteTooShortToBeSeenIsADot) {
    const Drawing drawing = taken(recordSetOf({pipelineAlong({{{-112, 54}, {-112.000001, 54}}})}));
    const QImage image = drawn(*drawing, 8);
    EXPECT_GT(pixelsOf(image, yellow), 50);
    EXPECT_LT(pixelsOf(image, yellow), 500);
}

TEST(MapDrawing, RoutesAreNotJoined) {
    const QImage image = drawn(
        *taken(recordSetOf({pipelineAlong({{{-120, 54}, {-116, 54}}, {{-108, 54}, {-104, 54}}})})));
    const ScreenPoint between = placeOf(54, -112);
    EXPECT_EQ(image.pixelColor(static_cast<int>(between.x), static_cast<int>(between.y)),
              QColor(Qt::white));
    EXPECT_GT(pixelsOf(image, yellow), 50);
}

TEST(MapDrawing, PinsAreDrawnAtTheDensityOfTheImage) {
    const Drawing drawing = taken(recordSetOf({facilityAt(54, -112, "terminal")}));
    EXPECT_EQ(drawing->shapes.size(), 2U); // the pin and its label
    const double usual = pixelsOf(drawn(*drawing), green);
    EXPECT_GT(usual, 100);
    // Nine times as many, and more: those at an edge are of no pure colour.
    EXPECT_NEAR(pixelsOf(drawn(*drawing, 3), green) / usual, 10, 1.5);
}

TEST(MapDrawing, TheSelectedRecordStandsOut) {
    const RecordSet records = recordSetOf({facilityAt(54, -112, "terminal")});
    EXPECT_GT(pixelsOf(drawn(*taken(records, QStringLiteral("R-0"))), green),
              1.5 * pixelsOf(drawn(*taken(records)), green));
}

TEST(MapDrawing, TheBasemapIsDrawnOfItsTiles) {
    MapDrawing drawing;
    drawing.frame.tiles.quads = {{7, {{{10, 10, 1}, {30, 10, 1}, {30, 30, 1}, {10, 30, 1}}}, 1},
                                 {8, {{{50, 50, 1}, {70, 50, 1}, {70, 70, 1}, {50, 70, 1}}}, 1}};
    drawing.frame.size = {width, height};
    drawing.frame.background = Qt::blue;
    drawing.tiles[7] = QImage(64, 64, QImage::Format_RGB32);
    drawing.tiles[7].fill(Qt::red);
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    drawing.paintBasemap(painter);
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(31, 31), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(60, 60), QColor(Qt::blue)) << "its image is missing";
}

TEST(MapSnapshot, IsNotDeliveredToAnOwnerThatIsGone) {
    int deliveries = 0;
    const auto deliver = [&deliveries](const Drawing&) { ++deliveries; };
    MapScene scene;
    scene.records = recordSetOf({facilityAt(54, -112, "terminal")});
    scene.camera = camera;
    {
        QObject owner;
        MapSnapshot::take(scene, &owner, deliver);
    }
    QObject owner;
    MapSnapshot::take(scene, &owner, deliver);
    EXPECT_TRUE(QTest::qWaitFor([&] { return deliveries > 0; }));
    QTest::qWait(50);
    EXPECT_EQ(deliveries, 1);
}

} // namespace
} // namespace vasker
