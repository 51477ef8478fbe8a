#include "map/tileservice/TileSources.h"

#include <QFile>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace vasker {
namespace {

QJsonObject object(const char* json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json;
    return document.object();
}

TileSource withTemplate(const QString& text) {
    return {.addressTemplate = text,
            .firstZoom = 0,
            .lastZoom = 5,
            .attribution = {},
            .attributionAddress = {}};
}

TEST(TileSources, AreReadFromTheBundleInformation) {
    const TileSources sources = TileSources::fromInformation(object(R"({"vector": [
        {"template": "https://a.example/{z}/{x}/{y}.mvt", "firstZoom": 8, "lastZoom": 14,
         "attribution": "© A", "attributionURL": "https://a.example/about"}],
        "imagery": [
        {"template": "https://b.example/{z}/{y}/{x}.jpg", "firstZoom": 0, "lastZoom": 8}]})"));
    ASSERT_EQ(sources.vector.size(), 1U);
    EXPECT_EQ(sources.vector[0],
              (TileSource{.addressTemplate = QStringLiteral("https://a.example/{z}/{x}/{y}.mvt"),
                          .firstZoom = 8,
                          .lastZoom = 14,
                          .attribution = QStringLiteral("© A"),
                          .attributionAddress = QUrl(QStringLiteral("https://a.example/about"))}));
    ASSERT_EQ(sources.imagery.size(), 1U);
    EXPECT_EQ(sources.imagery[0].address({3, 1, 2}),
              QUrl(QStringLiteral("https://b.example/3/2/1.jpg")));
}

TEST(TileSources, EntriesThatMakeNoSenseAreLeftOut) {
    for (const char* const entry : {
             R"(7)",
             R"({})",
             R"({"template": "https://a.example/{z}/{x}/{y}"})",
             R"({"template": "https://a.example/{z}/{x}/{y}", "firstZoom": 0})",
             R"({"template": "https://a.example/{z}/{x}/{y}", "firstZoom": 5, "lastZoom": 4})",
             R"({"template": "https://a.example/{z}/{x}/{y}", "firstZoom": -1, "lastZoom": 4})",
             R"({"template": "https://a.example/{z}/{x}/{y}", "firstZoom": 0, "lastZoom": 23})",
             R"({"template": "https://a.example/{z}/{x}/{y}", "firstZoom": 0, "lastZoom": 1.5})",
             R"({"template": "https://a.example/{z}/{x}/{y}", "firstZoom": "0", "lastZoom": 1})",
             R"({"template": "http://a.example/{z}/{x}/{y}", "firstZoom": 0, "lastZoom": 4})",
             R"({"template": "http://127.0.0.1/{z}/{x}/{y}", "firstZoom": 0, "lastZoom": 4})",
         }) {
        const QByteArray json = QByteArray(R"({"vector": [)") + entry + "]}";
        EXPECT_TRUE(TileSources::fromInformation(object(json)).vector.empty()) << entry;
    }
    for (const char* const services : {"{}", R"({"vector": 7, "imagery": {}})"}) {
        const TileSources sources = TileSources::fromInformation(object(services));
        EXPECT_TRUE(sources.vector.empty() && sources.imagery.empty()) << services;
    }
}

TEST(TileSources, ATemplateIsAnAddressWithItsThreePlacesBehindTheHost) {
    EXPECT_TRUE(withTemplate(QStringLiteral("https://a.example/{z}/{x}/{y}")).isValid());
    EXPECT_TRUE(withTemplate(QStringLiteral("https://a.example/t?z={z}&x={x}&y={y}")).isValid());
    for (const char16_t* const text : {u"",
                                       u"{z}{x}{y}",
                                       u"/{z}/{x}/{y}",
                                       u"https:///{z}/{x}/{y}",
                                       u"https://{z}.a.example/{x}/{y}",
                                       u"https://a.example/{z}/{x}",
                                       u"https://a.example/{z}/{x}/{y}/{y}",
                                       u"https://user@a.example/{z}/{x}/{y}",
                                       u"https://a.example/{z}/{x}#{y}",
                                       u"https://a example/{z}/{x}/{y}"}) {
        const QString tried = QString::fromUtf16(text);
        EXPECT_FALSE(withTemplate(tried).isValid()) << tried.toStdString();
    }
    const QString longOne = QStringLiteral("https://a.example/{z}/{x}/{y}/");
    EXPECT_FALSE(withTemplate(longOne + QString(1'000, u'a')).isValid());
}

TEST(TileSources, AnAddressToBeShownIsOneOfTheWeb) {
    const TileSources sources = TileSources::fromInformation(object(R"({"vector": [
        {"template": "https://a.example/{z}/{x}/{y}", "firstZoom": 0, "lastZoom": 4,
         "attribution": "A", "attributionURL": "file:///etc/passwd"}]})"));
    ASSERT_EQ(sources.vector.size(), 1U);
    EXPECT_TRUE(sources.vector[0].attributionAddress.isEmpty());
}

TEST(TileSources, ThoseOfTheProgramAreUsable) {
    QFile file(QStringLiteral(VASKER_RESOURCES "/BundleInformation.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const TileSources sources = TileSources::fromInformation(
        QJsonDocument::fromJson(file.readAll()).object().value(u"VaskerTileServices").toObject());
    ASSERT_EQ(sources.vector.size(), 1U);
    ASSERT_EQ(sources.imagery.size(), 2U);
    EXPECT_EQ(sources.vector[0].lastZoom, 14);
    EXPECT_EQ(sources.imagery[0].lastZoom + 1, sources.imagery[1].firstZoom);
    for (const TileSource& source : {sources.vector[0], sources.imagery[0], sources.imagery[1]}) {
        EXPECT_FALSE(source.attribution.isEmpty());
        EXPECT_EQ(source.attributionAddress.scheme(), u"https");
    }
}

TEST(TileSources, TheFirstSourceThatCoversAZoomIsUsed) {
    TileSources sources;
    sources.vector = {{.addressTemplate = {},
                       .firstZoom = 8,
                       .lastZoom = 14,
                       .attribution = {},
                       .attributionAddress = {}},
                      {.addressTemplate = {},
                       .firstZoom = 0,
                       .lastZoom = 9,
                       .attribution = {},
                       .attributionAddress = {}}};
    EXPECT_EQ(sources.covering(TileContent::vector, 8), &sources.vector[0]);
    EXPECT_EQ(sources.covering(TileContent::vector, 7), &sources.vector[1]);
    EXPECT_EQ(sources.covering(TileContent::vector, 15), nullptr);
    EXPECT_EQ(sources.covering(TileContent::imagery, 8), nullptr);
    EXPECT_EQ(sources.lastZoom(TileContent::vector), 14);
    EXPECT_EQ(sources.lastZoom(TileContent::imagery), -1);
}

} // namespace
} // namespace vasker
