#include "map/view/CameraReadout.h"

#include "tests/map/view/MapWindow.h"

namespace vasker {
namespace {

using CameraReadoutOfAMap = MapWindow;

TEST(DistanceText, IsInMetresBelowAKilometre) {
    const QLocale english(QStringLiteral("en_CA"));
    EXPECT_EQ(distanceText(5, english), QStringLiteral("5 m"));
    EXPECT_EQ(distanceText(500, english), QStringLiteral("500 m"));
    EXPECT_EQ(distanceText(1000, english), QStringLiteral("1 km"));
    EXPECT_EQ(distanceText(400'000, english), QStringLiteral("400 km"));
    EXPECT_EQ(distanceText(5'000'000, english), QStringLiteral("5,000 km"));
}

TEST(DistanceText, GroupsDigitsAsTheLanguageDoes) {
    const QString text = distanceText(5'000'000, QLocale(QStringLiteral("fr_CA")));
    EXPECT_EQ(text, QStringLiteral("5\u00a0000 km"));
}

TEST_F(CameraReadoutOfAMap, SaysWhatTheCompassAndTheScaleShow) {
    CameraReadout readout;
    readout.setMap(m_map);
    EXPECT_TRUE(readout.isUpright());
    EXPECT_EQ(readout.barText(), QStringLiteral("500 km"));
    EXPECT_GT(readout.barLength(), 75);
    EXPECT_LE(readout.barLength(), 150);
    EXPECT_FALSE(readout.isNearest());
    EXPECT_FALSE(readout.isFarthest());

    const QSignalSpy changes(&readout, &CameraReadout::changed);
    CameraPose pose = camera().pose();
    pose.bearing = 120;
    pose.pitch = 30;
    pose.scale = Camera::maximumScale;
    m_map->setCamera(pose);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(readout.bearing(), 120);
    EXPECT_EQ(readout.pitch(), 30);
    EXPECT_FALSE(readout.isUpright());
    EXPECT_TRUE(readout.isNearest());
    EXPECT_EQ(readout.barText(), QStringLiteral("2 m"));
}

TEST_F(CameraReadoutOfAMap, SaysWhenTheWholeWorldIsInView) {
    CameraReadout readout;
    readout.setMap(m_map);
    m_map->setCamera(MapRect{0, 0, worldSize, worldSize});
    EXPECT_TRUE(readout.isFarthest());
}

TEST_F(CameraReadoutOfAMap, FollowsTheSizeAndOutlivesTheMap) {
    CameraReadout readout;
    readout.setMap(m_map);
    const double before = readout.barLength();
    m_map->setSize({500, 400});
    EXPECT_NE(readout.barLength(), before);
    delete m_map;
    EXPECT_EQ(readout.map(), nullptr);
}

} // namespace
} // namespace vasker
