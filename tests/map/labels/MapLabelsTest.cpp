#include "map/labels/MapLabels.h"

#include "map/pins/PinShape.h"
#include "platform/ui/theme/Fonts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>

namespace vasker {
namespace {

constexpr Viewport viewport{900, 700};

class MapLabelsTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { installInterfaceFont(); }

    MapLabelsTest() { ring = LabelAtlas(1).placeMark(BasemapTheme::light).region.size(); }

    void compose(double textScale = 1) { compose(camera, textScale); }
    void compose(const Camera& seen, double textScale = 1) {
        const LabelInput input{.camera = seen,
                               .theme = BasemapTheme::light,
                               .devicePixels = 1,
                               .textScale = textScale,
                               .places = places,
                               .records = records,
                               .dots = dots,
                               .obstacles = controls,
                               .isMoving = false};
        keptFreeOfPins = labels.begin(input);
        layer = labels.compose(input);
    }
    void addPlace(const QString& text,
                  ScreenPoint where,
                  double priority = 1,
                  PlaceLabel::Kind kind = PlaceLabel::Kind::town) {
        places.push_back({text, camera.screenToWorld(where), kind, priority});
    }
    void addPin(ScreenPoint tip, const QString& text, bool isRequired = false) {
        const double width = pinWidth * (isRequired ? selectedPinScale : 1);
        const double height = pinHeight * (isRequired ? selectedPinScale : 1);
        const ScreenRect box{tip.x - width / 2, tip.y - height, width, height};
        records.push_back({records.size(), box, text, isRequired});
    }

    [[nodiscard]] std::vector<Sprite> sprites() const {
        std::vector<Sprite> all;
        for (const SpriteSheet& sheet : layer.sheets) {
            EXPECT_EQ(sheet.atlas.isNull(), sheet.sprites.empty());
            all.insert(all.end(), sheet.sprites.begin(), sheet.sprites.end());
        }
        return all;
    }
    /// What the texts cover: their sprites without the room for halos, and without the rings.
    [[nodiscard]] std::vector<ScreenRect> texts() const {
        std::vector<ScreenRect> rects;
        for (const Sprite& sprite : sprites()) {
            if (sprite.region.size() != ring) {
                rects.push_back({sprite.corner.x + LabelAtlas::margin,
                                 sprite.corner.y + LabelAtlas::margin,
                                 sprite.region.width() - 2 * LabelAtlas::margin,
                                 sprite.region.height() - 2 * LabelAtlas::margin});
            }
        }
        return rects;
    }
    [[nodiscard]] std::size_t rings() const { return sprites().size() - texts().size(); }

    const Camera camera{canadaOverview, viewport};
    std::vector<PlaceLabel> places;
    std::vector<RecordLabel> records;
    std::vector<ScreenRect> dots;
    std::vector<ScreenRect> controls;
    MapLabels labels;
    std::vector<ScreenRect> keptFreeOfPins;
    SpriteLayer layer;
    QSizeF ring;
};

TEST_F(MapLabelsTest, TheLabelOfAPlaceStandsBesideItsRing) {
    addPlace(QStringLiteral("Red Deer"), {400, 300});
    compose();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_EQ(rings(), 1U);
    const ScreenRect text = texts().front();
    EXPECT_GT(text.x, 400);
    EXPECT_LT(text.x, 415);
    EXPECT_NEAR(text.y + text.height / 2, 300, 3);
}

TEST_F(MapLabelsTest, ThatOfACountryOrAWaterStandsOnItsPointWithoutARing) {
    addPlace(QStringLiteral("Canada"), {400, 300}, 1, PlaceLabel::Kind::country);
    addPlace(QStringLiteral("Hudson Bay"), {600, 500}, 1, PlaceLabel::Kind::water);
    compose();
    ASSERT_EQ(texts().size(), 2U);
    EXPECT_EQ(rings(), 0U);
    EXPECT_NEAR(texts()[0].x + texts()[0].width / 2, 400, 1);
    EXPECT_NEAR(texts()[1].x + texts()[1].width / 2, 600, 1);
}

TEST_F(MapLabelsTest, APlaceWhoseRingAControlCoversHasNoLabel) {
    addPlace(QStringLiteral("Red Deer"), {400, 300});
    controls = {{380, 303, 100, 14}}; // there is room above
    compose();
    EXPECT_TRUE(sprites().empty());
    controls = {{380, 306, 100, 14}};
    compose();
    EXPECT_EQ(texts().size(), 1U);
    EXPECT_EQ(rings(), 1U);
}

TEST_F(MapLabelsTest, TheLinesOfATitleBeginOrEndTogetherTowardsItsPin) {
    const QString title = QStringLiteral("Kaybob South Compressor Station 04-22");
    const auto expectAligned = [&](LabelAlignment alignment) {
        LabelAtlas atlas(1);
        const auto place = atlas.place({title, LabelStyle::record, BasemapTheme::light, alignment});
        ASSERT_TRUE(place);
        const SpriteSheet& sheet = layer.sheets.at(0);
        ASSERT_EQ(sheet.sprites.size(), 1U);
        EXPECT_EQ(sheet.atlas.copy(sheet.sprites[0].region.toAlignedRect()),
                  atlas.page(place->page).copy(place->region.toAlignedRect()));
    };
    addPin({400, 300}, title);
    compose();
    expectAligned(LabelAlignment::left);
    controls = {{420, 0, 20, 700}};
    compose();
    expectAligned(LabelAlignment::right);
}

TEST_F(MapLabelsTest, LabelsOverlapNeitherEachOtherNorPinsNorControls) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> across(0, viewport.width);
    std::uniform_real_distribution<double> down(0, viewport.height);
    for (int i = 0; i < 150; ++i) {
        addPlace(QStringLiteral("Place number %1").arg(i), {across(random), down(random)}, i);
    }
    for (int i = 0; i < 25; ++i) {
        addPin({across(random), down(random)}, QStringLiteral("Record number %1").arg(i));
    }
    controls = {{viewport.width - 300, 0, 300, 200}, {0, viewport.height - 90, 400, 90}};
    compose();
    const auto placed = texts();
    ASSERT_GE(placed.size(), 30U);
    for (std::size_t i = 0; i < placed.size(); ++i) {
        for (std::size_t other = 0; other < i; ++other) {
            EXPECT_FALSE(placed[i].overlaps(placed[other])) << i << ' ' << other;
        }
        for (const RecordLabel& record : records) {
            EXPECT_FALSE(placed[i].overlaps(record.pin)) << i;
        }
        for (const ScreenRect& control : controls) {
            EXPECT_FALSE(placed[i].overlaps(control)) << i;
        }
    }
}

TEST_F(MapLabelsTest, ARequiredLabelStandsAboveItsPinWhereBothSidesAreTaken) {
    addPin({400, 300}, QStringLiteral("Glen Ewen"), true);
    const ScreenRect pin = records.front().pin;
    const double middle = pin.y + pin.height / 2;
    controls = {{0, middle - 5, pin.x, 10}, {pin.x + pin.width, middle - 5, 300, 10}};
    compose();
    ASSERT_EQ(texts().size(), 1U);
    const ScreenRect text = texts().front();
    EXPECT_LT(text.y + text.height / 2, pin.y);
    EXPECT_NEAR(text.x + text.width / 2, 400, 2);
}

TEST_F(MapLabelsTest, WhereTwoLabelsCompeteTheMoreImportantStands) {
    addPlace(QStringLiteral("Village"), {401, 300}, 9);
    addPlace(QStringLiteral("Metropolis"), {400, 300}, 1, PlaceLabel::Kind::country);
    compose();
    LabelAtlas atlas(1);
    const double width =
        atlas.size({QStringLiteral("Metropolis"), LabelStyle::country, BasemapTheme::light})
            .width();
    ASSERT_FALSE(texts().empty());
    EXPECT_EQ(texts().front().width, width);
}

TEST_F(MapLabelsTest, TheLabelOfTheSelectedRecordStandsInAnyCase) {
    for (double x = 40; x < 880; x += 12) { // a wall of pins
        for (double y = 260; y < 400; y += 30) {
            addPin({x, y}, {});
        }
    }
    addPin({450, 330}, QStringLiteral("Sturgeon Refinery"), true);
    compose();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_NEAR(texts().front().y + texts().front().height / 2, 330 - 23, 25);
}

TEST_F(MapLabelsTest, TheLabelOfARecordStandsBesideItsPin) {
    addPin({400, 300}, QStringLiteral("Sturgeon Refinery"));
    compose();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_NEAR(texts().front().x, 400 + pinWidth / 2, 6);
    EXPECT_NEAR(texts().front().y + texts().front().height / 2, 300 - pinHeight / 2, 3);
}

TEST_F(MapLabelsTest, TheLabelOfARecordCoversNoDotAndThatOfAPlaceMay) {
    const QString record = QStringLiteral("Sturgeon Refinery");
    addPin({400, 300}, record);
    dots = {{440, 281, 8, 8}};
    compose();
    ASSERT_EQ(texts().size(), 1U);
    EXPECT_LT(texts().front().x, 400); // at the other side
    dots.push_back({350, 281, 8, 8});
    compose();
    EXPECT_TRUE(texts().empty());
    addPlace(QStringLiteral("Red Deer"), {430, 285});
    compose();
    EXPECT_EQ(texts().size(), 1U);
}

TEST_F(MapLabelsTest, WhereTwoRecordsCompeteTheLowerRankStands) {
    addPin({400, 300}, QStringLiteral("Plant A"));
    addPin({500, 300}, QStringLiteral("Plant B"));
    dots = {{376, 281, 8, 8}, {516, 281, 8, 8}}; // there is room between them only, for one
    for (const auto& [first, second] : {std::pair(3U, 7U), std::pair(7U, 3U)}) {
        records[0].rank = first;
        records[1].rank = second;
        labels = {};
        compose();
        ASSERT_EQ(texts().size(), 1U);
        const double middle = texts().front().x + texts().front().width / 2;
        EXPECT_EQ(middle < 450, first < second);
    }
}

TEST_F(MapLabelsTest, LabelsOfRecordsGiveWayToThoseOfPlaces) {
    addPin({400, 300}, QStringLiteral("Sturgeon Refinery"));
    compose();
    EXPECT_EQ(texts().size(), 1U);
    addPlace(QStringLiteral("Saskatchewan River"), {470, 285}, 5, PlaceLabel::Kind::water);
    addPlace(QStringLiteral("Beaufort Sea"), {340, 285}, 5, PlaceLabel::Kind::water);
    labels = {};
    compose();
    EXPECT_EQ(texts().size(), 2U);
}

TEST_F(MapLabelsTest, APinWithoutATextHasNoLabel) {
    addPin({400, 300}, {});
    compose();
    EXPECT_TRUE(sprites().empty());
}

TEST_F(MapLabelsTest, ATextWithoutALetterIsPassedOver) {
    addPlace({}, {400, 300});
    addPin({200, 300}, QStringLiteral(" "), true);
    compose();
    EXPECT_TRUE(texts().empty());
}

TEST_F(MapLabelsTest, LargerTextsTakeMoreRoom) {
    addPlace(QStringLiteral("Red Deer"), {400, 300});
    compose();
    const double width = texts().front().width;
    compose(1.5);
    EXPECT_NEAR(texts().front().width, 1.5 * width, 0.15 * width);
}

TEST_F(MapLabelsTest, InTheFarViewAPlaceIsLabelledInEveryCopyOfTheWorldThatIsFarEnoughAway) {
    const Camera world(CameraPose{{worldSize / 2, worldSize / 2}, 300 / worldSize, 0, 0}, viewport);
    places.push_back({QStringLiteral("Red Deer"),
                      coordinateToMapPoint({52.3, -113.8}),
                      PlaceLabel::Kind::city,
                      1});
    compose(world);
    EXPECT_GE(texts().size(), 1U);
    for (const ScreenRect& text : texts()) {
        EXPECT_TRUE((ScreenRect{0, 0, viewport.width, viewport.height}.contains(text)));
    }
}

TEST_F(MapLabelsTest, PinsMakeWayForControlsAndForRegionsAndCitiesPlacedAsIfThereWereNoPins) {
    addPlace(QStringLiteral("Edmonton"), {300, 300}, 3, PlaceLabel::Kind::city);
    addPlace(QStringLiteral("ALBERTA"), {600, 200}, 1, PlaceLabel::Kind::region);
    addPlace(QStringLiteral("Regina"), {600, 500}, 5, PlaceLabel::Kind::town);
    addPlace(QStringLiteral("Fairview"), {300, 500}, 7, PlaceLabel::Kind::town);
    addPlace(QStringLiteral("Rosebud"), {300, 600}, 4, PlaceLabel::Kind::village);
    addPlace(QStringLiteral("CANADA"), {700, 600}, 1, PlaceLabel::Kind::country);
    addPlace(QStringLiteral("Ottawa"), {700, 400}, 1, PlaceLabel::Kind::capital);
    addPin({330, 310}, {});
    controls = {{10, 600, 150, 30}};
    compose();
    const auto isNamed = [&](ScreenPoint where) {
        return std::ranges::any_of(keptFreeOfPins, [&](const ScreenRect& rect) {
            return rect.overlaps({where.x, where.y, 20, 10});
        });
    };
    ASSERT_EQ(keptFreeOfPins.size(), 5U);
    EXPECT_EQ(keptFreeOfPins[0], controls[0]);
    EXPECT_TRUE(isNamed({590, 195}));
    EXPECT_TRUE(isNamed({315, 295}));
    EXPECT_TRUE(isNamed({615, 495}));
    EXPECT_TRUE(isNamed({715, 395}));
}

TEST_F(MapLabelsTest, LabelsStandInThePartThatNothingCovers) {
    const Viewport covered{
        .width = 900, .height = 700, .coveredBelow = 120, .coveredRight = 150, .coveredLeft = 200};
    for (double x = 20; x < 900; x += 80) {
        for (double y = 20; y < 700; y += 40) {
            addPlace(QStringLiteral("Red Deer"), {x, y}, 1, PlaceLabel::Kind::country);
            places.back().text += QString::number(places.size());
        }
    }
    do {
        compose(Camera(camera.pose(), covered));
    } while (labels.isUnfinished());
    ASSERT_GE(texts().size(), 10U);
    double lowest = 0;
    const auto placed = texts();
    for (std::size_t i = 0; i < placed.size(); ++i) {
        EXPECT_TRUE((ScreenRect{200, 0, 550, 580}.contains(placed[i]))) << i;
        for (std::size_t other = 0; other < i; ++other) {
            EXPECT_FALSE(placed[i].overlaps(placed[other])) << i << ' ' << other;
        }
        lowest = std::max(lowest, placed[i].y + placed[i].height);
    }
    EXPECT_GT(lowest, 500);
}

TEST_F(MapLabelsTest, ALabelMayReachToTheEdgesOfThatPartAndNotBeyond) {
    const Viewport covered{
        .width = 900, .height = 700, .coveredBelow = 120, .coveredRight = 150, .coveredLeft = 200};
    const Camera seen(camera.pose(), covered);
    const auto textAt = [&](ScreenPoint point) {
        labels = MapLabels();
        places.clear();
        addPlace(QStringLiteral("Canada"), point, 1, PlaceLabel::Kind::country);
        compose(seen);
        return texts();
    };
    const ScreenPoint middle{400, 300};
    ASSERT_EQ(textAt(middle).size(), 1U);
    const ScreenRect text = textAt(middle).front();
    const double left = middle.x + 200 - text.x;
    const double right = middle.x + 750 - text.x - text.width;
    const double top = middle.y - text.y;
    const double bottom = middle.y + 580 - text.y - text.height;
    for (const auto& [x, y] :
         {std::pair(left, top), {right, top}, {left, bottom}, {right, bottom}}) {
        const double inwardsX = x == left ? 0.5 : -0.5;
        const double inwardsY = y == top ? 0.5 : -0.5;
        EXPECT_EQ(textAt({x + inwardsX, y + inwardsY}).size(), 1U) << x << ' ' << y;
        EXPECT_TRUE(textAt({x - inwardsX, y + inwardsY}).empty()) << x << ' ' << y;
        EXPECT_TRUE(textAt({x + inwardsX, y - inwardsY}).empty()) << x << ' ' << y;
    }
}

TEST_F(MapLabelsTest, AProminentNameHasAsMuchRoomAroundItOnEverySide) {
    addPlace(QStringLiteral("ALBERTA"), {600, 200}, 1, PlaceLabel::Kind::region);
    compose();
    ASSERT_EQ(keptFreeOfPins.size(), 1U);
    ASSERT_EQ(texts().size(), 1U);
    const ScreenRect text = texts().front();
    const double room = text.x - keptFreeOfPins[0].x;
    EXPECT_GT(room, 0);
    EXPECT_NEAR(text.y - keptFreeOfPins[0].y, room, 1e-6);
    EXPECT_NEAR(keptFreeOfPins[0].width, text.width + 2 * room, 1e-6);
    EXPECT_NEAR(keptFreeOfPins[0].height, text.height + 2 * room, 1e-6);
}

} // namespace
} // namespace vasker
