pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Map
import Vasker.Platform

// The list of categories below the picker.
PopupSurface {
    id: root

    required property KindListModel kinds

    signal picked(string kind)

    function pick(row: int): void {
        root.picked(root.kinds.valueAt(row));
        root.close();
    }

    contentHeight: list.contentHeight
    onOpenedChanged: if (opened) {
        list.currentIndex = Math.max(0, root.kinds.currentRow);
        list.forceActiveFocus(Qt.PopupFocusReason);
    }

    ListView {
        id: list

        anchors.fill: parent
        model: root.kinds
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: true
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Layer")
        Accessible.ignored: !visible

        Keys.onReturnPressed: root.pick(list.currentIndex)
        Keys.onEnterPressed: root.pick(list.currentIndex)
        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_Home) {
                list.currentIndex = 0;
            } else if (event.key === Qt.Key_End) {
                list.currentIndex = list.count - 1;
            } else if (search.takes(event.text)) {
                const row = root.kinds.rowStartingWith(search.typed, list.currentIndex);
                list.currentIndex = row < 0 ? list.currentIndex : row;
            } else if (event.key === Qt.Key_Space) {
                root.pick(list.currentIndex);
            } else {
                event.accepted = false;
            }
        }

        delegate: MenuRow {
            required property int index
            required property string label
            required property string count
            required property string countText

            width: list.width
            text: label
            note: count
            spokenNote: countText
            checkable: true
            checked: index === root.kinds.currentRow
            current: index === list.currentIndex
            onPointed: list.currentIndex = index
            onPicked: root.pick(index)
        }
    }
    TypeAhead {
        id: search
    }
}
