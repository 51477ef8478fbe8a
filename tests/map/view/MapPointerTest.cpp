// The mouse and the wheel on the map.

#include "tests/map/view/MapWindow.h"

#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QWheelEvent>

namespace vasker {
namespace {

class MapPointer : public MapWindow {
  protected:
    void
    wheel(QPointF place, int angle, QPoint pixels = {}, Qt::ScrollPhase phase = Qt::NoScrollPhase) {
        QWheelEvent event(place, place, pixels, {0, angle}, {}, {}, phase, false);
        QCoreApplication::sendEvent(&m_window, &event);
    }
    void gesture(Qt::NativeGestureType type, double value, QPointF place) {
        QNativeGestureEvent event(
            type, QPointingDevice::primaryPointingDevice(), 2, place, place, place, value, {});
        QCoreApplication::sendEvent(&m_window, &event);
    }
    void drag(Qt::MouseButton button, QPointF from, QPointF to, Qt::KeyboardModifiers keys = {}) {
        mouse(QEvent::MouseButtonPress, from, 1000, button, keys);
        mouse(QEvent::MouseMove, (from + to) / 2, 1500, button, keys);
        mouse(QEvent::MouseMove, to, 2000, button, keys);
        mouse(QEvent::MouseButtonRelease, to, 3000, button, keys);
    }
};

TEST_F(MapPointer, TheMapFollowsTheDragAndStaysWhereThePointerRested) {
    const MapPoint point = camera().screenToWorld({200, 300});
    drag(Qt::LeftButton, {200, 300}, {320, 340});
    EXPECT_FALSE(m_map->isMoving());
    expectPlaceAt(point, {320, 340});
}

TEST_F(MapPointer, AQuickDragGoesOnAndComesToRest) {
    const MapPoint point = camera().screenToWorld({200, 300});
    press({200, 300}, 1000);
    for (int step = 1; step <= 10; ++step) {
        moveTo({200.0 + 12 * step, 300}, 1000 + 10 * static_cast<quint64>(step));
    }
    release({320, 300}, 1105);
    EXPECT_TRUE(m_map->isMoving());
    rest();
    EXPECT_GT(camera().worldToScreen(point).x, 400); // about 0.325 s * 1 px/ms farther
    EXPECT_LT(camera().worldToScreen(point).x, 750);
    EXPECT_NEAR(camera().worldToScreen(point).y, 300, 1e-3);
}

TEST_F(MapPointer, APressCatchesTheMovingMap) {
    press({200, 300}, 1000);
    moveTo({260, 300}, 1040);
    moveTo({320, 300}, 1080);
    release({320, 300}, 1085);
    ASSERT_TRUE(m_map->isMoving());
    press({400, 300}, 1200);
    EXPECT_FALSE(m_map->isMoving());
}

TEST_F(MapPointer, ACameraSetFromOutsideEndsTheMotion) {
    wheel({200, 200}, 120);
    ASSERT_TRUE(m_map->isMoving());
    m_map->setCamera(MapRect{5e7, 8e7, 1e6, 1e6});
    EXPECT_FALSE(m_map->isMoving());
    EXPECT_EQ(m_map->camera(), CameraPosition(MapRect{5e7, 8e7, 1e6, 1e6}));
}

TEST_F(MapPointer, WithReducedMotionADragHasNoInertia) {
    m_map->setProperty("reducedMotion", true);
    press({200, 300}, 1000);
    moveTo({260, 300}, 1040);
    moveTo({320, 300}, 1080);
    release({320, 300}, 1085);
    EXPECT_FALSE(m_map->isMoving());
}

TEST_F(MapPointer, NotchesOfTheWheelAddUpAtThePointer) {
    const double scale = camera().scale();
    const MapPoint point = camera().screenToWorld({650, 150});
    wheel({650, 150}, 120);
    wheel({650, 150}, 120);
    EXPECT_TRUE(m_map->isMoving());
    rest();
    EXPECT_NEAR(camera().scale() / scale, 2, 1e-6);
    expectPlaceAt(point, {650, 150});
}

TEST_F(MapPointer, WithReducedMotionANotchIsThereAtOnce) {
    m_map->setProperty("reducedMotion", true);
    const double scale = camera().scale();
    wheel({650, 150}, 240);
    EXPECT_FALSE(m_map->isMoving());
    EXPECT_NEAR(camera().scale() / scale, 2, 1e-9);
}

TEST_F(MapPointer, ATouchpadZoomsWithTheFingers) {
    const double scale = camera().scale();
    const MapPoint point = camera().screenToWorld({650, 150});
    wheel({650, 150}, 40, {0, 150}, Qt::ScrollUpdate);
    EXPECT_FALSE(m_map->isMoving());
    EXPECT_NEAR(camera().scale() / scale, 2, 1e-9);
    expectPlaceAt(point, {650, 150});
}

TEST_F(MapPointer, APinchOnATouchpadZoomsAndTurns) {
    const double scale = camera().scale();
    const MapPoint point = camera().screenToWorld({650, 150});
    gesture(Qt::BeginNativeGesture, 0, {650, 150});
    gesture(Qt::ZoomNativeGesture, 0.5, {650, 150});
    gesture(Qt::RotateNativeGesture, 30, {650, 150});
    EXPECT_NEAR(camera().scale() / scale, 1.5, 1e-9);
    EXPECT_NEAR(camera().pose().bearing, 330, 1e-9);
    expectPlaceAt(point, {650, 150});
    gesture(Qt::EndNativeGesture, 0, {650, 150});
    EXPECT_FALSE(m_map->isMoving());
}

TEST_F(MapPointer, TheSecondButtonTurnsAndLeans) {
    const QSignalSpy picks(m_map, &MapView::picked);
    drag(Qt::RightButton, {200, 300}, {260, 250});
    EXPECT_NEAR(camera().pose().bearing, 30, 1e-9);
    EXPECT_NEAR(camera().pose().pitch, 20, 1e-9);
    EXPECT_EQ(picks.size(), 0);
}

TEST_F(MapPointer, ControlAndTheFirstButtonTurnAndLean) {
    drag(Qt::LeftButton, {200, 300}, {260, 250}, Qt::ControlModifier);
    EXPECT_NEAR(camera().pose().bearing, 30, 1e-9);
    EXPECT_NEAR(camera().pose().pitch, 20, 1e-9);
}

TEST_F(MapPointer, ATurnThatEndsNearlyUprightIsSetUpright) {
    drag(Qt::RightButton, {200, 300}, {206, 296});
    rest();
    EXPECT_TRUE(camera().isUpright());
    EXPECT_NE(m_map->camera(), CameraPosition(canadaOverview));
}

TEST_F(MapPointer, ADoubleClickComesNearerAndGoesAwayWithShiftOrTheSecondButton) {
    const double scale = camera().scale();
    const MapPoint point = camera().screenToWorld({650, 150});
    const auto doubleClick = [&](Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
        QTest::mouseDClick(&m_window, button, modifiers, {650, 150});
        rest();
    };
    doubleClick(Qt::LeftButton, {});
    EXPECT_NEAR(camera().scale() / scale, 2, 1e-6);
    expectPlaceAt(point, {650, 150});
    doubleClick(Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_NEAR(camera().scale() / scale, 1, 1e-6);
    doubleClick(Qt::LeftButton, {});
    doubleClick(Qt::RightButton, {});
    EXPECT_NEAR(camera().scale() / scale, 1, 1e-6);
}

TEST_F(MapPointer, ADoubleClickOnARecordPicksItOnceAndDoesNotZoom) {
    const QSignalSpy picks(m_map, &MapView::picked);
    QTest::mouseDClick(&m_window, Qt::LeftButton, {}, {400, 300 - 18});
    ASSERT_EQ(picks.size(), 1);
    EXPECT_EQ(picks[0][0].toString(), QStringLiteral("R-0"));
    EXPECT_FALSE(m_map->isMoving());
    EXPECT_EQ(m_map->camera(), CameraPosition(canadaOverview));
}

TEST_F(MapPointer, ARecordIsHoveredUntilThePointerLeavesTheMap) {
    const QPointF onThePin(400, 290);
    const auto hovers = [&](const char* id) {
        return QTest::qWaitFor(
            [&] { return m_map->hover()->recordId() == QString::fromLatin1(id); });
    };
    QHoverEvent over(QEvent::HoverMove, onThePin, onThePin, {0, 0});
    QCoreApplication::sendEvent(m_map, &over);
    EXPECT_TRUE(hovers("R-0"));
    QHoverEvent gone(QEvent::HoverLeave, {-1, -1}, {-1, -1}, onThePin);
    QCoreApplication::sendEvent(m_map, &gone);
    EXPECT_TRUE(hovers(""));
}

TEST_F(MapPointer, NoRecordIsHoveredWhileTheMapIsDraggedOrRotated) {
    const QPointF onThePin(400, 290);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        QHoverEvent over(QEvent::HoverMove, onThePin, onThePin, {0, 0});
        QCoreApplication::sendEvent(m_map, &over);
        ASSERT_EQ(m_map->hover()->recordId(), QStringLiteral("R-0"));
        mouse(QEvent::MouseButtonPress, onThePin, 1000, button);
        EXPECT_EQ(m_map->hover()->recordId(), QStringLiteral("R-0"));
        mouse(QEvent::MouseMove, onThePin + QPointF(40, 0), 1040, button);
        EXPECT_EQ(m_map->hover()->recordId(), QString());
        mouse(QEvent::MouseButtonRelease, onThePin + QPointF(40, 0), 2000, button);
        m_map->setCamera(canadaOverview);
    }
}

TEST_F(MapPointer, TheSecondaryButtonAsksForTheMenuOfARecordAndPicksNothing) {
    const QSignalSpy picks(m_map, &MapView::picked);
    const QSignalSpy menus(m_map, &MapView::menuRequested);
    QTest::mouseClick(&m_window, Qt::RightButton, {}, {400, 282});
    QTest::mouseClick(&m_window, Qt::RightButton, {}, {600, 100}); // no record there
    ASSERT_EQ(menus.size(), 1);
    EXPECT_EQ(menus[0][0].toString(), QStringLiteral("R-0"));
    EXPECT_EQ(menus[0][1].toPointF(), QPointF(400, 282));
    EXPECT_TRUE(picks.isEmpty());
}

TEST_F(MapPointer, ARotationAsksForNoMenu) {
    const QSignalSpy menus(m_map, &MapView::menuRequested);
    drag(Qt::RightButton, {400, 282}, {460, 232});
    EXPECT_TRUE(menus.isEmpty());
}

TEST_F(MapPointer, ATremblingClickIsAClick) {
    const QSignalSpy picks(m_map, &MapView::picked);
    press({400, 282}, 1000);
    moveTo({402, 283}, 1010);
    release({402, 283}, 1020);
    ASSERT_EQ(picks.size(), 1);
    EXPECT_EQ(picks[0][0].toString(), QStringLiteral("R-0"));
    EXPECT_EQ(m_map->camera(), CameraPosition(canadaOverview));
}

TEST_F(MapPointer, TheRegionIsCentredInThePartThatNothingCovers) {
    m_map->setProperty("coveredBelow", 60);
    m_map->setProperty("coveredRight", 200);
    expectPlaceAt(coordinateToMapPoint({54, -112}), {300, 270});
}

} // namespace
} // namespace vasker
