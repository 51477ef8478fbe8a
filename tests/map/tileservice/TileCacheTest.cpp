#include "map/tileservice/TileCache.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <string>

namespace vasker {
namespace {

const QDateTime lastUse(QDate(2026, 3, 4), QTime(5, 6, 7), QTimeZone::utc());

class TileCacheTest : public testing::Test {
  protected:
    [[nodiscard]] QString path() const { return folder.filePath(QStringLiteral("tiles.sqlite")); }
    static QString address(int number) {
        return QStringLiteral("https://a.example/%1").arg(number);
    }
    static TileCache::Entry entry(const QByteArray& bytes) {
        return {.bytes = bytes,
                .freshUntil = lastUse.addDays(7),
                .entityTag = "\"1\"",
                .lastModified = "then"};
    }
    QTemporaryDir folder;
};

TEST_F(TileCacheTest, KeepsWhatItIsGiven) {
    TileCache(folder.path(), 1'000'000).keep(address(1), entry("bytes"), lastUse);
    TileCache cache(folder.path(), 1'000'000);
    const auto found = cache.find(address(1), lastUse);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->bytes, "bytes");
    EXPECT_EQ(found->freshUntil, lastUse.addDays(7));
    EXPECT_EQ(found->entityTag, "\"1\"");
    EXPECT_EQ(found->lastModified, "then");
    EXPECT_FALSE(cache.find(address(2), lastUse).has_value());
}

TEST_F(TileCacheTest, TheLatestHolds) {
    TileCache cache(folder.path(), 1'000'000);
    cache.keep(address(1), entry("old"), lastUse);
    cache.keep(address(1), entry("new"), lastUse);
    EXPECT_EQ(cache.find(address(1), lastUse)->bytes, "new");
    cache.refresh(address(1), lastUse.addDays(30));
    EXPECT_EQ(cache.find(address(1), lastUse)->freshUntil, lastUse.addDays(30));
    cache.drop(address(1));
    EXPECT_FALSE(cache.find(address(1), lastUse).has_value());
}

TEST_F(TileCacheTest, ATileFromTheFutureIsNotFresh) {
    TileCache cache(folder.path(), 1'000'000);
    TileCache::Entry ahead = entry("bytes");
    ahead.freshUntil = lastUse.addYears(1).addDays(7);
    cache.keep(address(1), ahead, lastUse.addYears(1)); // then the clock was set right
    EXPECT_LE(cache.find(address(1), lastUse)->freshUntil, lastUse);
    EXPECT_LE(cache.find(address(1), lastUse.addDays(2))->freshUntil, lastUse);
    cache.refresh(address(1), lastUse.addDays(7));
    EXPECT_EQ(cache.find(address(1), lastUse.addDays(3))->freshUntil, lastUse.addDays(7));
}

TEST_F(TileCacheTest, AClockThatIsSetBackALittleChangesNothing) {
    TileCache cache(folder.path(), 1'000'000);
    cache.keep(address(1), entry("bytes"), lastUse.addSecs(3'600));
    EXPECT_EQ(cache.find(address(1), lastUse)->freshUntil, lastUse.addDays(7));
}

TEST_F(TileCacheTest, NeverGrowsBeyondItsBoundAndLosesWhatWasNotLookedAtLongest) {
    TileCache cache(folder.path(), 1'000'000);
    const QByteArray tile(30'000, 'x');
    cache.keep(address(0), entry(tile), lastUse);
    for (int number = 1; number < 200; ++number) {
        const QDateTime later = lastUse.addDays(2 * number);
        cache.keep(address(number), entry(tile), later);
        ASSERT_TRUE(cache.find(address(0), later).has_value()) << "looked at all the time";
    }
    EXPECT_LE(QFileInfo(path()).size(), 1'000'000);
    EXPECT_GT(QFileInfo(path()).size(), 800'000);
    EXPECT_TRUE(cache.find(address(199), lastUse).has_value());
    EXPECT_FALSE(cache.find(address(1), lastUse).has_value());
}

TEST_F(TileCacheTest, WhatIsLargerThanTheBoundIsNotKept) {
    TileCache cache(folder.path(), 100'000);
    cache.keep(address(1), entry(QByteArray(200'000, 'x')), lastUse);
    EXPECT_FALSE(cache.find(address(1), lastUse).has_value());
    EXPECT_LE(QFileInfo(path()).size(), 100'000);
}

TEST_F(TileCacheTest, SeveralMayUseOneFile) {
    TileCache one(folder.path(), 1'000'000);
    TileCache other(folder.path(), 1'000'000);
    one.keep(address(1), entry("1"), lastUse);
    other.keep(address(2), entry("2"), lastUse);
    EXPECT_EQ(one.find(address(2), lastUse)->bytes, "2");
    EXPECT_EQ(other.find(address(1), lastUse)->bytes, "1");
}

TEST_F(TileCacheTest, IsTheUsersOwnBusiness) {
    TileCache(folder.path(), 1'000'000).keep(address(1), entry("1"), lastUse);
    EXPECT_EQ(QFile::permissions(path()) & (QFileDevice::ReadGroup | QFileDevice::ReadOther),
              QFileDevice::Permissions());
}

TEST_F(TileCacheTest, BeginsAnewWhereTheFileIsDamagedMeanwhile) {
    TileCache cache(folder.path(), 10'000'000);
    for (int number = 0; number < 100; ++number) {
        cache.keep(address(number), entry(QByteArray(30'000, 'x')), lastUse);
    }
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write(QByteArray(static_cast<int>(file.size()), 'y'));
    file.close();
    TileCache again(folder.path(), 10'000'000);
    EXPECT_FALSE(again.find(address(50), lastUse).has_value());
    again.keep(address(1), entry("1"), lastUse);
    EXPECT_EQ(again.find(address(1), lastUse)->bytes, "1");
}

class ForeignTileCacheTest : public TileCacheTest {
  protected:
    /// Makes a database of these statements in the cache's place.
    void make(const std::string& statements) const {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(path().toStdString().c_str(), &database), SQLITE_OK);
        const std::string all = "PRAGMA synchronous=OFF;" + statements;
        EXPECT_EQ(sqlite3_exec(database, all.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database);
        sqlite3_close(database);
    }
    /// Whether a new cache in this place keeps a tile; at once, whatever was there.
    [[nodiscard]] bool isReplaced(qint64 bound = 1'000'000) const {
        QElapsedTimer time;
        time.start();
        TileCache cache(folder.path(), bound);
        cache.keep(address(1), entry("1"), lastUse);
        const auto found = cache.find(address(1), lastUse);
        EXPECT_LT(time.elapsed(), 1'000);
        EXPECT_LE(QFileInfo(path()).size(), bound);
        return found && found->bytes == "1";
    }
};

TEST_F(ForeignTileCacheTest, ADatabaseOfAnotherLayoutIsReplaced) {
    const std::string columns =
        "(address BLOB PRIMARY KEY, fresh_until INTEGER NOT NULL, looked_at INTEGER NOT NULL,"
        " entity_tag BLOB, last_modified BLOB, bytes BLOB NOT NULL)";
    for (const std::string& statements : {
             std::string("CREATE TABLE history(url TEXT)"),
             std::string("CREATE TABLE tile(address BLOB)"),
             "CREATE TABLE tile" + columns,
             "CREATE TABLE other" + columns + "; CREATE VIEW tile AS SELECT * FROM other",
             std::string("CREATE VIEW tile AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL"
                         " SELECT i + 1 FROM n) SELECT i AS address FROM n"),
         }) {
        QFile::remove(path());
        make(statements);
        EXPECT_TRUE(isReplaced()) << statements;
    }
}

TEST_F(ForeignTileCacheTest, OurLayoutWithAnythingBesideItIsReplaced) {
    for (const char* statement : {
             "CREATE TRIGGER more AFTER INSERT ON tile BEGIN DELETE FROM tile; END",
             "CREATE VIEW more AS SELECT 1",
             "CREATE INDEX more ON tile(bytes)",
             "ALTER TABLE tile ADD COLUMN more",
         }) {
        QFile::remove(path());
        TileCache(folder.path(), 1'000'000).keep(address(2), entry("2"), lastUse);
        make(statement);
        EXPECT_TRUE(isReplaced()) << statement;
        EXPECT_FALSE(TileCache(folder.path(), 1'000'000).find(address(2), lastUse).has_value())
            << statement;
    }
}

TEST_F(ForeignTileCacheTest, ADatabaseOfManyTablesIsNotReadToTheEnd) {
    make("CREATE TABLE t(c); PRAGMA writable_schema=1;"
         "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 100000)"
         "INSERT INTO sqlite_schema SELECT 'table', 't' || i, 't' || i, 2,"
         " 'CREATE TABLE t' || i || '(c)' FROM n");
    EXPECT_TRUE(isReplaced(100'000'000));
}

TEST_F(ForeignTileCacheTest, AFileThatANewerSqliteAloneWritesIsReplaced) {
    TileCache(folder.path(), 1'000'000).keep(address(2), entry("2"), lastUse);
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(18); // the version that writing takes
    file.write("\x03");
    file.close();
    EXPECT_TRUE(isReplaced());
}

TEST_F(ForeignTileCacheTest, ADatabaseThatLooksEmptyAndIsDamagedIsReplaced) {
    make("CREATE TABLE t(c); DROP TABLE t");
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(101); // where the first free block of the first page is said to be
    file.write("\x0f\xf8");
    file.close();
    EXPECT_TRUE(isReplaced());
}

TEST_F(ForeignTileCacheTest, AFifoInThePlaceOfAFileIsReplaced) {
    for (const char* ending : {"", "-journal", "-wal"}) {
        TileCache(folder.path(), 1'000'000).keep(address(2), entry("2"), lastUse);
        const QString place = path() + QLatin1String(ending);
        QFile::remove(place);
        ASSERT_EQ(mkfifo(QFile::encodeName(place).constData(), 0600), 0);
        EXPECT_TRUE(isReplaced()) << ending;
    }
}

TEST_F(ForeignTileCacheTest, AFileFarAboveTheBoundIsReplacedAndASmallerOneKept) {
    TileCache(folder.path(), 1'000'000).keep(address(2), entry("2"), lastUse);
    ASSERT_TRUE(QFile::resize(path(), 2'000'000));
    EXPECT_TRUE(TileCache(folder.path(), 1'000'000).find(address(2), lastUse).has_value());
    ASSERT_TRUE(QFile::resize(path(), 2'000'001));
    EXPECT_FALSE(TileCache(folder.path(), 1'000'000).find(address(2), lastUse).has_value());
    ASSERT_TRUE(QFile::resize(path(), 1'500'000'000));
    EXPECT_TRUE(isReplaced());
}

/// While this lives, files are opened in another user's name if this one may write everywhere.
class CommonUser {
  public:
    CommonUser() {
        if (m_before == 0) {
            EXPECT_EQ(seteuid(nobody), 0);
        }
    }
    ~CommonUser() { EXPECT_EQ(seteuid(m_before), 0); }
    CommonUser(const CommonUser&) = delete;
    CommonUser& operator=(const CommonUser&) = delete;

  private:
    static constexpr uid_t nobody = 65534;
    uid_t m_before = geteuid();
};

TEST_F(TileCacheTest, ReadsWhatItMayNotWrite) {
    TileCache(folder.path(), 1'000'000).keep(address(1), entry("1"), lastUse);
    constexpr auto readable =
        QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
    QFile::setPermissions(path(), readable);
    QFile::setPermissions(folder.path(),
                          readable | QFileDevice::ExeOwner | QFileDevice::ExeGroup |
                              QFileDevice::ExeOther);
    {
        const CommonUser user;
        ASSERT_FALSE(QFile(path()).open(QIODevice::ReadWrite));
        TileCache cache(folder.path(), 1'000'000);
        EXPECT_TRUE(cache.find(address(1), lastUse.addDays(3)).has_value());
        cache.keep(address(2), entry("2"), lastUse);
        EXPECT_FALSE(cache.find(address(2), lastUse).has_value());
        EXPECT_TRUE(cache.find(address(1), lastUse).has_value());
    }
    QFile::setPermissions(folder.path(),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

/// No file grows beyond `bytes` while this lives, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        (void)std::signal(SIGXFSZ, m_signal);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit m_before{};
    void (*m_signal)(int) = nullptr;
};

TEST_F(TileCacheTest, ReadsOnWhereTheDiskIsFull) {
    TileCache cache(folder.path(), 100'000'000);
    cache.keep(address(1), entry("1"), lastUse);
    testing::internal::CaptureStderr();
    {
        const FullDisk full(100'000);
        for (int number = 2; number < 50; ++number) {
            cache.keep(address(number), entry(QByteArray(30'000, 'x')), lastUse);
        }
        EXPECT_EQ(cache.find(address(1), lastUse)->bytes, "1");
        EXPECT_TRUE(cache.find(address(2), lastUse).has_value());
        EXPECT_FALSE(cache.find(address(49), lastUse).has_value());
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    cache.keep(address(60), entry("60"), lastUse);
    EXPECT_EQ(cache.find(address(60), lastUse)->bytes, "60") << "there is room again";
}

TEST_F(TileCacheTest, IsMadeNowhereOnAFullDisk) {
    const FullDisk full(0);
    TileCache cache(folder.filePath(QStringLiteral("new")), 1'000'000);
    cache.keep(address(1), entry("1"), lastUse);
    EXPECT_FALSE(cache.find(address(1), lastUse).has_value());
}

} // namespace
} // namespace vasker
