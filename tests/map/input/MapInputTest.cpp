#include "map/input/MapInput.h"

#include <qnamespace.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace vasker {
namespace {

constexpr ScreenPoint here{400, 300};
constexpr ScreenPoint nearby{402, 301};
constexpr ScreenPoint elsewhere{440, 330};

class MapInputTest : public testing::Test {
  protected:
    /// Carries camera commands out, as the map does.
    MapCommands send(const MapEvent& event) {
        const auto commands = input.handle(event, camera);
        EXPECT_TRUE(commands.has_value());
        for (const MapCommand& command : commands.value_or(MapCommands())) {
            if (const auto* const set = std::get_if<SetCamera>(&command)) {
                camera = set->camera;
            }
        }
        return commands.value_or(MapCommands());
    }
    void click(ScreenPoint point, bool hits) {
        send(PointerPress{point, true, false});
        send(PointerRelease{true, 0.1});
        input.setPickHit(hits);
    }
    void tap(ScreenPoint point, double seconds, bool hits) {
        send(Touch{{point}, seconds});
        send(Touch{{}, seconds + 0.05});
        input.setPickHit(hits);
    }

    MapInput input{{.seconds = 0.4, .pixels = 30}};
    Camera camera{CameraPose{{1e8, 9e7}, 1e-3, 0, 0}, {800, 600}};
};

template <typename Command>
const Command* only(const MapCommands& commands) {
    EXPECT_EQ(commands.size(), 1U);
    return commands.size() == 1 ? std::get_if<Command>(&commands.front()) : nullptr;
}

template <typename Command>
bool contains(const MapCommands& commands) {
    return std::ranges::any_of(commands, [](const MapCommand& command) {
        return std::holds_alternative<Command>(command);
    });
}

TEST_F(MapInputTest, APressTakesTheFocusAndStopsTheCamera) {
    const MapCommands commands = send(PointerPress{here, true, false});
    EXPECT_TRUE(contains<TakeFocus>(commands));
    EXPECT_TRUE(contains<StopMotion>(commands));
    EXPECT_TRUE(input.isPressed());
}

TEST_F(MapInputTest, AClickPicksWhereItWasPressed) {
    send(PointerPress{here, true, false});
    EXPECT_TRUE(send(PointerMove{nearby, 0.05}).empty());
    EXPECT_EQ(input.drag(), std::nullopt);
    const MapCommands commands = send(PointerRelease{true, 0.1});
    const auto* const pick = only<Pick>(commands);
    ASSERT_NE(pick, nullptr);
    EXPECT_EQ(pick->point, here);
    EXPECT_FALSE(input.isPressed());
}

TEST_F(MapInputTest, ADragKeepsWhatIsUnderThePointer) {
    const MapPoint under = camera.screenToWorld(here);
    send(PointerPress{here, true, false});
    send(PointerMove{elsewhere, 0.05});
    EXPECT_EQ(input.drag(), DragKind::pan);
    EXPECT_NEAR(camera.worldToScreen(under).x, elsewhere.x, 1e-6);
    EXPECT_NEAR(camera.worldToScreen(under).y, elsewhere.y, 1e-6);
}

TEST_F(MapInputTest, ADragLetGoWhileMovingGoesOn) {
    send(PointerPress{here, true, false});
    send(PointerMove{{420, 300}, 0.02});
    send(PointerMove{{440, 300}, 0.04});
    const MapCommands commands = send(PointerRelease{true, 0.05});
    const auto* const inertia = only<StartInertia>(commands);
    ASSERT_NE(inertia, nullptr);
    EXPECT_LT(inertia->velocity.x, 0); // the map goes to the right, its centre to the west
}

TEST_F(MapInputTest, ADragThatRestedBeforeItsEndStops) {
    send(PointerPress{here, true, false});
    send(PointerMove{{440, 300}, 0.04});
    send(PointerMove{{440, 300}, 0.9});
    const MapCommands commands = send(PointerRelease{true, 1});
    const auto* const inertia = only<StartInertia>(commands);
    ASSERT_NE(inertia, nullptr);
    EXPECT_EQ(inertia->velocity.x, 0);
}

TEST_F(MapInputTest, TheSecondButtonRotatesAndTilts) {
    send(PointerPress{here, false, false});
    send(PointerMove{{480, 250}, 0.05});
    EXPECT_EQ(input.drag(), DragKind::rotate);
    EXPECT_NE(camera.pose().bearing, 0);
    EXPECT_GT(camera.pose().pitch, 0);
}

TEST_F(MapInputTest, CtrlWithTheFirstButtonRotatesToo) {
    send(PointerPress{here, true, true});
    send(PointerMove{{480, 300}, 0.05});
    EXPECT_EQ(input.drag(), DragKind::rotate);
}

TEST_F(MapInputTest, WhatIsLeftNearlyUprightIsSetUpright) {
    camera = Camera(CameraPose{camera.center(), camera.scale(), 2, 1}, camera.viewport());
    send(PointerPress{here, false, false});
    send(PointerMove{{401, 296}, 0.05});
    const MapCommands commands = send(PointerRelease{false, 0.1});
    const auto* const rotation = only<StartRotation>(commands);
    ASSERT_NE(rotation, nullptr);
    EXPECT_EQ(rotation->bearing, 0);
    EXPECT_EQ(rotation->pitch, 0);
}

TEST_F(MapInputTest, AClickOfTheSecondButtonOpensAMenu) {
    send(PointerPress{here, false, false});
    const MapCommands commands = send(PointerRelease{false, 0.1});
    const auto* const menu = only<OpenMenu>(commands);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->point, here);
}

TEST_F(MapInputTest, ADoubleClickZoomsInAndWithShiftOrTheSecondButtonOut) {
    const auto factor = [&](const DoubleClick& click) {
        const MapCommands commands = send(click);
        const auto* const zoom = only<StartZoom>(commands);
        return zoom == nullptr ? 0 : zoom->factor;
    };
    EXPECT_GT(factor({here, true, false}), 1);
    EXPECT_LT(factor({here, true, true}), 1);
    EXPECT_LT(factor({here, false, false}), 1);
}

TEST_F(MapInputTest, ADoubleClickOnARecordDoesNotZoom) {
    click(here, true);
    EXPECT_TRUE(send(DoubleClick{here, true, false}).empty());
    click(here, false);
    EXPECT_FALSE(send(DoubleClick{here, true, false}).empty());
}

TEST_F(MapInputTest, TheReleaseAfterADoubleClickIsNoClick) {
    send(PointerPress{here, true, false});
    send(DoubleClick{here, true, false});
    EXPECT_TRUE(send(PointerRelease{true, 0.1}).empty());
}

TEST_F(MapInputTest, AWheelZoomsAboutThePointer) {
    const MapCommands commands = send(WheelTurn{here, 240});
    const auto* const zoom = only<StartZoom>(commands);
    ASSERT_NE(zoom, nullptr);
    EXPECT_DOUBLE_EQ(zoom->factor, 2);
    EXPECT_EQ(zoom->anchor, here);
}

TEST_F(MapInputTest, ATouchpadZoomsAtOnce) {
    const double scale = camera.scale();
    send(TouchpadScroll{here, 150});
    EXPECT_NEAR(camera.scale(), 2 * scale, 1e-9);
}

TEST_F(MapInputTest, ATouchpadsGesturesZoomAndRotate) {
    const double scale = camera.scale();
    send(TouchpadGesture{TouchpadGesture::Kind::begin, here, 0});
    send(TouchpadGesture{TouchpadGesture::Kind::zoom, here, 0.5});
    EXPECT_NEAR(camera.scale(), 1.5 * scale, 1e-9);
    send(TouchpadGesture{TouchpadGesture::Kind::rotate, here, 30});
    EXPECT_NEAR(camera.pose().bearing, 330, 1e-9);
    EXPECT_TRUE(send(TouchpadGesture{TouchpadGesture::Kind::end, here, 0}).empty());
}

TEST_F(MapInputTest, AFingerDragsAndATapPicks) {
    tap(here, 1, false);
    send(Touch{{here}, 5});
    send(Touch{{elsewhere}, 5.1});
    EXPECT_EQ(input.drag(), DragKind::pan);
    EXPECT_TRUE(contains<StartInertia>(send(Touch{{}, 5.2})));
}

TEST_F(MapInputTest, ASecondTapSoonAndNearZooms) {
    tap(here, 1, false);
    send(Touch{{nearby}, 1.2});
    EXPECT_TRUE(contains<StartZoom>(send(Touch{{}, 1.25})));
}

TEST_F(MapInputTest, ASecondTapOnARecordDoesNotZoom) {
    tap(here, 1, true);
    send(Touch{{nearby}, 1.2});
    EXPECT_TRUE(send(Touch{{}, 1.25}).empty());
}

TEST_F(MapInputTest, ASecondTapLateOrFarAwayIsAnotherTap) {
    tap(here, 1, false);
    send(Touch{{here}, 2});
    EXPECT_TRUE(contains<Pick>(send(Touch{{}, 2.05})));
    send(Touch{{{600, 500}}, 2.1});
    EXPECT_TRUE(contains<Pick>(send(Touch{{}, 2.15})));
}

TEST_F(MapInputTest, TwoFingersZoomAndTheOneThatStaysDragsOn) {
    const double scale = camera.scale();
    send(Touch{{{300, 300}}, 1});
    send(Touch{{{300, 300}, {500, 300}}, 1.1});
    send(Touch{{{200, 300}, {600, 300}}, 1.2});
    EXPECT_NEAR(camera.scale(), 2 * scale, 1e-9);
    send(Touch{{{200, 300}}, 1.3});
    const MapPoint center = camera.center();
    send(Touch{{{202, 300}}, 1.4}); // no threshold: it is moving already
    EXPECT_NE(camera.center(), center);
}

TEST_F(MapInputTest, FingersThatAreTakenAwayLeaveNothingBehind) {
    send(Touch{{here}, 1});
    send(TouchLost{});
    EXPECT_FALSE(input.isPressed());
    EXPECT_TRUE(send(Touch{{}, 1.1}).empty());
}

TEST_F(MapInputTest, APointerThatIsTakenAwayDragsNoFurther) {
    send(PointerPress{here, true, false});
    send(PointerLost{});
    EXPECT_TRUE(send(PointerMove{elsewhere, 0.1}).empty());
}

TEST_F(MapInputTest, ArrowsMoveAndWithShiftRotateAndTilt) {
    const auto axis = [&](int key, bool withShift) {
        const MapCommands commands = send(KeyPress{key, withShift, false});
        const auto* const press = only<PressAxis>(commands);
        EXPECT_NE(press, nullptr);
        return std::pair(press->axis, press->direction);
    };
    EXPECT_EQ(axis(Qt::Key_Right, false), std::pair(NavigationAxis::right, 1));
    EXPECT_EQ(axis(Qt::Key_Left, false), std::pair(NavigationAxis::right, -1));
    EXPECT_EQ(axis(Qt::Key_Down, false), std::pair(NavigationAxis::down, 1));
    EXPECT_EQ(axis(Qt::Key_Up, false), std::pair(NavigationAxis::down, -1));
    EXPECT_EQ(axis(Qt::Key_Right, true), std::pair(NavigationAxis::clockwise, 1));
    EXPECT_EQ(axis(Qt::Key_Left, true), std::pair(NavigationAxis::clockwise, -1));
    EXPECT_EQ(axis(Qt::Key_Up, true), std::pair(NavigationAxis::back, 1));
    EXPECT_EQ(axis(Qt::Key_Down, true), std::pair(NavigationAxis::back, -1));
    for (const bool withShift : {false, true}) {
        EXPECT_EQ(axis(Qt::Key_Plus, withShift), std::pair(NavigationAxis::nearer, 1));
        EXPECT_EQ(axis(Qt::Key_Equal, withShift), std::pair(NavigationAxis::nearer, 1));
        EXPECT_EQ(axis(Qt::Key_Minus, withShift), std::pair(NavigationAxis::nearer, -1));
    }
}

TEST_F(MapInputTest, AReleasedKeyEndsWhatItDidWithAndWithoutShift) {
    const MapCommands commands = send(KeyRelease{Qt::Key_Left, false});
    ASSERT_EQ(commands.size(), 2U);
    const auto axis = [&](std::size_t index) {
        const auto& release = std::get<ReleaseAxis>(commands[index]);
        return std::pair(release.axis, release.direction);
    };
    EXPECT_EQ(axis(0), std::pair(NavigationAxis::right, -1));
    EXPECT_EQ(axis(1), std::pair(NavigationAxis::clockwise, -1));
    EXPECT_TRUE(send(KeyRelease{Qt::Key_Left, true}).empty());
}

TEST_F(MapInputTest, EnterPicksInTheMiddleOnceHoweverLongItIsHeld) {
    const MapCommands commands = send(KeyPress{Qt::Key_Return, false, false});
    const auto* const pick = only<Pick>(commands);
    ASSERT_NE(pick, nullptr);
    EXPECT_EQ(pick->point, camera.focus());
    EXPECT_TRUE(send(KeyPress{Qt::Key_Return, false, true}).empty());
}

TEST_F(MapInputTest, KeysResetNorthShowTheOverviewAndOpenTheMenu) {
    const MapCommands upright = send(KeyPress{Qt::Key_N, false, false});
    const auto* const rotation = only<StartRotation>(upright);
    ASSERT_NE(rotation, nullptr);
    EXPECT_EQ(rotation->bearing, 0);
    EXPECT_EQ(rotation->pitch, 0);
    EXPECT_TRUE(contains<ShowOverview>(send(KeyPress{Qt::Key_Home, false, false})));
    EXPECT_TRUE(contains<OpenMenu>(send(KeyPress{Qt::Key_Menu, false, false})));
    EXPECT_TRUE(contains<OpenMenu>(send(KeyPress{Qt::Key_F10, true, false})));
}

TEST_F(MapInputTest, OtherKeysAreNotTheMaps) {
    for (const int key : {Qt::Key_A, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_F10}) {
        EXPECT_FALSE(input.handle(KeyPress{key, false, false}, camera).has_value()) << key;
    }
    EXPECT_FALSE(input.handle(KeyRelease{Qt::Key_A, false}, camera).has_value());
}

TEST_F(MapInputTest, WithTheFocusAllKeysAreLetGo) {
    EXPECT_TRUE(contains<ReleaseAllAxes>(send(FocusLost{})));
}

} // namespace
} // namespace vasker
