#include "tests/map/tileservice/ServiceFixture.h"

namespace vasker {
namespace {

using Manner = TileServer::Manner;

// Long enough for what must not happen to happen many times.
constexpr std::chrono::milliseconds shortly(100);

class TileServiceFaultTest : public ServiceFixture {
  protected:
    TileServiceFaultTest() { server.setAnswer(vectorPath(9, 2, 2), {.body = vectorBytes}); }

    /// One tile is answered with `fault`; another is not kept from coming by it.
    void expectMissing(const TileServer::Answer& fault, const ServiceTile& tile, int requests) {
        const QString path =
            tile.content == TileContent::vector ? vectorPath(9, 1, 1) : imageryPath(9, 1, 1);
        server.setAnswer(path, fault);
        restart();
        service().setRequests({tile, vectorTile(9, 2, 2)});
        EXPECT_TRUE(comesTrue([&] { return missing.size() == 1 && arrived.size() == 1; }));
        EXPECT_EQ(missing, std::vector{tile});
        EXPECT_TRUE(hasArrived(vectorTile(9, 2, 2)));
        EXPECT_EQ(server.requestsFor(path), requests);
    }
    const ServiceTile one = vectorTile(9, 1, 1);
    const ServiceTile photograph = imageryTile(9, 1, 1);
};

TEST_F(TileServiceFaultTest, AnswersWithoutATileAreMissing) {
    expectMissing({.status = 404, .body = vectorBytes}, one, 1);
}

TEST_F(TileServiceFaultTest, AnEmptyTileIsMissing) {
    expectMissing({.status = 204}, one, 1);
}

TEST_F(TileServiceFaultTest, AnEmptyBodyIsMissing) {
    expectMissing({}, one, 1);
}

TEST_F(TileServiceFaultTest, APageInsteadOfATileIsMissing) {
    expectMissing({.body = "<!DOCTYPE html><html></html>"}, one, 1);
}

TEST_F(TileServiceFaultTest, WhatIsCalledAPageIsMissing) {
    expectMissing({.body = vectorBytes, .headers = {"Content-Type: text/html"}}, one, 1);
}

TEST_F(TileServiceFaultTest, GarbageInsteadOfAPhotographIsMissing) {
    expectMissing({.body = "<svg/>", .headers = {"Content-Type: image/jpeg"}}, photograph, 1);
}

TEST_F(TileServiceFaultTest, TheFirstBytesOfAPhotographAreMissing) {
    expectMissing({.body = "RIFF\x10"}, photograph, 1);
}

TEST_F(TileServiceFaultTest, RedirectionsAreNotFollowed) {
    TileServer other;
    other.setOtherAnswer({.body = vectorBytes});
    for (const QByteArray& place : {other.address(QStringLiteral("/x")).toLatin1(),
                                    server.address(vectorPath(9, 2, 2)).toLatin1(),
                                    QByteArray("http://localhost/x"),
                                    QByteArray("file:///etc/passwd"),
                                    QByteArray("/vector/9/2/2.mvt")}) {
        server.setAnswer(vectorPath(9, 1, 1), {.status = 302, .headers = {"Location: " + place}});
        restart();
        service().setRequests({one});
        EXPECT_TRUE(comesTrue([&] { return missing.size() == 1; })) << place.toStdString();
    }
    EXPECT_TRUE(other.requests().empty());
    EXPECT_EQ(server.requestsFor(vectorPath(9, 2, 2)), 0);
}

TEST_F(TileServiceFaultTest, AnswersThatAreAnnouncedTooLongAreNotRead) {
    options.responseBytes = 1'000;
    expectMissing({.body = vectorBytes + QByteArray(1'000, 'x')}, one, 1);
    expectMissing({.body = vectorBytes + QByteArray(10'000'000, 'x')}, one, 2);
}

TEST_F(TileServiceFaultTest, AnswersThatNeverEndAreCutShort) {
    options.responseBytes = 1'000'000;
    expectMissing({.body = vectorBytes, .manner = Manner::endless}, one, 1);
    EXPECT_TRUE(comesTrue([&] { return server.open() == 0; }));
}

TEST_F(TileServiceFaultTest, AnAnswerOfTheGreatestLengthIsTaken) {
    options.responseBytes = 1'000;
    server.setAnswer(vectorPath(9, 1, 1),
                     {.body = vectorBytes + QByteArray(1'000 - vectorBytes.size(), 'x')});
    service().setRequests({one});
    EXPECT_TRUE(comesTrue([&] { return arrived.size() == 1; }));
}

TEST_F(TileServiceFaultTest, ATileThatTricklesIsTriedThreeTimes) {
    options.responseTime = std::chrono::milliseconds(40);
    expectMissing({.body = vectorBytes, .manner = Manner::trickle}, one, 3);
}

TEST_F(TileServiceFaultTest, ATileThatIsCutOffIsTriedThreeTimes) {
    expectMissing({.body = vectorBytes, .manner = Manner::cutOff}, one, 3);
}

TEST_F(TileServiceFaultTest, ATileAtWhichTheServiceFailsIsTriedThreeTimes) {
    expectMissing({.status = 500, .body = vectorBytes}, one, 3);
}

TEST_F(TileServiceFaultTest, AServiceThatTurnsUsAwayIsAskedThreeTimes) {
    expectMissing({.status = 403, .body = vectorBytes}, one, 3);
}

TEST_F(TileServiceFaultTest, CredentialsAreNotGiven) {
    expectMissing({.status = 401, .headers = {"WWW-Authenticate: Basic realm=\"x\""}}, one, 3);
}

TEST_F(TileServiceFaultTest, SilenceIsNotTheEndOfATile) {
    options.silentTime = std::chrono::milliseconds(50);
    server.setAnswer(vectorPath(9, 1, 1), {.manner = Manner::silent});
    service().setRequests({one});
    ASSERT_TRUE(comesTrue([&] { return server.requestsFor(vectorPath(9, 1, 1)) > 4; }));
    EXPECT_TRUE(missing.empty());
    server.setAnswer(vectorPath(9, 1, 1), {.body = vectorBytes});
    EXPECT_TRUE(comesTrue([&] { return arrived.size() == 1; }));
}

TEST_F(TileServiceFaultTest, WhatIsNotHttpIsNotTheEndOfATile) {
    server.setAnswer(vectorPath(9, 1, 1), {.body = vectorBytes, .manner = Manner::garbage});
    service().setRequests({one});
    ASSERT_TRUE(comesTrue([&] { return server.requestsFor(vectorPath(9, 1, 1)) > 4; }));
    EXPECT_TRUE(missing.empty());
}

TEST_F(TileServiceFaultTest, ABusyServiceIsAskedAgainOneTileAtATime) {
    std::vector<ServiceTile> tiles;
    for (int column = 0; column < 6; ++column) {
        server.setAnswer(vectorPath(10, column, 0), {.status = 429});
        tiles.push_back(vectorTile(10, column, 0));
    }
    service().setRequests(tiles);
    ASSERT_TRUE(comesTrue([&] { return server.requests().size() > 20; }));
    EXPECT_TRUE(missing.empty());
    for (int column = 0; column < 6; ++column) {
        server.setAnswer(vectorPath(10, column, 0), {.body = vectorBytes});
    }
    EXPECT_TRUE(comesTrue([&] { return arrived.size() == 6; }));
}

TEST_F(TileServiceFaultTest, AServiceThatAsksForTimeGetsIt) {
    server.setOtherAnswer(
        {.status = 429, .headers = {"Retry-After: 3000"}, .manner = Manner::held});
    std::vector<ServiceTile> tiles{photograph};
    for (int column = 0; column < 20; ++column) {
        tiles.push_back(vectorTile(10, column, 0));
    }
    service().setRequests(tiles);
    ASSERT_TRUE(comesTrue([&] { return server.open() == 6; }));
    server.release();
    EXPECT_FALSE(comesTrue([&] { return server.requests().size() > 6; }, shortly));
    service().setRequests({one});
    EXPECT_FALSE(comesTrue([&] { return server.requests().size() > 6; }, shortly));
    EXPECT_TRUE(missing.empty());
}

TEST_F(TileServiceFaultTest, TheOtherServiceIsAskedMeanwhile) {
    TileServer other;
    other.setOtherAnswer({.body = imageryBytes});
    server.setOtherAnswer({.status = 503, .headers = {"Retry-After: 3000"}});
    restart(sources(server, other));
    service().setRequests({one});
    ASSERT_TRUE(comesTrue([&] { return server.requests().size() == 1; }));
    service().setRequests({one, photograph});
    EXPECT_TRUE(comesTrue([&] { return hasArrived(photograph); }));
}

TEST_F(TileServiceFaultTest, TilesComeWhenTheServiceIsBack) {
    const quint16 port = server.port();
    const TileSources both = sources(server, server);
    server.close();
    restart(both);
    service().setRequests({one, vectorTile(9, 1, 2)});
    EXPECT_FALSE(comesTrue([&] { return !missing.empty(); }, shortly));
    TileServer again(port);
    again.setOtherAnswer({.body = vectorBytes});
    EXPECT_TRUE(comesTrue([&] { return arrived.size() == 2; }));
}

} // namespace
} // namespace vasker
