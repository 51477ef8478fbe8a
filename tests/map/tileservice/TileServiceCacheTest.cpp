#include "map/tileservice/TileCache.h"
#include "tests/map/tileservice/ServiceFixture.h"

#include <QDir>
#include <QFile>

namespace vasker {
namespace {

class TileServiceCacheTest : public ServiceFixture {
  protected:
    void fetch(const ServiceTile& wanted) {
        service().setRequests({wanted});
        ASSERT_TRUE(comesTrue([&] { return hasArrived(wanted); }));
    }
    void keepStale(const QByteArray& bytes) {
        TileCache cache(options.cacheFolder, options.cacheBytes);
        const QDateTime past = QDateTime::currentDateTimeUtc().addDays(-1);
        cache.keep(server.address(vectorPath(9, 1, 1)),
                   {.bytes = bytes, .freshUntil = past, .entityTag = "\"7\"", .lastModified = {}},
                   past);
    }
    const ServiceTile tile = vectorTile(9, 1, 1);
};

TEST_F(TileServiceCacheTest, ServesWhatItHasWhenTheServiceIsGone) {
    server.setAnswer(vectorPath(9, 1, 1),
                     {.body = vectorBytes, .headers = {"Cache-Control: max-age=0"}});
    fetch(tile);
    stop();
    server.close();
    restart();
    fetch(tile);
    EXPECT_EQ(arrived[0].second, vectorBytes);
}

TEST_F(TileServiceCacheTest, DoesNotAskForWhatIsFresh) {
    server.setAnswer(vectorPath(9, 1, 1),
                     {.body = vectorBytes, .headers = {"Cache-Control: no-cache, max-age=0"}});
    fetch(tile);
    restart();
    fetch(tile);
    EXPECT_EQ(server.requests().size(), 1U) << "seven days are the least";
}

TEST_F(TileServiceCacheTest, DoesNotKeepWhatMustNotBeKept) {
    server.setAnswer(vectorPath(9, 1, 1),
                     {.body = vectorBytes, .headers = {"Cache-Control: no-store"}});
    fetch(tile);
    restart();
    fetch(tile);
    EXPECT_EQ(server.requests().size(), 2U);
}

TEST_F(TileServiceCacheTest, AsksWhetherWhatIsStaleHasChanged) {
    keepStale(vectorBytes);
    server.setAnswer(vectorPath(9, 1, 1), {.status = 304});
    fetch(tile);
    EXPECT_EQ(arrived[0].second, vectorBytes);
    EXPECT_EQ(server.requests().at(0).headers.value("if-none-match"), "\"7\"");
    restart();
    fetch(tile);
    EXPECT_EQ(server.requests().size(), 1U) << "fresh again";
}

TEST_F(TileServiceCacheTest, TakesTheNewTileForTheStaleOne) {
    keepStale(vectorBytes);
    server.setAnswer(vectorPath(9, 1, 1), {.body = vectorBytes + "new"});
    fetch(tile);
    EXPECT_EQ(arrived[0].second, vectorBytes + "new");
}

TEST_F(TileServiceCacheTest, ServesWhatIsStaleWhereTheServiceFails) {
    keepStale(vectorBytes);
    server.setOtherAnswer({.status = 503});
    fetch(tile);
    restart();
    server.close();
    fetch(tile);
    EXPECT_EQ(arrived[0].second, vectorBytes);
}

TEST_F(TileServiceCacheTest, DoesNotBelieveWhatIsNoTile) {
    keepStale("<html>");
    server.setAnswer(vectorPath(9, 1, 1), {.body = vectorBytes});
    fetch(tile);
    EXPECT_EQ(arrived[0].second, vectorBytes);
}

// Each of these folders holds no cache, for the superuser either.
TEST_F(TileServiceCacheTest, GoesOnWithoutACacheWhereTheFolderIsNoPlaceForOne) {
    QFile file(folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("taken/tiles.sqlite")));
    server.setAnswer(vectorPath(9, 1, 1), {.body = vectorBytes});
    for (const QString& place : {QString(),
                                 file.fileName(),
                                 file.fileName() + QStringLiteral("/below"),
                                 QStringLiteral("/proc/cannot/be/made"),
                                 QStringLiteral("/dev/full"),
                                 folder.filePath(QStringLiteral("taken"))}) {
        options.cacheFolder = place;
        restart();
        testing::internal::CaptureStderr();
        fetch(tile);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << place.toStdString();
    }
    EXPECT_EQ(server.requests().size(), 6U);
}

TEST_F(TileServiceCacheTest, BeginsAnewWhereTheFileIsDamaged) {
    server.setAnswer(vectorPath(9, 1, 1), {.body = vectorBytes});
    ASSERT_TRUE(QDir().mkpath(options.cacheFolder));
    QFile file(options.cacheFolder + QStringLiteral("/tiles.sqlite"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(10'000, 'x'));
    file.close();
    fetch(tile);
    restart();
    fetch(tile);
    EXPECT_EQ(server.requests().size(), 1U);
}

} // namespace
} // namespace vasker
