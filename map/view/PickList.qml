pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Map
import Vasker.Platform

// The records that stand on one place of the map, to choose from.
PopupSurface {
    id: root

    required property Item mapItem

    signal picked(string id)

    function offer(choice: recordSet, place: point): void {
        model.records = choice;
        origin.x = place.x - 8;
        origin.y = Math.max(8, Math.min(place.y, origin.parent.height - root.contentHeight - 32));
        root.open();
        list.currentIndex = 0;
        list.forceActiveFocus(Qt.PopupFocusReason);
    }
    function pick(row: int): void {
        const id = model.idAt(row);
        root.close();
        root.picked(id);
    }

    anchor: origin
    contentHeight: heading.height + Math.min(list.contentHeight, 330)
    surfaceWidth: 296

    Item {
        id: origin

        parent: root.mapItem
    }
    RecordListModel {
        id: model
    }
    Label {
        id: heading

        x: 14
        height: 30
        verticalAlignment: Text.AlignVCenter
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        text: qsTr("%n records at this place", "", list.count)
    }
    ListView {
        id: list

        anchors.fill: parent
        anchors.topMargin: heading.height
        model: model
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: true
        Accessible.role: Accessible.List
        Accessible.name: heading.text
        Accessible.ignored: !visible

        Keys.onReturnPressed: root.pick(list.currentIndex)
        Keys.onEnterPressed: root.pick(list.currentIndex)
        Keys.onSpacePressed: root.pick(list.currentIndex)

        delegate: RecordRow {
            width: ListView.view.width
            current: ListView.isCurrentItem
            separatorVisible: index < list.count - 1
            onPicked: root.pick(index)
        }
    }
    ScrollThumb {
        flickable: list
    }
}
