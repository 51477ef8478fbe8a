#include "app/OpenMapRoot.h"
#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "platform/files/Preferences.h"
#include "tests/support/ReleaseBuilder.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace vasker {
namespace {

using Screen = OpenMapRoot::Screen;

const std::string reassurance = " Reinstall this beta from its original distributor. Your private "
                                "Vasker library has not been opened.";
const std::string provenance =
    "The bundled map is missing source and licence information." + reassurance;
const std::string checksum = "The bundled map does not match this app release." + reassurance;

class StartUp : public testing::Test {
  protected:
    void write(const char* name, const std::string& bytes) const {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
    void writeDigest(const std::string& digest) const {
        write("BundleInformation.json", R"({"VaskerOpenMapSHA256": ")" + digest + R"("})");
    }
    void writeRelease(const std::string& bytes) const {
        write("OpenMap.json", bytes);
        writeDigest(sha256(bytes));
    }
    [[nodiscard]] std::unique_ptr<OpenMapRoot> root() {
        return std::make_unique<OpenMapRoot>(
            Bundle(m_folder.path()), TextLocale("en"), m_preferences);
    }
    /// The failure text after loading; empty where the release is shown.
    [[nodiscard]] std::string failure() {
        const auto loading = root();
        loading->load();
        wait(*loading);
        EXPECT_EQ(loading->screen() == Screen::Failed, loading->workspace() == nullptr);
        return loading->failureText().toStdString();
    }
    static void wait(const OpenMapRoot& root) {
        QElapsedTimer waited;
        waited.start();
        while (root.screen() == Screen::Loading && waited.elapsed() < 10'000) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        }
        ASSERT_NE(root.screen(), Screen::Loading);
    }

    QTemporaryDir m_folder;
    Preferences m_preferences{m_folder.filePath(QStringLiteral("preferences"))};
    const std::string m_release = encode(makeRelease());
};

TEST_F(StartUp, AValidReleaseIsShown) {
    writeRelease(m_release);
    const auto loading = root();
    EXPECT_EQ(loading->screen(), Screen::Loading);
    loading->load();
    EXPECT_EQ(loading->screen(), Screen::Loading);
    wait(*loading);
    ASSERT_EQ(loading->screen(), Screen::Ready);
    EXPECT_EQ(loading->failureText(), QString());
    EXPECT_EQ(loading->workspace()->release(), makeRelease());
}

TEST_F(StartUp, WindowsOfOneReleaseHoldItOnce) {
    writeRelease(m_release);
    const auto first = root();
    const auto second = root();
    first->load();
    wait(*first);
    second->load();
    wait(*second);
    ASSERT_EQ(second->screen(), Screen::Ready);
    EXPECT_EQ(&second->workspace()->release(), &first->workspace()->release());
}

TEST_F(StartUp, AWindowOfAnotherReleaseHoldsItsOwn) {
    writeRelease(m_release);
    const auto first = root();
    first->load();
    wait(*first);
    OpenMapRelease other = makeRelease();
    other.assets[0].name = "Another plant";
    writeRelease(encode(other));
    const auto second = root();
    second->load();
    wait(*second);
    EXPECT_EQ(second->workspace()->release(), other);
    EXPECT_EQ(first->workspace()->release(), makeRelease());
}

TEST_F(StartUp, AFileThatIsDamagedIsRefusedThoughAWindowHoldsItsRelease) {
    writeRelease(m_release);
    const auto first = root();
    first->load();
    wait(*first);
    write("OpenMap.json", m_release + ' ');
    EXPECT_EQ(failure(), checksum);
}

TEST_F(StartUp, ABundleWithoutTheResourceFailsAtOnce) {
    writeDigest(sha256(m_release));
    const auto loading = root();
    loading->load();
    EXPECT_EQ(loading->screen(), Screen::Failed);
    EXPECT_EQ(loading->failureText().toStdString(), provenance);
}

TEST_F(StartUp, ADigestThatIsNoTextOrEmptyOrMissingFailsAtOnce) {
    write("OpenMap.json", m_release);
    for (const char* information : {"",
                                    "{}",
                                    R"({"VaskerOpenMapSHA256": ""})",
                                    R"({"VaskerOpenMapSHA256": 7})",
                                    R"({"VaskerOpenMapSHA256": null})",
                                    R"({"VaskerOpenMapSHA256": ["a"]})",
                                    R"({"vaskeropenmapsha256": "a"})",
                                    "no object"}) {
        write("BundleInformation.json", information);
        const auto loading = root();
        loading->load();
        EXPECT_EQ(loading->screen(), Screen::Failed) << information;
        EXPECT_EQ(loading->failureText().toStdString(), provenance) << information;
    }
}

TEST_F(StartUp, ABundleWithoutInformationFailsAtOnce) {
    write("OpenMap.json", m_release);
    const auto loading = root();
    loading->load();
    EXPECT_EQ(loading->failureText().toStdString(), provenance);
}

TEST_F(StartUp, AnotherDigestIsRefused) {
    writeRelease(m_release);
    writeDigest(sha256("another"));
    EXPECT_EQ(failure(), checksum);
}

TEST_F(StartUp, TheDigestIsComparedAsItStands) {
    writeRelease(m_release);
    writeDigest(" " + sha256(m_release));
    EXPECT_EQ(failure(), checksum);
    writeDigest(sha256(m_release) + "\\n");
    EXPECT_EQ(failure(), checksum);
}

TEST_F(StartUp, ATruncatedFileIsRefused) {
    writeRelease(m_release);
    write("OpenMap.json", m_release.substr(0, m_release.size() / 2));
    EXPECT_EQ(failure(), checksum);
}

TEST_F(StartUp, AnEmptyFileIsRefused) {
    writeRelease(m_release);
    write("OpenMap.json", "");
    EXPECT_EQ(failure(), checksum);
}

TEST_F(StartUp, AFileOfTooManyBytesIsRefusedAsTooLarge) {
    writeRelease(m_release + std::string(OpenMapRelease::maximumFileSize, ' '));
    EXPECT_EQ(failure(), "The bundled map exceeds its size limit." + reassurance);
}

TEST_F(StartUp, AFileOfAsManyBytesAsAllowedIsShown) {
    writeRelease(m_release + std::string(OpenMapRelease::maximumFileSize - m_release.size(), ' '));
    EXPECT_EQ(failure(), "");
}

TEST_F(StartUp, AFileThatCannotBeReadIsDescribedAsTheSystemDoes) {
    QDir(m_folder.path()).mkdir(QStringLiteral("OpenMap.json"));
    writeDigest(sha256(m_release));
    EXPECT_EQ(failure(), "Is a directory" + reassurance);
}

TEST_F(StartUp, AnErrorOfTheJSONLibraryIsShownInItsOwnWords) {
    const std::string broken = m_release.substr(0, m_release.size() - 1);
    writeRelease(broken);
    std::string words;
    try {
        static_cast<void>(OpenMapRelease::decode(broken, sha256(broken)));
    } catch (const OpenMapRelease::Refusal&) {
        FAIL() << "a refusal, not the library's error";
    } catch (const std::exception& error) {
        words = error.what();
    }
    ASSERT_FALSE(words.empty());
    EXPECT_EQ(failure(), words + reassurance);
}

TEST_F(StartUp, ARefusedReleaseIsDescribedByItsMessage) {
    OpenMapRelease release = makeRelease();
    release.schemaVersion = 2;
    writeRelease(encode(release));
    EXPECT_EQ(failure(), "The bundled map uses an unsupported format." + reassurance);
}

TEST_F(StartUp, AFailureIsNotTriedAgain) {
    const auto loading = root();
    loading->load();
    writeRelease(m_release);
    loading->load();
    EXPECT_EQ(loading->screen(), Screen::Failed);
    EXPECT_EQ(loading->failureText().toStdString(), provenance);
}

TEST_F(StartUp, AReleaseIsNotLoadedTwice) {
    writeRelease(m_release);
    const auto loading = root();
    loading->load();
    loading->load();
    wait(*loading);
    const OpenMapWorkspace* const first = loading->workspace();
    write("OpenMap.json", "");
    loading->load();
    QCoreApplication::processEvents();
    EXPECT_EQ(loading->workspace(), first);
}

TEST_F(StartUp, AWindowThatClosesWhileItLoadsDisturbsNobody) {
    writeRelease(m_release);
    for (int each = 0; each < 20; ++each) {
        root()->load();
        if (each % 2 == 0) {
            QCoreApplication::processEvents();
        }
    }
    EXPECT_EQ(failure(), "");
}

} // namespace
} // namespace vasker
