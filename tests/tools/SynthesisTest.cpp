#include "tools/openmap-release/Synthesis.h"

#include "data/Digest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace vasker {
namespace {

std::size_t pointsOf(const OpenMapRelease& release) {
    std::size_t points = 0;
    for (const OpenMapRelease::Asset& asset : release.assets) {
        for (const OpenMapRelease::Route& route : asset.routes) {
            points += route.size();
        }
    }
    return points;
}

TEST(Synthesis, IsValidAndExactUpToTheLimits) {
    const std::string file = synthesizeFile({10'000, 300'000, 15'000'000, 1});
    ASSERT_EQ(file.size(), 15'000'000U);
    const OpenMapRelease release = OpenMapRelease::decode(file, sha256(file));
    EXPECT_EQ(release.assets.size(), 10'000U);
    EXPECT_EQ(pointsOf(release), 300'000U);
}

TEST(Synthesis, MeetsManySizesToTheByte) {
    for (const SynthesisOptions options : {SynthesisOptions{1, 0, 5'000, 1},
                                           SynthesisOptions{1, 2, 450'000, 2},
                                           SynthesisOptions{3, 9, 20'000, 3},
                                           SynthesisOptions{77, 501, 123'457, 4},
                                           SynthesisOptions{500, 0, 999'999, 5},
                                           SynthesisOptions{40, 20'000, 9'000'000, 6}}) {
        const std::string file = synthesizeFile(options);
        EXPECT_EQ(file.size(), options.bytes);
        const OpenMapRelease release = OpenMapRelease::decode(file, sha256(file));
        EXPECT_EQ(release.assets.size(), options.records);
        EXPECT_EQ(pointsOf(release), options.routePoints);
    }
}

TEST(Synthesis, StaysWithinTheFileLimitWhenNoLengthIsAskedFor) {
    const std::string file = synthesizeFile({10'000, 300'000, 0, 2});
    EXPECT_LE(file.size(), 15'000'000U);
    EXPECT_NO_THROW((void)OpenMapRelease::decode(file, sha256(file)));
}

TEST(Synthesis, DependsOnTheSeedOnly) {
    EXPECT_EQ(synthesizeFile({300, 4'000, 0, 9}), synthesizeFile({300, 4'000, 0, 9}));
    EXPECT_NE(synthesizeFile({300, 4'000, 0, 9}), synthesizeFile({300, 4'000, 0, 10}));
}

TEST(Synthesis, HasEveryKindEveryDatasetAndLinesOfVeryDifferentLength) {
    const OpenMapRelease release = synthesize({4'000, 60'000, 0, 1});
    std::set<std::string> kinds;
    std::size_t longest = 0;
    std::size_t pipelines = 0;
    std::size_t networks = 0;
    for (const OpenMapRelease::Asset& asset : release.assets) {
        kinds.insert(asset.kind);
        pipelines += asset.hasRoute() ? 1U : 0U;
        networks += asset.routes.size() > 1 ? 1U : 0U;
        for (const OpenMapRelease::Route& route : asset.routes) {
            longest = std::max(longest, route.size());
        }
    }
    EXPECT_EQ(kinds.size(), 13U);
    EXPECT_EQ(pipelines, 100U);
    EXPECT_GT(networks, 3U);
    EXPECT_GT(longest, 1'000U);
    std::set<std::string> datasets;
    for (const OpenMapRelease::Source& source : release.sources) {
        datasets.insert(source.dataset);
    }
    EXPECT_EQ(datasets.size(), 5U);
}

TEST(Synthesis, StaysOverCanada) {
    for (const OpenMapRelease::Asset& asset : synthesize({500, 20'000, 0, 5}).assets) {
        for (const OpenMapRelease::Route& route : asset.routes) {
            for (const OpenMapRelease::Position& position : route) {
                ASSERT_TRUE(position.latitude >= 42 && position.latitude <= 70);
                ASSERT_TRUE(position.longitude >= -140 && position.longitude <= -53);
            }
        }
        ASSERT_TRUE(asset.latitude >= 42 && asset.latitude <= 70);
        ASSERT_TRUE(asset.longitude >= -140 && asset.longitude <= -53);
    }
}

TEST(Synthesis, RefusesImpossibleNumbers) {
    for (const SynthesisOptions options : {SynthesisOptions{0, 0, 0, 0},
                                           SynthesisOptions{10'001, 0, 0, 0},
                                           SynthesisOptions{1, 1, 0, 0},
                                           SynthesisOptions{1, 300'001, 0, 0},
                                           SynthesisOptions{1, 0, 100, 0},
                                           SynthesisOptions{1, 0, 15'000'001, 0},
                                           SynthesisOptions{1, 0, 15'000'000, 0}}) {
        EXPECT_THROW((void)synthesize(options), ImpossibleSynthesis)
            << options.records << " " << options.routePoints << " " << options.bytes;
    }
}

} // namespace
} // namespace vasker
