#include "platform/files/Preferences.h"

#include "platform/Background.h"
#include "tests/platform/FileBytes.h"
#include "tests/platform/HeldFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>

namespace vasker {
namespace {

const QString key = QStringLiteral("open-map.basemap");

bool comesTrue(const std::function<bool()>& condition) {
    QElapsedTimer waited;
    waited.start();
    while (!condition() && waited.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }
    return condition();
}

class PreferencesIn : public testing::Test {
  protected:
    [[nodiscard]] QString path() const {
        return m_folder.filePath(QStringLiteral("vasker-open-map/preferences"));
    }
    void write(const QByteArray& bytes) const {
        QDir(m_folder.path()).mkpath(QStringLiteral("vasker-open-map"));
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// Another program chooses that and ends.
    void choose(const QString& text) const {
        Preferences(path()).setText(key, text);
        EXPECT_TRUE(finishBackgroundWork());
    }
    [[nodiscard]] QByteArray written() const { return fileBytes(path()); }
    void expectAChoiceThatCannotBeWrittenToCount() const {
        Preferences preferences(path());
        EXPECT_EQ(preferences.text(key), std::nullopt);
        preferences.setText(key, QStringLiteral("hybrid"));
        EXPECT_TRUE(finishBackgroundWork());
        QCoreApplication::processEvents();
        EXPECT_EQ(preferences.text(key), QStringLiteral("hybrid"));
    }

    QTemporaryDir m_folder;
};

TEST_F(PreferencesIn, NothingIsStoredAndNothingIsMadeAtFirst) {
    const Preferences preferences(path());
    EXPECT_EQ(preferences.text(key), std::nullopt);
    EXPECT_FALSE(QFile::exists(m_folder.filePath(QStringLiteral("vasker-open-map"))));
}

TEST_F(PreferencesIn, AStoredTextOutlivesTheObject) {
    choose(QStringLiteral("hybrid"));
    EXPECT_EQ(Preferences(path()).text(key), QStringLiteral("hybrid"));
    EXPECT_EQ(written(), "open-map.basemap=hybrid\n");
}

TEST_F(PreferencesIn, ATextIsReadExactlyAsItStands) {
    write("open-map.basemap= hybrid \n");
    EXPECT_EQ(Preferences(path()).text(key), QStringLiteral(" hybrid "));
}

TEST_F(PreferencesIn, TheLaterOfTwoLinesCounts) {
    write("open-map.basemap=hybrid\nopen-map.basemap=satellite");
    EXPECT_EQ(Preferences(path()).text(key), QStringLiteral("satellite"));
}

TEST_F(PreferencesIn, ReadingLeavesAnUnknownValueAndADamagedFileAsTheyAre) {
    const QByteArray damaged("\x00\xFF\xFE[[[\nopen-map.basemap=globe\n==\n\n", 32);
    write(damaged);
    EXPECT_EQ(Preferences(path()).text(key), QStringLiteral("globe"));
    EXPECT_EQ(written(), damaged);
}

TEST_F(PreferencesIn, WritingLeavesOtherLinesAsTheyAre) {
    write("# mine\nother=1\nopen-map.basemap=globe\n\xFF=\xFE");
    choose(QStringLiteral("standard"));
    EXPECT_EQ(written(), "# mine\nother=1\n\xFF=\xFE\nopen-map.basemap=standard\n");
}

TEST_F(PreferencesIn, AFolderInPlaceOfTheFileIsNoValueAndTheChoiceStillCounts) {
    QDir(m_folder.path()).mkpath(QStringLiteral("vasker-open-map/preferences"));
    expectAChoiceThatCannotBeWrittenToCount();
}

TEST_F(PreferencesIn, AFifoInPlaceOfTheFileIsNoValueAndTheChoiceStillCounts) {
    QDir(m_folder.path()).mkpath(QStringLiteral("vasker-open-map"));
    ASSERT_EQ(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    expectAChoiceThatCannotBeWrittenToCount();
}

TEST_F(PreferencesIn, AChoiceThatCouldNotBeWrittenCountsUntilAnotherProgramWrites) {
    QDir(m_folder.path()).mkpath(QStringLiteral("vasker-open-map/preferences"));
    Preferences preferences(path());
    preferences.setText(key, QStringLiteral("hybrid"));
    EXPECT_TRUE(finishBackgroundWork());
    QCoreApplication::processEvents();
    QDir().rmdir(path());
    write("open-map.basemap=satellite\n");
    EXPECT_TRUE(comesTrue([&] { return preferences.text(key) == QStringLiteral("satellite"); }));
}

TEST_F(PreferencesIn, AChoiceCountsAtOnceAndIsWrittenOnceTheDiskLetsIt) {
    write("other=1\n");
    Preferences preferences(path());
    {
        const HeldFolder held(QFileInfo(path()).path());
        preferences.setText(key, QStringLiteral("satellite"));
        preferences.setText(key, QStringLiteral("hybrid"));
        EXPECT_EQ(preferences.text(key), QStringLiteral("hybrid"));
        EXPECT_EQ(written(), "other=1\n");
    }
    EXPECT_TRUE(finishBackgroundWork());
    EXPECT_EQ(written(), "other=1\nopen-map.basemap=hybrid\n");
}

TEST_F(PreferencesIn, AChoiceThatIsBeingWrittenOutlivesAnotherProgramsChange) {
    write("");
    Preferences preferences(path());
    int told = 0;
    {
        const HeldFolder held(QFileInfo(path()).path());
        preferences.setText(key, QStringLiteral("hybrid"));
        write("other=1\n");
        EXPECT_TRUE(
            comesTrue([&] { return preferences.text(QStringLiteral("other")).has_value(); }));
        EXPECT_EQ(preferences.text(key), QStringLiteral("hybrid"));
        QObject::connect(&preferences, &Preferences::changed, [&] { ++told; });
    }
    EXPECT_TRUE(comesTrue([&] { return written() == "other=1\nopen-map.basemap=hybrid\n"; }));
    EXPECT_TRUE(finishBackgroundWork());
    QCoreApplication::processEvents();
    EXPECT_EQ(preferences.text(key), QStringLiteral("hybrid"));
    EXPECT_EQ(told, 0);
}

TEST_F(PreferencesIn, AValueThatAnotherProgramWroteJustNowStays) {
    Preferences preferences(path());
    {
        Preferences other(path());
        other.setText(QStringLiteral("other"), QStringLiteral("1"));
    }
    EXPECT_TRUE(finishBackgroundWork());
    preferences.setText(key, QStringLiteral("hybrid")); // before it is told of the change
    EXPECT_TRUE(comesTrue([&] { return written() == "other=1\nopen-map.basemap=hybrid\n"; }));
    EXPECT_TRUE(comesTrue([&] { return preferences.text(QStringLiteral("other")).has_value(); }));
}

TEST_F(PreferencesIn, AChangeIsToldOnceAndTheSameTextAgainIsNone) {
    Preferences preferences(path());
    int told = 0;
    QObject::connect(&preferences, &Preferences::changed, [&] { ++told; });
    preferences.setText(key, QStringLiteral("hybrid"));
    preferences.setText(key, QStringLiteral("hybrid"));
    EXPECT_EQ(told, 1);
}

TEST_F(PreferencesIn, AChangeByAnotherProgramIsSeen) {
    const Preferences preferences(path());
    Preferences other(path());
    other.setText(key, QStringLiteral("satellite"));
    EXPECT_TRUE(comesTrue([&] { return preferences.text(key) == QStringLiteral("satellite"); }));
    other.setText(key, QStringLiteral("hybrid"));
    EXPECT_TRUE(comesTrue([&] { return preferences.text(key) == QStringLiteral("hybrid"); }));
}

TEST_F(PreferencesIn, AFileThatGoesAwayTakesItsValuesAlong) {
    write("open-map.basemap=hybrid\n");
    const Preferences preferences(path());
    QFile::remove(path());
    EXPECT_TRUE(comesTrue([&] { return !preferences.text(key); }));
}

} // namespace
} // namespace vasker
