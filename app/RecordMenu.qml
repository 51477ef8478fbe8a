import QtQuick
import Vasker.App
import Vasker.Detail
import Vasker.Platform

// What can be done with a record wherever it is met: in a row, on the map, in the inspector.
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

    name: qsTr("Record")

    MenuEntry {
        text: qsTr("Show details")
        offered: root.recordId !== root.workspace.inspector
        onPicked: root.workspace.selection = root.recordId
    }
    MenuEntry {
        text: qsTr("Copy citation")
        onPicked: Clipboard.setText(root.record.citation)
    }
    MenuEntry {
        text: qsTr("Copy coordinates")
        onPicked: Clipboard.setText(root.record.coordinates)
    }
}
