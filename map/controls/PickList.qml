pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Map
import Vasker.Platform

// The records that stand on one place of the map, to choose from.
Menu {
    id: root

    signal picked(string id)

    function offer(records: recordSet, place: point): void {
        choice.records = records;
        root.openAt(root.anchor, Qt.point(place.x - 8, place.y + 4));
    }

    title: qsTr("%n records at this place", "", list.count)
    heading: title
    headingInset: 20
    width: 296
    mostHeight: 330
    model: choice
    firstRow: 0

    delegate: RecordRow {
        width: ListView.view.width
        current: ListView.isCurrentItem
        separatorVisible: index < ListView.view.count - 1
        onPicked: {
            root.close();
            root.picked(recordId);
        }
    }
    RecordListModel {
        id: choice
    }
}
