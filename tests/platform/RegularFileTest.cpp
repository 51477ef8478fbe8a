#include "platform/files/RegularFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vasker {
namespace {

class RegularFileIn : public testing::Test {
  protected:
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("file")); }
    void write(const QByteArray& bytes) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QTemporaryDir m_folder;
};

TEST_F(RegularFileIn, AFileIsReadUpToTheLimitAndNoneThatIsLonger) {
    write("bytes");
    EXPECT_EQ(readRegularFile(path(), 6), "bytes");
    EXPECT_EQ(readRegularFile(path(), 5), "bytes");
    EXPECT_EQ(readRegularFile(path(), 4), std::nullopt);
}

TEST_F(RegularFileIn, AnEmptyFileHasNoBytesAndAMissingOneIsNothing) {
    EXPECT_EQ(readRegularFile(path(), 5), std::nullopt);
    write("");
    EXPECT_EQ(readRegularFile(path(), 5), QByteArray());
}

TEST_F(RegularFileIn, AFolderAFifoAndADeviceAreNothingAndNotWaitedFor) {
    EXPECT_EQ(readRegularFile(m_folder.path(), 5), std::nullopt);
    ASSERT_EQ(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_EQ(readRegularFile(path(), 5), std::nullopt);
    EXPECT_EQ(readRegularFile(QStringLiteral("/dev/zero"), 5), std::nullopt);
}

} // namespace
} // namespace vasker
