#include "map/basemap/TileProvider.h"

#include "tests/map/style/TileDataBuilder.h"

#include <QTemporaryDir>

namespace vasker {
namespace {

constexpr TileKey place{9, 100, 170};
const TileAttribution archiveCredit{QStringLiteral("The archive"), {}};
const TileAttribution vectorCredit{QStringLiteral("Maps"),
                                   QUrl(QStringLiteral("https://m.example/"))};
const TileAttribution imageryCredit{QStringLiteral("Photographs"), {}};

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
                             .attribution = vectorCredit.text,
                             .attributionAddress = vectorCredit.address}};
        m_sources.imagery = {{.addressTemplate = QStringLiteral("https://p.example/{z}/{x}/{y}"),
                              .firstZoom = 0,
                              .lastZoom = 12,
                              .attribution = imageryCredit.text,
                              .attributionAddress = {}}};
    }

    [[nodiscard]] std::string path(const char* name) const {
        return m_folder.filePath(QString::fromLatin1(name)).toStdString();
    }
    void archive(const ArchivedTiles& tiles) {
        writeArchive(path("vector"), tiles);
        m_archives.vector = path("vector");
    }
    void imageryArchive(const ArchivedTiles& tiles) {
        writeArchive(path("imagery"), tiles);
        m_archives.imagery = path("imagery");
    }
    TileProvider& reader() {
        if (!m_reader) {
            m_reader = std::make_unique<TileProvider>(m_archives, m_sources);
        }
        return *m_reader;
    }
    void send(const ServiceTile& tile, const std::string& bytes) {
        reader().put(tile, QByteArray::fromStdString(bytes));
    }
    void sendPhotograph(const ServiceTile& tile, const QColor& color) {
        reader().put(tile, photographOf(color));
    }
    ProvidedTile read(BasemapTheme look = BasemapTheme::light) {
        return reader().read(place, look);
    }

    QTemporaryDir m_folder;
    TileArchivePaths m_archives;
    TileSources m_sources;

  private:
    std::unique_ptr<TileProvider> m_reader;
};

bool isSea(const TileData& ground) {
    return ground.vector && ground.vector->layer("ocean") != nullptr;
}

std::vector<TileKey> keysOf(const std::vector<ImageryPiece>& pieces) {
    std::vector<TileKey> keys;
    for (const ImageryPiece& piece : pieces) {
        keys.push_back(piece.key);
    }
    return keys;
}

std::vector<QColor> colorsOf(const std::vector<ImageryPiece>& pieces) {
    std::vector<QColor> colors;
    for (const ImageryPiece& piece : pieces) {
        colors.push_back(piece.image.pixelColor(0, 0));
    }
    return colors;
}

std::string photograph(const QColor& color) {
    return photographOf(color).toStdString();
}

TEST_F(TileProviderTest, WithoutAnArchiveNothingIsKnownAndNobodyIsThanked) {
    m_archives = {path("absent"), path("absent, too")};
    for (const BasemapTheme look : {BasemapTheme::light, BasemapTheme::hybrid}) {
        const ProvidedTile found = read(look);
        EXPECT_EQ(found.ground.vector, nullptr);
        EXPECT_TRUE(found.ground.imagery.empty());
        EXPECT_TRUE(found.credits.empty());
    }
}

TEST_F(TileProviderTest, BeyondTheArchiveTheNearestAncestorIsUsed) {
    archive({{place.ancestor(5), landTile()}, {place.ancestor(3), seaTile()}});
    const ProvidedTile found = read();
    EXPECT_TRUE(isSea(found.ground));
    EXPECT_EQ(found.ground.vectorKey, place.ancestor(3));
    EXPECT_EQ(found.credits, std::vector{archiveCredit});
}

TEST_F(TileProviderTest, ADamagedTileOfTheArchiveGivesWayToItsAncestor) {
    archive({{place.ancestor(5), seaTile()}, {place.ancestor(3), "no tile at all"}});
    const ProvidedTile found = read();
    EXPECT_TRUE(isSea(found.ground));
    EXPECT_EQ(found.ground.vectorKey, place.ancestor(5));
}

TEST_F(TileProviderTest, AnArchiveThatSaysNothingOfThePlaceIsNotThanked) {
    archive({{{4, 0, 0}, landTile()}, {place.ancestor(3), "no tile at all"}});
    const ProvidedTile found = read();
    EXPECT_EQ(found.ground.vector, nullptr);
    EXPECT_TRUE(found.credits.empty());
}

TEST_F(TileProviderTest, TheTileOfAServiceGoesBeforeTheArchives) {
    archive({{place, landTile()}});
    send(vectorOf(place), seaTile());
    const ProvidedTile found = read();
    EXPECT_TRUE(isSea(found.ground));
    EXPECT_EQ(found.ground.vectorKey, place);
    EXPECT_EQ(found.credits, std::vector{vectorCredit});
}

TEST_F(TileProviderTest, AnAncestorFromAServiceServesUntilTheTileItselfComes) {
    archive({{place.ancestor(2), landTile()}});
    send(vectorOf(place.ancestor(1)), seaTile());
    EXPECT_EQ(read().ground.vectorKey, place.ancestor(1));
    send(vectorOf(place), landTile());
    EXPECT_EQ(read().ground.vectorKey, place);
    EXPECT_FALSE(isSea(read().ground));
}

TEST_F(TileProviderTest, ADamagedTileOfAServiceIsAsIfItHadNotComeAndIsToldOnce) {
    archive({{place.ancestor(3), seaTile()}});
    send(vectorOf(place), "no tile at all");
    EXPECT_EQ(read().ground.vectorKey, place.ancestor(3));
    EXPECT_EQ(read().credits, std::vector{archiveCredit});
    EXPECT_EQ(reader().takeUndecodable(), std::vector{vectorOf(place)});
    static_cast<void>(read());
    EXPECT_TRUE(reader().takeUndecodable().empty());
}

TEST_F(TileProviderTest, AWholeTileAfterADamagedOneIsUsed) {
    send(vectorOf(place), "no tile at all");
    EXPECT_EQ(read().ground.vector, nullptr);
    send(vectorOf(place), seaTile());
    EXPECT_TRUE(isSea(read().ground));
}

TEST_F(TileProviderTest, WhatAServiceSendsAnewReplacesWhatItSentBefore) {
    send(vectorOf(place), landTile());
    EXPECT_FALSE(isSea(read().ground));
    send(vectorOf(place), seaTile());
    EXPECT_TRUE(isSea(read().ground));
}

TEST_F(TileProviderTest, ThePhotographOfAnAncestorStandsBelowThoseOfTheQuarters) {
    imageryArchive({{place.ancestor(4), photograph(Qt::red)}});
    sendPhotograph(imageryOf(quarter(place, 3)), QColor(Qt::blue));
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_EQ(keysOf(found.ground.imagery), (std::vector{place.ancestor(4), quarter(place, 3)}));
    EXPECT_TRUE(found.ground.isPhotographed(place));
    EXPECT_EQ(found.ground.vector, nullptr); // it would not be seen
    EXPECT_EQ(found.credits, (std::vector{archiveCredit, imageryCredit}));
}

TEST_F(TileProviderTest, FourQuartersNeedNothingBelowThem) {
    imageryArchive({{place.ancestor(4), photograph(Qt::red)}});
    for (const int number : {0, 1, 2, 3}) {
        sendPhotograph(imageryOf(quarter(place, number)), QColor(Qt::blue));
    }
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_EQ(colorsOf(found.ground.imagery), std::vector(4, QColor(Qt::blue)));
    EXPECT_EQ(found.credits, std::vector{imageryCredit});
}

TEST_F(TileProviderTest, WhatPhotographsLeaveOpenIsDrawn) {
    archive({{place.ancestor(3), seaTile()}});
    sendPhotograph(imageryOf(quarter(place, 0)), QColor(Qt::blue));
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_FALSE(found.ground.isPhotographed(place));
    EXPECT_TRUE(isSea(found.ground));
    EXPECT_EQ(found.credits, (std::vector{imageryCredit, archiveCredit}));
}

TEST_F(TileProviderTest, ANearerPhotographOfTheArchiveGoesBeforeAFartherOneOfAService) {
    imageryArchive({{place.ancestor(2), photograph(Qt::red)}});
    sendPhotograph(imageryOf(place.ancestor(6)), QColor(Qt::blue));
    EXPECT_EQ(colorsOf(read(BasemapTheme::satellite).ground.imagery), std::vector{QColor(Qt::red)});
    sendPhotograph(imageryOf(place.ancestor(2)), QColor(Qt::green));
    EXPECT_EQ(colorsOf(read(BasemapTheme::satellite).ground.imagery),
              std::vector{QColor(Qt::green)});
}

TEST_F(TileProviderTest, DamagedPhotographsAreAsIfTheyHadNotCome) {
    imageryArchive({{place, "no photograph"}, {place.ancestor(1), photograph(Qt::red)}});
    send(imageryOf(place), "no photograph");
    const ProvidedTile found = read(BasemapTheme::satellite);
    EXPECT_EQ(keysOf(found.ground.imagery), std::vector{place.ancestor(1)});
    EXPECT_EQ(found.credits, std::vector{archiveCredit});
    EXPECT_EQ(reader().takeUndecodable(), std::vector{imageryOf(place)});
}

TEST_F(TileProviderTest, HybridKnowsPhotographAndMap) {
    archive({{place.ancestor(3), seaTile()}});
    sendPhotograph(imageryOf(place), QColor(Qt::blue));
    const ProvidedTile found = read(BasemapTheme::hybrid);
    EXPECT_TRUE(isSea(found.ground));
    EXPECT_EQ(keysOf(found.ground.imagery), std::vector{place});
    EXPECT_EQ(found.credits, (std::vector{imageryCredit, archiveCredit}));
}

TEST_F(TileProviderTest, TheDrawnMapAsksForNoPhotographs) {
    EXPECT_EQ(reader().wantedFor(place, BasemapTheme::light), std::vector{vectorOf(place)});
    sendPhotograph(imageryOf(place), QColor(Qt::blue));
    EXPECT_TRUE(read(BasemapTheme::dark).ground.imagery.empty());
}

TEST_F(TileProviderTest, PhotographsAreWantedInQuartersAndBeyondTheLastZoomFromTheirAncestor) {
    EXPECT_EQ(reader().wantedFor(place, BasemapTheme::satellite),
              (std::vector{imageryOf(quarter(place, 0)),
                           imageryOf(quarter(place, 1)),
                           imageryOf(quarter(place, 2)),
                           imageryOf(quarter(place, 3))}));
    constexpr TileKey deep{15, 5'000, 6'000};
    EXPECT_EQ(reader().wantedFor(deep, BasemapTheme::hybrid),
              (std::vector{imageryOf(deep.ancestor(3)), vectorOf(deep.ancestor(1))}));
}

TEST_F(TileProviderTest, WhatTheArchiveShowsAsWellIsNotAskedFor) {
    EXPECT_TRUE(reader().wantedFor(place.ancestor(2), BasemapTheme::light).empty());
    m_sources = {};
    const TileProvider alone(m_archives, m_sources);
    EXPECT_TRUE(alone.wantedFor(place, BasemapTheme::hybrid).empty());
}

} // namespace
} // namespace vasker
