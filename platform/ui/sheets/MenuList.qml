import QtQuick
import QtQuick.Templates as T
import Vasker.Platform

// The rows of a menu. Arrows, Home, End and first letters move through them.
ListView {
    id: root

    required property T.Menu menu
    // What the rows say, for first letters; empty: the rows of the menu itself are asked.
    property list<string> labels

    // The first row from `from` on, in steps of 1 or -1 and around the end, that is there.
    function go(from: int, step: int): void {
        for (let turns = 0; turns < root.count; ++turns) {
            const row = (from + turns * step + root.count) % root.count;
            if ((root.itemAtIndex(row) ?? root.menu.itemAt(row))?.visible ?? true) {
                root.currentIndex = row;
                return;
            }
        }
    }
    function widestRow(): real {
        let widest = 0;
        for (let row = 0; row < root.menu.count; ++row) {
            widest = Math.max(widest, root.menu.itemAt(row).implicitWidth);
        }
        return Math.ceil(widest);
    }
    function chosenRow(): int {
        for (let row = 0; row < root.menu.count; ++row) {
            if ((root.menu.itemAt(row) as MenuRow).chosen) {
                return row;
            }
        }
        return 0;
    }
    function enter(row: int): void {
        search.forget();
        root.currentIndex = -1;
        root.go(row < 0 ? root.chosenRow() : row, 1);
        root.forceActiveFocus(Qt.PopupFocusReason);
    }
    function labelOf(row: int): string {
        return root.labels[row] ?? (root.menu.itemAt(row) as MenuRow)?.label ?? "";
    }
    // A first letter goes on to the next row, further ones make sure of this one.
    function find(): void {
        const from = root.currentIndex + (search.typed.length > 1 ? 0 : 1);
        for (let turns = 0; turns < root.count; ++turns) {
            const row = (from + turns) % root.count;
            if (search.begins(root.labelOf(row))) {
                return root.go(row, 1);
            }
        }
    }

    implicitHeight: contentHeight
    clip: contentHeight > height
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    highlightResizeDuration: 0
    T.ScrollBar.vertical: ScrollBar {}

    // Qt 6.4 makes the surface of a menu known to assistive tools, without its name.
    onVisibleChanged: parent.Accessible.name = root.menu.title

    Keys.onTabPressed: root.menu.close()
    Keys.onBacktabPressed: root.menu.close()
    // While it is open, keys are its own: no shortcut opens something above it.
    Keys.onShortcutOverride: event => event.accepted = true
    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up:
            return root.go(root.currentIndex - 1, -1);
        case Qt.Key_Down:
            return root.go(root.currentIndex + 1, 1);
        case Qt.Key_Home:
            return root.go(0, 1);
        case Qt.Key_End:
            return root.go(root.count - 1, -1);
        }
        event.accepted = search.takes(event.text);
        if (event.accepted) {
            root.find();
        }
    }

    HoverHandler {
        id: pointer

        readonly property point nowhere: Qt.point(-1, -1)
        property point last: nowhere

        onHoveredChanged: if (!hovered) {
            last = nowhere;
        }
        // A window tells of a pointer that rests as well, which leaves the rows to the keyboard.
        onPointChanged: {
            const place = point.scenePosition;
            if (place.x === pointer.last.x && place.y === pointer.last.y) {
                return;
            }
            pointer.last = place;
            const row = root.indexAt(point.position.x, point.position.y + root.contentY);
            if (row >= 0) {
                root.currentIndex = row;
            }
        }
    }
    TypeAhead {
        id: search
    }
}
