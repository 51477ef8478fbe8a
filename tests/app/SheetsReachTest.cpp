// What can be reached while a sheet is open, and where the focus goes.

#include "tests/app/OpenSheets.h"

namespace vasker {
namespace {

using SheetsReach = OpenSheets;
using Sheet = SheetStack::Sheet;

TEST_F(SheetsReach, NothingBehindASheetIsReachableByAssistiveTools) {
    for (const char* const each : {"open-map-layer", "open-map-records", "open-map-reset"}) {
        ASSERT_NE(item(each), nullptr);
    }
    ASSERT_NE(named(QAccessible::Canvas, "Canadian energy infrastructure map"), nullptr);
    openInspector("A-7");
    // New rows behind it are out of reach as well.
    workspace().setQuery(QStringLiteral("plant 1"));
    QTest::qWait(20);
    std::set<QString> above;
    for (QAccessibleInterface* const access : reachable()) {
        const auto* const found = qobject_cast<const QQuickItem*>(access->object());
        if (found != nullptr && access->role() != QAccessible::Grouping) {
            EXPECT_TRUE(found == sheet("Record") || sheet("Record")->isAncestorOf(found))
                << nameOf(access).toStdString();
        }
    }
    close(QStringLiteral("Escape"));
    waitForNone();
    EXPECT_NE(named(QAccessible::Canvas, "Canadian energy infrastructure map"), nullptr);
    EXPECT_NE(named(QAccessible::List, "Records"), nullptr);
}

TEST_F(SheetsReach, NothingBehindASheetIsReachableByKeyboard) {
    openInspector("A-7");
    const QQuickItem* const inspector = item("open-map-inspector");
    for (int tab = 0; tab < 40; ++tab) {
        key(Qt::Key_Tab);
        ASSERT_TRUE(inspector->isAncestorOf(m_window->activeFocusItem()));
    }
    for (int tab = 0; tab < 40; ++tab) {
        key(Qt::Key_Tab, Qt::ShiftModifier);
        ASSERT_TRUE(inspector->isAncestorOf(m_window->activeFocusItem()));
    }
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(inspector->isAncestorOf(m_window->activeFocusItem()));
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_FALSE(workspace().showingRecords());
    type("x");
    EXPECT_EQ(workspace().query(), QString());
}

TEST_F(SheetsReach, NothingBehindASheetIsReachableByPointer) {
    openSources();
    const CameraPosition before = workspace().camera();
    const QPointF canada = item("open-map-reset")->mapToScene({10, 10});
    for (const QPointF at : {QPointF(700, 400), QPointF(1200, 600), QPointF(100, 400), canada}) {
        QWheelEvent turn(at,
                         m_window->mapToGlobal(at),
                         {},
                         {0, 120},
                         Qt::NoButton,
                         Qt::NoModifier,
                         Qt::NoScrollPhase,
                         false);
        QCoreApplication::sendEvent(m_window, &turn);
    }
    EXPECT_EQ(workspace().camera(), before);
    workspace().setCamera(MapRect{1, 2, 3, 4});
    QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, canada.toPoint());
    EXPECT_EQ(workspace().camera(), CameraPosition(MapRect{1, 2, 3, 4}));
    EXPECT_FALSE(workspace().showingSources()); // that was a click beside it
}

TEST_F(SheetsReach, ControlAndFFocusesTheSearchFieldOfTheRecordsSheet) {
    openRecordsSheet();
    inRecordsSheet("open-map-layer")->forceActiveFocus();
    key(Qt::Key_F, Qt::ControlModifier);
    type("29");
    EXPECT_EQ(workspace().query(), QStringLiteral("29"));
    EXPECT_TRUE(sheet("Records")->isAncestorOf(m_window->activeFocusItem()));
}

TEST_F(SheetsReach, TheFocusComesBackToTheRowThatOpenedTheInspector) {
    key(Qt::Key_F, Qt::ControlModifier);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    waitFor("Record");
    EXPECT_TRUE(item("open-map-inspector")->isAncestorOf(m_window->activeFocusItem()));
    key(Qt::Key_Escape);
    waitForNone();
    EXPECT_TRUE(item("open-map-records")->hasActiveFocus());
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    waitFor("Record");
    EXPECT_EQ(selection(), "A-2");
}

TEST_F(SheetsReach, TheGuideLiesOverAnySheetAndGivesTheKeyboardBackToIt) {
    for (const Sheet below : {Sheet::Sources, Sheet::Records, Sheet::Inspector, Sheet::About}) {
        below == Sheet::Inspector ? workspace().setSelection(QStringLiteral("A-7"))
                                  : m_root->sheets()->request(below);
        ASSERT_TRUE(QTest::qWaitFor([&] { return sheetsOnScreen().size() == 1; }));
        const QString title = sheetsOnScreen().first();
        waitFor(title.toLatin1().constData());
        key(Qt::Key_Tab);
        const QQuickItem* const before = m_window->activeFocusItem();
        key(Qt::Key_F1);
        waitFor("User guide");
        EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("User guide")));
        for (int tab = 0; tab < 4; ++tab) {
            EXPECT_TRUE(sheet("User guide")->isAncestorOf(m_window->activeFocusItem()));
            key(Qt::Key_Tab);
        }
        key(Qt::Key_Escape);
        ASSERT_TRUE(QTest::qWaitFor([&] { return sheetsOnScreen() == QStringList(title); }));
        EXPECT_EQ(m_window->activeFocusItem(), before);
        key(Qt::Key_Escape);
        waitForNone();
    }
}

TEST_F(SheetsReach, F1ClosesAMenuOverASheetBeforeTheGuideOpens) {
    openRecordsSheet();
    QQuickItem* const picker = inRecordsSheet("open-map-layer");
    picker->forceActiveFocus();
    key(Qt::Key_Return);
    key(Qt::Key_F1);
    waitFor("User guide");
    key(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet("Records") != nullptr; }));
    EXPECT_EQ(m_window->activeFocusItem(), picker);
}

TEST_F(SheetsReach, TheMainMenuIsOutOfReachBehindASheet) {
    openRecordsSheet();
    const QQuickItem* const before = m_window->activeFocusItem();
    key(Qt::Key_F10);
    EXPECT_FALSE(item("open-map-menu")->property("opened").toBool());
    EXPECT_EQ(m_window->activeFocusItem(), before);
}

TEST_F(SheetsReach, ADoubleClickOnARowLeavesTheInspectorOpen) {
    const QPoint row = item("open-map-record-A-3")->mapToScene({40, 20}).toPoint();
    QTest::mouseDClick(m_window, Qt::LeftButton, Qt::NoModifier, row);
    waitFor("Record");
    EXPECT_EQ(workspace().inspector(), QStringLiteral("A-3"));
}

} // namespace
} // namespace vasker
