import QtQuick
import QtTest
import Vasker.Platform

Item {
    id: stage

    property string picked

    width: 600
    height: 400

    HeaderButton {
        id: button

        x: 20
        icon: "map"
        text: "Map options"
        menu: menu
    }
    Menu {
        id: menu

        anchor: button
        title: "Basemap"

        MenuEntry {
            text: "Map"
            checkable: true
            onPicked: stage.picked = text
        }
        MenuEntry {
            id: satellite

            text: "Satellite"
            checkable: true
            onPicked: stage.picked = text
        }
        MenuEntry {
            id: missing

            text: "Street"
            offered: false
            onPicked: stage.picked = text
        }
        MenuEntry {
            text: "Énergie"
            shortcut: "Ctrl+E"
            startsGroup: true
            onPicked: stage.picked = text
        }
    }

    TestCase {
        name: "Menu"
        when: windowShown

        function init(): void {
            menu.close();
            satellite.checked = false;
            stage.picked = "";
            button.forceActiveFocus();
        }
        function current(): string {
            return stage.Window.activeFocusItem.text;
        }

        function test_the_button_opens_it_on_its_first_row_data(): var {
            return [Qt.Key_Return, Qt.Key_Space, Qt.Key_Down].map(key => ({
                        key: key
                    }));
        }
        function test_the_button_opens_it_on_its_first_row(data: var): void {
            keyClick(data.key);
            verify(menu.opened);
            compare(current(), "Map");
        }
        function test_it_opens_on_the_checked_row(): void {
            satellite.checked = true;
            keyClick(Qt.Key_Down);
            compare(current(), "Satellite");
        }
        function test_arrows_go_around_and_pass_what_is_not_offered(): void {
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Down);
            compare(current(), "Énergie");
            keyClick(Qt.Key_Down);
            compare(current(), "Map");
            keyClick(Qt.Key_Up);
            compare(current(), "Énergie");
            keyClick(Qt.Key_Home);
            compare(current(), "Map");
            keyClick(Qt.Key_End);
            compare(current(), "Énergie");
        }
        function test_letters_go_to_the_row_that_starts_with_them(): void {
            keyClick(Qt.Key_Return);
            keyClick("e");
            compare(current(), "Énergie");
            keyClick(Qt.Key_Home);
            wait(1100);
            keyClick("s");
            keyClick("a");
            compare(current(), "Satellite");
            keyClick(Qt.Key_Return);
            compare(stage.picked, "Satellite");
        }
        function test_a_pick_closes_it_first_and_gives_the_focus_back(): void {
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_Return);
            compare(stage.picked, "Énergie");
            verify(!menu.opened);
            verify(button.activeFocus);
        }
        function test_escape_and_tab_close_it_and_pick_nothing_data(): var {
            return [Qt.Key_Escape, Qt.Key_Tab].map(key => ({
                        key: key
                    }));
        }
        function test_escape_and_tab_close_it_and_pick_nothing(data: var): void {
            keyClick(Qt.Key_Return);
            keyClick(data.key);
            verify(!menu.opened);
            verify(button.activeFocus);
            compare(stage.picked, "");
        }
        function test_a_press_beside_it_closes_it_the_button_included(): void {
            mouseClick(button);
            mouseClick(stage, 500, 350);
            verify(!menu.opened);
            mouseClick(button);
            verify(menu.opened);
            mouseClick(button);
            verify(!menu.opened);
            compare(stage.picked, "");
        }
        function test_a_click_on_a_row_picks_it(): void {
            mouseClick(button);
            mouseClick(stage, 60, button.height + 4 + 6 + 26 + 34 + 17);
            compare(stage.picked, "Satellite");
        }
    }
}
