// The map steered by keys.

#include "tests/map/view/MapWindow.h"

#include <QKeyEvent>

namespace vasker {
namespace {

class MapKeys : public MapWindow {
  protected:
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&m_window, key, modifiers);
        rest();
    }
    void repeat(Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&m_window, &event);
    }
};

TEST_F(MapKeys, AnArrowPansAStep) {
    const MapPoint center = camera().center();
    key(Qt::Key_Right);
    expectPlaceAt(center, {400 - 100, 300});
    key(Qt::Key_Down);
    expectPlaceAt(center, {300, 200});
    key(Qt::Key_Left);
    key(Qt::Key_Up);
    expectPlaceAt(center, {400, 300});
}

TEST_F(MapKeys, PlusAndMinusZoomOnAnyKeyboard) {
    const double scale = camera().scale();
    for (const Qt::Key each : {Qt::Key_Plus, Qt::Key_Equal}) {
        key(each, each == Qt::Key_Plus ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_NEAR(camera().scale() / scale, 2, 1e-6);
        key(Qt::Key_Minus, each == Qt::Key_Plus ? Qt::KeypadModifier : Qt::NoModifier);
        EXPECT_NEAR(camera().scale() / scale, 1, 1e-6);
    }
}

TEST_F(MapKeys, ShiftAndArrowsTurnAndLean) {
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_NEAR(camera().pose().bearing, 15, 1e-6);
    key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_NEAR(camera().pose().pitch, 10, 1e-6);
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_NEAR(std::remainder(camera().pose().bearing, 360), 0, 1e-6);
    EXPECT_NEAR(camera().pose().pitch, 0, 1e-6);
}

TEST_F(MapKeys, NSetsTheMapUpright) {
    CameraPose pose = camera().pose();
    pose.bearing = 200;
    pose.pitch = 40;
    m_map->setCamera(pose);
    key(Qt::Key_N);
    EXPECT_TRUE(camera().isUpright());
}

TEST_F(MapKeys, HomeAsksForTheOverview) {
    const QSignalSpy requests(m_map, &MapView::overviewRequested);
    key(Qt::Key_Home);
    EXPECT_EQ(requests.size(), 1);
}

TEST_F(MapKeys, EnterAndSpacePickWhatIsInTheMiddle) {
    const QSignalSpy picks(m_map, &MapView::picked);
    key(Qt::Key_Return);
    key(Qt::Key_Space);
    ASSERT_EQ(picks.size(), 2);
    EXPECT_EQ(picks[0][0].toString(), QStringLiteral("R-0"));
    EXPECT_EQ(picks[1][0].toString(), QStringLiteral("R-0"));
}

TEST_F(MapKeys, TheMenuKeyAsksForTheMenuOfWhatIsInTheMiddle) {
    const QSignalSpy menus(m_map, &MapView::menuRequested);
    key(Qt::Key_Menu);
    key(Qt::Key_F10, Qt::ShiftModifier);
    key(Qt::Key_F10);
    ASSERT_EQ(menus.size(), 2);
    EXPECT_EQ(menus[1][0].toString(), QStringLiteral("R-0"));
}

TEST_F(MapKeys, AHeldKeyMovesOnUntilItIsReleased) {
    const MapPoint center = camera().center();
    QTest::keyPress(&m_window, Qt::Key_Right);
    repeat(Qt::Key_Right);
    const auto isFar = [&] { return camera().worldToScreen(center).x < 400 - 150; };
    EXPECT_TRUE(QTest::qWaitFor(isFar, 10'000));
    EXPECT_TRUE(m_map->isMoving());
    QTest::keyRelease(&m_window, Qt::Key_Right);
    rest();
    EXPECT_NEAR(camera().worldToScreen(center).y, 300, 1e-4);
}

TEST_F(MapKeys, AKeyHeldWhileTheFocusLeavesLetsGo) {
    QTest::keyPress(&m_window, Qt::Key_Right);
    EXPECT_TRUE(m_map->isMoving());
    m_map->setFocus(false);
    rest();
}

TEST_F(MapKeys, ShiftMayBeReleasedBeforeTheArrow) {
    QTest::keyPress(&m_window, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyRelease(&m_window, Qt::Key_Right);
    rest();
    EXPECT_NEAR(camera().pose().bearing, 15, 1e-6);
}

TEST_F(MapKeys, WithReducedMotionEveryPressAndRepeatIsAStepAtOnce) {
    m_map->setProperty("reducedMotion", true);
    const MapPoint center = camera().center();
    QTest::keyPress(&m_window, Qt::Key_Right);
    expectPlaceAt(center, {300, 300});
    repeat(Qt::Key_Right);
    expectPlaceAt(center, {200, 300});
    EXPECT_FALSE(m_map->isMoving());
}

TEST_F(MapKeys, KeysWithControlAreLeftToTheWindow) {
    key(Qt::Key_N, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(m_map->camera(), CameraPosition(canadaOverview));
}

} // namespace
} // namespace vasker
