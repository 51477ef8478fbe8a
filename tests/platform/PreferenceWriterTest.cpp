#include "platform/files/PreferenceWriter.h"

#include "platform/Background.h"
#include "tests/platform/FileBytes.h"
#include "tests/platform/HeldFolder.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vasker {
namespace {

class PreferenceWriterIn : public testing::Test {
  protected:
    [[nodiscard]] QByteArray written() const { return fileBytes(m_file.path()); }
    /// What the writer says next that it wrote.
    PreferenceFile::Values told() {
        EXPECT_TRUE(!m_ended.isEmpty() || m_ended.wait(5'000));
        return m_ended.takeFirst().at(0).value<PreferenceFile::Values>();
    }

    const QString key = QStringLiteral("key");
    const QString other = QStringLiteral("other");
    QTemporaryDir m_folder;
    PreferenceFile m_file{m_folder.filePath(QStringLiteral("preferences"))};
    PreferenceWriter m_writer{m_file};
    QSignalSpy m_ended{&m_writer, &PreferenceWriter::ended};
};

TEST_F(PreferenceWriterIn, WhatIsWrittenIsTold) {
    EXPECT_FALSE(m_writer.isBusy());
    m_writer.write(key, QStringLiteral("1"));
    EXPECT_TRUE(m_writer.isBusy());
    EXPECT_EQ(told(), (PreferenceFile::Values{{key, QStringLiteral("1")}}));
    EXPECT_FALSE(m_writer.isBusy());
    EXPECT_EQ(written(), "key=1\n");
}

TEST_F(PreferenceWriterIn, TheLastOfManyValuesIsTheOneThatStays) {
    for (int value = 1; value <= 1'000; ++value) {
        m_writer.write(key, QString::number(value));
        m_writer.write(other, QString::number(-value));
    }
    EXPECT_TRUE(finishBackgroundWork());
    EXPECT_EQ(written(), "key=1000\nother=-1000\n");
}

TEST_F(PreferenceWriterIn, WhatComesWhileTheDiskIsBusyIsWrittenTogether) {
    {
        const HeldFolder held(m_folder.path());
        m_writer.write(key, QStringLiteral("1"));
        m_writer.write(key, QStringLiteral("2"));
        m_writer.write(other, QStringLiteral("3"));
    }
    EXPECT_EQ(told().value(key), QStringLiteral("2"));
    EXPECT_EQ(written(), "key=2\nother=3\n");
    EXPECT_FALSE(m_ended.wait(50)) << "it is told once";
}

TEST_F(PreferenceWriterIn, WhatCannotBeWrittenIsNotToldAsWritten) {
    QDir(m_folder.path()).mkdir(QStringLiteral("preferences"));
    m_writer.write(key, QStringLiteral("1"));
    EXPECT_TRUE(told().isEmpty());
    QDir(m_folder.path()).rmdir(QStringLiteral("preferences"));
    m_writer.write(other, QStringLiteral("2"));
    EXPECT_EQ(told(), (PreferenceFile::Values{{other, QStringLiteral("2")}}));
}

TEST_F(PreferenceWriterIn, WhatWaitsIsWrittenAfterTheWriterIsGone) {
    {
        const HeldFolder held(m_folder.path());
        PreferenceWriter writer(m_file);
        writer.write(key, QStringLiteral("1"));
        writer.write(other, QStringLiteral("2"));
    }
    EXPECT_TRUE(finishBackgroundWork());
    EXPECT_EQ(written(), "key=1\nother=2\n");
}

} // namespace
} // namespace vasker
