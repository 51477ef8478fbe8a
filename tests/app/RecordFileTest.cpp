#include "app/saving/RecordFile.h"

#include "tests/support/ReleaseBuilder.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vasker {
namespace {

class RecordFiles : public testing::Test {
  protected:
    [[nodiscard]] static RecordFile shown(std::vector<AssetIndex> records) {
        return {{std::make_shared<const LoadedRelease>(
                     std::make_shared<const OpenMapRelease>(makeRelease()), TextLocale("en")),
                 std::make_shared<const std::vector<AssetIndex>>(std::move(records))},
                {"canada-2026", std::string(64, 'a'), "plant", "gas_plant"}};
    }
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    [[nodiscard]] static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir m_folder;
};

TEST_F(RecordFiles, ATableHasTheRecordsInTheOrderOfTheListBelowAHeaderThatTellsWhichTheyAre) {
    EXPECT_EQ(shown({1, 0}).write(path("table.CSV")), QString());
    const QList<QByteArray> lines = contentOf(path("table.CSV")).split('\n');
    EXPECT_TRUE(lines[0].contains("release=canada-2026,sha256=" + QByteArray(64, 'a') +
                                  ",query=plant,filter=gas_plant"))
        << lines[0].constData();
    QByteArrayList ids;
    for (const QByteArray& line : lines.mid(1)) {
        const QByteArray id = line.split(',').constFirst();
        if (!id.isEmpty() && !ids.endsWith(id)) {
            ids.append(id);
        }
    }
    EXPECT_EQ(ids, (QByteArrayList{"A-1", "A-0"}));
}

TEST_F(RecordFiles, GeoJsonHasTheSameRecordsInTheSameOrder) {
    for (const char* name : {"records.geojson", "records.json"}) {
        EXPECT_EQ(shown({1, 0}).write(path(name)), QString());
        const QJsonObject collection = QJsonDocument::fromJson(contentOf(path(name))).object();
        EXPECT_EQ(collection.value(QStringLiteral("release")).toString(),
                  QStringLiteral("canada-2026"));
        EXPECT_EQ(collection.value(QStringLiteral("filter")).toString(),
                  QStringLiteral("gas_plant"));
        QStringList ids;
        for (const auto& feature : collection.value(QStringLiteral("features")).toArray()) {
            ids.append(feature.toObject()
                           .value(QStringLiteral("properties"))
                           .toObject()
                           .value(QStringLiteral("id"))
                           .toString());
        }
        EXPECT_EQ(ids, (QStringList{QStringLiteral("A-1"), QStringLiteral("A-0")}));
    }
}

TEST_F(RecordFiles, ANameThatTellsNoFormatIsRefusedAndNothingIsWritten) {
    for (const char* name : {"records", "records.xlsx", "csv"}) {
        EXPECT_EQ(shown({0}).write(path(name)),
                  QStringLiteral("its name has to end in .csv or .geojson."));
    }
    EXPECT_EQ(QDir(m_folder.path()).count(), 2U);
}

TEST_F(RecordFiles, AFolderThatIsNotThereIsToldOf) {
    EXPECT_NE(shown({0}).write(path("absent/records.csv")), QString());
}

} // namespace
} // namespace vasker
