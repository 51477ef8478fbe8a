#include "map/tiles/TileInflation.h"

#include <gtest/gtest.h>
#include <zlib.h>

namespace vasker {
namespace {

std::string deflated(const std::string& bytes, int windowBits) {
    z_stream stream{};
    EXPECT_EQ(deflateInit2(&stream, 9, Z_DEFLATED, windowBits, 8, Z_DEFAULT_STRATEGY), Z_OK);
    std::string in = bytes;
    std::string out(deflateBound(&stream, in.size()) + 64, '\0');
    stream.next_in = reinterpret_cast<Bytef*>(in.data());
    stream.avail_in = static_cast<uInt>(in.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
    out.resize(out.size() - stream.avail_out);
    deflateEnd(&stream);
    return out;
}

constexpr int gzip = 15 + 16;
constexpr int zlib = 15;

const std::string tileBytes = "\x1a\x05 any bytes that no stream begins with";

TEST(TileInflation, GzipAndZlibAreInflated) {
    EXPECT_EQ(inflatedTile(deflated(tileBytes, gzip)), tileBytes);
    EXPECT_EQ(inflatedTile(deflated(tileBytes, zlib)), tileBytes);
}

TEST(TileInflation, OtherBytesAreKept) {
    EXPECT_EQ(inflatedTile(tileBytes), tileBytes);
    EXPECT_EQ(inflatedTile("x"), "x");
    EXPECT_EQ(inflatedTile(""), "");
}

TEST(TileInflation, AnEmptyStreamIsAnEmptyTile) {
    EXPECT_EQ(inflatedTile(deflated("", gzip)), "");
}

TEST(TileInflation, ABrokenOffOrDamagedStreamIsRefused) {
    for (const int format : {gzip, zlib}) {
        std::string bytes = deflated(tileBytes, format);
        for (std::size_t size = 2; size < bytes.size(); ++size) {
            EXPECT_EQ(inflatedTile(bytes.substr(0, size)), std::nullopt) << size;
        }
        bytes[bytes.size() / 2] = static_cast<char>(~bytes[bytes.size() / 2]);
        EXPECT_EQ(inflatedTile(bytes), std::nullopt);
    }
}

TEST(TileInflation, WhatInflatesBeyondTheLargestTileIsRefused) {
    EXPECT_EQ(inflatedTile(deflated(std::string(maximumTileBytes, '\0'), gzip))->size(),
              maximumTileBytes);
    EXPECT_EQ(inflatedTile(deflated(std::string(maximumTileBytes + 1, '\0'), gzip)), std::nullopt);
    EXPECT_EQ(inflatedTile(std::string(maximumTileBytes + 1, '\0')), std::nullopt);
}

} // namespace
} // namespace vasker
