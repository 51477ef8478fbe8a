#include "detail/Citation.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

std::string citationOfFirst(const OpenMapRelease& release) {
    return Citation::of(release, release.assets.at(0)).toStdString();
}

std::string coordinates(double latitude, double longitude) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.latitude = latitude;
    asset.longitude = longitude;
    return coordinatesText(asset).toStdString();
}

TEST(Citation, TellsRecordPublisherAttributionSourceAndLicence) {
    EXPECT_EQ(citationOfFirst(makeRelease()),
              "Plant 0 (A-0), 2016\n"
              "Environment and Climate Change Canada: Contains information licensed under an open "
              "licence.\n"
              "Source data: https://data.example.ca/npri\n"
              "Licence: https://open.example.ca/licence");
}

TEST(Citation, LeavesOutAnAddressThatDoesNotParse) {
    OpenMapRelease release = makeRelease();
    release.sources[0].sourceURL = "https://[";
    EXPECT_EQ(citationOfFirst(release),
              "Plant 0 (A-0), 2016\n"
              "Environment and Climate Change Canada: Contains information licensed under an open "
              "licence.\n"
              "Licence: https://open.example.ca/licence");
}

TEST(Citation, OfARecordWhoseSourceIsUnknownIsOneLine) {
    OpenMapRelease release = makeRelease();
    release.assets[0].sourceID = "nobody";
    EXPECT_EQ(citationOfFirst(release), "Plant 0 (A-0), 2016");
}

TEST(Citation, KeepsALineALineWhateverTheTextsHold) {
    OpenMapRelease release = makeRelease();
    release.assets[0].sourceID = "nobody";
    release.assets[0].name = "%2\n<b>Plant</b>\t\x1B[0m";
    EXPECT_EQ(citationOfFirst(release), "%2 <b>Plant</b> [0m (A-0), 2016");
}

TEST(CoordinatesText, HasSixDecimalsAtMostAndNoNeedlessZeros) {
    EXPECT_EQ(coordinates(54.12345, -112.12345), "54.12345, -112.12345");
    EXPECT_EQ(coordinates(53.5, -113), "53.5, -113");
    EXPECT_EQ(coordinates(53.12345678, -113.9999999), "53.123457, -114");
    EXPECT_EQ(coordinates(-0.0000001, 100), "0, 100");
}

} // namespace
} // namespace vasker
