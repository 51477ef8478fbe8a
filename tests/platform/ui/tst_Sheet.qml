pragma ComponentBehavior: Bound
import QtQuick
import QtTest
import Vasker.Platform

Item {
    id: stage

    width: 900
    height: 620

    property int presses: 0
    property int wheels: 0

    Backdrop {
        id: behind

        anchors.fill: parent
        covered: sheet.onScreen

        SearchField {
            id: field

            x: 12
            width: 200
            prompt: "Behind"
        }
        MouseArea {
            anchors.fill: parent
            anchors.topMargin: 60
            onClicked: stage.presses += 1
            onWheel: stage.wheels += 1
        }
    }
    Sheet {
        id: sheet

        title: "Sources & coverage"
        preferredWidth: 640
        minimumHeight: 600
        onDismissed: wanted = false
        content: Column {
            readonly property Item first: first
            readonly property Item second: second

            Component.onCompleted: first.focusText()

            SearchField {
                id: first

                width: 200
                prompt: "First"
            }
            SearchField {
                id: second

                width: 200
                prompt: "Second"
            }
        }
    }
    SignalSpy {
        id: closings

        target: sheet
        signalName: "closed"
    }

    TestCase {
        name: "Sheet"
        when: windowShown

        function init(): void {
            sheet.placement = Sheet.Centered;
            sheet.preferredHeight = 540;
            sheet.minimumHeight = 600;
            stage.presses = 0;
            stage.wheels = 0;
            field.text = "";
            field.focusText();
        }
        function cleanup(): void {
            sheet.wanted = false;
            tryVerify(() => !sheet.onScreen);
            closings.clear();
        }
        function open(): void {
            closings.clear();
            sheet.wanted = true;
            tryCompare(sheet, "shown", 1);
        }
        // The item in the window whose accessible name this is.
        function named(name: string): Item {
            const open = [stage];
            while (open.length > 0) {
                const next = open.shift();
                if (next.visible && next.activeFocusOnTab && next.Accessible.name === name) {
                    return next;
                }
                for (let i = 0; i < next.children.length; ++i) {
                    open.push(next.children[i]);
                }
            }
            return null;
        }
        function focusedName(): string {
            return stage.Window.activeFocusItem?.Accessible.name ?? "";
        }
        function frame(): Item {
            return named("Done").parent.parent;
        }

        function test_its_content_is_there_only_while_it_is_on_screen(): void {
            compare(named("First"), null);
            open();
            verify(named("First") !== null);
            sheet.wanted = false;
            verify(named("First") !== null);
            tryVerify(() => !sheet.onScreen);
            compare(named("First"), null);
        }
        function test_it_says_that_it_has_closed_only_when_it_is_gone(): void {
            open();
            sheet.wanted = false;
            compare(closings.count, 0);
            verify(sheet.onScreen);
            tryCompare(closings, "count", 1);
            verify(!sheet.onScreen);
            verify(!sheet.visible);
        }
        function test_it_is_closed_by_data(): var {
            return [
                {
                    tag: "Done",
                    close: () => mouseClick(named("Done"))
                },
                {
                    tag: "Done, by key",
                    close: () => {
                        named("Done").forceActiveFocus();
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
            verify(!sheet.wanted);
            tryCompare(closings, "count", 1);
            compare(stage.presses, 0);
        }
        function test_escape_clears_a_search_in_it_first(): void {
            open();
            keyClick("g");
            keyClick(Qt.Key_Escape);
            verify(sheet.wanted);
            keyClick(Qt.Key_Escape);
            verify(!sheet.wanted);
        }
        function test_a_click_on_it_does_not_close_it(): void {
            open();
            mouseClick(stage, 450, 400);
            verify(sheet.wanted);
        }
        function test_the_second_half_of_a_double_click_does_not_close_it(): void {
            open();
            mouseDoubleClickSequence(stage, 20, 400);
            sheet.wanted = true;
            tryCompare(sheet, "shown", 1);
            mousePress(stage, 20, 500);
            mouseRelease(stage, 20, 500);
        }
        function test_the_focus_moves_in_and_comes_back(): void {
            compare(focusedName(), "Behind");
            open();
            compare(focusedName(), "First");
            sheet.wanted = false;
            tryVerify(() => !sheet.onScreen);
            compare(focusedName(), "Behind");
        }
        function test_tab_stays_in_it(): void {
            open();
            const seen = new Set();
            for (let i = 0; i < 8; ++i) {
                seen.add(focusedName());
                keyClick(Qt.Key_Tab);
            }
            for (let i = 0; i < 8; ++i) {
                keyClick(Qt.Key_Tab, Qt.ShiftModifier);
                seen.add(focusedName());
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
            sheet.wanted = false;
            wait(20);
            sheet.wanted = true;
            tryCompare(sheet, "shown", 1);
            compare(closings.count, 0);
            compare(focusedName(), "First");
        }
        function test_it_keeps_its_least_height_at_the_smallest_window(): void {
            open();
            compare(frame().width, 640);
            compare(frame().height, 600);
            compare(frame().y, 10);
        }
        function test_beside_the_map_it_stands_16_from_edge_and_top(): void {
            sheet.placement = Sheet.Trailing;
            open();
            compare(frame().x + frame().width, 900 - 16);
            compare(frame().y, 16);
        }

        function openAtBottom(): void {
            sheet.placement = Sheet.BottomEdge;
            sheet.minimumHeight = 0;
            sheet.preferredHeight = 310;
            open();
        }
        function test_at_the_bottom_it_has_two_heights_data(): var {
            const grabber = () => named("Make the sheet larger") ?? named("Make the sheet smaller");
            return [
                {
                    tag: "pressed",
                    grow: () => mouseClick(grabber()),
                    shrink: () => mouseClick(grabber())
                },
                {
                    tag: "keys on the grabber",
                    grow: () => {
                        grabber().forceActiveFocus();
                        keyClick(Qt.Key_Up);
                    },
                    shrink: () => keyClick(Qt.Key_Down)
                },
                {
                    tag: "keys from anywhere in it",
                    grow: () => keyClick(Qt.Key_Up, Qt.ControlModifier),
                    shrink: () => keyClick(Qt.Key_Down, Qt.ControlModifier)
                },
                {
                    tag: "dragged",
                    grow: () => mouseDrag(stage, 300, 330, 0, -200),
                    shrink: () => mouseDrag(stage, 300, 60, 0, 200)
                }
            ];
        }
        function test_at_the_bottom_it_has_two_heights(data: var): void {
            openAtBottom();
            compare(frame().height, 310);
            compare(frame().y, 310);
            data.grow();
            tryVerify(() => frame().height === 580);
            compare(frame().y, 40);
            data.shrink();
            tryVerify(() => frame().height === 310);
            verify(sheet.wanted);
        }
        function test_a_short_drag_settles_where_it_began(): void {
            openAtBottom();
            mouseDrag(stage, 300, 330, 0, -60);
            tryVerify(() => frame().height === 310);
        }
    }
}
