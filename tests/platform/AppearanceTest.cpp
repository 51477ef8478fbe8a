#include "platform/Appearance.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QMap>
#include <QTest>

#include <gtest/gtest.h>

namespace vasker {
namespace {

using SettingsByGroup = QMap<QString, QVariantMap>;

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");

// A desktop's settings portal on a connection of its own.
class Portal : public QDBusVirtualObject {
  public:
    explicit Portal(SettingsByGroup values) : m_values(std::move(values)) {
        qDBusRegisterMetaType<SettingsByGroup>();
        m_bus.registerVirtualObject(path, this);
        m_bus.registerService(service);
    }
    ~Portal() override { m_bus.unregisterService(service); }
    void change(const QString& group, const QString& key, const QVariant& value) {
        QDBusMessage signal =
            QDBusMessage::createSignal(path, settings, QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        bus.send(message.createReply(QVariant::fromValue(m_values)));
        return true;
    }

  private:
    SettingsByGroup m_values;
    QDBusConnection m_bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
};

TEST(Appearance, WithoutABusTheSystemPaletteDecides) {
    const Appearance desktop(QDBusConnection(QStringLiteral("none")));
    EXPECT_FALSE(desktop.isDark());
    EXPECT_EQ(desktop.textScale(), 1);
}

TEST(Appearance, WithoutAPortalTheSystemPaletteDecides) {
    const Appearance desktop(QDBusConnection::sessionBus());
    QTest::qWait(50);
    EXPECT_FALSE(desktop.isDark());
}

TEST(Appearance, ThePortalsAnswerCounts) {
    const Portal portal(
        {{appearance, {{QStringLiteral("color-scheme"), 1U}, {QStringLiteral("contrast"), 1U}}},
         {gnome,
          {{QStringLiteral("enable-animations"), false},
           {QStringLiteral("text-scaling-factor"), 1.5}}}});
    const Appearance desktop(QDBusConnection::sessionBus());
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.isDark() && desktop.reducedMotion(); }));
    EXPECT_TRUE(desktop.highContrast());
    EXPECT_EQ(desktop.textScale(), 1.5);
}

TEST(Appearance, ChangesAreFollowedLive) {
    Portal portal({{appearance, {{QStringLiteral("color-scheme"), 1U}}}});
    const Appearance desktop(QDBusConnection::sessionBus());
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop.isDark(); }));
    portal.change(appearance, QStringLiteral("color-scheme"), 2U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop.isDark(); }));
    portal.change(gnome, QStringLiteral("text-scaling-factor"), 9.0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.textScale() == 2; }));
}

} // namespace
} // namespace vasker
