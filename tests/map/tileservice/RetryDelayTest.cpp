#include "map/tileservice/RetryDelay.h"

#include "map/tileservice/TileServiceHosts.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace vasker {
namespace {

using namespace std::chrono_literals;

const QDateTime now(QDate(2026, 3, 4), QTime(5, 6, 7), QTimeZone::utc());

TEST(RetryPause, DoublesWithEachFailureAndStopsAtAMinute) {
    std::vector<std::chrono::milliseconds> pauses;
    for (const int failures : {1, 2, 3, 6, 7, 8, 1'000'000'000}) {
        pauses.push_back(retryDelay(failures, std::nullopt, {}));
    }
    EXPECT_EQ(pauses, (std::vector<std::chrono::milliseconds>{1s, 2s, 4s, 32s, 60s, 60s, 60s}));
}

TEST(RetryPause, IsAtLeastWhatTheServiceAsksForUpToAnHour) {
    EXPECT_EQ(retryDelay(1, 120s, {}), 120s);
    EXPECT_EQ(retryDelay(4, 3s, {}), 8s);
    EXPECT_EQ(retryDelay(1, 0s, {}), 1s);
    EXPECT_EQ(retryDelay(1, 3601s, {}), 1h);
    EXPECT_EQ(retryDelay(1, std::chrono::seconds::max(), {}), 1h);
}

TEST(RetryAfter, IsSecondsOrADate) {
    EXPECT_EQ(retryAfter("120", now), 120s);
    EXPECT_EQ(retryAfter(" 0 ", now), 0s);
    EXPECT_EQ(retryAfter("Wed, 04 Mar 2026 05:07:07 GMT", now), 60s);
    EXPECT_EQ(retryAfter("Wed, 04 Mar 2026 05:00:00 GMT", now), 0s) << "past";
}

TEST(RetryAfter, IsNothingWhereItMakesNoSense) {
    for (const char* const header :
         {"", "-5", "soon", "1.5", "99999999999999999999", "2026-03-04", "Wed, 31 Feb 2026"}) {
        EXPECT_EQ(retryAfter(header, now), std::nullopt) << header;
    }
}

class TileServiceHostsTest : public testing::Test {
  protected:
    using Clock = TileServiceHosts::Clock;
    [[nodiscard]] Clock::time_point at(std::chrono::milliseconds time) const {
        return Clock::time_point(1h) + time;
    }
    [[nodiscard]] auto pause(const QUrl& address) const {
        return hosts.delayedUntil(address) - at(0s);
    }
    TileServiceHosts hosts{RetryRule{}};
    const QUrl one{QStringLiteral("https://one.example/1")};
    const QUrl sameHost{QStringLiteral("https://one.example/2")};
    const QUrl otherHost{QStringLiteral("https://two.example/1")};
};

TEST_F(TileServiceHostsTest, AFailureConcernsTheWholeHostAndNoOther) {
    hosts.failed(one, at(0s), at(0s), std::nullopt);
    EXPECT_EQ(pause(sameHost), 1s);
    EXPECT_EQ(hosts.mostAtOnce(sameHost), 1);
    EXPECT_LT(hosts.delayedUntil(otherHost), at(0s));
    EXPECT_EQ(hosts.mostAtOnce(otherHost), 6);
}

TEST_F(TileServiceHostsTest, RequestsThatFailTogetherAreOneFailure) {
    for (int request = 0; request < 6; ++request) {
        hosts.failed(one, at(0s), at(1ms), std::nullopt);
    }
    EXPECT_EQ(pause(one), 1001ms);
    hosts.failed(one, at(2s), at(2s), std::nullopt);
    EXPECT_EQ(pause(one), 4s);
}

TEST_F(TileServiceHostsTest, TheLongestPauseHolds) {
    hosts.failed(one, at(0s), at(0s), 100s);
    hosts.failed(one, at(0s), at(1s), std::nullopt);
    EXPECT_EQ(pause(one), 100s);
}

TEST_F(TileServiceHostsTest, ASuccessEndsIt) {
    hosts.failed(one, at(0s), at(0s), 100s);
    hosts.succeeded(sameHost);
    EXPECT_LT(hosts.delayedUntil(one), at(0s));
    EXPECT_EQ(hosts.mostAtOnce(one), 6);
}

TEST_F(TileServiceHostsTest, TheNetworkEndsOnlyThePausesThatItMade) {
    hosts.failed(one, at(0s), at(0s), std::nullopt, TileServiceHosts::Failure::noResponse);
    hosts.failed(otherHost, at(0s), at(0s), 100s);
    hosts.networkReturned();
    EXPECT_LT(hosts.delayedUntil(one), at(0s));
    EXPECT_EQ(pause(otherHost), 100s);
}

} // namespace
} // namespace vasker
