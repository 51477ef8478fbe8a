#include "map/style/ImageryDecoding.h"

#include "map/tiles/ImageryFormat.h"

#include <QBuffer>
#include <QImageWriter>
#include <QtEndian>

#include <gtest/gtest.h>

#include <random>

namespace vasker {
namespace {

QImage gradient(int width, int height, QImage::Format format = QImage::Format_RGB32) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 256));
        }
    }
    return image.convertToFormat(format);
}

QByteArray encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}

/// The four bytes of a PNG's width, and its header's checksum, replaced.
QByteArray withWidth(QByteArray png, quint32 width, quint32 checksum) {
    for (int i = 0; i < 4; ++i) {
        png[16 + i] = static_cast<char>(width >> (24 - 8 * i));
        png[29 + i] = static_cast<char>(checksum >> (24 - 8 * i));
    }
    return png;
}

/// The CRC-32 that PNG uses (ISO 3309).
quint32 checksumOf(const QByteArray& bytes) {
    quint32 sum = 0xffffffffU;
    for (const char byte : bytes) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xedb88320U : 0);
        }
    }
    return ~sum;
}

TEST(ImageryDecoding, ReadsJpegAndPng) {
    const QImage image = gradient(256, 128);
    EXPECT_EQ(decodedImagery(encoded(image, "png")), image);
    const QImage photograph = decodedImagery(encoded(image, "jpeg"));
    EXPECT_EQ(photograph.size(), QSize(256, 128));
    EXPECT_EQ(photograph.format(), QImage::Format_RGB32);
}

TEST(ImageryDecoding, AnyKindOfPixelsComesOutTheSame) {
    for (const auto format : {QImage::Format_Indexed8,
                              QImage::Format_Grayscale8,
                              QImage::Format_ARGB32,
                              QImage::Format_Mono,
                              QImage::Format_RGBA64}) {
        const QImage image = decodedImagery(encoded(gradient(16, 16, format), "png"));
        EXPECT_EQ(image.size(), QSize(16, 16)) << format;
        EXPECT_EQ(image.format(), QImage::Format_RGB32) << format;
    }
}

TEST(ImageryDecoding, TheSidesAreBounded) {
    EXPECT_FALSE(decodedImagery(encoded(gradient(1024, 1024), "jpeg")).isNull());
    EXPECT_TRUE(decodedImagery(encoded(gradient(1025, 1), "jpeg")).isNull());
    EXPECT_TRUE(decodedImagery(encoded(gradient(1, 1025), "png")).isNull());
}

/// A progressive JPEG image whose last scan is repeated until there are `scans`.
QByteArray jpegOf(int scans) {
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    EXPECT_TRUE(writer.write(gradient(64, 64)));
    const QByteArray last = jpeg.sliced(jpeg.lastIndexOf("\xff\xda")).chopped(2);
    const QByteArray end = jpeg.last(2);
    jpeg.chop(2);
    for (int had = static_cast<int>(jpeg.count("\xff\xda")); had < scans; ++had) {
        jpeg += last;
    }
    return jpeg + end;
}

TEST(ImageryDecoding, TheScansOfAJpegImageAreBounded) {
    const QImage image = decodedImagery(jpegOf(0));
    EXPECT_EQ(image.size(), QSize(64, 64));
    EXPECT_FALSE(decodedImagery(jpegOf(maximumImageryScans)).isNull());
    EXPECT_TRUE(decodedImagery(jpegOf(maximumImageryScans + 1)).isNull());
    EXPECT_TRUE(decodedImagery(jpegOf(30'000)).isNull());
}

TEST(ImageryDecoding, WhatLooksLikeAScanInsideOfAHeaderIsNone) {
    QByteArray jpeg = jpegOf(0);
    const QByteArray lookalikes = QByteArray("\xff\xda").repeated(200);
    jpeg.insert(2, QByteArray("\xff\xfe\x01\x92", 4) + lookalikes); // a comment
    EXPECT_FALSE(decodedImagery(jpeg).isNull());
}

TEST(ImageryDecoding, AHeaderThatLiesOfItsSizeCostsThePicture) {
    const QByteArray png = encoded(gradient(8, 8), "png");
    for (const quint32 width : {0U, 9U, 1'000U, 0x7fffffffU, 0xffffffffU}) {
        const QByteArray tried = withWidth(png, width, 0);
        const quint32 checksum = checksumOf(tried.mid(12, 17));
        EXPECT_TRUE(decodedImagery(withWidth(png, width, checksum)).isNull()) << width;
    }
    EXPECT_FALSE(decodedImagery(withWidth(png, 8, checksumOf(png.mid(12, 17)))).isNull());
    QByteArray jpeg = encoded(gradient(8, 8), "jpeg");
    const qsizetype frame = jpeg.indexOf("\xff\xc0");
    ASSERT_GT(frame, 0);
    for (int i = 5; i < 9; ++i) {
        jpeg[frame + i] = '\xff';
    }
    EXPECT_TRUE(decodedImagery(jpeg).isNull());
}

/// A chunk of a PNG image.
QByteArray chunk(const QByteArray& type, const QByteArray& data) {
    QByteArray bytes(8, '\0');
    qToBigEndian(static_cast<quint32>(data.size()), bytes.data());
    qToBigEndian(checksumOf(type + data), bytes.data() + 4);
    return bytes.first(4) + type + data + bytes.last(4);
}

TEST(ImageryDecoding, TextsInAPngImageTakeNoMemory) {
    const QByteArray deflated = qCompress(QByteArray(1'000'000, 'a')).mid(4);
    const QByteArray text = chunk("zTXt", QByteArray("key\0\0", 5) + deflated);
    QByteArray png = encoded(gradient(64, 64), "png");
    png.insert(png.indexOf("IDAT") - 4, text.repeated(100));
    png.insert(png.size() - 12, text.repeated(100));
    const QImage image = decodedImagery(png);
    EXPECT_EQ(image, gradient(64, 64));
    EXPECT_TRUE(image.textKeys().isEmpty());
}

TEST(ImageryDecoding, HalfAPictureIsNone) {
    for (const char* const format : {"jpeg", "png"}) {
        const QByteArray whole = encoded(gradient(64, 64), format);
        for (qsizetype length = 0; length < whole.size() - 8; length += 7) {
            EXPECT_TRUE(decodedImagery(whole.left(length)).isNull()) << format << " " << length;
        }
    }
}

TEST(ImageryDecoding, OtherFormatsAreNotRead) {
    const QImage image = gradient(8, 8);
    for (const char* const format : {"bmp", "ppm", "xpm"}) {
        EXPECT_TRUE(decodedImagery(encoded(image, format)).isNull()) << format;
    }
    for (const char* const bytes :
         {"",
          "x",
          "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\"/>",
          "<?xml version=\"1.0\"?><svg width=\"8\" height=\"8\"/>",
          "GIF89a\x08",
          "%PDF-1.4",
          "<!DOCTYPE html>"}) {
        EXPECT_TRUE(decodedImagery(bytes).isNull()) << bytes;
        EXPECT_EQ(imageryFormat(bytes), nullptr) << bytes;
    }
}

TEST(ImageryDecoding, OneFormatDressedAsAnotherIsNotRead) {
    const QByteArray drawing = "<svg xmlns=\"http://www.w3.org/2000/svg\"/>";
    EXPECT_TRUE(decodedImagery("\xff\xd8\xff" + drawing + "\xff\xd9").isNull());
    EXPECT_TRUE(decodedImagery("\x89PNG\r\n\x1a\n" + drawing + "IEND").isNull());
    EXPECT_TRUE(decodedImagery("RIFF" + QByteArray(4, 'x') + "WEBP" + drawing).isNull());
    QByteArray png = encoded(gradient(8, 8), "png");
    EXPECT_TRUE(decodedImagery(png.replace(0, 4, "\xff\xd8\xff\xe0")).isNull());
}

TEST(ImageryDecoding, DamageNeverCostsMoreThanThePicture) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same damage each time
    for (const char* const format : {"jpeg", "png"}) {
        const QByteArray whole = encoded(gradient(64, 64), format);
        for (int round = 0; round < 300; ++round) {
            QByteArray damaged = whole;
            for (int change = 0; change < 4; ++change) {
                const auto place = static_cast<qsizetype>(random()) % damaged.size();
                damaged[place] = static_cast<char>(random());
            }
            const QImage image = decodedImagery(damaged);
            EXPECT_TRUE(image.isNull() || image.format() == QImage::Format_RGB32);
            EXPECT_LE(image.width(), maximumImagerySide);
        }
    }
}

} // namespace
} // namespace vasker
