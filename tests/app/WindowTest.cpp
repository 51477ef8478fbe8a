#include "app/QmlModules.h"
#include "tests/app/OpenWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include <cstdlib>
#include <utility>

namespace vasker {
namespace {

using Window = OpenWindow;

TEST_F(Window, OpensWithItsTitleAndSizes) {
    openRecords();
    EXPECT_EQ(m_window->title(), QStringLiteral("Vasker Beta"));
    EXPECT_EQ(m_window->size(), QSize(1280, 800));
    EXPECT_EQ(m_window->minimumSize(), QSize(900, 620));
}

TEST_F(Window, ShowsTheCatalogueAndTheMapSideBySide) {
    openRecords();
    EXPECT_EQ(item("open-map-error"), nullptr);
    ASSERT_NE(item("open-map-layer"), nullptr);
    ASSERT_NE(item("open-map-canvas"), nullptr);
    EXPECT_EQ(item("open-map-records")->width(), 320);
    EXPECT_EQ(item("open-map-canvas")->mapToScene({}).x(), 321);
    EXPECT_EQ(item("open-map-canvas")->width(), 1280 - 321);
}

TEST_F(Window, SaysWhyItCannotShowTheMapAndNothingElse) {
    open("{}");
    QQuickItem* const screen = item("open-map-error");
    ASSERT_NE(screen, nullptr);
    QAccessibleInterface* const access = QAccessible::queryAccessibleInterface(screen);
    ASSERT_NE(access, nullptr);
    EXPECT_EQ(access->text(QAccessible::Name), QStringLiteral("Map unavailable"));
    EXPECT_EQ(access->text(QAccessible::Description), m_root->failureText());
    EXPECT_EQ(item("open-map-canvas"), nullptr);
    m_window->hide();
    m_window->show();
    EXPECT_NE(item("open-map-error"), nullptr);
}

TEST_F(Window, TypingSearchesAndEscapeClears) {
    openRecords();
    key(Qt::Key_F, Qt::ControlModifier);
    type("plant 29");
    EXPECT_EQ(workspace().query(), QStringLiteral("plant 29"));
    EXPECT_EQ(workspace().filtered().size(), 11);
    type("x");
    EXPECT_EQ(item("open-map-records"), nullptr);
    key(Qt::Key_Escape);
    EXPECT_EQ(workspace().query(), QString());
    EXPECT_NE(item("open-map-records"), nullptr);
}

TEST_F(Window, ANameIsNeverReadAsMarkupWhateverWasInItsRowBefore) {
    OpenMapRelease release = longRelease();
    release.assets[0].name = "Plant <img src=\"file:///nowhere.png\">"; // first in the list
    open(encode(release));
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-records") != nullptr; }));
    static int attempts = 0;
    const auto handler =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            attempts += text.contains(QStringLiteral("nowhere.png")) ? 1 : 0;
        });
    key(Qt::Key_F, Qt::ControlModifier);
    for (const char* query : {"2", "plant", "nowhere"}) {
        type(query); // part of the name is bold
        QTest::qWait(50);
        key(Qt::Key_Escape); // nothing is
        QTest::qWait(50);
    }
    qInstallMessageHandler(handler);
    EXPECT_EQ(attempts, 0);
}

TEST_F(Window, ARowSaysWhereARecordWasFoundThatItsNameDoesNotTell) {
    openRecords();
    const auto described = [&] {
        return QAccessible::queryAccessibleInterface(item("open-map-record-A-10"));
    };
    const double height = item("open-map-record-A-10")->height();
    workspace().setQuery(QStringLiteral("prairie"));
    EXPECT_EQ(described()->text(QAccessible::Description),
              QStringLiteral("Found in Reporting company: Prairie Gas"));
    EXPECT_EQ(described()->text(QAccessible::Name),
              QStringLiteral("Plant 10, Refinery, source period 2016"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return item("open-map-record-A-10")->height() > height; }));
    workspace().setQuery(QStringLiteral("plant 10"));
    EXPECT_EQ(described()->text(QAccessible::Description), QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return item("open-map-record-A-10")->height() == height; }));
}

TEST_F(Window, KeysMoveThroughTheListAndEnterPicks) {
    openRecords();
    key(Qt::Key_F, Qt::ControlModifier);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(selection(), "");
    const auto picked = [&] {
        key(Qt::Key_Return);
        const std::string id = selection();
        key(Qt::Key_Escape); // the inspector
        EXPECT_TRUE(QTest::qWaitFor([&] { return selection().empty(); }));
        return id;
    };
    EXPECT_EQ(picked(), "A-1");
    key(Qt::Key_End);
    EXPECT_EQ(picked(), "A-299");
    EXPECT_TRUE(isInView("open-map-record-A-299"));
    key(Qt::Key_PageUp);
    const std::string above = picked();
    EXPECT_NE(above, "A-299");
    EXPECT_NE(above, "A-298");
    key(Qt::Key_Home);
    EXPECT_EQ(picked(), "A-0");
}

TEST_F(Window, AClickOnARowPicksItsRecord) {
    openRecords();
    click(item("open-map-record-A-3"));
    EXPECT_EQ(selection(), "A-3");
}

TEST_F(Window, TheMenuOfARowGivesTheKeyboardToThatRow) {
    openRecords();
    const QQuickItem* const row = item("open-map-record-A-3");
    ASSERT_NE(row, nullptr);
    const QPointF middle(row->width() / 2, row->height() / 2);
    QTest::mouseClick(m_window, Qt::RightButton, Qt::NoModifier, row->mapToScene(middle).toPoint());
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return withText(m_window->contentItem(), QStringLiteral("Copy citation")) != nullptr;
    }));
    EXPECT_FALSE(item("open-map-records")->hasActiveFocus());
    key(Qt::Key_Escape);
    EXPECT_TRUE(item("open-map-records")->hasActiveFocus());
    EXPECT_TRUE(row->property("current").toBool());
    EXPECT_EQ(selection(), "");
    key(Qt::Key_Return);
    EXPECT_EQ(selection(), "A-3");
}

TEST_F(Window, ARowCanBePressedByAssistiveTools) {
    openRecords();
    press(item("open-map-record-A-2"));
    EXPECT_EQ(selection(), "A-2");
}

TEST_F(Window, ARecordPickedOnTheMapIsScrolledIntoView) {
    openRecords();
    EXPECT_FALSE(isInView("open-map-record-A-250"));
    workspace().setSelection(QStringLiteral("A-250"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInView("open-map-record-A-250"); }));
}

TEST_F(Window, ThePickedRecordStaysInViewWhenTheListChanges) {
    openRecords();
    workspace().setSelection(QStringLiteral("A-250"));
    workspace().setKind(QStringLiteral("refinery"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInView("open-map-record-A-250"); }));
}

TEST_F(Window, TheCategoryIsChosenByTypingItsName) {
    openRecords();
    item("open-map-layer")->forceActiveFocus();
    key(Qt::Key_Down);
    type("ref");
    key(Qt::Key_Return);
    EXPECT_EQ(workspace().kind(), QStringLiteral("refinery"));
    EXPECT_EQ(workspace().filtered().size(), 30);
}

TEST_F(Window, CanadaBringsTheOverviewBack) {
    openRecords();
    workspace().setCamera(MapRect{1, 2, 3, 4});
    press(item("open-map-reset"));
    EXPECT_EQ(workspace().camera(), CameraPosition(canadaOverview));
    workspace().setCamera(MapRect{1, 2, 3, 4});
    click(item("open-map-reset"));
    EXPECT_EQ(workspace().camera(), CameraPosition(canadaOverview));
}

TEST_F(Window, TabGoesFromTheSearchThroughTheColumnAndTheHeaderToTheMap) {
    openRecords();
    item("open-map-canvas")->setProperty("reducedMotion", true);
    key(Qt::Key_F, Qt::ControlModifier);
    QStringList names;
    while (names.size() < 20 && !names.endsWith(QStringLiteral("open-map-zoom-out"))) {
        key(Qt::Key_Tab);
        const QQuickItem* at = m_window->activeFocusItem();
        while (at->objectName().isEmpty() ||
               at->objectName().startsWith(QStringLiteral("open-map-record-"))) {
            at = at->parentItem();
        }
        names.append(at->objectName());
    }
    EXPECT_EQ(names.mid(0, 3),
              (QStringList{QStringLiteral("open-map-layer"),
                           QStringLiteral("open-map-count"),
                           QStringLiteral("open-map-records")}));
    const auto reset = names.indexOf(QStringLiteral("open-map-reset"));
    EXPECT_GE(reset, 3);
    EXPECT_LT(reset, names.indexOf(QStringLiteral("open-map-canvas")));
    EXPECT_EQ(names.mid(names.size() - 4),
              (QStringList{QStringLiteral("open-map-canvas"),
                           QStringLiteral("open-map-compass"),
                           QStringLiteral("open-map-zoom-in"),
                           QStringLiteral("open-map-zoom-out")}));
}

TEST_F(Window, TheCaptionStripIsAMarginOfTheMap) {
    openRecords();
    QQuickItem* const map = item("open-map-canvas");
    EXPECT_GE(map->property("coveredBelow").toDouble(), 36);
    click(item("open-map-caption"));
    EXPECT_EQ(workspace().camera(), CameraPosition(canadaOverview));
}

TEST_F(Window, TheMapIsZoomedAndSetUprightByItsControls) {
    openRecords();
    QQuickItem* const map = item("open-map-canvas");
    map->setProperty("reducedMotion", true);
    const auto pose = [&] { return std::get<CameraPose>(workspace().camera()); };
    press(item("open-map-zoom-in"));
    const double scale = pose().scale;
    click(item("open-map-zoom-in"));
    EXPECT_NEAR(pose().scale / scale, 2, 1e-9);
    press(item("open-map-zoom-out"));
    EXPECT_NEAR(pose().scale / scale, 1, 1e-9);

    QQuickItem* const compass = item("open-map-compass");
    EXPECT_FALSE(compass->property("shown").toBool());
    CameraPose turned = pose();
    turned.bearing = 120;
    turned.pitch = 30;
    workspace().setCamera(turned);
    EXPECT_TRUE(compass->property("shown").toBool());
    click(compass);
    EXPECT_EQ(pose().bearing, 0);
    EXPECT_EQ(pose().pitch, 0);
    EXPECT_FALSE(compass->property("shown").toBool());
    compass->forceActiveFocus();
    EXPECT_TRUE(compass->property("shown").toBool());
}

TEST_F(Window, TheKeyboardReachesTheMapAndItsControls) {
    openRecords();
    item("open-map-canvas")->forceActiveFocus();
    std::vector<std::string> names;
    for (int tab = 0; tab < 3; ++tab) {
        key(Qt::Key_Tab);
        names.push_back(m_window->activeFocusItem()->objectName().toStdString());
    }
    EXPECT_EQ(
        names,
        (std::vector<std::string>{"open-map-compass", "open-map-zoom-in", "open-map-zoom-out"}));
    item("open-map-canvas")->setProperty("reducedMotion", true);
    key(Qt::Key_Plus); // what a control does not need is for the map
    EXPECT_NE(workspace().camera(), CameraPosition(canadaOverview));
    key(Qt::Key_Home);
    EXPECT_EQ(workspace().camera(), CameraPosition(canadaOverview));
}

TEST_F(Window, APictureOfTheMapIsCopied) {
    openRecords();
    QQuickItem* const map = item("open-map-canvas");
    QGuiApplication::clipboard()->clear();
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        const QQuickItem* const notice = item("open-map-save-notice");
        return notice != nullptr &&
               notice->property("label").toString() ==
                   QStringLiteral("The picture of the map is on the clipboard.");
    }));
    const QImage picture = QGuiApplication::clipboard()->image();
    EXPECT_EQ(picture.width(), map->width());
    EXPECT_GT(picture.height(), map->height());
    click(item("open-map-save-notice"));
    EXPECT_EQ(item("open-map-save-notice"), nullptr);
}

/// Whether two pictures are of the same texts: their edges may be smoothed in other ways.
bool areAlike(const QImage& one, const QImage& other) {
    if (one.size() != other.size()) {
        return false;
    }
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 100) {
                return false;
            }
        }
    }
    return true;
}

TEST_F(Window, ScaleAndTextsOfAPictureAreOfTheMomentAtWhichItWasAskedFor) {
    openRecords();
    const QQuickItem* const map = item("open-map-canvas");
    const auto end = static_cast<int>(map->height() - map->property("coveredBelow").toDouble());
    // The place of the scale bar, which labels keep clear of, and all below the map.
    const auto copied = [&](const auto& meanwhile) {
        QGuiApplication::clipboard()->clear();
        key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        meanwhile();
        EXPECT_TRUE(
            QTest::qWaitFor([] { return !QGuiApplication::clipboard()->image().isNull(); }));
        const QImage image = QGuiApplication::clipboard()->image();
        return std::pair(image.copy(0, end - 40, 180, 40),
                         image.copy(0, end, image.width(), image.height() - end));
    };
    const auto before = copied([] {});
    const auto asked = copied([&] {
        workspace().setCamera(CoordinateRegion{{50, -100}, 2, 4});
        workspace().setQuery(QStringLiteral("29"));
    });
    EXPECT_TRUE(areAlike(asked.first, before.first));
    EXPECT_TRUE(areAlike(asked.second, before.second));
    const auto after = copied([] {});
    EXPECT_FALSE(areAlike(after.first, before.first));
    EXPECT_FALSE(areAlike(after.second, before.second));
}

TEST_F(Window, TheNearestRecordIsNamedClearOfTheCornersOfTheMap) {
    openRecords();
    workspace().setCamera(CoordinateRegion{{-40, 20}, 1, 1});
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-nearest") != nullptr; }));
    const QQuickItem* const pill = item("open-map-nearest");
    auto* const area = item("open-map-canvas")->property("exploration").value<QQuickItem*>();
    ASSERT_NE(area, nullptr);
    EXPECT_GT(area->property("cornerWidth").toDouble(), 100) << "the scale bar";
    const auto below = [&] { return area->height() - pill->y() - pill->height(); };
    area->setProperty("cornerWidth", pill->x() - 20);
    EXPECT_EQ(below(), 12);
    area->setProperty("cornerWidth", pill->x() - 5);
    EXPECT_EQ(below(), 12 + area->property("cornerHeight").toDouble() + 8);
}

TEST_F(Window, ASecondWindowHasItsOwnStateAndClosesByItself) {
    openRecords();
    const QPointer<QQuickWindow> second = m_application->openWindow();
    workspace().setQuery(QStringLiteral("29"));
    second->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return second.isNull(); }));
    EXPECT_EQ(workspace().query(), QStringLiteral("29"));
}

} // namespace
} // namespace vasker
