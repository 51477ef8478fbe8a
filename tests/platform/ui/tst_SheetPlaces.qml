import QtQuick
import QtTest
import Vasker.Platform

SheetStage {
    id: stage

    TestCase {
        name: "SheetPlaces"
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

        function test_it_keeps_its_least_height_at_the_smallest_window(): void {
            open();
            compare(stage.frame().width, 640);
            compare(stage.frame().height, 600);
            compare(stage.frame().y, 10);
        }
        function test_beside_the_map_it_stands_16_from_edge_and_top(): void {
            stage.sheet.placement = Sheet.Trailing;
            open();
            compare(stage.frame().x + stage.frame().width, 900 - 16);
            compare(stage.frame().y, 16);
        }
        function openAtBottom(): void {
            stage.sheet.placement = Sheet.BottomEdge;
            stage.sheet.minimumHeight = 0;
            stage.sheet.preferredHeight = 310;
            open();
        }
        function test_at_the_bottom_it_has_two_heights_data(): var {
            const grabber = () => stage.named("Make the sheet larger") ?? stage.named("Make the sheet smaller");
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
            compare(stage.frame().height, 310);
            compare(stage.frame().y, 310);
            data.grow();
            tryVerify(() => stage.frame().height === 580);
            compare(stage.frame().y, 40);
            data.shrink();
            tryVerify(() => stage.frame().height === 310);
            verify(stage.sheet.requested);
        }
        function test_a_short_drag_settles_where_it_began(): void {
            openAtBottom();
            mouseDrag(stage, 300, 330, 0, -60);
            tryVerify(() => stage.frame().height === 310);
        }
    }
}
