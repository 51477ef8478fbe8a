#include "map/labels/MapNames.h"

#include "map/records/BalloonShape.h"
#include "platform/ui/Fonts.h"

#include <gtest/gtest.h>

#include <random>

namespace vasker {
namespace {

constexpr Viewport viewport{900, 700};

class MapNamesTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { installInterfaceFont(); }

    MapNamesTest() {
        picture.size = {viewport.width, viewport.height};
        LabelPicture labels(1);
        ring = labels.markCut(BasemapLook::light).size();
    }

    void place(double textScale = 1) {
        mapNames.place(names, balloons, camera, textScale, picture);
    }
    void addName(const QString& text,
                 ScreenPoint where,
                 double precedence = 1,
                 PlaceName::Kind kind = PlaceName::Kind::town) {
        names.push_back({text, camera.screenToWorld(where), kind, precedence});
    }
    void addBalloon(ScreenPoint tip, const QString& title, bool isRequired = false) {
        const double scale = isRequired ? selectedBalloonScale : 1;
        const auto asset = static_cast<AssetIndex>(balloons.size());
        balloons.push_back({tip, scale, title, asset, isRequired});
    }

    /// What the names cover: their sprites without the room for halos, and without the rings.
    [[nodiscard]] std::vector<ScreenRect> texts() const {
        std::vector<ScreenRect> rects;
        for (const Sprite& sprite : picture.names.sprites) {
            if (sprite.cut.size() != ring) {
                rects.push_back({sprite.corner.x + LabelPicture::margin,
                                 sprite.corner.y + LabelPicture::margin,
                                 sprite.cut.width() - 2 * LabelPicture::margin,
                                 sprite.cut.height() - 2 * LabelPicture::margin});
            }
        }
        return rects;
    }
    [[nodiscard]] std::size_t rings() const {
        return picture.names.sprites.size() - texts().size();
    }
    [[nodiscard]] std::vector<ScreenRect> balloonBoxes() const {
        std::vector<ScreenRect> boxes;
        for (const TitledBalloon& balloon : balloons) {
            boxes.push_back({balloon.tip.x - balloonWidth * balloon.scale / 2,
                             balloon.tip.y - balloonHeight * balloon.scale,
                             balloonWidth * balloon.scale,
                             balloonHeight * balloon.scale});
        }
        return boxes;
    }

    const Camera camera{canadaOverview, viewport};
    std::vector<PlaceName> names;
    std::vector<TitledBalloon> balloons;
    MapNames mapNames;
    MapPicture picture;
    QSizeF ring;
};

TEST_F(MapNamesTest, APlacesNameStandsBesideItsRing) {
    addName(QStringLiteral("Red Deer"), {400, 300});
    place();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_EQ(rings(), 1U);
    EXPECT_FALSE(picture.names.image.isNull());
    const ScreenRect text = texts().front();
    EXPECT_GT(text.x, 400);
    EXPECT_LT(text.x, 415);
    EXPECT_NEAR(text.y + text.height / 2, 300, 3);
}

TEST_F(MapNamesTest, ThatOfACountryOrAWaterStandsOnItsPointWithoutARing) {
    addName(QStringLiteral("Canada"), {400, 300}, 1, PlaceName::Kind::country);
    addName(QStringLiteral("Hudson Bay"), {600, 500}, 1, PlaceName::Kind::water);
    place();
    ASSERT_EQ(texts().size(), 2U);
    EXPECT_EQ(rings(), 0U);
    EXPECT_NEAR(texts()[0].x + texts()[0].width / 2, 400, 1);
    EXPECT_NEAR(texts()[1].x + texts()[1].width / 2, 600, 1);
}

TEST_F(MapNamesTest, NamesOverlapNeitherEachOtherNorBalloonsNorTheCornersOfControls) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> across(0, viewport.width);
    std::uniform_real_distribution<double> down(0, viewport.height);
    for (int i = 0; i < 150; ++i) {
        addName(QStringLiteral("Place number %1").arg(i), {across(random), down(random)}, i);
    }
    for (int i = 0; i < 25; ++i) {
        addBalloon({across(random), down(random)}, QStringLiteral("Record number %1").arg(i));
    }
    place();
    const auto placed = texts();
    ASSERT_GE(placed.size(), 30U);
    const std::vector<ScreenRect> controls{{viewport.width - 60, 0, 60, 150},
                                           {0, viewport.height - 50, 180, 50}};
    for (std::size_t i = 0; i < placed.size(); ++i) {
        for (std::size_t other = 0; other < i; ++other) {
            EXPECT_FALSE(placed[i].overlaps(placed[other])) << i << ' ' << other;
        }
        for (const ScreenRect& box : balloonBoxes()) {
            EXPECT_FALSE(placed[i].overlaps(box)) << i;
        }
        for (const ScreenRect& control : controls) {
            EXPECT_FALSE(placed[i].overlaps(control)) << i;
        }
    }
}

TEST_F(MapNamesTest, WhereTwoNamesCompeteTheMoreImportantStands) {
    addName(QStringLiteral("Village"), {401, 300}, 9);
    addName(QStringLiteral("Metropolis"), {400, 300}, 1, PlaceName::Kind::country);
    place();
    LabelPicture labels(1);
    const double width =
        labels.size({QStringLiteral("Metropolis"), LabelStyle::country, BasemapLook::light})
            .width();
    ASSERT_FALSE(texts().empty());
    EXPECT_EQ(texts().front().width, width);
}

TEST_F(MapNamesTest, TheTitleOfTheSelectedRecordStandsInAnyCase) {
    for (double x = 40; x < 880; x += 12) { // a wall of balloons
        addBalloon({x, 320}, {});
        addBalloon({x, 350}, {});
    }
    addBalloon({450, 330}, QStringLiteral("Sturgeon Refinery"), true);
    place();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_NEAR(texts().front().y + texts().front().height / 2, 330 - 23, 25);
}

TEST_F(MapNamesTest, ATitleStandsBesideItsBalloon) {
    addBalloon({400, 300}, QStringLiteral("Sturgeon Refinery"));
    place();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_NEAR(texts().front().x, 400 + balloonWidth / 2, 6);
    EXPECT_NEAR(texts().front().y + texts().front().height / 2, 300 - balloonHeight / 2, 3);
}

TEST_F(MapNamesTest, TitlesGiveWayToNamesOfPlaces) {
    addBalloon({400, 300}, QStringLiteral("Sturgeon Refinery"));
    place();
    EXPECT_EQ(texts().size(), 1U);
    addName(QStringLiteral("Saskatchewan River"), {470, 285}, 5, PlaceName::Kind::water);
    addName(QStringLiteral("Beaufort Sea"), {340, 285}, 5, PlaceName::Kind::water);
    mapNames = {};
    place();
    EXPECT_EQ(texts().size(), 2U);
}

TEST_F(MapNamesTest, ABalloonWithoutATitleHasNone) {
    addBalloon({400, 300}, {});
    place();
    EXPECT_TRUE(picture.names.sprites.empty());
}

TEST_F(MapNamesTest, ATextWithoutALetterIsPassedOver) {
    addName({}, {400, 300});
    addBalloon({200, 300}, QStringLiteral(" "), true);
    place();
    EXPECT_TRUE(texts().empty());
}

TEST_F(MapNamesTest, LargerTextsTakeMoreRoom) {
    addName(QStringLiteral("Red Deer"), {400, 300});
    place();
    const double width = texts().front().width;
    place(1.5);
    EXPECT_NEAR(texts().front().width, 1.5 * width, 0.15 * width);
}

TEST_F(MapNamesTest, InTheFarViewAPlaceIsNamedInEveryCopyOfTheWorldThatIsFarEnoughAway) {
    const Camera world(CameraPose{{worldSize / 2, worldSize / 2}, 300 / worldSize, 0, 0}, viewport);
    names.push_back({QStringLiteral("Red Deer"),
                     coordinateToMapPoint({52.3, -113.8}),
                     PlaceName::Kind::city,
                     1});
    mapNames.place(names, {}, world, 1, picture);
    EXPECT_GE(texts().size(), 1U);
    for (const ScreenRect& text : texts()) {
        EXPECT_TRUE((ScreenRect{0, 0, viewport.width, viewport.height}.contains(text)));
    }
}

} // namespace
} // namespace vasker
