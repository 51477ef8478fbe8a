#include "app/OpenMapApp.h"
#include "data/Classification.h"
#include "data/text/CaseFolding.h"
#include "detail/OpenMapInspector.h"
#include "detail/OpenMapSources.h"
#include "map/catalogue/FoundText.h"
#include "map/catalogue/KindListModel.h"
#include "map/catalogue/RecordListModel.h"
#include "map/exploration/PlaceText.h"
#include "map/view/CameraReadout.h"
#include "platform/Locale.h"
#include "presentation/FactLabel.h"
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

void expectLabelsOfFactsInFrench() {
    EXPECT_EQ(factLabel("NPRI ID"), QStringLiteral("Identifiant INRP"));
    EXPECT_EQ(factLabel("Released: Toluene"), QStringLiteral("Rejeté\u00a0: toluène"));
    EXPECT_EQ(factLabel("Name in the report for 2031"),
              QStringLiteral("Nom dans la déclaration de 2031"));
    EXPECT_EQ(factLabel("Total emissions of G10813"),
              QStringLiteral("Émissions totales de G10813"));
    for (const OpenMapRelease::Asset& asset : packagedRelease().assets) {
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            ASSERT_NE(factLabel(fact.label), toQString(fact.label)) << asset.id;
        }
    }
}

void expectOtherLabelsAsTheyAre() {
    const std::string zero("NPRI ID\0", 8);
    for (const std::string& label : {std::string("NPRI id"),
                                     std::string("NPRI ID "),
                                     std::string("Colour of G10813"),
                                     std::string("Total emissions of Gina"),
                                     std::string("Total emissions of G"),
                                     std::string("Total emissions 2022"),
                                     std::string("2022"),
                                     std::string(" of G1"),
                                     std::string(),
                                     zero}) {
        EXPECT_EQ(factLabel(label), toQString(label));
    }
}

void expectFrenchLabelsWithValuesAsStored() {
    auto release = std::make_shared<OpenMapRelease>(makeRelease());
    OpenMapRelease::Asset& asset = release->assets[0];
    asset.facts = {makeFact("City of Owner")};
    asset.facts[0].label = "Owner";

    const auto facts = OpenMapInspector::of(*release, asset).facts;
    EXPECT_EQ(facts.at(0).label, QStringLiteral("Propriétaire"));
    EXPECT_EQ(facts.at(0).spokenText(), QStringLiteral("Propriétaire, City of Owner"));

    const ReleaseIndex index(release, TextLocale("fr"));
    const auto found = FoundText::of(index, 0, folded("city of", index.locale()));
    EXPECT_EQ(found.markup, QStringLiteral("Propriétaire\u00a0: <b>City of</b> Owner"));
    EXPECT_FALSE(OpenMapSources::of(*release).languageNote.isEmpty());
}

void expectNumbersInGroups() {
    OpenMapRelease release = makeRelease();
    release.assets.resize(1204, release.assets[0]);
    EXPECT_EQ(OpenMapSources::of(release).counts,
              QLocale().toString(1204) + QStringLiteral(" fiches · 1 tracés"));
    EXPECT_EQ(PlaceText::inView(1204), QLocale().toString(1204) + QStringLiteral(" fiches en vue"));
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
    KindListModel legend;
    legend.setKinds({QStringLiteral("battery")});
    legend.setCounts({1727});
    EXPECT_EQ(legend.data(legend.index(1), KindListModel::CountRole).toString(),
              QLocale().toString(1727)); // not "1727"

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

    EXPECT_EQ(OpenMapApp::guideSections().at(0).title,
              QStringLiteral("Trouver une usine ou un pipeline"));
    expectLabelsOfFactsInFrench();
    expectOtherLabelsAsTheyAre();
    expectFrenchLabelsWithValuesAsStored();
    expectNumbersInGroups();
}

} // namespace
} // namespace vasker
