import QtQuick
import QtTest
import Vasker.Platform

SheetStage {
    id: stage

    TestCase {
        name: "Sheet"
        when: windowShown

        function init(): void {
            stage.reset();
        }
        function cleanup(): void {
            stage.sheet.requested = false;
            tryVerify(() => !stage.sheet.onScreen);
        }
        function open(): void {
            stage.sheet.requested = true;
            tryVerify(() => stage.sheet.shown === 1);
        }

        function test_its_content_is_there_only_while_it_is_on_screen(): void {
            compare(stage.named("First"), null);
            open();
            verify(stage.named("First") !== null);
            stage.sheet.requested = false;
            verify(stage.named("First") !== null);
            tryVerify(() => !stage.sheet.onScreen);
            compare(stage.named("First"), null);
        }
        function test_it_says_that_it_has_closed_only_when_it_is_gone(): void {
            open();
            stage.sheet.requested = false;
            compare(stage.closings.count, 0);
            verify(stage.sheet.onScreen);
            tryCompare(stage.closings, "count", 1);
            verify(!stage.sheet.onScreen);
            verify(!stage.sheet.visible);
        }
        function test_it_is_closed_by_data(): var {
            return [
                {
                    tag: "Done",
                    close: () => mouseClick(stage.named("Done"))
                },
                {
                    tag: "Done, by key",
                    close: () => {
                        stage.named("Done").forceActiveFocus();
                        keyClick(Qt.Key_Return);
                    }
                },
                {
                    tag: "Escape",
                    close: () => keyClick(Qt.Key_Escape)
                },
                {
                    tag: "a click beside it",
                    close: () => mouseClick(stage, 20, 400)
                }
            ];
        }
        function test_it_is_closed_by(data: var): void {
            open();
            data.close();
            verify(!stage.sheet.requested);
            tryCompare(stage.closings, "count", 1);
            compare(stage.presses, 0);
        }
        function test_escape_clears_a_search_in_it_first(): void {
            open();
            keyClick("g");
            keyClick(Qt.Key_Escape);
            verify(stage.sheet.requested);
            keyClick(Qt.Key_Escape);
            verify(!stage.sheet.requested);
        }
        function test_a_click_on_it_does_not_close_it(): void {
            open();
            mouseClick(stage, 450, 400);
            verify(stage.sheet.requested);
        }
        function test_a_double_click_on_what_opens_it_leaves_it_open(): void {
            stage.opener = true;
            mouseDoubleClickSequence(stage, 20, 400);
            tryVerify(() => stage.sheet.shown === 1);
            verify(stage.sheet.requested);
        }
        function test_the_focus_moves_in_and_comes_back(): void {
            compare(stage.focusedName(), "Behind");
            open();
            compare(stage.focusedName(), "First");
            stage.sheet.requested = false;
            tryVerify(() => !stage.sheet.onScreen);
            compare(stage.focusedName(), "Behind");
        }
        function test_tab_stays_in_it(): void {
            open();
            const seen = new Set();
            for (let i = 0; i < 8; ++i) {
                seen.add(stage.focusedName());
                keyClick(Qt.Key_Tab);
            }
            for (let i = 0; i < 8; ++i) {
                keyClick(Qt.Key_Tab, Qt.ShiftModifier);
                seen.add(stage.focusedName());
            }
            compare(Array.from(seen).sort().join(), "Done,First,Second");
        }
        function test_pointer_and_wheel_do_not_reach_what_lies_behind(): void {
            mouseClick(stage, 20, 400);
            mouseWheel(stage, 20, 400, 0, 120);
            compare(stage.presses, 1);
            compare(stage.wheels, 1);
            open();
            mouseWheel(stage, 20, 400, 0, 120);
            mouseWheel(stage, 450, 400, 0, 120);
            mouseClick(stage, 450, 560);
            mouseClick(stage, 20, 400, Qt.RightButton);
            mouseClick(stage, 20, 400);
            compare(stage.presses, 1);
            compare(stage.wheels, 1);
        }
        function test_wanted_again_while_it_leaves_it_comes_back_and_has_not_closed(): void {
            open();
            stage.sheet.requested = false;
            wait(20);
            stage.sheet.requested = true;
            tryVerify(() => stage.sheet.shown === 1);
            compare(stage.closings.count, 0);
            compare(stage.focusedName(), "First");
        }
    }
}
