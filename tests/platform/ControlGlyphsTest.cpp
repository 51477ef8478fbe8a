#include "platform/ui/theme/ControlGlyphs.h"

#include "platform/ui/theme/Fonts.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <array>

namespace vasker {
namespace {

class ControlGlyphs : public testing::Test {
  protected:
    static void SetUpTestSuite() { installInterfaceFont(); }

    static QString around(char32_t character) {
        return u'a' + QString::fromUcs4(&character, 1) + u'b';
    }
    static QImage drawn(const QString& text) {
        QImage image(120, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(QGuiApplication::font());
        painter.drawText(QPointF(10, 25), text);
        return image;
    }
};

TEST_F(ControlGlyphs, WhatIsToBeObeyedShowsNothing) {
    constexpr std::array<char32_t, 28> invisible{
        0x0000, 0x0001,  0x0008,  0x000B,   0x000C,  0x001B,  0x001F,  0x007F, 0x0080, 0x009F,
        0x00AD, 0x115F,  0x200B,  0x200F,   0x202E,  0x2066,  0x3164,  0xFDD0, 0xFEFF, 0xFFFE,
        0xFFFF, 0x1BCA0, 0xE0001, 0x10FFFF, 0x1107F, 0x13430, 0x1343F, 0x16FE4};
    const QImage letters = drawn(QStringLiteral("ab"));
    for (const char32_t character : invisible) {
        EXPECT_EQ(drawn(around(character)), letters) << std::hex << std::uint32_t{character};
    }
}

TEST_F(ControlGlyphs, AnotherFontOfTheDesktopChangesTheSizeAlone) {
    const QFont usual = QGuiApplication::font();
    QFont desktops(QStringLiteral("DejaVu Sans"));
    desktops.setPixelSize(22);
    QGuiApplication::setFont(desktops);
    const QFont font = QGuiApplication::font();
    EXPECT_EQ(font.pixelSize(), 22);
    EXPECT_EQ(font.families().constFirst(), usual.families().constFirst());
    EXPECT_EQ(font.families().constLast(), usual.families().constLast());
    EXPECT_TRUE(font.families().contains(QStringLiteral("DejaVu Sans")));
    QGuiApplication::setFont(usual);
}

TEST_F(ControlGlyphs, WhatIsToBeSeenShows) {
    const QImage letters = drawn(QStringLiteral("ab"));
    for (const char32_t character :
         {U' ', U'\t', U'c', U'\u00a0', U'\u0645', U'\ufffd', U'\u0378'}) {
        EXPECT_NE(drawn(around(character)), letters) << std::hex << std::uint32_t{character};
    }
}

TEST_F(ControlGlyphs, LinesAreNoHigherForThem) {
    const QFontMetricsF metrics(QGuiApplication::font());
    const QString letters = QStringLiteral("ab");
    EXPECT_EQ(metrics.boundingRect({0, 0, 500, 500}, 0, around(0x0001)),
              metrics.boundingRect({0, 0, 500, 500}, 0, letters));
}

} // namespace
} // namespace vasker
