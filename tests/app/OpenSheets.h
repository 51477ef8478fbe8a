#pragma once
// The sheets of the workspace, in the real window.

#include "platform/Appearance.h"
#include "tests/app/OpenWindow.h"

#include <QPointer>

#include <map>
#include <set>

namespace vasker {

class OpenSheets : public OpenWindow {
  protected:
    void SetUp() override { openRecords(); }
    void TearDown() override {
        setReducedMotion(0);
        setTextScale(1);
    }

    static void setReducedMotion(int value) {
        apply(QStringLiteral("enable-animations"), value == 0);
    }
    static void setTextScale(double scale) { apply(QStringLiteral("text-scaling-factor"), scale); }
    [[nodiscard]] static QString nameOf(QAccessibleInterface* access) {
        return access->text(QAccessible::Name);
    }
    // What assistive tools come to from the window.
    [[nodiscard]] std::vector<QAccessibleInterface*> reachable() const {
        std::vector<QAccessibleInterface*> found{QAccessible::queryAccessibleInterface(m_window)};
        for (std::size_t i = 0; i < found.size(); ++i) {
            for (int child = 0; child < found[i]->childCount(); ++child) {
                found.push_back(found[i]->child(child));
            }
        }
        return found;
    }
    [[nodiscard]] QQuickItem* named(QAccessible::Role role, const char* name) const {
        for (QAccessibleInterface* const access : reachable()) {
            if (access->role() == role && nameOf(access) == QString::fromLatin1(name)) {
                return qobject_cast<QQuickItem*>(access->object());
            }
        }
        return nullptr;
    }
    [[nodiscard]] QQuickItem* sheet(const char* title) const {
        return named(QAccessible::Dialog, title);
    }
    [[nodiscard]] QStringList sheetsOnScreen() const {
        QStringList titles;
        for (QAccessibleInterface* const access : reachable()) {
            if (access->role() == QAccessible::Dialog) {
                titles.append(nameOf(access));
            }
        }
        return titles;
    }
    // When it has come to its place.
    void waitFor(const char* title) const {
        ASSERT_TRUE(QTest::qWaitFor([&] { return sheet(title) != nullptr; })) << title;
        const QQuickItem* const view = sheet(title)->parentItem();
        ASSERT_TRUE(QTest::qWaitFor([&] { return view->property("shown").toDouble() == 1; }));
        m_window->grabWindow(); // a picture is drawn when all in it has its place
    }
    void waitForNone() const {
        ASSERT_TRUE(QTest::qWaitFor([&] { return sheetsOnScreen().isEmpty(); }));
    }
    void openInspector(const char* id) const {
        workspace().setSelection(QString::fromLatin1(id));
        waitFor("Record");
    }
    void openRecordsSheet() const {
        key(Qt::Key_R, Qt::ControlModifier);
        waitFor("Records");
    }
    void openSources() const {
        workspace().setShowingSources(true);
        waitFor("Sources & coverage");
    }
    [[nodiscard]] QQuickItem* inRecordsSheet(const char* name) const {
        return find(sheet("Records"), QString::fromLatin1(name));
    }
    void clickBeside() const {
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, QPoint(40, 30));
    }
    void close(const QString& way) const {
        if (way == QStringLiteral("Done")) {
            click(named(QAccessible::Button, "Done"));
        } else if (way == QStringLiteral("Done, by assistive tools")) {
            press(named(QAccessible::Button, "Done"));
        } else if (way == QStringLiteral("Escape")) {
            key(Qt::Key_Escape);
        } else {
            clickBeside();
        }
    }
    static void apply(const QString& setting, const QVariant& value) {
        QMetaObject::invokeMethod(Appearance::create(nullptr, nullptr),
                                  "apply",
                                  Q_ARG(QString, QStringLiteral("org.gnome.desktop.interface")),
                                  Q_ARG(QString, setting),
                                  Q_ARG(QDBusVariant, QDBusVariant(value)));
    }
    void resize(int width, int height) const {
        m_window->resize(width, height);
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_window->contentItem()->width() == width; }));
    }
    [[nodiscard]] static QRectF place(const QQuickItem* shown) {
        return shown->mapRectToScene(shown->boundingRect());
    }
};

} // namespace vasker
