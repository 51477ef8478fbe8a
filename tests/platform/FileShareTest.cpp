#include "platform/files/FileShare.h"

#include "platform/files/FileCopy.h"
#include "tests/platform/PlayedDesktop.h"

#include <QClipboard>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace vasker {
namespace {

// A file to share, that the user cannot write to, in a folder to which they can.
class SharedFile {
  public:
    SharedFile() {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::ReadUser);
    }
    [[nodiscard]] QString path() const { return folder.filePath(QStringLiteral("map data.json")); }
    [[nodiscard]] QString beside(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    QByteArray bytes = QByteArray("{\0\r\n\xff}", 6) + QByteArray(200000, 'x');
};

QByteArray bytesAt(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// What is said of a copy of the file at `path` that was saved at `place`.
QString saidOfCopy(const QString& path, const QUrl& place) {
    FileSaving saving(noBus());
    QSignalSpy ended(&saving, &FileSaving::ended);
    saving.saveAt(place, [path](const QString& target) { return copyWhole(path, target); });
    return ended.isEmpty() && !ended.wait() ? QString() : ended[0][1].toString();
}

TEST(FileShare, ACopyIsSavedWhereThePortalSays) {
    const SharedFile file;
    const QString place = file.beside(QStringLiteral("a copy é.json"));
    const Portal portal(Desktop::Answers::done,
                        {{QStringLiteral("uris"),
                          QStringList{QUrl::fromLocalFile(place).toString(QUrl::FullyEncoded)}}});
    FileShare share(session());
    share.saveCopy(file.path(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !share.message().isEmpty(); }));
    EXPECT_EQ(share.message(), QStringLiteral("Saved to ") + place);
    EXPECT_EQ(bytesAt(place), file.bytes);
    EXPECT_TRUE(QFile::permissions(place).testFlag(QFileDevice::WriteOwner));
    EXPECT_EQ(portal.asked.member(), QStringLiteral("SaveFile"));
    EXPECT_EQ(portal.options().value(QStringLiteral("current_name")),
              QStringLiteral("map data.json"));
}

TEST(FileShare, ACancelledCopyIsNotSavedAndNotSpokenOf) {
    const SharedFile file;
    const Portal portal(Desktop::Answers::cancelled);
    FileShare share(session());
    share.saveCopy(file.path(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal.asked.member().isEmpty(); }));
    QTest::qWait(50);
    EXPECT_TRUE(share.message().isEmpty());
    EXPECT_EQ(QDir(file.folder.path()).count(), 3U);
}

TEST(FileShare, WithoutPortalAndDialogACopyCannotBeSaved) {
    const SharedFile file;
    FileShare share(noBus());
    share.saveCopy(file.path(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !share.message().isEmpty(); }));
    EXPECT_TRUE(share.message().startsWith(QStringLiteral("The file could not be saved: ")));
}

TEST(FileShare, ACopyTakesThePlaceOfAnotherFile) {
    const SharedFile file;
    const QString place = file.beside(QStringLiteral("there"));
    QFile there(place);
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    there.write("what was there, and is longer", 29);
    there.close();
    EXPECT_EQ(saidOfCopy(file.path(), QUrl::fromLocalFile(place)),
              QStringLiteral("Saved to ") + place);
    EXPECT_EQ(bytesAt(place), file.bytes);
}

TEST(FileShare, ACopyOntoItselfChangesNothing) {
    const SharedFile file;
    EXPECT_EQ(saidOfCopy(file.path(), QUrl::fromLocalFile(file.path())),
              QStringLiteral("Saved to ") + file.path());
    EXPECT_EQ(bytesAt(file.path()), file.bytes);
}

TEST(FileShare, WhatIsThereStaysWhereACopyFails) {
    const SharedFile file;
    const QString place = file.beside(QStringLiteral("there"));
    QFile there(place);
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    there.write("there", 5);
    there.close();
    EXPECT_TRUE(saidOfCopy(file.beside(QStringLiteral("absent")), QUrl::fromLocalFile(place))
                    .startsWith(QStringLiteral("The file could not be saved: ")));
    EXPECT_EQ(bytesAt(place), QByteArray("there"));
}

TEST(FileShare, APlaceThatCannotBeWrittenIsToldOf) {
    const SharedFile file;
    for (const QUrl& place : {QUrl::fromLocalFile(file.beside(QStringLiteral("absent/copy"))),
                              QUrl::fromLocalFile(file.folder.path()),
                              QUrl(QStringLiteral("sftp://example.org/copy")),
                              QUrl()}) {
        EXPECT_TRUE(saidOfCopy(file.path(), place)
                        .startsWith(QStringLiteral("The file could not be saved: ")));
    }
    EXPECT_EQ(QDir(file.folder.path()).count(), 3U);
}

TEST(FileShare, TheFileManagerShowsTheFile) {
    const SharedFile file;
    const Desktop files(
        filesService, QStringLiteral("/org/freedesktop/FileManager1"), Desktop::Answers::done);
    FileShare share(session());
    share.showInFolder(file.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !files.asked.member().isEmpty(); }));
    EXPECT_EQ(files.asked.member(), QStringLiteral("ShowItems"));
    EXPECT_EQ(files.asked.arguments().at(0).toStringList(),
              QStringList{QUrl::fromLocalFile(file.path()).toString(QUrl::FullyEncoded)});
}

TEST(FileShare, WithoutAFileManagerThePortalOpensTheFolder) {
    const SharedFile file;
    const Portal portal(Desktop::Answers::done);
    FileShare share(session());
    share.showInFolder(file.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal.asked.member().isEmpty(); }));
    EXPECT_EQ(portal.asked.member(), QStringLiteral("OpenDirectory"));
}

TEST(FileShare, WithoutEitherTheFolderIsOpened) {
    const SharedFile file;
    Opened opened;
    FileShare share(noBus());
    share.showInFolder(file.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !opened.url.isEmpty(); }));
    EXPECT_EQ(opened.url, QUrl::fromLocalFile(file.folder.path()));
}

TEST(FileShare, WhereNothingOpensTheFolderAMessageSaysSo) {
    const SharedFile file;
    const Opened opened(Launchers::Present::none);
    FileShare share(noBus());
    share.showInFolder(file.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !share.message().isEmpty(); }));
    EXPECT_EQ(share.message(),
              QStringLiteral("No program was found that opens the folder: ") + file.folder.path());
    EXPECT_TRUE(opened.url.isEmpty());
}

TEST(FileShare, TheClipboardHoldsTheFileForFileManagersAndItsPathForTexts) {
    const SharedFile file;
    FileShare share(noBus());
    share.copyFile(file.path());
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    const QByteArray url = QUrl::fromLocalFile(file.path()).toEncoded();
    EXPECT_EQ(content->urls(), QList{QUrl::fromLocalFile(file.path())});
    EXPECT_EQ(content->text(), file.path());
    EXPECT_EQ(content->data(QStringLiteral("x-special/gnome-copied-files")), "copy\n" + url);
    EXPECT_EQ(content->data(QStringLiteral("application/x-kde-cutselection")), QByteArray("0"));
    EXPECT_EQ(share.message(), QStringLiteral("The file is on the clipboard."));
}

TEST(FileShare, ThePortalAsksWithWhatToOpenTheFile) {
    const SharedFile file;
    const Portal portal(Desktop::Answers::done);
    FileShare share(session());
    share.openWith(file.path(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal.asked.member().isEmpty(); }));
    EXPECT_EQ(portal.asked.member(), QStringLiteral("OpenFile"));
    EXPECT_EQ(portal.options().value(QStringLiteral("ask")), true);
    const auto given = portal.asked.arguments().at(1).value<QDBusUnixFileDescriptor>();
    QFile received;
    ASSERT_TRUE(received.open(given.fileDescriptor(), QIODevice::ReadOnly));
    EXPECT_EQ(received.readAll(), file.bytes);
}

TEST(FileShare, WithoutAPortalTheDesktopOpensTheFile) {
    const SharedFile file;
    Opened opened;
    FileShare share(noBus());
    share.openWith(file.path(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !opened.url.isEmpty(); }));
    EXPECT_EQ(opened.url, QUrl::fromLocalFile(file.path()));
}

TEST(FileShare, WhereNothingOpensTheFileAMessageSaysSo) {
    const SharedFile file;
    const Opened opened(Launchers::Present::none);
    FileShare share(session()); // without a portal
    share.openWith(file.path(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !share.message().isEmpty(); }));
    EXPECT_EQ(share.message(),
              QStringLiteral("No program was found that opens the file: ") + file.path());
    EXPECT_TRUE(opened.url.isEmpty());
}

TEST(FileShare, AFileThatIsGoneIsToldOf) {
    const SharedFile file;
    const Opened opened;
    FileShare share(session());
    share.openWith(file.beside(QStringLiteral("absent")), nullptr);
    EXPECT_TRUE(share.message().startsWith(QStringLiteral("The file could not be opened: ")));
    EXPECT_TRUE(opened.url.isEmpty());
}

TEST(FileShare, AnActionForgetsTheMessageOfTheOneBefore) {
    const SharedFile file;
    const Portal portal(Desktop::Answers::cancelled);
    FileShare share(session());
    share.copyFile(file.path());
    ASSERT_FALSE(share.message().isEmpty());
    share.saveCopy(file.path(), nullptr);
    EXPECT_TRUE(share.message().isEmpty());
}

} // namespace
} // namespace vasker
