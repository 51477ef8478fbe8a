pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Vasker.Map
import Vasker.Platform

// The rows of the catalogue. Arrows, Page Up and Down, Home and End move through it, Enter picks.
ListView {
    id: root

    required property RecordListModel records
    // The ids of the records whose marker on the map, and whose row, is under the pointer; empty: none.
    property string hoveredOnMap
    property string hovered

    signal picked(string id)
    // Escape was pressed.
    signal escaped
    // What can be done with a record is asked for, at a place of `over`.
    signal menuRequested(string id, Item over, point place)

    objectName: "open-map-records"
    model: root.records
    clip: true
    reuseItems: true
    // Screen readers count the rows that have been made: of a short list, let that be all. 0: not filled yet.
    cacheBuffer: AssistiveTools.present && count > 0 && count <= 100 ? 20000 : 320
    boundsBehavior: Flickable.StopAtBounds
    pixelAligned: true
    T.ScrollBar.vertical: ScrollBar {}
    keyNavigationEnabled: true
    highlightFollowsCurrentItem: true
    highlightMoveDuration: 0
    highlightResizeDuration: 0
    currentIndex: -1
    activeFocusOnTab: true
    topMargin: 4
    bottomMargin: 4
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Records")
    Accessible.description: root.records.countText

    function enter(): void {
        root.forceActiveFocus(Qt.TabFocusReason);
    }
    function go(row: int): void {
        root.currentIndex = Math.max(0, Math.min(root.count - 1, row));
    }
    function goTo(beginning: string): void {
        const row = root.records.rowBeginning(beginning);
        if (row >= 0) {
            root.go(row);
        }
    }
    function offerMenu(): void {
        if (root.currentItem !== null) {
            root.menuRequested(root.records.idAt(root.currentIndex), root.currentItem, Qt.point(LayoutMirroring.enabled ? root.width - 44 : 44, root.currentItem.height / 2));
        }
    }
    function pageRows(): int {
        return Math.max(1, Math.floor(root.height / (root.currentItem?.height ?? root.height)) - 1);
    }

    onActiveFocusChanged: if (activeFocus && currentIndex < 0) {
        go(Math.max(0, root.records.selectedRow));
    }
    Keys.onEscapePressed: root.escaped()
    Keys.onMenuPressed: root.offerMenu()
    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Home:
            return root.go(0);
        case Qt.Key_End:
            return root.go(root.count - 1);
        case Qt.Key_PageDown:
            return root.go(root.currentIndex + root.pageRows());
        case Qt.Key_PageUp:
            return root.go(root.currentIndex - root.pageRows());
        case Qt.Key_F10:
            if (event.modifiers === Qt.ShiftModifier) {
                return root.offerMenu();
            }
        }
        event.accepted = search.takes(event.text);
        if (event.accepted) {
            root.goTo(search.typed);
        }
    }

    delegate: RecordRow {
        width: ListView.view.width
        setSize: root.count
        selected: index === root.records.selectedRow
        hoveredOnMap: recordId === root.hoveredOnMap
        current: root.activeFocus && ListView.isCurrentItem
        separatorVisible: index < root.count - 1 && index + 1 !== root.records.selectedRow
        Component.onCompleted: order.refresh()
        onPositionInSetChanged: order.refresh()
        onHoveredChanged: {
            if (hovered) {
                root.hovered = recordId;
            } else if (root.hovered === recordId) {
                root.hovered = "";
            }
        }
        onPicked: {
            root.currentIndex = index;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.picked(recordId);
        }
        // When the menu closes, the keyboard is here.
        onMenuRequested: place => {
            root.currentIndex = index;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.menuRequested(recordId, this, place);
        }
    }

    TypeAhead {
        id: search
    }
    RowOrder {
        id: order

        parentOfRows: root.contentItem
    }
    Connections {
        target: root.records

        property string currentId

        function onAboutToBeReplaced(): void {
            currentId = root.records.idAt(root.currentIndex);
        }
        function onReplaced(): void {
            const row = root.records.rowOf(currentId);
            root.currentIndex = row;
            if (row < 0) {
                root.positionViewAtBeginning();
            }
        }
        function onSelectedRowChanged(): void {
            if (root.records.selectedRow >= 0) {
                root.currentIndex = root.records.selectedRow;
                root.positionViewAtIndex(root.currentIndex, ListView.Contain);
            }
        }
    }
}
