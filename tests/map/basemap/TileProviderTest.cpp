#include "map/basemap/TileProvider.h"

#include "map/style/TilePainter.h"
#include "tests/map/style/TileDataBuilder.h"

#include <QTemporaryDir>

namespace vasker {
namespace {

constexpr TileKey place{9, 100, 170};
const Attribution archiveAttribution{QStringLiteral("The archive"), {}};
const Attribution vectorAttribution{QStringLiteral("Maps"),
                                    QUrl(QStringLiteral("https://m.example/"))};
const Attribution imageryAttribution{QStringLiteral("Photographs"), {}};

TileKey quarter(TileKey key, int number) {
    return {key.zoom + 1, 2 * key.column + number % 2, 2 * key.row + number / 2};
}
ServiceTile vectorOf(TileKey key) {
    return {TileContent::vector, key};
}
ServiceTile imageryOf(TileKey key) {
    return {TileContent::imagery, key};
}

class TileProviderTest : public testing::Test {
  protected:
    TileProviderTest() {
        m_sources.vector = {{.addressTemplate = QStringLiteral("https://m.example/{z}/{x}/{y}"),
                             .firstZoom = 8,
                             .lastZoom = 14,
                             .attribution = vectorAttribution.text,
                             .attributionAddress = vectorAttribution.address}};
        m_sources.imagery = {{.addressTemplate = QStringLiteral("https://p.example/{z}/{x}/{y}"),
                              .firstZoom = 0,
                              .lastZoom = 12,
                              .attribution = imageryAttribution.text,
                              .attributionAddress = {}}};
    }

    [[nodiscard]] std::string path(const char* name) const {
        return m_folder.filePath(QString::fromLatin1(name)).toStdString();
    }
    void archive(const ArchivedTiles& tiles, const std::string& attribution = "The archive") {
        writeArchive(path("vector"), tiles, attribution);
        m_archives.vector = path("vector");
    }
    void imageryArchive(const ArchivedTiles& tiles) {
        writeArchive(path("imagery"), tiles);
        m_archives.imagery = path("imagery");
    }
    TileProvider& provider() {
        if (!m_provider) {
            m_provider = std::make_unique<TileProvider>(m_archives, m_sources);
        }
        return *m_provider;
    }
    void send(const ServiceTile& tile, const std::string& bytes) {
        provider().put(tile, QByteArray::fromStdString(bytes));
    }
    void sendImagery(const ServiceTile& tile, const QColor& color) {
        provider().put(tile, imageryImage(color));
    }
    ProvidedTile read(BasemapTheme theme = BasemapTheme::light) {
        return provider().read(place, theme);
    }

    QTemporaryDir m_folder;
    TileArchivePaths m_archives;
    TileSources m_sources;

  private:
    std::unique_ptr<TileProvider> m_provider;
};

bool isSea(const TileData& data) {
    return data.vector && data.vector->layer("ocean") != nullptr;
}

std::vector<TileKey> keysOf(const std::vector<ImageryTile>& tiles) {
    std::vector<TileKey> keys;
    for (const ImageryTile& tile : tiles) {
        keys.push_back(tile.key);
    }
    return keys;
}

std::vector<QColor> colorsOf(const std::vector<ImageryTile>& tiles) {
    std::vector<QColor> colors;
    for (const ImageryTile& tile : tiles) {
        colors.push_back(tile.image.pixelColor(0, 0));
    }
    return colors;
}

TEST_F(TileProviderTest, WithoutAnArchiveNothingIsKnownAndNobodyIsCredited) {
    m_archives = {path("absent"), path("absent, too")};
    for (const BasemapTheme theme : {BasemapTheme::light, BasemapTheme::hybrid}) {
        const ProvidedTile found = read(theme);
        EXPECT_EQ(found.data.vector, nullptr);
        EXPECT_TRUE(found.data.imagery.empty());
        EXPECT_TRUE(found.attributions.empty());
    }
}

TEST_F(TileProviderTest, BeyondTheArchiveTheNearestAncestorIsUsed) {
    archive({{place.ancestor(5), landTile()}, {place.ancestor(3), seaTile()}});
    const ProvidedTile found = read();
    EXPECT_TRUE(isSea(found.data));
    EXPECT_EQ(found.data.vectorKey, place.ancestor(3));
    EXPECT_EQ(found.attributions, std::vector{archiveAttribution});
}

TEST_F(TileProviderTest, ADamagedTileOfTheArchiveGivesWayToItsAncestor) {
    archive({{place.ancestor(5), seaTile()}, {place.ancestor(3), "no tile at all"}});
    const ProvidedTile found = read();
    EXPECT_TRUE(isSea(found.data));
    EXPECT_EQ(found.data.vectorKey, place.ancestor(5));
}

TEST_F(TileProviderTest, AnArchiveThatSaysNothingOfThePlaceIsNotCredited) {
    archive({{{4, 0, 0}, landTile()}, {place.ancestor(3), "no tile at all"}});
    const ProvidedTile found = read();
    EXPECT_EQ(found.data.vector, nullptr);
    EXPECT_TRUE(found.attributions.empty());
}

TEST_F(TileProviderTest, TheTileOfAServiceGoesBeforeTheArchives) {
    archive({{place, landTile()}});
    send(vectorOf(place), seaTile());
    const ProvidedTile found = read();
    EXPECT_TRUE(isSea(found.data));
    EXPECT_EQ(found.data.vectorKey, place);
    EXPECT_EQ(found.attributions, std::vector{vectorAttribution});
}

TEST_F(TileProviderTest, AnAncestorFromAServiceServesUntilTheTileItselfComes) {
    archive({{place.ancestor(2), landTile()}});
    send(vectorOf(place.ancestor(1)), seaTile());
    EXPECT_EQ(read().data.vectorKey, place.ancestor(1));
    send(vectorOf(place), landTile());
    EXPECT_EQ(read().data.vectorKey, place);
    EXPECT_FALSE(isSea(read().data));
}

TEST_F(TileProviderTest, ADamagedTileOfAServiceIsAsIfItHadNotComeAndIsReportedOnce) {
    archive({{place.ancestor(3), seaTile()}});
    send(vectorOf(place), "no tile at all");
    const ProvidedTile found = read();
    EXPECT_EQ(found.data.vectorKey, place.ancestor(3));
    EXPECT_EQ(found.attributions, std::vector{archiveAttribution});
    EXPECT_EQ(found.undecodable, std::vector{vectorOf(place)});
    EXPECT_TRUE(read().undecodable.empty());
}

TEST_F(TileProviderTest, ATileThatIsRefusedIsAsIfItCouldNotBeDecoded) {
    archive({{place.ancestor(3), seaTile()}, {place.ancestor(4), landTile()}});
    send(vectorOf(place), landTile());
    provider().refuseVector(read());
    const ProvidedTile found = read();
    EXPECT_EQ(found.data.vectorKey, place.ancestor(3));
    EXPECT_EQ(found.undecodable, std::vector{vectorOf(place)});
    provider().refuseVector(found);
    EXPECT_EQ(read().data.vectorKey, place.ancestor(4));
    EXPECT_TRUE(read().undecodable.empty());
    send(vectorOf(place), seaTile());
    EXPECT_TRUE(isSea(read().data));
}

TEST_F(TileProviderTest, AWholeTileAfterADamagedOneIsUsed) {
    send(vectorOf(place), "no tile at all");
    EXPECT_EQ(read().data.vector, nullptr);
    send(vectorOf(place), seaTile());
    EXPECT_TRUE(isSea(read().data));
}

TEST_F(TileProviderTest, WhatAServiceSendsAnewReplacesWhatItSentBefore) {
    send(vectorOf(place), landTile());
    EXPECT_FALSE(isSea(read().data));
    send(vectorOf(place), seaTile());
    EXPECT_TRUE(isSea(read().data));
}

TEST_F(TileProviderTest, TheImageryOfAnAncestorLiesBelowThatOfTheQuarters) {
    imageryArchive({{place.ancestor(4), imageryImage(Qt::red).toStdString()}});
    sendImagery(imageryOf(quarter(place, 3)), QColor(Qt::blue));
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_EQ(keysOf(found.data.imagery), (std::vector{place.ancestor(4), quarter(place, 3)}));
    EXPECT_TRUE(found.data.hasFullImagery(place));
    EXPECT_EQ(found.attributions, (std::vector{archiveAttribution, imageryAttribution}));
}

TEST_F(TileProviderTest, SharpImageryNeedsNoMapBelowIt) {
    archive({{place.ancestor(3), seaTile()}});
    sendImagery(imageryOf(place), QColor(Qt::blue));
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_EQ(found.data.vector, nullptr);
    EXPECT_EQ(found.attributions, std::vector{imageryAttribution});
}

TEST_F(TileProviderTest, EnlargedImageryComesWithTheMapThatHasItsWatersAndBothAreCredited) {
    archive({{place.ancestor(3), seaTile()}}, "Waters");
    imageryArchive({{place.ancestor(5), imageryImage(Qt::red).toStdString()}});
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_TRUE(found.data.needsWaters(place));
    EXPECT_TRUE(isSea(found.data));
    EXPECT_EQ(found.attributions,
              (std::vector{archiveAttribution, Attribution{QStringLiteral("Waters"), {}}}));
}

TEST_F(TileProviderTest, EnlargedImageryRunsFromOneTileIntoTheNext) {
    imageryArchive({{{7, 25, 42}, imageryImage(Qt::red).toStdString()},
                    {{7, 26, 42}, imageryImage(Qt::blue).toStdString()}});
    const auto painted = [this](TileKey key) {
        return paintTile(provider().read(key, BasemapTheme::satellite).data,
                         {.key = key,
                          .devicePixelsPerMapPoint = tilePixels / key.side(),
                          .theme = BasemapTheme::satellite});
    };
    const QColor west = painted({9, 103, 170}).pixelColor(511, 300);
    const QColor east = painted({9, 104, 170}).pixelColor(0, 300);
    EXPECT_NEAR(west.red(), east.red(), 40);
    EXPECT_NEAR(west.blue(), east.blue(), 40);
    EXPECT_GT(west.blue(), 60);
}

TEST_F(TileProviderTest, ImageryThatIsOnlyColourCouldBeSharperWhereAServiceHasItSo) {
    imageryArchive({{place.ancestor(2), imageryImage(Qt::red).toStdString()}});
    EXPECT_TRUE(read(BasemapTheme::satellite).lacksSharperImagery);
    EXPECT_TRUE(read(BasemapTheme::hybrid).lacksSharperImagery);
    EXPECT_FALSE(read(BasemapTheme::light).lacksSharperImagery);
    EXPECT_FALSE(provider().read(place.ancestor(1), BasemapTheme::satellite).lacksSharperImagery);
    sendImagery(imageryOf(place.ancestor(1)), QColor(Qt::blue));
    EXPECT_FALSE(read(BasemapTheme::satellite).lacksSharperImagery);
}

TEST_F(TileProviderTest, ImageryThatNoServiceHasSharperLacksNothing) {
    m_sources.imagery.front().lastZoom = 7;
    imageryArchive({{place.ancestor(2), imageryImage(Qt::red).toStdString()}});
    EXPECT_FALSE(read(BasemapTheme::satellite).lacksSharperImagery);
}

TEST_F(TileProviderTest, FourQuartersNeedNothingBelowThem) {
    imageryArchive({{place.ancestor(4), imageryImage(Qt::red).toStdString()}});
    for (const int number : {0, 1, 2, 3}) {
        sendImagery(imageryOf(quarter(place, number)), QColor(Qt::blue));
    }
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_EQ(colorsOf(found.data.imagery), std::vector(4, QColor(Qt::blue)));
    EXPECT_EQ(found.attributions, std::vector{imageryAttribution});
}

TEST_F(TileProviderTest, WhatImageryLeavesOpenIsDrawn) {
    archive({{place.ancestor(3), seaTile()}});
    sendImagery(imageryOf(quarter(place, 0)), QColor(Qt::blue));
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_FALSE(found.data.hasFullImagery(place));
    EXPECT_TRUE(isSea(found.data));
    EXPECT_EQ(found.attributions, (std::vector{imageryAttribution, archiveAttribution}));
}

TEST_F(TileProviderTest, NearerImageryOfTheArchiveGoesBeforeFartherImageryOfAService) {
    imageryArchive({{place.ancestor(2), imageryImage(Qt::red).toStdString()}});
    sendImagery(imageryOf(place.ancestor(6)), QColor(Qt::blue));
    EXPECT_EQ(colorsOf(read(BasemapTheme::satellite).data.imagery), std::vector{QColor(Qt::red)});
    sendImagery(imageryOf(place.ancestor(2)), QColor(Qt::green));
    EXPECT_EQ(colorsOf(read(BasemapTheme::satellite).data.imagery), std::vector{QColor(Qt::green)});
}

TEST_F(TileProviderTest, DamagedImageryIsAsIfItHadNotCome) {
    imageryArchive({{place, "no image"}, {place.ancestor(1), imageryImage(Qt::red).toStdString()}});
    send(imageryOf(place), "no image");
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_EQ(keysOf(found.data.imagery), std::vector{place.ancestor(1)});
    EXPECT_EQ(found.attributions, std::vector{archiveAttribution});
    EXPECT_EQ(found.undecodable, std::vector{imageryOf(place)});
}

TEST_F(TileProviderTest, HybridHasImageryAndMap) {
    archive({{place.ancestor(3), seaTile()}});
    sendImagery(imageryOf(place), QColor(Qt::blue));
    const ProvidedTile found = read(BasemapTheme::hybrid);
    EXPECT_TRUE(isSea(found.data));
    EXPECT_EQ(keysOf(found.data.imagery), std::vector{place});
    EXPECT_EQ(found.attributions, (std::vector{imageryAttribution, archiveAttribution}));
}

TEST_F(TileProviderTest, TheDrawnMapRequestsNoImagery) {
    EXPECT_EQ(provider().requestsFor(place, BasemapTheme::light), std::vector{vectorOf(place)});
    sendImagery(imageryOf(place), QColor(Qt::blue));
    EXPECT_TRUE(read(BasemapTheme::dark).data.imagery.empty());
}

TEST_F(TileProviderTest, ImageryIsRequestedInQuartersAndBeyondTheLastZoomFromItsAncestor) {
    EXPECT_EQ(provider().requestsFor(place, BasemapTheme::satellite),
              (std::vector{imageryOf(quarter(place, 0)),
                           imageryOf(quarter(place, 1)),
                           imageryOf(quarter(place, 2)),
                           imageryOf(quarter(place, 3))}));
    constexpr TileKey deep{15, 5'000, 6'000};
    EXPECT_EQ(provider().requestsFor(deep, BasemapTheme::hybrid),
              (std::vector{imageryOf(deep.ancestor(3)), vectorOf(deep.ancestor(1))}));
}

TEST_F(TileProviderTest, WhatTheArchiveShowsAsWellIsNotRequested) {
    EXPECT_TRUE(provider().requestsFor(place.ancestor(2), BasemapTheme::light).empty());
    m_sources = {};
    const TileProvider alone(m_archives, m_sources);
    EXPECT_TRUE(alone.requestsFor(place, BasemapTheme::hybrid).empty());
}

} // namespace
} // namespace vasker
