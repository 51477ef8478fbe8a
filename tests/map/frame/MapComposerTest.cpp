#include "map/frame/MapComposer.h"

#include "platform/ui/theme/Fonts.h"
#include "platform/ui/theme/ThemeColors.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

#include <string>

namespace vasker {
namespace {

class MapComposerTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { installInterfaceFont(); }

    MapComposerTest() {
        composer.records().setRecords(
            recordSetOf({facilityAt(54, -112, "refinery"),
                         facilityAt(54.001, -112, "gas_plant"),
                         pipelineAlong({{{-113, 53}, {-111, 55}}, {{-111, 55}, {-110, 55}}})}));
    }

    MapFrame compose() { return composer.compose(state, camera, {}); }
    template <typename Layer>
    static std::vector<const Layer*> layersOf(const MapFrame& frame) {
        std::vector<const Layer*> found;
        for (const MapLayer& layer : frame.layers) {
            if (const auto* const each = std::get_if<Layer>(&layer)) {
                found.push_back(each);
            }
        }
        return found;
    }

    MapComposer composer{MapLanguage::english};
    MapState state;
    const Camera camera{canadaOverview, {900, 700}};
};

TEST_F(MapComposerTest, AFrameIsAnOrderedListOfLayers) {
    const MapFrame frame = compose();
    std::string order;
    for (const MapLayer& layer : frame.layers) {
        order += "LDS"[layer.index()];
    }
    // The routes and those that stand out, quiet dots, dots, pins, labels.
    EXPECT_EQ(order, "LLLLDDSS");
    EXPECT_EQ(frame.size, QSizeF(900, 700));
}

TEST_F(MapComposerTest, TheListOfLayersHasTheSameKindsInEveryFrame) {
    const MapFrame first = compose();
    composer.records().setRecords({});
    const MapFrame second = compose();
    ASSERT_EQ(first.layers.size(), second.layers.size());
    for (std::size_t i = 0; i < first.layers.size(); ++i) {
        EXPECT_EQ(first.layers[i].index(), second.layers[i].index()) << i;
    }
}

TEST_F(MapComposerTest, WithoutTilesRecordsAreDrawnLive) {
    const MapFrame frame = compose();
    EXPECT_FALSE(layersOf<LineLayer>(frame).front()->strip->empty());
    EXPECT_EQ(layersOf<DotLayer>(frame).back()->dots.size(), 1U); // the other has a pin
}

TEST_F(MapComposerTest, TheSameStateGivesTheSameFrame) {
    static_cast<void>(compose());
    const MapFrame first = compose();
    const MapFrame second = compose();
    EXPECT_EQ(layersOf<LineLayer>(first).front()->strip->size(),
              layersOf<LineLayer>(second).front()->strip->size());
    const auto spritesOf = [](const SpriteLayer& layer) {
        std::vector<ScreenPoint> corners;
        for (const SpriteSheet& sheet : layer.sheets) {
            for (const Sprite& sprite : sheet.sprites) {
                corners.push_back(sprite.corner);
            }
        }
        return corners;
    };
    for (const std::size_t layer : {0U, 1U}) {
        EXPECT_EQ(spritesOf(*layersOf<SpriteLayer>(first)[layer]),
                  spritesOf(*layersOf<SpriteLayer>(second)[layer]));
    }
}

TEST_F(MapComposerTest, TheSelectedRouteIsBlueAndWide) {
    composer.records().setSelection(QStringLiteral("R-2"));
    const MapFrame frame = compose();
    const LineLayer& selected = *layersOf<LineLayer>(frame)[3];
    ASSERT_NE(selected.strip, nullptr);
    EXPECT_FALSE(selected.strip->empty());
    EXPECT_EQ(selected.style.width, 5);
    EXPECT_EQ(selected.style.color, colorValue(PaletteColor::blue, ColorScheme::light));
}

TEST_F(MapComposerTest, AControlOverTheMapKeepsLabelsAway) {
    state.obstacles = {{0, 0, 900, 700}};
    const MapFrame frame = compose();
    EXPECT_TRUE(layersOf<SpriteLayer>(frame).back()->sheets.empty());
}

class MapOfTwoPins : public MapComposerTest {
  protected:
    /// 44 pixels apart, one above the other.
    MapOfTwoPins() {
        composer.records().setRecords(
            recordSetOf({facilityAt(54, -112, "refinery"), facilityAt(54.25, -112, "refinery")}));
    }

    std::size_t spritesOfTheTopLayer() {
        const Camera nearby(CoordinateRegion{{54, -112}, 4, 4}, {.width = 900, .height = 700});
        const MapFrame frame = composer.compose(state, nearby, {});
        std::size_t count = 0;
        for (const SpriteSheet& sheet : std::get<SpriteLayer>(frame.layers.back()).sheets) {
            count += sheet.sprites.size();
        }
        return count;
    }
};

TEST_F(MapOfTwoPins, EveryPinThatHasRoomBesideItHasItsTitle) {
    EXPECT_EQ(spritesOfTheTopLayer(), 2U);
}

TEST_F(MapOfTwoPins, WithoutRoomTheTitleOfTheSelectedRecordStandsAboveAll) {
    state.obstacles = {{0, 0, 900, 700}};
    EXPECT_EQ(spritesOfTheTopLayer(), 0U);
    composer.records().setSelection(QStringLiteral("R-0"));
    EXPECT_EQ(spritesOfTheTopLayer(), 1U);
}

TEST(MapFrame, ImagesThatWereNotYetHandedOverAreNotLost) {
    MapFrame before;
    before.tiles = {{}, {{1, {}}, {2, {}}}, {1, 2}};
    MapFrame after;
    after.tiles = {{}, {{3, {}}}, {2, 3}};
    after.takeImages(before);
    const auto& images = after.tiles.newImages;
    ASSERT_EQ(images.size(), 2U); // the first tile is no longer needed
    EXPECT_EQ(images[0].tile, 3U);
    EXPECT_EQ(images[1].tile, 2U);
}

} // namespace
} // namespace vasker
