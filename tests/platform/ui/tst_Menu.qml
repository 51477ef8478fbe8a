import QtQuick
import QtTest
import ControlsTest
import Vasker.Platform

MenuStage {
    id: stage

    TestCase {
        name: "Menu"
        when: windowShown

        function init(): void {
            stage.menu.close();
            tryVerify(() => !stage.menu.visible);
            stage.satellite.chosen = false;
            stage.picked = "";
            stage.presses = 0;
            stage.button.forceActiveFocus();
        }
        function test_the_button_opens_it_on_its_first_row_data(): var {
            return [Qt.Key_Return, Qt.Key_Space, Qt.Key_Down].map(key => ({
                        key: key
                    }));
        }
        function test_the_button_opens_it_on_its_first_row(data: var): void {
            keyClick(data.key);
            verify(stage.menu.shown);
            compare(stage.current(), "Map");
        }
        function test_it_opens_again_while_it_fades_out(): void {
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Escape);
            verify(stage.menu.visible);
            verify(!stage.menu.shown);
            keyClick(Qt.Key_Return);
            tryVerify(() => stage.menu.opened);
            compare(stage.current(), "Map");
        }
        function test_a_key_that_is_held_opens_it_and_picks_nothing_data(): var {
            return [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].map(key => ({
                        key: key
                    }));
        }
        function test_a_key_that_is_held_opens_it_and_picks_nothing(data: var): void {
            Keyboard.hold(stage.Window.window, data.key, 5);
            verify(stage.menu.shown);
            compare(stage.picked, "");
            compare(stage.current(), "Map");
        }
        function test_a_key_that_is_held_picks_once(): void {
            keyClick(Qt.Key_Return);
            Keyboard.hold(stage.Window.window, Qt.Key_Return, 5);
            compare(stage.picked, "Map");
            verify(!stage.menu.shown);
        }
        function test_it_opens_on_the_chosen_row(): void {
            stage.satellite.chosen = true;
            keyClick(Qt.Key_Down);
            compare(stage.current(), "Satellite");
        }
        function test_arrows_go_around_and_pass_what_is_not_offered(): void {
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Down);
            compare(stage.current(), "Énergie");
            keyClick(Qt.Key_Down);
            compare(stage.current(), "Map");
            keyClick(Qt.Key_Up);
            compare(stage.current(), "Énergie");
            keyClick(Qt.Key_Home);
            compare(stage.current(), "Map");
            keyClick(Qt.Key_End);
            compare(stage.current(), "Énergie");
        }
        function test_letters_go_to_the_row_that_starts_with_them(): void {
            keyClick(Qt.Key_Return);
            keyClick("e");
            compare(stage.current(), "Énergie");
            keyClick(Qt.Key_Home);
            wait(1100);
            keyClick("s");
            keyClick("a");
            compare(stage.current(), "Satellite");
            keyClick(Qt.Key_Return);
            compare(stage.picked, "Satellite");
        }
        function test_a_pick_closes_it_first_and_gives_the_focus_back(): void {
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_Return);
            compare(stage.picked, "Énergie");
            verify(!stage.menu.shown);
            verify(stage.button.activeFocus);
        }
        function test_escape_and_tab_close_it_and_pick_nothing_data(): var {
            return [Qt.Key_Escape, Qt.Key_Tab].map(key => ({
                        key: key
                    }));
        }
        function test_escape_and_tab_close_it_and_pick_nothing(data: var): void {
            keyClick(Qt.Key_Return);
            keyClick(data.key);
            verify(!stage.menu.shown);
            verify(stage.button.activeFocus);
            compare(stage.picked, "");
        }
    }
}
