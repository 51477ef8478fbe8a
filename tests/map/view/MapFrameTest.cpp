// What the map looks like: the picture of a real window, drawn by OpenGL or painted.

#include "map/style/MapTheme.h"
#include "map/view/MapView.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace vasker {
namespace {

class MapFrame : public testing::Test {
  protected:
    void SetUp() override {
        m_window.resize(800, 600);
        m_map = new MapView(m_window.contentItem());
        m_map->setSize({800, 600});
        QObject::connect(m_map, &MapView::moved, m_map, &MapView::setCamera);
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
        ASSERT_EQ(m_window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software,
                  qgetenv("QT_QUICK_BACKEND") == "software");
    }

    void show(std::vector<OpenMapRelease::Asset> assets) {
        m_map->setRecords(recordSetOf(std::move(assets)));
    }
    [[nodiscard]] static QPoint at(double latitude, double longitude) {
        const ScreenPoint point = Camera(canadaOverview, {800, 600})
                                      .worldToScreen(coordinateToMapPoint({latitude, longitude}));
        return {static_cast<int>(std::lround(point.x)), static_cast<int>(std::lround(point.y))};
    }
    QColor colorAt(QPoint place) { return m_window.grabWindow().pixelColor(place); }

    QQuickWindow m_window;
    MapView* m_map = nullptr;
};

QColor lightColor(PaletteColor color) {
    return colorValue(color, ColorScheme::light);
}

TEST_F(MapFrame, AFacilityStandsAsAPinInTheColorOfItsKind) {
    show({facilityAt(54, -112, "refinery")});
    EXPECT_EQ(colorAt(at(54, -112) + QPoint(-8, -18)), lightColor(PaletteColor::red));
    EXPECT_EQ(colorAt(at(54, -112) + QPoint(60, 30)), mapTheme(BasemapTheme::light).background);
}

TEST_F(MapFrame, ACrowdedFacilityIsADotInTheColorOfItsKind) {
    show({facilityAt(54, -112, "refinery"),
          facilityAt(53.5, -112, "gas_plant"),
          facilityAt(50, -100, "gas_plant")});
    EXPECT_EQ(colorAt(at(53.5, -112)), lightColor(PaletteColor::blue));
}

TEST_F(MapFrame, APipelineIsALineTwoPixelsWide) {
    show({pipelineAlong({{{-120, 54}, {-104, 54}}})});
    const QImage picture = m_window.grabWindow();
    const QPoint middle = at(54, -112);
    int height = 0;
    for (int y = -6; y <= 6; ++y) {
        height +=
            picture.pixelColor(middle + QPoint(0, y)) == lightColor(PaletteColor::yellow) ? 1 : 0;
    }
    EXPECT_GE(height, 1);
    EXPECT_LE(height, 2);
}

TEST_F(MapFrame, ThePickedPipelineIsBlueAndFivePixelsWide) {
    show({pipelineAlong({{{-120, 54}, {-104, 54}}, {{-120, 50}, {-104, 50}}})});
    m_map->setSelection(QStringLiteral("R-0"));
    const QImage picture = m_window.grabWindow();
    for (const double latitude : {54.0, 50.0}) { // every line of the record
        int height = 0;
        for (int y = -8; y <= 8; ++y) {
            const QColor color = picture.pixelColor(at(latitude, -112) + QPoint(0, y));
            height += color == lightColor(PaletteColor::blue) ? 1 : 0;
        }
        EXPECT_GE(height, 4);
        EXPECT_LE(height, 5);
    }
}

TEST_F(MapFrame, PickingAFacilityChangesNoLine) {
    show({pipelineAlong({{{-120, 54}, {-104, 54}}}), facilityAt(47, -112, "storage")});
    const QColor before = colorAt(at(54, -108));
    m_map->setSelection(QStringLiteral("R-1"));
    EXPECT_EQ(colorAt(at(54, -108)), before);
}

TEST_F(MapFrame, AFilterThatLeavesNothingLeavesTheBasemap) {
    RecordSet records = recordSetOf({facilityAt(54, -112, "refinery")});
    records.filtered = std::make_shared<const std::vector<AssetIndex>>();
    m_map->setRecords(records);
    EXPECT_EQ(colorAt(at(54, -112) + QPoint(-8, -18)), mapTheme(BasemapTheme::light).background);
}

TEST_F(MapFrame, TheDarkMapUsesTheBrightColors) {
    show({facilityAt(54, -112, "refinery")});
    m_map->setProperty("dark", true);
    EXPECT_EQ(colorAt(at(54, -112) + QPoint(-8, -18)),
              colorValue(PaletteColor::red, ColorScheme::dark));
    EXPECT_EQ(colorAt({40, 40}), mapTheme(BasemapTheme::dark).background);
}

TEST_F(MapFrame, AClickOnAPinPicksItsRecordAndOneOnTheBasemapNone) {
    show({facilityAt(54, -112, "refinery")});
    const QSignalSpy picks(m_map, &MapView::picked);
    static_cast<void>(m_window.grabWindow());
    QTest::mouseClick(&m_window, Qt::LeftButton, {}, at(54, -112) + QPoint(0, -18));
    QTest::mouseClick(&m_window, Qt::LeftButton, {}, {40, 500});
    ASSERT_EQ(picks.size(), 2);
    EXPECT_EQ(picks[0][0].toString(), QStringLiteral("R-0"));
    EXPECT_EQ(picks[1][0].toString(), QString());
}

TEST_F(MapFrame, ADragMovesTheMapAndPicksNothing) {
    show({facilityAt(54, -112, "refinery")});
    const QSignalSpy picks(m_map, &MapView::picked);
    static_cast<void>(m_window.grabWindow());
    QTest::mousePress(&m_window, Qt::LeftButton, {}, {100, 500});
    QTest::mouseMove(&m_window, {150, 520});
    QTest::mouseMove(&m_window, {220, 540});
    QTest::mouseRelease(&m_window, Qt::LeftButton, {}, {220, 540});
    EXPECT_EQ(picks.size(), 0);
    EXPECT_EQ(colorAt(at(54, -112) + QPoint(120, 40) + QPoint(-8, -18)),
              lightColor(PaletteColor::red));
}

} // namespace
} // namespace vasker
