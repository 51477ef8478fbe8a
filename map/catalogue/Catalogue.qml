import QtQuick
import Vasker.Map
import Vasker.Platform

// The catalogue: category picker, count line, and the records or what stands in their place.
Item {
    id: root

    required property RecordFilter filter
    required property string selection
    property color headColor: Theme.colors.window
    // Whether the count line can be pressed.
    property bool countOpens: true
    // The ids of the records whose marker on the map, and whose row, is under the pointer; empty: none.
    property string hoveredOnMap
    readonly property string hovered: (list.item as RecordList)?.hovered ?? ""

    signal recordPicked(string id)
    signal countPressed
    // Escape was pressed in the list.
    signal escaped
    // What can be done with a record is asked for, at a place of `over`.
    signal menuRequested(string id, Item over, point place)

    function enterList(): void {
        (list.item as RecordList)?.enter();
    }

    RecordListModel {
        id: recordModel

        filter: root.filter
        selection: root.selection
    }
    KindListModel {
        id: kindModel

        kinds: root.filter.kinds
        counts: root.filter.counts
        kind: root.filter.kind
    }
    Rectangle {
        id: head

        width: parent.width
        height: countLine.y + countLine.height + 2 + 1
        color: root.headColor

        KindPicker {
            id: picker

            x: 12
            y: 8
            width: parent.width - 24
            kinds: kindModel
            onPicked: kind => root.filter.kind = kind
        }
        CountLine {
            id: countLine

            anchors.left: parent.left
            anchors.leftMargin: 8
            y: picker.y + picker.height + 2
            width: Math.min(implicitWidth, parent.width - 16)
            label: recordModel.countText
            visible: root.countOpens
            onClicked: root.countPressed()
        }
        Label {
            visible: !root.countOpens
            anchors.left: parent.left
            anchors.leftMargin: 16
            y: countLine.y + 4
            width: countLine.width - 16
            wrapMode: Text.Wrap
            textStyle: Theme.type.caption
            color: Theme.colors.text2
            text: recordModel.countText
            spoken: true
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.colors.line
        }
    }
    Rectangle {
        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        color: Theme.colors.surface

        Loader {
            id: list

            readonly property bool needed: !recordModel.empty

            anchors.fill: parent
            onNeededChanged: needed ? setSource("RecordList.qml", {
                "records": recordModel
            }) : setSource("")
        }
        Binding {
            target: list.item as RecordList
            property: "hoveredOnMap"
            value: root.hoveredOnMap
        }
        Connections {
            target: list.item as RecordList

            function onPicked(id: string): void {
                root.recordPicked(id);
            }
            function onEscaped(): void {
                root.escaped();
            }
            function onMenuRequested(id: string, over: Item, place: point): void {
                root.menuRequested(id, over, place);
            }
        }
        EmptyState {
            anchors.fill: parent
            visible: recordModel.empty
            title: recordModel.emptyTitle
            advice: qsTr("Check the spelling or try a new search.")
        }
    }
}
