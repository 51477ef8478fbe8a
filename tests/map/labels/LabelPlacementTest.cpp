#include "map/labels/LabelPlacement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <set>

namespace vasker {
namespace {

constexpr ScreenRect screen{0, 0, 960, 700};

LabelCandidate label(std::uint64_t id, ScreenPoint anchor, double priority = 5) {
    LabelCandidate candidate{.id = id, .anchor = anchor, .width = 80, .height = 16};
    candidate.gap = 6;
    candidate.priority = priority;
    return candidate;
}

std::vector<LabelCandidate> crowd(unsigned seed, std::size_t count) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> across(-50, 1010);
    std::uniform_real_distribution<double> down(-50, 750);
    std::uniform_int_distribution<int> rank(0, 10);
    std::vector<LabelCandidate> candidates;
    for (std::size_t i = 0; i < count; ++i) {
        candidates.push_back(label(i + 1, {across(random), down(random)}, rank(random)));
    }
    return candidates;
}

std::set<std::uint64_t> idsOf(const std::vector<PlacedLabel>& placed,
                              const std::vector<LabelCandidate>& candidates) {
    std::set<std::uint64_t> ids;
    for (const PlacedLabel& each : placed) {
        ids.insert(candidates[each.candidate].id);
    }
    return ids;
}

void expectNoOverlap(const std::vector<PlacedLabel>& placed,
                     const std::vector<ScreenRect>& obstacles) {
    for (std::size_t i = 0; i < placed.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(placed[i].rect.overlaps(placed[k].rect)) << i << " and " << k;
        }
        for (const ScreenRect& obstacle : obstacles) {
            EXPECT_FALSE(placed[i].rect.overlaps(obstacle)) << i;
        }
    }
}

TEST(LabelPlacement, ALabelAloneStandsToTheRightOfItsPoint) {
    LabelPlacement layout;
    const std::vector<LabelCandidate> candidates{label(1, {100, 100})};
    const std::vector<PlacedLabel>& placed = layout.place(candidates, {}, screen);
    ASSERT_EQ(placed.size(), 1U);
    EXPECT_EQ(placed[0].side, LabelSide::right);
    EXPECT_EQ(placed[0].rect, (ScreenRect{106, 92, 80, 16}));
}

TEST(LabelPlacement, WhereTheRightIsTakenItGoesLeftThenAboveThenBelow) {
    const std::vector<LabelCandidate> candidates{label(1, {200, 100})};
    std::vector<ScreenRect> obstacles{{204, 98, 4, 4}};
    EXPECT_EQ(LabelPlacement().place(candidates, obstacles, screen)[0].side, LabelSide::left);
    obstacles.push_back({190, 98, 4, 4});
    EXPECT_EQ(LabelPlacement().place(candidates, obstacles, screen)[0].side, LabelSide::above);
    obstacles.push_back({198, 80, 4, 4});
    EXPECT_EQ(LabelPlacement().place(candidates, obstacles, screen)[0].side, LabelSide::below);
    obstacles.push_back({198, 116, 4, 4});
    EXPECT_TRUE(LabelPlacement().place(candidates, obstacles, screen).empty());
}

TEST(LabelPlacement, ALabelKeepsItsOwnDistanceAboveAndBelow) {
    std::vector<LabelCandidate> candidates{label(1, {200, 100})};
    candidates[0].gapDown = 20;
    candidates[0].sides = LabelSides(LabelSide::above);
    EXPECT_EQ(LabelPlacement().place(candidates, {}, screen)[0].rect,
              (ScreenRect{160, 64, 80, 16}));
    candidates[0].sides = LabelSides(LabelSide::below);
    EXPECT_EQ(LabelPlacement().place(candidates, {}, screen)[0].rect,
              (ScreenRect{160, 120, 80, 16}));
}

TEST(LabelPlacement, TheLabelOfAnAreaStandsOnItsPointOnly) {
    std::vector<LabelCandidate> candidates{label(1, {200, 100})};
    candidates[0].sides = onThePoint;
    EXPECT_EQ(LabelPlacement().place(candidates, {}, screen)[0].rect,
              (ScreenRect{160, 92, 80, 16}));
    EXPECT_TRUE(LabelPlacement()
                    .place(candidates, std::vector<ScreenRect>{{200, 100, 1, 1}}, screen)
                    .empty());
}

TEST(LabelPlacement, LabelsOverlapNeitherEachOtherNorObstaclesAndLieInTheBounds) {
    const std::vector<ScreenRect> obstacles{
        {900, 10, 50, 150}, {10, 640, 170, 50}, {300, 300, 24, 31}, {310, 320, 24, 31}};
    for (unsigned seed = 1; seed <= 20; ++seed) {
        LabelPlacement layout;
        const std::vector<LabelCandidate> candidates = crowd(seed, 500);
        const std::vector<PlacedLabel>& placed = layout.place(candidates, obstacles, screen);
        EXPECT_GT(placed.size(), 100U);
        expectNoOverlap(placed, obstacles);
        for (const PlacedLabel& each : placed) {
            EXPECT_TRUE(screen.contains(each.rect));
            EXPECT_EQ(each.rect, labelRect(candidates[each.candidate], each.side));
        }
    }
}

TEST(LabelPlacement, TheMoreImportantStandsWhereTwoWantOnePlace) {
    std::vector<LabelCandidate> candidates{label(1, {200, 100}, 7), label(2, {210, 101}, 2)};
    for (LabelCandidate& candidate : candidates) {
        candidate.sides = onThePoint;
    }
    LabelPlacement layout;
    EXPECT_EQ(idsOf(layout.place(candidates, {}, screen), candidates),
              (std::set<std::uint64_t>{2}));
}

TEST(LabelPlacement, TheOrderIsThatOfPriorityThenOfTheCandidates) {
    const std::vector<LabelCandidate> candidates{label(1, {100, 100}, 3),
                                                 label(2, {400, 100}, 1),
                                                 label(3, {100, 400}, 3),
                                                 label(4, {400, 400}, 2)};
    LabelPlacement layout;
    std::vector<std::uint64_t> order;
    for (const PlacedLabel& each : layout.place(candidates, {}, screen)) {
        order.push_back(candidates[each.candidate].id);
    }
    EXPECT_EQ(order, (std::vector<std::uint64_t>{2, 4, 1, 3}));
}

TEST(LabelPlacement, ARequiredLabelStandsWhateverIsInItsWay) {
    std::vector<LabelCandidate> candidates{label(1, {200, 100}, 0), label(2, {230, 100}, 9)};
    candidates[1].isRequired = true;
    LabelPlacement layout;
    const std::vector<ScreenRect> everywhere{{0, 0, 960, 700}};
    EXPECT_EQ(idsOf(layout.place(candidates, everywhere, screen), candidates),
              (std::set<std::uint64_t>{2}));
    LabelPlacement other;
    const std::vector<PlacedLabel>& placed = other.place(candidates, {}, screen);
    ASSERT_EQ(placed.size(), 2U);
    EXPECT_EQ(candidates[placed[0].candidate].id, 2U);
    EXPECT_EQ(placed[0].side, LabelSide::right);
    expectNoOverlap(placed, {});
}

TEST(LabelPlacement, WhileTheMapIsDraggedALabelStaysOnItsSide) {
    // The right is taken at first; when it is free again, the label has settled on the left.
    const std::vector<LabelCandidate> candidates{label(1, {200, 100})};
    LabelPlacement layout;
    const std::vector<ScreenRect> obstacle{{210, 90, 20, 20}};
    EXPECT_EQ(layout.place(candidates, obstacle, screen)[0].side, LabelSide::left);
    EXPECT_EQ(layout.place(candidates, {}, screen)[0].side, LabelSide::left);
    LabelPlacement another;
    EXPECT_EQ(another.place(candidates, {}, screen)[0].side, LabelSide::right);
}

TEST(LabelPlacement, ANewcomerTakesAPlaceOnlyWhereItIsClearlyMoreImportant) {
    std::vector<LabelCandidate> candidates{label(1, {200, 100}, 5), label(2, {205, 100}, 4.5)};
    for (LabelCandidate& candidate : candidates) {
        candidate.sides = onThePoint;
    }
    LabelPlacement layout;
    const std::vector<LabelCandidate> first{candidates[0]};
    ASSERT_EQ(layout.place(first, {}, screen).size(), 1U);
    EXPECT_EQ(idsOf(layout.place(candidates, {}, screen), candidates),
              (std::set<std::uint64_t>{1}));
    candidates[1].priority = 3.5;
    EXPECT_EQ(idsOf(layout.place(candidates, {}, screen), candidates),
              (std::set<std::uint64_t>{2}));
}

TEST(LabelPlacement, DraggingACrowdTakesNoLabelThatHasItsRoom) {
    // All move together, so that whoever stood finds its place free again; those at the rim go.
    LabelPlacement layout;
    std::vector<LabelCandidate> candidates = crowd(7, 400);
    std::set<std::uint64_t> standing = idsOf(layout.place(candidates, {}, screen), candidates);
    for (int step = 0; step < 40; ++step) {
        for (LabelCandidate& candidate : candidates) {
            candidate.anchor.x += 3;
            candidate.anchor.y -= 2;
        }
        const std::vector<PlacedLabel>& placed = layout.place(candidates, {}, screen);
        expectNoOverlap(placed, {});
        const std::set<std::uint64_t> now = idsOf(placed, candidates);
        int gone = 0;
        for (const std::uint64_t id : standing) {
            const LabelCandidate& candidate = candidates[id - 1];
            const bool isWellInside = candidate.anchor.x > 100 && candidate.anchor.x < 860 &&
                                      candidate.anchor.y > 100 && candidate.anchor.y < 600;
            gone += isWellInside && !now.contains(id) ? 1 : 0;
        }
        // A more important one that has just come in may take a place, here and there.
        EXPECT_LE(gone, 1) << "step " << step;
        standing = now;
    }
}

TEST(LabelPlacement, AStandingLabelIsPushedOutOfTheBoundsBitByBitButNoneAppearsSo) {
    std::vector<LabelCandidate> candidates{label(1, {850, 100})};
    candidates[0].sides = LabelSides(LabelSide::right);
    LabelPlacement layout;
    ASSERT_EQ(layout.place(candidates, {}, screen).size(), 1U);
    candidates[0].anchor.x = 920;
    EXPECT_EQ(layout.place(candidates, {}, screen).size(), 1U);
    EXPECT_TRUE(LabelPlacement().place(candidates, {}, screen).empty());
    candidates[0].anchor.x = 970;
    EXPECT_TRUE(layout.place(candidates, {}, screen).empty());
}

TEST(LabelPlacement, WhereTheMapIsAtRestNoLabelIsCut) {
    std::vector<LabelCandidate> candidates{label(1, {850, 100}), label(2, {850, 300})};
    candidates[1].sides = LabelSides(LabelSide::right);
    LabelPlacement layout;
    ASSERT_EQ(layout.place(candidates, {}, screen).size(), 2U);
    candidates[0].anchor.x = 920;
    candidates[1].anchor.x = 920;
    EXPECT_EQ(layout.place(candidates, {}, screen).size(), 2U);
    const auto& placed = layout.place(candidates, {}, screen, {}, LabelMotion::atRest);
    ASSERT_EQ(placed.size(), 1U);
    EXPECT_EQ(candidates[placed[0].candidate].id, 1U);
    EXPECT_EQ(placed[0].side, LabelSide::left);
}

TEST(LabelPlacement, ARequiredLabelWithoutRoomStandsWhereItIsNotCut) {
    std::vector<LabelCandidate> candidates{label(1, {920, 100})};
    candidates[0].isRequired = true;
    const std::vector<ScreenRect> everywhere{screen};
    const auto sideOf = [&] {
        return LabelPlacement()
            .place(candidates, everywhere, screen, {}, LabelMotion::atRest)
            .at(0)
            .side;
    };
    EXPECT_EQ(sideOf(), LabelSide::left);
    candidates[0].sides = LabelSides(LabelSide::right);
    EXPECT_EQ(sideOf(), LabelSide::right);
}

TEST(LabelPlacement, OfOneTextOnlyOneStandsNearBy) {
    std::vector<LabelCandidate> candidates{
        label(1, {200, 100}), label(2, {200, 300}), label(3, {800, 600})};
    for (LabelCandidate& candidate : candidates) {
        candidate.text = 77;
    }
    LabelPlacement layout;
    EXPECT_EQ(idsOf(layout.place(candidates, {}, screen), candidates),
              (std::set<std::uint64_t>{1, 3}));
}

TEST(LabelPlacement, TheSameCandidatesGiveTheSamePlacement) {
    const std::vector<LabelCandidate> candidates = crowd(3, 300);
    LabelPlacement one;
    LabelPlacement other;
    for (int i = 0; i < 3; ++i) {
        const std::vector<PlacedLabel> a = one.place(candidates, {}, screen);
        const std::vector<PlacedLabel> b = other.place(candidates, {}, screen);
        ASSERT_EQ(a.size(), b.size());
        for (std::size_t k = 0; k < a.size(); ++k) {
            EXPECT_EQ(a[k].candidate, b[k].candidate);
            EXPECT_EQ(a[k].rect, b[k].rect);
        }
    }
}

TEST(LabelPlacement, AStillMapIsStill) {
    const std::vector<LabelCandidate> candidates = crowd(11, 300);
    LabelPlacement layout;
    const std::set<std::uint64_t> first = idsOf(layout.place(candidates, {}, screen), candidates);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(idsOf(layout.place(candidates, {}, screen), candidates), first);
    }
}

TEST(LabelPlacement, SenselessValuesCostOnlyTheirLabel) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    std::vector<LabelCandidate> candidates{label(1, {nan, 100}),
                                           label(2, {1e300, -1e300}),
                                           label(3, {100, 100}, nan),
                                           label(4, {100, 100}),
                                           label(5, {400, 400})};
    candidates[3].width = -4;
    LabelPlacement layout;
    const std::vector<ScreenRect> obstacles{{nan, 0, 1, 1}, {0, 0, -5, 3}, {-1e300, 0, 1, 1}};
    EXPECT_EQ(idsOf(layout.place(candidates, obstacles, screen), candidates),
              (std::set<std::uint64_t>{5}));
    EXPECT_TRUE(layout.place(candidates, {}, {0, 0, nan, 5}).empty());
    EXPECT_TRUE(layout.place(candidates, {}, {0, 0, 0, 0}).empty());
}

TEST(LabelPlacement, AnObstacleOfNoWidthOrHeightTakesNoRoom) {
    const std::vector<LabelCandidate> candidates{label(1, {400, 400})};
    for (const double size : {0, 1}) {
        for (const ScreenRect& obstacle :
             {ScreenRect{415, 390, size, 20}, ScreenRect{410, 400, 20, size}}) {
            LabelPlacement layout;
            const auto& placed = layout.place(candidates, std::vector{obstacle}, screen);
            ASSERT_EQ(placed.size(), 1U);
            EXPECT_EQ(placed[0].side, size == 0 ? LabelSide::right : LabelSide::left);
        }
    }
}

} // namespace
} // namespace vasker
