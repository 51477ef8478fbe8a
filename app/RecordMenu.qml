import QtQuick
import Vasker.App
import Vasker.Detail
import Vasker.Platform

// The context menu of a record: in a row, on the map, in the inspector.
Menu {
    id: root

    required property OpenMapWorkspace workspace
    property string recordId
    property releaseRecord record

    function offer(id: string, over: Item, place: point): void {
        root.recordId = id;
        root.record = root.workspace.recordOf(id);
        root.openAt(over, place);
    }

    title: qsTr("Record")

    MenuRow {
        visible: root.recordId !== root.workspace.inspector
        height: visible ? implicitHeight : 0
        label: qsTr("Show details")
        onPicked: root.workspace.selection = root.recordId
    }
    MenuRow {
        label: qsTr("Copy citation")
        onPicked: Clipboard.setText(root.record.citation)
    }
    MenuRow {
        label: qsTr("Copy coordinates")
        onPicked: Clipboard.setText(root.record.coordinates)
    }
}
