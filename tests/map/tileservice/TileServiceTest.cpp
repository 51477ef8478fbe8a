#include "map/tileservice/TileCache.h"
#include "tests/map/tileservice/ServiceFixture.h"

#include <QFile>
#include <QPointer>

namespace vasker {
namespace {

class TileServiceTest : public ServiceFixture {};

TEST_F(TileServiceTest, HandsOnTheBytesOfATile) {
    server.setAnswer(vectorPath(9, 100, 200), {.body = vectorBytes});
    server.setAnswer(imageryPath(4, 3, 5), {.body = imageryBytes});
    service().setRequests({vectorTile(9, 100, 200), imageryTile(4, 3, 5)});
    EXPECT_TRUE(arrived.empty()) << "signals come later";
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 2; }));
    EXPECT_TRUE(hasArrived(vectorTile(9, 100, 200)));
    EXPECT_TRUE(hasArrived(imageryTile(4, 3, 5)));
    EXPECT_EQ(arrived[0].second,
              arrived[0].first.content == TileContent::vector ? vectorBytes : imageryBytes);
}

TEST_F(TileServiceTest, NamesItselfAndSaysNothingElseOfTheUser) {
    server.setAnswer(vectorPath(9, 1, 1),
                     {.body = vectorBytes, .headers = {"Set-Cookie: a=b; Path=/"}});
    server.setAnswer(vectorPath(9, 1, 2), {.body = vectorBytes});
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 1; }));
    service().setRequests({vectorTile(9, 1, 2)});
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 2; }));
    for (const TileServer::Request& request : server.requests()) {
        EXPECT_EQ(request.headers.value("user-agent"), "vasker-test/1.2");
        for (const char* const header :
             {"cookie", "referer", "authorization", "cache-control", "pragma"}) {
            EXPECT_FALSE(request.headers.contains(header)) << header;
        }
    }
}

TEST_F(TileServiceTest, AsksForTheMostWantedFirst) {
    server.setOtherAnswer({.body = vectorBytes, .manner = TileServer::Manner::held});
    std::vector<ServiceTile> tiles;
    for (int column = 0; column < 20; ++column) {
        tiles.push_back(vectorTile(10, column, 0));
    }
    service().setRequests(tiles);
    ASSERT_TRUE(comesTrue([&] { return server.open() == 6; }));
    for (int column = 0; column < 6; ++column) {
        EXPECT_EQ(server.requestsFor(vectorPath(10, column, 0)), 1) << column;
    }
    server.release();
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 20; }));
}

TEST_F(TileServiceTest, NeverAsksForMoreThanSixTilesAtOnceOfWhateverService) {
    TileServer other;
    for (TileServer* const each : {&server, &other}) {
        each->setOtherAnswer({.body = each == &server ? vectorBytes : imageryBytes,
                              .manner = TileServer::Manner::held});
    }
    restart(sources(server, other));
    std::vector<ServiceTile> tiles;
    for (int column = 0; column < 20; ++column) {
        tiles.push_back(vectorTile(10, column, 0));
        tiles.push_back(imageryTile(10, column, 0));
    }
    service().setRequests(tiles);
    ASSERT_TRUE(comesTrue([&] { return server.open() + other.open() >= 6; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(server.open() + other.open(), 6);
    EXPECT_GT(other.open(), 0);
    server.release();
    other.release();
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == tiles.size(); }));
    EXPECT_LE(server.mostOpen(), 6);
}

TEST_F(TileServiceTest, GivesUpWhatIsNoLongerLookedAt) {
    server.setOtherAnswer({.body = vectorBytes, .manner = TileServer::Manner::held});
    std::vector<ServiceTile> before;
    for (int column = 0; column < 6; ++column) {
        before.push_back(vectorTile(10, column, 0));
    }
    service().setRequests(before);
    ASSERT_TRUE(comesTrue([&] { return server.open() == 6; }));
    service().setRequests({before[2], vectorTile(10, 50, 0)});
    ASSERT_TRUE(comesTrue([&] { return server.givenUp() == 5 && server.open() == 2; }));
    server.release();
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 2; }));
    EXPECT_TRUE(hasArrived(before[2])) << "what stays is not asked for again";
    EXPECT_EQ(server.requestsFor(vectorPath(10, 2, 0)), 1);
    EXPECT_TRUE(hasArrived(vectorTile(10, 50, 0)));
}

TEST_F(TileServiceTest, BringsATileOnceWhileItIsLookedAtAndAnewWhenItReturns) {
    server.setAnswer(vectorPath(9, 1, 1), {.body = vectorBytes});
    server.setAnswer(vectorPath(9, 1, 2), {.body = vectorBytes});
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 1; }));
    service().setRequests({vectorTile(9, 1, 1), vectorTile(9, 1, 2)});
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 2; }));
    EXPECT_EQ(arrived[1].first, vectorTile(9, 1, 2));
    service().setRequests({});
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 3; }));
    EXPECT_EQ(server.requestsFor(vectorPath(9, 1, 1)), 1) << "from the cache";
}

TEST_F(TileServiceTest, DoesNotAskForTilesThatNoSourceHas) {
    service().setRequests({vectorTile(7, 1, 1),
                           vectorTile(15, 1, 1),
                           imageryTile(13, 1, 1),
                           vectorTile(9, 512, 0),
                           vectorTile(9, 0, -1),
                           vectorTile(-1, 0, 0)});
    ASSERT_TRUE(comesTrue([&] { return missing.size() == 6; }));
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(TileServiceTest, PlainHttpIsForTestsAlone) {
    options.plainLoopback = PlainLoopback::refused;
    restart();
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return missing.size() == 1; }));
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(TileServiceTest, WhatIsMissingIsNotAskedForAgain) {
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return missing.size() == 1; }));
    service().setRequests({});
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return missing.size() == 2; }));
    EXPECT_EQ(server.requests().size(), 1U);
}

TEST_F(TileServiceTest, WhatCannotBeDecodedIsForgottenAndMissing) {
    server.setAnswer(vectorPath(9, 1, 1), {.body = vectorBytes});
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 1; }));
    service().discard(vectorTile(9, 1, 1));
    service().setRequests({});
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return missing.size() == 1; }));
    restart();
    service().setRequests({vectorTile(9, 1, 1)});
    ASSERT_TRUE(comesTrue([&] { return arrived.size() == 1; }));
    EXPECT_EQ(server.requests().size(), 2U) << "the cache has forgotten it too";
}

TEST_F(TileServiceTest, MayBeDestroyedByWhoeverHearsOfATile) {
    server.setOtherAnswer({.body = vectorBytes});
    auto* const mortal = new TileService(sources(server, server), options);
    const QPointer<TileService> alive(mortal);
    QObject::connect(mortal, &TileService::arrived, mortal, [mortal] { delete mortal; });
    mortal->setRequests({vectorTile(9, 1, 1), vectorTile(9, 1, 2), vectorTile(9, 1, 3)});
    ASSERT_TRUE(comesTrue([&] { return alive.isNull(); }));
}

TEST_F(TileServiceTest, MayBeToldWhatIsWantedByWhoeverHearsOfATile) {
    server.setOtherAnswer({.body = vectorBytes});
    int column = 0;
    QObject::connect(&service(), &TileService::arrived, &service(), [&] {
        if (++column < 10) {
            service().setRequests({vectorTile(9, column, 1)});
        }
    });
    service().setRequests({vectorTile(9, 0, 1)});
    ASSERT_TRUE(comesTrue([&] { return column == 10; }));
    EXPECT_EQ(server.requests().size(), 10U);
}

TEST_F(TileServiceTest, IsDestroyedWhileItAsks) {
    server.setOtherAnswer({.manner = TileServer::Manner::silent});
    service().setRequests({vectorTile(9, 1, 1), vectorTile(9, 1, 2)});
    ASSERT_TRUE(comesTrue([&] { return server.open() == 2; }));
    stop();
    EXPECT_TRUE(comesTrue([&] { return server.givenUp() == 2; }));
}

} // namespace
} // namespace vasker
