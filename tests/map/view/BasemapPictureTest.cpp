// What the map looks like with a basemap under the records: the picture of a real window, drawn by
// OpenGL or painted.

#include "map/style/StyleLayer.h"
#include "map/view/MapView.h"
#include "tests/map/records/RecordSetBuilder.h"
#include "tests/map/style/TileDataBuilder.h"

#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

namespace vasker {
namespace {

class MapBasemapPicture : public testing::Test {
  protected:
    void SetUp() override {
        m_window.setColor(Qt::magenta);
        m_window.resize(800, 600);
        m_map = new MapView(m_window.contentItem());
        m_map->setSize({800, 600});
        m_map->setProperty("reducedMotion", true);
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
        ASSERT_EQ(m_window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software,
                  qgetenv("QT_QUICK_BACKEND") == "software");
    }

    void useArchives(const TileArchivePaths& archives) {
        m_library = std::make_unique<TileLibrary>(archives, TileSources(), TileService::Options());
        m_map->setTiles(m_library.get());
    }
    void useBasemap() {
        useArchives({.vector = VASKER_RESOURCES "/basemap.mbtiles", .imagery = {}});
    }
    /// One red photograph of the whole world.
    void useRedPhotograph() {
        const std::string path = m_folder.filePath(QStringLiteral("imagery")).toStdString();
        writeArchive(path, {{{0, 0, 0}, imageryImage(Qt::red).toStdString()}});
        useArchives({.vector = {}, .imagery = path});
        m_map->setProperty("basemap", QStringLiteral("satellite"));
    }
    void show(std::vector<OpenMapRelease::Asset> assets) {
        m_map->setRecords(recordSetOf(std::move(assets)));
    }

    /// The picture once it shows all that is asked for.
    QImage picture() {
        static_cast<void>(m_window.grabWindow()); // the map has seen what is asked for
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_map->isComplete(); }, 20'000));
        return m_window.grabWindow();
    }
    [[nodiscard]] static QPoint at(double latitude, double longitude) {
        const ScreenPoint point = Camera(canadaOverview, {800, 600})
                                      .worldToScreen(coordinateToMapPoint({latitude, longitude}));
        return {static_cast<int>(std::lround(point.x)), static_cast<int>(std::lround(point.y))};
    }
    /// How much of a square of 41 pixels has exactly this colour.
    static double shareOf(const QColor& color, const QImage& picture, QPoint middle) {
        int count = 0;
        for (int y = -20; y <= 20; ++y) {
            for (int x = -20; x <= 20; ++x) {
                count += picture.pixelColor(middle + QPoint(x, y)) == color ? 1 : 0;
            }
        }
        return count / (41.0 * 41.0);
    }
    void expectAllRed(const CameraPose& pose) {
        m_map->setCamera(pose);
        const QImage seen = picture();
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                ASSERT_EQ(seen.pixelColor(x, y), QColor(Qt::red))
                    << x << ' ' << y << " bearing " << pose.bearing << " pitch " << pose.pitch;
            }
        }
    }

    QTemporaryDir m_folder;
    std::unique_ptr<TileLibrary> m_library; // outlives the window
    QQuickWindow m_window;
    MapView* m_map = nullptr;
};

QColor light(PaletteColor color) {
    return colorValue(color, ColorScheme::light);
}

TEST_F(MapBasemapPicture, LandAndWaterAreWhereTheyAre) {
    useBasemap();
    m_map->setCamera(CoordinateRegion{{56, -95}, 20, 40});
    const auto place = [this](Coordinate where) {
        const ScreenPoint point =
            m_map->resolvedCamera().worldToScreen(coordinateToMapPoint(where));
        return QPoint(static_cast<int>(point.x), static_cast<int>(point.y));
    };
    const QImage seen = picture();
    const MapTheme& colors = mapTheme(BasemapTheme::light);
    EXPECT_GT(shareOf(colors.water, seen, place({58.5, -86})), 0.7); // Hudson Bay
    EXPECT_GT(shareOf(colors.land, seen, place({54.5, -106})), 0.5); // Saskatchewan
}

TEST_F(MapBasemapPicture, RotatedAndPitchedThereIsNeitherASeamNorAHole) {
    useRedPhotograph();
    const MapPoint center = coordinateToMapPoint({54, -112});
    const double scale = Camera(canadaOverview, {800, 600}).scale() * 4;
    for (const CameraPose& pose : {CameraPose{center, scale, 0, 0},
                                   CameraPose{center, 1.37 * scale, 33, 0},
                                   CameraPose{center, 0.75 * scale, 201, 45},
                                   CameraPose{center, scale, 90, 60}}) {
        expectAllRed(pose);
    }
}

TEST_F(MapBasemapPicture, FacilitiesArePinsAndCrowdedOnesDotsHoweverDotsAreDrawn) {
    useBasemap();
    show({facilityAt(56, -112, "refinery"),
          facilityAt(55.5, -112, "gas_plant"),
          facilityAt(50, -100, "gas_plant")});
    for (const RecordDrawing drawing : {RecordDrawing::painted, RecordDrawing::live}) {
        m_map->setDrawing(drawing);
        const QImage seen = picture();
        EXPECT_EQ(seen.pixelColor(at(56, -112) + QPoint(-8, -18)), light(PaletteColor::red));
        EXPECT_EQ(seen.pixelColor(at(55.5, -112)), light(PaletteColor::blue));
    }
}

TEST_F(MapBasemapPicture, AnUnpickedLineLooksAlikeHoweverItIsDrawn) {
    useBasemap();
    show({pipelineAlong({{{-120, 54}, {-104, 54}}})});
    for (const RecordDrawing drawing : {RecordDrawing::painted, RecordDrawing::live}) {
        m_map->setDrawing(drawing);
        const QImage seen = picture();
        int height = 0;
        for (int y = -6; y <= 6; ++y) {
            const QColor color = seen.pixelColor(at(54, -112) + QPoint(0, y));
            height += color == light(PaletteColor::yellow) ? 1 : 0;
        }
        EXPECT_GE(height, 1);
        EXPECT_LE(height, 2);
    }
}

TEST_F(MapBasemapPicture, ThePickedLineIsBlueAndFivePixelsWideUponPaintedOnes) {
    useBasemap();
    m_map->setDrawing(RecordDrawing::painted);
    show({pipelineAlong({{{-120, 54}, {-104, 54}}, {{-120, 50}, {-104, 50}}})});
    static_cast<void>(picture());
    m_map->setSelection(QStringLiteral("R-0"));
    const QImage seen = picture();
    for (const double latitude : {54.0, 50.0}) {
        int height = 0;
        for (int y = -8; y <= 8; ++y) {
            const QColor color = seen.pixelColor(at(latitude, -112) + QPoint(0, y));
            height += color == light(PaletteColor::blue) ? 1 : 0;
        }
        EXPECT_GE(height, 4);
        EXPECT_LE(height, 5);
    }
}

TEST_F(MapBasemapPicture, AFilterThatLeavesNothingLeavesTheBasemap) {
    useBasemap();
    for (const RecordDrawing drawing : {RecordDrawing::painted, RecordDrawing::live}) {
        m_map->setDrawing(drawing);
        m_map->setRecords({});
        const QImage basemap = picture();
        RecordSet records = recordSetOf(
            {facilityAt(54, -112, "refinery"), pipelineAlong({{{-120, 50}, {-104, 50}}})});
        m_map->setRecords(records);
        EXPECT_NE(picture(), basemap);
        records.filtered = std::make_shared<const std::vector<AssetIndex>>();
        m_map->setRecords(records);
        EXPECT_EQ(picture(), basemap);
    }
}

TEST_F(MapBasemapPicture, AnotherStyleKeepsTheCamera) {
    useBasemap();
    const CameraPose pose{coordinateToMapPoint({51, -114}), 1.0 / 3'000, 40, 30};
    m_map->setCamera(pose);
    QImage last = picture();
    for (const char16_t* basemap : {u"satellite", u"standard", u"hybrid", u"Satellite"}) {
        m_map->setProperty("basemap", QString::fromUtf16(basemap));
        const QImage seen = picture();
        EXPECT_NE(seen, last);
        EXPECT_EQ(m_map->resolvedCamera().pose(), pose);
        EXPECT_EQ(m_map->camera(), CameraPosition(pose));
        last = seen;
    }
}

} // namespace
} // namespace vasker
