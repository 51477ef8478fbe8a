// The order of the rules: all are broken, then mended one by one from the top.

#include "data/ReleaseRules.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace vasker {
namespace {

/// "ok", or the case and place of the refusal.
std::string checked(const OpenMapRelease& release) {
    try {
        validate(release);
        return "ok";
    } catch (const OpenMapRelease::Refusal& refusal) {
        return std::string(nameOf(refusal.invalid())) + ": " + refusal.place();
    }
}

TEST(ReleaseRules, TheFirstBrokenRuleDecides) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    OpenMapRelease broken = makeRelease();
    broken.releaseID = "";
    broken.coverageName = "";
    broken.generatedAt = "";
    broken.limitations.clear();
    broken.assets.clear();
    for (std::size_t each = 0; each < 10'001; ++each) {
        broken.assets.push_back(makeAsset(each));
    }
    broken.assets[1].id = "A-0";
    broken.sources.assign(101, makeSource());
    broken.sources[0].id = "x";

    EXPECT_EQ(checked(broken), "records: releaseID: empty");
    broken.releaseID = "r";
    EXPECT_EQ(checked(broken), "records: coverageName: empty");
    broken.coverageName = "c";
    EXPECT_EQ(checked(broken), "records: generatedAt: \"\" is not an internet date-time");
    broken.generatedAt = "2025-11-20T12:00:00Z";
    EXPECT_EQ(checked(broken), "records: limitations: none");
    broken.limitations = {"l"};
    EXPECT_EQ(checked(broken), "records: assets: 10001 is outside 1 to 10000");
    broken.assets.resize(3);
    EXPECT_EQ(checked(broken), "records: assets[1].id: \"A-0\" is repeated");
    broken.assets[1].id = "A-1";
    EXPECT_EQ(checked(broken), "provenance: sources: 101 is outside 1 to 100");
    broken.sources.resize(3);
    EXPECT_EQ(checked(broken), "provenance: sources[2].id: \"" + sourceID() + "\" is repeated");

    // Records are checked one by one, so that an earlier asset's last rule precedes a later one's
    // first.
    broken.sources = {makeSource(0), makeSource(1)};
    broken.sources[0].id = "x";
    broken.sources[0].dataset = "";
    broken.sources[0].publisher = "";
    broken.sources[0].sourceURL = "";
    broken.assets[0].status = "";
    broken.assets[0].name = std::string(1'001, 'n');
    broken.assets[0].facts.assign(51, makeFact(""));
    broken.assets[0].sourceID = "";
    broken.assets[0].latitude = 91;
    broken.assets[0].routes = {{{none, none}, {0, 0}}};
    broken.assets[1].status = "";
    EXPECT_EQ(checked(broken), "provenance: sources[0].id: not 64 hexadecimal digits");
    broken.sources[0].id = sourceID(0);
    EXPECT_EQ(checked(broken), "provenance: sources[0].dataset: \"\" is not accepted");
    broken.sources[0].dataset = "gem-goit-pipelines";
    EXPECT_EQ(checked(broken), "provenance: sources[0].publisher: empty");
    broken.sources[0].publisher = "p";
    EXPECT_TRUE(checked(broken).starts_with("provenance: sources[0].sourceURL: "));
    broken.sources[0].sourceURL = "https://example.ca";
    EXPECT_EQ(checked(broken), "records: assets[0].status: empty");
    broken.assets[0].status = "s";
    EXPECT_EQ(checked(broken), "records: assets[0].name: more than 1000 characters");
    broken.assets[0].name = "n";
    EXPECT_EQ(checked(broken), "records: assets[0].facts: 51 are more than 50");
    broken.assets[0].facts.resize(50);
    EXPECT_EQ(checked(broken), "provenance: assets[0].sourceID: no source has this id");
    broken.assets[0].sourceID = sourceID(0);
    EXPECT_EQ(checked(broken), "coordinates: assets[0]: latitude 91 is outside -90 to 90");
    broken.assets[0].latitude = 9;
    EXPECT_EQ(checked(broken),
              "coordinates: assets[0].routes[0][0]: not a pair of longitude and latitude");
    broken.assets[0].routes[0][0] = {0, 0};
    EXPECT_EQ(checked(broken), "provenance: assets[0].facts[0].value: empty");
    broken.assets[0].facts.clear();
    EXPECT_EQ(checked(broken), "records: assets[1].status: empty");
    broken.assets[1].status = "s";
    EXPECT_EQ(checked(broken), "provenance: sources[1]: cited by no asset or fact");
    broken.assets[2].sourceID = sourceID(1);
    EXPECT_EQ(checked(broken), "ok");
}

} // namespace
} // namespace vasker
