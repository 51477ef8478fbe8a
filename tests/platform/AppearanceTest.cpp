#include "platform/Appearance.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QFont>
#include <QGuiApplication>
#include <QMap>
#include <QPalette>
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

TEST(Appearance, EitherSourceOfASettingCanAskForIt) {
    const QString contrast = QStringLiteral("contrast");
    const QString gnomeContrast = QStringLiteral("org.gnome.desktop.a11y.interface");
    const QString highContrast = QStringLiteral("high-contrast");
    Portal portal({{appearance, {{contrast, 1U}, {QStringLiteral("reduced-motion"), 1U}}},
                   {gnome, {{QStringLiteral("enable-animations"), true}}},
                   {gnomeContrast, {{highContrast, false}}}});
    const Appearance desktop(QDBusConnection::sessionBus());
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop.highContrast(); }));
    EXPECT_TRUE(desktop.reducedMotion());
    portal.change(gnomeContrast, highContrast, true);
    portal.change(appearance, contrast, 0U);
    portal.change(gnome, QStringLiteral("text-scaling-factor"), 1.25);
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop.textScale() == 1.25; }));
    EXPECT_TRUE(desktop.highContrast());
    portal.change(gnomeContrast, highContrast, false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop.highContrast(); }));
}

TEST(Appearance, WithoutAPreferenceTheSystemPaletteIsFollowedLive) {
    const Appearance desktop(QDBusConnection(QStringLiteral("none")));
    const QPalette usual = QGuiApplication::palette();
    int changes = 0;
    QObject::connect(&desktop, &Appearance::changed, [&changes] { ++changes; });
    QGuiApplication::setPalette(QPalette(QColor(20, 20, 20)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes > 0; }));
    EXPECT_TRUE(desktop.isDark());
    QGuiApplication::setPalette(usual);
    EXPECT_FALSE(desktop.isDark());
}

TEST(Appearance, ALargeSystemFontMakesTextsLarger) {
    const Appearance desktop(QDBusConnection(QStringLiteral("none")));
    const QFont usual = QGuiApplication::font();
    QFont large = usual;
    large.setPixelSize(22);
    QGuiApplication::setFont(large);
    EXPECT_NEAR(desktop.textScale(), 1.5, 0.01);
    large.setPixelSize(90);
    QGuiApplication::setFont(large);
    EXPECT_EQ(desktop.textScale(), 2);
    QGuiApplication::setFont(usual);
    EXPECT_EQ(desktop.textScale(), 1);
}

} // namespace
} // namespace vasker
