// The map explored by keys.

#include "map/exploration/MapExplorer.h"

#include "map/exploration/NearestRecord.h"
#include "tests/map/view/MapWindow.h"

#include <QStringList>

namespace vasker {
namespace {

OpenMapRelease::Asset named(const char* name, double latitude, double longitude) {
    OpenMapRelease::Asset asset = facilityAt(latitude, longitude, "gas_plant");
    asset.name = name;
    return asset;
}

class MapExploration : public MapWindow {
  protected:
    void SetUp() override {
        MapWindow::SetUp();
        // In view all but the last: 10 pixels are about 30 km.
        m_map->setRecords(recordSetOf({named("Middle", 54, -112),
                                       named("East", 54, -110),
                                       named("North", 58, -112),
                                       named("Far", 54, 60)}));
        m_map->setCamera(CoordinateRegion{{54, -112}, 20, 20});
        m_explorer.setMap(m_map);
        QObject::connect(&m_explorer, &MapExplorer::spoken, m_map, [this](const QString& text) {
            m_spoken.append(text);
        });
        QObject::connect(&m_explorer, &MapExplorer::moved, m_map, &MapView::setCamera);
        QObject::connect(&m_explorer, &MapExplorer::picked, m_map, [this](const QString& id) {
            m_picked.append(id);
        });
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&m_window, key, modifiers);
    }
    static QString text(const char* utf8) { return QString::fromUtf8(utf8); }
    void expectSpoken(const QStringList& expected) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_spoken.size() >= expected.size(); }));
        EXPECT_EQ(m_spoken, expected);
    }

    MapExplorer m_explorer;
    QStringList m_spoken;
    QStringList m_picked;
};

TEST_F(MapExploration, CtrlAndAnArrowGoToTheNearestRecordThere) {
    key(Qt::Key_Right, Qt::ControlModifier);
    expectSpoken({text("East, gas plant, 131 km east")});
    expectPlaceAt(coordinateToMapPoint({54, -110}), {400, 300});
    EXPECT_EQ(m_map->hover()->recordId(), text("R-1"));
    key(Qt::Key_Left, Qt::ControlModifier);
    expectSpoken({text("East, gas plant, 131 km east"), text("Middle, gas plant, 131 km west")});
}

TEST_F(MapExploration, APointerThatRestsTakesNoRecordFromTheKeys) {
    QTest::mouseMove(&m_window, {200, 200});
    key(Qt::Key_R);
    EXPECT_EQ(m_map->hover()->recordId(), text("R-0"));
    // As the window tells of it with each frame.
    QHoverEvent rest(QEvent::HoverMove, {200, 200}, {200, 200}, {200, 200});
    QCoreApplication::sendEvent(m_map, &rest);
    EXPECT_EQ(m_map->hover()->recordId(), text("R-0"));
    QTest::mouseMove(&m_window, {210, 200});
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_map->hover()->recordId().isEmpty(); }));
}

TEST_F(MapExploration, WhereThereIsNoneItSaysSo) {
    const CameraPosition before = m_map->camera();
    key(Qt::Key_Down, Qt::ControlModifier);
    expectSpoken({text("No record in this direction")});
    EXPECT_EQ(m_map->camera(), before);
}

TEST_F(MapExploration, RGoesThroughTheRecordsInViewByDistance) {
    const CameraPosition before = m_map->camera();
    for (int i = 0; i < 4; ++i) {
        key(Qt::Key_R);
    }
    expectSpoken({text("Middle, gas plant, here"),
                  text("East, gas plant, 131 km east"),
                  text("North, gas plant, 445 km north"),
                  text("Middle, gas plant, here")});
    EXPECT_EQ(m_map->camera(), before);
    m_spoken.clear();
    key(Qt::Key_R, Qt::ShiftModifier);
    key(Qt::Key_R, Qt::ShiftModifier);
    expectSpoken({text("North, gas plant, 445 km north"), text("East, gas plant, 131 km east")});
}

TEST_F(MapExploration, ShiftAndRBeginAtTheFarthest) {
    key(Qt::Key_R, Qt::ShiftModifier);
    expectSpoken({text("North, gas plant, 445 km north")});
}

TEST_F(MapExploration, RSaysWhereNoRecordIsInView) {
    m_map->setCamera(CoordinateRegion{{54, -150}, 4, 4});
    key(Qt::Key_R);
    key(Qt::Key_R, Qt::ShiftModifier);
    expectSpoken({text("no record in view"), text("no record in view")});
    EXPECT_TRUE(m_map->hover()->recordId().isEmpty());
}

TEST_F(MapExploration, EnterOpensTheRecordThatItStandsAt) {
    const QSignalSpy middle(m_map, &MapView::picked);
    key(Qt::Key_R);
    key(Qt::Key_R);
    key(Qt::Key_Return);
    EXPECT_EQ(m_picked, QStringList{text("R-1")});
    EXPECT_TRUE(middle.isEmpty());
}

TEST_F(MapExploration, AfterTheMapHasMovedEnterPicksItsMiddleAgain) {
    const QSignalSpy middle(m_map, &MapView::picked);
    key(Qt::Key_R);
    key(Qt::Key_R);
    key(Qt::Key_Left);
    rest();
    EXPECT_TRUE(m_map->hover()->recordId().isEmpty());
    key(Qt::Key_Return);
    EXPECT_TRUE(m_picked.isEmpty());
    EXPECT_EQ(middle.size(), 1);
}

TEST_F(MapExploration, AMapThatLosesTheKeysStandsAtNoRecord) {
    const QSignalSpy middle(m_map, &MapView::picked);
    key(Qt::Key_R);
    QQuickItem other(m_window.contentItem());
    other.forceActiveFocus();
    m_map->forceActiveFocus();
    key(Qt::Key_Return);
    EXPECT_TRUE(m_picked.isEmpty());
    EXPECT_EQ(middle.size(), 1);
}

TEST_F(MapExploration, AfterOtherRecordsHaveComeItStandsAtNone) {
    key(Qt::Key_R);
    key(Qt::Key_R);
    m_map->setRecords(recordSetOf({named("Other", 54, -110)}));
    EXPECT_TRUE(m_map->hover()->recordId().isEmpty());
    key(Qt::Key_Return);
    EXPECT_TRUE(m_picked.isEmpty());
    key(Qt::Key_R);
    EXPECT_EQ(m_spoken.last(), text("Other, gas plant, 131 km east"));
}

TEST_F(MapExploration, TheArrowKeysOfTheKeypadGoToRecordsToo) {
    key(Qt::Key_Right, Qt::ControlModifier | Qt::KeypadModifier);
    expectSpoken({text("East, gas plant, 131 km east")});
}

TEST_F(MapExploration, EnterThatIsHeldDownOpensTheRecordOnce) {
    key(Qt::Key_R);
    QKeyEvent repeated(
        QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    key(Qt::Key_Return);
    QCoreApplication::sendEvent(m_map, &repeated);
    EXPECT_EQ(m_picked, QStringList{text("R-0")});
}

TEST_F(MapExploration, AMapMovedByKeysTellsWhereItIs) {
    m_map->setCamera(CoordinateRegion{{54, -150}, 20, 20});
    key(Qt::Key_Plus, Qt::ShiftModifier);
    expectSpoken({text("54.0 degrees north, 150.0 degrees west, no record in view")});
}

TEST_F(MapExploration, ARecordAtTheCentreIsToldWithIt) {
    key(Qt::Key_Plus, Qt::ShiftModifier);
    expectSpoken({text("54.0 degrees north, 112.0 degrees west, 3 records in view"),
                  text("Middle, gas plant, here")});
    key(Qt::Key_Return);
    EXPECT_EQ(m_picked, QStringList{text("R-0")});
}

TEST_F(MapExploration, AMapMovedByThePointerIsSilent) {
    key(Qt::Key_Escape);
    QTest::mousePress(&m_window, Qt::LeftButton, {}, {400, 300});
    m_map->setCamera(CoordinateRegion{{54, -150}, 20, 20});
    QTest::qWait(800);
    EXPECT_TRUE(m_spoken.isEmpty());
}

TEST_F(MapExploration, OtherKeysStayWithTheMap) {
    const QSignalSpy requests(m_map, &MapView::overviewRequested);
    key(Qt::Key_Home);
    EXPECT_EQ(requests.size(), 1);
}

TEST_F(MapExploration, AViewWithoutRecordsNamesTheNearest) {
    NearestRecord nearest;
    nearest.setMap(m_map);
    QTest::qWait(400);
    EXPECT_TRUE(nearest.text().isEmpty());
    m_map->setCamera(CoordinateRegion{{54, -130}, 4, 4});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !nearest.text().isEmpty(); }));
    EXPECT_EQ(nearest.text(), text("Nearest: Middle, 1,173 km east"));
    EXPECT_NEAR(nearest.degrees(), 82.7, 0.1);
    const QSignalSpy moves(&nearest, &NearestRecord::moved);
    nearest.go();
    ASSERT_EQ(moves.size(), 1);
    EXPECT_EQ(moves[0][0].value<CameraPosition>(),
              CameraPosition(CoordinateRegion{{54, -112}, 0.4, 0.6}));
}

TEST_F(MapExploration, WhereNoRecordIsShownThereIsNoNearest) {
    NearestRecord nearest;
    nearest.setMap(m_map);
    RecordSet none = m_map->records();
    none.filtered = std::make_shared<const std::vector<AssetIndex>>();
    m_map->setRecords(none);
    QTest::qWait(400);
    EXPECT_TRUE(nearest.text().isEmpty());
    const QSignalSpy moves(&nearest, &NearestRecord::moved);
    nearest.go();
    EXPECT_TRUE(moves.isEmpty());
}

} // namespace
} // namespace vasker
