pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Map
import Vasker.Platform

// The list of categories below the picker.
Menu {
    id: root

    required property KindListModel kinds

    signal picked(string kind)

    title: qsTr("Layer")
    // Large texts need more room than the column has.
    width: Math.max(anchor.width, Math.round((Theme.columnWidth - 24) * Theme.textScale))
    model: kinds
    labels: kinds.labels
    firstRow: Math.max(0, kinds.currentRow)

    delegate: MenuRow {
        required property int index
        required property string value
        required property string count
        required property string countText
        required symbol
        required property int tint

        symbolic: true
        symbolColor: Theme.colors.record(tint)
        note: count
        spokenNote: countText
        choice: true
        chosen: index === root.kinds.currentRow
        onPicked: root.picked(value)
    }
}
