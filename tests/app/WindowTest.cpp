#include "app/OpenMapApp.h"
#include "app/OpenMapRoot.h"
#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "tests/support/ReleaseBuilder.h"

#include <QAccessible>
#include <QFile>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Vasker_PlatformPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_MapPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_AppPlugin)

namespace vasker {
namespace {

constexpr std::size_t recordCount = 300;

// "Plant 0" to "Plant 299"; every tenth is a refinery.
OpenMapRelease longRelease() {
    OpenMapRelease release = makeRelease();
    release.assets.clear();
    for (std::size_t number = 0; number < recordCount; ++number) {
        release.assets.push_back(makeAsset(number));
        release.assets.back().kind = number % 10 == 0 ? "refinery" : "gas_plant";
    }
    return release;
}

QQuickItem* find(QQuickItem* from, const QString& name) {
    if (from->objectName() == name && from->isVisible()) {
        return from;
    }
    for (QQuickItem* child : from->childItems()) {
        if (QQuickItem* found = find(child, name)) {
            return found;
        }
    }
    return nullptr;
}

// The real window, without a screen.
class Window : public testing::Test {
  protected:
    void open(const std::string& bytes) {
        write("OpenMap.json", bytes);
        write("BundleInformation.json", R"({"VaskerOpenMapSHA256": ")" + sha256(bytes) + R"("})");
        m_application =
            std::make_unique<OpenMapApp>(Bundle(m_folder.path()),
                                         TextLocale("en"),
                                         m_folder.filePath(QStringLiteral("preferences")),
                                         m_folder.filePath(QStringLiteral("cache")));
        m_window = m_application->openWindow();
        m_root = m_window->findChild<OpenMapRoot*>();
        ASSERT_NE(m_root, nullptr);
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return m_root->screen() != OpenMapRoot::Screen::Loading; }, 10'000));
        m_window->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
    }
    void openRecords() {
        open(encode(longRelease()));
        ASSERT_NE(m_root->workspace(), nullptr);
        ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-records") != nullptr; }));
    }
    void write(const char* name, const std::string& bytes) const {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
    [[nodiscard]] QQuickItem* item(const char* name) const {
        return find(m_window->contentItem(), QString::fromLatin1(name));
    }
    void type(const char* text) const {
        for (const char* each = text; *each != '\0'; ++each) {
            QTest::keyClick(m_window, *each);
        }
    }
    void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(m_window, pressed, modifiers);
    }
    void click(QQuickItem* target) const {
        const QPointF middle(target->width() / 2, target->height() / 2);
        QTest::mouseClick(
            m_window, Qt::LeftButton, Qt::NoModifier, target->mapToScene(middle).toPoint());
    }
    static void press(QQuickItem* target) {
        QAccessibleInterface* const access = QAccessible::queryAccessibleInterface(target);
        ASSERT_NE(access, nullptr);
        QAccessibleActionInterface* const actions = access->actionInterface();
        ASSERT_NE(actions, nullptr);
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
    [[nodiscard]] OpenMapWorkspace& workspace() const { return *m_root->workspace(); }
    [[nodiscard]] std::string selection() const { return workspace().selection().toStdString(); }
    [[nodiscard]] bool isInView(const char* row) const {
        const QQuickItem* const list = item("open-map-records");
        const QQuickItem* const found = item(row);
        return list != nullptr && found != nullptr &&
               QRectF(0, 0, list->width(), list->height())
                   .contains(found->mapRectToItem(list, found->boundingRect()));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<OpenMapApp> m_application;
    QQuickWindow* m_window = nullptr;
    OpenMapRoot* m_root = nullptr;
};

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

TEST_F(Window, KeysMoveThroughTheListAndEnterPicks) {
    openRecords();
    key(Qt::Key_F, Qt::ControlModifier);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(selection(), "");
    key(Qt::Key_Return);
    EXPECT_EQ(selection(), "A-1");
    key(Qt::Key_End);
    key(Qt::Key_Return);
    EXPECT_EQ(selection(), "A-299");
    EXPECT_TRUE(isInView("open-map-record-A-299"));
    key(Qt::Key_PageUp);
    key(Qt::Key_Return);
    EXPECT_NE(selection(), "A-299");
    EXPECT_NE(selection(), "A-298");
    key(Qt::Key_Home);
    key(Qt::Key_Return);
    EXPECT_EQ(selection(), "A-0");
    key(Qt::Key_Escape);
    EXPECT_EQ(selection(), "");
    EXPECT_EQ(workspace().inspector(), QString());
}

TEST_F(Window, AClickOnARowPicksItsRecord) {
    openRecords();
    click(item("open-map-record-A-3"));
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

TEST_F(Window, CanadaBringsTheOverviewBackAndLeavesTheSelection) {
    openRecords();
    workspace().setSelection(QStringLiteral("A-7"));
    ASSERT_NE(workspace().camera(), CameraPosition(canadaOverview));
    press(item("open-map-reset"));
    EXPECT_EQ(workspace().camera(), CameraPosition(canadaOverview));
    EXPECT_EQ(selection(), "A-7");
    workspace().setCamera(MapRect{1, 2, 3, 4});
    click(item("open-map-reset"));
    EXPECT_EQ(workspace().camera(), CameraPosition(canadaOverview));
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
