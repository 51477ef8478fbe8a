#include "platform/ui/theme/Theme.h"

#include "platform/Appearance.h"

#include <QDBusVariant>
#include <QFontMetricsF>

#include <gtest/gtest.h>

#include <utility>

namespace vasker {
namespace {

class ThemeTest : public testing::Test {
  protected:
    // As the desktop tells it.
    void set(const char* group, const char* key, const QVariant& value) {
        QMetaObject::invokeMethod(&m_appearance,
                                  "apply",
                                  Q_ARG(QString, QString::fromLatin1(group)),
                                  Q_ARG(QString, QString::fromLatin1(key)),
                                  Q_ARG(QDBusVariant, QDBusVariant(value)));
    }

    Appearance m_appearance{QDBusConnection(QStringLiteral("none"))};
    Theme m_theme{m_appearance};
};

TEST_F(ThemeTest, FollowsTheColorSchemeOfTheDesktop) {
    for (const auto& [number, scheme] :
         {std::pair(1U, ColorScheme::dark), std::pair(2U, ColorScheme::light)}) {
        set("org.freedesktop.appearance", "color-scheme", number);
        EXPECT_EQ(m_theme.isDark(), scheme == ColorScheme::dark);
        EXPECT_EQ(m_theme.colors().window, themeColors(scheme).window);
    }
}

TEST_F(ThemeTest, FollowsTheDesktopToHighContrast) {
    EXPECT_NE(m_theme.colors().text2, m_theme.colors().text);
    set("org.freedesktop.appearance", "contrast", 1U);
    EXPECT_EQ(m_theme.colors().text2, m_theme.colors().text);
}

TEST_F(ThemeTest, TextsAndControlsGrowWithTheTextSizeAndIconsUpToHalfAsMuchAgain) {
    EXPECT_EQ(m_theme.type().body.font.pixelSize(), 15);
    EXPECT_EQ(m_theme.type().body.lineHeight, 22);
    EXPECT_EQ(m_theme.controlHeight(), 36);
    EXPECT_EQ(m_theme.headerHeight(), 52);
    int changes = 0;
    QObject::connect(&m_theme, &Theme::textScaleChanged, [&] { ++changes; });
    set("org.gnome.desktop.interface", "text-scaling-factor", 2.0);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(m_theme.type().body.font.pixelSize(), 30);
    EXPECT_EQ(m_theme.type().body.lineHeight, 44);
    EXPECT_EQ(m_theme.controlHeight(), 56);
    EXPECT_EQ(m_theme.headerHeight(), 72);
    EXPECT_EQ(m_theme.iconScale(), 1.5);
}

TEST_F(ThemeTest, LettersStandInTheMiddleOfTheirLine) {
    const TextStyle body = m_theme.type().body;
    const double letters = QFontMetricsF(body.font).height();
    EXPECT_NEAR(2 * body.halfLeading + letters, body.lineHeight, 1);
}

TEST_F(ThemeTest, NothingMovesWhereTheDesktopAsksForThat) {
    EXPECT_GT(m_theme.menuDuration(), 0);
    set("org.freedesktop.appearance", "reduced-motion", 1U);
    EXPECT_TRUE(m_theme.isStill());
    EXPECT_EQ(m_theme.menuDuration() + m_theme.hoverDuration() + m_theme.settleDuration(), 0);
}

} // namespace
} // namespace vasker
