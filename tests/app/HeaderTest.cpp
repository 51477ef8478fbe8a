// The header bar, its menus, and what the windows of the program have in common.

#include "platform/Background.h"
#include "platform/files/Preferences.h"
#include "tests/app/OpenWindow.h"

#include <QGuiApplication>
#include <QPointer>
#include <QQmlProperty>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace vasker {
namespace {

class Header : public OpenWindow {
  protected:
    void activate() const {
        m_window->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
    }
    static std::string nameOf(QQuickItem* target) {
        return QAccessible::queryAccessibleInterface(target)->text(QAccessible::Name).toStdString();
    }
    /// Presses a button and returns the rows of its menu, which is open then.
    [[nodiscard]] std::vector<QQuickItem*> openMenu(const char* button) const {
        item(button)->forceActiveFocus();
        key(Qt::Key_Return);
        m_window->grabWindow(); // a picture is drawn when all in it has its place
        std::vector<QQuickItem*> rows;
        for (QQuickItem* row : m_window->activeFocusItem()->parentItem()->childItems()) {
            if (row->property("choice").isValid() && row->isVisible()) {
                rows.push_back(row);
            }
        }
        return rows;
    }
    static std::vector<std::string> texts(const std::vector<QQuickItem*>& rows) {
        std::vector<std::string> texts;
        for (const QQuickItem* row : rows) {
            texts.push_back(row->property("label").toString().toStdString());
        }
        return texts;
    }
    static std::ptrdiff_t windowCount() {
        return std::ranges::count_if(QGuiApplication::topLevelWindows(), &QWindow::isVisible);
    }
    /// As another program finds it in the file.
    [[nodiscard]] QString storedBasemap() const {
        EXPECT_TRUE(finishBackgroundWork());
        return Preferences(m_folder.filePath(QStringLiteral("preferences")))
            .text(QStringLiteral("open-map.basemap"))
            .value_or(QString());
    }
};

TEST_F(Header, TheHeaderHasThreeToolsInOrderAndApartFromThemAMenu) {
    openRecords();
    double end = 0;
    for (const auto& [id, text] : {std::pair("open-map-options", "Map options"),
                                   std::pair("open-map-reset", "Canada"),
                                   std::pair("open-map-sources", "Sources & coverage"),
                                   std::pair("open-map-menu", "Main menu")}) {
        const QQuickItem* const button = item(id);
        ASSERT_NE(button, nullptr) << id;
        EXPECT_EQ(nameOf(item(id)), text);
        EXPECT_GE(button->mapToScene({}).x(), end + (end == 0 ? 0 : 4)) << id;
        end = button->mapToScene({button->width(), 0}).x();
    }
    EXPECT_EQ(end, 1280 - 12);
    EXPECT_EQ(item("open-map-menu")->width(), 36);
}

TEST_F(Header, WithoutRoomTheHeaderShowsIconsAndKeepsTheirNames) {
    openRecords();
    EXPECT_GT(item("open-map-sources")->width(), 44);
    const QQuickItem* const header = item("open-map-sources")->parentItem()->parentItem();
    m_window->setMinimumSize({1, 1});
    for (const int width : {959, 579, 300}) {
        m_window->resize(321 + width, 620);
        ASSERT_TRUE(QTest::qWaitFor([&] { return header->width() == width; }));
        EXPECT_EQ(item("open-map-sources")->width() > 44, width > 500) << width;
        EXPECT_EQ(header->property("titleVisible").toBool(), width > 900) << width;
        EXPECT_GE(item("open-map-options")->mapToItem(header, QPointF()).x(), 12) << width;
        EXPECT_EQ(nameOf(item("open-map-sources")), "Sources & coverage");
    }
}

TEST_F(Header, ToolsWithoutRoomAreTheFirstRowsOfTheMainMenu) {
    openRecords();
    const QQuickItem* const tools = item("open-map-sources")->parentItem();
    m_window->setMinimumSize({1, 1});
    m_window->resize(500, 400);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !tools->isVisible(); }));
    std::vector<QQuickItem*> rows = openMenu("open-map-menu");
    std::vector<std::string> first = texts(rows);
    first.resize(4);
    EXPECT_EQ(
        first,
        (std::vector<std::string>{"Map options", "Canada", "Sources & coverage", "New window"}));
    click(rows[0]);
    m_window->grabWindow();
    EXPECT_EQ(QQmlProperty::read(m_window->activeFocusItem(), QStringLiteral("label")).toString(),
              QStringLiteral("Map"));
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(workspace().basemap(), QStringLiteral("satellite"));
    EXPECT_EQ(m_window->activeFocusItem(), item("open-map-menu"));
}

TEST_F(Header, TheChoicesOfTheBasemapAreStoredAndShownByEveryWindow) {
    openRecords();
    QQuickWindow* const second = m_application->openWindow();
    auto* const other = second->findChild<OpenMapRoot*>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return other->workspace() != nullptr; }));
    activate();
    for (const auto& [row, stored] :
         {std::pair(1, "satellite"), std::pair(2, "hybrid"), std::pair(0, "standard")}) {
        const std::vector<QQuickItem*> rows = openMenu("open-map-options");
        ASSERT_EQ(texts(rows), (std::vector<std::string>{"Map", "Satellite", "Hybrid"}));
        click(rows[static_cast<std::size_t>(row)]);
        EXPECT_EQ(workspace().basemap(), QString::fromLatin1(stored));
        EXPECT_EQ(other->workspace()->basemap(), QString::fromLatin1(stored));
        const QQuickItem* const map =
            find(second->contentItem(), QStringLiteral("open-map-canvas"));
        EXPECT_EQ(map->property("basemap").toString(), QString::fromLatin1(stored));
        EXPECT_EQ(storedBasemap(), QString::fromLatin1(stored));
    }
}

TEST_F(Header, AnUnknownBasemapMarksNoChoiceAndStaysAsItIsStored) {
    write("preferences", "open-map.basemap=terrain\n");
    openRecords();
    for (QQuickItem* row : openMenu("open-map-options")) {
        EXPECT_FALSE(row->property("chosen").toBool());
    }
    key(Qt::Key_Escape);
    EXPECT_EQ(workspace().basemap(), QStringLiteral("terrain"));
    EXPECT_EQ(storedBasemap(), QStringLiteral("terrain"));
}

TEST_F(Header, TheMainMenuConcernsTheProgram) {
    openRecords();
    std::vector<QQuickItem*> rows = openMenu("open-map-menu");
    ASSERT_EQ(texts(rows),
              (std::vector<std::string>{"New window",
                                        "Save the records shown…",
                                        "Save a picture of the map…",
                                        "Save a picture at twice the size…",
                                        "Save a picture at four times the size…",
                                        "Save the map as PDF or SVG…",
                                        "Copy picture of the map",
                                        "Print the map…",
                                        "Records…",
                                        "Keyboard shortcuts",
                                        "User guide",
                                        "About Vasker Beta",
                                        "Quit"}));
    key(Qt::Key_R);
    key(Qt::Key_Return);
    EXPECT_TRUE(workspace().showingRecords());
}

TEST_F(Header, AboutIsASheetAndTheKeysLieOverIt) {
    openRecords();
    click(openMenu("open-map-menu")[11]);
    ASSERT_NE(item("open-map-about"), nullptr);
    EXPECT_EQ(nameOf(item("open-map-about")), "About Vasker Beta");
    const QQuickItem* const before = m_window->activeFocusItem();
    key(Qt::Key_Question, Qt::ControlModifier);
    key(Qt::Key_F, Qt::ControlModifier);
    ASSERT_NE(item("open-map-shortcuts"), nullptr);
    EXPECT_TRUE(item("open-map-shortcuts")->isAncestorOf(m_window->activeFocusItem()));
    key(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-shortcuts") == nullptr; }));
    EXPECT_EQ(m_window->activeFocusItem(), before);
    key(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-about") == nullptr; }));
    EXPECT_EQ(m_window->activeFocusItem(), item("open-map-menu"));
}

TEST_F(Header, WindowsAreOpenedAndClosedFromTheFailureScreenToo) {
    open("{}");
    const QPointer<QQuickWindow> first = m_window;
    key(Qt::Key_N, Qt::ControlModifier);
    activate();
    key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }));
    EXPECT_TRUE(m_application->hasWindows());
}

TEST_F(Header, AWindowIsOpenedAndClosedWhileAMenuIsOpen) {
    openRecords();
    const QPointer<QQuickWindow> first = m_window;
    EXPECT_EQ(openMenu("open-map-menu").size(), 13U);
    key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(windowCount(), 2);
    activate();
    key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }));
    EXPECT_TRUE(m_application->hasWindows());
}

TEST_F(Header, AWindowIsOpenedAndClosedWhileASheetIsOpen) {
    openRecords();
    const QPointer<QQuickWindow> first = m_window;
    key(Qt::Key_F1);
    ASSERT_NE(item("open-map-guide"), nullptr);
    key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(windowCount(), 2);
    activate();
    key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }));
}

TEST_F(Header, QuittingWorksWhileAMenuIsOpen) {
    openRecords();
    EXPECT_EQ(openMenu("open-map-options").size(), 3U);
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_application->hasWindows(); }));
}

TEST_F(Header, F1IsTheGuideAndF10TheMainMenu) {
    openRecords();
    key(Qt::Key_F1);
    ASSERT_NE(item("open-map-guide"), nullptr);
    key(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-guide") == nullptr; }));
    key(Qt::Key_F10);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return item("open-map-menu")->property("opened").toBool(); }));
    key(Qt::Key_F10);
    EXPECT_FALSE(item("open-map-menu")->property("opened").toBool());
}

TEST_F(Header, F1ClosesAMenuThatIsOpenAndF10DoesOnlyThat) {
    openRecords();
    for (const char* const button : {"open-map-options", "open-map-menu", "open-map-layer"}) {
        EXPECT_FALSE(openMenu(button).empty());
        key(Qt::Key_F1);
        ASSERT_NE(item("open-map-guide"), nullptr) << button;
        EXPECT_TRUE(item("open-map-guide")->isAncestorOf(m_window->activeFocusItem()));
        key(Qt::Key_Escape);
        ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-guide") == nullptr; }));
        EXPECT_EQ(m_window->activeFocusItem(), item(button));
        EXPECT_FALSE(openMenu(button).empty());
        key(Qt::Key_F10);
        EXPECT_EQ(m_window->activeFocusItem(), item(button));
        EXPECT_FALSE(item("open-map-menu")->property("opened").toBool());
    }
}

TEST_F(Header, F11FillsTheScreenAndThenLeavesTheWindowAsItWas) {
    openRecords();
    for (const auto before : {QWindow::Windowed, QWindow::Maximized}) {
        m_window->setVisibility(before);
        key(Qt::Key_F11);
        EXPECT_EQ(m_window->visibility(), QWindow::FullScreen);
        key(Qt::Key_F11);
        EXPECT_EQ(m_window->visibility(), before);
    }
}

TEST_F(Header, F11WorksOverASheetAndClosesAMenu) {
    openRecords();
    key(Qt::Key_F1);
    key(Qt::Key_F11);
    EXPECT_EQ(m_window->visibility(), QWindow::FullScreen);
    EXPECT_NE(item("open-map-guide"), nullptr);
    key(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-guide") == nullptr; }));
    EXPECT_EQ(m_window->visibility(), QWindow::FullScreen);
    EXPECT_FALSE(openMenu("open-map-options").empty());
    key(Qt::Key_F11);
    EXPECT_EQ(m_window->visibility(), QWindow::Windowed);
    EXPECT_FALSE(item("open-map-options")->property("opened").toBool());
}

TEST_F(Header, TheGuideIsThereOnTheFailureScreenToo) {
    open("{}");
    key(Qt::Key_F1);
    EXPECT_NE(item("open-map-guide"), nullptr);
}

TEST_F(Header, ShortcutsWorkWhileATextThatIsOnlyReadHasTheKeyboard) {
    open("{}");
    key(Qt::Key_Tab);
    ASSERT_TRUE(m_window->activeFocusItem()->property("readOnly").toBool());
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(m_window->activeFocusItem()->property("selectedText").toString().isEmpty());
    key(Qt::Key_F1);
    EXPECT_NE(item("open-map-guide"), nullptr);
}

TEST_F(Header, TheGuideLeadsToTheKeys) {
    openRecords();
    key(Qt::Key_F1);
    ASSERT_NE(item("open-map-guide"), nullptr);
    key(Qt::Key_Tab); // "Done"
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-shortcuts") != nullptr; }));
    EXPECT_EQ(item("open-map-guide"), nullptr);
    key(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-shortcuts") == nullptr; }));
    EXPECT_EQ(m_root->sheets()->current(), SheetStack::Sheet::NoSheet);
}

TEST_F(Header, AtTheStartTheKeyboardIsInTheSearchField) {
    openRecords();
    type("plant 29");
    EXPECT_EQ(workspace().query(), QStringLiteral("plant 29"));
}

TEST_F(Header, QuittingClosesEveryWindow) {
    openRecords();
    m_application->openWindow();
    activate();
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_application->hasWindows(); }));
}

TEST_F(Header, AWindowThatTheDesktopWantsComesToTheFront) {
    openRecords();
    m_application->openWindowInFront({.activation = QStringLiteral("token"), .startup = {}});
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QWindow* const active = QGuiApplication::focusWindow();
        return active != nullptr && active != m_window;
    }));
}

} // namespace
} // namespace vasker
