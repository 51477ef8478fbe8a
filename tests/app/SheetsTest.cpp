#include "tests/app/OpenSheets.h"

#include <QQmlEngine>

namespace vasker {
namespace {

using Sheets = OpenSheets;
using Sheet = SheetStack::Sheet;

class SheetsClosedBy : public Sheets, public testing::WithParamInterface<const char*> {
  protected:
    void close() const { Sheets::close(QString::fromLatin1(GetParam())); }
};

INSTANTIATE_TEST_SUITE_P(
    Ways,
    SheetsClosedBy,
    testing::Values("Done", "Done, by assistive tools", "Escape", "a click beside it"),
    [](const auto& way) { return std::to_string(way.index); });

TEST_P(SheetsClosedBy, TheInspectorLeavesNothingPickedAndOpensAgainOnTheSameRecord) {
    openInspector("A-3");
    close();
    EXPECT_EQ(workspace().inspector(), QString());
    waitForNone();
    EXPECT_EQ(selection(), "");
    click(item("open-map-record-A-3"));
    waitFor("Record");
    EXPECT_EQ(workspace().inspector(), QStringLiteral("A-3"));
}

TEST_P(SheetsClosedBy, TheSourcesSheetLeavesItsFlagCleared) {
    openSources();
    close();
    EXPECT_FALSE(workspace().showingSources());
    waitForNone();
}

TEST_P(SheetsClosedBy, TheRecordsSheetOpensNothing) {
    openRecordsSheet();
    close();
    EXPECT_FALSE(workspace().showingRecords());
    waitForNone();
    EXPECT_EQ(m_root->sheets()->current(), Sheet::NoSheet);
    EXPECT_EQ(workspace().inspector(), QString());
}

TEST_F(Sheets, TheRecordsSheetIsOpenedByTheCountLineAndByKeys) {
    QQuickItem* const count = named(QAccessible::Button, "300 of 300 records");
    ASSERT_NE(count, nullptr);
    click(count);
    waitFor("Records");
    close(QStringLiteral("Escape"));
    waitForNone();
    press(count);
    waitFor("Records");
    close(QStringLiteral("Escape"));
    waitForNone();
    count->forceActiveFocus();
    key(Qt::Key_Space);
    waitFor("Records");
    close(QStringLiteral("Escape"));
    waitForNone();
    key(Qt::Key_R, Qt::ControlModifier);
    waitFor("Records");
}

TEST_F(Sheets, NoSheetOpensBelowAnOpenMenu) {
    item("open-map-layer")->forceActiveFocus();
    key(Qt::Key_Down);
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_FALSE(workspace().showingRecords());
    key(Qt::Key_Escape);
    QTest::qWait(0);
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(workspace().showingRecords());
}

TEST_F(Sheets, TypingInTheRecordsSheetFiltersTheMainColumn) {
    QQuickItem* const main = item("open-map-records");
    workspace().setQuery(QStringLiteral("plant"));
    openRecordsSheet();
    QQuickItem* const search = named(QAccessible::EditableText, "Name or reporting company");
    ASSERT_NE(search, nullptr);
    EXPECT_EQ(search->property("text").toString(), QStringLiteral("plant"));
    type("plant 29"); // what is there is selected
    EXPECT_EQ(workspace().query(), QStringLiteral("plant 29"));
    EXPECT_EQ(main->property("count").toInt(), 11);
    EXPECT_EQ(inRecordsSheet("open-map-records")->property("count").toInt(), 11);
    key(Qt::Key_Escape);
    EXPECT_EQ(workspace().query(), QString());
    EXPECT_TRUE(workspace().showingRecords());
}

TEST_F(Sheets, TheRecordsSheetHasTheStateOfTheColumnAndKeepsItWhenItCloses) {
    workspace().setKind(QStringLiteral("refinery"));
    openRecordsSheet();
    EXPECT_EQ(inRecordsSheet("open-map-records")->property("count").toInt(), 30);
    inRecordsSheet("open-map-layer")->forceActiveFocus();
    key(Qt::Key_Down);
    key(Qt::Key_Home);
    key(Qt::Key_Return);
    EXPECT_EQ(workspace().kind(), QStringLiteral("all"));
    workspace().setQuery(QStringLiteral("7"));
    close(QStringLiteral("Done"));
    waitForNone();
    EXPECT_EQ(workspace().query(), QStringLiteral("7"));
}

TEST_F(Sheets, ARecordPickedInTheRecordsSheetIsFramedThenTheSheetClosesThenTheInspectorOpens) {
    openRecordsSheet();
    QStringList story;
    QObject context;
    QObject::connect(&workspace(), &OpenMapWorkspace::cameraChanged, &context, [&] {
        story.append(QStringLiteral("framed"));
    });
    QObject::connect(m_root->sheets(), &SheetStack::requestedChanged, &context, [&](Sheet sheet) {
        if (sheet == Sheet::Records) {
            story.append(QStringLiteral("records close"));
        }
    });
    QObject::connect(&workspace(), &OpenMapWorkspace::inspectorChanged, &context, [&] {
        story.append(QStringLiteral("inspector of ") + workspace().inspector() +
                     QStringLiteral(" beside ") + QString::number(sheetsOnScreen().size()));
    });
    click(inRecordsSheet("open-map-record-A-2"));
    EXPECT_EQ(workspace().pendingInspector(), QStringLiteral("A-2"));
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Records")));
    waitFor("Record");
    EXPECT_EQ(story,
              (QStringList{QStringLiteral("framed"),
                           QStringLiteral("records close"),
                           QStringLiteral("inspector of A-2 beside 0")}));
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Record")));
    EXPECT_EQ(workspace().pendingInspector(), QString());
}

TEST_F(Sheets, ARecordPickedByKeysInTheRecordsSheetOpensItsInspector) {
    openRecordsSheet();
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    waitFor("Record");
    EXPECT_EQ(workspace().inspector(), QStringLiteral("A-1"));
}

TEST_F(Sheets, ThereAreNeverTwo) {
    openSources();
    workspace().setSelection(QStringLiteral("A-4"));
    workspace().setShowingRecords(true);
    EXPECT_EQ(workspace().inspector(), QStringLiteral("A-4"));
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Sources & coverage")));
    close(QStringLiteral("Escape"));
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Sources & coverage")));
    waitFor("Records");
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Records")));
    close(QStringLiteral("Escape"));
    waitFor("Record");
    workspace().setShowingSources(true);
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Record")));
    close(QStringLiteral("Escape"));
    waitFor("Sources & coverage");
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Sources & coverage")));
    EXPECT_EQ(selection(), "");
}

TEST_F(Sheets, TheOrderIsTheSameWhereNothingMoves) {
    setReducedMotion(1);
    key(Qt::Key_R, Qt::ControlModifier);
    waitFor("Records");
    click(inRecordsSheet("open-map-record-A-2"));
    waitFor("Record");
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Record")));
    key(Qt::Key_Escape);
    waitForNone();
    EXPECT_EQ(selection(), "");
}

// Qt compiles what a sheet does when it has done it a few times, and 6.4 compiles some of it so
// that a collection of garbage ends the process.
TEST_F(Sheets, GarbageIsCollectedWhileASheetCloses) {
    setReducedMotion(1);
    constexpr int times = 8;
    int collections = 0;
    QObject context;
    QObject::connect(m_root->sheets(), &SheetStack::closed, &context, [&] {
        qmlEngine(m_window)->collectGarbage();
        ++collections;
    });
    for (int time = 0; time < times; ++time) {
        openSources();
        key(Qt::Key_Escape);
        waitForNone();
    }
    EXPECT_EQ(collections, times);
}

TEST_F(Sheets, TheListOfCategoriesHasRoomForLargeText) {
    const QQuickItem* const picker = item("open-map-layer");
    const auto rowWidth = [&] {
        item("open-map-layer")->forceActiveFocus();
        key(Qt::Key_Return);
        m_window->grabWindow(); // a picture is drawn when all in it has its place
        const double width = m_window->activeFocusItem()->width();
        key(Qt::Key_Escape);
        return width;
    };
    EXPECT_LT(rowWidth(), picker->width());
    setTextScale(2);
    EXPECT_GT(rowWidth(), 1.9 * picker->width());
}

TEST_F(Sheets, AnUnknownSelectionOpensNothing) {
    const CameraPosition before = workspace().camera();
    workspace().setSelection(QStringLiteral("nobody"));
    QTest::qWait(50);
    EXPECT_EQ(sheetsOnScreen(), QStringList());
    EXPECT_EQ(workspace().camera(), before);
}

TEST_F(Sheets, CanadaLeavesAnOpenInspectorTheSearchAndTheKindAlone) {
    workspace().setQuery(QStringLiteral("plant"));
    workspace().setKind(QStringLiteral("gas_plant"));
    openInspector("A-7");
    workspace().resetCamera();
    QTest::qWait(20);
    EXPECT_EQ(sheetsOnScreen(), QStringList(QStringLiteral("Record")));
    EXPECT_EQ(workspace().camera(), CameraPosition(canadaOverview));
    EXPECT_EQ(workspace().query(), QStringLiteral("plant"));
    EXPECT_EQ(workspace().kind(), QStringLiteral("gas_plant"));
    EXPECT_EQ(selection(), "A-7");
}

TEST_F(Sheets, TheInspectorStandsBesideTheMapWhereThereIsRoom) {
    openInspector("A-7");
    EXPECT_EQ(place(item("open-map-inspector")), QRectF(1280 - 16 - 560, 16, 560, 800 - 32));
    EXPECT_EQ(item("open-map-canvas")->property("coveredRight").toDouble(), 576);
    const CameraPosition framed = workspace().camera();
    resize(1216, 1000);
    EXPECT_EQ(place(item("open-map-inspector")), QRectF(1216 - 16 - 560, 16, 560, 900));
    resize(1215, 800);
    EXPECT_EQ(place(item("open-map-inspector")), QRectF(16, 16, 560, 768));
    EXPECT_EQ(item("open-map-canvas")->property("coveredRight").toDouble(), 0);
    EXPECT_EQ(item("open-map-canvas")->property("coveredLeft").toDouble(), 576 - 321);
    EXPECT_EQ(workspace().camera(), framed);
    resize(1280, 800);
    close(QStringLiteral("Escape"));
    EXPECT_EQ(item("open-map-canvas")->property("coveredRight").toDouble(), 0);
    EXPECT_EQ(item("open-map-canvas")->property("coveredLeft").toDouble(), 0);
    EXPECT_EQ(workspace().camera(), framed);
}

TEST_F(Sheets, EachFitsTheSmallestWindow) {
    resize(900, 620);
    openInspector("A-7");
    EXPECT_EQ(place(item("open-map-inspector")), QRectF(16, 16, 560, 588));
    close(QStringLiteral("Escape"));
    waitForNone();
    openSources();
    EXPECT_EQ(place(sheet("Sources & coverage")), QRectF(130, 10, 640, 600));
    close(QStringLiteral("Escape"));
    waitForNone();
    openRecordsSheet();
    EXPECT_EQ(place(sheet("Records")), QRectF(130, 310, 640, 310));
    key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return place(sheet("Records")) == QRectF(130, 40, 640, 580); }));
    EXPECT_GT(inRecordsSheet("open-map-records")->height(), 300);
}

TEST_F(Sheets, SourcesAndRecordsAreAsLargeAsTheWindowLets) {
    resize(1600, 1200);
    openSources();
    EXPECT_EQ(place(sheet("Sources & coverage")), QRectF(480, 120, 640, 960));
    close(QStringLiteral("Escape"));
    waitForNone();
    openRecordsSheet();
    EXPECT_EQ(place(sheet("Records")), QRectF(480, 600, 640, 600));
}

TEST_F(Sheets, TheRecordsSheetIsPulledDownToClose) {
    openRecordsSheet();
    const QPoint grabber = place(sheet("Records")).topLeft().toPoint() + QPoint(300, 10);
    QTest::mousePress(m_window, Qt::LeftButton, {}, grabber);
    for (int way = 10; way <= 60; way += 10) {
        QTest::mouseMove(m_window, grabber + QPoint(0, way));
    }
    EXPECT_GT(place(sheet("Records")).y(), 400);
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, grabber + QPoint(0, 60));
    EXPECT_TRUE(workspace().showingRecords()); // not far enough
    EXPECT_TRUE(QTest::qWaitFor([&] { return place(sheet("Records")).y() == 400; }));
    QTest::mousePress(m_window, Qt::LeftButton, {}, grabber);
    for (int way = 10; way <= 160; way += 10) {
        QTest::mouseMove(m_window, grabber + QPoint(0, way));
    }
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, grabber + QPoint(0, 160));
    EXPECT_FALSE(workspace().showingRecords());
    waitForNone();
}

TEST_F(Sheets, TheShareControlIsThereWhileThePackagedFileIs) {
    openSources();
    EXPECT_NE(item("open-map-share"), nullptr);
    close(QStringLiteral("Escape"));
    waitForNone();
    ASSERT_TRUE(QFile::remove(m_folder.filePath(QStringLiteral("OpenMap.json"))));
    openSources();
    EXPECT_EQ(item("open-map-share"), nullptr);
}

TEST_F(Sheets, TheKeyboardIsInTheListAfterAClickOnARowAndAfterTheInspector) {
    click(item("open-map-record-A-2"));
    waitFor("Record");
    close(QStringLiteral("Escape"));
    waitForNone();
    EXPECT_TRUE(item("open-map-records")->hasActiveFocus());
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_NE(selection(), "A-2");
    EXPECT_NE(selection(), "");
}

TEST_F(Sheets, AWindowCanBeClosedWithASheetOnIt) {
    const QPointer<QQuickWindow> first = m_window;
    openRecordsSheet();
    QQuickWindow* const second = m_application->openWindow();
    click(inRecordsSheet("open-map-record-A-2"));
    first->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }));
    EXPECT_TRUE(second->isVisible());
}

} // namespace
} // namespace vasker
