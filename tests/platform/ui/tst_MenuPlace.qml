import QtQuick
import QtTest
import Vasker.Platform

Item {
    id: stage

    width: 600
    height: 400

    Menu {
        id: menu

        anchor: stage

        MenuRow {
            label: "Map"
        }
        MenuRow {
            label: "Satellite"
        }
    }

    TestCase {
        name: "MenuPlace"
        when: windowShown

        function init(): void {
            menu.close();
            tryVerify(() => !menu.visible);
        }

        function test_at_a_point_it_turns_where_there_is_no_room(): void {
            menu.openAt(stage, Qt.point(100, 100));
            tryCompare(stage.Window.activeFocusItem, "label", "Map");
            const row = stage.Window.activeFocusItem;
            compare(row.mapToItem(stage, 0, 0).x, 106);
            menu.close();
            tryVerify(() => !menu.visible);
            menu.openAt(stage, Qt.point(590, 390));
            const corner = row.mapToItem(stage, row.width + 6, 0);
            compare(corner.x, 590);
            verify(corner.y + row.height < 390);
        }
        function test_a_changed_window_closes_it(): void {
            menu.openAt(stage, Qt.point(100, 100));
            verify(menu.shown);
            stage.Window.window.width += 10;
            tryVerify(() => !menu.shown);
        }
    }
}
