#include "map/labels/MapLabels.h"

#include "map/records/PinShape.h"
#include "platform/ui/Fonts.h"

#include <gtest/gtest.h>

#include <random>

namespace vasker {
namespace {

constexpr Viewport viewport{900, 700};

class MapLabelsTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { installInterfaceFont(); }

    MapLabelsTest() {
        picture.size = {viewport.width, viewport.height};
        LabelAtlas labels(1);
        ring = labels.markCut(BasemapTheme::light).size();
    }

    void place(double textScale = 1) { mapNames.place(names, pins, camera, textScale, picture); }
    void addName(const QString& text,
                 ScreenPoint where,
                 double priority = 1,
                 PlaceLabel::Kind kind = PlaceLabel::Kind::town) {
        names.push_back({text, camera.screenToWorld(where), kind, priority});
    }
    void addPin(ScreenPoint tip, const QString& title, bool isRequired = false) {
        const double scale = isRequired ? selectedPinScale : 1;
        const auto asset = static_cast<AssetIndex>(pins.size());
        pins.push_back({tip, scale, title, asset, isRequired});
    }

    /// What the names cover: their sprites without the room for halos, and without the rings.
    [[nodiscard]] std::vector<ScreenRect> texts() const {
        std::vector<ScreenRect> rects;
        for (const Sprite& sprite : picture.names.sprites) {
            if (sprite.cut.size() != ring) {
                rects.push_back({sprite.corner.x + LabelAtlas::margin,
                                 sprite.corner.y + LabelAtlas::margin,
                                 sprite.cut.width() - 2 * LabelAtlas::margin,
                                 sprite.cut.height() - 2 * LabelAtlas::margin});
            }
        }
        return rects;
    }
    [[nodiscard]] std::size_t rings() const {
        return picture.names.sprites.size() - texts().size();
    }
    [[nodiscard]] std::vector<ScreenRect> pinBoxes() const {
        std::vector<ScreenRect> boxes;
        for (const LabelledPin& pin : pins) {
            boxes.push_back({pin.tip.x - pinWidth * pin.scale / 2,
                             pin.tip.y - pinHeight * pin.scale,
                             pinWidth * pin.scale,
                             pinHeight * pin.scale});
        }
        return boxes;
    }

    const Camera camera{canadaOverview, viewport};
    std::vector<PlaceLabel> names;
    std::vector<LabelledPin> pins;
    MapLabels mapNames;
    MapFrame picture;
    QSizeF ring;
};

TEST_F(MapLabelsTest, APlacesNameStandsBesideItsRing) {
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

TEST_F(MapLabelsTest, ThatOfACountryOrAWaterStandsOnItsPointWithoutARing) {
    addName(QStringLiteral("Canada"), {400, 300}, 1, PlaceLabel::Kind::country);
    addName(QStringLiteral("Hudson Bay"), {600, 500}, 1, PlaceLabel::Kind::water);
    place();
    ASSERT_EQ(texts().size(), 2U);
    EXPECT_EQ(rings(), 0U);
    EXPECT_NEAR(texts()[0].x + texts()[0].width / 2, 400, 1);
    EXPECT_NEAR(texts()[1].x + texts()[1].width / 2, 600, 1);
}

TEST_F(MapLabelsTest, NamesOverlapNeitherEachOtherNorPinsNorTheCornersOfControls) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> across(0, viewport.width);
    std::uniform_real_distribution<double> down(0, viewport.height);
    for (int i = 0; i < 150; ++i) {
        addName(QStringLiteral("Place number %1").arg(i), {across(random), down(random)}, i);
    }
    for (int i = 0; i < 25; ++i) {
        addPin({across(random), down(random)}, QStringLiteral("Record number %1").arg(i));
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
        for (const ScreenRect& box : pinBoxes()) {
            EXPECT_FALSE(placed[i].overlaps(box)) << i;
        }
        for (const ScreenRect& control : controls) {
            EXPECT_FALSE(placed[i].overlaps(control)) << i;
        }
    }
}

TEST_F(MapLabelsTest, WhereTwoNamesCompeteTheMoreImportantStands) {
    addName(QStringLiteral("Village"), {401, 300}, 9);
    addName(QStringLiteral("Metropolis"), {400, 300}, 1, PlaceLabel::Kind::country);
    place();
    LabelAtlas labels(1);
    const double width =
        labels.size({QStringLiteral("Metropolis"), LabelStyle::country, BasemapTheme::light})
            .width();
    ASSERT_FALSE(texts().empty());
    EXPECT_EQ(texts().front().width, width);
}

TEST_F(MapLabelsTest, TheTitleOfTheSelectedRecordStandsInAnyCase) {
    for (double x = 40; x < 880; x += 12) { // a wall of pins
        addPin({x, 320}, {});
        addPin({x, 350}, {});
    }
    addPin({450, 330}, QStringLiteral("Sturgeon Refinery"), true);
    place();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_NEAR(texts().front().y + texts().front().height / 2, 330 - 23, 25);
}

TEST_F(MapLabelsTest, ATitleStandsBesideItsPin) {
    addPin({400, 300}, QStringLiteral("Sturgeon Refinery"));
    place();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_NEAR(texts().front().x, 400 + pinWidth / 2, 6);
    EXPECT_NEAR(texts().front().y + texts().front().height / 2, 300 - pinHeight / 2, 3);
}

TEST_F(MapLabelsTest, TitlesGiveWayToNamesOfPlaces) {
    addPin({400, 300}, QStringLiteral("Sturgeon Refinery"));
    place();
    EXPECT_EQ(texts().size(), 1U);
    addName(QStringLiteral("Saskatchewan River"), {470, 285}, 5, PlaceLabel::Kind::water);
    addName(QStringLiteral("Beaufort Sea"), {340, 285}, 5, PlaceLabel::Kind::water);
    mapNames = {};
    place();
    EXPECT_EQ(texts().size(), 2U);
}

TEST_F(MapLabelsTest, ABalloonWithoutATitleHasNone) {
    addPin({400, 300}, {});
    place();
    EXPECT_TRUE(picture.names.sprites.empty());
}

TEST_F(MapLabelsTest, ATextWithoutALetterIsPassedOver) {
    addName({}, {400, 300});
    addPin({200, 300}, QStringLiteral(" "), true);
    place();
    EXPECT_TRUE(texts().empty());
}

TEST_F(MapLabelsTest, LargerTextsTakeMoreRoom) {
    addName(QStringLiteral("Red Deer"), {400, 300});
    place();
    const double width = texts().front().width;
    place(1.5);
    EXPECT_NEAR(texts().front().width, 1.5 * width, 0.15 * width);
}

TEST_F(MapLabelsTest, InTheFarViewAPlaceIsNamedInEveryCopyOfTheWorldThatIsFarEnoughAway) {
    const Camera world(CameraPose{{worldSize / 2, worldSize / 2}, 300 / worldSize, 0, 0}, viewport);
    names.push_back({QStringLiteral("Red Deer"),
                     coordinateToMapPoint({52.3, -113.8}),
                     PlaceLabel::Kind::city,
                     1});
    mapNames.place(names, {}, world, 1, picture);
    EXPECT_GE(texts().size(), 1U);
    for (const ScreenRect& text : texts()) {
        EXPECT_TRUE((ScreenRect{0, 0, viewport.width, viewport.height}.contains(text)));
    }
}

} // namespace
} // namespace vasker
