import QtQuick
import QtTest
import Vasker.Platform

MenuStage {
    id: stage

    TestCase {
        name: "MenuPointer"
        when: windowShown

        function init(): void {
            stage.menu.close();
            tryVerify(() => !stage.menu.visible);
            stage.satellite.chosen = false;
            stage.picked = "";
            stage.presses = 0;
            stage.button.forceActiveFocus();
        }
        function test_a_press_beside_it_closes_it_the_button_included(): void {
            mouseClick(stage.button);
            mouseClick(stage, 500, 350);
            verify(!stage.menu.shown);
            tryCompare(stage.menu, "modal", false);
            mouseClick(stage.button);
            tryVerify(() => stage.menu.shown); // at the latest once it has faded out
            mouseClick(stage.button);
            verify(!stage.menu.shown);
            compare(stage.picked, "");
        }
        function test_a_click_on_a_row_picks_it(): void {
            mouseClick(stage.button);
            tryVerify(() => stage.menu.opened);
            mouseClick(stage, 60, stage.button.height + 4 + 6 + 26 + 34 + 17);
            compare(stage.picked, "Satellite");
        }
        function test_a_press_on_a_row_is_cancelled_by_leaving_it(): void {
            mouseClick(stage.button);
            tryVerify(() => stage.menu.opened);
            const y = stage.button.height + 4 + 6 + 26 + 17;
            mousePress(stage, 60, y);
            mouseMove(stage, 500, 350);
            mouseRelease(stage, 500, 350);
            compare(stage.picked, "");
            verify(stage.menu.shown);
        }
        function test_the_row_under_the_pointer_is_the_current_one(): void {
            mouseClick(stage.button);
            tryVerify(() => stage.menu.opened);
            mouseMove(stage, 60, stage.button.height + 4 + 6 + 26 + 34 + 17);
            tryCompare(stage.Window.activeFocusItem, "label", "Satellite");
            keyClick(Qt.Key_Up);
            compare(stage.current(), "Map");
        }
        function test_a_pointer_that_rests_leaves_the_rows_to_the_keyboard(): void {
            mouseClick(stage.button);
            tryVerify(() => stage.menu.opened);
            mouseMove(stage, 60, stage.button.height + 4 + 6 + 26 + 34 + 17);
            tryCompare(stage.Window.activeFocusItem, "label", "Satellite");
            keyClick(Qt.Key_Up);
            // With the next picture the window tells of the pointer again.
            for (let pictures = 0; pictures < 3; ++pictures) {
                stage.behind.x += 1;
                waitForRendering(stage);
                compare(stage.current(), "Map");
            }
        }
        function test_what_lies_beside_it_is_not_pressed(): void {
            mouseClick(stage.button);
            tryVerify(() => stage.menu.opened);
            mouseClick(stage.behind);
            verify(!stage.menu.shown);
            compare(stage.presses, 0);
            tryVerify(() => !stage.menu.visible);
            mouseClick(stage.behind);
            compare(stage.presses, 1);
        }
    }
}
