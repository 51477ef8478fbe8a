#include "map/tileservice/TileCache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

namespace vasker {
namespace {

const QDateTime now(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC);

class TileCacheTest : public testing::Test {
  protected:
    [[nodiscard]] QString path() const { return folder.filePath(QStringLiteral("tiles.sqlite")); }
    static QString address(int number) {
        return QStringLiteral("https://a.example/%1").arg(number);
    }
    static TileCache::Entry entry(const QByteArray& bytes) {
        return {.bytes = bytes,
                .freshUntil = now.addDays(7),
                .entityTag = "\"1\"",
                .lastModified = "then"};
    }
    QTemporaryDir folder;
};

TEST_F(TileCacheTest, KeepsWhatItIsGiven) {
    TileCache(folder.path(), 1'000'000).keep(address(1), entry("bytes"), now);
    TileCache cache(folder.path(), 1'000'000);
    const auto found = cache.find(address(1), now);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->bytes, "bytes");
    EXPECT_EQ(found->freshUntil, now.addDays(7));
    EXPECT_EQ(found->entityTag, "\"1\"");
    EXPECT_EQ(found->lastModified, "then");
    EXPECT_FALSE(cache.find(address(2), now).has_value());
}

TEST_F(TileCacheTest, TheLatestHolds) {
    TileCache cache(folder.path(), 1'000'000);
    cache.keep(address(1), entry("old"), now);
    cache.keep(address(1), entry("new"), now);
    EXPECT_EQ(cache.find(address(1), now)->bytes, "new");
    cache.refresh(address(1), now.addDays(30));
    EXPECT_EQ(cache.find(address(1), now)->freshUntil, now.addDays(30));
    cache.drop(address(1));
    EXPECT_FALSE(cache.find(address(1), now).has_value());
}

TEST_F(TileCacheTest, NeverGrowsBeyondItsBoundAndLosesWhatWasNotLookedAtLongest) {
    TileCache cache(folder.path(), 1'000'000);
    const QByteArray tile(30'000, 'x');
    cache.keep(address(0), entry(tile), now);
    for (int number = 1; number < 200; ++number) {
        const QDateTime later = now.addDays(2 * number);
        cache.keep(address(number), entry(tile), later);
        ASSERT_TRUE(cache.find(address(0), later).has_value()) << "looked at all the time";
    }
    EXPECT_LE(QFileInfo(path()).size(), 1'000'000);
    EXPECT_GT(QFileInfo(path()).size(), 800'000);
    EXPECT_TRUE(cache.find(address(199), now).has_value());
    EXPECT_FALSE(cache.find(address(1), now).has_value());
}

TEST_F(TileCacheTest, WhatIsLargerThanTheBoundIsNotKept) {
    TileCache cache(folder.path(), 100'000);
    cache.keep(address(1), entry(QByteArray(200'000, 'x')), now);
    EXPECT_FALSE(cache.find(address(1), now).has_value());
    EXPECT_LE(QFileInfo(path()).size(), 100'000);
}

TEST_F(TileCacheTest, SeveralMayUseOneFile) {
    TileCache one(folder.path(), 1'000'000);
    TileCache other(folder.path(), 1'000'000);
    one.keep(address(1), entry("1"), now);
    other.keep(address(2), entry("2"), now);
    EXPECT_EQ(one.find(address(2), now)->bytes, "2");
    EXPECT_EQ(other.find(address(1), now)->bytes, "1");
}

TEST_F(TileCacheTest, IsTheUsersOwnBusiness) {
    TileCache(folder.path(), 1'000'000).keep(address(1), entry("1"), now);
    EXPECT_EQ(QFile::permissions(path()) & (QFileDevice::ReadGroup | QFileDevice::ReadOther),
              QFileDevice::Permissions());
}

TEST_F(TileCacheTest, BeginsAnewWhereTheFileIsDamagedMeanwhile) {
    TileCache cache(folder.path(), 10'000'000);
    for (int number = 0; number < 100; ++number) {
        cache.keep(address(number), entry(QByteArray(30'000, 'x')), now);
    }
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write(QByteArray(static_cast<int>(file.size()), 'y'));
    file.close();
    TileCache again(folder.path(), 10'000'000);
    EXPECT_FALSE(again.find(address(50), now).has_value());
    again.keep(address(1), entry("1"), now);
    EXPECT_EQ(again.find(address(1), now)->bytes, "1");
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
    TileCache(folder.path(), 1'000'000).keep(address(1), entry("1"), now);
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
        EXPECT_TRUE(cache.find(address(1), now.addDays(3)).has_value());
        cache.keep(address(2), entry("2"), now);
        EXPECT_FALSE(cache.find(address(2), now).has_value());
        EXPECT_TRUE(cache.find(address(1), now).has_value());
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
    cache.keep(address(1), entry("1"), now);
    testing::internal::CaptureStderr();
    {
        const FullDisk full(100'000);
        for (int number = 2; number < 50; ++number) {
            cache.keep(address(number), entry(QByteArray(30'000, 'x')), now);
        }
        EXPECT_EQ(cache.find(address(1), now)->bytes, "1");
        EXPECT_TRUE(cache.find(address(2), now).has_value());
        EXPECT_FALSE(cache.find(address(49), now).has_value());
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    cache.keep(address(60), entry("60"), now);
    EXPECT_EQ(cache.find(address(60), now)->bytes, "60") << "there is room again";
}

TEST_F(TileCacheTest, IsMadeNowhereOnAFullDisk) {
    const FullDisk full(0);
    TileCache cache(folder.filePath(QStringLiteral("new")), 1'000'000);
    cache.keep(address(1), entry("1"), now);
    EXPECT_FALSE(cache.find(address(1), now).has_value());
}

} // namespace
} // namespace vasker
