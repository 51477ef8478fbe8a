#include "map/tileservice/TileResponse.h"

#include "map/tileservice/MissingTiles.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace vasker {
namespace {

const QDateTime received(QDate(2026, 3, 4), QTime(5, 6, 7), QTimeZone::utc());

TileResponse answer(int status, const QByteArray& body) {
    TileResponse result;
    result.status = status;
    result.body = body;
    result.isWhole = true;
    return result;
}

TEST(TileResponse, IsATileByItsFirstBytes) {
    EXPECT_TRUE(looksLikeTile(TileContent::vector, "\x1a\x10"));
    EXPECT_TRUE(looksLikeTile(TileContent::vector, "\x1f\x8b\x08"));
    EXPECT_TRUE(looksLikeTile(TileContent::vector, "\x78\x9c"));
    EXPECT_TRUE(looksLikeTile(TileContent::imagery, "\xff\xd8\xff\xe0"));
    EXPECT_TRUE(looksLikeTile(TileContent::imagery, "\x89PNG\r\n\x1a\n"));
    for (const char* const other : {"", "<", "{}", "GIF89a", "\x1f", "\xff\xd8", "\x89PNG"}) {
        EXPECT_FALSE(looksLikeTile(TileContent::vector, other)) << other;
        EXPECT_FALSE(looksLikeTile(TileContent::imagery, other)) << other;
    }
}

TEST(TileResponse, TellsWhatToDoNext) {
    const auto of = [](int status) {
        return verdict(TileContent::vector, answer(status, "\x1a\x10"));
    };
    EXPECT_EQ(of(0), TileVerdict::unreachable);
    EXPECT_EQ(of(200), TileVerdict::tile);
    EXPECT_EQ(of(304), TileVerdict::unchanged);
    EXPECT_EQ(of(429), TileVerdict::busy);
    EXPECT_EQ(of(503), TileVerdict::busy);
    for (const int status : {401, 403, 407, 408, 500, 502, 504, 999}) {
        EXPECT_EQ(of(status), TileVerdict::refused) << status;
    }
    for (const int status : {100, 201, 204, 206, 301, 302, 307, 308, 400, 404, 410, -1}) {
        EXPECT_EQ(of(status), TileVerdict::missing) << status;
    }
}

TEST(TileResponse, KeepsAsLongAsTheHeadersSayButSevenDaysAtLeastAndAYearAtMost) {
    const auto days = [](const QByteArray& cacheControl, const QByteArray& expires) {
        TileResponse one = answer(200, {});
        one.cacheControl = cacheControl;
        one.expires = expires;
        const auto until = freshUntil(one, received);
        return until ? static_cast<int>(received.daysTo(*until)) : -1;
    };
    EXPECT_EQ(days("", ""), 7);
    EXPECT_EQ(days("max-age=60", ""), 7);
    EXPECT_EQ(days("public, Max-Age=864000", ""), 10);
    EXPECT_EQ(days("max-age=99999999999999", ""), 365);
    EXPECT_EQ(days("max-age=99999999999999999999999", ""), 7);
    EXPECT_EQ(days("max-age=-5", ""), 7);
    EXPECT_EQ(days("no-cache, must-revalidate", ""), 7);
    EXPECT_EQ(days("", "Sat, 14 Mar 2026 05:06:07 GMT"), 10);
    EXPECT_EQ(days("max-age=0", "Sat, 14 Mar 2026 05:06:07 GMT"), 7);
    EXPECT_EQ(days("", "0"), 7);
    EXPECT_EQ(days("max-age=864000, no-store", ""), -1);
}

TEST(MissingTiles, RemembersTheLatest) {
    MissingTiles missing(2);
    const ServiceTile first{TileContent::vector, {1, 0, 0}};
    const ServiceTile second{TileContent::vector, {1, 0, 1}};
    const ServiceTile third{TileContent::imagery, {1, 0, 0}};
    missing.insert(first);
    missing.insert(first);
    missing.insert(second);
    EXPECT_TRUE(missing.contains(first));
    missing.insert(third);
    EXPECT_FALSE(missing.contains(first));
    EXPECT_TRUE(missing.contains(second));
    EXPECT_TRUE(missing.contains(third));
}

} // namespace
} // namespace vasker
