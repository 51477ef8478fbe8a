#include "app/saving/MapPicture.h"

#include "tests/app/PictureBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

/// How many pixels of a part of the image are not of that colour.
int pixelsOtherThan(const QColor& color, const QImage& image, const QRect& part) {
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            count += image.pixelColor(x, y) != color ? 1 : 0;
        }
    }
    return count;
}

QRect strip(const QImage& image) {
    return {0,
            static_cast<int>(mapHeight),
            image.width(),
            image.height() - static_cast<int>(mapHeight)};
}

const QRect barPlace(0, 250, 200, 50);
const QRect northPlace(320, 0, 80, 80);

TEST(MapPicture, IsTheMapAndBelowItAStripWithTexts) {
    const QImage image = makePicture().composed();
    EXPECT_EQ(image.width(), 400);
    EXPECT_GT(image.height(), 300 + 40);
    EXPECT_EQ(image.pixelColor(2, 2), backgroundColor);
    EXPECT_EQ(image.pixelColor(2, 299), backgroundColor);
    EXPECT_EQ(image.pixelColor(100, 100), dotColor);
    EXPECT_EQ(image.pixelColor(2, 301), paper);
    EXPECT_GT(pixelsOtherThan(paper, image, strip(image)), 100);
}

TEST(MapPicture, GrowsWithEachNoteAndNotWithAnEmptyOne) {
    MapPicture more = makePicture();
    more.notes.append(QStringLiteral("A third note."));
    MapPicture same = makePicture();
    same.notes.append(QString());
    EXPECT_GT(more.size().height(), makePicture().size().height());
    EXPECT_EQ(same.size(), makePicture().size());
}

TEST(MapPicture, SetsALongNoteInSeveralLinesWithinItsWidth) {
    MapPicture longer = makePicture();
    longer.notes = {QStringLiteral("word ").repeated(100)};
    const QImage image = longer.composed();
    EXPECT_GT(image.height(), makePicture().size().height() + 60);
    QRect edge = strip(image);
    edge.setLeft(390);
    EXPECT_EQ(pixelsOtherThan(paper, image, edge), 0);
}

TEST(MapPicture, OfTwiceTheSizeHasAllOfTwiceTheSize) {
    const QImage image = makePicture(2).composed();
    EXPECT_EQ(image.size(), makePicture().composed().size() * 2);
    EXPECT_EQ(image.pixelColor(200, 200), dotColor);
    EXPECT_EQ(image.pixelColor(200, 212), dotColor);
}

TEST(MapPicture, HasAScaleBarWhereThereIsALength) {
    MapPicture picture = makePicture();
    EXPECT_EQ(pixelsOtherThan(backgroundColor, picture.composed(), barPlace), 0);
    picture.barLength = 120;
    picture.barText = QStringLiteral("50 km");
    EXPECT_GT(pixelsOtherThan(backgroundColor, picture.composed(), barPlace), 300);
}

TEST(MapPicture, HasAnArrowToTheNorthOnlyWhereThatIsNotUp) {
    MapPicture picture = makePicture();
    EXPECT_EQ(pixelsOtherThan(backgroundColor, picture.composed(), northPlace), 0);
    picture.bearing = 90; // north is to the left of the middle, at (366, 34)
    const QImage turned = picture.composed();
    EXPECT_EQ(turned.pixelColor(360, 34), picture.north);
    EXPECT_NE(turned.pixelColor(372, 34), picture.north);
}

} // namespace
} // namespace vasker
