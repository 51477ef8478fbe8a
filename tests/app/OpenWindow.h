#pragma once
// The real window of the program, without a screen, for tests to look at and to use.

#include "app/OpenMapApp.h"
#include "app/OpenMapRoot.h"
#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "tests/support/ReleaseBuilder.h"

#include <QAccessible>
#include <QFile>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace vasker {

inline constexpr std::size_t recordCount = 300;

// "Plant 0" to "Plant 299"; every tenth is a refinery.
inline OpenMapRelease longRelease() {
    OpenMapRelease release = makeRelease();
    release.assets.clear();
    for (std::size_t number = 0; number < recordCount; ++number) {
        release.assets.push_back(makeAsset(number));
        release.assets.back().kind = number % 10 == 0 ? "refinery" : "gas_plant";
    }
    return release;
}

inline QQuickItem* find(QQuickItem* from, const QString& name) {
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

/// The first visible item below `from` that shows exactly `text`.
inline QQuickItem* withText(QQuickItem* from, const QString& text) {
    if (from->isVisible() && from->property("text").toString() == text) {
        return from;
    }
    for (QQuickItem* child : from->childItems()) {
        if (QQuickItem* found = withText(child, text)) {
            return found;
        }
    }
    return nullptr;
}

// The real window, without a screen.
class OpenWindow : public testing::Test {
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

} // namespace vasker
