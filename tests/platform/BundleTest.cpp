#include "platform/Bundle.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vasker {
namespace {

class BundleIn : public testing::Test {
  protected:
    void write(const char* name, const char* text) const {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    [[nodiscard]] QJsonValue information(const char* key) const {
        return m_bundle.information(QString::fromLatin1(key));
    }

    QTemporaryDir m_folder;
    Bundle m_bundle{m_folder.path()};
};

TEST_F(BundleIn, AResourceIsFoundByNameAndExtension) {
    write("OpenMap.json", "{}");
    EXPECT_EQ(m_bundle.resource(QStringLiteral("OpenMap"), QStringLiteral("json")),
              m_folder.filePath(QStringLiteral("OpenMap.json")));
    EXPECT_EQ(m_bundle.resource(QStringLiteral("OpenMap"), QStringLiteral("txt")), std::nullopt);
}

TEST_F(BundleIn, AFolderUnderTheNameOfAResourceIsFoundToo) {
    QDir(m_folder.path()).mkdir(QStringLiteral("OpenMap.json"));
    EXPECT_TRUE(m_bundle.resource(QStringLiteral("OpenMap"), QStringLiteral("json")));
}

TEST_F(BundleIn, AnInformationValueKeepsItsType) {
    write("BundleInformation.json", R"({"text": "a", "empty": "", "number": 7})");
    EXPECT_EQ(information("text").toString(), QStringLiteral("a"));
    EXPECT_TRUE(information("empty").isString());
    EXPECT_TRUE(information("number").isDouble());
    EXPECT_TRUE(information("missing").isUndefined());
}

TEST_F(BundleIn, InformationThatIsMissingOrMalformedHasNoValues) {
    EXPECT_TRUE(information("text").isUndefined());
    for (const char* text : {"", "{\"text\": \"a\"", "[\"text\"]", "\xFF\xFE"}) {
        write("BundleInformation.json", text);
        EXPECT_TRUE(information("text").isUndefined()) << text;
    }
}

TEST_F(BundleIn, AFolderInPlaceOfTheInformationHasNoValues) {
    QDir(m_folder.path()).mkdir(QStringLiteral("BundleInformation.json"));
    EXPECT_TRUE(information("text").isUndefined());
}

TEST_F(BundleIn, AFifoInPlaceOfTheInformationHasNoValues) {
    const QString path = m_folder.filePath(QStringLiteral("BundleInformation.json"));
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_TRUE(information("text").isUndefined());
}

} // namespace
} // namespace vasker
