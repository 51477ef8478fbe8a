#include "map/tiles/TileArchive.h"

#include "map/geometry/Projection.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <atomic>
#include <ctime>
#include <filesystem>
#include <fstream>

namespace vasker {
namespace {

constexpr const char* schema = "CREATE TABLE metadata (name TEXT, value TEXT);"
                               "CREATE TABLE tiles (zoom_level INTEGER, tile_column INTEGER,"
                               "                    tile_row INTEGER, tile_data BLOB);";

class TileArchiveTest : public testing::Test {
  protected:
    TileArchiveTest() { std::filesystem::create_directories(m_folder); }
    ~TileArchiveTest() override {
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }

    [[nodiscard]] std::string pathOf(const std::string& name) const { return m_folder / name; }

    /// The path of a database that these statements make.
    std::string made(const std::string& statements, const std::string& name = "made.mbtiles") {
        const std::string path = pathOf(name);
        sqlite3* database = nullptr;
        EXPECT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
        char* message = nullptr;
        sqlite3_exec(database, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
        sqlite3_exec(database, statements.c_str(), nullptr, nullptr, &message);
        EXPECT_EQ(message, nullptr) << message;
        sqlite3_free(message);
        sqlite3_close(database);
        return path;
    }

    std::unique_ptr<TileArchive> opened(const std::string& rows) {
        return TileArchive::open(made(schema + rows));
    }

    std::string written(const std::string& bytes, const std::string& name = "written.mbtiles") {
        const std::string path = pathOf(name);
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

  private:
    static inline std::atomic<int> number = 0;
    std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() /
        ("tile-archive-" + std::to_string(getpid()) + "-" + std::to_string(++number));
};

std::string bytesOf(const std::string& path) {
    std::string bytes(std::filesystem::file_size(path), '\0');
    std::ifstream(path, std::ios::binary)
        .read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

TEST_F(TileArchiveTest, AnAbsentFileIsNoArchive) {
    EXPECT_EQ(TileArchive::open(pathOf("absent.mbtiles")), nullptr);
    EXPECT_EQ(TileArchive::open(""), nullptr);
}

TEST_F(TileArchiveTest, AFolderIsNoArchive) {
    EXPECT_EQ(TileArchive::open(pathOf("")), nullptr);
}

TEST_F(TileArchiveTest, GarbageIsNoArchive) {
    EXPECT_EQ(TileArchive::open(written("")), nullptr);
    EXPECT_EQ(TileArchive::open(written(std::string(10'000, 'x'))), nullptr);
}

TEST_F(TileArchiveTest, ADatabaseOfAnotherSchemaIsNoArchive) {
    EXPECT_EQ(TileArchive::open(made("CREATE TABLE tiles (z INTEGER)", "tiles")), nullptr);
    EXPECT_EQ(TileArchive::open(made("CREATE TABLE metadata (name, value)", "metadata")), nullptr);
}

TEST_F(TileArchiveTest, OpeningMakesNoFile) {
    const std::string path = pathOf("absent.mbtiles");
    EXPECT_EQ(TileArchive::open(path), nullptr);
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(TileArchiveTest, RowsAreCountedFromTheSouthInTheFile) {
    const auto archive = opened("INSERT INTO tiles VALUES (2, 1, 3, x'6E6F727468')");
    EXPECT_EQ(archive->tile({2, 1, 0}), "north");
    EXPECT_EQ(archive->tile({2, 1, 3}), std::nullopt);
}

TEST_F(TileArchiveTest, APathMayHoldWhatAnAddressMayNot) {
    for (const char* name :
         {"a?b.mbtiles", "a#b", "100%25.mbtiles", "a b", "é?mode=memory", "a&b"}) {
        const auto archive = TileArchive::open(
            made(std::string(schema) + "INSERT INTO tiles VALUES (0, 0, 0, x'01')", name));
        ASSERT_NE(archive, nullptr) << name;
        EXPECT_EQ(archive->tile({0, 0, 0}), "\x01") << name;
    }
}

TEST_F(TileArchiveTest, WhatIsNoBlobOrHasNoBytesIsNoTile) {
    const auto archive = opened("INSERT INTO tiles VALUES (1, 0, 1, NULL), (1, 1, 1, x''),"
                                "(1, 0, 0, 'text'), (1, 1, 0, 17)");
    for (const TileKey key : {TileKey{1, 0, 0}, {1, 1, 0}, {1, 0, 1}, {1, 1, 1}}) {
        EXPECT_EQ(archive->tile(key), std::nullopt);
    }
}

TEST_F(TileArchiveTest, AHugeBlobIsNoTile) {
    const auto archive = opened("INSERT INTO tiles VALUES (0, 0, 0, zeroblob(9000000))");
    EXPECT_EQ(archive->tile({0, 0, 0}), std::nullopt);
}

TEST_F(TileArchiveTest, KeysBesideTheWorldHaveNoTile) {
    const auto archive = opened("INSERT INTO tiles VALUES (0, 0, 0, x'01'), (1, -1, 0, x'02'),"
                                "(1, 2, 0, x'03'), (-1, 0, 0, x'04')");
    for (const TileKey key :
         {TileKey{1, -1, 1}, {1, 2, 1}, {1, 0, -1}, {1, 0, 2}, {-1, 0, 0}, {40, 0, 0}}) {
        EXPECT_EQ(archive->tile(key), std::nullopt);
        EXPECT_FALSE(archive->nearestTile(key).has_value());
    }
}

TEST_F(TileArchiveTest, MetadataTellZoomAndCredit) {
    const auto archive =
        opened("INSERT INTO metadata VALUES ('maxzoom', '7'), ('attribution', 'Made by hand')");
    EXPECT_EQ(archive->maximumZoom(), 7);
    EXPECT_EQ(archive->attribution(), "Made by hand");
}

TEST_F(TileArchiveTest, WhereTheMetadataMakeNoSenseTheTilesTellTheZoom) {
    for (const char* zoom : {"", "abc", "-1", "999", "7.5", "99999999999999999999"}) {
        const auto archive =
            TileArchive::open(made(std::string(schema) +
                                       "INSERT INTO tiles VALUES (3, 0, 0, x'01');"
                                       "INSERT INTO metadata VALUES ('maxzoom', '" +
                                       zoom + "')",
                                   std::string("zoom") + zoom));
        ASSERT_NE(archive, nullptr) << zoom;
        EXPECT_EQ(archive->maximumZoom(), 3) << zoom;
    }
}

TEST_F(TileArchiveTest, AnArchiveWithoutTilesOrMetadataIsEmpty) {
    const auto archive = opened("");
    ASSERT_NE(archive, nullptr);
    EXPECT_EQ(archive->maximumZoom(), 0);
    EXPECT_EQ(archive->attribution(), "");
    EXPECT_FALSE(archive->nearestTile({0, 0, 0}).has_value());
}

TEST_F(TileArchiveTest, TheNearestTileOfAMissingOneIsItsAncestor) {
    const auto archive = opened("INSERT INTO metadata VALUES ('maxzoom', '3');"
                                "INSERT INTO tiles VALUES (1, 0, 1, x'31'), (3, 1, 6, x'33')");
    const auto own = archive->nearestTile({3, 1, 1});
    EXPECT_EQ(own->key, (TileKey{3, 1, 1}));
    EXPECT_EQ(own->bytes, "3");
    const auto deeper = archive->nearestTile({5, 7, 4});
    EXPECT_EQ(deeper->key, (TileKey{3, 1, 1}));
    const auto missing = archive->nearestTile({3, 0, 0});
    EXPECT_EQ(missing->key, (TileKey{1, 0, 0}));
    EXPECT_EQ(missing->bytes, "1");
    EXPECT_FALSE(archive->nearestTile({3, 7, 7}).has_value());
}

// The north-west quarter of the world in detail: one tile of zoom 1.
constexpr const char* coveredQuarter =
    "INSERT INTO metadata VALUES ('maxzoom', '4'), ('world_maxzoom', '2'),"
    "                            ('detail_bounds', '-180,0,0,85.05113');"
    "INSERT INTO tiles VALUES (0, 0, 0, x'30'), (2, 3, 0, x'32')";

TEST_F(TileArchiveTest, WhatIsMissingWhereTheArchiveCoversTheWorldIsEmpty) {
    const auto archive = opened(coveredQuarter);
    const auto empty = archive->nearestTile({2, 0, 0});
    EXPECT_EQ(empty->key, (TileKey{2, 0, 0}));
    EXPECT_EQ(empty->bytes, "");
}

TEST_F(TileArchiveTest, WhatIsMissingWithinTheDetailIsEmptyAndBesideItComesFromAbove) {
    const auto archive = opened(coveredQuarter);
    const auto within = archive->nearestTile({4, 7, 7});
    EXPECT_EQ(within->key, (TileKey{4, 7, 7}));
    EXPECT_EQ(within->bytes, "");
    const auto deeper = archive->nearestTile({6, 31, 31});
    EXPECT_EQ(deeper->key, (TileKey{4, 7, 7}));
    const auto beside = archive->nearestTile({4, 15, 15});
    EXPECT_EQ(beside->key, (TileKey{2, 3, 3}));
    EXPECT_EQ(beside->bytes, "2");
}

TEST_F(TileArchiveTest, CoverageThatMakesNoSenseCoversNothing) {
    for (const char* bounds : {"",
                               "1,2,3",
                               "10,0,-10,5",
                               "0,10,5,-10",
                               "5,0,5,10",
                               "0,5,10,5",
                               "-180.5,0,0,85",
                               "0,-85,180.5,85",
                               "a,b,c,d",
                               "nan,0,1,1",
                               "-180,0,0,1e400",
                               "-180,0,0,85 "}) {
        const auto archive =
            TileArchive::open(made(std::string(schema) +
                                       "INSERT INTO tiles VALUES (0, 0, 0, x'30');"
                                       "INSERT INTO metadata VALUES ('maxzoom', '4'),"
                                       "('world_maxzoom', '2'), ('detail_bounds', '" +
                                       bounds + "')",
                                   std::string("bounds") + bounds));
        ASSERT_NE(archive, nullptr) << bounds;
        EXPECT_EQ(archive->nearestTile({4, 7, 7})->key, (TileKey{0, 0, 0})) << bounds;
    }
}

TEST_F(TileArchiveTest, ATruncatedFileIsNoArchive) {
    const std::string whole =
        bytesOf(made(std::string(schema) +
                     "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 64)"
                     "INSERT INTO tiles SELECT 6, i, 0, zeroblob(5000) FROM n;"));
    for (const std::size_t size :
         {whole.size() - 4096, whole.size() / 2, std::size_t{4096}, std::size_t{100}}) {
        EXPECT_EQ(TileArchive::open(written(whole.substr(0, size))), nullptr) << size;
    }
}

TEST_F(TileArchiveTest, DamagedPagesCostTheirTilesOnly) {
    std::string bytes = bytesOf(made(std::string(schema) +
                                     "WITH RECURSIVE n(i) AS "
                                     "(SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 64)"
                                     "INSERT INTO tiles SELECT 6, i, 0, randomblob(6000) FROM n;"));
    for (std::size_t at = 3 * 4096; at < bytes.size(); at += 97) {
        bytes[at] = static_cast<char>(at * 31 + 7);
    }
    const auto archive = TileArchive::open(written(bytes));
    ASSERT_NE(archive, nullptr);
    int found = 0;
    for (int column = 0; column < 64; ++column) {
        found += static_cast<int>(archive->tile({6, column, 63}).has_value());
    }
    EXPECT_LT(found, 64);
}

TEST_F(TileArchiveTest, ASearchWithoutEndIsGivenUpOnce) {
    for (const char* endless : {
             "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
             "SELECT 0 AS zoom_level, -i AS tile_column, 0 AS tile_row, x'01' AS tile_data FROM n",
             "SELECT 0 AS zoom_level, -1 - (a.name || b.name || c.name || d.name = '')"
             " AS tile_column, 0 AS tile_row, x'01' AS tile_data"
             " FROM metadata a, metadata b, metadata c, metadata d",
         }) {
        std::filesystem::remove(pathOf("made.mbtiles"));
        const auto archive = TileArchive::open(
            made("CREATE TABLE metadata (name TEXT, value TEXT);"
                 "INSERT INTO metadata VALUES ('maxzoom', '20');"
                 "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 200)"
                 "INSERT INTO metadata SELECT hex(zeroblob(5000)), '' FROM n;"
                 "CREATE VIEW tiles AS " +
                 std::string(endless)));
        ASSERT_NE(archive, nullptr) << endless;
        const std::clock_t start = std::clock();
        for (int column = 0; column < 1'000; ++column) {
            EXPECT_EQ(archive->nearestTile({20, column, 0}), std::nullopt);
        }
        EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC) << endless;
    }
}

TEST_F(TileArchiveTest, WhatTakesForEverToOpenIsNoArchive) {
    const std::clock_t start = std::clock();
    EXPECT_EQ(TileArchive::open(made(
                  "CREATE TABLE metadata (name TEXT, value TEXT);"
                  "CREATE VIEW tiles AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1"
                  " FROM n) SELECT 0 AS zoom_level, -i AS tile_column, 0 AS tile_row,"
                  " x'01' AS tile_data FROM n")),
              nullptr);
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
}

TEST_F(TileArchiveTest, AViewThatJoinsIsAnArchive) {
    const auto archive =
        TileArchive::open(made("CREATE TABLE metadata (name TEXT, value TEXT);"
                               "CREATE TABLE map (zoom_level, tile_column, tile_row, id);"
                               "CREATE TABLE images (id, tile_data);"
                               "INSERT INTO map VALUES (0, 0, 0, 'a');"
                               "INSERT INTO images VALUES ('a', x'01');"
                               "CREATE VIEW tiles AS SELECT zoom_level, tile_column, tile_row,"
                               " tile_data FROM map JOIN images ON images.id = map.id"));
    ASSERT_NE(archive, nullptr);
    EXPECT_EQ(archive->tile({0, 0, 0}), "\x01");
}

TEST_F(TileArchiveTest, WhatComputesIsNoArchive) {
    const std::string metadata = "CREATE TABLE metadata (name TEXT, value TEXT);";
    for (const char* tiles : {
             "CREATE VIEW tiles AS SELECT 0 AS zoom_level, 0 AS tile_column, 0 AS tile_row,"
             " randomblob(8) AS tile_data",
             "CREATE VIEW tiles AS SELECT 0 AS zoom_level, name LIKE '%a%' AS tile_column,"
             " 0 AS tile_row, x'01' AS tile_data FROM metadata",
             "CREATE TABLE tiles (zoom_level, tile_column, tile_row,"
             " tile_data AS (instr(zoom_level, tile_row)))",
             "CREATE VIRTUAL TABLE tiles USING fts5(zoom_level, tile_column, tile_row, tile_data)",
         }) {
        std::filesystem::remove(pathOf("made.mbtiles"));
        EXPECT_EQ(TileArchive::open(made(metadata + tiles)), nullptr) << tiles;
    }
}

} // namespace
} // namespace vasker
