#pragma once
// A map of 800 by 600 in a window of its own, as its user moves it: what it asks for, it gets.

#include "map/view/MapView.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace vasker {

class MapWindow : public testing::Test {
  protected:
    void SetUp() override {
        m_window.resize(800, 600);
        m_map = new MapView(m_window.contentItem());
        m_map->setSize({800, 600});
        QObject::connect(m_map, &MapView::moved, m_map, &MapView::setCamera);
        m_map->setRecords(recordSetOf({facilityAt(54, -112, "refinery")}));
        m_window.show();
        m_window.requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_map->forceActiveFocus();
        static_cast<void>(m_window.grabWindow()); // what is drawn can be hit
    }

    [[nodiscard]] Camera camera() const { return m_map->resolvedCamera(); }
    /// Lets the map come to rest.
    void rest() {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !m_map->isMoving(); }, 10'000));
    }
    /// A mouse event at a time of our own choosing.
    void mouse(QEvent::Type type,
               QPointF place,
               quint64 milliseconds,
               Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const bool isMove = type == QEvent::MouseMove;
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type,
                          place,
                          place,
                          isMove ? Qt::NoButton : button,
                          isRelease ? Qt::NoButton : button,
                          modifiers);
        event.setTimestamp(milliseconds);
        QCoreApplication::sendEvent(&m_window, &event);
    }
    void press(QPointF place, quint64 milliseconds) {
        mouse(QEvent::MouseButtonPress, place, milliseconds);
    }
    void moveTo(QPointF place, quint64 milliseconds) {
        mouse(QEvent::MouseMove, place, milliseconds);
    }
    void release(QPointF place, quint64 milliseconds) {
        mouse(QEvent::MouseButtonRelease, place, milliseconds);
    }
    void expectPlaceAt(MapPoint point, ScreenPoint place) const {
        const ScreenPoint seen = camera().worldToScreen(point);
        EXPECT_NEAR(seen.x, place.x, 1e-4);
        EXPECT_NEAR(seen.y, place.y, 1e-4);
    }

    QQuickWindow m_window;
    MapView* m_map = nullptr;
};

} // namespace vasker
