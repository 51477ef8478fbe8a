#include "data/InternetDateTime.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(InternetDateTime, ADayATimeToTheSecondAndAZoneAreAccepted) {
    EXPECT_TRUE(isInternetDateTime("2025-11-20T12:34:56Z"));
    EXPECT_TRUE(isInternetDateTime("2025-11-20T12:34:56+00:00"));
    EXPECT_TRUE(isInternetDateTime("2025-11-20T12:34:56-07:00"));
    EXPECT_TRUE(isInternetDateTime("2025-11-20T12:34:56+23:59"));
    EXPECT_TRUE(isInternetDateTime("0000-01-01T00:00:00Z"));
    EXPECT_TRUE(isInternetDateTime("9999-12-31T23:59:59Z"));
}

TEST(InternetDateTime, TheDayIsOneOfTheCalendar) {
    EXPECT_TRUE(isInternetDateTime("2024-02-29T00:00:00Z"));
    EXPECT_TRUE(isInternetDateTime("2000-02-29T00:00:00Z"));
    EXPECT_FALSE(isInternetDateTime("2025-02-29T00:00:00Z"));
    EXPECT_FALSE(isInternetDateTime("1900-02-29T00:00:00Z"));
    EXPECT_FALSE(isInternetDateTime("2025-04-31T00:00:00Z"));
    EXPECT_FALSE(isInternetDateTime("2025-13-01T00:00:00Z"));
    EXPECT_FALSE(isInternetDateTime("2025-00-01T00:00:00Z"));
    EXPECT_FALSE(isInternetDateTime("2025-01-00T00:00:00Z"));
}

TEST(InternetDateTime, TheTimeIsOneOfTheClock) {
    EXPECT_FALSE(isInternetDateTime("2025-11-20T24:00:00Z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:60:00Z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T23:59:60Z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:00:00+24:00"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:00:00+00:60"));
}

TEST(InternetDateTime, NoOtherFormIsAccepted) {
    EXPECT_FALSE(isInternetDateTime(""));
    EXPECT_FALSE(isInternetDateTime("2025-11-20"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:34:56"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:34Z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:34:56.5Z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20 12:34:56Z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20t12:34:56Z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:34:56z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:34:56+0700"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:34:56+07"));
    EXPECT_FALSE(isInternetDateTime("20251120T123456Z"));
    EXPECT_FALSE(isInternetDateTime("-025-11-20T12:34:56Z"));
    EXPECT_FALSE(isInternetDateTime("+2025-11-20T12:34:56Z"));
    EXPECT_FALSE(isInternetDateTime(" 2025-11-20T12:34:56Z"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:34:56Z\n"));
    EXPECT_FALSE(isInternetDateTime("2025-11-20T12:34:56ZZ"));
    EXPECT_FALSE(isInternetDateTime("\uFF12\uFF10\uFF12\uFF15-11-20T12:34:56Z"));
}

} // namespace
} // namespace vasker
