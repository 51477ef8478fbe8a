#include "platform/files/PreferenceFile.h"

#include "tests/platform/FileBytes.h"
#include "tests/platform/HeldFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <thread>
#include <vector>

namespace vasker {
namespace {

class PreferenceFileIn : public testing::Test {
  protected:
    [[nodiscard]] QByteArray written() const { return fileBytes(m_file.path()); }
    void write(const QByteArray& bytes) const {
        QFile file(m_file.path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] bool set(const PreferenceFile::Values& values) const {
        return m_file.set(values).has_value();
    }
    [[nodiscard]] bool set(const char* value) const {
        return set({{QStringLiteral("key"), QString::fromLatin1(value)}});
    }

    QTemporaryDir m_folder;
    PreferenceFile m_file{m_folder.filePath(QStringLiteral("preferences"))};
};

TEST_F(PreferenceFileIn, AMissingFileIsMade) {
    EXPECT_TRUE(set("1"));
    EXPECT_EQ(written(), "key=1\n");
}

TEST_F(PreferenceFileIn, SeveralValuesAreSetAtOnceAndOthersStay) {
    write("key=1\nother=2\nthird=3\n");
    EXPECT_TRUE(set({{QStringLiteral("third"), QStringLiteral("5")}, {QStringLiteral("key"), {}}}));
    EXPECT_EQ(written(), "other=2\nkey=\nthird=5\n");
}

TEST_F(PreferenceFileIn, NoneOfManyChangesAtOnceIsLost) {
    constexpr int writers = 8;
    constexpr int changes = 25;
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([this, writer] {
            for (int change = 1; change <= changes; ++change) {
                const QString key = QStringLiteral("key%1").arg(writer);
                while (!set({{key, QString::number(change)}})) {
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    const PreferenceFile::Lines lines = m_file.read().value();
    EXPECT_EQ(lines.size(), writers);
    for (int writer = 0; writer < writers; ++writer) {
        EXPECT_EQ(PreferenceFile::value(lines, QStringLiteral("key%1").arg(writer)),
                  QString::number(changes));
    }
}

TEST_F(PreferenceFileIn, ALockThatIsNeverGivenBackIsNotWaitedForLong) {
    write("key=0\n");
    {
        const HeldFolder held(m_folder.path());
        QElapsedTimer time;
        time.start();
        EXPECT_FALSE(set("1"));
        EXPECT_LT(time.elapsed(), 5'000);
        EXPECT_EQ(written(), "key=0\n");
    }
    EXPECT_TRUE(set("1")) << "it is free again";
    EXPECT_EQ(written(), "key=1\n");
}

TEST_F(PreferenceFileIn, AFileOfAMegabyteIsReadAndALongerOneStaysAsItIs) {
    write(QByteArray(999'999, 'x') + '\n');
    EXPECT_EQ(m_file.read()->size(), 1);
    write(QByteArray(1'000'000, 'x') + '\n');
    EXPECT_EQ(m_file.read(), std::nullopt);
    EXPECT_FALSE(set("1"));
    EXPECT_EQ(written().size(), 1'000'001);
}

TEST_F(PreferenceFileIn, AFifoInPlaceOfTheFileStaysOne) {
    const QByteArray path = QFile::encodeName(m_file.path());
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    EXPECT_EQ(m_file.read(), std::nullopt);
    EXPECT_FALSE(set("1"));
    struct stat status {};
    ASSERT_EQ(stat(path.constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(PreferenceFileIn, AFolderThatCannotBeMadeHoldsNothing) {
    write("");
    const PreferenceFile below(m_file.path() + QStringLiteral("/below/preferences"));
    EXPECT_FALSE(below.set({{QStringLiteral("key"), QStringLiteral("1")}}).has_value());
}

} // namespace
} // namespace vasker
