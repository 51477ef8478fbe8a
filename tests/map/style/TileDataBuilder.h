#pragma once
// Tiles and archives for tests: all land, all sea, or imagery of one colour.

#include "map/geometry/TileKey.h"

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>

#include <gtest/gtest.h>
#include <protozero/pbf_writer.hpp>
#include <sqlite3.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace vasker {

/// A vector tile without anything in it.
inline std::string landTile() {
    std::string bytes;
    protozero::pbf_writer tile(bytes);
    protozero::pbf_writer(tile, 3).add_string(1, "land");
    return bytes;
}

/// A vector tile that the sea fills, margins included.
inline std::string seaTile() {
    const auto by = [](std::int32_t distance) { return protozero::encode_zigzag32(distance); };
    constexpr std::uint32_t moveOnce = 1 << 3 | 1;
    constexpr std::uint32_t lineThrice = 3 << 3 | 2;
    constexpr std::uint32_t closePath = 1 << 3 | 7;
    constexpr std::int32_t side = 4096 + 200;
    const std::array<std::uint32_t, 10> square{moveOnce,
                                               by(-100),
                                               by(-100),
                                               lineThrice,
                                               by(side),
                                               by(0),
                                               by(0),
                                               by(side),
                                               by(-side),
                                               by(0)};
    std::vector<std::uint32_t> geometry(square.begin(), square.end());
    geometry.push_back(closePath);
    std::string bytes;
    protozero::pbf_writer tile(bytes);
    protozero::pbf_writer layer(tile, 3);
    layer.add_string(1, "ocean");
    {
        protozero::pbf_writer feature(layer, 2);
        feature.add_enum(3, 3); // a polygon
        feature.add_packed_uint32(4, geometry.begin(), geometry.end());
    }
    layer.add_uint32(5, 4096);
    layer.add_uint32(15, 2);
    return bytes;
}

/// A vector tile with a sea whose shore crosses the whole tile so often.
inline std::string zigzagTile(int crossings) {
    constexpr std::int32_t side = 4096;
    std::vector<std::uint32_t> geometry{1U << 3U | 1U, 0, 0};
    geometry.push_back(static_cast<std::uint32_t>(crossings) << 3U | 2U);
    for (int i = 0; i < crossings; ++i) {
        const int across = (i + 1) * side / crossings - i * side / crossings;
        geometry.push_back(protozero::encode_zigzag32(across));
        geometry.push_back(protozero::encode_zigzag32(i % 2 == 0 ? side : -side));
    }
    geometry.push_back(1U << 3U | 7U);
    std::string bytes;
    protozero::pbf_writer tile(bytes);
    protozero::pbf_writer layer(tile, 3);
    layer.add_string(1, "ocean");
    {
        protozero::pbf_writer feature(layer, 2);
        feature.add_enum(3, 3); // a polygon
        feature.add_packed_uint32(4, geometry.begin(), geometry.end());
    }
    layer.add_uint32(5, side);
    layer.add_uint32(15, 2);
    return bytes;
}

/// A photograph as a service sends it, of 256 pixels.
inline QByteArray imageryImage(const QColor& color) {
    QImage image(256, 256, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "png"));
    return bytes;
}

using ArchivedTiles = std::vector<std::pair<TileKey, std::string>>;

/// Makes an archive of these tiles.
inline void writeArchive(const std::string& path,
                         const ArchivedTiles& tiles,
                         const std::string& attribution = "The archive") {
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
    const std::string statements =
        "PRAGMA synchronous = OFF;"
        "CREATE TABLE metadata (name TEXT, value TEXT);"
        "CREATE TABLE tiles (zoom_level INTEGER, tile_column INTEGER, tile_row INTEGER,"
        "                    tile_data BLOB);"
        "INSERT INTO metadata VALUES ('attribution', '" +
        attribution + "');";
    EXPECT_EQ(sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(database, "INSERT INTO tiles VALUES (?, ?, ?, ?)", -1, &insert, nullptr);
    for (const auto& [key, bytes] : tiles) {
        sqlite3_bind_int(insert, 1, key.zoom);
        sqlite3_bind_int(insert, 2, key.column);
        sqlite3_bind_int(insert, 3, (1 << key.zoom) - 1 - key.row); // from the south
        sqlite3_bind_blob(
            insert, 4, bytes.data(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
        EXPECT_EQ(sqlite3_step(insert), SQLITE_DONE);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    sqlite3_close(database);
}

} // namespace vasker
