#include "app/saving/MapPicture.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vasker {
namespace {

const QColor paper(250, 250, 250);
const QColor ground(10, 200, 30);

MapPicture picture(double scale = 1) {
    QImage map(static_cast<int>(400 * scale), static_cast<int>(300 * scale), QImage::Format_RGB32);
    map.fill(ground);
    return {.map = map,
            .scale = scale,
            .title = QStringLiteral("A title"),
            .notes = {QStringLiteral("A note."), QString(), QStringLiteral("Another note.")},
            .background = paper,
            .text = Qt::black,
            .quietText = Qt::black};
}

/// How many pixels of the picture below the map are no background.
int writtenPixels(const QImage& image, int mapHeight) {
    int written = 0;
    for (int y = mapHeight; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            written += image.pixelColor(x, y) != paper ? 1 : 0;
        }
    }
    return written;
}

TEST(MapPicture, IsTheMapAndBelowItAStripWithTexts) {
    const QImage image = picture().composed();
    EXPECT_EQ(image.width(), 400);
    EXPECT_GT(image.height(), 300 + 40);
    EXPECT_EQ(image.copy(0, 0, 400, 300), picture().map);
    EXPECT_GT(writtenPixels(image, 300), 100);
}

TEST(MapPicture, GrowsWithEachNoteAndNotWithAnEmptyOne) {
    MapPicture more = picture();
    more.notes.append(QStringLiteral("A third note."));
    MapPicture same = picture();
    same.notes.append(QString());
    EXPECT_GT(more.composed().height(), picture().composed().height());
    EXPECT_EQ(same.composed().height(), picture().composed().height());
}

TEST(MapPicture, SetsALongNoteInSeveralLinesWithinItsWidth) {
    MapPicture longer = picture();
    longer.notes = {QStringLiteral("word ").repeated(100)};
    const QImage image = longer.composed();
    EXPECT_GT(image.height(), picture().composed().height() + 60);
    EXPECT_EQ(writtenPixels(image.copy(390, 0, 10, image.height()), 300), 0);
}

TEST(MapPicture, OfTwiceTheSizeHasTextsOfTwiceTheSize) {
    EXPECT_EQ(picture(2).composed().size(), picture().composed().size() * 2);
}

TEST(MapPicture, IsWrittenAsPngThatReadsBackTheSame) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("map.PNG"));
    EXPECT_EQ(picture().write(path), QString());
    EXPECT_EQ(QImage(path, "png").convertToFormat(QImage::Format_RGB32), picture().composed());
}

TEST(MapPicture, OfAnotherFormatIsRefusedAndNothingIsWritten) {
    const QTemporaryDir folder;
    for (const char* name : {"map.jpg", "map", "map.pdf"}) {
        EXPECT_EQ(picture().write(folder.filePath(QString::fromLatin1(name))),
                  QStringLiteral("its name has to end in .png."));
    }
    EXPECT_NE(picture().write(folder.filePath(QStringLiteral("absent/map.png"))), QString());
    EXPECT_EQ(QDir(folder.path()).count(), 2U);
}

} // namespace
} // namespace vasker
