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
            return [
                {
                    key: Qt.Key_Return
                },
                {
                    key: Qt.Key_Space
                },
                {
                    key: Qt.Key_Down
                }
            ];
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
            return [
                {
                    key: Qt.Key_Escape
                },
                {
                    key: Qt.Key_Tab
                }
            ];
        }
        function test_escape_and_tab_close_it_and_pick_nothing(data: var): void {
            keyClick(Qt.Key_Return);
            keyClick(data.key);
            verify(!menu.opened);
            verify(button.activeFocus);
            compare(stage.picked, "");
        }
        function test_a_press_beside_it_closes_it(): void {
            mouseClick(button);
            verify(menu.opened);
            mouseClick(stage, 500, 350);
            verify(!menu.opened);
            compare(stage.picked, "");
        }
        function test_the_button_closes_it_again(): void {
            mouseClick(button);
            verify(menu.opened);
            mouseClick(button);
            verify(!menu.opened);
        }
        function test_a_click_on_a_row_picks_it(): void {
            mouseClick(button);
            mouseClick(stage, 60, button.height + 4 + 6 + 26 + 34 + 17);
            compare(stage.picked, "Satellite");
        }
        function test_at_a_point_it_turns_where_there_is_no_room(): void {
            menu.openAt(stage, Qt.point(100, 100));
            tryCompare(stage.Window.activeFocusItem, "text", "Map");
            const row = stage.Window.activeFocusItem;
            compare(row.mapToItem(stage, 0, 0).x, 106);
            menu.close();
            menu.openAt(stage, Qt.point(590, 390));
            const corner = row.mapToItem(stage, row.width + 6, 0);
            compare(corner.x, 590);
            verify(corner.y + row.height < 390);
        }
        function test_a_changed_window_closes_it(): void {
            keyClick(Qt.Key_Return);
            stage.Window.window.width += 10;
            tryVerify(() => !menu.opened);
        }
    }
}
