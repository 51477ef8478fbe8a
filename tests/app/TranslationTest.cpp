#include "data/Classification.h"
#include "map/catalogue/KindListModel.h"
#include "map/catalogue/RecordListModel.h"
#include "map/view/CameraReadout.h"
#include "platform/Locale.h"
#include "presentation/RecordText.h"
#include "tests/support/ReleaseBuilder.h"

#include <QCoreApplication>
#include <QFile>

#include <gtest/gtest.h>

namespace vasker {
namespace {

RecordSet records(std::vector<AssetIndex> shown) {
    return {std::make_shared<const LoadedRelease>(
                std::make_shared<const OpenMapRelease>(makeRelease()), TextLocale("fr")),
            std::make_shared<const std::vector<AssetIndex>>(std::move(shown))};
}

OpenMapRelease packagedRelease() {
    QFile file(QStringLiteral(VASKER_RESOURCES "/OpenMap.json"));
    return decoded(file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string());
}

TEST(Translation, TheFirstPreferredLanguageThatThereIsGoesBeforeTheLocale) {
    qputenv("LC_ALL", "en_CA.UTF-8");
    qputenv("LANGUAGE", "xx:fr_CA:en");
    EXPECT_EQ(messagesLocale(), QStringLiteral("fr_CA"));
    qputenv("LANGUAGE", "xx");
    EXPECT_EQ(messagesLocale(), QStringLiteral("en_CA"));
    qputenv("LANGUAGE", "fr");
    qputenv("LC_ALL", "C.UTF-8");
    EXPECT_EQ(messagesLocale(), QStringLiteral("en"));
    qunsetenv("LANGUAGE");
}

// One test: a translation stays for the life of the program.
TEST(Translation, AFrenchDesktopReadsFrench) {
    EXPECT_EQ(categoryText("gas_plant"), QStringLiteral("Gas plant"));
    installTranslation(*QCoreApplication::instance(), QStringLiteral("xx"));
    EXPECT_EQ(categoryText("gas_plant"), QStringLiteral("Gas plant"));
    installTranslation(*QCoreApplication::instance(), QStringLiteral("fr_CA"));

    EXPECT_EQ(categoryText("gas_plant"), QStringLiteral("Usine de traitement du gaz"));
    EXPECT_EQ(categoryText("refinery"), QStringLiteral("Raffinerie"));
    EXPECT_EQ(categoryText("compressor_station"), QStringLiteral("Station de compression"));
    EXPECT_EQ(categoryText("drilling_rig"), QStringLiteral("Drilling_rig"));
    EXPECT_EQ(categoryText(""), QString());
    // A key of several words keeps its underscores where it has no translation.
    for (const std::string& kind : kinds(packagedRelease())) {
        EXPECT_FALSE(categoryText(kind).contains(u'_')) << kind;
    }
    EXPECT_EQ(KindListModel().currentLabel(), QStringLiteral("Toutes les catégories"));

    const QLocale french(QStringLiteral("fr_CA"));
    EXPECT_EQ(distanceText(400'000, french), QStringLiteral("400\u00a0km"));
    EXPECT_EQ(distanceText(20, french), QStringLiteral("20\u00a0m"));

    RecordListModel model;
    model.setRecords(records({0, 1}));
    EXPECT_EQ(model.countText(), QStringLiteral("2 fiches sur 2"));
    EXPECT_EQ(
        model.data(model.index(0), RecordListModel::AccessibleRole).toString(),
        QStringLiteral("Plant 0, Usine de traitement du gaz, période de la source\u00a0: 2016"));
    model.setRecords(records({1}));
    EXPECT_EQ(model.countText(), QStringLiteral("1 fiche sur 2"));
}

} // namespace
} // namespace vasker
