import QtQuick
import QtTest
import ControlsTest
import Vasker.Platform

Item {
    id: stage

    width: 600
    height: 300

    PlainButton {
        id: button

        x: 20
        y: 20
        label: "Sources & coverage"
    }
    PlainButton {
        id: other

        x: 300
        y: 20
        label: "Other"
    }
    HeaderButton {
        id: header

        x: 20
        y: 100
        symbol: "map"
        label: "Canada"
    }
    SignalSpy {
        id: clicks

        target: button
        signalName: "clicked"
    }
    SignalSpy {
        id: otherClicks

        target: other
        signalName: "clicked"
    }

    TestCase {
        name: "Button"
        when: windowShown

        function init(): void {
            stage.LayoutMirroring.enabled = false;
            header.labelVisible = true;
            button.forceActiveFocus();
            clicks.clear();
            otherClicks.clear();
        }
        function ringOf(control: Item): Item {
            return Array.from(control.children).find(child => child.around !== undefined);
        }

        function test_a_key_presses_it_data(): var {
            return [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].map(key => ({
                        key: key
                    }));
        }
        function test_a_key_presses_it(data: var): void {
            keyClick(data.key);
            compare(clicks.count, 1);
        }
        function test_a_key_that_is_held_presses_it_once_data(): var {
            return test_a_key_presses_it_data();
        }
        function test_a_key_that_is_held_presses_it_once(data: var): void {
            Keyboard.hold(stage.Window.window, data.key, 5);
            compare(clicks.count, 1);
        }
        function test_while_space_is_held_it_shows_that_it_is_pressed(): void {
            keyPress(Qt.Key_Space);
            verify(button.down);
            compare(button.background.color, Theme.colors.pressed);
            keyRelease(Qt.Key_Space);
            verify(!button.down);
        }
        function test_a_press_is_cancelled_when_the_focus_goes_and_presses_nobody_else(): void {
            keyPress(Qt.Key_Space);
            other.forceActiveFocus();
            keyRelease(Qt.Key_Space);
            compare(clicks.count + otherClicks.count, 0);
            verify(!button.down);
        }
        function test_a_press_is_cancelled_by_leaving_it(): void {
            mousePress(button);
            verify(button.down);
            mouseMove(stage, 500, 250);
            verify(!button.down);
            mouseRelease(stage, 500, 250);
            compare(clicks.count, 0);
        }
        function test_a_press_that_comes_back_counts(): void {
            mousePress(button);
            mouseMove(stage, 500, 250);
            mouseMove(button, 5, 5);
            mouseRelease(button, 5, 5);
            compare(clicks.count, 1);
        }
        function test_only_the_left_button_of_the_mouse_presses_it(): void {
            mouseClick(button, 5, 5, Qt.RightButton);
            mouseClick(button, 5, 5, Qt.MiddleButton);
            compare(clicks.count, 0);
            mouseClick(button);
            compare(clicks.count, 1);
        }
        function test_an_ampersand_in_its_label_makes_no_shortcut(): void {
            other.forceActiveFocus();
            keyClick(Qt.Key_Space, Qt.AltModifier);
            compare(clicks.count, 0);
        }
        function test_the_ring_shows_the_focus_of_the_keyboard_and_not_of_the_pointer(): void {
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(button.activeFocus && ringOf(button).visible);
            mouseClick(stage, 500, 250);
            verify(button.activeFocus && !ringOf(button).visible);
        }
        function test_a_name_without_a_label_shows_in_a_tip_while_the_pointer_rests(): void {
            const tip = () => find(stage.Window.contentItem, "Canada", header);
            header.labelVisible = false;
            mouseMove(header, 5, 5);
            verify(!tip());
            tryVerify(tip, 2000);
            mouseMove(stage, 500, 250);
            tryVerify(() => !tip());
        }
        // A visible text beside those in `except`.
        function find(item: Item, text: string, except: Item): bool {
            return item.visible && item !== except && (item.text === text || Array.from(item.children).some(child => find(child, text, except)));
        }
        function test_where_reading_goes_from_right_to_left_the_icon_stands_at_the_right(): void {
            const content = () => Array.from(header.children).find(child => child.spacing === 7);
            const icon = () => content().children[0];
            waitForRendering(stage);
            verify(icon().mapToItem(header, 0, 0).x < header.width / 2);
            stage.LayoutMirroring.enabled = true;
            tryVerify(() => icon().mapToItem(header, 0, 0).x > header.width / 2);
        }
    }
    LayoutMirroring.childrenInherit: true
}
