// Fingers on the map.

#include "tests/map/view/MapWindow.h"

#include <QPointingDevice>

#include <memory>

namespace vasker {
namespace {

class MapTouch : public MapWindow {
  protected:
    void SetUp() override {
        qputenv("QML_NO_TOUCH_COMPRESSION", "1"); // every move counts, not one of each frame
        MapWindow::SetUp();
    }
    void touch(QPoint place) {
        QTest::touchEvent(&m_window, m_screen.get()).press(1, place, &m_window);
    }
    void slide(QPoint place) {
        QTest::touchEvent(&m_window, m_screen.get()).move(1, place, &m_window);
    }
    void lift(QPoint place) {
        QTest::touchEvent(&m_window, m_screen.get()).release(1, place, &m_window);
    }
    void tap(QPoint place) {
        touch(place);
        lift(place);
    }

    std::unique_ptr<QPointingDevice> m_screen{QTest::createTouchDevice()};
};

TEST_F(MapTouch, ATapPicks) {
    const QSignalSpy picks(m_map, &MapView::picked);
    touch({400, 282});
    slide({405, 286});
    lift({405, 286});
    ASSERT_EQ(picks.size(), 1);
    EXPECT_EQ(picks[0][0].toString(), QStringLiteral("R-0"));
}

TEST_F(MapTouch, AFingerDragsTheMap) {
    const QSignalSpy picks(m_map, &MapView::picked);
    const MapPoint point = camera().screenToWorld({200, 300});
    touch({200, 300});
    slide({240, 310});
    slide({300, 330});
    expectPlaceAt(point, {300, 330});
    lift({300, 330});
    EXPECT_EQ(picks.size(), 0);
}

TEST_F(MapTouch, TwoTapsComeNearer) {
    const double scale = camera().scale();
    const QSignalSpy picks(m_map, &MapView::picked);
    tap({150, 500});
    tap({152, 501});
    rest();
    EXPECT_NEAR(camera().scale() / scale, 2, 1e-6);
    EXPECT_EQ(picks.size(), 1);
}

TEST_F(MapTouch, TwoFingersZoomAndRotateAndOneDragsOn) {
    const QSignalSpy picks(m_map, &MapView::picked);
    const double scale = camera().scale();
    touch({300, 300});
    QTest::touchEvent(&m_window, m_screen.get())
        .move(1, QPoint(300, 300), &m_window)
        .press(2, QPoint(500, 300), &m_window);
    QTest::touchEvent(&m_window, m_screen.get())
        .move(1, QPoint(200, 300), &m_window)
        .move(2, QPoint(600, 300), &m_window);
    EXPECT_NEAR(camera().scale() / scale, 2, 1e-6);
    EXPECT_TRUE(camera().isUpright());
    QTest::touchEvent(&m_window, m_screen.get())
        .move(1, QPoint(400, 100), &m_window)
        .move(2, QPoint(400, 500), &m_window);
    EXPECT_NEAR(camera().pose().bearing, 360 - 82, 1e-6); // 90 less what a zoom may twist
    QTest::touchEvent(&m_window, m_screen.get())
        .move(1, QPoint(400, 100), &m_window)
        .release(2, QPoint(400, 500), &m_window);
    const MapPoint point = camera().screenToWorld({400, 100});
    slide({450, 180});
    expectPlaceAt(point, {450, 180});
    lift({450, 180});
    EXPECT_EQ(picks.size(), 0);
}

} // namespace
} // namespace vasker
