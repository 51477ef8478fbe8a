#include "platform/files/FileSaving.h"

#include "platform/files/SaveQuestion.h"
#include "platform/files/WholeFile.h"
#include "tests/platform/PlayedDesktop.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>

namespace vasker {
namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

FileSaving::Write writing(const QByteArray& bytes, const QString& fault = {}) {
    return [bytes, fault](const QString& path) {
        return writeWhole(path, [&](QIODevice& file) {
            file.write(bytes);
            return fault;
        });
    };
}

class Saving : public testing::Test {
  protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QString::fromUtf8(name));
    }
    std::string ending(bool isSaved) {
        if (m_ended.isEmpty() && !m_ended.wait(5000)) {
            return "nothing";
        }
        EXPECT_EQ(m_ended.constFirst().at(0).toBool(), isSaved);
        return m_ended.takeFirst().at(1).toString().toStdString();
    }

    QTemporaryDir m_folder;
    FileSaving m_saving{session()};
    QSignalSpy m_ended{&m_saving, &FileSaving::ended};
};

TEST_F(Saving, TheUserIsAskedByTheGivenTitleAndName) {
    const QString place = path("table é.csv");
    const Portal portal(Desktop::Answers::done,
                        {{QStringLiteral("uris"),
                          QStringList{QUrl::fromLocalFile(place).toString(QUrl::FullyEncoded)}}});
    m_saving.save(
        QStringLiteral("Save the table"), QStringLiteral("table.csv"), nullptr, writing("a,b\n"));
    EXPECT_EQ(ending(true), "Saved to " + place.toStdString());
    EXPECT_EQ(contentOf(place), "a,b\n");
    EXPECT_EQ(portal.asked.arguments().at(1).toString(), QStringLiteral("Save the table"));
    EXPECT_EQ(portal.options().value(QStringLiteral("current_name")), QStringLiteral("table.csv"));
}

TEST_F(Saving, TheFileIsWrittenOnAnotherThread) {
    QThread* writer = QThread::currentThread();
    m_saving.saveAt(QUrl::fromLocalFile(path("table.csv")), [&writer](const QString&) {
        writer = QThread::currentThread();
        return QString();
    });
    ending(true);
    EXPECT_NE(writer, QThread::currentThread());
}

TEST_F(Saving, ACancelledQuestionEndsInSilence) {
    const Portal portal(Desktop::Answers::cancelled);
    m_saving.save({}, QStringLiteral("table.csv"), nullptr, writing("a"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal.asked.member().isEmpty(); }));
    EXPECT_EQ(m_ended.wait(50), false);
    EXPECT_EQ(QDir(m_folder.path()).count(), 2U);
}

TEST_F(Saving, APortalThatGoesBeforeTheUserHasDecidedIsNone) {
    auto portal = std::make_unique<const Portal>(Desktop::Answers::undecided);
    m_saving.save({}, QStringLiteral("table.csv"), nullptr, writing("a"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal->asked.member().isEmpty(); }));
    EXPECT_EQ(m_ended.wait(50), false);
    portal.reset();
    EXPECT_EQ(ending(false),
              "The file could not be saved: this desktop has no dialog to ask where.");
}

TEST_F(Saving, AFaultWhileWritingIsToldAndLeavesWhatWasThereAndNothingElse) {
    const QString place = path("table.csv");
    m_saving.saveAt(QUrl::fromLocalFile(place), writing("before"));
    ending(true);
    m_saving.saveAt(QUrl::fromLocalFile(place), writing("half", QStringLiteral("the pen broke.")));
    EXPECT_EQ(ending(false), "The file could not be saved: the pen broke.");
    EXPECT_EQ(contentOf(place), "before");
    EXPECT_EQ(QDir(m_folder.path()).count(), 3U);
}

TEST_F(Saving, AFullDiskIsToldOf) {
    m_saving.saveAt(QUrl::fromLocalFile(QStringLiteral("/dev/full")), [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write("a") == 1
                   ? QString()
                   : file.errorString();
    });
    EXPECT_EQ(ending(false), "The file could not be saved: No space left on device");
}

TEST_F(Saving, APlaceOnAnotherComputerIsRefused) {
    m_saving.saveAt(QUrl(QStringLiteral("sftp://example.org/table.csv")), writing("a"));
    EXPECT_EQ(ending(false), "The file could not be saved: that place is not on this computer.");
}

TEST(SaveQuestion, ABarePathIsAFileToo) {
    const auto path = [](const char* place) {
        return SaveQuestion::fileAt(QUrl(QString::fromUtf8(place))).toLocalFile();
    };
    EXPECT_EQ(path("/folder/other name.json"), QStringLiteral("/folder/other name.json"));
    EXPECT_EQ(path("/folder/a#1?.json"), QStringLiteral("/folder/a#1?.json"));
    // A whole path, typed while the dialog shows the folder.
    EXPECT_EQ(path("/folder//place/a.json"), QStringLiteral("/place/a.json"));
    EXPECT_EQ(path("file:///folder/a.json"), QStringLiteral("/folder/a.json"));
    EXPECT_EQ(SaveQuestion::fileAt(QUrl(QStringLiteral("https://example.org/a"))),
              QUrl(QStringLiteral("https://example.org/a")));
    EXPECT_TRUE(SaveQuestion::fileAt(QUrl()).isEmpty());
}

} // namespace
} // namespace vasker
