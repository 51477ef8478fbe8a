#include "map/style/ImagePool.h"

#include "map/style/TilePainter.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

namespace vasker {
namespace {

TEST(ImagePool, AnImageTakesTheMemoryOfOneThatIsGone) {
    const uchar* const first = pooledImage(512, 512, QImage::Format_RGB32).constBits();
    EXPECT_EQ(pooledImage(512, 512, QImage::Format_RGB32).constBits(), first);
    EXPECT_EQ(pooledImage(510, 511, QImage::Format_RGB32).constBits(), first);
}

TEST(ImagePool, MemoryThatIsInUseIsNotGivenToAnotherImage) {
    QImage first = pooledImage(512, 512, QImage::Format_RGB32);
    const QImage shared = first;
    first.fill(Qt::red); // detaches
    const QImage second = pooledImage(512, 512, QImage::Format_RGB32);
    EXPECT_NE(second.constBits(), shared.constBits());
    EXPECT_NE(second.constBits(), first.constBits());
}

TEST(ImagePool, ASmallImageDoesNotTakeALargeBlock) {
    const uchar* const large = pooledImage(1024, 1024, QImage::Format_RGB32).constBits();
    EXPECT_NE(pooledImage(256, 256, QImage::Format_RGB32).constBits(), large);
}

TEST(ImagePool, WhatIsKeptIsBounded) {
    {
        std::vector<QImage> images;
        for (int i = 0; i < 40; ++i) {
            images.push_back(pooledImage(512, 512, QImage::Format_RGB32));
        }
    }
    EXPECT_LE(pooledBytes(), mostPooledBytes);
    EXPECT_GT(pooledBytes(), mostPooledBytes / 2);
}

TEST(ImagePool, AnEmptiedPoolKeepsNothingAndIsUsedAgain) {
    const QImage inUse = pooledImage(512, 512, QImage::Format_RGB32);
    { const QImage dropped = pooledImage(512, 512, QImage::Format_RGB32); }
    ASSERT_GT(pooledBytes(), 0U);
    emptyImagePool();
    EXPECT_EQ(pooledBytes(), 0U);
    { const QImage dropped = pooledImage(512, 512, QImage::Format_RGB32); }
    EXPECT_GT(pooledBytes(), 0U);
}

TEST(ImagePool, ATileIsPaintedIntoItsMemoryAndNotCopied) {
    emptyImagePool();
    TileData data;
    data.vector = std::make_shared<VectorTile>();
    TileRequest request;
    request.devicePixelsPerMapPoint = 512 / request.key.side();
    const QImage tile = paintTile(data, request);
    EXPECT_EQ(tile.width(), 512);
    EXPECT_EQ(pooledBytes(), 0U); // of a copy, the first image would have gone back
}

TEST(ImagePool, ACopyHoldsTheSamePixels) {
    QImage image(37, 11, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.setPixelColor(36, 10, Qt::blue);
    const QImage copy = pooledCopy(image);
    EXPECT_EQ(copy, image);
    EXPECT_NE(copy.constBits(), image.constBits());
}

TEST(ImagePool, NoImageHasNoMemory) {
    EXPECT_TRUE(pooledImage(0, 512, QImage::Format_RGB32).isNull());
    EXPECT_TRUE(pooledCopy({}).isNull());
}

TEST(ImagePool, ThreadsMayMakeAndDropImages) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread] {
            for (int i = 0; i < 200; ++i) {
                QImage image = pooledImage(200 + thread, 200, QImage::Format_RGB32);
                image.fill(static_cast<uint>(thread));
                ASSERT_EQ(image.pixel(199, 199) & 0xffU, static_cast<uint>(thread));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_LE(pooledBytes(), mostPooledBytes);
}

} // namespace
} // namespace vasker
