#include "tests/map/view/MapWindow.h"

#include <functional>
#include <utility>
#include <vector>

namespace vasker {
namespace {

class CountingMap : public MapView {
  public:
    using MapView::componentComplete;
    using MapView::MapView;

    int compositions = 0;

  protected:
    void updatePolish() override {
        ++compositions;
        MapView::updatePolish();
    }
};

class MapControlsTest : public testing::Test {
  protected:
    void SetUp() override {
        m_window.resize(400, 300);
        m_map.setSize({400, 300});
        auto controls = m_map.controls();
        controls.append(&controls, &m_control);
        m_map.componentComplete();
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
        QTest::qWait(100);
    }

    QQuickWindow m_window;
    CountingMap m_map{m_window.contentItem()};
    QQuickItem m_control{&m_map};
};

TEST_F(MapControlsTest, LabelsArePlacedAnewWhenAControlMovesGrowsOrHides) {
    const std::vector<std::pair<const char*, std::function<void()>>> changes{
        {"x", [&] { m_control.setX(10); }},
        {"y", [&] { m_control.setY(10); }},
        {"width", [&] { m_control.setWidth(90); }},
        {"height", [&] { m_control.setHeight(20); }},
        {"opacity", [&] { m_control.setOpacity(0); }},
        {"visible", [&] { m_control.setVisible(false); }}};
    for (const auto& [name, change] : changes) {
        const int before = m_map.compositions;
        change();
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_map.compositions > before; }, 1000)) << name;
        QTest::qWait(100);
    }
}

} // namespace
} // namespace vasker
