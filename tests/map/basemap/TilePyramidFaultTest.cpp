// What is seen of the basemap while services fail: always something, and nothing false is said.

#include "map/style/MapTheme.h"
#include "tests/map/basemap/TilePyramidFixture.h"

#include <QDir>

#include <ostream>

namespace vasker {
namespace {

using Manner = TileServer::Manner;

class TilePyramidFaultTest : public TilePyramidFixture {
  protected:
    TilePyramidFaultTest() { writeLand(); }

    /// Everything that is seen is the archive's, though the service was asked.
    void expectArchive() {
        openWithServices();
        ASSERT_TRUE(lookUntilComplete());
        ASSERT_TRUE(lookUntil([&] { return !server.requests().empty() && server.open() == 0; }));
        look();
        EXPECT_TRUE(frame.isComplete);
        EXPECT_TRUE(hasNoHole());
        EXPECT_EQ(middleColor(), land);
        EXPECT_EQ(credits(), std::vector{archiveCredit});
    }

    const QColor darkLand = mapTheme(BasemapTheme::dark).land;
    const QByteArray sea = QByteArray::fromStdString(seaTile());
};

struct Fault {
    const char* name;
    TileServer::Answer answer;
    friend void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.name; }
};

const QByteArray beginning(256, '\x1a');

class FaultyServiceTest : public TilePyramidFaultTest, public testing::WithParamInterface<Fault> {
  protected:
    FaultyServiceTest() {
        options.responseBytes = 100'000;
        options.responseTime = std::chrono::milliseconds(300);
        options.silentTime = std::chrono::milliseconds(200);
        server.setOtherAnswer(GetParam().answer);
    }
};

TEST_P(FaultyServiceTest, LeavesTheArchivesBasemap) {
    expectArchive();
    EXPECT_FALSE(frame.lacksImagery);
}

TEST_P(FaultyServiceTest, LeavesTheDrawnMapInPlaceOfImageryAndSaysSo) {
    view.theme = BasemapTheme::satellite;
    openWithServices();
    ASSERT_TRUE(lookUntilComplete());
    ASSERT_TRUE(lookUntil([&] { return !server.requests().empty() && server.open() == 0; }));
    look();
    EXPECT_TRUE(frame.isComplete);
    EXPECT_TRUE(frame.lacksImagery);
    EXPECT_TRUE(hasNoHole());
    EXPECT_EQ(middleColor(), darkLand);
    EXPECT_EQ(credits(), std::vector{archiveCredit});
}

INSTANTIATE_TEST_SUITE_P(
    OfEachKind,
    FaultyServiceTest,
    testing::Values(Fault{"NotFound", {.status = 404}},
                    Fault{"Busy", {.status = 429, .headers = {"Retry-After: 30"}}},
                    Fault{"Broken", {.status = 500}},
                    Fault{"Elsewhere", {.status = 302, .headers = {"Location: http://localhost/"}}},
                    Fault{"WrongType",
                          {.body = "<html></html>", .headers = {"Content-Type: text/html"}}},
                    Fault{"Damaged", {.body = "\x1a\x05layer"}},
                    Fault{"DamagedPhotograph", {.body = "\xff\xd8\xff photograph"}},
                    Fault{"NoHttp", {.body = "garbage", .manner = Manner::garbage}},
                    Fault{"CutOff", {.body = beginning, .manner = Manner::cutOff}},
                    Fault{"Slow", {.body = beginning, .manner = Manner::trickle}},
                    Fault{"Silent", {.manner = Manner::silent}},
                    Fault{"Endless", {.body = beginning, .manner = Manner::endless}}),
    [](const auto& fault) { return std::string(fault.param.name); });

TEST_F(TilePyramidFaultTest, AServerThatIsNotThereLeavesTheArchivesBasemap) {
    server.close();
    openWithServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_TRUE(hasNoHole());
    EXPECT_EQ(credits(), std::vector{archiveCredit});
}

TEST_F(TilePyramidFaultTest, AServerThatComesBackIsNoticed) {
    const quint16 port = server.port();
    server.close();
    openWithServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(middleColor(), land);
    TileServer again(port);
    ASSERT_EQ(again.port(), port);
    again.setOtherAnswer({.body = sea});
    EXPECT_TRUE(
        lookUntil([&] { return middleColor() == water && credits() == std::vector{mapCredit}; }));
}

TEST_F(TilePyramidFaultTest, ADamagedTileIsNotKeptForTheNextTime) {
    const QString path = vectorPath(homeZoom, homeTile.column, homeTile.row);
    server.setAnswer(path, {.body = "\x1a\x05layer"});
    openWithServices();
    ASSERT_TRUE(lookUntil([&] { return server.requestsFor(path) == 1; }));
    server.setAnswer(path, {.body = sea});
    int frames = 0;
    ASSERT_TRUE(lookUntil([&] {
        if (frame.isComplete && ++frames % 20 == 0) { // the program is started again
            close();
            openWithServices();
        }
        return server.requestsFor(path) >= 2; // not out of the cache
    }));
    EXPECT_TRUE(lookUntil([&] { return middleColor() == water; }));
}

TEST_F(TilePyramidFaultTest, ATileThatTakesTooLongToPaintLeavesTheArchivesAndIsNotKept) {
    const QString path = vectorPath(homeZoom, homeTile.column, homeTile.row);
    server.setAnswer(path, {.body = QByteArray::fromStdString(zigzagTile(20'000))});
    openWithServices();
    ASSERT_TRUE(lookUntil([&] { return server.requestsFor(path) == 1; }));
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(middleColor(), land);
    server.setAnswer(path, {.body = sea});
    int frames = 0;
    ASSERT_TRUE(lookUntil([&] {
        if (frame.isComplete && ++frames % 20 == 0) { // the program is started again
            close();
            openWithServices();
        }
        return server.requestsFor(path) >= 2; // not out of the cache
    }));
    EXPECT_TRUE(lookUntil([&] { return middleColor() == water; }));
}

TEST_F(TilePyramidFaultTest, ImageryOfTheServiceIsShownAndCredited) {
    server.setOtherAnswer({.body = imageryImage(Qt::red)});
    openWithServices();
    view.theme = BasemapTheme::satellite;
    ASSERT_TRUE(lookUntil([&] { return frame.isComplete && !frame.lacksImagery; }));
    EXPECT_EQ(middleColor(), QColor(Qt::red));
    EXPECT_EQ(credits(), std::vector{imageryCredit});
}

TEST_F(TilePyramidFaultTest, HybridCreditsImageryAndMap) {
    server.setOtherAnswer({.body = imageryImage(Qt::red)});
    openWithServices();
    view.theme = BasemapTheme::hybrid;
    ASSERT_TRUE(lookUntil([&] { return frame.isComplete && !frame.lacksImagery; }));
    EXPECT_EQ(credits(), (std::vector{imageryCredit, archiveCredit}));
}

TEST_F(TilePyramidFaultTest, WhereOneImageIsMissingThatIsSaidAndTheMapIsDrawn) {
    server.setOtherAnswer({.body = imageryImage(Qt::red)});
    const TileKey quarter{homeZoom + 1, 2 * homeTile.column, 2 * homeTile.row};
    server.setAnswer(imageryPath(quarter.zoom, quarter.column, quarter.row), {.status = 404});
    openWithServices();
    view.theme = BasemapTheme::satellite;
    ASSERT_TRUE(lookUntil([&] {
        const auto reds = std::ranges::count_if(seen(), [](const SeenTile& tile) {
            return tile.image->pixelColor(400, 400) == QColor(Qt::red);
        });
        return frame.isComplete && reds == std::ssize(seen());
    }));
    EXPECT_TRUE(frame.lacksImagery);
    EXPECT_EQ(middleColor(), darkLand);
    EXPECT_EQ(credits(), (std::vector{imageryCredit, archiveCredit}));
}

TEST_F(TilePyramidFaultTest, WithoutANetworkImageryThatIsOnlyColourIsSaidToBeSo) {
    writeImagery(homeTile.ancestor(4));
    server.close();
    openWithServices();
    view.theme = BasemapTheme::satellite;
    EXPECT_TRUE(lookUntil([&] { return frame.isComplete && frame.lacksSharperImagery; }));
    EXPECT_FALSE(frame.lacksImagery);
    EXPECT_TRUE(frame.labels.empty());
    EXPECT_EQ(credits(), (std::vector{imageryCredit, archiveCredit}));
    view.theme = BasemapTheme::light;
    EXPECT_TRUE(lookUntil([&] { return frame.isComplete && !frame.lacksSharperImagery; }));
}

TEST_F(TilePyramidFaultTest, WithANetworkImageryThatIsOnlyColourIsNotSaidToNeedOne) {
    writeImagery(homeTile.ancestor(4));
    server.setOtherAnswer({.status = 404});
    openWithServices();
    view.theme = BasemapTheme::satellite;
    ASSERT_TRUE(lookUntil([&] { return !server.requests().empty() && server.open() == 0; }));
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_FALSE(frame.lacksSharperImagery);
}

TEST_F(TilePyramidFaultTest, WhenTheNetworkIsBackNothingIsSaidOfIt) {
    writeImagery(homeTile.ancestor(4));
    const quint16 port = server.port();
    server.close();
    openWithServices();
    view.theme = BasemapTheme::satellite;
    ASSERT_TRUE(lookUntil([&] { return frame.isComplete && frame.lacksSharperImagery; }));
    TileServer again(port);
    ASSERT_EQ(again.port(), port);
    again.setOtherAnswer({.status = 404});
    EXPECT_TRUE(lookUntil([&] { return frame.isComplete && !frame.lacksSharperImagery; }));
}

/// A real photograph where this machine has one, else colours that run into each other as there.
QImage realImagery() {
    const QDir photographs(QStringLiteral(VASKER_IMAGERY));
    const QStringList names = photographs.entryList({QStringLiteral("*.jpg")});
    if (!names.isEmpty()) {
        return QImage(photographs.filePath(names.front()));
    }
    QImage picture(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, qRgb(40 + x / 2, 90 + y / 3, 30 + (x + y) / 4));
        }
    }
    return picture;
}

TEST_F(TilePyramidFaultTest, ImageryOfManyColoursIsSeen) {
    const QImage photograph = realImagery();
    ASSERT_FALSE(photograph.isNull());
    const QImage part = photograph.copy(0, 0, 256, 256);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(part.save(&buffer, "jpeg", 95));
    server.setOtherAnswer({.body = bytes});
    openWithServices();
    view.theme = BasemapTheme::satellite;
    ASSERT_TRUE(lookUntil([&] { return frame.isComplete && !frame.lacksImagery; }));
    const QColor color = seen().front().image->pixelColor(100, 100);
    const QColor sent = part.pixelColor(100, 100);
    EXPECT_NEAR(color.red(), sent.red(), 24);
    EXPECT_NEAR(color.green(), sent.green(), 24);
    EXPECT_NEAR(color.blue(), sent.blue(), 24);
}

} // namespace
} // namespace vasker
